#pragma once
// The rotation grid: minute by minute of each period, who stands at each position.
#include "league/roster.h"

namespace tipline {

/// The computer's own grid for a team, from targets and depth charts; draws. Writes the men's `RotationGrid`
/// and the coach's `RotationByRank`; sets targets and depth charts first where they are missing.
void SetComputerRotationGrid(Roster& roster, const RulesRecord& rules = league.rules);
/// Empties both sides of the grid.
void ClearRotationGrid(Roster& roster);

}  // namespace tipline
