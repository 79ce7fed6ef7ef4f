#pragma once
// What every rating starts from.
#include <algorithm>

#include "base/numbers.h"
#include "league/league.h"

namespace tipline {

inline bool IsCollegeTeam(const TeamRecord& team) { return team.TeamType == 'C'; }
inline bool IsWoman(const PlayerRecord& player) { return player.Sex == 'W'; }

/// The era row that a season is measured against. Seasons before the first or after the last row take that
/// one; a row that was never filled gives way to the next later season that was.
const EraRecord& SeasonRow(int year, bool college);

/// part / whole, 0 when there is no whole.
inline double Share(double part, double whole) { return whole > 0 ? part / whole : 0; }

/// How many times the norm; with no norm to measure against he counts as an average man.
inline double Against(double figure, double norm) { return norm > 0 ? figure / norm : 1; }

/// A working value of 0 to 100 as a rating of 0 to 10.
inline u8 Tenth(double working) { return static_cast<u8>(Clamp(Int(working / 10 + 0.5), 0, 255)); }

inline u8 Stored(double value) { return static_cast<u8>(Clamp(Round(value), 0, 255)); }

/// One step of a table of limits that are tried in order.
struct Step {
  double limit, value;
};

}  // namespace tipline
