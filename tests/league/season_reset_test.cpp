#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "harness/temporary_home.h"
#include "league/files.h"

namespace tipline {
namespace {

/// A record with the byte 1 everywhere.
template <class Record>
Record Full() {
  Record record;
  ReadRecord(std::vector<u8>(Record::kRecordSize, 1).data(), record);
  return record;
}

/// Names of the fields of which something is cleared.
template <class Record>
std::set<std::string> Cleared(const Record& record) {
  const auto bytes = RecordBytes(record);
  std::set<std::string> names;
  Describe(record, [&](int offset, const char* name, const auto& member, const char*) {
    const auto first = bytes.begin() + offset;
    const auto last = first + DiskSize<std::remove_cvref_t<decltype(member)>>();
    if (std::count(first, last, 1) < last - first) names.insert(name);
  });
  return names;
}

template <class Record>
void ExpectKept(const Record& record, std::size_t cleared, const std::vector<const char*>& kept) {
  EXPECT_EQ(Cleared(record).size(), cleared);
  for (const char* name : kept) EXPECT_FALSE(Cleared(record).contains(name)) << name;
}

TEST(SeasonReset, ATeamKeepsWhatIsNotOfTheSeason) {
  TemporaryLeague folder;
  league.team[720] = Full<TeamRecord>();
  ZeroTeam(720);
  const TeamRecord& team = league.team[720];
  ExpectKept(
      team, 94,
      {"TeamActive",     "City",         "Abbrev",       "Year",       "TeamType",         "RealTotals",
       "Roster",         "LogoFile",     "PlanMark",     "SplitsMark", "ScheduleStrength", "HighLowMark",
       "LastTenMark",    "SavedWins",    "ArenaAge",     "RealWins",   "SavedPowerRating", "RealLosses",
       "TeamTotalsMark", "ReservedText", "ReservedFlagA"});
  EXPECT_EQ(team.TeamRebounds[1], 257) << "real life stays";
  EXPECT_EQ(team.TeamRebounds[2], 0);
  EXPECT_EQ(team.LastTen[10], " ");
}

TEST(SeasonReset, APlayerLosesOneBlock) {
  TemporaryLeague folder;
  auto real = Full<PlayerRecord>();
  ZeroPlayer(real, 1);
  EXPECT_EQ(Cleared(real), (std::set<std::string>{"Stats", "HomeStats", "RoadStats", "QuarterPoints"}));
  EXPECT_EQ(real.Stats[1].FGA + real.QuarterPoints[5][1], 0);
  EXPECT_EQ(real.Stats[2].FGA, 257);

  auto replay = Full<PlayerRecord>();
  ZeroPlayer(replay, 2);
  EXPECT_EQ(replay.Stats[1].FGA, 257) << "real life stays";
  EXPECT_EQ(replay.Stats[2].DunkMark, 1) << "else the next load would clear the real dunks";
  EXPECT_EQ(replay.Stats[3].FGA, 257) << "so does the last game";
  EXPECT_EQ(replay.Flagrants[3], 1);
  EXPECT_EQ(replay.SeriesStats.FGA, 0);
  ExpectKept(replay, 53,
             {"FirstName", "Status", "GameHighs", "SuspensionGames", "InjuryType", "InjuryReturnMonth",
              "RatePassing", "RotationGrid", "ShareMark", "RecNo", "TeamNo", "AltForm1", "Salary"});

  auto inGame = Full<PlayerRecord>();
  program.ReplayLocked = true;
  ZeroPlayer(inGame, 2);
  EXPECT_EQ(inGame.SeriesStats.FGA, 257) << "the series goes on while a game holds the data";
  auto other = Full<PlayerRecord>();
  ZeroPlayer(other, 3);
  EXPECT_TRUE(Cleared(other).empty());
}

}  // namespace
}  // namespace tipline
