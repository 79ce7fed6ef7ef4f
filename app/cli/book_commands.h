#pragma once
// Stored games, by their number in the scores.
#include <string>

#include "cli/commands.h"

namespace tipline::cli {

/// The box of a game as it was kept. `game`: its number, or "last".
int ShowBox(const std::string& game, const Common& common);
/// Its plays, and every basket; as comma-separated text the plays alone.
int ShowLog(const std::string& game, const Common& common);

}  // namespace tipline::cli
