// Before the draw: one more pass, and how shot, turnover and foul weigh against each other.
#include <algorithm>

#include "engine/chances.h"
#include "engine/eligible.h"
#include "engine/execution.h"
#include "engine/outcome.h"
#include "engine/resolution_steps.h"
#include "engine/shot_selection.h"
#include "engine/weights.h"
#include "engine/who.h"

namespace tipline {
namespace {

bool FoulCalled(const Side& defense) { return defense.QuickFoul != 0 || defense.StealFoul != 0; }
bool OpenFloor() { return game.GameState == "OFFENSE" || game.GameState == "DEFENSE-CALL"; }

bool WantsExtraPass() {
  const int coverage = CoverageFor(game.PlayKind, game.BallPlayer);
  game.play.PlayCoverage = coverage;
  int eager = coverage == 0 ? -15 : coverage == 1 ? -10 : coverage == 3 ? 20 : 1;
  const PlayKind zone = game.PlayKind == "DRIVE" ? PlayKind("OUTSIDE") : game.PlayKind;
  if (DoubledFor(zone, game.BallPlayer) && !game.Switched) eager += 10;
  if (eager < -20) eager = -20;
  int passing = BallHandler().RatePassing;
  if (game.BallSlot != 1 && passing > 7) passing = 7;
  bool wants = Rnd(100) <= 35 + eager && passing > Rnd(10);
  if (game.call.PlayGridShot && Rnd(10) <= 8) wants = false;
  if (game.call.ExtraPassCall) wants = true;
  const bool pick = game.call.PickBall > 0 && game.call.PickScreener > 0;
  return wants && coverage != 6 && !FoulCalled(Defense()) && game.PlayKind != "HOLD BALL" &&
         Offense().EligibleCount >= 5 && !pick && !game.call.SetPlay;
}

/// A big man brings the ball up, or a small one plays the middle.
int PlaysOutOfPosition() {
  const PlayerRecord& p = BallHandler();
  const auto holds = [&p](int low, int high) {
    const auto in = [&](int v) { return v >= low && v <= high; };
    return in(p.PrimaryPosition) || in(p.SecondaryPosition) || in(p.SpotPosition);
  };
  return (game.BallSlot == 1 && !holds(1, 3)) || (game.BallSlot == 5 && !holds(3, 5)) ? 1 : 0;
}

void CoverageOfShot() {
  Play& play = game.play;
  const Side& defense = Defense();
  play.PlayCoverage = IsSetShot(game.PlayKind) ? CoverageFor(game.PlayKind, game.BallPlayer) : 3;
  const bool poorShooter = game.WorstFreeThrowShooter > 0 && game.BallPlayer == game.WorstFreeThrowShooter;
  if (defense.QuickFoul == 1 || (defense.QuickFoul >= 2 && poorShooter)) play.PlayCoverage = 6;
  if (defense.StealFoul == 1 && Rnd(2) == 1) play.PlayCoverage = 6;
}

/// The last seconds: a shot thrown up from wherever he stands.
void Desperation() {
  Play& play = game.play;
  play.ShotLate = 0;
  const int clock = game.GameClock;
  if (clock < 40 && !game.call.ShotConfirmed) {
    if (game.PutbackClass != 3 && game.GameState != "OFFREB" && game.PlayKind == "THREE" && Rnd(2) == 1 &&
        clock < Rnd(10) + 10) {
      play.ShotLate = 1;
    }
    if (Rnd(2) == 1 && game.AfterTimeout != 1 && clock < Rnd(20) + 20) {
      const bool arc = league.rules.ThreePointCheck;
      game.PlayKind = arc ? PlayKind("THREE") : PlayKind("OUTSIDE");
      play.ShotValue = arc ? ShotValue("THREE") : ShotValue("TWO");
      play.ShotLate = 1;
    }
  }
  if (game.GameState == "OFFREB" || game.AfterTimeout == 1 || (LastPeriod() && Lead(game.OffenseSide) > 0)) {
    play.ShotLate = 0;
  }
  if (play.ShotLate) {
    play.FoulChance = play.TurnoverChance = 0;
    play.ShotChance = 1000;
  }
}

/// In a 2-1-2 zone a gap in height opens the inside game, or the drive past a taller man.
void Mismatch() {
  Play& play = game.play;
  int inches = 1;
  const bool zone = Defense().DefenseType == 1;
  if (zone && game.BallDefender > 0) {
    const int gap = HeightOf(BallHandler()) - HeightOf(PlayerAt(game.DefenseSide, game.BallDefender));
    if (game.PlayKind == "INSIDE" && gap >= 3) inches = gap;
    if (game.PlayKind == "DRIVE" && gap <= -3) inches = -gap;
  }
  if (zone) {
    Scale(play.ShotChance, 1 + 0.04 * inches);
    Scale(play.FoulChance, 1 + 0.03 * inches);
    Scale(play.TurnoverChance, 1 - 0.05 * inches);
  }
  play.HeightMismatch = inches;
}

}  // namespace

int CoverageFor(PlayKind kind, int slot) {
  const Man& man = ManAt(game.OffenseSide, slot);
  if (kind == "INSIDE") return man.CoverageInside;
  if (kind == "THREE") return man.CoverageThree;
  if (kind == "OUTSIDE" || kind == "DRIVE" || kind == "HOLD BALL") return man.CoverageOutside;
  return 3;
}

bool DoubledFor(PlayKind kind, int slot) {
  const Man& man = ManAt(game.OffenseSide, slot);
  if (kind == "INSIDE") return man.DoubleTeamInside == 1;
  if (kind == "THREE") return man.DoubleTeamThree == 1;
  if (kind == "OUTSIDE") return man.DoubleTeamOutside == 1;
  return false;
}

void ExtraPass() {
  const bool pick = game.call.PickBall > 0 && game.call.PickScreener > 0;
  if (game.DeadBallKind != 0 || game.NeedsMoveUp || game.PlayKind == "BURN" || pick || game.call.SetPlay ||
      !OpenFloor() || game.AnalysisMode || IsFreeThrow(game.PlayKind) || !WantsExtraPass()) {
    return;
  }
  const int passer = game.BallPlayer;
  const PlayKind kind = game.PlayKind;
  game.BallPlayer = 0;
  bool found = false;
  for (;;) {
    FindShooter();
    found = game.BallPlayer > 0 && game.BallPlayer != passer &&
            PositionOf(game.OffenseSide, game.BallPlayer) > 0 &&
            !LoadedAt(game.OffenseSide, game.BallPlayer).PlayerOut;
    if (found || Rnd(1000) == 1) break;
  }
  if (!found) {
    game.BallPlayer = passer;
    game.PlayKind = kind;
    HoldBall();
    return;
  }
  game.play.ExtraPass = 1;
  game.play.ExtraPassFrom = passer;
  game.call.ShotConfirmed = 0;
  game.PlayKind = KindOfPick(ManAt(game.OffenseSide, game.BallPlayer).ShotPick);
  game.play.ShotValue = game.PlayKind == "THREE" ? ShotValue("THREE") : ShotValue("TWO");
  HoldBall();
  FaceDefender();
}

void Weigh() {
  Play& play = game.play;
  Offense().OutOfPosition = PlaysOutOfPosition();
  Defense().OutOfPosition = 0;
  ShotWeight();
  CoverageOfShot();
  TurnoverWeight();
  FoulWeight();
  Desperation();
  Mismatch();
  if (game.GameClock < 70 && !game.AnalysisMode) play.FoulChance = 0;
  for (int* weight : {&play.ShotChance, &play.TurnoverChance, &play.FoulChance})
    *weight = std::max(0, *weight);
  const int sum = std::max(1, play.TurnoverChance + play.FoulChance + play.ShotChance);
  for (int* weight : {&play.TurnoverChance, &play.FoulChance, &play.ShotChance}) {
    *weight = Int(1000.0 / sum * *weight + 0.5);
  }
}

}  // namespace tipline
