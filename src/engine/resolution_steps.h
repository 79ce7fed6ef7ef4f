#pragma once
// The stages of a play's resolution, in their order, for the routine that runs them.
#include "engine/words.h"

namespace tipline {

/// The man with the ball stands somewhere: `BallPlayer` and `BallSlot` agree.
void HoldBall();
/// Who guards the ball, and what both men bring with them.
void FaceDefender();

/// The defense's coverage of a man of the offense on this kind of shot; 3 where none applies.
int CoverageFor(PlayKind kind, int slot);
/// He is doubled on this kind of shot.
bool DoubledFor(PlayKind kind, int slot);

/// One more pass before the shot: the man who is covered gives the ball to somebody else.
void ExtraPass();
/// Shot, turnover and foul of this man in this moment, in proportion.
void Weigh();
/// Everything between the weights and the posting: settles `PlayResult`.
void Resolve();

}  // namespace tipline
