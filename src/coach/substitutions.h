#pragma once

namespace tipline {

/// Makes both line-ups legal and sensible at a stop: takes off who has to go, fills every empty position by a
/// weighted pick. Reads and writes `game`; leaves holes only where a roster has nobody left.
void LoadLineups();

}  // namespace tipline
