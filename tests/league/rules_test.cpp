#include "league/rules.h"
#include "league/schedule.h"

#include <gtest/gtest.h>

#include "base/random.h"
#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

/// Repairs `rules` for a league of this season.
const RulesRecord& Repaired(const RulesRecord& rules, int year, char type) {
  league.rules = rules;
  RepairRules(year, type);
  return league.rules;
}

const RulesRecord& RepairedEmpty(int year, char type) { return Repaired({}, year, type); }

struct Season {
  const char* why;
  int year;
  char type;
  int expected;
};

template <std::size_t N>
void Expect(const char* rule, const RulesRecord& start, u8 RulesRecord::*field, const Season (&seasons)[N]) {
  for (const auto& s : seasons) {
    EXPECT_EQ(Repaired(start, s.year, s.type).*field, s.expected) << rule << ": " << s.why;
  }
}

TEST(RuleRepairs, AnEmptyRecordOf1975) {
  const RulesRecord& r = RepairedEmpty(1975, 'P');
  EXPECT_EQ(r.FoulLimit, (Table<u8, 1, 3>{{5, 5, 5}}));
  EXPECT_EQ(r.ShotClockResetList, 0) << "no shot clock";
  EXPECT_EQ(r.StandingsOption, 1) << "the periods are not yet filled in where this is decided";
  EXPECT_EQ(r.PauseTeamList[720], 255);
}

TEST(RuleRepairs, FollowYearAndTypeOfTeam1) {
  RulesRecord clock, college, onePre;
  clock.ShotClockList = 24, clock.PeriodList = 4, clock.MinuteList = 12;
  college.ShotClockList = 30, college.PeriodList = 2, college.MinuteList = 20;
  onePre.OneShotPrePenaltyCheck = 1;
  Expect("reset", clock, &RulesRecord::ShotClockResetList,
         {{"full", 2017, 'P', 24}, {"14 seconds", 2018, 'P', 14}});
  Expect("reset", college, &RulesRecord::ShotClockResetList,
         {{"full", 2018, 'C', 30}, {"10 seconds", 2019, 'C', 10}, {"still", 2020, 'C', 10}});
  Expect("illegal defense", {}, &RulesRecord::IllegalDefenseList,
         {{"not yet", 1970, 'P', 0},
          {"a warning", 1971, 'P', 1},
          {"still", 1983, 'P', 1},
          {"none", 1984, 'P', 2},
          {"college", 2020, 'C', 0},
          {"alternate", 1984, 'A', 2}});
  Expect("one shot", onePre, &RulesRecord::OneShotPrePenaltyCheck,
         {{"kept", 1971, 'P', 1}, {"ended", 1972, 'P', 0}});
  Expect("flagrant", {}, &RulesRecord::FlagrantCheck,
         {{"no", 2008, 'P', 0}, {"yes", 2009, 'P', 1}, {"college", 2020, 'C', 0}, {"other", 2009, 'O', 1}});
  Expect("offensive foul", {}, &RulesRecord::OffensiveFoulTeamFoulCheck,
         {{"pro", 1970, 'P', 0}, {"college, early", 1958, 'C', 0}, {"college", 1959, 'C', 1}});
  Expect("offensive foul", college, &RulesRecord::OffensiveFoulTeamFoulCheck,
         {{"two periods", 1959, 'P', 1}});
  Expect("its free throw", {}, &RulesRecord::OneShotOnOffensiveFoulBeforePenalty,
         {{"pro", 1970, 'P', 0}, {"college", 1989, 'C', 1}, {"ended", 1990, 'C', 0}});
  Expect("backcourt", {}, &RulesRecord::ThreeToMakeTwoBackcourtCheck,
         {{"no", 1953, 'P', 0}, {"first", 1954, 'P', 1}, {"last", 1979, 'P', 1}, {"ended", 1980, 'P', 0}});
  Expect("roster limit", {}, &RulesRecord::RosterLimitList,
         {{"12", 2017, 'P', 12}, {"13", 2018, 'P', 13}, {"13", 2019, 'C', 13}, {"15", 2020, 'C', 15}});
  Expect("standings", college, &RulesRecord::StandingsOption, {{"two periods", 2020, 'C', 1}});
  Expect("media timeouts", {}, &RulesRecord::AutomaticTimeoutsCheck,
         {{"no", 1984, 'P', 0}, {"yes", 1985, 'P', 1}, {"no year counts as 2018", 0, 'P', 1}});
}

