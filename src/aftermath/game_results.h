#pragma once
// Where a game stands once it is over: its row of the schedule, and its record of SCORES.
#include <vector>

#include "league/schedule_record.h"

namespace tipline {

/// Leaders, score, records and flags of the game just ended. The records of `game.team` count it already.
void FillResult(ScheduleRecord& row);

/// Rows of the schedule that the end of the game changes: its own, and, where a run ends with it, those that
/// were to be played next. A run of games goes on behind a game between computers that nobody watches.
std::vector<int> RowsToClose();
/// Changes them in memory: the game is played, its box has this name; the others are unplayed again.
void CloseRows(const std::vector<int>& rows, const std::string& boxFile);

/// Number of the next record of SCORES.
int NextScore();
/// The record of the game: its result with the totals of both sides.
ScheduleRecord ScoreOfGame(const std::string& boxFile);
/// Writes it as record n and, where `league.Scores` holds all before it, adds it there. False, told, when
/// that failed.
bool AppendScore(int n, const ScheduleRecord& score);

}  // namespace tipline
