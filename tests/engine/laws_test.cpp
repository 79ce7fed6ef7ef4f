#include <gtest/gtest.h>

#include "engine/engine.h"
#include "engine/game_state.h"
#include "league/program.h"
#include "support/bench_coach.h"
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

/// Drives a seeded game from stop to stop and looks at each.
void WatchGame(const Pairing& pair, std::uint64_t seed, void (*goOn)()) {
  random.Seed(seed);
  SetUpMatch(pair.visitor, pair.home);
  SeatHumans();
  NewGame();
  ClockWatch watch;
  for (int stops = 0; !game.GameOver; ++stops) {
    goOn();
    const std::string broken = watch.Broken() + BrokenLaw();
    ASSERT_EQ(broken, "") << "stop " << stops;
    ASSERT_LT(stops, 20000);
  }
  EXPECT_EQ(BrokenFinalLaw(), "");
}

TEST(Laws, HoldAtEveryStopWhateverTheCoachesDo) {
  for (const char* preset : kPresets) {
    OpenSmallLeague(preset);
    const auto teams = MemoryTeams();
    for (int n = 0; n < 12; ++n) {
      SCOPED_TRACE(std::string(preset) + ", seed " + std::to_string(n));
      const Pairing pair = RoundOf(teams, n)[static_cast<std::size_t>(n % 3)];
      WatchGame(pair, static_cast<std::uint64_t>(n), n % 2 == 0 ? LeaveItToTheComputer : CommandAnything);
      if (testing::Test::HasFatalFailure()) return;
    }
  }
}

}  // namespace
}  // namespace tipline
