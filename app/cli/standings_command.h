#pragma once
// The table of the season on the command line.
#include <string>

#include "cli/commands.h"

namespace tipline::cli {

struct StandingsArguments {
  std::string Date;  ///< "MM-DD", "" now
  int Month = 0;     ///< of one month's games alone, 0 none
  std::string By;    ///< "total" or "conference": the rule is set so first, "" as it is
};

/// The standings, today's or those of a date.
int ShowStandings(const StandingsArguments& a, const Common& common);
int ShowPower(const Common& common);

}  // namespace tipline::cli
