#pragma once
// Who plays: depth charts and special lineups, set from real minutes, positions and ratings.
#include "league/roster.h"

namespace tipline {

/// Rebuilds `DepthRank` of the team's men: up to six at each position, 6 the first choice. Targets that add
/// up to too little are set to real minutes first.
void SetDefaultDepthCharts(Roster& roster, const RulesRecord& rules = league.rules);

/// Rebuilds `RotationOrder` of the team's men: the five of each of the seven special lineups.
void SetDefaultSpecialLineups(Roster& roster);

/// Copies what the men carry of rotation and usage into the coach record, so that an exported plan takes it
/// along: status, shot selection, lineups, positions, minutes, and the depth chart by rank.
void CopyRotationToCoach(Roster& roster);

}  // namespace tipline
