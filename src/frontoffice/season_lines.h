#pragma once
// The season that the men of a made-up league are said to have played: their drawn lines brought together so
// that teams and league add up.
#include <vector>

#include "frontoffice/league_kinds.h"
#include "league/roster.h"

namespace tipline {

/// Brings the drawn real lines of all rosters together. Needs lines, positions, salaries and defensive
/// ratings; writes `Stats[1]` of the men and `RealTotals` of the teams. Reads the era tables; draws.
///
/// 1. Minutes: the man who is worth most at his position starts. The best starter of a team plays most, some
///    35 to 39 of 48 minutes by era, and the man behind him least; a third man has 4 to 6 minutes on some
///    nights. The men of a position together fill it for the season, overtime counted in. All counts of a man
///    go with his minutes.
/// 2. Figures: a team keeps only a part of what it has above or below the others, since its men share one
///    ball and one floor. Then every count of the league comes to the season's average of its era, shooting
///    and free throws too, so that a made-up season looks like its year.
/// 3. Starts: at each position the man with most minutes starts whenever he plays, the next one fills in.
/// 4. Totals: a team's own are the sums of its men. Its opponents are the league's mean side at the team's
///    pace, shooting worse against good defenders and losing more balls to thieves; every opponents' figure
///    of the league adds up to the teams' own.
void SettleSeasonLines(std::vector<Roster>& teams, GameLevel level, int year);

}  // namespace tipline
