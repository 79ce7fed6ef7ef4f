#pragma once

namespace tipline {

/// He runs in the break that is on, or is back to defend it.
bool InTheBreak(int side, int slot);
/// The clock or the score leaves a side that has just won the ball no reason to run. Draws.
bool NoTimeToRun(int newOffense);

}  // namespace tipline
