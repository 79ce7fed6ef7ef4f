#include "coach/depth_chart.h"

#include <gtest/gtest.h>

#include "coach/game_plan.h"
#include "league/rules.h"
#include "support/men.h"

namespace tipline {
namespace {

Roster EmptyRoster() {
  UseShippedEras();
  Roster roster;
  roster.TeamNo = 9;
  roster.team = MakeTeam("P", 2000);
  return roster;
}

PlayerRecord& Put(Roster& roster, int slot, int primary, int secondary, int games, int minutes,
                  int starts = 0) {
  PlayerRecord& p = roster.player[slot];
  p = MakeMan({2000, "P", primary, secondary}, {.G = games, .Min = minutes});
  p.Stats[1].GS = static_cast<i16>(starts);
  p.TeamNo = 9;
  p.RecNo = static_cast<i16>(slot + 100);
  return p;
}

TEST(DepthCharts, RankByWeightedMinutes) {
  Roster roster = EmptyRoster();
  RulesRecord rules;
  // Weight: minutes / (games + 1) x fit x starter x few games x (salary + 10000) / 10000. Season of 82 games.
  Put(roster, 1, 1, 0, 80, 2430);                        // 30 x 6 x 0.2 = 36
  Put(roster, 2, 2, 1, 80, 2430);                        // second position: 30 x 4.5 x 0.2 = 27
  Put(roster, 3, 1, 0, 9, 300);                          // 30 x 6 x 0.2 x 0.1 = 3.6
  Put(roster, 4, 1, 0, 80, 405, 77);                     // starter: 5 x 6 x 10 x 1 (80 games) = 300
  Put(roster, 5, 1, 0, 80, 2430).Salary = 10000;         // 36 x 2 = 72
  Put(roster, 6, 1, 0, 80, 2430).SecondaryPosition = 1;  // listed twice, primary overrules: 36, after slot 1
  Put(roster, 7, 1, 0, 0, 0);                            // never played
  Put(roster, 8, 1, 0, 80, 81);                          // 1 x 6 x 0.2 = 1.2
  Put(roster, 10, 1, 0, 80, 2430).TeamNo = 9 + kFormerMember;
  roster.player[7].DepthRank[3] = 5;  // of an older chart
  SetDefaultDepthCharts(roster, rules);
  const struct {
    int slot, rank;
  } want[] = {{4, 6}, {5, 5}, {1, 4}, {6, 3}, {2, 2}, {3, 1}, {7, 0}, {8, 0}, {10, 0}};
  for (const auto& w : want) EXPECT_EQ(roster.player[w.slot].DepthRank[1], w.rank) << "slot " << w.slot;
  EXPECT_EQ(roster.player[2].DepthRank[2], 6);
  EXPECT_EQ(roster.player[7].DepthRank[3], 0) << "cleared";
  rules.SalaryValueList = 1;  // user salaries: nobody has one
  SetDefaultDepthCharts(roster, rules);
  EXPECT_EQ(roster.player[5].DepthRank[1], 4) << "third of three at 36, by slot";
}

TEST(DepthCharts, TargetsBelowTheLimitGoBackToRealMinutes) {
  const struct {
    int periods, target, want;
  } cases[] = {{4, 179, 30}, {4, 180, 180}, {2, 149, 30}, {2, 150, 150}};
  for (const auto& c : cases) {
    Roster roster = EmptyRoster();
    RulesRecord rules;
    rules.PeriodList = static_cast<u8>(c.periods);
    Put(roster, 1, 1, 0, 80, 2450).TargetMinutes = static_cast<u8>(c.target);
    SetDefaultDepthCharts(roster, rules);
    EXPECT_EQ(roster.player[1].TargetMinutes, c.want) << c.periods << " " << c.target;
  }
}

TEST(SpecialLineups, TheBestAtEachPosition) {
  Roster roster = EmptyRoster();
  auto& starter = Put(roster, 1, 1, 2, 80, 80 * 35);
  auto& second = Put(roster, 2, 1, 2, 80, 80 * 15);
  auto& rarely = Put(roster, 3, 1, 2, 20, 20 * 15);
  Put(roster, 4, 1, 2, 0, 0);
  starter.RateOffense = 60, starter.RatePassing = 8, starter.RateOffThree = 5;
  second.RateOffense = 30, second.RatePassing = 5, second.RateOffThree = 9;
  rarely.RateOffense = 90, rarely.RatePassing = 9, rarely.RateOffThree = 10;
  SetDefaultSpecialLineups(roster);
  // Blowout: 35 minutes cut 1000 to 10, 15 minutes leave it, 20 games leave 90.
  EXPECT_EQ(second.RotationOrder[1], 1);
  EXPECT_EQ(rarely.RotationOrder[1], 2) << "45 at his second position against 5";
  EXPECT_EQ(starter.RotationOrder[1], 0);
  // Offense: 26 x 1000; 14 x 500; 36 x 45 (1000 x 0.5 x 0.3 x 0.3).
  EXPECT_EQ(starter.RotationOrder[2], 1);
  EXPECT_EQ(second.RotationOrder[2], 2);
  // Three: 560 x 1000; 930 x 1000; 1090 x 90.
  EXPECT_EQ(second.RotationOrder[3], 1);
  EXPECT_EQ(starter.RotationOrder[3], 2);
  EXPECT_EQ(roster.player[4].RotationOrder[1], 0) << "he never played";
  // Defense: equal scores go to the lower slot.
  starter.RateDefOutside = second.RateDefOutside = 5;
  SetDefaultSpecialLineups(roster);
  EXPECT_EQ(starter.RotationOrder[6] * 10 + second.RotationOrder[6], 12);
}

TEST(GamePlan, LeansToWhatTheScorersDoBest) {
  Roster roster = EmptyRoster();
  auto& guard = Put(roster, 1, 1, 0, 80, 2400);
  guard.RateDefForce = 10, guard.RateOffense = 60, guard.RateOffThree = 9, guard.RateOffDrive = 8;
  guard.RateOffInside = 0, guard.RateOffOutside = 10;
  auto& quiet = Put(roster, 2, 5, 0, 80, 2400);
  quiet.RateDefForce = 5, quiet.RateOffense = 50, quiet.RateOffInside = 10;
  roster.coach.DefendInside[2][4] = 6;
  SetDefaultPlanSliders(roster);
  const CoachRecord& c = roster.coach;
  // Plan 0: 5 x 0.2 = 1 -> (1 + 5) / 2 = 3, threes + 0.4. Plan 1 starts at the drive lean 2.3: 3.3 -> 3 -> 4.
  EXPECT_EQ(c.Coverage5[0], 3);
  EXPECT_EQ(c.Coverage5[1], 4);
  EXPECT_EQ(c.Coverage3[0], 2) << "1.5, to the even neighbour";
  EXPECT_EQ(c.Coverage4[0], 2) << "2.5, to the even neighbour";
  EXPECT_EQ(c.DefendInside[2][4], 3);
  roster.coach.DefendInside[2][4] = 6;
  SetDefaultPlanSliders(roster, true);
  EXPECT_EQ(c.DefendInside[2][4], 6) << "kept on demand";
}

}  // namespace
}  // namespace tipline
