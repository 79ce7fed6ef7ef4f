#pragma once
// What happened, in a plain sentence.
#include <string>

#include "aftermath/play_log.h"
#include "engine/game_state.h"

namespace tipline::cli {

/// A row of the play log: clock, score, team, and who did what with whose help.
std::string EventLine(const PlayLogRow& row);

/// The row is the one that `game.incident` left: what interrupted the last play.
bool IsOfIncident(const PlayLogRow& row);
/// Its row in the announcer's words. Draws them from what is only for show.
std::string IncidentLine(const PlayLogRow& row);

}  // namespace tipline::cli
