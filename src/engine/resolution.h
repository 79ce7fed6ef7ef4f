#pragma once

namespace tipline {

/// Resolves one play for the side with the ball: incidents, weights, the draw, its branch; has the time
/// charged and the result posted, and leaves the next state. With `game.AnalysisMode` it stops after the
/// weights and changes no more.
void FindResult();

/// Whether a shot of the ball handler goes in, is fouled on, or misses: settles `PlayResult`.
void ShotBranch();

/// Men of a side who can still play: on the team, under the foul limit, not out, not hurt.
int CountEligible(int side);
bool IsEligible(int side, int slot);

/// A position drawn from the five; where it is empty, the next filled one. 0 when the floor is empty.
int DrawPosition(int side);

}  // namespace tipline
