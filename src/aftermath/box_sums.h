#pragma once
// What the box sums up from the men of a side.
#include <string>
#include <string_view>

#include "league/stat_line.h"

namespace tipline {

/// Counters of all men of the side, its minutes, and `Dq` as the men who have fouled out; `G` is 1.
StatLine TotalsOf(int side);

struct BoxPoints {
  int Bench = 0, Paint = 0, SecondChance = 0;
};
/// Points of those who did not start; points in the paint and off offensive rebounds by the kinds of shots.
BoxPoints PointsBy(int side);

/// The man has started this game.
bool Started(int side, int slot);

/// "12-7"; a league game that is over counts, whether or not the team's record has it already.
std::string RecordText(int side);

/// The men of a list "Ray, Oakes, " as it is printed: "Ray, Oakes". Valid while `names` lives.
std::string_view ListedNames(std::string_view names);

}  // namespace tipline
