#include "frontoffice/fictional_players.h"

#include <gtest/gtest.h>

#include "base/random.h"
#include "base/record_file.h"
#include "frontoffice/league_maker.h"
#include "harness/temporary_home.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/roster.h"
#include "league/rules.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

/// A league of two teams of 12 men on the disk, opened.
class FictionalPlayers : public testing::Test {
 protected:
  void SetUp() override {
    UseShippedEras();
    LeagueRequest request;
    request.Name = "Small", request.Preset = "historic", request.Divisions = 1, request.Teams = 2;
    std::string message;
    ASSERT_TRUE(MakeLeague(request, message)) << message;
    program.LeagueFolder = LeaguesFolder() / "Small";
    LoadAllTeams();
    random.Seed(1);
  }

  static HcCreateFictionalPlayer Request(int quantity, int team, int position = 0) {
    HcCreateFictionalPlayer screen;
    screen.FictionQuantity = quantity, screen.FictionTeam = team;
    screen.FictionPosition = position, screen.FictionQuality = 3;
    return screen;
  }

  TemporaryHome home;
  platform::ScriptedDialogs dialogs;
};

TEST_F(FictionalPlayers, RefusedWithTheirMessages) {
  const struct {
    HcCreateFictionalPlayer screen;
    std::string message;
  } cases[] = {
      {Request(1, kFreeAgent, -1), "Please Select A Position!"},
      {Request(0, kFreeAgent), "Select A Quantity Of Players To Create!"},
      {Request(5001, kFreeAgent), "The Maximum Quantity Of Players To Create Is 5000!"},
      {Request(19, 1), "A Maximum Of 18 Players May Be Created For " + league.team[1].City.Str() + "!"},
  };
  const int rows = PlayerRows();
  for (auto c : cases) {
    EXPECT_FALSE(c.screen.CreateCommand());
    EXPECT_EQ(dialogs.told.back(), c.message);
  }
  EXPECT_EQ(PlayerRows(), rows);
}

TEST_F(FictionalPlayers, FillOneTeam) {
  const int rows = PlayerRows();
  HcCreateFictionalPlayer screen = Request(18, 1);
  screen.FictionYear = 2020;
  ASSERT_TRUE(screen.CreateCommand());
  EXPECT_EQ(PlayerRows(), rows + 18);
  Roster roster;
  ASSERT_TRUE(ReadRoster(1, roster));
  for (int slot = 13; slot <= 30; ++slot) {
    EXPECT_EQ(roster.player[slot].RecNo, rows + slot - 12);
    EXPECT_EQ(roster.player[slot].Year, 1965) << "the team's year goes before the chosen one";
  }
}

TEST_F(FictionalPlayers, LeagueWideToTheTeamInNeedThenToThePool) {
  HcCreateFictionalPlayer screen = Request(5, kFreeAgent);
  screen.LeagueWide = true;
  screen.FictionMaxPerTeam = 14;  // two more on each of two teams
  ASSERT_TRUE(screen.CreateCommand());
  EXPECT_EQ(dialogs.told.back(), " Players Created: 5\nAssigned To Teams: 4\nFree Agents: 1");
  PlayerRecord last;
  ReadPlayer(PlayerRows(), last);
  EXPECT_EQ(last.TeamNo, kFreeAgent);
}

TEST_F(FictionalPlayers, NeedIsCountedByPosition) {
  TeamNeeds needs;
  PlayerRecord p;
  p.PrimaryPosition = 2, p.SecondaryPosition = 1, p.SpotPosition = 3;
  p.Stats[1].Min = 800;
  needs.Count(1, p, true);
  EXPECT_EQ(needs.TeamNeed[1][2], 600);
  EXPECT_EQ(needs.TeamNeed[1][1] + needs.TeamNeed[1][3], 200);
  EXPECT_EQ(needs.NeediestTeam(2, 15), 2) << "team 2 has no minutes there";
  EXPECT_EQ(needs.NeediestTeam(4, 15), 2) << "equal need: fewer men";
  needs.Count(2, p, false);
  EXPECT_EQ(needs.NeediestTeam(4, 15), 1) << "all equal: the lower number";
  EXPECT_EQ(needs.NeediestTeam(4, 1), kFreeAgent) << "both full";
}

TEST_F(FictionalPlayers, NameFiles) {
  const auto lastNames = program.ProgramFolder / "VTX-Fiction-Last.txt";
  EXPECT_FALSE(std::filesystem::exists(lastNames));
  EXPECT_GE(LoadFictionFiles().Last.size(), 1000u) << "filled at the first use";
  ASSERT_TRUE(
      WriteWholeFile(program.ProgramFolder / "VTX-Fiction-College.txt", "One,\"Two, Three\"\nFour\n"));
  EXPECT_EQ(LoadFictionFiles().College, (std::vector<std::string>{"One", "Two, Three", "Four"}));
  ASSERT_TRUE(WriteWholeFile(lastNames, "Only\nNine\n"));
  const int rows = PlayerRows();
  EXPECT_FALSE(Request(1, kFreeAgent).CreateCommand());
  EXPECT_EQ(dialogs.told.back(), "Missing ORV Fiction Data Files!");
  EXPECT_EQ(PlayerRows(), rows);
}

}  // namespace
}  // namespace tipline
