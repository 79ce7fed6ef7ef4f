// The commands with which a coach goes on: continue, shoot, drive, break, free throw, burn, timeout.
#include <algorithm>
#include <string>

#include "coach/computer_coach.h"
#include "coach/substitutions.h"
#include "engine/clock.h"
#include "engine/commands.h"
#include "engine/eligible.h"
#include "engine/engine.h"
#include "engine/execution.h"
#include "engine/fatigue.h"
#include "engine/game_state.h"
#include "engine/resolution.h"
#include "engine/shot_selection.h"
#include "narration/narrator.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

/// Before the tip the coach answers for a roster over the limit.
bool RosterAllowed(int side) {
  const int limit = league.rules.RosterLimitList;
  if (limit == 0 || game.GameStarted || game.Period != 1) return true;
  int active = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(side, slot) && PlayerAt(side, slot).Status != kInactive) ++active;
  }
  const int over = active - limit;
  if (over <= 0) return true;
  const std::string men = over == 1 ? "1 player" : std::to_string(over) + " players";
  return platform::dialogs().Ask(game.team[side].City.Str() + " is " + men +
                                 " over the roster limit! Allow?");
}

/// Five different men; a side that has fewer left to send in needs only those.
bool LineupFilled(int side) {
  const auto& five = game.side[side].Lineup;
  int men = 0;
  for (int p = 1; p <= kPositions; ++p) {
    if (five[p] == 0) continue;
    if (PositionOf(side, five[p]) != p) return false;
    ++men;
  }
  int ready = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) ready += MayAppear(side, slot) ? 1 : 0;
  return men >= std::min(ready, kPositions);
}

/// The man who is named for something is off the floor; the coach is told.
bool Missing(int side, int slot, const char* message) {
  if (slot == 0 || PositionOf(side, slot) > 0) return false;
  platform::dialogs().Tell(PlayerAt(side, slot).ShortName.Str() + message);
  return true;
}

Refusal WhyNot() {
  if (!CanContinue()) return Refusal::kNotNow;
  const int side = game.ActingSide;
  if (!RosterAllowed(side)) return Refusal::kRosterLimit;
  if (!LineupFilled(side)) {
    platform::dialogs().Tell("Invalid Lineup!");
    return Refusal::kLineup;
  }
  if (IsFreeThrow(game.GameState) && Missing(game.OffenseSide, game.BallPlayer, " must be in the game!"))
    return Refusal::kShooterGone;
  // A period is opened by the centres, whoever jumped before.
  if (IsJump(game.GameState) && !PeriodOpens() &&
      Missing(side, game.side[side].JumperOf, " must be in the game for the jump ball!")) {
    return Refusal::kJumperGone;
  }
  return Refusal::kNone;
}

void AfterTheTimeout() {
  LoadLineups();
  if (Defense().CoachMode == "C") ComputerDefenseCall(game.DefenseSide);
  game.GameState = "OFFENSE";
  game.TimeoutTaken = 0;
}

/// The next state from each stop.
void GoOn() {
  const GameState s = game.GameState;
  if (BallIsDue()) {
    FindResult();
  } else if (s == "JUMPBALL-1") {
    game.GameState = "JUMPBALL-2";
  } else if (s == "JUMPBALL-2") {
    game.GameState = "JUMPBALL";
    JumpBall();
  } else if (s == "TIMEOUT-OFFENSE") {
    AfterTheTimeout();
  } else if (s == "TIMEOUT-DEFENSE") {
    game.GameState = "TIMEOUT-OFFENSE";
  } else if (s == "QUARTER-DEFENSE") {
    game.GameState = "QUARTER-OFFENSE";
  } else if (s == "QUARTER-OFFENSE") {
    game.GameState = "DEFENSE";
  } else if (s == "DEADBALL-DEFENSE") {
    game.GameState = "DEADBALL-OFFENSE";
  } else if (s == "FREETHROW-WAIT") {
    game.GameState = "FREETHROW-SHOOT";
  } else {
    game.GameState = "OFFENSE";
  }
}

bool StopGoesOn(GameState s) { return IsFreeThrow(s) || IsDeadBall(s) || IsQuarter(s); }

}  // namespace

bool BallIsDue() { return (game.NeedsInbound || game.NeedsMoveUp) && EndsInOffense(game.GameState); }

bool CanContinue() {
  if (game.GameOver || game.GameDone) return false;
  const GameState s = game.GameState;
  return BallIsDue() || s == "JUMPBALL-1" || s == "JUMPBALL-2" || s == "DEFENSE" || s == "FREETHROW-WAIT" ||
         IsDeadBall(s) || IsTimeout(s) || IsQuarter(s);
}

bool TimeoutOpen() {
  return !game.GameOver && !IsJump(game.GameState) && !game.GameState.Empty() && !game.TimeoutTaken &&
         game.side[game.ActingSide].TimeoutsLeft > 0;
}

void Shoot() {
  ForgetCall();
  if (game.GameState == "OFFREB") {
    game.PlayKind = "OFFREB";
  } else {
    game.PlayKind = KindOfPick(ManAt(game.OffenseSide, game.BallPlayer).ShotPick);
  }
  if ((LastPeriod() && game.GameClock <= 1800) || game.GameClock <= 600) {
    game.GameState = "DEFENSE-CALL";
  } else {
    FindResult();
  }
}

Refusal ContinueChosen() {
  const Refusal why = WhyNot();
  if (why != Refusal::kNone) return why;
  GoOn();
  SetPlayBox();
  return Refusal::kNone;
}

void ShootChosen() {
  if (!AttackIsAsked()) return;
  Shoot();
  SetPlayBox();
}

void DriveChosen() {
  if (!AttackIsAsked()) return;
  ForgetCall();
  game.PlayKind = "DRIVE";
  FindResult();
  SetPlayBox();
}

void FastBreakChosen() {
  if (game.GameOver || game.GameState != "FASTBREAK") return;
  ForgetCall();
  game.PlayKind = "FASTBREAK";
  FindShooter();
  FindResult();
  SetPlayBox();
}

void FreeThrowChosen() {
  if (game.GameOver || game.GameState != "FREETHROW-SHOOT") return;
  FindResult();
  SetPlayBox();
}

void BurnChosen() {
  if (!AttackIsAsked()) return;
  ForgetCall();
  if (Defense().CoachMode == "C") {
    ComputerDefenseCall(game.DefenseSide);
  } else if (Defense().BothDefenses) {
    ComputerFoulDecision(game.DefenseSide);
  }
  game.PlayKind = "BURN";
  game.GameState = "DEFENSE-CALL";
  SetPlayBox();
}

void TimeoutChosen() {
  const int side = game.ActingSide;
  if (!TimeoutOpen()) return;
  game.MomentumTime = kMinute;
  game.MomentumMark = 1;
  AdvanceBallOnTimeout();
  ChargeTimeout(side);
  game.PlayTime = 0;
  AddPlayLog(game.GameClock, side, 0, "", "TIMEOUT", kTimeoutNote);
  NarrateTimeout(side, false);
  game.TimeoutTaken = 1;
  TimeoutRest();
  if (!StopGoesOn(game.GameState)) {
    game.GameState = "TIMEOUT-DEFENSE";
    game.possession = {};
    game.ActingSide = game.DefenseSide;
  }
  game.AfterTimeout = 1;
  SetPlayBox();
}

}  // namespace tipline
