#include <gtest/gtest.h>

#include "frontoffice/efficiency.h"
#include "league/player_values.h"
#include "league/rules.h"
#include "support/men.h"

namespace tipline {
namespace {

TEST(PositionDefenseOf, WeighsByPositionAndPenalizesStrangers) {
  PlayerRecord p;
  p.RateDefOutside = 8;
  p.RateDefInside = 2;
  p.PrimaryPosition = 2;
  p.SecondaryPosition = 3;
  p.SpotPosition = 5;
  const struct {
    const char* why;
    int position;
    double want;
  } cases[] = {
      {"not his: half of 0.931 x 8 + 0.069 x 2", 1, 3.793},
      {"his own: 0.956 x 8 + 0.044 x 2", 2, 7.736},
      {"second: 0.98 x (0.853 x 8 + 0.147 x 2)", 3, 6.97564},
      {"spot: 0.9 x (0.261 x 8 + 0.739 x 2)", 5, 3.2094},
      {"no position either", 6, 0},
  };
  for (const auto& c : cases) EXPECT_NEAR(PositionDefense(p, c.position), c.want, 1e-9) << c.why;
  p.SpotPosition = 2;
  EXPECT_NEAR(PositionDefense(p, 2), 0.9 * 7.736, 1e-9) << "listed twice, the later counts";
  p.RateDefOutside = p.RateDefInside = 20;
  EXPECT_EQ(PositionDefense(p, 3), 10) << "held at 10";
}

TEST(Overall, UnknownSeasonCountsAs2012AndOldThreesPlainly) {
  UseShippedEras();
  const LineOf line{70, 2000, 800, 380, 100, 30, 200, 150, 300, 60, 200, 60, 20, 100, 100};
  EXPECT_EQ(PlayerOverall(MakeMan({1900}, line)), PlayerOverall(MakeMan({2012}, line)));
  EXPECT_EQ(PlayerOverall(MakeMan({2051}, line)), PlayerOverall(MakeMan({2012}, line)));
  EXPECT_NE(PlayerOverall(MakeMan({2050}, line)), PlayerOverall(MakeMan({2012}, line)));
  // 1976: each of the 30 threes is one point; 1977 kept none, so the factor stands at its cap of 4.
  PlayerRecord a = MakeMan({1976}, line), b = a;
  b.Stats[1].F3M = 0;
  EXPECT_NEAR((PlayerOverall(a) - PlayerOverall(b)) * 2.85, 30 / 2000.1 * 48, 1e-9);
  a.Year = b.Year = 1977;
  EXPECT_NEAR((PlayerOverall(a) - PlayerOverall(b)) * 2.85, 30 * 4 / 2000.1 * 48, 1e-9);
}

TEST(SalaryOf, GrowsFasterAtTheTopAndHasAFloor) {
  UseShippedEras();
  league.FullSeasonScale = 1.0;
  PlayerRecord p = MakeMan({2000}, {.G = 82, .Min = 3936});  // a whole season
  DefaultSALARY(p, false);
  EXPECT_EQ(p.Salary, 300);
  p.RatePassing = 20;  // 9 x 0.7 = 6.3: above 5 and 6, after 6 the test for 5
  DefaultSALARY(p, false);
  EXPECT_EQ(p.Salary, 6945);
  league.FullSeasonScale = 82.0 / 71;
  DefaultSALARY(p, false);
  EXPECT_EQ(p.Salary, 6014);
  league.FullSeasonScale = 1.0;
}

/// An era's side as the line of a man who played all its minutes in 100 games.
PlayerRecord AverageMan(int year, const char* type) {
  const EraRecord& e = EraRow(year, *type == 'C', 2012);
  const auto n = [](float x) { return static_cast<int>(x * 100 + 0.5f); };
  return MakeMan({year, type},
                 {100, *type == 'C' ? 20000 : 24000, n(e.FGA), n(e.FGM), n(e.F3A), n(e.F3M), n(e.FTA),
                  n(e.FTM), n(e.Reb), n(e.OffReb), n(e.Ast), n(e.St), n(e.Bk), n(e.TO), n(e.PF)});
}

/// His team's totals: the era's season, `pace` times as fast.
TeamRecord AverageTeam(int year, const char* type, double pace) {
  TeamRecord team = MakeTeam(type, year);
  const EraRecord& e = EraRow(year, *type == 'C', 2012);
  for (auto& line : team.RealTotals) {
    const auto n = [&](float x) { return static_cast<i16>(x * e.Games * pace + 0.5); };
    line.FGA = n(e.FGA), line.FGM = n(e.FGM), line.FTA = n(e.FTA), line.FTM = n(e.FTM), line.Reb = n(e.Reb);
    line.Off = n(e.OffReb), line.Ast = n(e.Ast), line.To = n(e.TO);
  }
  return team;
}

TEST(EfficiencyOf, AverageLineIsFifteenCorrectedForPaceWithinBounds) {
  UseShippedEras();
  const struct {
    int year;
    const char* type;
    double pace, want;
  } cases[] = {{1950, "P", 1, 15},      {1975, "P", 1, 15},         {2022, "P", 1, 15},
               {2022, "C", 1, 15},      {2000, "P", 1.1, 15 / 1.1}, {2000, "P", 0.5, 15 * 1.3},
               {2000, "P", 2, 15 * 0.7}};
  for (const auto& c : cases) {
    const auto per = CalculatePlayerPer(AverageMan(c.year, c.type), AverageTeam(c.year, c.type, c.pace), {});
    EXPECT_NEAR(per[1], c.want, c.pace == 1 ? 0.02 : 0.03) << c.year << c.type << c.pace;
    EXPECT_EQ(per[2], 0) << "no replay season";
  }
}

TEST(EfficiencyOf, ReplayLeagueIsMeasuredFromTeamsThatPlayed) {
  UseShippedEras();
  league.team = {};
  league.rules = {};
  for (const int t : {3, 500}) {
    TeamRecord& team = league.team[t];
    team.TeamActive = 1;
    team.Wins = 10;
    for (auto& line : team.TeamStats) {
      line.Min = 2400, line.FGA = 800, line.FGM = 400, line.FTA = 200, line.FTM = 150, line.Reb = 400;
      line.Off = 100, line.Ast = 200, line.St = 80, line.Bk = 50, line.To = 150, line.Pf = 200;
    }
  }
  league.team[4].TeamActive = 1;
  league.team[4].TeamStats[1].FGA = 9999;  // has not played
  const ReplayLeague replay = MeasureReplayLeague();
  EXPECT_EQ(replay.own.FGA, 1600);
  EXPECT_EQ(replay.own.Games, 20);
  PlayerRecord p = MakeMan({2000}, {});
  p.Stats[2] = league.team[3].TeamStats[1];
  p.Stats[2].G = 10;
  EXPECT_NEAR(CalculatePlayerPer(p, league.team[3], replay)[2], 15, 1e-9);
  league.team = {};
}

TEST(Overall, ShortSeasonsCountForLess) {
  UseShippedEras();
  // With ratings alone (no line) the value is 0.45 a point of passing: 12 x 0.45 / 2.85 = 1.894737.
  const struct {
    int minutes;
    double factor;
  } cases[] = {{9, 0.05}, {10, 0.1},  {19, 0.1},  {20, 0.3},  {49, 0.3},
               {50, 0.5}, {149, 0.5}, {150, 0.7}, {249, 0.7}, {250, 1}};
  for (const auto& c : cases) {
    PlayerRecord p = MakeMan({2000}, {.G = 10, .Min = c.minutes});
    p.RatePassing = 12;
    EXPECT_NEAR(PlayerOverall(p), 1.894737 * c.factor, 1e-5) << c.minutes;
  }
}

}  // namespace
}  // namespace tipline