TEST(RuleRepairs, Timeouts) {
  const struct {
    const char* why;
    int year;
    char type;
    int regulation, last, last3, overtime;
  } cases[] = {
      {"2017", 2017, 'P', 7, 4, 2, 2},
      {"2016", 2016, 'A', 7, 3, 4, 3},
      {"2000", 2000, 'P', 7, 3, 4, 3},
      {"1999", 1999, 'P', 6, 3, 4, 3},
      {"1984", 1984, 'P', 6, 3, 4, 3},
      {"1983", 1983, 'P', 6, 3, 4, 2},
      {"1972", 1972, 'P', 6, 3, 4, 2},
      {"1971", 1971, 'P', 6, 3, 2, 2},
      {"no year is 2018", 1939, 'P', 7, 4, 2, 2},
      {"1940 is itself", 1940, 'P', 6, 3, 2, 2},
      {"college", 2020, 'C', 4, 3, 0, 4},
  };
  for (const auto& c : cases) {
    const RulesRecord& r = RepairedEmpty(c.year, c.type);
    EXPECT_EQ(r.TimeoutList, c.regulation) << c.why;
    EXPECT_EQ(r.LastPeriodTimeoutList, c.last) << c.why;
    EXPECT_EQ(r.Last3MinTimeoutList, c.last3) << c.why;
    EXPECT_EQ(r.OvertimeTimeoutList, c.overtime) << c.why;
  }
}

TEST(RuleRepairs, RunOnceAndKeepWhatTheUserChooses) {
  RepairedEmpty(1975, 'P');
  EXPECT_FALSE(RepairRules(1975, 'P'));
  EXPECT_FALSE(RepairRules(2020, 'C')) << "every marker is set";
  league.rules.IllegalDefenseList = 2;
  EXPECT_FALSE(RepairRules(1975, 'P'));
  EXPECT_EQ(league.rules.IllegalDefenseList, 2);
}

TEST(RuleRepairs, WhatNoRuleBookMaySayIsPutRightEveryTime) {
  RulesRecord r = RepairedEmpty(2007, 'P');
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
  EXPECT_EQ(league.rules.SeasonUsageGamesList, (Table<u8, 1, 3>{{40, 40, 40}}));
  EXPECT_TRUE(league.rules.DivisionName[4].Empty());
  EXPECT_EQ(league.rules.DivisionName[5], "East Division");
  EXPECT_EQ(league.rules.FoulLimit, (Table<u8, 1, 3>{{5, 5, 5}})) << "pro leagues of 2007";
  EXPECT_EQ(Repaired(r, 2006, 'P').FoulLimit, (Table<u8, 1, 3>{{6, 7, 8}}));
}

TEST(FoulLimits, ALowerStepTakesLimitAndPenaltyOfTheOneBefore) {
  using Three = Table<u8, 1, 3>;
  const struct {
    const char* why;
    Three limit, saved, penalty;
  } cases[] = {
      {"second below first", {{5, 4, 6}}, {{5, 5, 6}}, {{1, 1, 3}}},
      {"both below", {{7, 0, 0}}, {{7, 7, 7}}, {{1, 1, 1}}},
      {"third below second", {{5, 8, 6}}, {{5, 8, 8}}, {{1, 2, 2}}},
      {"equal steps stay", {{5, 5, 5}}, {{5, 5, 5}}, {{1, 2, 3}}},
  };
  for (const auto& c : cases) {
    RulesRecord rules;
    rules.FoulLimit = c.limit;
    rules.Penalty = {{1, 2, 3}};
    RaiseFoulLimits(rules);
    EXPECT_EQ(rules.FoulLimit, c.saved) << c.why;
    EXPECT_EQ(rules.Penalty, c.penalty) << c.why;
  }
}

