// The computer's rotation grids: holes, time, how near they come to what men should play, and what they play.
#include <chrono>
#include <cmath>
#include <iomanip>
#include <ostream>

#include "base/random.h"
#include "bench.h"
#include "coach/rotation_grid.h"
#include "engine/game_state.h"
#include "harness/memory_league.h"

namespace tipline {
namespace {

int GridMinutes(const PlayerRecord& man) {
  int minutes = 0;
  for (int period = 1; period <= league.rules.PeriodList; ++period) {
    for (int minute = 1; minute <= league.rules.MinuteList; ++minute) {
      minutes += man.RotationGrid[period][minute] != 0 ? 1 : 0;
    }
  }
  return minutes;
}

struct Distance {
  double sum = 0;
  int men = 0, near = 0;

  void Add(double difference) {
    sum += std::abs(difference);
    near += std::abs(difference) <= 3 ? 1 : 0;
    ++men;
  }
  void Print(std::ostream& out, const char* what) const {
    out << "  " << what << ": " << sum / men << " minutes on average, within 3 for " << 100.0 * near / men
        << " % of " << men << " men\n";
  }
};

/// Grids for all teams of the league.
void MakeGrids(std::ostream& out) {
  Distance all, used;
  int holes = 0, worst = 0;
  double seconds = 0;
  const auto teams = MemoryTeams();
  for (const int teamNo : teams) {
    Roster roster = RosterOf(teamNo);
    const auto start = std::chrono::steady_clock::now();
    SetComputerRotationGrid(roster);
    seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    int open = league.rules.PeriodList * league.rules.MinuteList * 5;
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!OnTeam(roster, slot)) continue;
      const int minutes = GridMinutes(roster.player[slot]);
      open -= minutes;
      all.Add(minutes - roster.player[slot].TargetMinutes);
      if (minutes > 0) used.Add(minutes - roster.player[slot].TargetMinutes);
    }
    holes += open;
    worst = std::max(worst, open);
    KeepRoster(roster);
  }
  const double count = static_cast<double>(teams.size());
  out << "  " << holes / count << " holes a team, at most " << worst << "; " << 1000 * seconds / count
      << " ms a team\n";
  all.Print(out, "grid to target, all men");
  used.Print(out, "grid to target, men in the grid");
}

/// What men play beside their grid, in games that end in regulation.
Distance PlayByGrid(int games, std::uint64_t seed) {
  Distance played;
  const auto teams = MemoryTeams();
  for (int n = 0; n < games; ++n) {
    const auto pairs = RoundOf(teams, n);
    const Pairing& pair = pairs[static_cast<std::size_t>(n) % pairs.size()];
    random.Seed(seed * 100000 + static_cast<std::uint64_t>(n));
    PlayMatch(pair.visitor, pair.home);
    if (game.Period > league.rules.PeriodList) continue;
    for (int side = 1; side <= 2; ++side) {
      for (int slot = 1; slot <= kRosterSlots; ++slot) {
        const int grid = OnTeam(side, slot) ? GridMinutes(PlayerAt(side, slot)) : 0;
        const int time = ManAt(side, slot).PlayerGameTime;
        if (grid > 0 || time > 0) played.Add(time / 600.0 - grid);
      }
    }
  }
  return played;
}

}  // namespace

int Rotation(std::ostream& out, const BenchOptions& options) {
  out << std::fixed << std::setprecision(2);
  for (const char* preset : kPresets) {
    OpenMemoryLeague(preset, 0, options.seed);
    random.Seed(options.seed);
    out << preset << '\n';
    MakeGrids(out);
    PlayByGrid(options.games > 0 ? options.games : 200, options.seed).Print(out, "played to grid");
  }
  return 0;
}

}  // namespace tipline
