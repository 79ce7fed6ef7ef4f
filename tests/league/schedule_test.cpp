#include "league/schedule.h"

#include <gtest/gtest.h>

#include "base/record_file.h"
#include "support/schedule_league.h"

namespace tipline {
namespace {

class Schedule : public testing::Test, public ScheduleLeague {
 protected:
  /// Visitors in the order of the file.
  std::vector<int> Visitors() {
    EXPECT_TRUE(LoadSchedule());
    std::vector<int> visitors;
    for (int n = 1; n <= league.GameCount(); ++n) visitors.push_back(Row(n).Team[1]);
    return visitors;
  }
};

TEST_F(Schedule, ARowCountsFromAQuarterOfItsLengthOn) {
  const std::pair<unsigned, int> cases[] = {{0, 0},   {49, 0},          {50, 1},         {249, 1},
                                            {250, 2}, {4000049, 20000}, {4000050, 20000}};
  for (const auto& [bytes, rows] : cases) {
    EXPECT_TRUE(dialogs.told.empty());
    ASSERT_TRUE(WriteWholeFile(ScheduleFile(), std::string(bytes, '\0')));
    EXPECT_TRUE(LoadSchedule());
    EXPECT_EQ(league.GameCount(), rows) << bytes;
  }
  EXPECT_EQ(dialogs.told.size(), 1u) << "what is beyond is not left out in silence";
}

TEST_F(Schedule, AMissingFileIsMadeAndABadOneIsTold) {
  EXPECT_TRUE(LoadSchedule());
  EXPECT_TRUE(std::filesystem::exists(ScheduleFile()));
  Add(1, 2);
  folder.Block(ScheduleFile());
  EXPECT_FALSE(LoadSchedule());
  EXPECT_EQ(dialogs.told, std::vector<std::string>{"Sked.skd could not be read!"});
  EXPECT_EQ(league.GameCount(), 0);
  EXPECT_FALSE(SaveSchedule());
}

TEST_F(Schedule, OnlyTheDefaultFileHealsItself) {
  const struct {
    const char* file;
    unsigned bytes, spare, healed;
  } cases[] = {{"Sked.skd", 0, 400, 400},
               {"SKED.skd", 49, 51, 51},
               {"Sked.skd", 50, 400, 50},
               {"Sked.skd", 0, 50, 0},
               {"My.skd", 0, 400, 0}};
  for (const auto& c : cases) {
    league.rules.ScheduleFile = c.file;
    ASSERT_TRUE(WriteWholeFile(ScheduleFile(), std::string(c.bytes, '\0')));
    ASSERT_TRUE(WriteWholeFile(SpareSchedule(), std::string(c.spare, '\0')));
    EXPECT_TRUE(LoadSchedule());
    EXPECT_EQ(std::filesystem::file_size(ScheduleFile()), c.healed) << c.file << c.bytes << " " << c.spare;
  }
}

TEST_F(Schedule, TheFirstRowGivesTheYearAndOldTeamNumbersMove) {
  ScheduleRecord old = Add(0, 3, 8);
  old.LegacyTeam = {{200, 0}};
  for (const auto& [year, taken] : {std::pair{1899, 2000}, {1900, 1900}, {2100, 2100}, {2101, 2000}}) {
    old.Year = static_cast<i16>(year);
    ASSERT_TRUE(WriteSchedule(ScheduleFile(), std::span(&old, 1)));
    ASSERT_TRUE(LoadSchedule());
    EXPECT_EQ(league.ScheduleYear, taken);
  }
  EXPECT_EQ(Row(1).Team, (Table<i16, 1, 2>{{200, 3}}));
  EXPECT_EQ(Row(1).LegacyTeam[1], 0);
  EXPECT_TRUE(league.HasAugustGames && !league.HasSeptemberGames);
}

TEST_F(Schedule, EveryGameTakesTheTypeOfItsDate) {
  TournamentPools pools = Pools();
  pools.DateType[5][12] = "P", pools.DateType[31][1] = "C";
  pools.DateType[6][12] = "x", pools.DateType[0][0] = "S";
  for (const bool set : {true, false}) {
    pools.PoolMark = set ? TournamentPools::kSetMark : 0;
    SetPools(pools);
    league.ScheduleGame.resize(1);
    Add(1, 2, 12, 5), Add(1, 2, 1, 31), Add(1, 2, 12, 6), Add(1, 2, 0, 0), Add(1, 2, 255, 255);
    for (int n = 1; n <= 5; ++n) Row(n).GameType = "Q";
    ASSERT_TRUE(SaveSchedule());
    ASSERT_TRUE(LoadSchedule());
    std::string types;
    for (int n = 1; n <= 5; ++n) types += Row(n).GameType.Str();
    EXPECT_EQ(types, set ? "PCRRR" : "RRRRR");
    EXPECT_EQ(Row(2).NeutralSite, set) << "the final is played on a neutral court";
  }
}

TEST_F(Schedule, ASaveDropsWhatNamesNoActiveTeam) {
  for (const int visitor : {1, 0, 5, 721, 1000, -3, 32000, 999, 2}) Add(visitor, 3);
  league.team[2].City = "";
  Add(3, 4).Status = "D";
  Add(4, 3).Status = "P";
  ASSERT_TRUE(WriteWholeFile(ScheduleFile(), std::string(4000, '\0')));
  league.ScheduleYear = 1985;
  ASSERT_TRUE(SaveSchedule());
  EXPECT_EQ(league.GameCount(), 11) << "in memory they stay";
  EXPECT_EQ(Visitors(), (std::vector{1, 999, 4})) << "and the file ends behind the last";
  EXPECT_EQ(Row(3).Year, 1985);
  EXPECT_EQ(league.team[999].City, "TBD");
  EXPECT_EQ(ReadWholeFile(SpareSchedule()), ReadWholeFile(ScheduleFile()));
}

TEST_F(Schedule, SortedItBeginsInOctober) {
  Add(1, 2, 9, 30), Add(2, 1, 1, 2), Add(3, 1, 10, 1), Add(4, 1, 12, 31), Add(5, 1, 1, 2);
  Add(6, 1, 0, 5), Add(7, 1, 3, 32), Add(0, 1, 1, 1), Add(8, 1, 10, 1).Status = "D";
  ASSERT_TRUE(UnloadSortedSchedule());
  EXPECT_EQ(Visitors(), (std::vector{3, 4, 2, 5, 1})) << "dates that no calendar has are left out";
}

TEST_F(Schedule, CountsDatesAndGamesByType) {
  TournamentPools pools = Pools();
  pools.DateType[5][12] = pools.DateType[6][12] = pools.DateType[30][2] = "P";
  SetPools(pools);
  for (const char* status : {"U", "N", "P", "D"}) {
    Add(1, 2, 12, 5).Status = status;
    TakeDateType(league.ScheduleGame.back(), pools);
  }
  const auto counts = CountGameTypes();
  EXPECT_EQ(counts[2].dates, 2) << "no February 30";
  EXPECT_EQ(counts[2].games, 3);
  EXPECT_EQ(counts[2].played, 1);
  EXPECT_EQ(counts[1].dates, 364) << "February 29 is a date";
}

TEST_F(Schedule, TheRulesCanNameNoOtherFile) {
  league.rules.ScheduleFile = "My.SKD";
  EXPECT_EQ(ScheduleFile(), LeagueFile("My.SKD"));
  for (const char* named : {"", "HCTEAMS", "../up.skd", "a\\b.skd", ".skd"}) {
    league.rules.ScheduleFile = named;
    EXPECT_EQ(ScheduleFile(), LeagueFile("Sked.skd")) << named;
  }
  program.LeagueFolder.clear();
  EXPECT_FALSE(LoadSchedule());
}

}  // namespace
}  // namespace tipline
