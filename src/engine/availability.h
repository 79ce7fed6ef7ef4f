#pragma once
// Who may play in the game that is being loaded.
#include "league/player_record.h"
#include "league/program.h"

namespace tipline {

/// A game that counts, with the league's data held for it: dates, injuries and suspensions are looked at.
inline bool InLeagueGame() { return program.ReplayLocked && program.GameKind == "L"; }

/// Works out `PlayerOut`, `PlayerUnavailable` and `Suspended` of a side whose records are loaded. In a league
/// game that holds the data (`program.ReplayLocked`) that follows injuries, suspensions and dates, against
/// the date of the game: injuries that are over are cleared, and with pre-game injuries the day's are drawn.
/// Outside one only inactive men are out. A man marked unavailable beforehand, by the daily list, stays so.
void SetAvailability(int side);

/// In a league game a man's day-to-day injury may be over a few days early, or keep him out a few days more.
void DrawLightInjury(PlayerRecord& player);

}  // namespace tipline
