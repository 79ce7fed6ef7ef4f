#pragma once
// Values worked out from a player's record alone.
#include "league/player_record.h"

namespace tipline {

/// Defence of a man at position 1 to 5, 0.0 to 10.0: outside and inside defence weighted by position, less
/// out of place.
double PositionDefense(const PlayerRecord& player, int position);

}  // namespace tipline
