// Who sits out on which game day.
#include <algorithm>
#include <iostream>

#include "base/calendar.h"
#include "cli/coach_words.h"
#include "cli/columns.h"
#include "cli/commands.h"
#include "cli/team_work.h"
#include "cli/terminal.h"
#include "coach/daily_lineups.h"
#include "league/player_values.h"
#include "league/schedule.h"

namespace tipline::cli {
namespace {

constexpr std::size_t kLineWidth = 110;
constexpr std::size_t kDateWidth = 7;  // with the gap in front

/// Dates of the team's games, each once, in order of the season.
std::vector<int> GameDates(int teamNo) {
  std::vector<int> dates;
  ForScheduledGames([&](const ScheduleRecord& row, int) {
    const bool dated = row.Day >= 1 && row.Day <= ScheduleDays(row.Month);
    if (dated && HasTeam(row, teamNo)) dates.push_back(DateOf(SeasonMonth(row.Month), row.Day));
  });
  std::sort(dates.begin(), dates.end());
  dates.erase(std::unique(dates.begin(), dates.end()), dates.end());
  return dates;
}

std::string TextOf(int date) { return DateText({CalendarMonth(date / 100), date % 100}); }

/// A cell of the grid changes: a game day, or an older entry that goes. False, told, for anything else.
bool ToggleCell(HcDailyLineups& screen, const std::vector<int>& dates, const std::string& said,
                const std::string& day) {
  MonthDay chosen;
  if (!ReadDate(day, chosen)) return false;
  const Found man = FindMan(screen.own, said);
  if (man.value == 0) return platform::RefusedWith(man.fault);
  const int date = DateOf(SeasonMonth(chosen.month), chosen.day);
  if (screen.Cell(man.value, date).empty() && !std::binary_search(dates.begin(), dates.end(), date)) {
    return platform::RefusedWith(TeamName(screen.own.team) + " has no game on " + TextOf(date));
  }
  return screen.Toggle(man.value, date);
}

bool CarryOut(const DailyRequest& request, const std::vector<int>& dates, HcDailyLineups& screen) {
  if (!request.use.empty()) screen.UseDailyLinesIfAvailableCheck(request.use == "on");
  if (request.activateAll && !screen.ActivateAll()) return false;
  if (request.inactivateAll && !screen.InactivateAll(dates)) return false;
  return std::all_of(request.toggle.begin(), request.toggle.end(),
                     [&](const auto& cell) { return ToggleCell(screen, dates, cell.first, cell.second); });
}

void PrintDates(const HcDailyLineups& screen, std::span<const int> dates, bool csv) {
  std::vector<std::string> headings{"<Player"};
  for (const int date : dates) headings.push_back((csv ? "" : "<") + TextOf(date));
  Columns table(headings);
  for (const int slot : MenOf(screen.own)) {
    std::vector<std::string> line{InitialName(screen.own.player[slot])};
    for (const int date : dates) line.push_back(screen.Cell(slot, date));
    table.Row(std::move(line));
  }
  table.Print(std::cout, csv);
}

/// As many dates side by side as a line takes.
void PrintPages(const HcDailyLineups& screen, std::span<const int> dates) {
  std::size_t name = 0;
  for (const int slot : MenOf(screen.own)) {
    name = std::max(name, InitialName(screen.own.player[slot]).size());
  }
  const std::size_t page = (kLineWidth - name) / kDateWidth;
  for (std::size_t first = 0; first < dates.size(); first += page) {
    PrintDates(screen, dates.subspan(first, std::min(page, dates.size() - first)), false);
    std::cout << '\n';
  }
  if (dates.empty()) std::cout << "The team has no games on the schedule.\n\n";
}

}  // namespace

int ShowDaily(const DailyRequest& request, const Common& common) {
  Roster roster;
  if (!OpenTheLeague(common) || !LoadSchedule() || !TakeTeam(request.team, roster)) return 1;
  const std::vector<int> dates = GameDates(roster.TeamNo);
  HcDailyLineups screen(roster);
  if (!CarryOut(request, dates, screen)) return 1;
  const bool changed = !request.toggle.empty() || request.activateAll || request.inactivateAll;
  if ((changed || !request.use.empty()) && !WriteRoster(roster)) return 1;
  Heading(roster, "who sits out on which day (X)", common);
  if (common.Csv) {
    PrintDates(screen, dates, true);
    return 0;
  }
  PrintPages(screen, dates);
  const bool used = roster.coach.UseDailyInactive == 1;
  std::cout << "Games " << (used ? "" : "do not ") << "go by this list.\n";
  return 0;
}

}  // namespace tipline::cli
