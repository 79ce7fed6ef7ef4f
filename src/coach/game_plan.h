#pragma once
// A coach's standing plan against all opponents and against ten he names.
#include "league/roster.h"

namespace tipline {

inline constexpr int kSliders = 17;
/// The field of a coach's slider 0 to 16, by plan: 0 least to 4 most, 2 neutral.
Table<u8, 0, 10> CoachRecord::*SliderField(int slider);

/// Everybody the plan faces is covered as usual and nobody doubled; the usage stays.
void NormalCoverage(CoachRecord& coach, int plan);

/// The plan of a coach against this opponent: the lowest number wins, 0 (the general plan) when he has none.
int PlanAgainst(const CoachRecord& coach, int opponent);

/// The lowest of the ten plans that is against nobody yet; 0 when all are taken.
int FirstFreePlan(const CoachRecord& coach);

/// Fills all eleven plans of a team from its men's ratings. The coverage of single opponents goes back to
/// normal unless `keepPlayerDefense`.
void SetDefaultPlanSliders(Roster& roster, bool keepPlayerDefense = false);

}  // namespace tipline
