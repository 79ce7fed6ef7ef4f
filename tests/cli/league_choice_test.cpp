// Which leagues there are, which one is current, and what is told of it.
#include <gtest/gtest.h>

#include "base/record_file.h"
#include "cli/schedule_commands.h"
#include "harness/temporary_home.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/rules.h"
#include "league/schedule.h"
#include "league/setup.h"
#include "league/startup.h"
#include "platform/dialogs.h"
#include "support/caught_output.h"

namespace tipline::cli {
namespace {

namespace fs = std::filesystem;

/// Leagues One and Two, the current one; Bad is damaged, Empty no league.
class LeagueChoice : public testing::Test {
 protected:
  TemporaryHome home;
  platform::ScriptedDialogs dialogs;
  Common common;

  void SetUp() override {
    const Catch quiet;
    LoadSetup();
    Make("One", "pro");
    Make("Two", "women");
    fs::create_directories(LeaguesFolder() / "Empty");
    fs::create_directories(LeaguesFolder() / "Bad");
    ASSERT_TRUE(WriteWholeFile(LeaguesFolder() / "Bad" / "HCTEAMS", "x"));
  }
  void Make(const char* name, const char* preset) {
    LeagueRequest request;
    request.Name = name, request.Preset = preset, request.Divisions = 2, request.Teams = 6,
    request.Games = 10;
    common.Seed = 1;
    ASSERT_EQ(NewLeague(request, common), 0);
  }
  template <class Command>
  std::pair<int, std::string> Run(Command command) const {
    const Catch caught;
    const int code = command();
    return {code, caught.text.str()};
  }
  int Open(const std::string& name) const {
    return Run([&] { return OpenLeagueNamed(name, common); }).first;
  }
  static std::string Current() { return FindLeague("").filename().string(); }
};

TEST_F(LeagueChoice, TheListMarksTheCurrentOne) {
  common.Csv = true;
  const std::string root = SeasonsRoot();
  EXPECT_EQ(Run([&] { return ListLeagues(common); }).second,
            "Current,League,Kind,Teams,Season,Folder\n*,Two,women,6,2022," + root +
                "Two\\\n,One,pro,6,2022," + root + "One\\\n,Bad,can't be opened,,," + root + "Bad\\\n");
}

TEST_F(LeagueChoice, WhatCantBeOpenedChangesNothing) {
  ASSERT_TRUE(MakeCurrent("Gone") && MakeCurrent("Two"));
  fs::remove_all(LeaguesFolder() / "Gone");
  TemporaryLeague::Block(LeaguesFolder() / "One" / "Sked.skd");
  const std::string list = ReadWholeFile(TreePath("Basketball\\Basketball-Recent"));
  for (const char* name : {"", "Three", "Empty", "Bad", "../One", "Gone", "One"}) {
    EXPECT_EQ(Open(name), 1) << name;
    EXPECT_EQ(ReadWholeFile(TreePath("Basketball\\Basketball-Recent")), list) << name;
  }
  EXPECT_EQ(dialogs.told[0], SeasonsRoot() + "Gone\\ is not available!");
}

TEST_F(LeagueChoice, ByNameOrFolder) {
  EXPECT_EQ(Open("one"), 0);
  EXPECT_EQ(Current(), "One");
  EXPECT_EQ(setup.SetupLeagueFolder, SeasonsRoot() + "One\\");
  EXPECT_EQ(Open(SeasonsRoot() + "Two"), 0);
  EXPECT_EQ(Current(), "Two");
  fs::rename(LeaguesFolder() / "Two", LeaguesFolder() / "Three");
  EXPECT_EQ(Open("Three"), 0) << "never opened before";
  EXPECT_EQ(Current(), "Three");
}

TEST_F(LeagueChoice, TheSeasonIsToldAsFarAsItIs) {
  const auto season = [this] {
    const std::string told = Run([this] { return ShowLeague(common); }).second;
    const auto at = told.find("\nSeason") + 1;
    return told.substr(at, told.find('\n', at) - at);
  };
  ASSERT_TRUE(OpenTheLeague(common) && LoadSchedule());
  const auto rows = GamesInOrder();
  ASSERT_EQ(rows.size(), 30u);
  const auto dateOf = [](const ScheduleRecord* row) { return DateText({row->Month, row->Day}); };
  const std::string last = dateOf(rows.back());
  EXPECT_EQ(season(), "Season    2022: not begun, 30 games from " + dateOf(rows.front()));
  for (auto& row : league.ScheduleGame) row.Status = &row == rows.back() ? "U" : "P";
  ASSERT_TRUE(SaveSchedule());
  EXPECT_EQ(season(), "Season    2022: 29 of 30 games played, next on " + last);
}

TEST_F(LeagueChoice, ThePlayoffsAreASecondFolder) {
  fs::copy(LeaguesFolder() / "Two", LeaguesFolder() / "Two-Playoffs");
  ASSERT_TRUE(OpenTheLeague(common));
  league.rules.HasPlayoffModule = 1;
  ASSERT_TRUE(SaveRules());
  const auto change = [this] { return Run([this] { return SwitchLeague(common); }).first; };
  EXPECT_EQ(change(), 1) << "games are left, and the answer was no";
  dialogs.answers = {true};
  EXPECT_EQ(change(), 0);
  EXPECT_EQ(Current(), "Two-Playoffs");
  league.rules.IsPlayoffModule = 1;
  ASSERT_TRUE(SaveRules());
  EXPECT_EQ(change(), 0);
  EXPECT_EQ(Current(), "Two");
}

TEST_F(LeagueChoice, AnotherDriveLeavesTheOldOneClosed) {
  fs::create_directories(program.Home / "drive-d");
  ASSERT_TRUE(CheckGameOpenStatus());
  const auto status = TreePath("Basketball-status.txt");
  EXPECT_EQ(Run([] { return ShowDrives("Q:"); }).first, 1);
  EXPECT_EQ(ReadWholeFile(status), "Open\n");
  EXPECT_EQ(Run([] { return ShowDrives("d:"); }).second, "  C:\n* D:\n");
  EXPECT_EQ(ReadWholeFile(status) + ReadWholeFile(TreePath("Basketball-status.txt")), "Closed\nOpen\n");
  EXPECT_EQ(Current(), "") << "no league lies there yet";
}

}  // namespace
}  // namespace tipline::cli
