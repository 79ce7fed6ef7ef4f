#pragma once
// A game of the schedule, started from the list of upcoming games.
#include "gamesetup/game_screens.h"

namespace tipline {

/// The game's date is that of the row: season month, calendar month, day, and the year, which is
/// `seasonYear` up to December and the next one behind it.
void TakeDateOf(const ScheduleRecord& row, int seasonYear);

/// Plays row `row` of `league.ScheduleGame`. False, with its message and nothing changed, when a team is not
/// selected or one of the two is gone; false as well for no row, and when the preview is left without a
/// start. Reads the whole schedule again at the end: season play has its own way.
bool PlayUpcomingGame(int row, GameScreens& screens);

}  // namespace tipline
