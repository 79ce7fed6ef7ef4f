#pragma once
// Who did it: rebounds, blocks, steals, assists, fouls; and where the ball goes after a steal or a rebound.

namespace tipline {

/// Sets `Rebounder`, `ReboundSide`, `DeadBallRebound`, `PutbackClass`. `PlayResult` may become
/// "OFFENSE-BASKET-INTERFERENCE" or "SHOTSTUCK".
void FindRebounder();
/// After "M" or "M3": whether the shot was blocked, and by whom.
void BlockTest();
void FindBlocker();
void FindStealer();
void FindAssister();
/// The man of `game.play.FoulingSide` who fouled.
void FindFouler();

/// Result "ST": sides over, and a fast break or a set.
void BallAfterSteal();
/// Result "REB": "OFFREB" or "DEFREB", a fast break, a set or a dead ball.
void BallAfterRebound();

}  // namespace tipline
