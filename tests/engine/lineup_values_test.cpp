#include <gtest/gtest.h>

#include <array>

#include "engine/weights.h"
#include "support/neutral_game.h"
#include "support/rows.h"

namespace tipline {

namespace {

PlayerRecord& Third() { return game.player[2][3]; }
void Positions(int primary, int secondary, int spot) {
  Third().PrimaryPosition = static_cast<u8>(primary), Third().SecondaryPosition = static_cast<u8>(secondary);
  Third().SpotPosition = static_cast<u8>(spot);
}

}  // namespace

TEST(LineupValues, SumWhatFiveMenShowWhereTheyStand) {
  // Offense, force, inside defense, passing, defensive boards, offensive boards.
  const auto sums = [] {
    LineupValues();
    EXPECT_EQ(D().LineupOffense, 250);
    const Side& o = O();
    return std::array{o.LineupOffense, o.LineupForce,  static_cast<int>(o.LineupDefInside),
                      o.LineupPassing, o.LineupRebDef, o.LineupRebOff};
  };
  // clang-format off
  ExpectRows(SetUpNeutralGame, sums, {
      {"five at home", [] {}, {250, 25, 18, 20, 14, 19}},
      {"a centre on the wing", [] { Positions(5, 0, 0); }, {248, 23, 16, 19, 15, 18}},
      {"named twice: the later place", [] { Positions(3, 0, 3); }, {249, 24, 17, 20, 14, 19}},
      {"forwards are one place", [] {
        Positions(4, 0, 0), Rules().TraditionalPosCheck = 1; }, {250, 25, 18, 20, 14, 19}},
      {"and the first of two names counts there", [] { Positions(3, 0, 3), Rules().TraditionalPosCheck = 1; },
       {250, 25, 18, 20, 14, 19}},
      {"a good man on the wing is held down", [] {
        Positions(4, 3, 0), Third().RateDefInside = 8, Third().RatePassing = 8, Third().RateRebDef = 8; },
       {250, 25, 19, 20, 14, 19}},
      {"a spent one", [] { Rules().FatigueMeterCheck = 1, OMan(5).Energy = 35; }, {250, 25, 18, 20, 12, 18}},
      {"a centre at the arc", [] { OMan(5).ShotPick = kThree; }, {250, 25, 18, 20, 13, 18}},
      {"an empty place ends the count", [] { O().Lineup[3] = 0; }, {100, 10, 6, 8, 5, 7}},
      {"men who can do nothing", [] {
        for (int p = 1; p <= 5; ++p) game.player[2][p] = {}; }, {0, 0, 0, 0, 0, 0}},
  });
  // clang-format on
}

TEST(LineupValues, DefenseAndUsage) {
  SetUpNeutralGame();
  LineupValues();
  EXPECT_NEAR(O().LineupDefense, 23.662, 1e-9);  // 25 less 1.538 for the inside part, and 0.04 for each fit
  EXPECT_EQ(O().LineupOutside, 30);
  EXPECT_EQ(O().LineupFast, 30);
  Rules().SeasonUsagePenaltiesCheck = 1;
  Third().Stats[2].G = 200;
  LineupValues();  // fit 1.02 x (1 - 5.19615 x 0.05) = 0.754996
  EXPECT_NEAR(O().LineupDefense, 23.662 - 0.04 - 2 * 0.245004, 1e-5);
  EXPECT_EQ(OMan(3).UsageLevel, 3);
  EXPECT_EQ(OMan(2).UsageLevel, 0);
}

}  // namespace tipline
