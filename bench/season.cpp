// A season from its first game to its last, every game kept on disk: how fast, whether it slows down, how
// much memory.
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <iomanip>
#include <ostream>
#include <stdexcept>

#include "bench.h"
#include "harness/disk_league.h"
#include "harness/temporary_home.h"

namespace tipline {
namespace {

using Clock = std::chrono::steady_clock;
constexpr int kParts = 10;
constexpr double kAim = 300, kWish = 700;  // games a second

double Seconds(Clock::time_point since) {
  return std::chrono::duration<double>(Clock::now() - since).count();
}

void PrintParts(std::ostream& out, const std::vector<double>& times) {
  out << "milliseconds a game, by tenths of the run:";
  const std::size_t each = std::max<std::size_t>(times.size() / kParts, 1);
  for (std::size_t from = 0; from + each <= times.size(); from += each) {
    double sum = 0;
    for (std::size_t k = from; k < from + each; ++k) sum += times[k];
    out << ' ' << std::fixed << std::setprecision(2) << sum / static_cast<double>(each) * 1000;
  }
  out << '\n';
}

int OneSeason(std::ostream& out, const char* title, const LeagueRequest& request,
              const BenchOptions& options) {
  const TemporaryHome home;
  MakeDiskLeague(request);
  std::vector<double> times;
  const auto start = Clock::now();
  auto before = start;
  const std::clock_t cpu = std::clock();
  const int games = PlayScheduledGames(options.games, options.seed, [&](int) {
    times.push_back(Seconds(before));
    before = Clock::now();
  });
  if (games == 0) throw std::runtime_error("no game was kept");
  const double rate = static_cast<double>(times.size()) / Seconds(start);
  const double busy = static_cast<double>(std::clock() - cpu) / CLOCKS_PER_SEC;
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  out << title << ": " << games << " games, " << std::fixed << std::setprecision(0) << rate
      << " a second; at least " << kAim << ", wished " << kWish << ": " << (rate < kAim ? "too slow" : "ok")
      << '\n';
  out << "processor time " << std::setprecision(2) << busy / static_cast<double>(times.size()) * 1000
      << " milliseconds a game\n";
  PrintParts(out, times);
  out << "peak memory " << usage.ru_maxrss / 1024 << " MiB\n";
  return rate < kAim ? 1 : 0;
}

}  // namespace

int Season(std::ostream& out, const BenchOptions& options) {
  LeagueRequest pro;
  pro.Seed = options.seed;
  int code = OneSeason(out, "pro", pro, options);
  if (!options.season) return code;
  LeagueRequest college;
  college.Seed = options.seed;
  college.Preset = "college";
  college.Divisions = 36;
  college.Teams = 360;
  college.Games = 30;
  out << '\n';
  return std::max(code, OneSeason(out, "college of 360 teams", college, options));
}

}  // namespace tipline
