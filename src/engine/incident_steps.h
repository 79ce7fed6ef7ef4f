#pragma once
// The tests of a play's incidents, and what they share.
#include "engine/game_state.h"

namespace tipline {

/// Each test is true when it stopped the play.
bool ShakenUpTest();
bool TemporaryInjuryTest();
bool InjuryTest();
bool IllegalDefenseTest();
bool FightTest();
bool TechnicalTest();

/// Either side is told to foul or to reach for the ball.
bool FoulCalled();
/// The sides are set for a play: nothing interrupts a break, a putback or a stop.
inline bool InSet() { return game.GameState == "DEFENSE" || game.GameState == "OFFENSE"; }
/// Both sides have more men than this.
inline bool BothHaveMoreThan(int men) {
  return game.side[1].EligibleCount > men && game.side[2].EligibleCount > men;
}
/// What happened, and to whom or by whom, for those who tell it.
inline Incident& Note(IncidentKind kind, int side, int slot = 0) {
  Incident& incident = game.incident;
  incident.Kind = kind;
  incident.Side = side;
  incident.Slot = slot;
  return incident;
}
/// The play is dead, and the attackers take the ball out in the frontcourt.
void StopInFrontcourt();
/// The man leaves the floor, and the ball with him.
void LeaveFloor(int side, int slot);
/// The clock stands for it, and no timeout is charged.
void StopForIncident();
/// Out for this game and `games` more; returns the games.
int Eject(int side, int slot, int games);
/// `side` shoots so many technicals, taken by the man named for it or its best shooter; the side that has
/// the ball keeps it.
void GiveTechnicalShots(int side, int shots);

}  // namespace tipline
