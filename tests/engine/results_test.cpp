#include <gtest/gtest.h>

#include "engine/outcome.h"
#include "support/neutral_game.h"

namespace tipline {
namespace {

/// A man of the defense fouls whoever has the ball.
void SetUpResult(PlayKind kind, GameState state, PlayResult result) {
  SetUpPlay(kind, state);
  game.GameClock = 3000;
  game.ShotClock = 100;
  game.PlayTime = 50;
  game.PlayResult = result;
  game.play.Fouler = game.play.FoulerSlot = 2;
  game.play.FoulingSide = 1;
}

TEST(Results, WhatEachLeaves) {
  const struct {
    const char* why;
    PlayKind kind;
    PlayResult result;
    const char *state, *next;
    int period, gameClock, clock, deadBall, offense;
  } cases[] = {
      {"basket: sides over", "INSIDE", "G", "OFFENSE", "", 1, 900, 240, 4, 1},
      {"a half's last baskets give a stop", "INSIDE", "G", "DEFENSE", "", 2, 1249, 240, 4, 1},
      {"a tenth too early", "INSIDE", "G", "OFFENSE", "", 2, 1250, 240, 4, 1},
      {"the fourth period's too", "INSIDE", "G", "DEFENSE", "", 4, 900, 240, 4, 1},
      {"overtime is no half", "INSIDE", "G", "OFFENSE", "", 5, 900, 240, 4, 1},
      {"floor foul: at least 14 seconds", "INSIDE", "F0", "DEADBALL-DEFENSE", "", 1, 3000, 140, 2, 2},
      {"two shots", "INSIDE", "F2", "FREETHROW-WAIT", "SHOOT2", 1, 3000, 240, 0, 2},
      {"basket and one", "INSIDE", "GF", "FREETHROW-WAIT", "SHOOT1", 1, 3000, 240, 0, 2},
      {"burned", "BURN", "BURN", "OFFENSE", "", 1, 3000, 50, 0, 2},
      {"jump", "INSIDE", "JUMPBALL", "JUMPBALL-1", "INSIDE", 1, 3000, 50, 0, 2},
  };
  for (const auto& c : cases) {
    SetUpResult(c.kind, "OFFENSE", c.result);
    game.Period = c.period;
    game.GameClock = c.gameClock;
    random.Script({2, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9});  // nothing rare happens
    PostPlay();
    EXPECT_EQ(game.GameState.Text(), c.state) << c.why;
    EXPECT_EQ(game.PlayKind.Text(), c.next) << c.why;
    EXPECT_EQ(game.ShotClock, c.clock) << c.why;
    EXPECT_EQ(game.DeadBallKind, c.deadBall) << c.why;
    EXPECT_EQ(game.OffenseSide, c.offense) << c.why;
  }
}

TEST(Results, AFoulOverABlockedShotHasALineOfItsOwn) {
  SetUpResult("INSIDE", "OFFENSE", "M");
  game.play.Blocked = true;
  game.play.Blocker = 3;
  game.play.Fouler = game.play.FoulerSlot = game.play.FoulingSide = 0;
  int fouls = 0;
  EachSeed(400, [&] {
    PostPlay();
    const bool fouled = O().LooseBalls > 0;
    fouls += fouled ? 1 : 0;
    EXPECT_EQ(game.PlayLog[1].Note, kBlockedBy);
    EXPECT_EQ(game.PlayLogCount, fouled ? 2 : 1);
    if (!fouled || game.PlayLogCount != 2) return;
    const PlayLogRow& foul = game.PlayLog[2];
    EXPECT_EQ(PlayerAt(foul.Side, foul.Slot).Stats[3].Pf, 1);
    EXPECT_TRUE(foul.Outcome == (foul.Side == 1 ? PlayResult("LOOSE-DEF") : PlayResult("LOOSE-OFF")));
  });
  EXPECT_GT(fouls, 5);
}

TEST(FreeThrows, TheTripStepByStep) {
  const struct {
    PlayKind kind;
    PlayResult result;
    const char *next, *state;
    int offense;
  } cases[] = {
      {"SHOOT3", "FTM", "SHOOT2", "FREETHROW-WAIT", 2},
      {"SHOOT3-2", "FTG", "SHOOT2-1", "FREETHROW-WAIT", 2},
      {"SHOOT2", "FTM", "SHOOT1", "FREETHROW-WAIT", 2},
      {"SHOOT2", "FTG", "SHOOT1", "FREETHROW-SHOOT", 2},
      {"SHOOT2-1", "FTM", "SHOOT1", "FREETHROW-WAIT", 2},
      {"SHOOT2-1", "FTG", "", "DEFENSE", 1},
      {"SHOOT1-1", "FTG", "SHOOT1", "FREETHROW-WAIT", 2},
      {"SHOOT1", "FTG", "", "DEFENSE", 1},
  };
  for (const auto& c : cases) {
    SetUpResult(c.kind, "FREETHROW-SHOOT", c.result);
    PostPlay();
    EXPECT_EQ(game.PlayKind.Text(), c.next) << c.kind.Text() << c.result.Text();
    EXPECT_EQ(game.GameState.Text(), c.state) << c.kind.Text() << c.result.Text();
    EXPECT_EQ(game.OffenseSide, c.offense) << c.kind.Text() << c.result.Text();
    EXPECT_EQ(game.GameClock, 3000) << "a free throw takes no time";
  }
}

TEST(FreeThrows, TheBonusShotsNeedThePenalty) {
  const struct {
    const char* why;
    PlayResult result;
    int fouls, period;
    const char* trip;
  } cases[] = {{"fourth foul", "MF", 3, 1, "SHOOT2"},
               {"fifth foul", "MF", 4, 1, "SHOOT3-2"},
               {"fifth by overtime", "MF", 2, 5, "SHOOT3-2"},
               {"basket, fourth foul", "GF", 3, 1, "SHOOT1"},
               {"basket, fifth foul", "GF", 4, 1, "SHOOT2-1"}};
  for (const auto& c : cases) {
    SetUpResult("INSIDE", "OFFENSE", c.result);
    Rules().ThreeToMakeTwoCheck = Rules().TwoToMakeOneCheck = 1;
    D().TeamFouls = c.fouls;
    game.Period = c.period;
    PostPlay();
    EXPECT_EQ(game.PlayKind.Text(), c.trip) << c.why;
  }
}

TEST(FreeThrows, AMissWithNoTimeLeftEndsThePeriod) {
  SetUpResult("SHOOT1", "FREETHROW-SHOOT", "FTM");
  game.GameClock = game.PlayTime = 0;
  PostPlay();
  EXPECT_EQ(game.Period, 2);
  EXPECT_EQ(game.play.ReboundSide, 0) << "nobody rebounds it";
}

TEST(Arrow, GivesTheBallAndTurns) {
  const struct { int arrow, offense, turnovers; } cases[] = {{1, 1, 1}, {2, 2, 0}};
  for (const auto& c : cases) {
    SetUpResult("INSIDE", "OFFENSE", "JUMPBALL");
    Rules().JumpBallList = 1;
    game.PossessionArrow = c.arrow;
    PostPlay();
    EXPECT_EQ(game.GameState.Text(), "DEADBALL-DEFENSE");
    EXPECT_EQ(game.OffenseSide, c.offense);
    EXPECT_EQ(game.PossessionArrow, 3 - c.arrow);
    EXPECT_EQ(game.side[2].GameTeamTurnovers, c.turnovers);
    EXPECT_EQ(game.DeadBallKind, 2);
  }
}

TEST(OffensiveFoul, SomeRuleBooksGiveShots) {
  const struct {
    const char* why;
    bool counts, before, after;
    int fouls;
    const char* trip;
  } cases[] = {{"not a team foul", false, true, true, 9, ""},
               {"one shot before the penalty", true, true, false, 1, "SHOOT1"},
               {"one and one behind it", true, false, true, 6, "SHOOT1-1"},
               {"a team foul and no more", true, false, false, 6, ""}};
  for (const auto& c : cases) {
    SetUpResult("DRIVE", "OFFENSE", "OF");
    game.play.FoulingSide = 2;
    game.play.Fouler = 1;
    Rules().OffensiveFoulTeamFoulCheck = c.counts;
    Rules().OneShotOnOffensiveFoulBeforePenalty = c.before;
    Rules().OnePlusOneAfterPenaltyONOffensiveFouls = c.after;
    O().TeamFouls = c.fouls;
    PostPlay();
    EXPECT_EQ(game.PlayKind.Text(), c.trip) << c.why;
    EXPECT_EQ(game.OffenseSide, 1) << c.why;
    EXPECT_EQ(game.side[2].TeamFouls, c.fouls + (c.counts ? 1 : 0)) << c.why;
  }
}

TEST(Inbound, ALostBallGoesToTheOtherEnd) {
  const struct {
    PlayResult result;
    int kind, newKind, bringUp;
  } cases[] = {{"IN-OB", 2, 4, 1}, {"IN-5", 1, 4, 1}, {"IN-5", 3, 2, 0}, {"IN-OB", 4, 2, 0}};
  for (const auto& c : cases) {
    SetUpResult("", "DEADBALL-OFFENSE", c.result);
    game.DeadBallKind = c.kind;
    game.InboundSlot = 3;
    // no new form; behind the backcourt line the pass is not saved; then the whistle goes against the offense
    random.Script({2, c.kind >= 3 ? 2.0 : 9.0, 9, 9});
    PostPlay();
    EXPECT_EQ(game.OffenseSide, 1) << c.result.Text() << c.kind;
    EXPECT_EQ(game.DeadBallKind, c.newKind) << c.result.Text() << c.kind;
    EXPECT_EQ(game.NeedsBringUp, c.bringUp) << c.result.Text() << c.kind;
    EXPECT_EQ(game.player[2][3].Stats[3].To, 1) << "the inbounder lost it";
    EXPECT_EQ(game.team[2].Possessions[3], 1);
  }
}

}  // namespace
}  // namespace tipline
