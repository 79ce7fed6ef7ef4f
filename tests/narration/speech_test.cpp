#include "narration/speech.h"

#include <gtest/gtest.h>

#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "narration/lines.h"
#include "narration/show.h"
#include "narration/translations.h"
#include "platform/dialogs.h"
#include "platform/voice.h"
#include "support/neutral_game.h"

namespace tipline {
namespace {

struct Listener : platform::Voice {
  Listener() { platform::UseVoice(this); }
  ~Listener() override { platform::UseVoice(nullptr); }
  bool Silent() const override { return false; }
  std::vector<std::string> Voices() override { return {}; }
  void Select(int) override {}
  void SetRate(double r) override { rate = r; }
  void SetVolume(int) override {}
  void Speak(std::string_view text, bool) override { said.emplace_back(text); }

  double rate = 0;
  std::vector<std::string> said;
};
using Said = std::vector<std::string>;

/// Smith of the home side has a three from the corner; Jones guards him.
void SetUpPlay() {
  SetUpNeutralGame();
  showRandom.Seed(1);
  setup.MasterNarratorCheck = 1;
  game.player[2][1].LastName = "Smith", game.player[2][2].LastName = "Lee";
  game.player[1][1].LastName = "Jones";
  game.scene.BallPlayer = 1, game.scene.PlayKind = "THREE";
  ManAt(2, 1).CourtSpot = 301;
}
// clang-format off

TEST(Speech, FollowsTheGate) {
  Listener listener;
  const struct { const char* why; u8 master; bool film; const char* text; std::size_t said; } cases[] = {
      {"off", 0, false, "swish", 0}, {"on", 1, false, "swish", 1},
      {"nothing to say", 1, false, "  ", 1}, {"a film", 0, true, "swish", 2}};
  for (const auto& c : cases) {
    SetUpPlay();
    setup.MasterNarratorCheck = c.master, program.FilmReplay = c.film, setup.NarratorScroll = 4;
    SpeakLine(c.text);
    EXPECT_EQ(listener.said.size(), c.said) << c.why;
  }
  EXPECT_DOUBLE_EQ(listener.rate, 0.6);
}

TEST(Speech, EachKindOfLineHasItsPreference) {
  Listener listener;
  using S = SetupRecord;
  u8 S::*const checks[] = {&S::NarratorShotPlusResultCheck, &S::NarratorTurnoversCheck,
                           &S::NarratorReboundsCheck, &S::NarratorMiscCheck};
  const struct { int kind, check; } cases[] = {{55, 0}, {220, 0}, {2, 0}, {3, 0},  {21, 1}, {90, 1},
                                               {97, 1}, {33, 2},  {71, 3}, {73, 3}, {81, 3}, {89, 3}};
  for (const auto& c : cases) {
    for (int k = 0; k < 4; ++k) {
      SetUpPlay();
      setup.*checks[k] = 1;
      listener.said.clear();
      NewLine("Smith", c.kind);
      PauseLine();
      NewLine("at the half");
      ShowPlayByPlay();
      EXPECT_EQ(listener.said.size(), k == c.check ? 1u : 0u) << c.kind << " by preference " << k;
    }
  }
}

TEST(Speech, ALineWithoutTheManGivesWayToAPlainSentence) {
  Listener listener;
  // What leads up to a result is heard by its own line; a remark that nobody hears names no man.
  const struct { const char *why, *before, *line; int kind; PlayResult posted; const char* said; } cases[] = {
      {"he ends it", "", "it's good for Smith (12)!", 3, "G3", "it's good for Smith"},
      {"the line before names him", "Smith shoots", "swish!", 3, "G3", "swish"},
      {"nobody hears the line before", "#Smith shoots", "swish!", 3, "G3", "Smith hits a 3 from the corner"},
      {"nobody is named", "it's away", "no good (3)", 220, "M3", "Smith missed from the corner"},
      {"the announcer's word", "", "the hook is no good", 220, "M", "Smith misses a hook"},
      {"a foul is told once", "it's up", "won't go", 220, "M3F",
       "Smith missed from the corner , and it was fouled"},
      {"also in its line", "", "Smith fouled by Jones", 220, "M3F", "Smith fouled by Jones"},
      {"fouled, and named", "", "Smith can't hit", 220, "M3F", "Smith can't hit , but he was fouled"},
      {"the thief", "", "stolen!", 21, "ST", "stolen by Jones"},
      {"by rule", "", "Smith holds it too long", 95, "TO", "5 second violation"},
      {"a loss", "", "he walked", 91, "TO", "Smith traveled"},
  };
  for (const auto& c : cases) {
    SetUpPlay();
    setup.NarratorShotPlusResultCheck = setup.NarratorTurnoversCheck = 1;
    game.play.Posted = c.posted, game.play.Stealer = 1;
    listener.said.clear();
    const std::string_view before = c.before;
    if (before.starts_with("#")) {
      NewLine(std::string(before.substr(1)));
    } else {
      NewLine(std::string(before), kShotLine);
    }
    NewLine(c.line, c.kind);
    ShowPlayByPlay();
    ASSERT_FALSE(listener.said.empty()) << c.why;
    EXPECT_EQ(listener.said.back(), c.said) << c.why;
  }
}

TEST(Speech, SaysWordsAsTheTableHasThem) {
  TemporaryHome home;
  const struct { const char *text, *said; } cases[] = {
      {"smith to SMITH and Smithson", "Smyth to Smyth and Smithson"}, {"Bo Kerr Jr. (12) in!", "Bo Kerr in"},
      {"his 3rd foul, 8th , 11th II 9", "his third foul, eight , 11th nine"}, {"  Lee   iii ", "Lee"}};
  const char* file = "Smith,Smyth\nno second field\nSMITH,never\n\"x\",,\n,y\n";
  ASSERT_TRUE(WriteWholeFile(TranslationFile(), file));
  for (const auto& c : cases) EXPECT_EQ(Translated(c.text), c.said);
  const std::string damaged[] = {"AL,Owl\n", std::string(5000000, 'x'), std::string(3000, '"')};
  for (const std::string& bytes : damaged) {
    ASSERT_TRUE(WriteWholeFile(TranslationFile(), bytes));
    LoadTranslations();
    EXPECT_TRUE(program.Translate.rows.empty()) << bytes.size();
  }
}

TEST(Speech, TheEditorKeepsTranslations) {
  TemporaryHome home;
  platform::ScriptedDialogs dialogs;
  EXPECT_FALSE((HcTranslationEditor{"al", ""}).SaveTranslationCommand());
  EXPECT_EQ(dialogs.beeps, 1);
  for (const char* text : {"Ahl, \"A\"", "Owl"}) {
    EXPECT_TRUE((HcTranslationEditor{"al", text}).SaveTranslationCommand());
  }
  program.Translate = {};
  EXPECT_EQ(Translated("Al"), "Owl") << "also from so short a file";
  EXPECT_EQ(program.Translate.rows.size(), 1u);
  EXPECT_EQ(dialogs.told.front(), "al - Ahl, \"A\" Saved!");
}

TEST(Speech, WholeSentences) {
  Listener listener;
  SetUpPlay();
  game.team[1].City = "Boston", game.team[2].City = "Denver";
  setup.NarratorFoulsCheck = setup.NarratorQuarterScoresCheck = 1;
  league.rules.FoulLimit[1] = 5;
  game.play.Fouler = 1, PlayerAt(1, 1).Stats[3].Pf = 3, game.side[1].TeamFouls = 4;
  SpeakFoul();
  game.Period = 3, game.side[1].Score = 70, game.side[2].Score = 71;
  SpeakPeriodEnd();
  game.Period = 4, setup.NarratorScoringCheck = 1;
  PlayerAt(2, 1).Stats[3].FGM = 9, PlayerAt(2, 2).Stats[3].Ast = 4;
  SpeakPeriodEnd();
  EXPECT_EQ(listener.said, (Said{"foul is on Jones , his third personal",
                                 "at the end of the third quarter, Denver 71 , Boston 70",
                                 "The final score , Denver 71 , Boston 70",
                                 "Denver was led by Smith with 18 points Lee 4 assists"}));
}
// clang-format on

}  // namespace
}  // namespace tipline
