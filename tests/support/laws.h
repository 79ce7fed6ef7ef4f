#pragma once
// The laws that a game keeps at every stop and when it is over, whoever plays it under whatever rules.
#include <string>

namespace tipline {

/// The first law that `game` breaks as it stands, in a sentence; empty when it keeps them all.
std::string BrokenLaw();
/// The laws of a game that is over besides: who won, whole minutes, closed lines, possessions, play log.
std::string BrokenFinalLaw();

/// Tenths played so far, by periods and clock.
int TimePlayed();

/// Holds the clocks of a stop against those of the stop before.
class ClockWatch {
 public:
  /// Empty, or what went wrong since the last call.
  std::string Broken();

 private:
  int period_ = 0, clock_ = 0, plays_ = 0, stuck_ = 0;
};

}  // namespace tipline
