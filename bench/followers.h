#pragma once
// How far each man follows his own season: minutes, places, rates.
#include <iosfwd>

#include "season_sums.h"

namespace tipline {

/// Minutes of the k-th most used man of a team, and how far men are from their targets.
void PrintMinutes(std::ostream& out, const SeasonSums& sums);
/// Where the points come from.
void PrintPositions(std::ostream& out, const SeasonSums& sums);
/// Correlation and slope of the replay against the real season, man by man.
void PrintFollowers(std::ostream& out, const SeasonSums& sums);

}  // namespace tipline
