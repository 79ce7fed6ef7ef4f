#pragma once
// Everything that a game leaves, as one row of numbers: two games are the same when their rows are.
#include <cstdint>
#include <vector>

namespace tipline {

/// Scores, clocks, all lines and tables of men, sides and teams, both logs; of `game` as it stands.
std::vector<std::int64_t> GameBook();
/// A row added to a running digest, which begins with 0.
std::uint64_t Digest(std::uint64_t digest, const std::vector<std::int64_t>& row);

}  // namespace tipline
