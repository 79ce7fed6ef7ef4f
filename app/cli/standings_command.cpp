#include "cli/standings_command.h"

#include <iostream>

#include "cli/columns.h"
#include "season/power_rankings.h"
#include "season/standings.h"

namespace tipline::cli {
namespace {

int ShowDated(const StandingsArguments& a, const Common& common) {
  HcStandingsByDate screen;
  MonthDay date;
  if (!a.Date.empty() && !ReadDate(a.Date, date)) return 1;
  screen.Month = a.Date.empty() ? a.Month : date.month;
  screen.Day = date.day;
  if (!screen.BuildStandingsByDate()) return 1;
  PrintPlain(std::cout, common.Csv ? screen.csv : screen.page);
  return 0;
}

}  // namespace

int ShowStandings(const StandingsArguments& a, const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  if (!a.By.empty() && !OrderStandingsBy(a.By == "conference")) return 1;
  if (!a.Date.empty() || a.Month != 0) return ShowDated(a, common);
  if (!DisplayStandings()) return 1;
  const Standings standings = OrderStandings();
  PrintPlain(std::cout, common.Csv ? StandingsCsv(standings, false) : StandingsPage(standings, false));
  return 0;
}

int ShowPower(const Common& common) {
  if (!OpenTheLeague(common) || !DisplayPowerRankings()) return 1;
  const auto lines = PowerRankings();
  PrintPlain(std::cout, common.Csv ? PowerCsv(lines) : PowerPage(lines));
  return 0;
}

}  // namespace tipline::cli
