#include "reports/leaders_screen.h"

#include <algorithm>
#include <cstdio>

#include "league/league.h"
#include "league/player_values.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

using Section = LeaderReport::Section;

bool PlaysForATeam(const PlayerRecord& man) {
  return man.TeamNo >= 1 && man.TeamNo <= kTeams && league.team[man.TeamNo].TeamActive == 1;
}

/// Games of the real season: its record, else what the man of most games played.
Table<int, 1, kTeams> RealGames() {
  Table<int, 1, kTeams> games;
  for (const PlayerRecord& man : league.player) {
    if (PlaysForATeam(man)) games[man.TeamNo] = std::max<int>(games[man.TeamNo], man.Stats[1].G);
  }
  for (int t = 1; t <= kTeams; ++t) {
    if (const int known = league.team[t].RealWins + league.team[t].RealLosses; known > 0) games[t] = known;
  }
  return games;
}

/// The men of the lists, with what their columns need.
std::vector<LeaderMan> MenOf(const HcLeaders2023& screen, bool withEfficiency) {
  const bool real = screen.StatsList == SeasonLine::kReal;
  const Table<int, 1, kTeams> realGames = real ? RealGames() : Table<int, 1, kTeams>();
  const ReplayLeague replay = withEfficiency ? MeasureReplayLeague() : ReplayLeague();
  std::vector<LeaderMan> men;
  for (const PlayerRecord& man : league.player) {
    if (!PlaysForATeam(man) || (screen.TeamList > 0 && man.TeamNo != screen.TeamList)) continue;
    const TeamRecord& team = league.team[man.TeamNo];
    LeaderMan entry{&man, &team, screen.StatsList, real ? realGames[man.TeamNo] : team.Wins + team.Losses, 0};
    if (withEfficiency) {
      entry.Efficiency = CalculatePlayerPer(man, team, replay)[static_cast<int>(screen.StatsList)];
    }
    men.push_back(entry);
  }
  return men;
}

std::string GroupTitle(const LeaderColumn& column) {
  if (column.Group == "PERGAME") return column.Name + " a Game";
  return column.Group == "PER48" ? column.Name + " per 48 Minutes" : column.Name;
}

/// Whose leaders they are.
std::string Whose(int team) { return team == 0 ? "League" : TeamName(league.team[team]); }

LeaderList ListOf(const Section& section, const std::vector<LeaderMan>& men, const HcLeaders2023& screen) {
  struct Ranked {
    double value;
    const LeaderMan* man;
  };
  std::vector<Ranked> ranked;
  for (const LeaderMan& man : men) {
    const double value = LeaderValue(section.Key, man);
    if (value > 0 && Qualifies(section.Key, man)) ranked.push_back({value, &man});
  }
  std::stable_sort(ranked.begin(), ranked.end(),
                   [](const Ranked& a, const Ranked& b) { return a.value > b.value; });
  LeaderList list;
  list.Title = Whose(screen.TeamList) + " Leaders: " + GroupTitle(LeaderColumnOf(section.Key));
  list.Headings = {LeaderColumnOf(section.Key).Heading};
  for (const int column : section.Columns) list.Headings.push_back(LeaderColumnOf(column).Heading);
  const auto rows = std::min(ranked.size(), static_cast<std::size_t>(std::max(1, screen.TopList)));
  for (std::size_t k = 0; k < rows; ++k) {
    const LeaderMan& man = *ranked[k].man;
    LeaderList::Line line{static_cast<int>(k) + 1,
                          man.man->RecNo,
                          FullName(*man.man),
                          man.team->Abbrev.Str(),
                          {LeaderText(section.Key, ranked[k].value)}};
    for (const int column : section.Columns) {
      line.Cells.push_back(LeaderText(column, LeaderValue(column, man)));
    }
    list.Lines.push_back(std::move(line));
  }
  return list;
}

/// Asked for by one of its columns.
bool AsksForEfficiency(const LeaderReport& report) {
  return std::any_of(report.Sections.begin(), report.Sections.end(), [](const Section& section) {
    return NeedsEfficiency(section.Key) || std::any_of(section.Columns.begin(), section.Columns.end(),
                                                       [](int column) { return NeedsEfficiency(column); });
  });
}

