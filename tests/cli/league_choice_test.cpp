#include <gtest/gtest.h>

#include "base/record_file.h"
#include "cli/schedule_commands.h"
#include "harness/temporary_home.h"
#include "league/data_tree.h"
#include "league/rules.h"
#include "league/schedule.h"
#include "league/setup.h"
#include "league/startup.h"
#include "platform/dialogs.h"

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
    LoadSetup();
    common.Quiet = true, common.Seed = 1;
    Make("One", "pro");
    Make("Two", "women");
    fs::create_directories(LeaguesFolder() / "Empty");
    fs::create_directories(LeaguesFolder() / "Bad");
    ASSERT_TRUE(WriteWholeFile(LeaguesFolder() / "Bad" / "HCTEAMS", "x"));
  }
  void Make(const char* name, const char* preset) {
    LeagueRequest request;
    request.Name = name, request.Preset = preset, request.Games = 10;
    request.Divisions = 2, request.Teams = 6;
    ASSERT_EQ(NewLeague(request, common), 0);
  }
  template <class Command>
  static std::string Printed(Command command) {
    testing::internal::CaptureStdout();
    EXPECT_EQ(command(), 0);
    return testing::internal::GetCapturedStdout();
  }
  static std::string Current() { return FindLeague("").filename().string(); }
};

TEST_F(LeagueChoice, IsByNameOrFolder) {
  common.Csv = true;
  const std::string root = SeasonsRoot();
  EXPECT_EQ(Printed([&] { return ListLeagues(common); }),
            "Current,League,Kind,Teams,Season,Folder\n*,Two,women,6,2022," + root +
                "Two\\\n,One,pro,6,2022," + root + "One\\\n,Bad,can't be opened,,," + root + "Bad\\\n");
  EXPECT_EQ(OpenLeagueNamed(root + "one", common), 0);
  EXPECT_EQ(setup.SetupLeagueFolder, root + "One\\");
  fs::rename(LeaguesFolder() / "Two", LeaguesFolder() / "Three");
  EXPECT_EQ(OpenLeagueNamed("Three", common), 0) << "never opened before";
  EXPECT_EQ(Current(), "Three");
}

TEST_F(LeagueChoice, WhatCantBeOpenedChangesNothing) {
  ASSERT_TRUE(MakeCurrent("Gone") && MakeCurrent("Two"));
  fs::remove_all(LeaguesFolder() / "Gone");
  TemporaryLeague::Block(LeaguesFolder() / "One" / "Sked.skd");
  const std::string list = ReadWholeFile(TreePath("Basketball\\Basketball-Recent"));
  for (const char* name : {"", "Three", "Empty", "Bad", "../One", "Gone", "One"}) {
    EXPECT_EQ(OpenLeagueNamed(name, common), 1) << name;
    EXPECT_EQ(ReadWholeFile(TreePath("Basketball\\Basketball-Recent")), list) << name;
  }
  EXPECT_EQ(dialogs.told[0], SeasonsRoot() + "Gone\\ is not available!");
}

TEST_F(LeagueChoice, TheSeasonIsToldAsFarAsItIs) {
  const auto told = [this] { return Printed([this] { return ShowLeague(common); }); };
  EXPECT_NE(told().find("2022: not begun, 30 games from 10-30\n"), std::string::npos);
  const auto rows = GamesInOrder();
  for (auto& row : league.ScheduleGame) row.Status = &row == rows.back() ? "U" : "P";
  ASSERT_TRUE(SaveSchedule());
  EXPECT_NE(told().find("2022: 29 of 30 games played, next on 12-02\n"), std::string::npos);
}

TEST_F(LeagueChoice, ThePlayoffsAreASecondFolder) {
  fs::copy(LeaguesFolder() / "Two", LeaguesFolder() / "Two-Playoffs");
  ASSERT_TRUE(OpenTheLeague(common));
  league.rules.HasPlayoffModule = 1;
  ASSERT_TRUE(SaveRules());
  EXPECT_EQ(SwitchLeague(common), 1) << "games are left, and the answer was no";
  dialogs.answers = {true};
  EXPECT_EQ(SwitchLeague(common), 0);
  EXPECT_EQ(Current(), "Two-Playoffs");
  league.rules.IsPlayoffModule = 1;
  ASSERT_TRUE(SaveRules());
  EXPECT_EQ(SwitchLeague(common), 0);
  EXPECT_EQ(Current(), "Two");
}

TEST_F(LeagueChoice, AnotherDriveLeavesTheOldOneClosed) {
  fs::create_directories(program.Home / "drive-d");
  ASSERT_TRUE(CheckGameOpenStatus());
  const auto status = TreePath("Basketball-status.txt");
  EXPECT_EQ(Printed([] { return ShowDrives("d:"); }), "  C:\n* D:\n");
  EXPECT_EQ(ReadWholeFile(status) + ReadWholeFile(TreePath("Basketball-status.txt")), "Closed\nOpen\n");
}

}  // namespace
}  // namespace tipline::cli
