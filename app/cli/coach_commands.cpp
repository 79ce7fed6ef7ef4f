// Depth charts and rotations, shown and made.
#include <algorithm>
#include <iostream>

#include "cli/columns.h"
#include "cli/commands.h"
#include "cli/team_work.h"
#include "cli/terminal.h"
#include "coach/depth_chart.h"
#include "coach/rotation_grid.h"
#include "coach/sub_screens.h"
#include "league/player_values.h"

namespace tipline::cli {
namespace {

// Depth -------------------------------------------------------------------------------------------------

constexpr std::string_view kPlaces[] = {"1st", "2nd", "3rd", "4th", "5th", "6th"};

std::vector<std::string> LabelsOfPositions(const char* first) {
  std::vector<std::string> headings{first};
  for (int position = 1; position <= 5; ++position) headings.push_back("<" + league.PositionLabel[position]);
  return headings;
}

/// The line of the first man whom `stands` finds at each position.
template <class Stands>
std::vector<std::string> LineOf(const Roster& roster, std::string_view label, Stands stands) {
  std::vector<std::string> line{std::string(label)};
  const std::vector<int> men = MenOf(roster);
  for (int position = 1; position <= 5; ++position) {
    const auto man =
        std::find_if(men.begin(), men.end(), [&](int slot) { return stands(roster.player[slot], position); });
    line.push_back(man == men.end() ? "-" : InitialName(roster.player[*man]));
  }
  return line;
}

void PrintDepth(const Roster& roster, const Common& common) {
  Columns table(LabelsOfPositions("<Lineup"));
  for (int rank = 6; rank >= 1; --rank) {
    table.Row(LineOf(roster, kPlaces[6 - rank],
                     [rank](const PlayerRecord& p, int position) { return p.DepthRank[position] == rank; }));
  }
  if (!common.Csv) table.Rule();
  for (int index = 1; index < static_cast<int>(kQuickLineups.size()); ++index) {
    table.Row(
        LineOf(roster, kQuickLineups[static_cast<std::size_t>(index)],
               [index](const PlayerRecord& p, int position) { return p.RotationOrder[index] == position; }));
  }
  table.Print(std::cout, common.Csv);
}

// Rotation ----------------------------------------------------------------------------------------------

constexpr int kOvertime = 5;  // row of the grid

int PeriodMinutes(int period) {
  return std::min<int>(period == kOvertime ? league.rules.OverTimeList : league.rules.MinuteList, 20);
}

/// A character for each minute: the position he stands at, or a dot.
std::string Picture(const PlayerRecord& p, int period) {
  std::string text;
  for (int minute = 1; minute <= PeriodMinutes(period); ++minute) {
    const int position = p.RotationGrid[period][minute];
    text += position >= 1 && position <= 5 ? static_cast<char>('0' + position) : '.';
  }
  return text;
}

int MinutesOf(std::string_view picture) {
  return static_cast<int>(picture.size()) - static_cast<int>(std::ranges::count(picture, '.'));
}

int RegulationMinutes(const PlayerRecord& p) {
  int sum = 0;
  for (int period = 1; period <= std::min<int>(league.rules.PeriodList, 4); ++period) {
    sum += MinutesOf(Picture(p, period));
  }
  return sum;
}

void PrintRotation(const Roster& roster, const Common& common) {
  std::vector<int> periods;
  for (int period = 1; period <= std::min<int>(league.rules.PeriodList, 4); ++period)
    periods.push_back(period);
  periods.push_back(kOvertime);
  std::vector<int> men = MenOf(roster);
  std::stable_sort(men.begin(), men.end(), [&](int a, int b) {
    return RegulationMinutes(roster.player[a]) > RegulationMinutes(roster.player[b]);
  });
  std::vector<std::string> headings{"<Player", "<Period", "<Minute by minute", "Min", "Game", "Target"};
  Columns table(headings);
  for (const int slot : men) {
    const PlayerRecord& p = roster.player[slot];
    const int regulation = RegulationMinutes(p);
    if (regulation + MinutesOf(Picture(p, kOvertime)) == 0) continue;
    for (const int period : periods) {
      const bool name = period == 1 || common.Csv;
      const std::string picture = Picture(p, period);
      table.Row({name ? InitialName(p) : "", period == kOvertime ? "OT" : Str(period), picture,
                 Str(MinutesOf(picture)), name ? Str(regulation) : "", name ? Str(p.TargetMinutes) : ""});
    }
    if (!common.Csv) table.Rule();
  }
  table.Print(std::cout, common.Csv);
}

int Holes(const Roster& roster) {
  int open = league.rules.PeriodList * league.rules.MinuteList * 5;
  for (const int slot : MenOf(roster)) open -= RegulationMinutes(roster.player[slot]);
  return open;
}

// All teams ---------------------------------------------------------------------------------------------

void SetDepth(Roster& roster) {
  SetDefaultDepthCharts(roster);
  SetDefaultSpecialLineups(roster);
}

/// Makes and saves something for every team of the league, without asking; stops at the first that can't be
/// saved.
template <class Make>
int MakeForAll(const std::string& what, const Common& common, Make make) {
  if (!OpenTheLeague(common)) return 1;
  const bool shows = Interactive() && !common.Quiet;
  int done = 0;
  for (int teamNo = 1; teamNo <= kTeams; ++teamNo) {
    if (league.team[teamNo].TeamActive != 1) continue;
    Roster roster;
    if (!TakeTeam(teamNo, roster)) return 1;
    make(roster);
    if (!WriteRoster(roster)) return 1;
    ++done;
    if (shows) std::cerr << "\r" << done << " of " << league.ActiveTeams << " teams" << std::flush;
  }
  if (shows) std::cerr << '\n';
  if (!common.Quiet) std::cout << what << " of " << done << " teams: set by the computer.\n";
  return 0;
}

}  // namespace

int ShowDepth(const CoachRequest& request, const Common& common) {
  if (request.all) return MakeForAll("Depth charts and special lineups", common, SetDepth);
  Roster roster;
  if (!OpenTheLeague(common) || !TakeTeam(request.team, roster)) return 1;
  if (request.make) {
    SetDepth(roster);
    if (!WriteRoster(roster)) return 1;
  }
  Heading(roster, "depth chart and special lineups", common);
  PrintDepth(roster, common);
  return 0;
}

int ShowRotation(const CoachRequest& request, const Common& common) {
  if (request.all) {
    return MakeForAll("Rotations", common, [](Roster& roster) { SetComputerRotationGrid(roster); });
  }
  Roster roster;
  if (!OpenTheLeague(common) || !TakeTeam(request.team, roster)) return 1;
  if (request.make) {
    if (!platform::dialogs().Ask("Have the computer set a rotation grid?")) return 1;
    SetComputerRotationGrid(roster);
  }
  if (request.clear) ClearRotationGrid(roster);
  if ((request.make || request.clear) && !WriteRoster(roster)) return 1;
  Heading(roster, "rotation by minutes", common);
  PrintRotation(roster, common);
  if (!common.Csv) std::cout << "\nMinutes that nobody stands for: " << Holes(roster) << "\n";
  return 0;
}

}  // namespace tipline::cli
