#include "coach/game_plan.h"

#include "base/numbers.h"

namespace tipline {
namespace {

constexpr u8 kNeutral = 2;
constexpr u8 kNormalCoverage = 3;

void ClearPlayerDefense(CoachRecord& coach, int plan) {
  coach.DefendInside[plan].Fill(kNormalCoverage);
  coach.DefendOutside[plan].Fill(kNormalCoverage);
  coach.DefendThree[plan].Fill(kNormalCoverage);
  coach.DoubleInside[plan].Fill(0);
  coach.DoubleOutside[plan].Fill(0);
  coach.DoubleThree[plan].Fill(0);
  coach.DefendUsage[plan].Fill(0);
}

void SetNeutral(CoachRecord& c, int plan) {
  for (auto* slider :
       {&c.Coverage1, &c.Coverage2, &c.Coverage3, &c.Coverage4, &c.Coverage5, &c.OffAdjust1, &c.OffAdjust2,
        &c.OffAdjust3, &c.OffAdjust4, &c.OffAdjust5, &c.OffAdjust6, &c.DefAdjust1, &c.DefAdjust2,
        &c.DefAdjust3, &c.DefAdjust4, &c.DefAdjust5, &c.DefAdjust6}) {
    (*slider)[plan] = kNeutral;
  }
}

bool OnTeam(const Roster& roster, int slot) {
  return roster.player[slot].RecNo != 0 && roster.player[slot].TeamNo == roster.TeamNo;
}

/// Ball hawks at guard count double.
double PressBase(const Roster& roster, double x) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(roster, slot)) continue;
    const PlayerRecord& player = roster.player[slot];
    const bool guard = player.PrimaryPosition == 1 || player.PrimaryPosition == 2;
    x += (player.RateDefForce - 5) * (guard ? 0.2 : 0.1);
  }
  return (Clamp(Int(x + 0.5), 0, 5) + 5) / 2.0;
}

/// What the scorers of a team shoot best, from a start value; held to the slider's range.
double Lean(const Roster& roster, double x, u8 PlayerRecord::*rating) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(roster, slot) || roster.player[slot].RateOffense <= 50) continue;
    x += (roster.player[slot].*rating - 5) * 0.1;
  }
  return Clamp(x, 0.0, 4.0);
}

}  // namespace

int PlanAgainst(const CoachRecord& coach, int opponent) {
  for (int plan = 1; plan <= 10; ++plan) {
    if (coach.PlanOpponent[plan] == opponent && opponent != 0) return plan;
  }
  return 0;
}

void SetDefaultPlanSliders(Roster& roster, bool keepPlayerDefense) {
  CoachRecord& coach = roster.coach;
  double x = 0;  // carried from plan to plan
  for (int plan = 0; plan <= 10; ++plan) {
    if (!keepPlayerDefense) ClearPlayerDefense(coach, plan);
    SetNeutral(coach, plan);
    const auto lean = [&](Table<u8, 0, 10>& slider, double start, u8 PlayerRecord::*rating) {
      x = Lean(roster, start, rating);
      slider[plan] = static_cast<u8>(Round(x));
    };
    x = PressBase(roster, x);
    lean(coach.Coverage5, x, &PlayerRecord::RateOffThree);
    lean(coach.Coverage3, 2, &PlayerRecord::RateOffInside);
    lean(coach.Coverage4, 2, &PlayerRecord::RateOffOutside);
    lean(coach.Coverage2, 2, &PlayerRecord::RateOffDrive);
  }
}

}  // namespace tipline
