#pragma once
// One row for a man who played for more than one team in a season.

namespace tipline {

inline constexpr int kCombined = 777;  ///< TeamNo of a combined row

/// Joins such men's rows at the end of `league.player`, which must hold all rows; combined rows of an earlier
/// scan go first. They have `TeamNo` 777, `ComboTag` "COMBO" and their teams in `league.ComboTeams`; they
/// never reach the disk.
void ComboPlayerScan();

}  // namespace tipline
