#include "league/rules.h"
#include "league/schedule.h"

#include <gtest/gtest.h>

#include <array>

#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

using Steps = Table<u8, 1, 3>;
using R = RulesRecord;

/// Repairs `rules` for a league of this season.
const RulesRecord& Repaired(const RulesRecord& rules, int year, char type) {
  league.rules = rules;
  RepairRules(year, type);
  return league.rules;
}

struct Season {
  int year;
  char type;
  int expected;
};

TEST(RuleRepairs, FollowYearAndTypeOfTeam1) {
  const auto expect = [](const R& start, u8 R::*field, const std::vector<Season>& seasons) {
    for (const auto& s : seasons)
      EXPECT_EQ(Repaired(start, s.year, s.type).*field, s.expected) << s.year << s.type;
  };
  R pro, college, onePre;
  pro.ShotClockList = 24, pro.PeriodList = 4, pro.MinuteList = 12;
  college.ShotClockList = 30, college.PeriodList = 2, college.MinuteList = 20;
  onePre.OneShotPrePenaltyCheck = 1;
  expect(pro, &R::ShotClockResetList, {{2017, 'P', 24}, {2018, 'P', 14}});
  expect(college, &R::ShotClockResetList, {{2018, 'C', 30}, {2019, 'C', 10}});
  expect({}, &R::IllegalDefenseList, {{1970, 'P', 0}, {1971, 'P', 1}, {1983, 'P', 1}, {1984, 'P', 2}});
  expect({}, &R::IllegalDefenseList, {{2020, 'C', 0}});
  expect(onePre, &R::OneShotPrePenaltyCheck, {{1971, 'P', 1}, {1972, 'P', 0}});
  expect({}, &R::FlagrantCheck, {{2008, 'P', 0}, {2009, 'P', 1}, {2020, 'C', 0}, {2009, 'O', 1}});
  expect({}, &R::OffensiveFoulTeamFoulCheck, {{1970, 'P', 0}, {1958, 'C', 0}, {1959, 'C', 1}});
  expect(college, &R::OffensiveFoulTeamFoulCheck, {{1959, 'P', 1}});
  expect({}, &R::OneShotOnOffensiveFoulBeforePenalty, {{1970, 'P', 0}, {1989, 'C', 1}, {1990, 'C', 0}});
  expect({}, &R::ThreeToMakeTwoBackcourtCheck,
         {{1953, 'P', 0}, {1954, 'P', 1}, {1979, 'P', 1}, {1980, 'P', 0}});
  expect({}, &R::RosterLimitList, {{2017, 'P', 12}, {2018, 'P', 13}, {2019, 'C', 13}, {2020, 'C', 15}});
  expect(college, &R::StandingsOption, {{2020, 'C', 1}});
  expect({}, &R::AutomaticTimeoutsCheck, {{1984, 'P', 0}, {1985, 'P', 1}, {0, 'P', 1}});  // no year: 2018
}

TEST(RuleRepairs, Timeouts) {
  const struct {
    int year;
    char type;
    std::array<u8, 4> timeouts;  // regulation, last period, last 3 minutes, overtime
  } cases[] = {
      {2017, 'P', {7, 4, 2, 2}}, {2016, 'A', {7, 3, 4, 3}}, {2000, 'P', {7, 3, 4, 3}},
      {1999, 'P', {6, 3, 4, 3}}, {1984, 'P', {6, 3, 4, 3}}, {1983, 'P', {6, 3, 4, 2}},
      {1972, 'P', {6, 3, 4, 2}}, {1971, 'P', {6, 3, 2, 2}}, {1940, 'P', {6, 3, 2, 2}},
      {1939, 'P', {7, 4, 2, 2}},  // no year: 2018
      {2020, 'C', {4, 3, 0, 4}},
  };
  for (const auto& c : cases) {
    const RulesRecord& r = Repaired({}, c.year, c.type);
    EXPECT_EQ(
        (std::array{r.TimeoutList, r.LastPeriodTimeoutList, r.Last3MinTimeoutList, r.OvertimeTimeoutList}),
        c.timeouts)
        << c.year << c.type;
  }
}

TEST(RuleRepairs, RunOnceAndKeepWhatTheUserChooses) {
  const RulesRecord& r = Repaired({}, 1975, 'P');
  EXPECT_EQ(r.FoulLimit, (Steps{{5, 5, 5}}));
  EXPECT_EQ(r.ShotClockResetList, 0) << "no shot clock";
  EXPECT_EQ(r.StandingsOption, 1) << "the periods are not yet filled in where this is decided";
  EXPECT_EQ(r.PauseTeamList[720], 255);
  EXPECT_FALSE(RepairRules(2020, 'C')) << "every marker is set";
  league.rules.IllegalDefenseList = 2;
  EXPECT_FALSE(RepairRules(1975, 'P'));
  EXPECT_EQ(league.rules.IllegalDefenseList, 2);
}

