// The leagues there are, which one is current, and what it is.
#include <algorithm>
#include <iomanip>
#include <iostream>

#include "cli/columns.h"
#include "cli/schedule_commands.h"
#include "cli/terminal.h"
#include "league/data_tree.h"
#include "league/league_check.h"
#include "league/league_list.h"
#include "league/program.h"
#include "league/schedule.h"
#include "league/setup.h"
#include "league/startup.h"

namespace tipline::cli {
namespace {

void Line(std::string_view label, const std::string& text) {
  std::cout << std::left << std::setw(10) << label << Plain(text) << '\n';
}

std::string Count(int n, const char* one, const char* many) { return Str(n) + " " + (n == 1 ? one : many); }

/// "Demo, Regular Season".
std::string NameAndMode() {
  std::string label = SeasonModeLabel();
  return label.replace(label.find('\n'), 1, ", ");
}

/// How far the season is.
std::string SeasonText() {
  const auto games = GamesInOrder();
  if (games.empty()) return "no games on the schedule";
  const auto isPlayed = [](const ScheduleRecord* row) { return row->Status == 'P'; };
  const auto played = static_cast<int>(std::count_if(games.begin(), games.end(), isPlayed));
  const auto next = std::find_if_not(games.begin(), games.end(), isPlayed);
  const std::string all = Count(static_cast<int>(games.size()), "game", "games");
  if (next == games.end()) return "over, " + all + " played";
  const std::string date = DateText({(*next)->Month, (*next)->Day});
  return played == 0 ? "not begun, " + all + " from " + date
                     : Str(played) + " of " + all + " played, next on " + date;
}

std::string PlayersText() {
  int onTeams = 0, free = 0;
  for (const PlayerRecord& man : league.player) {
    const int team = man.TeamNo;
    if (team == kFreeAgent) ++free;
    if (team >= 1 && team <= kTeams && league.team[team].TeamActive == 1) ++onTeams;
  }
  return Str(onTeams) + " on teams, " + Count(free, "free agent", "free agents");
}

std::string RulesText() {
  const RulesRecord& r = league.rules;
  return Count(r.PeriodList, "period", "periods") + " of " + Count(r.MinuteList, "minute", "minutes") +
         ", overtime of " + Str(r.OverTimeList) +
         (r.ThreePointCheck == 1 ? ", three-point line, " : ", no three-point line, ") +
         (r.ShotClockList == 0 ? "no shot clock" : "shot clock of " + Str(r.ShotClockList) + " seconds");
}

/// Makes it current; false, with the list of recent leagues as it was, when it can't be opened.
bool Open(const KnownLeague& chosen) {
  const auto before = program.RecentList;
  if (chosen.Recent ? OpenRecentLeague(chosen.Folder) : OpenSeason(chosen.Name)) return true;
  program.RecentList = before;
  (void)(WriteRecentList() && SaveSetup());  // what failed has been told
  return false;
}

}  // namespace

int ListLeagues(const Common& common) {
  const auto known = KnownLeagues();
  if (known.empty() && !common.Csv) {
    std::cout << "There are no leagues yet; make one with: tipline league new NAME\n";
    return 0;
  }
  Columns table(common.Csv
                    ? std::vector<std::string>{"Current", "League", "Kind", "Teams", "Season", "Folder"}
                    : std::vector<std::string>{"<", "<League", "<Kind", "Teams", "<Season", "<Folder"});
  for (const auto& one : known) {
    const auto seen = GlanceAt(RealFolder(one.Folder));
    const LeagueGlance glance = seen.value_or(LeagueGlance{"can't be opened", "", 0});
    table.Row({one.Current ? "*" : "", Plain(one.Name), glance.Kind, seen ? Str(glance.Teams) : "",
               glance.Season, Plain(one.Folder)});
  }
  table.Print(std::cout, common.Csv);
  return 0;
}

int OpenLeagueNamed(const std::string& name, const Common& common) {
  const auto chosen = FindKnownLeague(name);
  if (!chosen) return Refuse("there is no league named \"" + name + "\"; see: tipline league list");
  // A recent league that is gone is told of by its own opening.
  const auto folder = RealFolder(chosen->Folder);
  std::error_code error;
  if (std::filesystem::is_directory(folder, error)) {
    if (const auto fault = LeagueFault(folder); !fault.empty()) return Refuse(fault);
  }
  if (!EnsureEra() || !Open(*chosen)) return 1;
  if (!common.Quiet) std::cout << NameAndMode() << ": " << Plain(program.RecentList.front()) << '\n';
  return 0;
}

int ShowLeague(const Common& common) {
  if (!OpenTheLeague(common) || !LoadSchedule()) return 1;
  const LeagueGlance glance = GlanceAt(program.LeagueFolder).value_or(LeagueGlance{});
  const std::string title = league.rules.LeagueName.Str();
  Line("League", title.empty() ? league.LeagueFolderName : title);
  Line("Folder", common.League.empty() ? program.RecentList.front() : SeasonsRoot() + common.League + "\\");
  Line("Kind", glance.Kind + (league.rules.IsPlayoffModule == 1 ? ", Playoffs" : ", Regular Season"));
  Line("Season", glance.Season + ": " + SeasonText());
  Line("Schedule", ScheduleFile().filename().string());
  Line("Teams", Str(league.ActiveTeams) + " in " +
                    Count(static_cast<int>(league.UsedDivisions.size()), "division", "divisions"));
  Line("Players", PlayersText());
  Line("Rules", RulesText());
  return 0;
}

int SwitchLeague(const Common& common) {
  if (!common.League.empty() && FindLeague(common.League) != FindLeague("")) {
    return Refuse("only the current league is switched; see: tipline league open");
  }
  if (!OpenTheLeague(common) || !LoadSchedule() || !SwitchSeasonMode()) return 1;
  if (!common.Quiet) std::cout << NameAndMode() << '\n';
  return 0;
}

int ShowDrives(const std::string& drive) {
  HCSETUPFORM screen;
  if (!drive.empty() && !screen.ChooseDrive(Upper(drive))) {
    return Refuse("there is no drive \"" + drive + "\"; see: tipline league drive");
  }
  for (const auto& one : screen.DriveList()) {
    std::cout << (one == program.DataDrive ? "* " : "  ") << one << '\n';
  }
  return 0;
}

}  // namespace tipline::cli
