#include "coach/plan_load.h"

#include "coach/depth_chart.h"
#include "coach/game_plan.h"
#include "coach/rotation_grid.h"
#include "league/markers.h"

namespace tipline {
namespace {

bool RepairSliders(CoachRecord& coach) {
  bool repaired = false;
  for (int slider = 0; slider < kSliders; ++slider) {
    for (u8& value : coach.*SliderField(slider)) {
      if (value <= 4) continue;
      value = 2;
      repaired = true;
    }
  }
  return repaired;
}

}  // namespace

bool ReadyPlan(Roster& roster) {
  bool changed = RepairSliders(roster.coach);
  const int version = PlanVersionOf(roster.team.Year);
  const bool old = roster.coach.PlanVersion != version;
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
