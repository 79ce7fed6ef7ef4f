#include "base/record.h"

#include <gtest/gtest.h>

#include <map>

#include "base/random.h"
#include "league/coach_record.h"
#include "league/daily.h"
#include "league/era_record.h"
#include "league/leader_tables.h"
#include "league/office_files.h"
#include "league/player_record.h"
#include "league/record_row.h"
#include "league/rules_record.h"
#include "league/schedule_record.h"
#include "league/setup_record.h"
#include "league/team_record.h"
#include "league/tournament_record.h"

namespace tipline {
namespace {

template <class Record>
class Records : public testing::Test {};
using AllRecords =
    testing::Types<StatLine, RealTotalsLine, SeriesLine, TeamRecord, PlayerRecord, CoachRecord, RulesRecord,
                   EraRecord, ScheduleRecord, TournamentPools, SetupRecord, DailyRecord, AddressBook,
                   DraftSettings, DraftSelections, RecordRow, LeaderTable, Top40Table>;
TYPED_TEST_SUITE(Records, AllRecords);

TYPED_TEST(Records, OffsetsMeetEndToEnd) {
  TypeParam record;
  int next = 0;
  Describe(record, [&next](int offset, const char* name, const auto& member, const char*) {
    EXPECT_EQ(offset, next) << name;
    next = offset + DiskSize<std::remove_cvref_t<decltype(member)>>();
  });
  EXPECT_EQ(next, TypeParam::kRecordSize);
}

TYPED_TEST(Records, AnyBytesAreReadAndWrittenBackTheSame) {
  random.Seed(20);
  std::vector<u8> bytes(TypeParam::kRecordSize);
  for (auto& byte : bytes) byte = static_cast<u8>(Rnd(256) - 1);
  TypeParam record;
  ReadRecord(bytes.data(), record);
  EXPECT_EQ(RecordBytes(record), bytes);
}

/// The record that these bytes of a file make, all others being 0.
template <class Record>
Record Read(const std::map<std::size_t, u8>& bytes) {
  std::vector<u8> all(Record::kRecordSize);
  for (const auto& [at, value] : bytes) all.at(at) = value;
  Record record;
  ReadRecord(all.data(), record);
  return record;
}

TEST(Record, TheFirstIndexRunsFastestButInTheGridOfCalls) {
  const auto team = Read<TeamRecord>({{1143 + 2 * (2 - 1 + 10), 7}, {706 + 2 * (2 + 3 * 4 + 33 * 5), 8}});
  EXPECT_EQ(team.PeriodPoints[2][2], 7);
  EXPECT_EQ(team.ScoutCoverage[3][4][6], 8);
  const auto man = Read<PlayerRecord>({{745 + 2 * (4 + 5 * 2), 9}, {1327 + 1 + 5 * 19, 4}});
  EXPECT_EQ(man.QuarterPoints[5][3], 9);
  EXPECT_EQ(man.RotationGrid[2][20], 4);
  const auto coach = Read<CoachRecord>({{56 + 3 + 5 * 18 + 100, 30}, {901 + 10 + 11 * 29, 6}});
  EXPECT_EQ(coach.RotationByRank[4][19][2], 30);
  EXPECT_EQ(coach.DefendInside[10][30], 6);
  const auto boards = Read<LeaderTable>({{9549 + 2 * (3 + 11 * 8), 5}, {1 + 25 * (10 + 11 * 2), 'Q'}});
  EXPECT_EQ(boards.LeaderValue[3][8], 5);
  EXPECT_EQ(boards.LeaderName[10][2].View(), "Q");
  const auto top = Read<Top40Table>({{1 + 4 * (39 + 40 * 11) + 3, 64}, {9121 + 20 * (1 + 40 * 2), 'Q'}});
  EXPECT_EQ(top.TopValue[40][12], 2.0f);
  EXPECT_EQ(top.TopGame[2][3].View(), "Q");
  const auto setup = Read<SetupRecord>({{12994, 12}, {13007, 35}});
  EXPECT_EQ(setup.PlayCallFrequency[1][2], 12);
  EXPECT_EQ(setup.PlayCallFrequency[3][5], 35);
}

TEST(Record, NumbersAreLittleEndianAndSigned) {
  const auto team = Read<TeamRecord>(
      {{372, 0xFD}, {373, 0xFF}, {65, 0x33}, {66, 0x22}, {67, 0x11}, {1197, 0xF0}, {1198, 0x3F}});
  EXPECT_EQ(team.Streak, -3);
  EXPECT_EQ(team.HomeForeColor, 0x112233);
  EXPECT_EQ(team.PowerRating, 1.0);
}

}  // namespace
}  // namespace tipline
