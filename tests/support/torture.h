#pragma once
// Leagues that no sane person would run: rules at their extremes, rosters of nothing, garbage in the files.
#include <cstdint>
#include <string>

namespace tipline {

/// Draws rules, eras, preferences, two teams with their men and coaches, and the league around them, and
/// seats both sides. The same seed draws the same.
void OpenTortureLeague(std::uint64_t seed);

/// What was drawn, for a message: rules and sizes of the rosters.
std::string TortureLabel();

}  // namespace tipline
