#pragma once
// Who plays: depth charts and special lineups, set from real minutes, positions and ratings.
#include "league/roster.h"

namespace tipline {

/// Targets of the team's men that add up to too little (180, or 150 in two-period games) become their real
/// minutes a game.
void CheckTargets(Roster& roster, const RulesRecord& rules = league.rules);

/// Nobody of the team is ranked, or in a special lineup, any more.
void ClearDepthCharts(Roster& roster);
void ClearSpecialLineups(Roster& roster);

/// Rebuilds `DepthRank` of the team's men: up to six at each position, 6 the first choice. Targets that add
/// up to too little are set to real minutes first.
void SetDefaultDepthCharts(Roster& roster, const RulesRecord& rules = league.rules);

/// Rebuilds `RotationOrder` of the team's men: the five of each of the seven special lineups.
void SetDefaultSpecialLineups(Roster& roster);

}  // namespace tipline
