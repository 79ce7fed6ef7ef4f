#pragma once
// What the record of a player lacks that an older layout wrote, and what no record may say. Each repair
// behind a marker runs once in a record's life.
#include "league/player_record.h"
#include "league/team_record.h"

namespace tipline {

/// The repairs of a man at the load of `team`, on whose roster he stands, in their order. Draws nothing. A
/// row that holds nobody gets TeamNo 0.
void RepairPlayer(PlayerRecord& player, const TeamRecord& team);

/// `TargetMinutes` from his real minutes, `PositionAllowed` from his three positions.
void SetMinutesFromLine(PlayerRecord& player);

/// The totals of his real team and its opponents, with their marker; nothing when they are not known.
void CopyRealTeam(PlayerRecord& player, const TeamRecord& team);

}  // namespace tipline
