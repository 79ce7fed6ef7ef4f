#pragma once
// Who may play in the game that is being loaded.

namespace tipline {

/// Works out `PlayerOut`, `PlayerUnavailable` and `Suspended` of a side whose records are loaded. In a league
/// game that holds the data (`program.ReplayLocked`) that follows injuries, suspensions and dates, against
/// the date of the game: injuries that are over are cleared, the light ones may end or drag on, and with
/// pre-game injuries the day's are drawn. Outside one only inactive men are out. The daily list is not read
/// here.
void SetAvailability(int side);

}  // namespace tipline
