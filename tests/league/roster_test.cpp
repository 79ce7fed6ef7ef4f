#include "league/roster.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "league/league_check.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

class Rosters : public testing::Test {
 protected:
  TemporaryLeague folder;
  platform::ScriptedDialogs dialogs;
  Roster roster;

  void SetUp() override {
    TeamRecord& team = league.team[5];
    team.TeamActive = 1, team.City = "Salem/West";
    constexpr int kRows[][2] = {{1, 2}, {4, 3}, {5, 1}, {6, 99}, {7, -8}};
    for (const auto& [slot, row] : kRows) team.Roster[slot] = static_cast<i16>(row);
    ASSERT_TRUE(WriteTeam(5));
    PutMan(1, 0, "Gone");
    PutMan(2, 5, "Ames");
    PutMan(3, 1005, "Traded");
  }

  static void PutMan(int recNo, int team, const char* name) {
    PlayerRecord man;
    man.RecNo = static_cast<i16>(recNo), man.TeamNo = static_cast<i16>(team), man.LastName = name;
    ASSERT_TRUE(WritePlayer(man));
  }
};

TEST_F(Rosters, MenStandInTheirSlotsAndRemovedOnesLeave) {
  ASSERT_TRUE(ReadRoster(5, roster));
  EXPECT_EQ(roster.player[1].LastName, "Ames");
  EXPECT_EQ(roster.player[4].LastName, "Traded") << "a former member keeps his slot";
  EXPECT_EQ(roster.team.Roster[5], 0) << "an erased row";
  EXPECT_EQ(roster.team.Roster[6], 0) << "a row behind the end of the file";
  EXPECT_EQ(roster.player[0].RecNo + roster.player[7].RecNo, 0);
  EXPECT_EQ(league.team[5].Roster[5], 0) << "the table follows";
  ASSERT_TRUE(LookAtRoster(5, roster));
  EXPECT_EQ(roster.team.Roster[6], 0) << "the file was repaired";
  EXPECT_FALSE(RepairRoster(roster).Any()) << "once";
  for (const int team : {0, 4, 721}) EXPECT_FALSE(ReadRoster(team, roster)) << team;
}

TEST_F(Rosters, AManStandsOnOneSlotAndMissingOnesEnterTheHighestFreeOne) {
  PutMan(5, 0, "Late");
  PlayerRecord wrong;
  wrong.TeamNo = 5, wrong.LastName = "Late";
  wrong.RecNo = 3;  // the row knows its own number badly
  ASSERT_TRUE(RecordFile(PlayersFile(), kPlayerSlotBytes).Write(4, wrong));
  league.team[5].Roster[8] = 2;
  league.team[5].Roster[30] = 3;
  ASSERT_TRUE(WriteTeam(5));
  LoadLeaguePlayers();
  league.player[5].TeamNo = 5;  // the file knows better
  ASSERT_TRUE(ReadRoster(5, roster));
  EXPECT_EQ(roster.team.Roster[1], 2);
  EXPECT_EQ(roster.team.Roster[8], 0) << "he stands at slot 1";
  EXPECT_EQ(roster.player[30].LastName, "Late");
  EXPECT_TRUE(roster.team.Roster[30] == 4 && roster.player[30].RecNo == 4);
  EXPECT_EQ(std::count(roster.team.Roster.begin(), roster.team.Roster.end(), 5), 0);
}

TEST_F(Rosters, ARowOfNobodyIsGivenUp) {
  PutMan(2, 5, "Noname");
  ASSERT_TRUE(ReadRoster(5, roster));
  EXPECT_EQ(roster.team.Roster[1], 0);
  PlayerRecord man;
  ReadPlayer(2, man);
  EXPECT_EQ(man.TeamNo, 0);
}

TEST_F(Rosters, CoachMenAndTeamAreWrittenBackOrNothingIsTaken) {
  ASSERT_TRUE(ReadRoster(5, roster));
  roster.player[1].Age = 31;
  roster.player[4].RecNo = 0;
  roster.coach.OverallPace = 4;
  roster.team.Wins = 12;
  ASSERT_TRUE(WriteRoster(roster));
  EXPECT_EQ(league.team[5].Wins, 12) << "the league's table follows";
  ASSERT_TRUE(ReadRoster(5, roster));
  EXPECT_EQ(roster.player[1].Age, 31);
  EXPECT_EQ(roster.team.Roster[4], 0) << "a man without a record leaves his slot";
  EXPECT_EQ(roster.coach.OverallPace, 4);

  TemporaryLeague::Block(PlayersFile());
  roster.team.Wins = 13;
  EXPECT_FALSE(WriteRoster(roster));
  EXPECT_EQ(dialogs.told, std::vector<std::string>{"HCPLAYER could not be written!"});
  EXPECT_EQ(league.team[5].Wins, 12);
}

TEST_F(Rosters, NobodyLeavesWhileAFileCantBeRead) {
  const std::string before = ReadWholeFile(TeamsFile());
  for (const auto& file : {DailyFile(), CoachesFile(), PlayersFile()}) {
    TemporaryLeague::Block(file);
    EXPECT_EQ(LeagueFault(program.LeagueFolder), file.string() + " can't be read.");
    EXPECT_FALSE(ReadRoster(5, roster)) << file;
  }
  EXPECT_TRUE(ReadWholeFile(TeamsFile()) == before);
}

TEST_F(Rosters, APlanTravelsOnlyToItsOwnTeam) {
  ASSERT_TRUE(ExportCoach(5));
  league.team[6].City = "Aston";
  const auto file = program.LeagueFolder / "Aston Coach.coa";
  std::filesystem::rename(program.LeagueFolder / "SalemWest Coach.coa", file);
  CoachRecord coach;
  coach.OverallPace = 3;
  EXPECT_FALSE(ImportCoach(6, coach));
  EXPECT_EQ(dialogs.told, std::vector<std::string>{"You may only import a game plan for Aston!"});
  std::filesystem::resize_file(file, 3);
  EXPECT_FALSE(ImportCoach(6, coach)) << "cut off before the team number";
  EXPECT_EQ(coach.OverallPace, 3);
}

}  // namespace
}  // namespace tipline
