#pragma once
// The leaders of the season, ten in each of eight averages (HcLeaders), and the forty best single games in
// thirteen categories (HcTop40).

namespace tipline {

/// Brings the boards up to date with both teams of the game just ended. A playoff game is no matter for the
/// leaders. False, told, when the file can't be read or written.
bool UpdateLeaders();
bool UpdateTop40();

}  // namespace tipline
