// How true the game is to its eras: leagues of made-up men through the decades.
#include <algorithm>
#include <cmath>
#include <iomanip>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "base/random.h"
#include "bench.h"
#include "followers.h"
#include "harness/memory_league.h"
#include "league/program.h"
#include "season_sums.h"

namespace tipline {
namespace {

struct LeagueYear {
  const char* preset;
  int year;
};
constexpr LeagueYear kYears[] = {{"pro", 1950}, {"pro", 1955},     {"pro", 1965},    {"pro", 1975},
                                 {"pro", 1985}, {"pro", 1995},     {"pro", 2005},    {"pro", 2015},
                                 {"pro", 2022}, {"college", 1995}, {"college", 2022}};
constexpr int kFirstAimedYear = 1975;  // of the pro

double Share(double part, double whole) { return whole > 0 ? part / whole : 0; }

/// A figure of a team's game and how near it has to come: a share of it, or a distance for percentages.
struct Figure {
  const char* name;
  double (*of)(const TeamRates&);
  double aim;
  bool percentage;
};
// clang-format off
constexpr Figure kFigures[] = {
    {"Points", [](const TeamRates& r) { return r.Points(); },       0.04,  false},
    {"FGA",    [](const TeamRates& r) { return r.FGA; },            0.04,  false},
    {"FG%",    [](const TeamRates& r) { return Share(r.FGM, r.FGA); }, 0.012, true},
    {"3PA",    [](const TeamRates& r) { return r.F3A; },            0.08,  false},
    {"3P%",    [](const TeamRates& r) { return Share(r.F3M, r.F3A); }, 0,  true},
    {"FTA",    [](const TeamRates& r) { return r.FTA; },            0.08,  false},
    {"FT%",    [](const TeamRates& r) { return Share(r.FTM, r.FTA); }, 0,  true},
    {"Reb",    [](const TeamRates& r) { return r.Reb; },            0.04,  false},
    {"Off",    [](const TeamRates& r) { return r.Off; },            0,     false},
    {"Ast",    [](const TeamRates& r) { return r.Ast; },            0.10,  false},
    {"St",     [](const TeamRates& r) { return r.St; },             0.10,  false},
    {"Bk",     [](const TeamRates& r) { return r.Bk; },             0.10,  false},
    {"TO",     [](const TeamRates& r) { return r.To; },             0.10,  false},
    {"PF",     [](const TeamRates& r) { return r.Pf; },             0.10,  false},
    {"Poss",   [](const TeamRates& r) { return r.Possessions(); },  0,     false},
};
// clang-format on

/// The pages of one run: tables, and the misses to be listed at the end.
class Pages {
 public:
  Pages(std::ostream& out, const LeagueYear& which) : out_(out), which_(which) {
    out_ << "\n==== " << Title() << " " << std::string(70 - Title().size(), '=') << "\n";
  }

  void Figures(const SeasonSums& sums, const TeamRates& era);
  void Results(const SeasonSums& sums);
  const std::vector<std::string>& Misses() const { return misses_; }

 private:
  std::string Title() const { return std::string(which_.preset) + " " + std::to_string(which_.year); }
  bool Aimed() const { return std::string(which_.preset) == "pro" && which_.year >= kFirstAimedYear; }
  void Row(const Figure& figure, const SeasonSums& sums, const TeamRates& era);
  void Range(const char* name, double value, double low, double high, int decimals);
  void Miss(const std::string& what) { misses_.push_back(Title() + ": " + what); }

