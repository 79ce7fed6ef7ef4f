// The laws of the game over many games.
#include "harness/laws.h"

#include <ostream>

#include "base/random.h"
#include "bench.h"
#include "harness/bench_coach.h"
#include "harness/memory_league.h"
#include "league/program.h"

namespace tipline {
namespace {

constexpr int kTold = 20;  // games that break a law, in full

std::string WatchMatch(const Pairing& pair) {
  SetUpMatch(pair.visitor, pair.home);
  return WatchGame(LeaveItToTheComputer);
}

}  // namespace

int Laws(std::ostream& out, const BenchOptions& options) {
  const int games = options.games > 0 ? options.games : 2000;
  int failures = 0;
  for (const char* preset : kPresets) {
    OpenMemoryLeague(preset, 0, options.seed);
    program.GameKind = "L";
    const auto teams = MemoryTeams();
    const int each = games / 4;
    for (int n = 0; n < each; ++n) {
      const auto pairs = RoundOf(teams, n);
      const Pairing& pair = pairs[static_cast<std::size_t>(n) % pairs.size()];
      const auto seed = options.seed * 100000 + static_cast<std::uint64_t>(n);
      random.Seed(seed);
      const std::string broken = n % 4 == 0 ? WatchMatch(pair) : JudgeMatch(pair.visitor, pair.home);
      if (broken.empty()) continue;
      if (++failures > kTold) continue;
      out << preset << ", seed " << seed << ", " << pair.visitor << " at " << pair.home << ": " << broken
          << '\n';
    }
    out << preset << ": " << each << " games, " << each / 4 << " of them stop by stop\n";
  }
  out << (failures == 0 ? "all laws kept\n" : std::to_string(failures) + " games broke a law\n");
  return failures == 0 ? 0 : 1;
}

}  // namespace tipline
