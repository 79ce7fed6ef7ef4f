#pragma once
// A coach's standing plan against all opponents and against ten he names.
#include "league/roster.h"

namespace tipline {

/// The plan of a coach against this opponent: the lowest number wins, 0 (the general plan) when he has none.
int PlanAgainst(const CoachRecord& coach, int opponent);

/// Fills all eleven plans of a team from its men's ratings. The coverage of single opponents goes back to
/// normal unless `keepPlayerDefense`.
void SetDefaultPlanSliders(Roster& roster, bool keepPlayerDefense = false);

}  // namespace tipline
