#pragma once
// The bodies of two commands that others go through as well, and what the commands have in common.
#include "engine/game_state.h"

namespace tipline {

/// The ball handler shoots what he has open: in the last stretch the defense is asked first. Leaves the next
/// state; whoever calls it goes on to SetPlayBox. So does Pass.
void Shoot();
/// The ball handler tries to give the ball up; he may shoot instead, be fouled or lose it.
void Pass();

/// The man at a position gets the ball, where it is empty the next one.
void GiveBall(int position);

/// A choice at the stop takes the place of the play that was called.
inline void ForgetCall() { game.call.CallKind = game.call.CallPlayer = 0; }

/// The offense is asked for a play at this stop.
inline bool AttackIsAsked() {
  const GameState s = game.GameState;
  return !game.GameOver && (s == "OFFENSE" || s == "OFFREB" || s == "FASTBREAK");
}

}  // namespace tipline
