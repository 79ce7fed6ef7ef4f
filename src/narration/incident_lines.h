#pragma once
// What the announcer says when a play is interrupted.
#include <string>
#include <vector>

namespace tipline {

/// The lines for `game.incident`; none when nothing happened. Reads `game`, changes nothing, and draws its
/// words from the generator that is only for show, so that no result depends on whether somebody listens.
std::vector<std::string> IncidentLines();

}  // namespace tipline
