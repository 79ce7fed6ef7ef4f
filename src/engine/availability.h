#pragma once
// Who may play in the game that is being loaded.
#include "league/player_record.h"

namespace tipline {

/// Works out `PlayerOut`, `PlayerUnavailable` and `Suspended` of a side whose records are loaded. In a league
/// game that holds the data (`program.ReplayLocked`) that follows injuries, suspensions and dates, against
/// the date of the game, with the days off that a coach gave (`DayOff`): injuries that are over are cleared,
/// and with pre-game injuries the day's are drawn. Outside one only inactive men are out.
void SetAvailability(int side);

/// In a league game a man's day-to-day injury may be over a few days early, or keep him out a few days more.
void DrawLightInjury(PlayerRecord& player);

}  // namespace tipline
