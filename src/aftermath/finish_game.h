#pragma once
// A finished game reaches the books.

namespace tipline {

/// Once a game, when it is over: closes the game lines (games, minutes, disqualifications) and, for a league
/// game, adds them to the season lines of players and teams. Works on the game tables; writes no file.
void FinishGame();

}  // namespace tipline
