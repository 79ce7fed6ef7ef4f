#pragma once
// Somebody who looks on while a game of two computers runs in one go: he is told of every play, and may hold
// the game there, or break it off by `game.ExitRequested`.
#include "base/types.h"
#include "engine/words.h"

namespace tipline {

/// A play as it was posted, with the clocks behind it.
struct PlayMoment {
  int Side = 0, Slot = 0;          ///< whose play it was; slot 0 the team's
  tipline::PlayResult PlayResult;  ///< "" when the play was interrupted, or nothing but a pass
  int Period = 1;                  ///< in which it was made
  i32 Clock = 0;                   ///< tenths left in that period
  bool PeriodEnded = false;
  bool Posted = true;  ///< false for a pass alone: `game.play` still holds the play before it
};

class PlayWatcher {
 public:
  virtual ~PlayWatcher() = default;
  /// The play stands in `game.play`, what interrupted it in `game.incident`; all counters include it.
  virtual void PlayShown(const PlayMoment& moment) = 0;
};

/// Tells `game.Watcher`, when there is one, of the play of `side`, made in `period`; of a pass that let the
/// clock run out when nothing was posted.
void ShowToWatcher(int side, int period, bool posted = true);

}  // namespace tipline
