#include <algorithm>
#include <iostream>
#include <vector>

#include "base/random.h"
#include "cli/columns.h"
#include "cli/commands.h"
#include "cli/team_work.h"
#include "cli/terminal.h"
#include "frontoffice/rating_run.h"
#include "league/data_tree.h"
#include "league/dump.h"
#include "league/files.h"
#include "league/league_check.h"
#include "league/league_reset.h"
#include "league/player_values.h"
#include "league/program.h"
#include "league/roster.h"
#include "league/rules.h"

namespace tipline::cli {
namespace {

std::string HeightText(const PlayerRecord& p) { return Str(p.HeightFeet) + "-" + Str(p.HeightInches); }

double PerGame(int count, int games) { return games > 0 ? static_cast<double>(count) / games : 0; }

std::vector<std::string> StatCells(const StatLine& s) {
  const auto each = [&s](int count) { return Fixed(PerGame(count, s.G), 1); };
  return {Str(s.G),    Str(s.GS),        each(s.Min),         each(s.FGM), each(s.FGA), Share(s.FGM, s.FGA),
          each(s.F3M), each(s.F3A),      Share(s.F3M, s.F3A), each(s.FTM), each(s.FTA), Share(s.FTM, s.FTA),
          each(s.Off), each(s.Reb),      each(s.Ast),         each(s.St),  each(s.Bk),  each(s.To),
          each(s.Pf),  each(PointsOf(s))};
}

std::vector<std::string> RatingCells(const PlayerRecord& p) {
  return {Str(p.RateOffense / 10), Str(p.RatePassing),    Str(p.RateOffInside),
          Str(p.RateOffOutside),   Str(p.RateOffDrive),   Str(p.RateOffThree),
          Str(p.RateOffFastbreak), Str(p.RateDunk),       Str(p.RateDefOutside),
          Str(p.RateDefInside),    Str(p.RateDefForce),   Str(p.RateRebOff),
          Str(p.RateRebDef),       Str(p.RateDurability), Str(p.RateSportsmanship),
          Str(p.RateClutch),       Str(p.Salary)};
}

std::vector<int> ByMinutes(const Roster& roster) {
  std::vector<int> slots = MenOf(roster);
  std::stable_sort(slots.begin(), slots.end(), [&](int a, int b) {
    return roster.player[a].Stats[1].Min > roster.player[b].Stats[1].Min;
  });
  return slots;
}

}  // namespace

bool EnsureEra() {
  if (const auto fault = EraFault(EraFile()); !fault.empty()) {
    Refuse(fault + " Remove it and a new one is made.");
    return false;
  }
  std::error_code error;
  std::filesystem::create_directories(program.ProgramFolder, error);
  if (error) {
    Refuse("the data home can't be written: " + program.Home.string());
    return false;
  }
  return LoadEra() || MakeEraFile();
}

bool OpenTheLeague(const Common& common) {
  const auto folder = FindLeague(common.League);
  if (folder.empty()) {
    Refuse(common.League.empty() ? "there is no league yet; make one with: tipline league new NAME"
                                 : "there is no league named \"" + common.League + "\"");
    return false;
  }
  if (const auto fault = LeagueFault(folder); !fault.empty()) {
    Refuse(fault);
    return false;
  }
  program.LeagueFolder = folder;
  if (!EnsureEra()) return false;
  const bool rules = LoadRules();
  if (!LoadAllTeams()) return false;
  LoadLeaguePlayers();
  return (rules || SaveRules()) && CleanUnmarkedFolder();
}

namespace {

/// at(n): the record of team n.
template <class At>
int FindAmong(const std::string& text, At&& at) {
  std::vector<int> found;
  for (int t = 1; t <= kTeams; ++t) {
    const TeamRecord& team = at(t);
    if (team.TeamActive != 1) continue;
    if (text == Str(t)) return t;
    if (SameText(team.Abbrev.View(), text)) return t;
    if (SameText(TeamName(team), text) || SameText(team.City.View(), text) ||
        SameText(team.Nickname.View(), text)) {
      found.push_back(t);
    }
  }
  if (found.size() == 1) return found[0];
  std::string message = found.empty() ? "there is no team \"" + text + "\" in this league; see: tipline teams"
                                      : "\"" + text + "\" names more than one team:";
  for (const int t : found) message += " " + at(t).Abbrev.Str();
  Refuse(message);
  return 0;
}

}  // namespace

int FindTeam(const std::string& text) {
  return FindAmong(text, [](int t) -> const TeamRecord& { return league.team[t]; });
}

int FindTeam(const std::string& text, const std::vector<TeamRecord>& teams) {
  return FindAmong(text, [&teams](int t) -> const TeamRecord& { return teams[static_cast<std::size_t>(t)]; });
}

int NewLeague(LeagueRequest request, const Common& common) {
  request.Seed = common.Seed ? *common.Seed : static_cast<std::uint64_t>(Rnd(1000000));
  std::string message;
  if (!RequestIsSound(request, message)) return Refuse(message);
  if (!EnsureEra()) return 1;
  if (!MakeLeague(request, message)) return Refuse(message);
  if (!MakeCurrent(request.Name)) return Refuse("the list of recent leagues can't be written");
  if (!common.Quiet) std::cout << message << '\n';
  return 0;
}

int ShowTeams(const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  Columns table(
      common.Csv
          ? std::vector<std::string>{"TeamNo", "City", "Nickname", "Abbrev", "Division", "W", "L"}
          : std::vector<std::string>{"No", "<Team", "<Abb", "<Division", "<Coach", "<Arena", "W", "L"});
  for (const int division : league.UsedDivisions) {
    const std::string named = league.rules.DivisionName[division].Str();
    const std::string label = named.empty() ? "Division " + Str(division) : named;
    for (const int t : TeamsOfDivision(division)) {
      const TeamRecord& team = league.team[t];
      if (team.TeamActive != 1) continue;
      if (common.Csv) {
        table.Row({Str(t), team.City.Str(), team.Nickname.Str(), team.Abbrev.Str(), label, Str(team.Wins),
                   Str(team.Losses)});
      } else {
        table.Row({Str(t), TeamName(team), team.Abbrev.Str(), label, team.CoachName.Str(),
                   team.ArenaName.Str(), Str(team.Wins), Str(team.Losses)});
      }
    }
  }
  table.Print(std::cout, common.Csv);
  return 0;
}

int ShowRoster(const std::string& text, const std::string& view, const Common& common) {
  Roster roster;
  if (!OpenTheLeague(common) || !TakeTeam(text, roster)) return 1;
  std::vector<std::string> headings{"No", "<Player", "<Pos", "Ht", "Wt", "Age"};
  const std::vector<std::string> more =
      view == "ratings"
          ? std::vector<std::string>{"Off",  "Pass",  "In",    "Out",    "Drv",   "3Pt",
                                     "Fast", "Dunk",  "D-Out", "D-In",   "D-To",  "OReb",
                                     "DReb", "Durab", "Sport", "Clutch", "Salary"}
          : std::vector<std::string>{"G",   "GS",  "Min", "FGM", "FGA", "FG%", "3PM", "3PA", "3P%", "FTM",
                                     "FTA", "FT%", "Off", "Reb", "Ast", "St",  "Bk",  "To",  "Pf",  "Pts"};
  headings.insert(headings.end(), more.begin(), more.end());
  Columns table(headings);
  for (const int slot : ByMinutes(roster)) {
    const PlayerRecord& p = roster.player[slot];
    std::vector<std::string> cells{p.UniformNumber.Str(), FullName(p),   Positions(p),
                                   HeightText(p),         Str(p.Weight), Str(p.Age)};
    const auto rest = view == "ratings" ? RatingCells(p) : StatCells(p.Stats[view == "real" ? 1 : 2]);
    cells.insert(cells.end(), rest.begin(), rest.end());
    table.Row(std::move(cells));
  }
  if (!common.Csv) {
    std::cout << TeamName(roster.team) << " " << roster.team.Year << ", coached by "
              << roster.team.CoachName.Str()
              << (view == "ratings" ? ": ratings"
                  : view == "real"  ? ": the season their ratings come from, per game"
                                    : ": this season, per game")
              << "\n\n";
  }
  table.Print(std::cout, common.Csv);
  return 0;
}

int Dump(const std::string& file, int record, const Common& common) {
  const bool era = SameText(file, "Basketball-Era.dat");
  if (!era && !OpenTheLeague(common)) return 1;
  if (era && !LoadEra() && !MakeEraFile()) return 1;
  if (!DumpRecord(file, record, std::cout)) {
    return Refuse("no record " + Str(record) + " of a file \"" + file + "\"; the files are " + FormatNames());
  }
  return 0;
}

int RateTeams(const std::string& text, bool all, const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  const hcratings screen;
  if (all) return screen.DEFAULTRATINGS_ALL() ? 0 : 1;
  Roster roster;
  if (!TakeTeam(text, roster)) return 1;
  if (!screen.DEFAULTRATINGS(roster)) return 1;
  return WriteRoster(roster) ? 0 : 1;
}

}  // namespace tipline::cli
