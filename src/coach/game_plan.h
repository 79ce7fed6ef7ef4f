#pragma once
// A coach's standing plan against all opponents and against ten he names.
#include "league/roster.h"

namespace tipline {

/// Fills all eleven plans of a team from its men's ratings. The coverage of single opponents goes back to
/// normal unless `keepPlayerDefense`.
void SetDefaultPlanSliders(Roster& roster, bool keepPlayerDefense = false);

}  // namespace tipline
