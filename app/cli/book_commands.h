#pragma once
// Stored games, by their number in the scores.
#include <string>

#include "cli/commands.h"

namespace tipline::cli {

struct BoxRequest {
  std::string Game;           ///< its number, or "last"
  bool Mail = false;          ///< the box goes to the members who get game reports
  bool Statistician = false;  ///< the game file goes to the league's statisticians
};
/// The box of a game as it was kept; mailed instead, where that is asked for.
int ShowBox(const BoxRequest& request, const Common& common);
/// Its plays, and every basket; as comma-separated text the plays alone.
int ShowLog(const std::string& game, const Common& common);

}  // namespace tipline::cli
