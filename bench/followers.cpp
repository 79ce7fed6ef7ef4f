#include "followers.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <ostream>

#include "engine/game_state.h"
#include "harness/memory_league.h"
#include "league/player_values.h"

namespace tipline {
namespace {

constexpr int kRanks = 12;
constexpr int kRegular = 20;  // minutes a game

const ManSums& SumsOf(const SeasonSums& sums, const PlayerRecord& man) {
  return sums.man[static_cast<std::size_t>(man.RecNo)];
}
double ReplayMinutes(const SeasonSums& sums, const PlayerRecord& man) {
  const ManSums& m = SumsOf(sums, man);
  return m.games > 0 ? m.minutes / m.games : 0;
}

/// The men of a team, most used first.
std::vector<const PlayerRecord*> ByUse(const SeasonSums& sums, int team) {
  std::vector<const PlayerRecord*> men;
  for (const int row : league.team[team].Roster) {
    if (row > 0) men.push_back(&league.player[static_cast<std::size_t>(row)]);
  }
  std::stable_sort(men.begin(), men.end(), [&](const PlayerRecord* a, const PlayerRecord* b) {
    return SumsOf(sums, *a).minutes > SumsOf(sums, *b).minutes;
  });
  return men;
}

/// One figure of a man, per game or per minute, in both of his seasons.
struct Measure {
  const char* name;
  int (*of)(const StatLine&);
  bool perMinute;
  double aim;  ///< correlation
};
// clang-format off
constexpr Measure kMeasures[] = {
    {"points a game",     PointsOf,                                       false, 0.95},
    {"rebounds a game",   [](const StatLine& s) -> int { return s.Reb; }, false, 0.95},
    {"assists a game",    [](const StatLine& s) -> int { return s.Ast; }, false, 0.95},
    {"steals a game",     [](const StatLine& s) -> int { return s.St; },  false, 0},
    {"blocks a game",     [](const StatLine& s) -> int { return s.Bk; },  false, 0},
    {"turnovers a game",  [](const StatLine& s) -> int { return s.To; },  false, 0},
    {"fouls a game",      [](const StatLine& s) -> int { return s.Pf; },  false, 0},
    {"attempts, 36 min",  [](const StatLine& s) -> int { return s.FGA; }, true,  0},
    {"threes, 36 min",    [](const StatLine& s) -> int { return s.F3A; }, true,  0},
    {"free throws, 36 m", [](const StatLine& s) -> int { return s.FTA; }, true,  0},
    {"points, 36 min",    PointsOf,                                       true,  0},
    {"rebounds, 36 min",  [](const StatLine& s) -> int { return s.Reb; }, true,  0},
};
// clang-format on

/// Pairs of a real and a replay figure.
struct Scatter {
  double n = 0, x = 0, y = 0, xx = 0, yy = 0, xy = 0;

