// One number for the whole game.
#include <iomanip>
#include <ostream>

#include "base/random.h"
#include "bench.h"
#include "harness/game_book.h"
#include "harness/memory_league.h"
#include "league/program.h"

namespace tipline {

int Signature(std::ostream& out, const BenchOptions& options) {
  const int games = options.games > 0 ? options.games : 60;
  std::uint64_t all = 0;
  for (const char* preset : kPresets) {
    OpenMemoryLeague(preset, 0, options.seed);
    program.GameKind = "L";
    random.Seed(options.seed);
    const auto teams = MemoryTeams();
    std::uint64_t digest = 0;
    for (int played = 0, round = 0; played < games; ++round) {
      for (const Pairing& pair : RoundOf(teams, round)) {
        if (played++ == games) break;
        PlayMatch(pair.visitor, pair.home);
        digest = Digest(digest, GameBook());
        KeepBooks();
      }
    }
    out << std::left << std::setw(10) << preset << std::hex << digest << std::dec << '\n';
    all = Digest(all, {static_cast<std::int64_t>(digest)});
  }
  out << "signature " << std::hex << all << std::dec << "  (" << games << " games of each preset, seed "
      << options.seed << ")\n";
  return 0;
}

}  // namespace tipline
