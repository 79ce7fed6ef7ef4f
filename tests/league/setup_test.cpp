#include "league/setup.h"

#include <gtest/gtest.h>

#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/data_tree.h"
#include "league/program.h"

namespace tipline {
namespace {

TEST(LoadSetup, FillsWhatIsMissingAndKeepsTheRest) {
  const TemporaryHome home;
  const auto saved = [](u8 speed, u8 narrator) {
    setup = {};
    RepairSetup();
    setup.PBPscroll = speed, setup.NarratorScroll = narrator;
    const auto bytes = RecordBytes(setup);
    return std::string(bytes.begin(), bytes.end());
  };
  std::string shortest(1000, '\0');
  shortest[70] = 77, shortest[71] = 9;
  const struct {
    const char* why;
    std::string file;
    int speed;
  } cases[] = {
      {"999 bytes are no setup", std::string(999, '\7'), 25},
      {"1000 are: the speed on it is kept, what lies behind it is filled", shortest, 9},
      {"the narrator can't be that fast", saved(9, 21), 25},
      {"a sound one", saved(9, 20), 9},
      {"out of range", saved(101, 20), 20},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.why);
    ASSERT_TRUE(WriteWholeFile(SetupFile(), c.file));
    setup = {};
    LoadSetup();
    EXPECT_EQ(setup.PBPscroll, c.speed);
    EXPECT_EQ(setup.PlayCallFrequency[3][2], 10);
    EXPECT_EQ(setup.EncyclopediaName[10], "HCencyclopedia10");
    EXPECT_EQ(setup.StatViewName[11], "Custom");
    const SetupRecord once = setup;
    RepairSetup();
    EXPECT_EQ(RecordBytes(setup), RecordBytes(once)) << "a second load has nothing to do";
  }
  setup = {};
}

TEST(DataTree, TheDriveFileIsUsedOrMended) {
  const struct {
    const char *why, *text, *drive;
  } cases[] = {{"no file", nullptr, "C:"},    {"no colon", "D\n", "C:"},
               {"too long", "D:\\\n", "C:"},  {"a drive that is not there", "E:\n", "C:"},
               {"one that is", "D:\n", "D:"}, {"nothing", "", "C:"}};
  for (const auto& c : cases) {
    const TemporaryHome home;
    std::filesystem::create_directories(program.Home / "drive-d");
    const auto file = program.ProgramFolder / "Orvex-Basketball-Drive";
    ASSERT_TRUE(!c.text || WriteWholeFile(file, c.text));
    ReadDrive();
    EXPECT_EQ(program.DataDrive, c.drive) << c.why;
    EXPECT_EQ(ReadWholeFile(file), std::string(c.drive) + "\n") << c.why;
  }
}

TEST(DataTree, MakesItsFoldersAndStamps) {
  const TemporaryHome home;
  ReadRecentList();
  const auto stamp = TreePath("Basketball\\Sounds\\Basketball-Sound-Edition");
  for (const char* edition : {"2023\n", "2019\n"}) {
    ASSERT_TRUE(WriteWholeFile(stamp, edition)) << "the folder is there";
    MakeDataFolders();
    EXPECT_EQ(ReadWholeFile(stamp), "2023\n");
  }
  EXPECT_EQ(program.LeagueFolder, TreePath("Basketball\\Seasons")) << "no league yet";
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
