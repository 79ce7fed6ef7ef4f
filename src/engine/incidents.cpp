// The tests of a play in their order, and what several incidents share.
#include "engine/incidents.h"

#include <algorithm>

#include "coach/substitutions.h"
#include "engine/execution.h"
#include "engine/incident_steps.h"

namespace tipline {
namespace {

/// Nobody is hurt on these plays: just after a change of line-ups, around dead balls and the end of a period,
/// when men are short.
bool NobodyIsHurt(bool lineupAnnounced) {
  return lineupAnnounced || game.GameClock < 50 || game.DeadBallKind > 0 || game.NeedsMoveUp ||
         !BothHaveMoreThan(9) || game.PreviousResult == "FTG" || game.PlayKind == "BURN";
}

/// The best of the five at the line; ten shots at seven of ten stand in for what nobody knows of a man.
int BestShooter(int side) {
  int best = 0;
  double most = -1;
  for (const int slot : game.side[side].Lineup) {
    const StatLine& real = PlayerAt(side, slot).Stats[1];
    const double rate = (real.FTM + 7.0) / (std::max<int>(real.FTA, 0) + 10.0);
    if (slot == 0 || rate <= most) continue;
    most = rate;
    best = slot;
  }
  return best;
}

}  // namespace

bool PlayIsInterrupted() {
  if (game.AnalysisMode) return false;
  const bool lineupAnnounced = game.LineupAnnounced;
  game.LineupAnnounced = 0;
  if (!InSet()) return false;
  if (!NobodyIsHurt(lineupAnnounced) && (ShakenUpTest() || TemporaryInjuryTest() || InjuryTest()))
    return true;
  return IllegalDefenseTest() || FightTest() || TechnicalTest();
}

bool FoulCalled() {
  const auto called = [](const Side& s) { return s.QuickFoul != 0 || s.StealFoul != 0; };
  return called(game.side[1]) || called(game.side[2]);
}

void LeaveFloor(int side, int slot) {
  if (const int position = PositionOf(side, slot)) game.side[side].Lineup[position] = 0;
  if (side == game.OffenseSide && slot == game.BallPlayer) game.BallPlayer = game.BallSlot = 0;
}

void StopInFrontcourt() {
  game.PlayKind = "";
  game.DeadBallKind = 2;
  game.GameState = "DEADBALL-DEFENSE";
  game.possession = {};
}

void StopForIncident() {
  game.GameState = "TIMEOUT-DEFENSE";
  game.PlayKind = "";
  game.PlayResult = "";
  game.possession = {};
}

int Eject(int side, int slot, int games) {
  PlayerRecord& p = PlayerAt(side, slot);
  LoadedAt(side, slot).PlayerOut = 1;
  ManAt(side, slot).Ejected = 1;
  p.Stats[3].Ejections = 1;
  game.EjectionNames += p.LastName.Str() + ", ";
  LeaveFloor(side, slot);
  p.SuspensionGames = static_cast<u8>(std::min(p.SuspensionGames + games, 255));
  return games;
}

void GiveTechnicalShots(int side, int shots) {
  const int keeper = game.OffenseSide;
  if (side != keeper) FaceAbout();
  const int named = game.side[side].FreeThrowMan;
  const int shooter = PositionOf(side, named) > 0 ? named : BestShooter(side);
  game.BallPlayer = shooter;
  game.BallSlot = PositionOf(side, shooter);
  game.TechnicalFreeThrow = 1;
  game.TechnicalSide = keeper;
  game.GameState = "FREETHROW-WAIT";
  game.PlayKind = shots == 2 ? PlayKind("SHOOT2") : PlayKind("SHOOT1");
  game.possession = {};
  game.incident.Shots = shots;
  game.incident.ShooterSide = side;
  game.incident.Shooter = shooter;
}

}  // namespace tipline
