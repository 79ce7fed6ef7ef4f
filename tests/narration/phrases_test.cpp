#include "narration/phrases.h"

#include <gtest/gtest.h>

#include <map>

#include "base/record_file.h"
#include "engine/game_state.h"
#include "harness/temporary_home.h"
#include "league/setup.h"
#include "narration/phrase_file.h"
#include "narration/phrase_manager.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

constexpr long long kFileBytes = 240000;

class Phrases : public testing::Test {
 protected:
  Phrases() { setup = {}, showRandom.Seed(1); }
  TemporaryHome home;
  platform::ScriptedDialogs dialogs;

  static long long Bytes(std::string_view name) { return RecordFile(PhraseFile(name), 40).Bytes(); }
  static void Write(std::string_view name, std::string_view bytes) {
    ASSERT_TRUE(WriteWholeFile(PhraseFile(name), bytes));
  }
};
// clang-format off

TEST_F(Phrases, EverySlotHasOneTextAndOneRole) {
  std::map<int, int> rows;
  for (const auto part : {ShotPhrases(), WhistlePhrases(), FloorPhrases()}) {
    for (const PhraseRole& role : part) {
      ++rows[role.slot];
      EXPECT_TRUE(!role.text.empty() && role.text.size() <= 40 && !role.role.empty()) << role.slot;
      EXPECT_TRUE(IsPrintable(role.text) && Trimmed(role.text) == role.text) << role.text;
    }
  }
  for (int slot = 1; slot <= kPhraseSlotsUsed; ++slot) EXPECT_EQ(rows[slot], 1) << "slot " << slot;
  EXPECT_EQ(rows.size(), static_cast<std::size_t>(kPhraseSlotsUsed));
}

TEST_F(Phrases, VariantsComeAsOftenAsTheSettingSays) {
  const struct { u8 usage; int share[4]; } cases[] = {
      {0, {50, 40, 5, 5}},    {1, {35, 40, 15, 10}}, {2, {20, 40, 20, 20}},
      {3, {15, 20, 25, 40}},  {4, {5, 20, 25, 50}},  {9, {5, 20, 25, 50}}};
  for (const auto& c : cases) {
    setup.DescriptionUsage = c.usage;
    std::map<int, int> drawn;
    int tier[4] = {};
    for (int n = 0; n < 20000; ++n) {
      const int v = PickVariant();
      ++drawn[v], ++tier[v == 1 ? 0 : v <= 5 ? 1 : v <= 10 ? 2 : 3];
    }
    for (int t = 0; t < 4; ++t) EXPECT_NEAR(tier[t] / 200.0, c.share[t], 1.5) << int{c.usage} << " " << t;
    EXPECT_EQ(drawn.size(), 20u) << "each of the twenty, and no other";
  }
}

TEST_F(Phrases, BlanksAndTheFirstVariantReadAsTheBuiltInText) {
  std::string bytes(kFileBytes, ' ');
  const auto put = [&bytes](std::size_t variant, std::string_view text) {
    bytes.replace(121 * 800 + (variant - 1) * 40, text.size(), text);
  };
  put(1, "first"), put(3, "third"), put(4, "a\x01\nb\xFF" "c"), put(5, std::string(40, '\0'));
  Write(kStandardPhraseFile, bytes + std::string(5000000, 'x'));
  HCDESCRIPS screen;
  ASSERT_TRUE(screen.Pick(122, 3));
  const std::string own(DefaultPhrase(122)), shown[] = {own, own, "third", "a  b c", own};
  for (int v = 1; v <= 5; ++v) EXPECT_EQ(screen.Shown(v), shown[v - 1]) << "variant " << v;
  EXPECT_EQ(Phrase(0) + Phrase(254) + Phrase(-1), "");
}

TEST_F(Phrases, FilesThatAreMissingOrCutAreMended) {
  Write(kMasterPhraseFile, std::string(149999, 'x'));
  Write("cut.hcp", "cut off");
  setup.PhraseFileName = "CUT.HCP";
  LoadPhraseTable();
  EXPECT_EQ(program.Phrases.At(2, 1).View(), DefaultPhrase(1));
  EXPECT_EQ(Bytes(kMasterPhraseFile), kFileBytes) << "the master copy is written anew";
  EXPECT_EQ(Bytes("cut.hcp"), 7) << "what the user made stays";
  for (const char* name : {"", "notes.txt", "../up.HCp", "HC"}) {
    setup.PhraseFileName = name;
    LoadPhraseTable();
    EXPECT_EQ(setup.PhraseFileName, kStandardPhraseFile) << name;
  }
  EXPECT_EQ(Bytes(kStandardPhraseFile), kFileBytes) << "a missing one, too";
}

TEST_F(Phrases, TheManagerKeepsWhatItIsTold) {
  HCDESCRIPS screen;
  EXPECT_EQ(screen.FileLabel(), "Current Play-By-Play File: HCpbp.HCp");
  ASSERT_TRUE(screen.Pick(253, 20));
  screen.PhraseText = " lets it fly ";
  ASSERT_TRUE(screen.SaveCommand());
  EXPECT_EQ(HCDESCRIPS().SearchCommand("LETS IT FLY").back().variant, 20) << "from the file, in any case";
  ASSERT_TRUE(screen.SaveAsCommand("Mine"));
  dialogs.answers = {false, true, true};
  EXPECT_FALSE(screen.ChangeFileCommand("HCpbp"));
  EXPECT_EQ(setup.PhraseFileName, "Mine.HCp") << "answered no";
  EXPECT_TRUE(screen.ChangeFileCommand("HCpbp.HCp") && screen.DeleteFileCommand("Mine"));
  EXPECT_EQ(dialogs.asked[1], "Change play-by-play file to HCpbp.HCp?");
  EXPECT_EQ(dialogs.asked[2], "Delete Mine.HCp?");
  EXPECT_EQ(Bytes("Mine.HCp"), 0);
  EXPECT_EQ(setup.PhraseFileName, kStandardPhraseFile);
}

TEST_F(Phrases, TheManagerRefusesWithAReason) {
  const auto save = [](HCDESCRIPS& s, int variant, std::string text) {
    s.Pick(1, variant), s.PhraseText = std::move(text);
    return s.SaveCommand();
  };
  HCDESCRIPS s;
  const std::string before = ReadWholeFile(PhraseFile(kStandardPhraseFile));
  const bool done[] = {s.Pick(254, 1), s.Pick(1, 21), save(s, 1, "other"), save(s, 2, std::string(41, 'x')),
                       save(s, 2, "a\nb"), s.SaveAsCommand("../x"), s.SaveAsCommand(" "),
                       s.SaveAsCommand("HCPBP"), s.ChangeFileCommand("none"),
                       s.DeleteFileCommand("HCPBP.HCP"), s.UsageCommand(5)};
  for (std::size_t k = 0; k < std::size(done); ++k) EXPECT_FALSE(done[k]) << "refusal " << k;
  EXPECT_EQ(dialogs.told.size(), std::size(done)) << "each with one message";
  EXPECT_TRUE(before == ReadWholeFile(PhraseFile(kStandardPhraseFile)) && dialogs.unexpected.empty());
}
// clang-format on

}  // namespace
}  // namespace tipline