  void Add(double real, double replay) {
    ++n, x += real, y += replay;
    xx += real * real, yy += replay * replay, xy += real * replay;
  }
  double Correlation() const {
    const double spread = (n * xx - x * x) * (n * yy - y * y);
    return spread > 0 ? (n * xy - x * y) / std::sqrt(spread) : 0;
  }
  double Slope() const { return n * xx - x * x > 0 ? (n * xy - x * y) / (n * xx - x * x) : 0; }
};

void PrintScatter(std::ostream& out, const char* name, const Scatter& s, double aim) {
  out << std::left << std::setw(20) << name << std::right << std::fixed << std::setw(7)
      << std::setprecision(0) << s.n << std::setprecision(2) << std::setw(9) << s.x / std::max(1.0, s.n)
      << std::setw(9) << s.y / std::max(1.0, s.n) << std::setw(10) << std::setprecision(3) << s.Correlation()
      << std::setw(9) << s.Slope();
  if (aim > 0)
    out << "   above " << std::setprecision(2) << aim << (s.Correlation() >= aim ? "  ok" : "  below");
  out << '\n';
}

template <class Wanted>
void PrintGroup(std::ostream& out, const char* title, const SeasonSums& sums, Wanted wanted) {
  out << std::left << std::setw(20) << title << std::right
      << "    men     real   replay  correl.   slope   aim\n";
  const auto each = [&](const auto& add) {
    for (const PlayerRecord& man : league.player) {
      if (man.TeamNo > 0 && man.TeamNo <= kTeams && man.Stats[1].Min > 0 && wanted(man)) add(man);
    }
  };
  Scatter minutes;
  each([&](const PlayerRecord& man) { minutes.Add(MinutesPerGame(man), ReplayMinutes(sums, man)); });
  PrintScatter(out, "minutes a game", minutes, 0.9);
  for (const Measure& measure : kMeasures) {
    Scatter scatter;
    each([&](const PlayerRecord& man) {
      const ManSums& m = SumsOf(sums, man);
      const double real = measure.of(man.Stats[1]), replay = measure.of(man.Stats[2]);
      if (measure.perMinute) {
        scatter.Add(real / man.Stats[1].Min * 36, replay / m.minutes * 36);
      } else {
        scatter.Add(real / man.Stats[1].G, replay / m.games);
      }
    });
    PrintScatter(out, measure.name, scatter, measure.aim);
  }
  out << '\n';
}

}  // namespace

void PrintMinutes(std::ostream& out, const SeasonSums& sums) {
  double real[kRanks] = {}, target[kRanks] = {}, replay[kRanks] = {}, games[kRanks] = {};
  int count[kRanks] = {};
  double away = 0, signedAway = 0;
  int men = 0, regulars = 0, near = 0;
  const auto teams = MemoryTeams();
  const double teamGames = 2.0 * sums.games / static_cast<double>(teams.size());
  for (const int team : teams) {
    const auto order = ByUse(sums, team);
    for (std::size_t k = 0; k < order.size(); ++k) {
      const PlayerRecord& man = *order[k];
      const double minutes = ReplayMinutes(sums, man);
      if (man.TargetMinutes >= 8 && man.TargetMinutes <= 40) {
        ++men;
        away += std::abs(minutes - man.TargetMinutes);
        signedAway += minutes - man.TargetMinutes;
      }
      if (man.TargetMinutes >= kRegular) {
        ++regulars;
        near += std::abs(minutes - man.TargetMinutes) <= 3 ? 1 : 0;
      }
      if (k >= kRanks) continue;
      ++count[k];
      real[k] += MinutesPerGame(man), target[k] += man.TargetMinutes, replay[k] += minutes;
      games[k] += SumsOf(sums, man).games / teamGames * 100;
    }
  }
  const auto row = [&](const char* name, const double* values) {
    out << std::left << std::setw(22) << name << std::right << std::fixed << std::setprecision(1);
    for (int k = 0; k < kRanks; ++k) out << std::setw(6) << (count[k] > 0 ? values[k] / count[k] : 0);
    out << '\n';
  };
  out << std::left << std::setw(22) << "k-th most used man" << std::right;
  for (int k = 1; k <= kRanks; ++k) out << std::setw(6) << k;
  out << '\n';
  row("real minutes a game", real);
  row("target", target);
  row("replay", replay);
  row("games played, %", games);
  out << "from the target (8 to 40): " << std::setprecision(2) << away / std::max(1, men)
      << " minutes on average, " << (signedAway >= 0 ? "+" : "") << signedAway / std::max(1, men)
      << " with its sign; aim 2: " << (away <= 2.0 * men ? "ok" : "off") << "\n";
  const double share = near * 100.0 / std::max(1, regulars);
  out << "regulars (target " << kRegular << " and more) within 3 minutes of it: " << std::setprecision(0)
      << share << " % of " << regulars << "; aim 90: " << (share >= 90 ? "ok" : "off") << '\n';
  out << "fouled out, per 100 games of a team: " << std::setprecision(1) << sums.foulOuts * 50.0 / sums.games
      << "; by the men's own rates, with no coach to save them: " << sums.freeFoulOuts * 50.0 / sums.games
      << "\n\n";
}

void PrintPositions(std::ostream& out, const SeasonSums& sums) {
  double real[6] = {}, replay = 0, all = 0;
  for (const PlayerRecord& man : league.player) {
    const StatLine& s = man.Stats[1];
    const int position = man.PrimaryPosition;
    if (position < 1 || position > kPositions || s.Min == 0) continue;
    const double points = 1.0 * PointsOf(s) / s.Min * SumsOf(sums, man).minutes;
    real[position] += points;
    all += points;
  }
  for (const double points : sums.positionPoints) replay += points;
  out << std::left << std::setw(22) << "points by position, %" << std::right;
  for (int p = 1; p <= kPositions; ++p) out << std::setw(6) << p;
  out << std::left << "\nmen of that position  " << std::right << std::setprecision(1);
  for (int p = 1; p <= kPositions; ++p) out << std::setw(6) << real[p] / std::max(1.0, all) * 100;
  out << "\nreplay, on the floor  ";
  for (int p = 1; p <= kPositions; ++p)
    out << std::setw(6) << sums.positionPoints[p] / std::max(1.0, replay) * 100;
  out << "\n\n";
}

void PrintFollowers(std::ostream& out, const SeasonSums& sums) {
  PrintGroup(out, "regulars, 20+ min", sums, [&](const PlayerRecord& man) {
    return MinutesPerGame(man) >= 20 && ReplayMinutes(sums, man) >= 20 && SumsOf(sums, man).games >= 20;
  });
  PrintGroup(out, "500+ replay minutes", sums,
             [&](const PlayerRecord& man) { return SumsOf(sums, man).minutes >= 500; });
}

}  // namespace tipline
