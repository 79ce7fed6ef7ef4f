#include "cli/leader_commands.h"

#include <algorithm>
#include <iostream>

#include "aftermath/record_pages.h"
#include "base/csv.h"
#include "cli/columns.h"
#include "cli/terminal.h"
#include "league/program.h"
#include "reports/leaders_screen.h"

namespace tipline::cli {
namespace {

using Lists = std::vector<LeaderList>;

int Print(const Lists& lists, const Common& common) {
  if (common.Csv) {
    Columns table({"List", "Place", "Player", "Team", "Value", "More"});
    for (const LeaderList& list : lists) {
      const std::string name = list.Title.substr(list.Title.find(": ") + 2);
      for (const auto& line : list.Lines) {
        std::string more;
        for (std::size_t k = 1; k < line.Cells.size(); ++k) {
          more += (k > 1 ? ";" : "") + list.Headings[k] + "=" + line.Cells[k];
        }
        table.Row({name, Str(line.Place), line.Name, line.Team, line.Cells[0], more});
      }
    }
    table.Print(std::cout, true);
    return 0;
  }
  const bool empty =
      std::all_of(lists.begin(), lists.end(), [](const LeaderList& l) { return l.Lines.empty(); });
  PrintPlain(std::cout, empty ? "No leaders yet." : PageOf(lists));
  return 0;
}

/// Words of the eight boards, beside the names of the columns.
int BoardOf(const std::string& text) {
  constexpr std::string_view kWords[] = {"points", "rebounds", "assists", "steals",
                                         "blocks", "fg",       "ft",      "three"};
  for (int board = 1; board <= kBoards; ++board) {
    if (SameText(text, kWords[board - 1]) || SameText(text, BoardName(board))) return board;
  }
  return 0;
}

/// The column that stands for a board over the whole league.
int ColumnOfBoard(int board) { return FindLeaderColumn(BoardName(board)); }

Lists KeptBoards(const HcLeaders2023& screen, int only) {
  Lists lists;
  for (int board = 1; board <= kBoards; ++board) {
    if (only == 0 || only == board) lists.push_back(screen.Board(board));
  }
  return lists;
}

int ShowColumns(const Common& common) {
  Columns table({"No", "<Group", "<Name", "<Heading", "<Seasons"});
  for (const LeaderColumn& column : LeaderColumns()) {
    table.Row({Str(column.Number), std::string(column.Group), column.Name, column.Heading,
               column.ReplayOnly ? "replay" : "replay, real"});
  }
  table.Print(std::cout, common.Csv);
  return 0;
}

int ListReports(const Common& common) {
  Columns table({"No", "<Name", "Top", "<Team", "<Seasons", "<Key Column"});
  for (int number = 1; number <= kLeaderReports; ++number) {
    const LeaderReport report = LeaderReportOf(number);
    if (report.Sections.empty()) continue;
    std::string keys;
    for (const auto& section : report.Sections) {
      keys += (keys.empty() ? "" : ", ") + LeaderColumnOf(section.Key).Name;
    }
    table.Row({Str(number), report.Name, "Top " + Str(report.Rows),
               report.Team == 0 ? "All Teams" : TeamName(league.team[report.Team]),
               report.Season == SeasonLine::kReal ? "Real Stats" : "Replay Stats", keys});
  }
  table.Print(std::cout, common.Csv);
  return 0;
}

/// "KEY=COLUMN,COLUMN"; false, told, for a column that there is not.
bool ReadSection(const std::string& text, LeaderReport& report) {
  const auto equals = text.find('=');
  LeaderReport::Section section;
  section.Key = FindLeaderColumn(text.substr(0, equals));
  bool found = section.Key > 0;
  if (equals != text.npos) {
    for (const std::string& name : CsvFields(text.substr(equals + 1))) {
      section.Columns.push_back(FindLeaderColumn(name));
      found = found && section.Columns.back() > 0;
    }
  }
  if (!found) Refuse("\"" + text + "\" has a column that there is not; see: tipline leaders --columns");
  report.Sections.push_back(std::move(section));
  return found;
}

int DefineReport(const LeaderRequest& request, int team) {
  LeaderReport report;
  report.Name = request.Name;
  report.Team = team;
  if (request.Top > 0) report.Rows = request.Top;
  if (request.Real) report.Season = SeasonLine::kReal;
  for (const std::string& text : request.Sections) {
    if (!ReadSection(text, report)) return 1;
  }
  return SaveLeaderReport(request.Define, report) ? 0 : 1;
}

/// The lists of the screen as the report has them, and over them what the command says.
void SetLists(HcLeaders2023& screen, const LeaderRequest& request, const LeaderReport& report, int team) {
  screen.StatsList = request.Real ? SeasonLine::kReal : request.Replay ? SeasonLine::kReplay : report.Season;
  screen.TeamList = team > 0 ? team : report.Team;
  screen.TopList = request.Top > 0 ? request.Top : report.Rows;
}

int PrintSections(HcLeaders2023& screen, const LeaderReport& report, const Common& common) {
  const Lists lists = screen.Sections(report);
  return lists.empty() ? 1 : Print(lists, common);
}

int ShowReport(HcLeaders2023& screen, const LeaderRequest& request, int team, const Common& common) {
  const LeaderReport report = LeaderReportOf(request.Report);
  if (report.Sections.empty()) {
    return Refuse("there is no leader report " + Str(request.Report) + "; see: tipline leaders --reports");
  }
  SetLists(screen, request, report, team);
  return PrintSections(screen, report, common);
}

int ShowBestGames(const HcLeaders2023& screen, const std::string& named, const Common& common) {
  Lists lists;
  for (int category = 1; category <= kTopCategories; ++category) {
    if (named.empty() || SameText(named, TopCategoryName(category)))
      lists.push_back(screen.TopGames(category));
  }
  if (!lists.empty()) return Print(lists, common);
  std::string names;
  for (int category = 1; category <= kTopCategories; ++category) {
    names += (names.empty() ? "" : ", ") + std::string(TopCategoryName(category));
  }
  return Refuse("there is no list of best games \"" + named + "\"; there are " + names);
}

/// The eight boards, or one column.
int ShowBoards(HcLeaders2023& screen, const LeaderRequest& request, int team, const Common& common) {
  SetLists(screen, request, {}, team);
  const int board = BoardOf(request.Board);
  const bool kept = !request.Real && team == 0 && screen.TopList <= kBoardPlaces;
  if (kept && (board > 0 || request.Board.empty())) return Print(KeptBoards(screen, board), common);
  LeaderReport report;
  if (request.Board.empty()) {
    for (int b = 1; b <= kBoards; ++b) report.Sections.push_back({ColumnOfBoard(b), {}});
  } else {
    const int column = board > 0 ? ColumnOfBoard(board) : FindLeaderColumn(request.Board);
    if (column == 0) {
      return Refuse("men can't be ranked by \"" + request.Board + "\"; see: tipline leaders --columns");
    }
    report.Sections.push_back({column, {}});
  }
  return PrintSections(screen, report, common);
}

}  // namespace

int ShowLeaders(const LeaderRequest& request, const Common& common) {
  if (request.Columns) return ShowColumns(common);
  if (request.Clear > 0) return ClearLeaderReport(request.Clear) ? 0 : 1;
  if (!OpenTheLeague(common)) return 1;
  if (request.Reports) return ListReports(common);
  const int team = request.Team.empty() ? 0 : FindTeam(request.Team);
  if (!request.Team.empty() && team == 0) return 1;
  if (request.Define > 0) return DefineReport(request, team);
  HcLeaders2023 screen;
  if (!screen.Open()) return 1;
  if (request.Top > 0) screen.TopList = request.Top;
  if (request.BestGames) return ShowBestGames(screen, request.Category, common);
  if (request.Report > 0) return ShowReport(screen, request, team, common);
  return ShowBoards(screen, request, team, common);
}

int ShowRecords(const RecordRequest& request, const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  if (!LoadRecordBook(request.AllTime ? AllTimeFolder() : program.LeagueFolder)) return 1;
  Columns table({"Block", "Of", "Record", "Place", "Value", "Holder", "Team", "Opponent", "Date"});
  std::string page;
  for (const RecordBlock block : {RecordBlock::kGame, RecordBlock::kSeason}) {
    const bool season = block == RecordBlock::kSeason;
    if ((season && request.Game) || (!season && request.Season)) continue;
    for (const bool teams : {false, true}) {
      if ((teams && request.Players) || (!teams && request.Teams)) continue;
      const std::string part = RecordBlockPage(block, teams);
      page += (page.empty() || part.empty() ? "" : "\n") + part;
      for (const RecordLine& r : RecordLines(block, teams)) {
        table.Row({season ? "season" : "game", teams ? "team" : "player", r.Record, Str(r.Place),
                   Str(r.Value), r.Holder, r.HolderTeam, r.Opponent, r.Date});
      }
    }
  }
  if (common.Csv) {
    table.Print(std::cout, true);
  } else {
    PrintPlain(std::cout, page.empty() ? "No records yet." : page);
  }
  return 0;
}

}  // namespace tipline::cli
