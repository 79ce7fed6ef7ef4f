#pragma once

namespace tipline {

/// Resolves one play for the side with the ball: incidents, weights, the draw, its branch; has the time
/// charged and the result posted, and leaves the next state. With `game.AnalysisMode` it stops after the
/// weights and changes no more.
void FindResult();

/// Whether a shot of the ball handler goes in, is fouled on, or misses: settles `PlayResult`.
void ShotBranch();

}  // namespace tipline
