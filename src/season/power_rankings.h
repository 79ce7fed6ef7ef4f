#pragma once
// The power rankings: the scoring margin of a team, corrected for home court, opponents and blowouts, on a
// scale whose middle is 80.
#include <string>
#include <vector>

#include "base/tables.h"
#include "league/league.h"

namespace tipline {

/// What the results of SCORES say of a team.
struct PowerLine {
  int team = 0;
  double PowerRating = 0;
  int OppWins = 0, OppLosses = 0;  ///< of all opponents, one by one
  double ScheduleSum = 0;          ///< their schedule strengths by their games
};

/// A team's rating from 0 to 160 and what it rests on; 0 for a team that has not played or is not active.
/// Reads `league.team` and `league.Scores`.
PowerLine ComputePowerRating(int team);

/// All active teams, the best first. `league.team` takes the ratings, its files keep those that the games
/// have made.
std::vector<PowerLine> PowerRankings();
std::string PowerPage(const std::vector<PowerLine>& lines);
std::string PowerCsv(const std::vector<PowerLine>& lines);

/// Reads results and teams, ranks, and but for `program.SilentReport` writes the report "POWER RANKINGS".
/// False, told, when that failed.
bool DisplayPowerRankings();

}  // namespace tipline