  std::ostream& out_;
  LeagueYear which_;
  std::vector<std::string> misses_;
};

std::string Number(double value, int decimals) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(decimals) << value;
  return text.str();
}

std::string Signed(double value, int decimals) { return (value >= 0 ? "+" : "") + Number(value, decimals); }

/// How far a figure lies from another: in per cent of it, or the distance of two percentages.
std::string Away(const Figure& figure, double value, double from) {
  if (from == 0) return "-";
  return figure.percentage ? Signed(value - from, 3) : Signed((value / from - 1) * 100, 1) + "%";
}

void Pages::Row(const Figure& figure, const SeasonSums& sums, const TeamRates& era) {
  const int decimals = figure.percentage ? 3 : 1;
  const double a = figure.of(era), b = figure.of(sums.real), c = figure.of(sums.replay);
  const double off = b == 0 ? 0 : std::abs(figure.percentage ? c - b : c / b - 1);
  std::string verdict;
  if (figure.aim > 0 && Aimed() && b > 0) {
    const std::string aim = figure.percentage ? Number(figure.aim, 3) : Number(figure.aim * 100, 0) + "%";
    const bool ok = off <= figure.aim;
    const std::string by =
        figure.percentage ? Number(off - figure.aim, 3) : Number((off - figure.aim) * 100, 1) + "%";
    verdict = aim + (ok ? "  ok" : "  off by " + by);
    if (!ok) Miss(std::string(figure.name) + " " + Away(figure, c, b) + ", aim " + aim);
  }
  out_ << std::left << std::setw(8) << figure.name << std::right << std::setw(9)
       << (a > 0 ? Number(a, decimals) : "-") << std::setw(9) << (b > 0 ? Number(b, decimals) : "-")
       << std::setw(9) << Number(c, decimals) << std::setw(10) << Away(figure, c, a) << std::setw(10)
       << Away(figure, c, b) << "   " << verdict << '\n';
}

void Pages::Figures(const SeasonSums& sums, const TeamRates& era) {
  out_ << "             era  the men   replay    to era    to men   aim, of the men's figure\n";
  for (const Figure& figure : kFigures) Row(figure, sums, era);
  out_ << "counted possessions " << Number(sums.possessions, 1) << ", of the team and no man: rebounds "
       << Number(sums.teamRebounds, 1) << ", turnovers " << Number(sums.teamTurnovers, 1) << "\n\n";
}

void Pages::Range(const char* name, double value, double low, double high, int decimals) {
  out_ << std::left << std::setw(28) << name << std::right << std::setw(8) << Number(value, decimals);
  if (high > low && Aimed()) {
    const double off = value < low ? value - low : value > high ? value - high : 0;
    out_ << "   " << Number(low, 0) << " to " << Number(high, 0)
         << (off == 0 ? "  ok" : "  off by " + Signed(off, 1));
    if (off != 0) Miss(std::string(name) + " " + Number(value, decimals));
  }
  out_ << '\n';
}

void Pages::Results(const SeasonSums& sums) {
  const double n = sums.games;
  const double mean = sums.margin / n;
  out_ << sums.games << " games\n";
  Range("home wins, %", sums.homeWins / n * 100, 56, 64, 1);
  Range("home margin", mean, 0, 0, 1);
  Range("standard deviation of it", std::sqrt(std::max(0.0, sums.marginSquares / n - mean * mean)), 10, 15,
        1);
  Range("overtime games, %", sums.overtimes / n * 100, 4, 8, 1);
  out_ << '\n';
}

void OneYear(std::ostream& out, const LeagueYear& which, const BenchOptions& options,
             std::vector<std::string>& misses) {
  OpenMemoryLeague(which.preset, which.year, options.seed);
  program.GameKind = "L";
  program.ReplayLocked = options.season;
  random.Seed(options.seed + static_cast<std::uint64_t>(which.year));
  const EraRecord& era =
      (std::string(which.preset) == "college" ? league.EraCollege : league.EraPro)[which.year];
  const int teams = league.ActiveTeams;
  const int games = options.season      ? teams * std::max<int>(era.Games, 30) / 2
                    : options.games > 0 ? options.games
                                        : 450;
  const SeasonSums sums = PlaySeason(games);
  Pages pages(out, which);
  pages.Figures(sums, RatesOf(era));
  pages.Results(sums);
  PrintMinutes(out, sums);
  PrintPositions(out, sums);
  if (options.season) PrintFollowers(out, sums);
  misses.insert(misses.end(), pages.Misses().begin(), pages.Misses().end());
}

}  // namespace

int Realism(std::ostream& out, const BenchOptions& options) {
  std::vector<std::string> misses;
  if (options.year > 0) {
    OneYear(out, {"pro", options.year}, options, misses);
  } else {
    for (const LeagueYear& which : kYears) OneYear(out, which, options, misses);
  }
  out << "\n" << misses.size() << " figures miss their aim" << (misses.empty() ? "" : ":") << '\n';
  for (const std::string& miss : misses) out << "  " << miss << '\n';
  return 0;
}

}  // namespace tipline
