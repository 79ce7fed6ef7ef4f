#include <gtest/gtest.h>

#include "base/random.h"
#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

class Teams : public testing::Test {
 protected:
  TemporaryLeague folder;
  platform::ScriptedDialogs dialogs;

  static TeamRecord& Put(int slot, char type = 'P', int year = 1985) {
    TeamRecord& team = league.team[slot];
    team.TeamActive = 1;
    team.City = "Springfield";
    team.TeamType = std::string_view(&type, 1);
    team.Year = static_cast<i16>(year);
    return team;
  }
};

TEST(Division, FollowsTheSlotNumber) {
  const struct {
    const char* why;
    int slot, division;
  } cases[] = {
      {"last of the first block", 432, 36},
      {"first of the second block", 433, 1},
      {"its ninth", 441, 2},
      {"last slot of all", 720, 36},
      {"scratch", 0, 0},
  };
  for (const auto& c : cases) EXPECT_EQ(DivisionOf(c.slot), c.division) << c.why;
  for (int division = 1; division <= kDivisions; ++division) {
    for (const int slot : TeamsOfDivision(division)) EXPECT_EQ(DivisionOf(slot), division);
  }
}

TEST_F(Teams, DivisionsAreHalvedIntoConferences) {
  const struct {
    const char* why;
    std::vector<int> used, conference;
  } cases[] = {
      {"one alone", {7}, {1}},
      {"the middle one belongs to the first", {1, 5, 9}, {1, 1, 2}},
      {"five", {1, 2, 3, 4, 5}, {1, 1, 1, 2, 2}},
  };
  for (const auto& c : cases) {
    league = {};
    for (const int division : c.used) Put(TeamsOfDivision(division)[20]);
    RebuildLookups();
    EXPECT_EQ(league.UsedDivisions, c.used) << c.why;
    for (std::size_t i = 0; i < c.used.size(); ++i) {
      EXPECT_EQ(ConferenceOf(TeamsOfDivision(c.used[i])[20]), c.conference[i]) << c.why << " " << i;
    }
  }
}

TEST_F(Teams, LookupsCountActiveTeamsOnly) {
  Put(1), Put(2), Put(13), Put(14, 'C', 1990);
  Put(25).TeamActive = 2;
  RebuildLookups();
  EXPECT_EQ(league.ActiveTeams, 4);
  EXPECT_EQ(league.UsedDivisions, (std::vector{1, 2}));
  EXPECT_TRUE(league.EqualDivisions);
  EXPECT_TRUE(league.MixedYears);
  EXPECT_EQ(ConferenceOf(14), 2) << "a college team's conference is its division";
  Put(15).Year = 1900;
  league.team[14] = {};
  RebuildLookups();
  EXPECT_TRUE(league.MixedYears) << "1900 is a year, too";
  league.team[15].Year = 0;
  RebuildLookups();
  EXPECT_FALSE(league.MixedYears);
}

TEST_F(Teams, OpeningRepairsOlderTeamsOnce) {
  TeamRecord& old = Put(3, 'D');
  old.Wins = 2;
  old.Year = 1900;
  old.TeamTurnovers = {{5, 6}};
  old.RealWins = 41;
  old.DivisionWins = 2;
  old.ConferenceWins = 77;
  old.CloseWins = 9;
  ASSERT_TRUE(WriteTeam(3));
  LoadAllTeams();
  EXPECT_EQ(old.TeamType, "P");
  EXPECT_EQ(old.Abbrev, "SPR") << "as the table of cities has it";
  EXPECT_EQ(old.Year, 2013);
  EXPECT_EQ(old.TeamTurnovers[2], 0);
  EXPECT_EQ(old.RealWins, 0) << "an unmarked real record is rubbish";
  EXPECT_EQ(old.ConferenceWins, 2);
  EXPECT_EQ(old.CloseWins, 0);

  old.CloseWins = 1;
  old.TeamTurnovers = {{3, 4}};
  old.RealWins = 82;
  old.RealLosses = 101;
  ASSERT_TRUE(WriteTeam(3));
  old = {};
  LoadAllTeams();
  EXPECT_EQ(old.CloseWins, 1) << "repaired once only";
  EXPECT_EQ(old.TeamTurnovers[1], 3);
  EXPECT_EQ(old.RealWins, 0) << "no season has 101 losses";
  ASSERT_TRUE(ReadTeam(3));
  EXPECT_EQ(old.RealWins, 0) << "and the file has it";
  EXPECT_EQ(RecordFile(TeamsFile(), kTeamSlotBytes).Count(), 3) << "free slots are not written";
}

TEST_F(Teams, AnyBytesOpenWithoutHarm) {
  random.Seed(3);
  std::string bytes(700 * 1500 + 77, '\0');
  for (char& c : bytes) c = static_cast<char>(Rnd(256) - 1);
  for (int slot = 0; slot < 700; slot += 3)
    bytes[static_cast<std::size_t>(slot) * 1500] = 1, bytes[static_cast<std::size_t>(slot) * 1500 + 1] = 0;
  ASSERT_TRUE(WriteWholeFile(TeamsFile(), bytes));
  LoadAllTeams();
  EXPECT_EQ(league.ActiveTeams, 234);
  EXPECT_EQ(league.team[720].TeamActive, 0) << "behind the end";
  LoadLeaguePlayers();
  EXPECT_EQ(league.player.size(), 1u) << "no file, no rows, but the empty man";
}

TEST_F(Teams, NumbersOutsideTheLeagueChangeNothing) {
  for (const int team : {0, 721, 999, -1}) {
    EXPECT_FALSE(ReadTeam(team) || WriteTeam(team) || ReadCoach(team) || WriteCoach(team)) << team;
    CoachRecord coach;
    EXPECT_FALSE(ExportCoach(team) || ImportCoach(team, coach)) << team;
  }
  EXPECT_FALSE(ReadTeam(1)) << "no file";
  EXPECT_TRUE(std::filesystem::is_empty(program.LeagueFolder));
  EXPECT_TRUE(dialogs.told.empty());
  program.LeagueFolder.clear();
  EXPECT_FALSE(WriteTeam(1)) << "no league is open";
}

TEST_F(Teams, AWriteThatFailsIsToldWithTheFilesName) {
  Put(1);
  for (const auto& file : {TeamsFile(), CoachesFile(), PlayersFile()}) TemporaryLeague::Block(file);
  PlayerRecord player;
  player.RecNo = 4;
  EXPECT_FALSE(WriteTeam(1));
  EXPECT_FALSE(WriteCoach(1));
  EXPECT_FALSE(WritePlayer(player));
  EXPECT_EQ(dialogs.told,
            (std::vector<std::string>{"HCTEAMS could not be written!", "HCgameplan could not be written!",
                                      "HCPLAYER could not be written!"}));
}

TEST_F(Teams, CountersOfATeamThatHasNotPlayedAreCleared) {
  TeamRecord& team = Put(1);
  team.Streak = 4;
  team.HomeWins = 3;
  team.NeutralLosses = 2;
  team.Abbrev = "ABC";
  team.NameMark = 37;
  ASSERT_TRUE(SaveAllTeams());
  LoadAllTeams();
  EXPECT_EQ(team.Streak + team.HomeWins + team.NeutralLosses, 0);
  EXPECT_EQ(team.Abbrev, "ABC");
}

}  // namespace
}  // namespace tipline
