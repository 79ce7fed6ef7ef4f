#include <gtest/gtest.h>

#include <algorithm>

#include "engine/game_state.h"
#include "harness/game_book.h"
#include "harness/memory_league.h"

namespace tipline {
namespace {

std::vector<std::int64_t> SeededGame(int visitor, int home) {
  random.Seed(42);
  PlayMatch(visitor, home);
  return GameBook();
}

/// The same seed plays the same game, whatever was played before it.
TEST(SeededGame, RepeatsExactlyWithOtherGamesBetween) {
  for (const char* preset : kPresets) {
    OpenSmallLeague(preset);
    const auto teams = MemoryTeams();
    const auto first = SeededGame(teams[0], teams[1]);
    for (std::uint64_t seed = 1; seed <= 8; ++seed) {
      random.Seed(seed);
      const auto pairs = RoundOf(teams, static_cast<int>(seed));
      PlayMatch(pairs[seed % 3].visitor, pairs[seed % 3].home);
    }
    const auto again = SeededGame(teams[0], teams[1]);
    const auto [a, b] = std::mismatch(first.begin(), first.end(), again.begin(), again.end());
    EXPECT_TRUE(a == first.end() && b == again.end()) << preset << ": from number " << a - first.begin();
    random.Seed(43);
    PlayMatch(teams[0], teams[1]);
    EXPECT_NE(first, GameBook()) << "another seed is another game";
  }
}

}  // namespace
}  // namespace tipline
