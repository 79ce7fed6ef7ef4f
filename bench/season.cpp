// A season from its first game to its last, every game kept on disk: how fast, whether it slows down, how
// much memory.
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <iomanip>
#include <ostream>
#include <stdexcept>

#include "base/random.h"
#include "bench.h"
#include "frontoffice/league_maker.h"
#include "harness/temporary_home.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/rules.h"
#include "league/schedule.h"
#include "season/autoplay_screen.h"

namespace tipline {
namespace {

using Clock = std::chrono::steady_clock;
constexpr int kParts = 10;
constexpr double kAim = 300, kWish = 700;  // games a second

class NoScreens : public AutoplayScreens {
  void GameSetupScreen(HCGAMEsetup&) override {}
  void OpenViewer() override {}
  void OpenGame() override {}
};

double Seconds(Clock::time_point since) {
  return std::chrono::duration<double>(Clock::now() - since).count();
}

void MakeAndOpen(LeagueRequest request, std::uint64_t seed) {
  if (!UseShippedEras()) throw std::runtime_error("the era tables can't be read");
  request.Name = "Bench";
  request.Seed = seed;
  std::string message;
  if (!MakeLeague(request, message)) throw std::runtime_error(message);
  program.LeagueFolder = LeaguesFolder() / "Bench";
  if (!LoadRules() || !LoadAllTeams()) throw std::runtime_error("the league was not opened");
  LoadLeaguePlayers();
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

/// Teams' records, and how they spread: a league in which everybody wins half of his games says nothing.
void PrintSanity(std::ostream& out) {
  double best = 0, worst = 1;
  int games = 0;
  for (int t = 1; t <= kTeams; ++t) {
    const TeamRecord& team = league.team[t];
    if (team.TeamActive != 1 || team.Wins + team.Losses == 0) continue;
    const double share = static_cast<double>(team.Wins) / (team.Wins + team.Losses);
    best = std::max(best, share), worst = std::min(worst, share);
    games += team.Wins + team.Losses;
  }
  out << std::setprecision(3) << "team games " << games << ", best team " << best << ", worst " << worst
      << '\n';
}

int OneSeason(std::ostream& out, const char* title, const LeagueRequest& request,
              const BenchOptions& options) {
  const TemporaryHome home;
  MakeAndOpen(request, options.seed);
  NoScreens screens;
  HCAUTOPLAY screen(screens);
  screen.NoCompleteBox = true;
  screen.SeasonSeed = options.seed;
  if (!screen.Open()) throw std::runtime_error("the schedule was not opened");
  const int games = screen.ChooseFirst({}, options.games > 0 ? options.games : league.GameCount());
  std::vector<double> times;
  const auto start = Clock::now();
  const std::clock_t cpu = std::clock();
  while (screen.Upcoming()) {
    const auto before = Clock::now();
    screen.ContinueRun = true;
    screen.PlayCommandChosen();
    if (screen.GameLost || screen.StopRun) throw std::runtime_error("a game was not kept");
    times.push_back(Seconds(before));
  }
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
  PrintSanity(out);
  out << "peak memory " << usage.ru_maxrss / 1024 << " MiB\n";
  return rate < kAim ? 1 : 0;
}

}  // namespace

int Season(std::ostream& out, const BenchOptions& options) {
  LeagueRequest pro;
  int code = OneSeason(out, "pro", pro, options);
  if (!options.season) return code;
  LeagueRequest college;
  college.Preset = "college";
  college.Divisions = 36;
  college.Teams = 360;
  college.Games = 30;
  out << '\n';
  return std::max(code, OneSeason(out, "college of 360 teams", college, options));
}

}  // namespace tipline
