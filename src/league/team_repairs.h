#pragma once
// What the record of a team lacks that an older layout wrote, and what no record may say. Each repair behind
// a marker runs once in a record's life.
#include "league/coach_record.h"
#include "league/team_record.h"

namespace tipline {

/// The repairs of an opened league, which need the team's record alone.
void RepairTeamAtOpening(TeamRecord& team);

/// What every slot of an opened league must have, whether it holds a team or not.
void RepairSlot(TeamRecord& team);

/// The repairs of a team that is loaded. The font of its screens, which stands in the coach's record, goes
/// with them.
void RepairTeam(TeamRecord& team, CoachRecord& coach);

/// The court files of the team's city, as far as the table of cities knows them.
void AssignHomeCourt(TeamRecord& team);
void AssignCourt(TeamRecord& team);

}  // namespace tipline
