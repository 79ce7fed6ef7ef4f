#pragma once
// What the record of a coach lacks that an older layout wrote.
#include "league/coach_record.h"
#include "league/team_record.h"

namespace tipline {

/// The repairs of a coach's record at the load of his team, and those of the team's logo, which come with
/// them. The plans themselves are made elsewhere.
void RepairCoach(CoachRecord& coach, TeamRecord& team);

/// The logo of the team's city: the file that the table of cities knows, else <City>.jpg.
void AssignLogo(TeamRecord& team);

}  // namespace tipline
