#pragma once
// What the men of a team carry of rotation and usage, copied into the coach record and back: an exported plan
// takes it along.
#include "league/roster.h"

namespace tipline {

/// Men to coach: status, shot selection, lineups, positions, minutes, days off, the depth chart by rank and
/// the rotation grid the other way round. Every save of a roster does it.
void CopyRotationToCoach(const Roster& roster, CoachRecord& coach);
inline void CopyRotationToCoach(Roster& roster) { CopyRotationToCoach(roster, roster.coach); }

/// Coach to the team's men, after an import. Positions, ranks and slots that cannot be are left out.
void CopyRotationFromCoach(Roster& roster);

}  // namespace tipline
