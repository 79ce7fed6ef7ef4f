#pragma once
// The running game on paper.
#include <ostream>
#include <string>
#include <string_view>

#include "league/stat_line.h"

namespace tipline::cli {

/// "1", "2", past regulation "OT", "2OT".
std::string PeriodName(int period);

/// Time on the floor, in tenths of a second, as the minutes of a box: to the nearest.
int BoxMinutes(int tenths);

/// Adds the counts that a box shows; games, minutes and technicals stay.
void AddTo(StatLine& sum, const StatLine& line);

/// The score by periods, up to period `last`.
void PrintPeriods(std::ostream& out, int last);

/// The box of the game, as it is printed for every game.
void PrintBox(std::ostream& out);

}  // namespace tipline::cli
