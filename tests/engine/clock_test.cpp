#include "engine/clock.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "support/rows.h"
#include "support/two_teams.h"

namespace tipline {
namespace {

using Change = std::function<void()>;

/// A five that does just what its era does: neither changes the pace.
void EvenPace() {
  TwoTeams();
  for (EraRecord& row : league.EraPro) row.PF = 99.9F;
  league.EraCollege = league.EraPro;
  game.MixedEras = 1;
  game.side[2].CoachMode = "C";  // a human plays a little faster
  for (int slot = 1; slot <= 5; ++slot) {
    PlayerAt(2, slot).Stats[1].Pf = 1000;
    PlayerAt(2, slot).Stats[1].Min = 2400;
  }
  game.PlayKind = "INSIDE";
}

// Draws of every play: before the era's pace, the era's own, those between it and the last trims, the trims
// (five per cent off above eight seconds), those of the end.
TEST(ChargeTime, TakesWhatThePlayTakes) {
  // clang-format off
  const struct {
    const char* why;
    Change change;
    std::vector<double> base, middle, end;
    int time;
  } cases[] = {
      {"fresh shot clock", [] {}, {30, 10}, {}, {}, 148},
      {"a second and a half gone is still fresh", [] { game.ShotClock = 225; }, {30, 10}, {}, {}, 148},
      {"any more is not", [] { game.ShotClock = 224; }, {10, 10}, {}, {}, 60},
      {"as long as the shot clock: cut", [] { game.ShotClock = 81, Offense().OffensePace = 0; }, {20, 9, 11},
       {}, {}, 70},
      {"very slow plays the shot clock out", [] { game.ShotClock = 80, Offense().OffensePace = 0; }, {20},
       {3}, {}, 77},
      {"no shot clock, 1954", [] { league.rules.ShotClockList = 0, PlayerAt(2, 1).Year = 1954; }, {25}, {},
       {}, 137},
      {"two minutes are too few in the last", [] { setup.MoveUpList[1] = 2, game.Period = 4; }, {30, 10}, {},
       {}, 148},
      {"late and behind", [] { game.Period = 4, game.GameClock = 249, game.side[1].Score = 1; }, {30, 10}, {},
       {}, 47},
      {"late, not late enough", [] { game.Period = 4, game.GameClock = 250, game.side[1].Score = 1; },
       {30, 10}, {}, {}, 78},
      {"up the floor, held to 9.9", [] { game.PlayResult = "MOVE-UP", Offense().OffensePace = 0; }, {30, 10},
       {20}, {}, 94},
      {"foul any shooter, at once", [] { Defense().QuickFoul = 1, game.GameClock = 500; }, {30, 10}, {},
       {1, 5}, 8},
      {"foul any shooter, a tenth earlier", [] { Defense().QuickFoul = 1, game.GameClock = 501; }, {30, 10},
       {}, {1, 1, 10}, 13},
      {"no shot takes all", [] { game.PlayResult = "NOSHOT", game.GameClock = game.ShotClock = 100; },
       {10, 10}, {}, {1}, 100},
      {"held to the end", [] { game.PlayResult = "HOLD BALL", game.GameClock = game.ShotClock = 100; },
       {10, 10}, {}, {91}, 100},
      {"violation", [] { game.PlayResult = "SHOTCLOCK", game.ShotClock = 33; }, {10}, {}, {}, 33},
      {"never more than is left", [] { game.GameClock = 41; }, {30, 10}, {}, {}, 41},
  };
  // clang-format on
  for (const auto& c : cases) {
    EvenPace();
    c.change();
    std::vector<double> draws = c.base;
    for (const auto& part : {std::vector<double>{1, 0, 0, 10}, c.middle, {40, 30, 1, 1}, c.end}) {
      draws.insert(draws.end(), part.begin(), part.end());
    }
    random.Script(draws);
    ChargeTime();
    EXPECT_EQ(random.ScriptLeft(), 0u) << c.why;
    random.Script({});
    EXPECT_EQ(game.PlayTime, c.time) << c.why;
  }
}

TEST(ChargeTime, TheTwoClocksAgreeAtTheEndWithoutTenths) {
  EvenPace();
  game.GameClock = 249;
  ChargeTime();
  EXPECT_EQ(game.ShotClock, 249);
}

/// A play that uses up the period.
void AtTheHorn(int period) {
  TwoTeams();
  random.Seed(11);
  game.Period = period;
  game.GameClock = game.PlayTime = 100;
}

TEST(EndPlay, KeepsThePeriodForFreeThrows) {
  // clang-format off
  ExpectRows([] { AtTheHorn(1); }, [] { return EndPlay(), game.Period; }, {
      {"a miss ends it", [] { game.PlayResult = "M"; }, 2},
      {"fouled on a made shot", [] { game.PlayResult = "GF"; }, 1},
      {"one and one", [] { game.PlayResult = "F1-1"; }, 1},
      {"no shots for this one", [] { game.PlayResult = "F0"; }, 2},
      {"between the shots", [] { game.PlayResult = "FTG", game.PlayKind = "SHOOT1"; }, 1},
      {"after the last", [] { game.PlayKind = "ENDPERIOD", game.GameState = "FREETHROW-SHOOT"; }, 2},
      {"no shot ends it at once", [] { game.PlayResult = "NOSHOT", game.PlayKind = "SHOOT1"; }, 2},
      {"so does its mark", [] { game.PlayResult = "F2", game.play.NoShotEnd = 1; }, 2},
      {"a tenth is left", [] { game.PlayTime = 99; }, 1},
  });
  // clang-format on
}

TEST(EndPlay, GivesTheBallByTheOpeningTip) {
  const struct {
    const char* why;
    int periods, ended, winner, offense;
    GameState state = "QUARTER-DEFENSE";
  } cases[] = {
      {"second of four: the loser", 4, 1, 2, 1},
      {"third of four: the loser", 4, 2, 1, 2},
      {"fourth of four: the winner", 4, 3, 2, 2},
      {"second half: the loser", 2, 1, 1, 2},
      {"unknown: side 1 won it", 2, 1, 0, 2},
      {"three periods: as it was", 3, 1, 1, 2},
      {"a jump opens every period", 4, 1, 2, 2, "JUMPBALL-1"},
  };
  for (const auto& c : cases) {
    AtTheHorn(c.ended);
    league.rules.PeriodList = static_cast<u8>(c.periods);
    league.rules.QuarterJumpCheck = c.state == "JUMPBALL-1";
    game.OpeningTipWinner = c.winner;
    game.side[1].TeamFouls = 4;
    game.PlayResult = "M";
    EndPlay();
    EXPECT_EQ(game.OffenseSide, c.offense) << c.why;
    EXPECT_TRUE(game.GameState == c.state) << c.why;
    EXPECT_EQ(game.side[1].TeamFouls, 0) << c.why;
  }
}

TEST(EndPlay, ATieGoesToAJumpWithRestedMen) {
  for (const int period : {4, 5}) {  // the last period, an overtime
    AtTheHorn(period);
    ManAt(1, 3).FatigueLoad = 9000;
    EndPlay();
    EXPECT_EQ(game.Period, period + 1);
    EXPECT_EQ(ManAt(1, 3).Energy, 100);
    EXPECT_TRUE(game.GameState == "JUMPBALL-1");
  }
}

TEST(EndPlay, FoldsPeriodsIntoHalves) {
  TwoTeams();
  random.Seed(1);
  for (const int points : {9, 4, 6}) {
    game.GameClock = game.PlayTime = 100;
    game.side[1].Score += points;
    ManAt(1, 2).PeriodStatLine.Points = points;
    EndPlay();
  }
  const Man& man = ManAt(1, 2);
  EXPECT_EQ(game.side[1].HalfScore, 13);
  EXPECT_EQ(man.BestPeriodLine.Points, 9);
  EXPECT_EQ(man.BestHalfLine.Points, 13);
  EXPECT_EQ(man.HalfStatLine.Points, 6);
}

TEST(EndPlay, ChargesThePressAndResetsTheShotClockOffTheRim) {
  TwoTeams();
  game.PlayTime = 102;
  game.PlayKind = "OFFREB";
  league.rules.ShotClockResetList = 14;
  Defense().Pressure = 2;
  EndPlay();
  EXPECT_EQ(game.ShotClock, 140);
  EXPECT_EQ(ManAt(1, 4).FatigueLoad, 153);
  EXPECT_EQ(ManAt(2, 4).FatigueLoad, 102) << "the offense does not press";
  EXPECT_EQ(ManAt(1, 9).RestTime, 302);
  game.play.Blocked = true;
  EndPlay();
  EXPECT_EQ(game.ShotClock, 38) << "no rim";
}

TEST(EndPlay, RaisesTeamFoulsLateInThePeriod) {
  const struct { int clock, fouls, then; } cases[] = {{1201, 0, 0}, {1200, 0, 3}, {1200, 4, 4}};
  for (const auto& c : cases) {
    TwoTeams();
    league.rules.PenaltyUnderTwoMinutesCheck = 1;
    league.rules.FoulLimit[1] = 5;
    game.GameClock = c.clock;
    game.side[2].TeamFouls = c.fouls;
    EndPlay();
    EXPECT_EQ(game.side[2].TeamFouls, c.then) << c.clock;
  }
}

TEST(EndPeriodNotice, WaitsForFreeThrowsAndRunsOnce) {
  AtTheHorn(2);
  ManAt(1, 1).TemporaryInjury = 9;
  ManAt(2, 1).TemporaryInjury = 3;
  Offense().QuickFoul = 2;
  game.PlayResult = "G3F";
  EndPeriodNotice();
  EXPECT_TRUE(game.PlayKind == "");
  game.PlayResult = "M";
  for (int times = 0; times < 2; ++times) EndPeriodNotice();
  EXPECT_EQ(Offense().QuickFoul, 0);
  EXPECT_EQ(ManAt(1, 1).TemporaryInjury, 7);
  EXPECT_EQ(ManAt(2, 1).TemporaryInjury, 0);
}

TEST(EndPeriodNotice, LimitsTimeoutsInTheirOrder) {
  const struct {
    const char* why;
    u8 lastPeriod, last3, overtime;
    int period, clock, left, then;
  } cases[] = {
      {"third quarter is over", 4, 2, 1, 3, 0, 6, 4}, {"second is not the one", 4, 2, 1, 2, 0, 6, 6},
      {"last three minutes", 4, 2, 1, 4, 1799, 6, 2}, {"just before them", 4, 2, 1, 4, 1800, 6, 6},
      {"no lists, no limits", 0, 0, 0, 4, 900, 6, 6}, {"no list, none more", 0, 0, 0, 4, 0, 1, 1},
      {"a number for overtime", 0, 0, 3, 4, 0, 1, 3}, {"one more for overtime", 0, 0, 4, 4, 0, 1, 2},
      {"two more for overtime", 0, 0, 5, 5, 0, 1, 3},
  };
  for (const auto& c : cases) {
    TwoTeams();
    league.rules.LastPeriodTimeoutList = c.lastPeriod;
    league.rules.Last3MinTimeoutList = c.last3;
    league.rules.OvertimeTimeoutList = c.overtime;
    game.Period = c.period;
    game.side[1].TimeoutsLeft = c.left;
    if (c.clock == 0) {
      EndPeriodNotice();
    } else {
      game.GameClock = c.clock;
      EndPlay();
    }
    EXPECT_EQ(game.side[1].TimeoutsLeft, c.then) << c.why;
  }
}

}  // namespace
}  // namespace tipline
