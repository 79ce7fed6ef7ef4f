// Random rules and random rosters: whatever the files hold, a game runs to its end.
// By hand: TIPLINE_TORTURE=5000 plays so many cases, TIPLINE_TORTURE_FIRST=n begins at seed n.
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "engine/engine.h"
#include "engine/game_state.h"
#include "harness/bench_coach.h"
#include "harness/laws.h"
#include "harness/memory_league.h"
#include "league/program.h"
#include "support/torture.h"

namespace tipline {
namespace {

int FromEnvironment(const char* name, int otherwise) {
  const char* text = std::getenv(name);
  return text ? std::atoi(text) : otherwise;
}

char hanging[64];

/// A game that never ends is told with its seed.
void Hangs(int) {
  if (write(STDERR_FILENO, hanging, sizeof hanging) < 0) _exit(2);
  std::abort();
}

class Watchdog {
 public:
  Watchdog(std::uint64_t seed, unsigned seconds) {
    std::snprintf(hanging, sizeof hanging, "seed %llu never ends\n", static_cast<unsigned long long>(seed));
    std::signal(SIGALRM, Hangs);
    alarm(seconds);
  }
  ~Watchdog() { alarm(0); }
};

/// One seed after another, each under the watchdog; by hand the seed in play is shown.
void PlaySeeds(int usual, void (*play)()) {
  const int first = FromEnvironment("TIPLINE_TORTURE_FIRST", 1);
  const int cases = FromEnvironment("TIPLINE_TORTURE", 0);
  for (int seed = first; seed < first + (cases > 0 ? cases : usual); ++seed) {
    if (cases > 0) std::fprintf(stderr, "\rseed %d ", seed);
    const Watchdog watchdog(static_cast<std::uint64_t>(seed), 60);
    OpenTortureLeague(static_cast<std::uint64_t>(seed));
    SCOPED_TRACE("seed " + std::to_string(seed) + ": " + TortureLabel());
    play();
  }
}

TEST(Torture, ComputersReachTheEndUnderAnyRulesWithAnyMen) {
  PlaySeeds(60, [] {
    program.Autoplaying = true;
    for (int side = 1; side <= 2; ++side) game.side[side].CoachMode = "C";
    PrepareGame();
    NewGame();
    EXPECT_EQ(BrokenLaw() + BrokenFinalLaw(), "");
  });
}

TEST(Torture, HumansReachTheEndUnderAnyRulesWithAnyMen) {
  PlaySeeds(40, [] {
    PrepareGame();
    EXPECT_EQ(WatchGame(CommandAnything, 4), "");
  });
}

}  // namespace
}  // namespace tipline
