#include <gtest/gtest.h>

#include "engine/court.h"
#include "engine/who.h"
#include "support/neutral_game.h"

namespace tipline {
namespace {

void SetUpWho(const char* kind = "OUTSIDE", const char* state = "OFFENSE") {
  SetUpNeutralGame();
  game.PutbackClass = 0;
  (void)game.PlayKind.Set(kind);
  (void)game.GameState.Set(state);
  for (int s = 1; s <= 2; ++s) {
    game.side[s].LineupRebOff = 11;
    game.side[s].LineupRebDef = 18;
    for (int p = 1; p <= 5; ++p) {
      PlayerRecord& man = game.player[s][p];
      man.Stats[1].Reb = 400, man.Stats[1].Off = 120, man.Stats[1].Ast = 200, man.Stats[1].St = 80;
      man.Stats[1].Bk = 60;
      game.man[s][p].ShotPick = kOutside;
      game.man[s][p].CourtSpot = 201 + p;
    }
  }
}

struct Share {
  int attack = 0, dead = 0;
  int man[6] = {};
};
Share Rebound(void (*change)()) {
  Share share;
  SetUpWho();
  change();
  EachSeed(2000, [&] {
    FindRebounder();
    share.attack += game.play.ReboundSide == 2 ? 1 : 0;
    share.dead += game.play.DeadBallRebound;
    if (!game.play.DeadBallRebound && game.play.ReboundSide <= 2) ++share.man[game.play.Rebounder];
  });
  return share;
}

TEST(Rebounder, TheSidesByTheirBoards) {
  const Share plain = Rebound([] {});
  EXPECT_NEAR(plain.attack, 2000 * 0.34 * 0.93, 120)
      << "11 x .83 x 1.03 against 18, less the balls that go out";
  EXPECT_GT(Rebound([] { O().LineupRebOff = 22; }).attack, plain.attack + 200);
  EXPECT_LT(Rebound([] { game.PlayKind = "SHOOT1"; }).attack, plain.attack - 100);
}

TEST(Rebounder, AMissedFreeThrowIsRarelyTheShootersOrTheGuards) {
  const Share share = Rebound([] {
    game.PlayKind = "SHOOT1";
    game.GameState = "FREETHROW-SHOOT";
    game.PlayResult = "FTM";
    game.BallPlayer = game.BallSlot = 2;
  });
  EXPECT_LT(share.man[1], 10);
  EXPECT_GT(share.man[5], share.man[3]);
}

TEST(Rebounder, BlocksGoOutAndStayWithTheOffense) {
  const Share share = Rebound([] { game.play.Blocked = true; });
  EXPECT_NEAR(share.dead, 2000 * 0.174 * 1.3, 80);
  SetUpWho();
  game.play.Blocked = true;
  EachSeed(200, [&] {
    FindRebounder();
    if (game.play.DeadBallRebound) {
      EXPECT_EQ(game.play.ReboundSide, 2);
    }
  });
}

TEST(Rebounder, AnAirBallBehindTheClockIsTheDefenses) {
  const Share share = Rebound([] {
    game.play.AirBall = 1;
    game.ShotClock = 19;
  });
  EXPECT_EQ(share.attack, 0);
}

TEST(Rebounder, TheBlockerWhoKeptItAliveDoesNotGetIt) {
  SetUpWho();
  game.play.Blocked = true;
  game.play.BlockKept = 1;
  game.play.Blocker = 4;
  int others = 0;
  EachSeed(500, [&] {
    FindRebounder();
    EXPECT_FALSE(game.play.ReboundSide == 1 && game.play.Rebounder == 4);
    others += !game.play.DeadBallRebound && game.play.Rebounder == 5 ? 1 : 0;
  });
  EXPECT_GT(others, 0);
}

TEST(AfterTheRebound, ShotClockAndState) {
  const struct {
    const char* why;
    int reset, clock, gameClock, airBall, blocked, expected;
  } cases[] = {{"the rule's reset", 14, 60, 3000, 0, 0, 140},
               {"full where the rule says so", 24, 60, 3000, 0, 0, 240},
               {"never above the period", 14, 60, 100, 0, 0, 100},
               {"no rim, no reset", 14, 60, 3000, 1, 0, 60},
               {"blocked, no reset", 14, 60, 3000, 0, 1, 60}};
  for (const auto& c : cases) {
    SetUpWho();
    Rules().ShotClockList = 24;
    Rules().ShotClockResetList = static_cast<u8>(c.reset);
    game.GameClock = c.gameClock;
    game.ShotClock = c.clock;
    game.play.AirBall = c.airBall;
    game.play.Blocked = c.blocked;
    game.play.ReboundSide = 2;
    game.play.Rebounder = 4;
    BallAfterRebound();
    EXPECT_EQ(game.ShotClock, c.expected) << c.why;
    EXPECT_EQ(game.GameState.Text(), "OFFREB") << c.why;
    EXPECT_EQ(game.BallPlayer, 4) << c.why;
  }
}

TEST(AfterTheRebound, OutOfBoundsIsADeadBall) {
  for (const int side : {1, 2}) {
    SetUpWho();
    game.play.DeadBallRebound = 1;
    game.play.ReboundSide = side;
    BallAfterRebound();
    EXPECT_EQ(game.GameState.Text(), "DEADBALL-DEFENSE");
    EXPECT_EQ(game.OffenseSide, side);
    EXPECT_EQ(game.DeadBallKind, side == 2 ? 1 : 4);
  }
}

int Breaks(void (*change)(), void (*after)()) {
  int count = 0;
  SetUpWho();
  D().EligibleCount = O().EligibleCount = 10;
  game.play.ReboundSide = 1;
  game.play.Rebounder = game.play.Stealer = 3;
  game.coach[1].Coverage1[0] = 2;
  change();
  EachSeed(1000, [&] {
    after();
    count += game.GameState == "FASTBREAK" ? 1 : 0;
  });
  return count;
}

TEST(FastBreaks, FollowPaceAndTheMoment) {
  EXPECT_NEAR(Breaks([] {}, BallAfterSteal), 500, 50);
  EXPECT_NEAR(Breaks([] { D().OffensePace = 4; }, BallAfterSteal), 600, 50);
  EXPECT_NEAR(Breaks([] { game.coach[1].Coverage1[0] = 0; }, BallAfterSteal), 170, 40)
      << "a coach who walks it up";
  EXPECT_EQ(Breaks([] { game.GameClock = 9; }, BallAfterSteal), 0);
  EXPECT_EQ(Breaks([] { D().EligibleCount = 3; }, BallAfterSteal), 0);
  EXPECT_EQ(Breaks([] { game.play.StolenInbound = 1; }, BallAfterSteal), 1000);
  EXPECT_NEAR(Breaks([] { game.LastShotKind = "THREE"; }, BallAfterRebound), 427, 50);
  EXPECT_EQ(Breaks([] { game.PlayKind = "SHOOT1"; }, BallAfterRebound), 0) << "nobody runs off a free throw";
  EXPECT_EQ(Breaks(
                [] {
                  game.Period = 4, game.GameClock = 1100;
                  D().Score = 80, O().Score = 69;
                },
                BallAfterSteal),
            0)
      << "a leader sits on it";
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
  int onBall = 0;
  SetUpWho("OUTSIDE");
  game.play.FoulingSide = 1;
  EachSeed(500, [&] {
    FindFouler();
    onBall += game.play.Fouler == 1 ? 1 : 0;
  });
  EXPECT_GT(onBall, 480);
  SetUpWho("FASTBREAK", "FASTBREAK");
  game.play.FoulingSide = 1;
  DMan(4).DefendsBreak = 1;
  EachSeed(200, [&] {
    FindFouler();
    EXPECT_EQ(game.play.Fouler, 4);
  });
}

TEST(Assists, NeverTheShooterHimself) {
  SetUpWho();
  EachSeed(300, [&] {
    FindAssister();
    EXPECT_NE(game.play.Assister, game.BallPlayer);
    EXPECT_GT(game.play.Assister, 0);
  });
  SetUpWho();
  game.play.ExtraPass = 1;
  game.play.ExtraPassFrom = 4;
  FindAssister();
  EXPECT_EQ(game.play.Assister, 4) << "the man who gave the extra pass";
}

TEST(Court, Geometry) {
  const struct {
    int a, b;
    bool near;
  } cases[] = {{101, 102, true}, {101, 104, false}, {102, 204, true}, {101, 208, false},
               {205, 305, true}, {205, 308, false}, {309, 209, true}, {301, 309, false}};
  for (const auto& c : cases) {
    EXPECT_EQ(SpotsAdjacent(c.a, c.b, false), c.near) << c.a << " " << c.b;
    EXPECT_EQ(SpotsAdjacent(c.b, c.a, false), c.near) << c.b << " " << c.a;
  }
  EXPECT_TRUE(SpotsFarApart(103, 205));
  EXPECT_FALSE(SpotsFarApart(103, 204));
  EXPECT_TRUE(OppositeSides(302, 207));
  EXPECT_FALSE(OppositeSides(302, 202));
}

}  // namespace
}  // namespace tipline
