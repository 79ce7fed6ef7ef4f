// What each result leaves: the next state, the shot clock, who has the ball.
#include <algorithm>

#include "engine/clock.h"
#include "engine/eligible.h"
#include "engine/execution.h"
#include "engine/fatigue.h"
#include "engine/incidents.h"
#include "engine/outcome.h"
#include "engine/play_watch.h"
#include "engine/who.h"
#include "narration/narrator.h"

namespace tipline {
namespace {

void FullClock() { game.ShotClock = FullShotClock(); }

void DeadBall() {
  game.GameState = "DEADBALL-DEFENSE";
  game.PlayKind = "";
  game.possession = {};
}

void GoToLine(PlayKind trip) {
  game.GameState = "FREETHROW-WAIT";
  game.PlayKind = trip;
  game.possession = {};
}

/// After a floor foul the clock is not set back to full: the offense gets at least what a stop costs it.
void ClockAfterFloorFoul() {
  if (league.rules.PeriodList == 4) {
    const bool modern = game.team[1].Year >= 2000 || game.team[2].Year >= 2000;
    if (game.ShotClock < 140) game.ShotClock = modern ? std::min(140, FullShotClock()) : FullShotClock();
  } else if (game.ShotClock < 200) {
    game.ShotClock = std::min(200, FullShotClock());
  }
}

PlayKind TripOf(PlayResult r) {
  const RulesRecord& rules = league.rules;
  const bool penalty = InPenalty(game.DefenseSide);
  if (r == "F1") return "SHOOT1";
  if (r == "F1-1") return "SHOOT1-1";
  if (r == "F2") return "SHOOT2";
  if (r == "F3-2") return "SHOOT3-2";
  if (r == "MF") return rules.ThreeToMakeTwoCheck && penalty ? PlayKind("SHOOT3-2") : PlayKind("SHOOT2");
  if (r == "GF") return rules.TwoToMakeOneCheck && penalty ? PlayKind("SHOOT2-1") : PlayKind("SHOOT1");
  if (r == "G3F") return "SHOOT1";
  const bool before = game.team[1].Year <= 1993 && game.team[2].Year <= 1993 && rules.GameEraList <= 5;
  return before ? PlayKind("SHOOT2") : PlayKind("SHOOT3");  // fouled on a three
}

void AfterBasket() {
  FullClock();
  SwapSides();
  const bool late = (game.Period == 2 || game.Period == 4) && game.GameClock < 1200;
  game.GameState = late ? GameState("DEFENSE") : GameState("OFFENSE");
  game.PlayKind = "";
}

/// The waiting man comes in for the shooter behind his last free throw.
void LetSubIn(int side) {
  int& waiting = game.side[side].WaitingSub;
  const int position = PositionOf(side, game.BallPlayer);
  if (position > 0 && PositionOf(side, waiting) == 0 && MayAppear(side, waiting)) {
    game.side[side].Lineup[position] = waiting;
  }
  waiting = 0;
}

void EndTrip() {
  if (game.PlayResult == "FTG") LetSubIn(game.OffenseSide);
  FullClock();
  game.PlayKind = "";
  if (game.TechnicalFreeThrow) {
    if (game.TechnicalSide != 0 && game.TechnicalSide != game.OffenseSide) FaceAbout();
    game.GameState = "OFFENSE";
    game.TechnicalFreeThrow = 0;
    return;
  }
  SwapSides();
  game.GameState = "DEFENSE";
  game.DeadBallKind = 4;
}

struct TripStep {
  PlayKind kind, onMiss, onMake;
  bool waitAfterMake;
};
// "" ends the trip: a miss is rebounded, a make gives the ball to the other side.
// clang-format off
constexpr TripStep kTrip[] = {
    {"SHOOT3",   "SHOOT2",   "SHOOT2",   true},
    {"SHOOT3-2", "SHOOT2-2", "SHOOT2-1", true},
    {"SHOOT2",   "SHOOT1",   "SHOOT1",   false},
    {"SHOOT2-2", "SHOOT1",   "SHOOT1",   false},
    {"SHOOT2-1", "SHOOT1",   "",         false},
    {"SHOOT1-1", "",         "SHOOT1",   true},
    {"SHOOT1",   "",         "",         false},
};
// clang-format on

void AfterFreeThrow() {
  const bool made = game.PlayResult == "FTG";
  for (const TripStep& step : kTrip) {
    if (step.kind != game.PlayKind) continue;
    const PlayKind next = made ? step.onMake : step.onMiss;
    if (next.Empty()) return EndTrip();
    game.PlayKind = next;
    game.GameState = made && !step.waitAfterMake ? GameState("FREETHROW-SHOOT") : GameState("FREETHROW-WAIT");
    FullClock();
    return;
  }
}

void AfterLooseBall() {
  FullClock();
  if (!game.play.TripOwed.Empty()) return GoToLine(game.play.TripOwed);
  DeadBall();
}

void AfterViolation() {
  FullClock();
  SwapSides();
  DeadBall();
}

void AfterFloorFoul() {
  game.DeadBallKind = 2;
  ClockAfterFloorFoul();
  DeadBall();
}

void AfterOffensiveFoul() {
  FullClock();
  game.DeadBallKind = 4;
  if (!game.play.TripOwed.Empty()) return GoToLine(game.play.TripOwed);
  DeadBall();
}

void Goaltending() {
  game.PlayResult = "DEAD-GOALTENDING";
  game.DeadBallKind = 4;
  AfterViolation();
}

void Flagrant() {
  AddPlayLog(game.GameClock, game.DefenseSide, game.play.Fouler, "", "FLAGRANT");
  EjectFlagrantFouler();
  game.PlayResult = "FLAGRANT";
  game.incident.Shots = 2;
  game.incident.ShooterSide = game.OffenseSide;
  game.incident.Shooter = game.BallPlayer;
  game.TechnicalFreeThrow = 1;
  game.TechnicalSide = game.OffenseSide;
  GoToLine("SHOOT2");
}

void DoubleFoulStop() {
  game.DeadBallKind = 1;
  FullClock();
  DeadBall();
}

/// The ball goes on: bringing it in or up, holding it, burning the clock.
void PlayOn() {
  game.GameState = "OFFENSE";
  game.PlayKind = "";
}

void LeaveBall() {
  const PlayResult r = game.PlayResult;
  if (game.play.GoaltendMark && IsMadeShot(r)) return Goaltending();
  if (game.play.FlagrantLevel >= 1) return Flagrant();
  if (r == "G" || r == "G3") return AfterBasket();
  if (r == "F0") return AfterFloorFoul();
  if (IsFloorFoul(r) || r == "MF" || r == "M3F" || r == "GF" || r == "G3F") {
    FullClock();
    return GoToLine(TripOf(r));
  }
  if (r == "FTG" || r == "FTM") return AfterFreeThrow();
  if (r == "REB") return BallAfterRebound();
  if (r == "ST") return BallAfterSteal();
  if (r == "SHOTCLOCK") game.DeadBallKind = 4;
  if (r == "TO" || r == "SHOTCLOCK" || r == "NOSHOT") return AfterViolation();
  if (r == "OF") return AfterOffensiveFoul();
  if (r == "LOOSE-OFF" || r == "LOOSE-DEF") return AfterLooseBall();
  if (r == "2XPF") return DoubleFoulStop();
  if (r == "DELAY") {
    game.DeadBallKind = 1;
    game.incident.Kind = IncidentKind::kDelay;
  }
  if (r == "HOLD BALL" || r == "BURN" || r == "IN-EZ" || r == "MOVE-UP") return PlayOn();
  if (r == "FORCED-TIMEOUT") {
    game.PlayKind = "";
    game.possession = {};
    return;
  }
  DeadBall();  // out of bounds, a lost inbound, the arrow, a delay
}

void LogPlay(int side, PlayKind kind) {
  const Play& play = game.play;
  const PlayResult r = play.Posted;
  const int slot = play.PostedSlot;
  const int other = 3 - side;
  const int clock = game.GameClock - game.PlayTime;
  if (r == "IN-EZ" || r == "MOVE-UP" || r == "MOVE-UP-OB-OFF" || r == "IN-OB-OFF") return;
  if (play.Assisted && IsMadeShot(r)) {
    AddPlayLog(clock, side, slot, kind, r, kAssistedBy, side, play.Assister);
  } else if (play.Blocker > 0) {
    AddPlayLog(clock, side, slot, kind, r, kBlockedBy, other, play.Blocker);
    // Who fouled for the loose ball stands in a line of his own.
    if (play.Fouler > 0) AddPlayLog(clock, play.FoulingSide, play.Fouler, kind, game.PlayResult);
  } else if (r == "ST") {
    AddPlayLog(clock, side, slot, kind, r, kStolenBy, other, play.Stealer);
  } else if (play.Fouler > 0) {
    AddPlayLog(clock, side, slot, kind, r, kFouledBy, play.FoulingSide, play.Fouler);
  } else {
    AddPlayLog(clock, side, slot, kind, r);
  }
  if (play.TipIn)
    AddPlayLog(clock, side, play.Tipper, "OFFREB", play.TipIn == 2 ? PlayResult("G") : PlayResult("M"));
}

/// After a missed tip the defense has the ball, and nobody runs.
void LoseTip() {
  game.PlayResult = "DEFREB";
  SwapSides();
  FullClock();
  game.ShotClock = std::min(game.ShotClock, game.GameClock);
  game.DeadBallKind = game.NeedsBringUp = game.NeedsInbound = 0;
  PlayOn();
}

}  // namespace

void PostPlay() {
  const PlayKind kind = game.PlayKind;
  const int side = game.OffenseSide;
  const int period = game.Period;
  PlayByPlay();
  LogPlay(side, kind);
  NarratePlay();
  if (game.PlayKind == "ENDPERIOD" || !IsFreeThrow(kind)) EndPlay();
  if (game.Watcher) ShowToWatcher(side, period);
  if (game.GameOver || game.Period != period || IsJump(game.GameState)) return;
  if (game.PlayResult == "IN-OB-DEF" || game.PlayResult == "IN-5") {
    game.ShotClock = std::min(FullShotClock(), game.GameClock);
  }
  if (game.play.TipIn == 1 && game.PlayResult == "REB" && game.play.ReboundSide != side &&
      !game.play.DeadBallRebound) {
    return LoseTip();
  }
  LeaveBall();
  // The coaches look at their line-ups when the ball is dead, before the last shot of a trip and behind it.
  const bool live = game.PlayResult == "OFFREB" || game.PlayResult == "DEFREB";
  const bool trip = IsFreeThrow(kind) && !live;
  if (game.GameState == "DEADBALL-DEFENSE" || game.GameState == "FREETHROW-WAIT" || trip) LineupCheck();
  EmptyFouledOut();
}

}  // namespace tipline
