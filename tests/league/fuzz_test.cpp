#include <gtest/gtest.h>

#include <cstdlib>

#include "harness/damaged_league.h"
#include "harness/temporary_home.h"
#include "league/rules.h"

namespace tipline {
namespace {

/// TIPLINE_FUZZ=N damages more leagues, TIPLINE_FUZZ_SEED=S begins elsewhere.
int Setting(const char* name, int usual) {
  const char* given = std::getenv(name);
  return given && std::atoi(given) > 0 ? std::atoi(given) : usual;
}

TEST(Fuzz, DamagedLeaguesAreOpenedPlayedAndSaved) {
  const TemporaryHome home;
  UseShippedEras();
  const LeagueImage sound = MakeSmallImage();
  const int leagues = Setting("TIPLINE_FUZZ", 800), first = Setting("TIPLINE_FUZZ_SEED", 1);
  int refused = 0, played = 0;
  for (int seed = first; seed < first + leagues; ++seed) {
    const DamagedRun run = RunDamagedLeague(sound, static_cast<std::uint64_t>(seed));
    ASSERT_EQ(run.fault, "") << "seed " << seed;
    refused += run.refused;
    played += run.played;
  }
  EXPECT_GT(played, leagues / 2);
  EXPECT_GT(leagues, refused);
  RecordProperty("refused", refused);
  RecordProperty("played", played);
}

}  // namespace
}  // namespace tipline
