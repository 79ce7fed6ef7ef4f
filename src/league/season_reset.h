#pragma once
// Groups of counters that a new season, or a repair of a record, clears together.
#include "league/player_record.h"
#include "league/team_record.h"

namespace tipline {

void ClearSplits(TeamRecord& team);          ///< overtime, close games, half time and the like, 18 counters
void ClearShotTable(TeamRecord& team);       ///< attempts and makes by kind of shot
void ClearHighsAndLows(TeamRecord& team);    ///< bests and worsts of a game
void ClearStreakFields(PlayerRecord& man);   ///< what the announcer remembers of his last game
void ClearPositionGames(PlayerRecord& man);  ///< games, minutes and points by position
void ClearWinLoss(PlayerRecord& man);        ///< what his team did with him, all told and by position

}  // namespace tipline
