#pragma once
// Wins and losses of both teams of a finished game, and the splits of them.
#include "engine/game_state.h"

namespace tipline {

/// The side with more points; the visitors where nobody has.
inline int WinnerSide() { return game.side[2].Score > game.side[1].Score ? 2 : 1; }
inline int LoserSide() { return 3 - WinnerSide(); }

/// Adds the game to the records of `game.team`: totals, streak, last ten, court, division, conference, and
/// how it was won. `game.BoxRebuild` is set: the records count it now.
void AddToStandings();

}  // namespace tipline
