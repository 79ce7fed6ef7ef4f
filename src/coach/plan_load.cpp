#include "coach/plan_load.h"

#include "coach/depth_chart.h"
#include "coach/game_plan.h"
#include "coach/rotation_grid.h"
#include "league/markers.h"

namespace tipline {

bool ReadyPlan(Roster& roster) {
  const int version = PlanVersionOf(roster.team.Year);
  const bool old = roster.coach.PlanVersion != version;
  bool changed = false;
  if (TakeMark(roster.team.PlanMark, 9) || old) {
    SetDefaultPlanSliders(roster);
    changed = true;
  }
  if (!old) return changed;
  SetDefaultDepthCharts(roster);
  ClearRotationGrid(roster);
  roster.coach.PlanVersion = static_cast<i16>(version);
  return true;
}

}  // namespace tipline
