#pragma once
// The running game on paper.
#include <ostream>

namespace tipline::cli {

/// The score by periods, up to period `last`.
void PrintPeriods(std::ostream& out, int last);

/// The game as a fan reads it: periods, every man's line, what else there is to tell.
void PrintBox(std::ostream& out);

}  // namespace tipline::cli
