#pragma once
// A finished game reaches the books.

namespace tipline {

/// Once a game, when it is over. It closes the game lines and writes the box to the report file; a league
/// game then goes into the season: men, teams, standings, power ratings, records, schedule, scores, box file,
/// leaders, highlights, injuries, ticker and film. On disk that is one step: `game.InTheBooks` when it is
/// done; else the user is told, and `league` and the files stand as they were before the game.
/// Without an open league folder only the tables of `game`, the schedule row and the scores change.
void FinishGame();

}  // namespace tipline
