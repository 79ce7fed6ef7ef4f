#pragma once
// The branches of the draw, and what each result leaves behind.

namespace tipline {

void FoulBranch();      ///< the ball handler is fouled: on the shot, on the floor, on purpose
void TurnoverBranch();  ///< he loses the ball: thrown away, stolen, an offensive foul
void DoubleFoul();      ///< two men at each other
void ShootFreeThrow();  ///< the ball handler at the line

/// Posts the result, charges the time, and sets state, shot clock and ball for what comes next.
void PostPlay();

}  // namespace tipline
