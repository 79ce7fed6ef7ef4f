#include <gtest/gtest.h>

#include "base/random.h"
#include "harness/bench_coach.h"
#include "harness/laws.h"
#include "harness/memory_league.h"
#include "league/program.h"

namespace tipline {
namespace {

TEST(Laws, HoldAtTheEndOfEveryComputerGame) {
  for (const char* preset : kPresets) {
    OpenSmallLeague(preset);
    program.GameKind = "L";
    const auto teams = MemoryTeams();
    for (int n = 0; n < 200; ++n) {
      const Pairing pair = RoundOf(teams, n)[static_cast<std::size_t>(n % 3)];
      random.Seed(static_cast<std::uint64_t>(n));
      ASSERT_EQ(JudgeMatch(pair.visitor, pair.home), "") << preset << ", seed " << n;
    }
  }
}

TEST(Laws, HoldAtEveryStopWhateverTheCoachesDo) {
  for (const char* preset : kPresets) {
    OpenSmallLeague(preset);
    const auto teams = MemoryTeams();
    for (int n = 0; n < 12; ++n) {
      const Pairing pair = RoundOf(teams, n)[static_cast<std::size_t>(n % 3)];
      random.Seed(static_cast<std::uint64_t>(n));
      SetUpMatch(pair.visitor, pair.home);
      ASSERT_EQ(WatchGame(n % 2 == 0 ? LeaveItToTheComputer : CommandAnything), "")
          << preset << ", seed " << n;
    }
  }
}

}  // namespace
}  // namespace tipline
