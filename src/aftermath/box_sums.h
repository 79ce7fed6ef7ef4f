#pragma once
// What the box sums up from the men of a side.
#include <algorithm>
#include <limits>
#include <string>
#include <string_view>

#include "base/numbers.h"
#include "league/stat_line.h"

namespace tipline {

/// Adds without leaving the counter's range, nor what is given as the most.
template <class Counter>
void AddHeld(Counter& counter, int value, int most = std::numeric_limits<Counter>::max()) {
  const int low = std::numeric_limits<Counter>::min();
  counter = static_cast<Counter>(Clamp(counter + value, low, std::max<int>(most, counter)));
}

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
