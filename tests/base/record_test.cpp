#include "base/record.h"

#include <gtest/gtest.h>

#include "base/random.h"
#include "league/coach_record.h"
#include "league/era_record.h"
#include "league/player_record.h"
#include "league/rules_record.h"
#include "league/schedule_record.h"
#include "league/team_record.h"
#include "league/tournament_record.h"

namespace tipline {
namespace {

template <class Record>
class Records : public testing::Test {};
using AllRecords = testing::Types<StatLine, RealTotalsLine, SeriesLine, TeamRecord, PlayerRecord, CoachRecord,
                                  RulesRecord, EraRecord, ScheduleRecord, TournamentPools>;
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

TEST(Record, SizesAreThoseOfTheFiles) {
  EXPECT_EQ(TeamRecord::kRecordSize, 1500);
  EXPECT_EQ(PlayerRecord::kRecordSize, 1499);
  EXPECT_EQ(CoachRecord::kRecordSize, 13607);
  EXPECT_EQ(RulesRecord::kRecordSize, 2680);
  EXPECT_EQ(EraRecord::kRecordSize, 81);
}

TEST(Record, TheFirstIndexRunsFastest) {
  std::vector<u8> team(TeamRecord::kRecordSize), player(PlayerRecord::kRecordSize),
      coach(CoachRecord::kRecordSize);
  team[1143 + 2 * (2 - 1 + 10)] = 7;                        // points of period 2, opponents
  team[706 + 2 * (3 - 1 + 3 * 4 + 33 * (6 - 1))] = 8;       // zone 3, rating 4, coverage 6
  player[745 + 2 * (5 - 1 + 5 * (3 - 1))] = 9;              // overtime points of the game
  player[1327 + (2 - 1 + 5 * (20 - 1))] = 4;                // second period, minute 20
  coach[56 + (4 - 1 + 5 * (19 - 1) + 100 * (2 - 1))] = 30;  // position 4, minute 19, period 2
  coach[901 + (10 + 11 * (30 - 1))] = 6;                    // plan 10, slot 30
  TeamRecord t;
  PlayerRecord p;
  CoachRecord c;
  ReadRecord(team.data(), t);
  ReadRecord(player.data(), p);
  ReadRecord(coach.data(), c);
  EXPECT_EQ(t.PeriodPoints[2][2], 7);
  EXPECT_EQ(t.ScoutCoverage[3][4][6], 8);
  EXPECT_EQ(p.QuarterPoints[5][3], 9);
  EXPECT_EQ(p.RotationGrid[2][20], 4);
  EXPECT_EQ(c.RotationByRank[4][19][2], 30);
  EXPECT_EQ(c.DefendInside[10][30], 6);
}

TEST(Record, NumbersAreLittleEndianAndSigned) {
  std::vector<u8> bytes(TeamRecord::kRecordSize);
  bytes[372] = 0xFD, bytes[373] = 0xFF;                  // a streak of -3
  bytes[65] = 0x33, bytes[66] = 0x22, bytes[67] = 0x11;  // 0x00112233
  bytes[1197] = 0xF0, bytes[1198] = 0x3F;                // 1.0
  TeamRecord team;
  ReadRecord(bytes.data(), team);
  EXPECT_EQ(team.Streak, -3);
  EXPECT_EQ(team.HomeForeColor, 0x112233);
  EXPECT_EQ(team.PowerRating, 1.0);
}

}  // namespace
}  // namespace tipline