std::string BoardText(int board, int value) {
  char text[40];
  const bool share = board >= kFirstPercentageBoard;
  std::snprintf(text, sizeof text, share ? "%.3f" : "%.2f", value / (share ? 1000.0 : 100.0));
  return text[0] == '0' && share ? text + 1 : text;
}

std::string Left(std::string_view text, std::size_t width) {
  std::string padded(text);
  padded.resize(std::max(width, padded.size()), ' ');
  return padded;
}

std::string Right(std::string_view text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ') + std::string(text);
}

using Widths = std::vector<std::size_t>;

/// Of the cells, two blanks in front of the longest.
Widths WidthsOf(const LeaderList& list) {
  Widths widths;
  for (std::size_t k = 0; k < list.Headings.size(); ++k) {
    std::size_t width = std::max<std::size_t>(5, list.Headings[k].size());
    for (const auto& line : list.Lines) width = std::max(width, line.Cells[k].size());
    widths.push_back(width + 2);
  }
  return widths;
}

void AddLine(std::string& page, const LeaderList::Line& line, std::string_view place, const Widths& widths) {
  std::string text = Right(place, 4) + "  " + Left(line.Name, 26) + Left(line.Team, 4);
  for (std::size_t k = 0; k < widths.size(); ++k) text += Right(line.Cells[k], widths[k]);
  page += text + '\n';
}

}  // namespace

bool HcLeaders2023::Open() { return ReadLeaders(Leaders) && ReadTop40(Top); }

LeaderList HcLeaders2023::Board(int board) const {
  LeaderList list;
  list.Title = "League Leaders: " + std::string(BoardName(board));
  list.Headings = {board < kFirstPercentageBoard ? "Avg" : "Pct"};
  for (int place = 1; place <= std::min(TopList, kBoardPlaces); ++place) {
    const int value = Leaders.LeaderValue[place][board];
    if (value < 0 || Leaders.LeaderName[place][board].Empty()) continue;
    list.Lines.push_back({static_cast<int>(list.Lines.size()) + 1,
                          Leaders.LeaderRecNo[place][board],
                          Leaders.LeaderName[place][board].Str(),
                          Leaders.LeaderTeam[place][board].Str(),
                          {BoardText(board, value)}});
  }
  return list;
}

LeaderList HcLeaders2023::TopGames(int category) const {
  LeaderList list;
  list.Title = "Top Performances: " + std::string(TopCategoryName(category));
  list.Headings = {"Value", "Game"};
  const bool score = TopCategoryName(category) == "Game Score";
  for (int place = 1; place <= std::min(TopList, kTopPlaces); ++place) {
    const TopRow row = TopRowOf(Top, place, category);
    if (!(row.Value > 0)) continue;  // an empty row, or a damaged one
    char text[60];
    std::snprintf(text, sizeof text, score ? "%.1f" : "%.0f", static_cast<double>(row.Value));
    list.Lines.push_back({static_cast<int>(list.Lines.size()) + 1,
                          0,
                          row.Name.Str(),
                          std::string(row.Game.View().substr(0, row.Game.View().find(" vs "))),
                          {text, row.Game.Str()}});
  }
  return list;
}

std::vector<LeaderList> HcLeaders2023::Sections(const LeaderReport& report) const {
  if (StatsList == SeasonLine::kReal && NeedsReplay(report)) {
    platform::RefusedWith("This report is not available for real statistics");
    return {};
  }
  const std::vector<LeaderMan> men = MenOf(*this, AsksForEfficiency(report));
  std::vector<LeaderList> lists;
  for (const Section& section : report.Sections) lists.push_back(ListOf(section, men, *this));
  return lists;
}

std::string HcLeaders2023::BuildSubs(int report) const { return PageOf(Sections(LeaderReportOf(report))); }

std::string PageOf(const std::vector<LeaderList>& lists) {
  std::string page;
  for (const LeaderList& list : lists) {
    if (!page.empty()) page += '\n';
    page += list.Title + '\n';
    const Widths widths = WidthsOf(list);
    AddLine(page, {0, 0, "Player", "Team", list.Headings}, "", widths);
    for (const auto& line : list.Lines) AddLine(page, line, std::to_string(line.Place), widths);
  }
  return page;
}

}  // namespace tipline