class RuleFiles : public testing::Test {
 protected:
  TemporaryLeague folder;
  platform::ScriptedDialogs dialogs;
  std::filesystem::file_time_type FileTime() { return std::filesystem::last_write_time(RulesFile()); }
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
  EXPECT_EQ(league.LeagueFolderName, "Demo");
  EXPECT_EQ(league.PhotoRatio, 1.5);
  EXPECT_EQ(league.PositionLabel[1], "PG");
  const auto saved = ReadWholeFile(RulesFile());
  constexpr auto kSpare = kRulesSlotBytes - RulesRecord::kRecordSize;
  EXPECT_EQ(saved.substr(RulesRecord::kRecordSize, kSpare), bytes.substr(RulesRecord::kRecordSize, kSpare));
  EXPECT_EQ(saved.substr(kRulesSlotBytes + TournamentPools::kRecordSize),
            bytes.substr(kRulesSlotBytes + TournamentPools::kRecordSize));
  EXPECT_EQ(ReadPools().PoolMark, TournamentPools::kSetMark) << "a cup that was never set is none";
  EXPECT_NE(saved, bytes);

  std::filesystem::last_write_time(RulesFile(), {});
  const auto before = FileTime();
  ASSERT_TRUE(LoadRules());
  EXPECT_EQ(FileTime(), before) << "nothing to repair, nothing written";
}

TEST_F(RuleFiles, ShortAndRandomFilesOpen) {
  random.Seed(8);
  for (const std::size_t length : {0u, 100u, 2680u, 10001u, 30007u}) {
    std::string bytes(length, '\0');
    for (char& c : bytes) c = static_cast<char>(Rnd(256) - 1);
    ASSERT_TRUE(WriteWholeFile(RulesFile(), bytes));
    EXPECT_TRUE(LoadRules()) << length;
    EXPECT_GE(league.rules.PeriodList, 1) << length;
    EXPECT_LE(league.rules.FoulLimit[1], league.rules.FoulLimit[3]) << length;
    EXPECT_FALSE(RepairRules(league.team[1].Year, ' ')) << length << ": a second load changes nothing";
  }
}

TEST_F(RuleFiles, AMissingFileGivesSoundRulesAndWritesNothing) {
  TemporaryLeague::Block(RulesFile());
  league.rules.TimeoutList = 9;
  EXPECT_FALSE(LoadRules());
  EXPECT_EQ(league.rules.TimeoutList, 4) << "no type: neither pro nor alternate";
  EXPECT_EQ(league.rules.MinuteList, 12);
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

TEST_F(RuleFiles, LabelsPhotosAndTheirFolderFollowTheRules) {
  ASSERT_TRUE(SaveRules());
  ASSERT_TRUE(LoadRules());
  EXPECT_EQ(league.PhotoFolder, folder.Home() / "orvex-data/Basketball/PlayerPhotos");
  league.rules.TraditionalPosCheck = 1;
  league.rules.PrivateLeaguePhotoFolderCheck = 1;
  league.rules.PlayerHeigtToWidthList = 6;
  ASSERT_TRUE(SaveRules());
  program.LeagueFolder /= "";  // a folder's path may end in a separator
  ASSERT_TRUE(LoadRules());
  EXPECT_EQ(league.PositionLabel, (Table<std::string, 1, 5>{{"G", "G", "F", "F", "C"}}));
  EXPECT_DOUBLE_EQ(league.PhotoRatio, 2.5 / 3.5);
  EXPECT_EQ(league.PhotoFolder, folder.Home() / "orvex-data/Basketball/PlayerPhotos/Demo");
  EXPECT_TRUE(std::filesystem::is_directory(league.PhotoFolder));
}

TEST_F(RuleFiles, AFailedWriteIsTold) {
  TemporaryLeague::Block(RulesFile());
  EXPECT_FALSE(SaveRules());
  EXPECT_EQ(dialogs.told, std::vector<std::string>{"HCRULES could not be written!"});
}

}  // namespace
}  // namespace tipline
