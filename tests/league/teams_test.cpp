#include <gtest/gtest.h>

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
  for (const auto& [slot, division] : {std::pair{0, 0}, {432, 36}, {433, 1}, {441, 2}, {720, 36}})
    EXPECT_EQ(DivisionOf(slot), division) << slot;
  for (int division = 1; division <= kDivisions; ++division) {
    for (const int slot : TeamsOfDivision(division)) EXPECT_EQ(DivisionOf(slot), division);
  }
}

TEST_F(Teams, DivisionsAreHalvedIntoConferences) {
  const struct {
    std::vector<int> used, conference;
  } cases[] = {{{7}, {1}}, {{1, 5, 9}, {1, 1, 2}}, {{1, 2, 3, 4, 5}, {1, 1, 1, 2, 2}}};
  for (const auto& c : cases) {
    league = {};
    for (const int division : c.used) Put(TeamsOfDivision(division)[20]);
    RebuildLookups();
    EXPECT_EQ(league.UsedDivisions, c.used);
    for (std::size_t i = 0; i < c.used.size(); ++i)
      EXPECT_EQ(ConferenceOf(TeamsOfDivision(c.used[i])[20]), c.conference[i]) << c.used.size() << " " << i;
  }
}

TEST_F(Teams, LookupsCountActiveTeamsOnly) {
  Put(1), Put(2), Put(13), Put(14, 'C', 1990);
  Put(25).TeamActive = 2;
  RebuildLookups();
  EXPECT_EQ(league.ActiveTeams, 4);
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
  old.Year = 1900, old.Streak = 4, old.HomeWins = 3, old.NeutralLosses = 2;
  old.RealWins = 41, old.CloseWins = 9;
  ASSERT_TRUE(WriteTeam(3));
  LoadAllTeams();
  EXPECT_EQ(old.TeamType, "P");
  EXPECT_EQ(old.Abbrev, "SPR") << "as the table of cities has it";
  EXPECT_EQ(old.Year, 2013);
  EXPECT_EQ(old.RealWins + old.CloseWins, 0) << "what no marker vouches for is rubbish";
  EXPECT_EQ(old.Streak + old.HomeWins + old.NeutralLosses, 0) << "of a team that has not played";
  EXPECT_EQ(RecordFile(TeamsFile(), kTeamSlotBytes).Count(), 3) << "free slots are not written";

  old.CloseWins = 1, old.RealWins = 82, old.RealLosses = 101;
  ASSERT_TRUE(WriteTeam(3));
  LoadAllTeams();
  EXPECT_EQ(old.CloseWins, 1) << "repaired once only";
  ASSERT_TRUE(ReadTeam(3));
  EXPECT_EQ(old.RealWins, 0) << "no season has 101 losses, and the file has it";
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

}  // namespace
}  // namespace tipline
