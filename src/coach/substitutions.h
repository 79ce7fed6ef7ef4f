#pragma once
// Who plays: the line-ups at a stop.

namespace tipline {

/// Makes both line-ups legal and sensible at a stop: takes off who has to go, fills every empty position by a
/// weighted pick. Reads and writes `game`; leaves holes only where a roster has nobody left. Changes nothing
/// when the present play uses up the period. A change clears `game.PlayResult`, so that nothing that hangs on
/// the last result happens between the change and the next play.
void LoadLineups();

/// Sets `game.CrunchTime`: a close game is in its last minutes.
void RefreshCrunchTime();

/// Fouls at which a man is in foul trouble in this part of the game; 99 when there is no such number.
int FoulTroubleLimit();

}  // namespace tipline
