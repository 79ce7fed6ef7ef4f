#pragma once
// The laws that a game keeps at every stop and when it is over, whoever plays it under whatever rules.
#include <string>

namespace tipline {

/// The first law that `game` breaks as it stands, in a sentence; empty when it keeps them all.
std::string BrokenLaw();
/// The laws of a game that is over besides: who won, whole minutes, closed lines, possessions, play log.
std::string BrokenFinalLaw();

/// Plays the prepared game with human coaches on both benches, who go on from each stop by `goOn`, and looks
/// at every stop or, for speed, at each `every`-th. The first law broken and where, empty for none.
std::string WatchGame(void (*goOn)(), int every = 1);
/// Plays a game between computers in one go; the first law broken. The books are kept.
std::string JudgeMatch(int visitor, int home);

}  // namespace tipline
