#include <gtest/gtest.h>

#include "engine/engine.h"
#include "engine/game_state.h"
#include "league/program.h"
#include "support/laws.h"
#include "support/memory_league.h"

namespace tipline {
namespace {

constexpr const char* kPresets[] = {"pro", "college", "women", "historic"};

TEST(Laws, HoldAtTheEndOfEveryComputerGame) {
  for (const char* preset : kPresets) {
    OpenSmallLeague(preset);
    program.GameKind = "L";
    const auto teams = MemoryTeams();
    for (int n = 0; n < 200; ++n) {
      const Pairing pair = RoundOf(teams, n)[static_cast<std::size_t>(n % 3)];
      random.Seed(static_cast<std::uint64_t>(n));
      PlayMatch(pair.visitor, pair.home);
      const std::string law = BrokenLaw() + BrokenFinalLaw();
      ASSERT_EQ(law, "") << preset << ", seed " << n << ", " << pair.visitor << " at " << pair.home;
      KeepBooks();
    }
  }
}

}  // namespace
}  // namespace tipline
