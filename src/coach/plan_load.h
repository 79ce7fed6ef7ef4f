#pragma once
// What a team's plan needs before it is read: at the load for a game or a screen.
#include "league/roster.h"

namespace tipline {

/// `PlanVersion` of a team's plans by its year.
constexpr int PlanVersionOf(int year) { return year >= 2020 ? 120 : 123; }

/// A team without plans gets them; plans of another version are made anew, with the depth charts, and the
/// rotation grid is cleared. True when something changed. Every load of a team does it.
bool ReadyPlan(Roster& roster);

}  // namespace tipline