TEST(RuleRepairs, WhatNoRuleBookMaySayIsPutRightEveryTime) {
  RulesRecord r = Repaired({}, 2007, 'P');
  r.TimeoutList = 2, r.LastPeriodTimeoutList = 3;
  r.TechnicalPFCheck = 3, r.TechnicalFTslist = 0;
  r.SeasonUsageGamesList = {{40, 20, 30}};
  r.DivisionName[4] = "Division 4";
  r.DivisionName[5] = "East Division";
  r.FoulLimit = {{6, 7, 8}};
  Repaired(r, 2007, 'P');
  EXPECT_EQ(league.rules.LastPeriodTimeoutList, 2);
  EXPECT_EQ(league.rules.TechnicalPFCheck, 1);
  EXPECT_EQ(league.rules.TechnicalFTslist, 1);
  EXPECT_EQ(league.rules.SeasonUsageGamesList, (Steps{{40, 40, 40}}));
  EXPECT_TRUE(league.rules.DivisionName[4].Empty());
  EXPECT_EQ(league.rules.DivisionName[5], "East Division");
  EXPECT_EQ(league.rules.FoulLimit, (Steps{{5, 5, 5}})) << "pro leagues of 2007";
  EXPECT_EQ(Repaired(r, 2006, 'P').FoulLimit, (Steps{{6, 7, 8}}));
}

TEST(FoulLimits, ALowerStepTakesLimitAndPenaltyOfTheOneBefore) {
  const struct {
    Steps limit, saved, penalty;
  } cases[] = {{{{5, 4, 6}}, {{5, 5, 6}}, {{1, 1, 3}}},
               {{{7, 0, 0}}, {{7, 7, 7}}, {{1, 1, 1}}},
               {{{5, 8, 6}}, {{5, 8, 8}}, {{1, 2, 2}}},
               {{{5, 5, 5}}, {{5, 5, 5}}, {{1, 2, 3}}}};
  for (const auto& c : cases) {
    RulesRecord rules;
    rules.FoulLimit = c.limit, rules.Penalty = {{1, 2, 3}};
    RaiseFoulLimits(rules);
    EXPECT_EQ(rules.FoulLimit, c.saved);
    EXPECT_EQ(rules.Penalty, c.penalty);
  }
}

class RuleFiles : public testing::Test {
 protected:
  TemporaryLeague folder;
  platform::ScriptedDialogs dialogs;
};

TEST_F(RuleFiles, AreRepairedOnceAndWrittenOnlyThen) {
  league.team[1].Year = 2020;
  league.team[1].TeamType = "C";
  ASSERT_TRUE(WriteTeam(1));
  league.team[1] = {};
  std::string bytes(2 * kRulesSlotBytes, '\x05');
  std::fill_n(bytes.begin(), RulesRecord::kRecordSize, '\0');
  ASSERT_TRUE(WriteWholeFile(RulesFile(), bytes));
  ASSERT_TRUE(LoadRules());
  EXPECT_EQ(league.rules.RosterLimitList, 15) << "team 1 is read with the rules";
  const auto behindTheRecords = [](std::string slots) {
    return slots.erase(kRulesSlotBytes, TournamentPools::kRecordSize).erase(0, RulesRecord::kRecordSize);
  };
  const auto saved = ReadWholeFile(RulesFile());
  EXPECT_TRUE(behindTheRecords(saved) == behindTheRecords(bytes));
  EXPECT_EQ(ReadPools().PoolMark, TournamentPools::kSetMark) << "a cup that was never set is none";
  EXPECT_NE(saved, bytes);

  const std::filesystem::file_time_type longAgo{};
  std::filesystem::last_write_time(RulesFile(), longAgo);
  ASSERT_TRUE(LoadRules());
  EXPECT_EQ(std::filesystem::last_write_time(RulesFile()), longAgo) << "nothing to repair, nothing written";
}

TEST_F(RuleFiles, AMissingFileGivesSoundRulesAndWritesNothing) {
  TemporaryLeague::Block(RulesFile());
  league.rules.TimeoutList = 9;
  EXPECT_FALSE(LoadRules());
  EXPECT_EQ(league.rules.TimeoutList, 4) << "no type: neither pro nor alternate";
  std::filesystem::remove(RulesFile());
  EXPECT_FALSE(LoadRules());
  EXPECT_FALSE(std::filesystem::exists(RulesFile()));

  RulesRecord shared;
  shared.LeagueName = "Above";
  const RecordFile above(folder.Home() / "orvex-data" / "Basketball" / "HCRULES", kRulesSlotBytes);
  ASSERT_TRUE(above.Write(1, shared));
  EXPECT_FALSE(LoadRules());
  EXPECT_EQ(league.rules.LeagueName, "Above") << "those of the folder above stand in";
  EXPECT_FALSE(std::filesystem::exists(RulesFile()));
}

TEST_F(RuleFiles, PhotosMayLieInAFolderOfTheLeague) {
  RepairRules(2020, 'P');
  league.rules.PrivateLeaguePhotoFolderCheck = 1;
  ASSERT_TRUE(SaveRules());
  program.LeagueFolder /= "";  // a folder's path may end in a separator
  ASSERT_TRUE(LoadRules());
  EXPECT_EQ(league.PhotoFolder, folder.Home() / "orvex-data/Basketball/PlayerPhotos/Demo");
  EXPECT_TRUE(std::filesystem::is_directory(league.PhotoFolder));
}

}  // namespace
}  // namespace tipline
