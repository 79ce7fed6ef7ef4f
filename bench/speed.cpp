// The engine in bulk play, and beside it what the books of a game cost.
#include <algorithm>
#include <array>
#include <ctime>
#include <iomanip>
#include <ostream>
#include <stdexcept>
#include <vector>

#include "aftermath/box_text.h"
#include "aftermath/finish_game.h"
#include "bench.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "frontoffice/league_maker.h"
#include "harness/memory_league.h"
#include "harness/temporary_home.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/rules.h"

namespace tipline {
namespace {

constexpr int kRuns = 5;
enum Stage { kLoad, kSeat, kPrepare, kPlay, kPage, kBooks, kStages };
constexpr const char* kStageNames[kStages] = {"load from files",    "load from memory", "prepare", "play",
                                              "of it the box page", "books on disk"};

struct Costs {
  std::array<double, kStages> seconds{};
  std::array<std::uint64_t, kStages> allocations{};
  long plays = 0;
};

/// Time of this program alone, whatever else the machine does.
double ProcessorSeconds() {
  std::timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

template <class Work>
void Count(Costs& costs, Stage stage, Work work) {
  const auto heap = Allocations();
  const double start = ProcessorSeconds();
  work();
  costs.seconds[stage] += ProcessorSeconds() - start;
  costs.allocations[stage] += Allocations() - heap;
}

/// A league in files and in memory, as in a season.
void OpenFileLeague(std::uint64_t seed) {
  LeagueRequest request;
  request.Name = "Bench";
  request.Seed = seed;
  std::string message;
  if (!MakeLeague(request, message)) throw std::runtime_error(message);
  program.LeagueFolder = LeaguesFolder() / request.Name;
  if (!LoadRules()) throw std::runtime_error("the rules can't be read");
  LoadAllTeams();
  LoadLeaguePlayers();
}

void PlayOne(const Pairing& pair, bool files, Costs& costs) {
  const auto seat = [&](int team, int side) { files ? (void)LoadTeam(team, side) : SeatTeam(team, side); };
  Count(costs, files ? kLoad : kSeat, [&] {
    seat(pair.visitor, 1);
    seat(pair.home, 2);
  });
  for (int side = 1; side <= 2; ++side) game.side[side].CoachMode = "C";
  Count(costs, kPrepare, PrepareGame);
  program.GameKind = "E";  // a game whose end keeps no more than the page of its box
  Count(costs, kPlay, NewGame);
  costs.plays += game.PlayLogCount;
  program.GameKind = "L";
  if (files) {
    game.TeamTotalsAdded = game.InTheBooks = false;
    Count(costs, kBooks, FinishGame);
    if (!game.InTheBooks) throw std::runtime_error("a game was not kept");
  } else {
    Count(costs, kPage, [] { (void)WriteBoxText(); });
  }
}

Costs PlayGames(int games, bool files) {
  Costs costs;
  const auto teams = MemoryTeams();
  for (int played = 0, round = 0; played < games; ++round) {
    for (const Pairing& pair : RoundOf(teams, round)) {
      if (played++ == games) break;
      PlayOne(pair, files, costs);
    }
  }
  return costs;
}

void PrintStages(std::ostream& out, int games, const Costs& memory, const Costs& files) {
  out << "stage               microseconds   heap allocations a game\n";
  for (int stage = 0; stage < kStages; ++stage) {
    const Costs& costs = stage == kLoad || stage == kBooks ? files : memory;
    const auto s = static_cast<std::size_t>(stage);
    out << std::left << std::setw(20) << kStageNames[stage] << std::right << std::setw(12)
        << std::setprecision(1) << costs.seconds[s] / games * 1e6 << std::setw(26)
        << static_cast<double>(costs.allocations[s]) / games << '\n';
  }
  out << "plays a game " << memory.plays / games << ", nanoseconds a play " << std::setprecision(0)
      << memory.seconds[kPlay] / static_cast<double>(memory.plays) * 1e9 << '\n';
  const auto path =
      static_cast<long long>(memory.allocations[kPlay]) - static_cast<long long>(memory.allocations[kPage]);
  std::uint64_t whole = 0;
  for (const auto count : files.allocations) whole += count;
  out << "heap allocations from LoadTeam to the end, with files: " << whole / static_cast<unsigned>(games)
      << " a game\n"
      << "in the play path, without the page: " << path << (path == 0 ? ", ok\n" : ", should be 0\n")
      << "books below 2 milliseconds a game: "
      << (files.seconds[kBooks] / games < 0.002 ? "ok\n" : "too slow\n");
  out << "size of the game's tables: " << sizeof(Game) / 1024 << " KiB, of them cleared for each game "
      << sizeof(GameRun) / 1024 << " KiB\n";
}

}  // namespace

int Speed(std::ostream& out, const BenchOptions& options) {
  const int games = options.games > 0 ? options.games : 300;
  const TemporaryHome folder;
  if (!LoadEra() && !MakeEraFile()) throw std::runtime_error("no era file");
  OpenFileLeague(options.seed);
  program.GameKind = "L";
  program.Autoplaying = true;
  PlayGames(15, true);  // warm
  std::vector<double> rates;
  Costs costs;
  for (int run = 0; run < kRuns; ++run) {
    random.Seed(options.seed);
    costs = PlayGames(games, false);
    rates.push_back(games / (costs.seconds[kPrepare] + costs.seconds[kPlay]));
  }
  std::sort(rates.begin(), rates.end());
  out << std::fixed << std::setprecision(0) << "games a second: " << rates[kRuns / 2] << " (median of "
      << kRuns << " runs of " << games << "; " << rates.front() << " to " << rates.back()
      << "); at least 700, aim 1500: "
      << (rates[kRuns / 2] >= 1500  ? "ok"
          : rates[kRuns / 2] >= 700 ? "ok, below the aim"
                                    : "too slow")
      << "\n\n";
  PrintStages(out, games, costs, PlayGames(games, true));
  return 0;
}

int One(std::ostream& out, const BenchOptions& options) {
  OpenMemoryLeague("pro", 0, options.seed);
  program.GameKind = "L";
  random.Seed(options.seed);
  const auto pairs = RoundOf(MemoryTeams(), 0);
  for (int n = 0; n < std::max(1, options.games); ++n) {
    const Pairing& pair = pairs[static_cast<std::size_t>(n) % pairs.size()];
    PlayMatch(pair.visitor, pair.home);
  }
  out << game.side[1].Score << ' ' << game.side[2].Score << '\n';
  return 0;
}

}  // namespace tipline
