#include <gtest/gtest.h>

#include <tuple>

#include "engine/court.h"
#include "engine/who.h"
#include "support/neutral_game.h"
#include "support/rows.h"

namespace tipline {
namespace {

/// Men with assists, steals and blocks of their own; the defenders have the better of the boards.
void SetUpWho(PlayKind kind = "OUTSIDE", GameState state = "OFFENSE") {
  SetUpPlay(kind, state);
  for (int s = 1; s <= 2; ++s) {
    game.side[s].LineupRebOff = 11;
    game.side[s].LineupRebDef = 18;
    for (int p = 1; p <= 5; ++p) {
      StatLine& real = game.player[s][p].Stats[1];
      real.Ast = 200, real.St = 80, real.Bk = 60;
    }
  }
}

/// Of 2000 misses: the attackers', those that go out of bounds (and to the attackers), each man's.
struct Share {
  int attack = 0, dead = 0, deadAttack = 0;
  int man[3][6] = {};
};
Share Rebound(void (*change)()) {
  Share share;
  SetUpWho();
  change();
  EachSeed(2000, [&] {
    FindRebounder();
    const int attack = game.play.ReboundSide == 2 ? 1 : 0;
    share.attack += attack;
    share.dead += game.play.DeadBallRebound;
    share.deadAttack += game.play.DeadBallRebound ? attack : 0;
    if (!game.play.DeadBallRebound) ++share.man[game.play.ReboundSide][game.play.Rebounder];
  });
  return share;
}

TEST(Rebounder, TheSidesByTheirBoards) {
  const Share plain = Rebound([] {});
  EXPECT_NEAR(plain.attack, 2000 * 0.34 * 0.93, 120)
      << "11 x .83 x 1.03 against 18, less the balls that go out";
  EXPECT_GT(Rebound([] { O().LineupRebOff = 22; }).attack, plain.attack + 200);
  EXPECT_EQ(Rebound([] { game.play.AirBall = 1, game.ShotClock = 19; }).attack, 0) << "behind the clock";
  const Share line = Rebound([] {
    game.PlayKind = "SHOOT1", game.GameState = "FREETHROW-SHOOT", game.PlayResult = "FTM";
    game.BallPlayer = game.BallSlot = 2;
  });
  EXPECT_LT(line.attack, plain.attack - 100);
  EXPECT_LT(line.man[1][1] + line.man[2][1], 10) << "the guards stand back";
  EXPECT_GT(line.man[1][5] + line.man[2][5], line.man[1][3] + line.man[2][3]);
}

TEST(Rebounder, ABlockGoesOutToTheOffenseOrIsKeptAliveForTheOthers) {
  const Share out = Rebound([] { game.play.Blocked = true; });
  EXPECT_NEAR(out.dead, 2000 * 0.174 * 1.3, 80);
  EXPECT_EQ(out.deadAttack, out.dead);
  const Share kept =
      Rebound([] { game.play.Blocked = true, game.play.BlockKept = 1, game.play.Blocker = 4; });
  EXPECT_EQ(kept.man[1][4], 0) << "not the blocker's own";
  EXPECT_GT(kept.man[1][5] + kept.man[2][5], 0);
}

// clang-format off
TEST(AfterTheRebound, ShotClockDeadBallSideAndState) {
  const auto setUp = [] {
    SetUpWho();
    Rules().ShotClockResetList = 14;
    game.ShotClock = 60;
    game.play.ReboundSide = 2;
    game.play.Rebounder = 4;
  };
  const auto left = [] {
    BallAfterRebound();
    EXPECT_EQ(game.BallPlayer == 4, game.DeadBallKind == 0) << "it is the rebounder's";
    return std::tuple(game.ShotClock, game.DeadBallKind, game.OffenseSide, game.GameState.Text());
  };
  ExpectRows(setUp, left, {
      {"the rule's reset", [] {}, {140, 0, 2, "OFFREB"}},
      {"full where the rule says so", [] { Rules().ShotClockResetList = 24; }, {240, 0, 2, "OFFREB"}},
      {"never above the period", [] { game.GameClock = 100; }, {100, 0, 2, "OFFREB"}},
      {"no rim, no reset", [] { game.play.AirBall = 1; }, {60, 0, 2, "OFFREB"}},
      {"blocked, no reset", [] { game.play.Blocked = 1; }, {60, 0, 2, "OFFREB"}},
      {"out, the attackers keep it", [] { game.play.DeadBallRebound = 1; }, {60, 1, 2, "DEADBALL-DEFENSE"}},
      {"out, the others' ball", [] { game.play.DeadBallRebound = game.play.ReboundSide = 1; },
       {240, 4, 1, "DEADBALL-DEFENSE"}},
  });
}
// clang-format on

TEST(FastBreaks, FollowPaceAndTheMoment) {
  const struct {
    const char* why;
    void (*change)();
    void (*after)();
    int breaks, within;
  } cases[] = {
      {"off a steal", [] {}, BallAfterSteal, 500, 50},
      {"at a run", [] { D().OffensePace = 4; }, BallAfterSteal, 600, 50},
      {"a coach who walks it up", [] { game.coach[1].Coverage1[0] = 0; }, BallAfterSteal, 170, 40},
      {"no time", [] { game.GameClock = 9; }, BallAfterSteal, 0, 0},
      {"three men", [] { D().EligibleCount = 3; }, BallAfterSteal, 0, 0},
      {"an inbound was stolen", [] { game.play.StolenInbound = 1; }, BallAfterSteal, 1000, 0},
      {"off a missed three", [] { game.LastShotKind = "THREE"; }, BallAfterRebound, 427, 50},
      {"nobody runs off a free throw", [] { game.PlayKind = "SHOOT1"; }, BallAfterRebound, 0, 0},
      {"a leader sits on it", [] { game.Period = 4, game.GameClock = 1100, D().Score = 80, O().Score = 69; },
       BallAfterSteal, 0, 0},
  };
  for (const auto& c : cases) {
    SetUpWho();
    D().EligibleCount = O().EligibleCount = 10;
    game.play.ReboundSide = 1;
    game.play.Rebounder = game.play.Stealer = 3;
    game.coach[1].Coverage1[0] = 2;
    c.change();
    int breaks = 0;
    EachSeed(1000, [&] {
      c.after();
      breaks += game.GameState == "FASTBREAK" ? 1 : 0;
    });
    EXPECT_NEAR(breaks, c.breaks, c.within) << c.why;
  }
}

TEST(Blocks, OldSeasonsAndOpenBreaks) {
  const auto blocks = [](void (*change)()) {
    int count = 0;
    SetUpWho("INSIDE");
    change();
    EachSeed(2000, [&] {
      game.PlayResult = "M";
      BlockTest();
      count += game.play.Blocked ? 1 : 0;
    });
    return count;
  };
  const int plain = blocks([] {});
  EXPECT_NEAR(plain, 500, 80) << "45.3 misses / 6 x .8 x .65: one in four";
  EXPECT_LT(blocks([] { Defender().Year = 1973; }), plain);
  EXPECT_EQ(blocks([] { game.PlayKind = "FASTBREAK", game.fastBreak.BreakDefenders = 0; }), 0);
  EXPECT_LT(blocks([] { game.PlayKind = "THREE"; }), plain / 2);
}

TEST(Foulers, TheManOnTheBallAndTheMenBack) {
  for (const GameState state : {GameState("OFFENSE"), GameState("FASTBREAK")}) {
    const bool breaks = state == "FASTBREAK";
    SetUpWho(breaks ? PlayKind("FASTBREAK") : PlayKind("OUTSIDE"), state);
    game.play.FoulingSide = 1;
    DMan(4).DefendsBreak = 1;
    int fouls = 0;
    EachSeed(500, [&] {
      FindFouler();
      fouls += game.play.Fouler == (breaks ? 4 : 1) ? 1 : 0;
    });
    EXPECT_GE(fouls, breaks ? 500 : 480);
  }
}

TEST(Assists, TheManOfTheExtraPassAndNeverTheShooter) {
  SetUpWho();
  EachSeed(300, [&] {
    FindAssister();
    EXPECT_TRUE(game.play.Assister > 0 && game.play.Assister != game.BallPlayer);
  });
  game.play.ExtraPass = 1;
  game.play.ExtraPassFrom = 4;
  FindAssister();
  EXPECT_EQ(game.play.Assister, 4);
}

TEST(Court, NeighboursAreNeighboursFromBothSides) {
  const struct {
    int a, b;
    bool near;
  } cases[] = {{101, 104, false}, {102, 204, true}, {101, 208, false}, {205, 305, true}, {205, 308, false}};
  for (const auto& c : cases) {
    EXPECT_EQ(SpotsAdjacent(c.a, c.b, false), c.near) << c.a << " " << c.b;
    EXPECT_EQ(SpotsAdjacent(c.b, c.a, false), c.near) << c.b << " " << c.a;
  }
}

}  // namespace
}  // namespace tipline
