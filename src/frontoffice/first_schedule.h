#pragma once
// The schedule that a new league comes with.
#include "frontoffice/schedule_generator.h"

namespace tipline {

struct FirstSchedule {
  std::vector<ScheduleRecord> rows;
  std::string message;  ///< what there is to say of it, in lines
};

/// Draws it for these teams with a seed of its own; the generator of the game is left as it was. Rivals of a
/// division are to meet a little more often than others; where the season can't be placed so, the nearest
/// number of meetings with which it can is taken, else the one with the fewest missing games. No rows, and
/// the reason as the message, when no schedule of this size can be asked for.
FirstSchedule MakeFirstSchedule(std::vector<int> teams, int games, int year, std::uint64_t seed);

}  // namespace tipline
