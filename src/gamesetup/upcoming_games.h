#pragma once
// A game of the schedule, started from the list of upcoming games.
#include "gamesetup/game_screens.h"

namespace tipline {

/// Plays row `row` of `league.ScheduleGame`. False, with its message and nothing changed, when a team is not
/// selected; false as well for no row, and when the preview is left without a start.
bool PlayUpcomingGame(int row, GameScreens& screens);

}  // namespace tipline
