#pragma once
// What made-up leagues look like in ratings.
#include <iosfwd>

namespace tipline {

/// Over `leagues` drawn leagues of each preset: every rating by position (mean, standard deviation, least,
/// most) beside the middle of its scale, the overall value, and how far the teams of a league lie apart
/// (minutes-weighted overall). Needs the era tables.
void PrintPlayerSpread(std::ostream& out, int leagues);

}  // namespace tipline
