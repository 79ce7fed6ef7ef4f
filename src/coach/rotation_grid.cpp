#include "coach/rotation_grid.h"

#include "base/numbers.h"
#include "coach/depth_chart.h"
#include "coach/rotation_sheet.h"

namespace tipline {
namespace {

constexpr int kMostRuns = 30;
constexpr int kThinChart = 40;  // ranks of a chart that nobody has made
constexpr int kFoldMinute = 10;

RotationSheet Draw(const Roster& roster, int regulation, int minutes) {
  RotationSheet sheet(roster, regulation, minutes);
  PlaceKeyMen(sheet);
  ChooseRegulars(sheet);
  PlaceRegulars(sheet);
  FillHoles(sheet);
  return sheet;
}

int SumOfRanks(const Roster& roster) {
  int sum = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(roster, slot)) continue;
    for (const int rank : roster.player[slot].DepthRank) sum += rank;
  }
  return sum;
}

/// Copies the sheet to men and coach. A half is two built periods, the second one from minute 11 on.
void Write(const RotationSheet& sheet, Roster& roster) {
  for (int built = 1; built <= kOvertimeGrid; ++built) {
    const bool folds = sheet.regulation == 2 && built <= kBuiltPeriods;
    const int period = folds ? (built + 1) / 2 : built;
    const int after = folds && built % 2 == 0 ? kFoldMinute : 0;
    for (int minute = 1; minute <= sheet.minutes; ++minute) {
      for (int position = 1; position <= 5; ++position) {
        const int slot = sheet.SlotAt(built, minute, position);
        if (slot == 0) continue;
        roster.player[slot].RotationGrid[period][minute + after] = static_cast<u8>(position);
        roster.coach.RotationByRank[position][minute + after][period] = static_cast<u8>(slot);
      }
    }
  }
}

}  // namespace

void ClearRotationGrid(Roster& roster) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(roster, slot)) roster.player[slot].RotationGrid = {};
  }
  roster.coach.RotationByRank = {};
}

void SetComputerRotationGrid(Roster& roster, const RulesRecord& rules) {
  CheckTargets(roster, rules);
  if (SumOfRanks(roster) <= kThinChart) SetDefaultDepthCharts(roster, rules);
  ClearRotationGrid(roster);
  const int regulation = rules.PeriodList == 2 ? 2 : 4;
  // A half is two builds of at most ten minutes; what a damaged rule adds is played by the twentieth.
  const int minutes = regulation == 2 ? Clamp(rules.MinuteList / 2, 1, kFoldMinute)
                                      : Clamp<int>(rules.MinuteList, 1, kGridMinutes);
  for (int run = 1;; ++run) {
    const RotationSheet sheet = Draw(roster, regulation, minutes);
    // A sheet with many holes stands as it is; a fuller one is drawn again, and the last one stands.
    const bool full = sheet.Open() < regulation * minutes;
    if (run == kMostRuns || !full) return Write(sheet, roster);
  }
}

}  // namespace tipline
