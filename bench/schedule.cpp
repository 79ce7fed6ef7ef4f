// Schedules: how long the computer takes to make them, how complete and how even they come out.
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iomanip>
#include <ostream>

#include "base/random.h"
#include "bench.h"
#include "frontoffice/schedule_generator.h"
#include "league/league.h"

namespace tipline {
namespace {

constexpr int kSeeds = 20;

struct Size {
  int divisions, each, games, divisional, most;
  double aim;  ///< seconds
};
constexpr Size kSizes[] = {{6, 5, 82, 4, 4, 0.5}, {6, 5, 82, 4, 1, 0.5},  {6, 8, 28, 2, 2, 0.5},
                           {2, 6, 40, 4, 4, 0.5}, {2, 5, 80, 10, 4, 0.5}, {36, 10, 30, 2, 2, 20}};

std::vector<int> Teams(const Size& size) {
  std::vector<int> teams;
  for (int division = 1; division <= size.divisions; ++division) {
    for (int place = 1; place <= size.each; ++place) teams.push_back(TeamsOfDivision(division)[place]);
  }
  std::sort(teams.begin(), teams.end());
  return teams;
}

/// The most that home and visitor games of one team differ.
int Unevenness(const ScheduleDraft& draft) {
  Table<int, 1, kTeams> more{};
  for (const auto& game : draft.games) {
    ++more[game.home];
    --more[game.visitor];
  }
  int worst = 0;
  for (const int by : more) worst = std::max(worst, std::abs(by));
  return worst;
}

void Measure(const Size& size, std::uint64_t seed, std::ostream& out) {
  const auto teams = Teams(size);
  int complete = 0, even = 0, most = 0, attempts = 0;
  double slowest = 0;
  for (int n = 0; n < kSeeds; ++n) {
    random.Seed(seed + static_cast<std::uint64_t>(n));
    const auto start = std::chrono::steady_clock::now();
    const auto draft = DrawSchedule({size.games, size.divisional, size.most}, teams, [&] { ++attempts; });
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    slowest = std::max(slowest, time.count());
    complete += draft.missing <= 0;
    even += Unevenness(draft) == 0;
    most = std::max(most, draft.missing);
  }
  out << std::setw(5) << teams.size() << std::setw(5) << size.divisions << std::setw(5) << size.games
      << std::setw(5) << size.divisional << std::setw(5) << size.most << std::setw(10) << complete
      << std::setw(6) << even << std::setw(9) << most << std::fixed << std::setprecision(1) << std::setw(10)
      << static_cast<double>(attempts) / kSeeds << std::setprecision(3) << std::setw(9) << slowest << "  "
      << std::setprecision(1) << size.aim << (slowest < size.aim ? " ok" : " too slow") << '\n';
}

}  // namespace

int Schedules(std::ostream& out, const BenchOptions& options) {
  out << "Of " << kSeeds << " schedules: complete, even at home and away, most missing games; attempts and\n"
      << "seconds of the slowest beside the aim.\n\n"
      << "teams  div    G    D    M  complete  even  missing  attempts  slowest  aim\n";
  for (const Size& size : kSizes) Measure(size, options.seed, out);
  return 0;
}

}  // namespace tipline
