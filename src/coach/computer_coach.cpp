// The computer's attack: break or set, shoot, drive or pass.
#include "coach/computer_coach.h"

#include "engine/commands.h"
#include "engine/game_state.h"
#include "engine/resolution.h"
#include "engine/shot_selection.h"

namespace tipline {
namespace {

/// A side far ahead slows down, and a break without an extra man is not worth the risk.
bool PullsBreakBack() {
  if (Rnd(2) == 1 && Lead(game.OffenseSide) > 10 + Rnd(20)) return true;
  return Rnd(10) == 1 && game.fastBreak.BreakAttackers == game.fastBreak.BreakDefenders;
}

bool PassesPutbackOut() {
  if (Rnd(3) == 1 && Lead(game.OffenseSide) > 15 + Rnd(20)) return true;
  return Rnd(30) == 1;
}

/// What his season so far says about the drives he takes, against what is expected of him.
void SeasonOfDrives(const PlayerRecord& p, const LoadedMan& expected, int& odds) {
  const auto& order = p.ShotSelection;
  if (order[1] != 3 || order[2] != 3 || order[4] != 3 || p.ShotAttOutside[2] < 10) return;
  if (expected.ShareDrive <= 0 || expected.ShareOutside <= 0) return;
  const double now = p.ShotAttDrive[2] / (p.ShotAttOutside[2] + 0.1);
  const double ratio = now / (expected.ShareDrive / (expected.ShareOutside + 0.001));
  if (ratio >= 1 + 0.15 * Rnd()) {
    odds = Round(odds * 0.8 - 2);
  } else if (ratio <= 1 - 0.15 * Rnd()) {
    odds = Round(odds * 1.2 + 2);
  }
}

/// Who waits at the basket: nobody much, or a man to stay away from.
void ManAtTheRim(int& odds) {
  int position = 5;
  if (Rnd(3) == 1) position = 4;
  if (Rnd(20) == 1) position = 3;
  const int defense = OnFloor(game.DefenseSide, position).RateDefInside;
  if (defense < Rnd(7)) Scale(odds, 1.5);
  if (defense > 3 + Rnd(3)) Scale(odds, 0.9);
}

}  // namespace

void ComputerPlayCall() {
  if (game.GameState == "FASTBREAK") {
    game.PlayKind = "FASTBREAK";
    FindShooter();
    if (PullsBreakBack()) return Pass();
  } else if (game.GameState == "OFFREB") {
    if (PassesPutbackOut()) return Pass();
    game.PlayKind = "OFFREB";
  } else {
    FindShooter();
    game.PlayKind = KindOfPick(ManAt(game.OffenseSide, game.BallPlayer).ShotPick);
    ComputerDriveDecision();
  }
  FindResult();
}

void ComputerDriveDecision() {
  if (game.PlayKind != "OUTSIDE") return;
  const PlayerRecord& p = BallHandler();
  int odds = 39 + (p.ShotSelection[4] - 3) * 10;
  const double drive = (p.RateOffDrive + 0.5) / (p.RateOffOutside + 0.5) * 10 - 10;
  odds = Round(odds + Clamp(drive, -25.0, 25.0));
  SeasonOfDrives(p, LoadedAt(game.OffenseSide, game.BallPlayer), odds);
  ManAtTheRim(odds);
  if (Rnd(100) <= odds) game.PlayKind = "DRIVE";
}

void ComputerReviews() {
  for (int s = 1; s <= 2; ++s) {
    if (game.side[s].CoachMode == "C") ComputerSideReview(s);
  }
  const Side& defense = Defense();
  const PlayResult r = game.PlayResult;
  if (defense.CoachMode != "C" && !defense.BothDefenses) return;
  if (!IsMadeShot(r) && r != "MF" && r != "M3F" && r != "TO" && r != "OB") return;
  const bool halfEnds = (game.Period == 2 || game.Period == 4) && game.GameClock < 300 + Rnd(300);
  if (Rnd(halfEnds ? 1 : 5) == 1) ComputerDefenseCall(game.DefenseSide);
}

}  // namespace tipline
