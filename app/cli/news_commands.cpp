#include "cli/news_commands.h"

#include <algorithm>
#include <iostream>

#include "aftermath/highlights.h"
#include "aftermath/injury_history.h"
#include "aftermath/ticker.h"
#include "base/calendar.h"
#include "cli/coach_events.h"
#include "cli/columns.h"
#include "engine/game_state.h"

namespace tipline::cli {
namespace {

/// Drops all but the last so many; 0 keeps all.
template <class List>
void KeepLast(List& list, int last) {
  const auto count = static_cast<std::ptrdiff_t>(list.size());
  if (last > 0 && count > last) list.erase(list.begin(), list.begin() + (count - last));
}

std::string SeasonDateText(int seasonMonth, int day) {
  if (seasonMonth < 1 || seasonMonth > 12) return "";
  return DateText({CalendarMonth(seasonMonth), day});
}

int ShowHighlights(int team, const NewsArguments& a, const Common& common) {
  std::vector<std::string> lines;
  if (!LoadHighlights(lines)) return 1;
  std::vector<Highlight> found;
  for (const std::string& line : lines) {
    found.push_back(ReadHighlight(line));
    if (team > 0 && !(league.team[team].Abbrev == found.back().Abbrev)) found.pop_back();
  }
  KeepLast(found, a.Last);
  Columns table({"<Date", "<Team", "<Highlight"});
  for (const Highlight& one : found) table.Row({Plain(one.Date), Plain(one.Abbrev), Plain(one.Text)});
  table.Print(std::cout, common.Csv);
  return 0;
}

void PrintMenOut(int team, const Common& common) {
  Columns table({"<Pos", "<Player", "<Team", "<Return", "<Injury", "Suspended"});
  for (const OutMan& man : MenOut()) {
    if (team > 0 && man.TeamNo != team) continue;
    std::string back = SeasonDateText(man.ReturnMonth, man.ReturnDay);
    if (!back.empty() && man.MayReturnEarly) back += "?";
    table.Row({man.Position, Plain(man.Name), Plain(man.Abbrev), back, man.Injury,
               man.SuspensionGames > 0 ? Str(man.SuspensionGames) : ""});
  }
  table.Print(std::cout, common.Csv);
}

int PrintInjuryHistory(int team, const NewsArguments& a, const Common& common) {
  constexpr std::size_t kFields = 6;
  constexpr std::size_t kTeamField = 1;
  std::vector<std::string> lines;
  if (!LoadInjuries(lines)) return 1;
  std::vector<std::vector<std::string>> rows;
  for (const std::string& line : lines) {
    rows.push_back(ReadInjury(line));
    rows.back().resize(kFields);
    if (team > 0 && !(league.team[team].Abbrev == rows.back()[kTeamField])) rows.pop_back();
  }
  KeepLast(rows, a.Last);
  Columns table({"<Injury Date", "<Team", "<Pos", "<Player", "<Return Date", "<Injury"});
  for (auto& row : rows) {
    std::transform(row.begin(), row.end(), row.begin(), [](const std::string& cell) { return Plain(cell); });
    table.Row(row);
  }
  table.Print(std::cout, common.Csv);
  return 0;
}

/// Who is out now, and for people who was before.
int ShowInjuries(int team, const NewsArguments& a, const Common& common) {
  if (a.Now) return PrintMenOut(team, common), 0;
  if (common.Csv) return PrintInjuryHistory(team, a, common);
  std::cout << "Out now\n";
  PrintMenOut(team, common);
  std::cout << "\nThis season\n";
  return PrintInjuryHistory(team, a, common);
}

std::string AbbrevOf(int team) {
  return team >= 1 && team <= kTeams ? league.team[team].Abbrev.Str() : Str(team);
}

int ShowTicker(int team, const NewsArguments& a, const Common& common) {
  std::vector<TickerRecord> entries;
  if (!LoadTicker(entries)) return 1;
  if (team > 0)
    std::erase_if(entries, [team](const TickerRecord& e) { return e.Team1 != team && e.Team2 != team; });
  KeepLast(entries, a.Last);
  Columns table({"<Date", "<Visitor", "Pts", "<Home", "Pts", "Period", "<Clock", "<Text"});
  for (const TickerRecord& e : entries) {
    table.Row({SeasonDateText(e.Month, e.Day), Plain(AbbrevOf(e.Team1)), Str(e.Score1),
               Plain(AbbrevOf(e.Team2)), Str(e.Score2), Str(e.Period),
               e.Final == 1 ? "Final" : ClockText(std::max<int>(e.GameClock, 0)), Plain(e.Text.Str())});
  }
  table.Print(std::cout, common.Csv);
  return 0;
}

}  // namespace

void AddNews(CLI::App& app, NewsArguments& a, Common& common) {
  const auto add = [&](const char* name, const char* help) {
    auto* command = app.add_subcommand(name, help);
    command->add_option("--team", a.Team, "of this team: number, abbreviation, city or nickname");
    command->add_option("--last", a.Last, "so many of the newest")->check(CLI::PositiveNumber);
    command->add_flag("--csv", common.Csv, "as comma-separated text");
    return command;
  };
  add("highlights", "the feats of the season's games");
  add("injuries", "who is out, and who was hurt this season; with --csv the season's injuries")
      ->add_flag("--now", a.Now, "only who is out, hurt or suspended");
  add("ticker", "the score ticker: how the games of the season stood, as it ran");
}

bool IsNews(const CLI::App& app) {
  return app.got_subcommand("highlights") || app.got_subcommand("injuries") || app.got_subcommand("ticker");
}

int RunNews(const CLI::App& app, const NewsArguments& a, const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  const int team = a.Team.empty() ? 0 : FindTeam(a.Team);
  if (!a.Team.empty() && team == 0) return 1;
  if (app.got_subcommand("highlights")) return ShowHighlights(team, a, common);
  if (app.got_subcommand("ticker")) return ShowTicker(team, a, common);
  return ShowInjuries(team, a, common);
}

}  // namespace tipline::cli
