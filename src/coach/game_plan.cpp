#include "coach/game_plan.h"

#include <array>

#include "base/numbers.h"

namespace tipline {
namespace {

constexpr u8 kNeutral = 2;

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

Table<u8, 0, 10> CoachRecord::*SliderField(int slider) {
  using C = CoachRecord;
  static constexpr std::array<Table<u8, 0, 10> C::*, kSliders> kFields{
      &C::Coverage1,  &C::Coverage2,  &C::Coverage3,  &C::Coverage4,  &C::Coverage5,  &C::OffAdjust1,
      &C::OffAdjust2, &C::OffAdjust3, &C::OffAdjust4, &C::OffAdjust5, &C::OffAdjust6, &C::DefAdjust1,
      &C::DefAdjust2, &C::DefAdjust3, &C::DefAdjust4, &C::DefAdjust5, &C::DefAdjust6};
  return kFields[static_cast<std::size_t>(slider)];
}

void NormalCoverage(CoachRecord& coach, int plan) {
  for (auto* coverage : {&coach.DefendInside, &coach.DefendOutside, &coach.DefendThree}) {
    (*coverage)[plan].Fill(3);
  }
  for (auto* doubled : {&coach.DoubleInside, &coach.DoubleOutside, &coach.DoubleThree}) {
    (*doubled)[plan].Fill(0);
  }
}

int PlanAgainst(const CoachRecord& coach, int opponent) {
  for (int plan = 1; plan <= 10; ++plan) {
    if (coach.PlanOpponent[plan] == opponent && opponent != 0) return plan;
  }
  return 0;
}

int FirstFreePlan(const CoachRecord& coach) {
  for (int plan = 1; plan <= 10; ++plan) {
    if (coach.PlanOpponent[plan] == 0) return plan;
  }
  return 0;
}

void SetDefaultPlanSliders(Roster& roster, bool keepPlayerDefense) {
  CoachRecord& coach = roster.coach;
  double x = 0;  // carried from plan to plan
  for (int plan = 0; plan <= 10; ++plan) {
    if (!keepPlayerDefense) {
      NormalCoverage(coach, plan);
      coach.DefendUsage[plan].Fill(0);
    }
    for (int slider = 0; slider < kSliders; ++slider) (coach.*SliderField(slider))[plan] = kNeutral;
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
