#include "league/setup.h"

#include <gtest/gtest.h>

#include <functional>

#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/data_tree.h"
#include "league/program.h"

namespace tipline {
namespace {

void WriteSetup(const std::string& bytes) { ASSERT_TRUE(WriteWholeFile(SetupFile(), bytes)); }

TEST(LoadSetup, FillsWhatIsMissingAndKeepsTheRest) {
  const TemporaryHome home;
  // clang-format off
  const struct { const char* why; std::function<void()> file; int speed; } cases[] = {
      {"no file", [] {}, 25},
      {"999 bytes are no setup", [] { WriteSetup(std::string(999, '\7')); }, 25},
      {"1000 are: the speed on it is kept, what lies behind it is filled",
       [] { std::string bytes(1000, '\0'); bytes[70] = 77, bytes[71] = 9; WriteSetup(bytes); }, 9},
      {"the narrator can't be that fast",
       [] { setup = {}; RepairSetup(); setup.PBPscroll = 9, setup.NarratorScroll = 21;
            ASSERT_TRUE(SaveSetup()); }, 25},
      {"a sound one", [] { setup = {}; RepairSetup(); setup.PBPscroll = 9; ASSERT_TRUE(SaveSetup()); }, 9},
      {"out of range", [] { setup = {}; RepairSetup(); setup.PBPscroll = 101; ASSERT_TRUE(SaveSetup()); }, 20},
  };
  // clang-format on
  for (const auto& c : cases) {
    std::filesystem::remove(SetupFile());
    c.file();
    setup = {};
    LoadSetup();
    EXPECT_EQ(setup.PBPscroll, c.speed) << c.why;
    EXPECT_EQ(setup.PlayCallFrequency[3][2], 10) << c.why;
    EXPECT_EQ(setup.PlayCallFrequency[1][1], 2) << c.why;
    EXPECT_TRUE(setup.ScreenNameText == "MyName") << c.why;
    EXPECT_TRUE(setup.EncyclopediaName[10] == "HCencyclopedia10") << c.why;
    EXPECT_TRUE(setup.StatViewName[4] == "Per 48 Minutes" && setup.StatViewName[11] == "Custom") << c.why;
    const SetupRecord once = setup;
    RepairSetup();
    EXPECT_EQ(RecordBytes(setup), RecordBytes(once)) << "a second load has nothing to do: " << c.why;
  }
}

TEST(RepairSetup, AMarkerOffFillsItsFieldsAndOnLeavesThem) {
  // clang-format off
  const struct { const char* why; u8 SetupRecord::*mark; u8 SetupRecord::*field; u8 filled; } cases[] = {
      {"calls", &SetupRecord::PlayCallMark, nullptr, 0},
      {"fonts", &SetupRecord::PbpFontMark, &SetupRecord::PbpFontSize, 2},
      {"the edition's sounds", &SetupRecord::SoundEditionMark, &SetupRecord::SoundCrowdScroll, 100},
      {"the edition's narrator", &SetupRecord::NarratorEditionMark, &SetupRecord::NarratorScroll, 10},
      {"reports", &SetupRecord::ReportFontMark, &SetupRecord::ReportFontMenu, 3},
      {"box", &SetupRecord::BoxOptionsMark, &SetupRecord::PlusMinusCheck, 0},
  };
  // clang-format on
  for (const auto& c : cases) {
    for (const bool missing : {false, true}) {
      setup = {};
      RepairSetup();
      if (missing) setup.*c.mark = 1;
      if (c.field) setup.*c.field = 7;
      setup.PlayCallFrequency[1][1] = 9;
      RepairSetup();
      if (c.field) {
        EXPECT_EQ(setup.*c.field, missing ? c.filled : 7) << c.why;
      }
      EXPECT_EQ(setup.PlayCallFrequency[1][1], c.field || !missing ? 9 : 2) << c.why;
    }
  }
}

TEST(PlayCalls, LieInTheFilePeriodByPeriod) {
  setup = {};
  for (int band = 1; band <= 3; ++band) {
    for (int period = 1; period <= 5; ++period)
      setup.PlayCallFrequency[band][period] = static_cast<u8>(10 * band + period);
  }
  const auto bytes = RecordBytes(setup);
  EXPECT_EQ(bytes[12993], 11);
  EXPECT_EQ(bytes[12994], 12);
  EXPECT_EQ(bytes[13007], 35);
  setup = {};
}

TEST(DataTree, TheDriveFileIsUsedOrMended) {
  // clang-format off
  const struct { const char* why; const char* text; const char* drive; } cases[] = {
      {"no file", nullptr, "C:"}, {"no colon", "D\n", "C:"}, {"too long", "D:\\\n", "C:"},
      {"a drive that is not there", "E:\n", "C:"}, {"one that is", "D:\n", "D:"}, {"nothing", "", "C:"},
  };
  // clang-format on
  for (const auto& c : cases) {
    const TemporaryHome home;
    std::filesystem::create_directories(program.Home / "drive-d");
    std::filesystem::create_directories(program.ProgramFolder);
    const auto file = program.ProgramFolder / "Orvex-Basketball-Drive";
    if (c.text) {
      ASSERT_TRUE(WriteWholeFile(file, c.text));
    }
    ReadDrive();
    EXPECT_EQ(program.DataDrive, c.drive) << c.why;
    EXPECT_EQ(ReadWholeFile(file), std::string(c.drive) + "\n") << c.why;
  }
}

TEST(DataTree, MakesItsFoldersAndStamps) {
  const TemporaryHome home;
  ReadRecentList();
  const auto sport = program.Home / "orvex-data" / "Basketball";
  for (const char* folder : {"Seasons", "PlayerPhotos", "Uniforms", "Arenas"})
    EXPECT_TRUE(std::filesystem::is_directory(sport / folder)) << folder;
  const auto stamp = sport / "Sounds" / "Basketball-Sound-Edition";
  EXPECT_EQ(ReadWholeFile(stamp), "2023\n");
  ASSERT_TRUE(WriteWholeFile(stamp, "2019\n"));
  MakeDataFolders();
  EXPECT_EQ(ReadWholeFile(stamp), "2023\n");
  EXPECT_EQ(program.LeagueFolder, sport / "Seasons") << "no league yet";
}

TEST(RecentList, IsReadNormalisedAndWrittenWithoutRepetition) {
  const TemporaryHome home;
  ReadRecentList();
  const std::string root = SeasonsRoot();
  const auto file = TreePath("Basketball\\Basketball-Recent");
  ASSERT_TRUE(
      WriteWholeFile(file, root + "One\r\n\"" + root + "Two\\\\\"\n" + root + "ONE\\\nC:\\ab\\cde\\\n"));
  ReadRecentList();
  EXPECT_EQ(program.RecentList.front(), root + "One\\");
  EXPECT_TRUE(std::filesystem::is_directory(LeaguesFolder() / "One"));
  ASSERT_TRUE(WriteRecentList());
  EXPECT_EQ(ReadWholeFile(file), "\"" + root + "One\\\"\n\"" + root + "Two\\\"\n")
      << "a repetition in another case and a path of ten characters are left out";
  for (int k = 0; k < 40; ++k) ASSERT_TRUE(MakeCurrent("League" + std::to_string(k)));
  EXPECT_EQ(program.RecentList.size(), 20u) << "the seasons list keeps twenty";
  for (int k = 40; k < 60; ++k) ASSERT_TRUE(PushRecent(SeasonsRoot() + "League" + std::to_string(k)));
  EXPECT_EQ(program.RecentList.size(), 30u) << "the recent list thirty";
  ASSERT_TRUE(MakeCurrent("League39"));
  EXPECT_EQ(ShortEntry(program.RecentList.front()), "C:\\...League39");
}

}  // namespace
}  // namespace tipline
