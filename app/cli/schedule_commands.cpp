#include "cli/schedule_commands.h"

#include <algorithm>
#include <charconv>
#include <iostream>

#include "base/calendar.h"
#include "cli/columns.h"
#include "cli/terminal.h"
#include "frontoffice/schedule_csv.h"
#include "frontoffice/schedule_editor.h"
#include "frontoffice/schedule_files.h"
#include "league/schedule.h"

namespace tipline::cli {
namespace {

std::string TwoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

bool OpenSchedule(const Common& common) { return OpenTheLeague(common) && LoadSchedule(); }

/// "HC": a human against the computer.
std::string CoachLetters(const ScheduleRecord& row) {
  return row.CoachKind[1].Str() + row.CoachKind[2].Str();
}

std::string HumanSides(const ScheduleRecord& row) {
  const bool visitor = row.CoachKind[1] == 'H', home = row.CoachKind[2] == 'H';
  if (!visitor && !home) return "";
  return std::string("human coach: ") + (visitor && home ? "both" : visitor ? "visitor" : "home");
}

void PrintGames(const std::vector<const ScheduleRecord*>& rows, bool csv) {
  Columns table(csv ? std::vector<std::string>{"Month", "Day", "Visitor", "Home", "VisitorScore", "HomeScore",
                                               "Neutral", "Type", "Coaches"}
                    : std::vector<std::string>{"<Date", "<Visitor", "<Home", "<Result", "<"});
  int month = 0, day = 0;
  for (const ScheduleRecord* row : rows) {
    const std::string visitor = ScheduleTeamName(row->Team[1]), home = ScheduleTeamName(row->Team[2]);
    const bool played = row->Status == 'P';
    if (csv) {
      table.Row({std::to_string(row->Month), std::to_string(row->Day), visitor, home,
                 played ? std::to_string(row->Score[1]) : "", played ? std::to_string(row->Score[2]) : "",
                 std::to_string(row->NeutralSite), row->GameType.Str(), CoachLetters(*row)});
      continue;
    }
    std::string note = row->GameType == 'R' ? "" : std::string(GameTypeWords(row->GameType.bytes[0]));
    if (row->NeutralSite == 1) note += note.empty() ? "neutral court" : ", neutral court";
    if (const auto who = HumanSides(*row); !who.empty()) note += (note.empty() ? "" : ", ") + who;
    const bool sameDay = row->Month == month && row->Day == day;
    table.Row({sameDay ? "" : DateText({row->Month, row->Day}), visitor, home,
               played ? StatusWords(*row) : "", note});
    month = row->Month, day = row->Day;
  }
  table.Print(std::cout, csv);
}

int TeamOrUndecided(const std::string& text) { return SameText(text, "TBD") ? kFreeAgent : FindTeam(text); }

/// Row of a game that is on the schedule; 0 for none.
int RowOf(const ScheduleChoice& game) {
  int found = 0;
  ForScheduledGames([&](const ScheduleRecord& row, int n) {
    const bool same = row.Team[1] == game.visitor && row.Team[2] == game.home;
    if (!same || !IsOn(row, game.month, game.day)) return;
    if (found == 0 || league.ScheduleGame[static_cast<std::size_t>(found)].Status == 'P') found = n;
  });
  return found;
}

}  // namespace

std::vector<const ScheduleRecord*> GamesInOrder(const MonthDay& date, int team) {
  std::vector<const ScheduleRecord*> rows;
  ForScheduledGames([&](const ScheduleRecord& row, int) {
    if (date.month != 0 && !IsOn(row, date.month, date.day)) return;
    if (team != 0 && !HasTeam(row, team)) return;
    if (!IsScheduleTeam(row.Team[1]) || !IsScheduleTeam(row.Team[2])) return;
    rows.push_back(&row);
  });
  const bool calendarYear = league.HasAugustGames && league.HasSeptemberGames;
  const auto key = [calendarYear](const ScheduleRecord* row) {
    const int month = row->Month < 1 || row->Month > 12 ? 13 : row->Month;
    return 100 * (calendarYear || month == 13 ? month : SeasonMonth(month)) + row->Day;
  };
  std::stable_sort(rows.begin(), rows.end(), [key](auto* a, auto* b) { return key(a) < key(b); });
  return rows;
}

bool ReadDate(const std::string& text, MonthDay& date) {
  const char* end = text.data() + text.size();
  const auto month = std::from_chars(text.data(), end, date.month);
  const bool dash = month.ec == std::errc() && month.ptr != end && *month.ptr == '-';
  const auto day = dash ? std::from_chars(month.ptr + 1, end, date.day) : month;
  if (dash && day.ec == std::errc() && day.ptr == end && date.day >= 1 &&
      date.day <= ScheduleDays(date.month)) {
    return true;
  }
  Refuse("\"" + text + "\" is no date; write month and day as MM-DD, such as 10-30");
  return false;
}

std::string DateText(const MonthDay& date) { return TwoDigits(date.month) + "-" + TwoDigits(date.day); }

int MakeSchedule(const ScheduleArguments& a, const Common& common) {
  MonthDay start{10, 30};
  if (!a.Start.empty() && !ReadDate(a.Start, start)) return 1;
  if (!OpenTheLeague(common)) return 1;
  HCSCHEDULE editor;
  if (!editor.Open()) return 1;
  HCCOMPUTERSCHEDULE screen;
  screen.GAMETEXT = std::to_string(a.Games);
  screen.DIVISIONTEXT = std::to_string(a.Divisional);
  screen.MaxVersusNonDivisionalText = std::to_string(a.MaxOther);
  screen.MonthList = SeasonMonth(start.month) - 1;
  screen.DayList = start.day;
  if (Interactive() && !common.Quiet) {
    screen.Working = [](const std::string& caption) { std::cerr << '\r' << caption << std::flush; };
  }
  if (!editor.OpenComputerSchedule(screen)) return 1;
  if (!common.Quiet) std::cout << league.GameCount() << " games are on the schedule.\n";
  return 0;
}

int ShowSchedule(const ScheduleArguments& a, const Common& common) {
  MonthDay date;
  if (!a.Date.empty() && !ReadDate(a.Date, date)) return 1;
  if (!OpenSchedule(common)) return 1;
  const int team = a.Team.empty() ? 0 : FindTeam(a.Team);
  if (!a.Team.empty() && team == 0) return 1;
  const auto rows = GamesInOrder(date, team);
  if (rows.empty() && !common.Csv) {
    std::cout << (league.GameCount() == 0 ? "There are no games on the schedule.\n" : "No games.\n");
    return 0;
  }
  PrintGames(rows, common.Csv);
  return 0;
}

int PrintSchedule(const ScheduleArguments& a, const Common& common) {
  MonthDay date;
  if (!a.Date.empty() && !ReadDate(a.Date, date)) return 1;
  if (!OpenSchedule(common)) return 1;
  const HCSCHEDULE screen;
  for (const auto& line :
       a.Date.empty() ? screen.PRINTSCHEDULE() : screen.PrintCommand(date.month, date.day)) {
    std::cout << Plain(line) << '\n';
  }
  return 0;
}

int SetCoaches(const ScheduleArguments& a, const Common& common) {
  HCSCHEDULE editor;
  if (!OpenTheLeague(common) || !editor.Open()) return 1;
  if (a.Coach == "human") editor.SETALLHUMAN();
  if (a.Coach == "computer") editor.SETALLCOMPUTER();
  return editor.SaveCommand() ? 0 : 1;
}

int SummarizeSchedule(const Common& common) {
  if (!OpenSchedule(common)) return 1;
  std::vector<std::string> headings(std::begin(kSummaryColumns), std::end(kSummaryColumns));
  for (auto& heading : headings) heading = std::string(Trimmed(heading));
  headings[0] = common.Csv ? "Team" : "<" + headings[0];
  Columns table(headings);
  for (const auto& sum : HCSCHEDULE{}.Summary()) {
    std::vector<std::string> cells{ScheduleTeamName(sum.team)};
    for (const int count : {sum.total, sum.visitor, sum.home, sum.division, sum.divisionVisitor,
                            sum.divisionHome, sum.pool, sum.poolNonAdvancing}) {
      cells.push_back(std::to_string(count));
    }
    table.Row(std::move(cells));
  }
  table.Print(std::cout, common.Csv);
  return 0;
}

int ImportSchedule(const ScheduleArguments& a, const Common& common) {
  HCSCHEDULE editor;
  if (!OpenTheLeague(common) || !editor.Open()) return 1;
  return HcImportCSVSchedule(std::filesystem::absolute(a.File)) ? 0 : 1;
}

int ExportSchedule(const ScheduleArguments& a, const Common& common) {
  return OpenSchedule(common) && ExportCsvSchedule(a.File) ? 0 : 1;
}

int ClearSchedule(const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  HCSCHEDULE editor;
  return editor.Open() && editor.ERASESCHEDULE() ? 0 : 1;
}

int EditSchedule(const std::string& what, const ScheduleArguments& a, const Common& common) {
  ScheduleChoice choice;
  MonthDay date, to;
  if (!ReadDate(a.Date, date) || (what == "move" && !ReadDate(a.To, to)) || !OpenTheLeague(common)) return 1;
  choice = {TeamOrUndecided(a.Visitor), 0, date.month, date.day};
  if (choice.visitor == 0 || (choice.home = TeamOrUndecided(a.Home)) == 0) return 1;
  HCSCHEDULE editor;
  if (!editor.Open()) return 1;
  const int row = what == "add" ? 0 : RowOf(choice);
  if (what != "add" && row == 0) return Refuse("there is no such game on the schedule");
  bool done = false;
  if (what == "add") done = editor.AddGameCommand(choice);
  if (what == "delete") done = editor.DeleteGame(row);
  if (what == "neutral") done = editor.ToggleNeutral(row);
  if (what == "coach") done = editor.ToggleCoach(row, a.Coach == "visitor" ? 1 : 2);
  if (what == "move") {
    HcScheduleEditGame game;
    if (!game.Open(row)) return 1;
    game.choice.month = to.month;
    game.choice.day = to.day;
    done = game.SaveCommand(editor);
  }
  return done && editor.SaveCommand() ? 0 : 1;
}

int ListSchedules(const ScheduleArguments& a, const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  if (!a.File.empty() && !ChooseSchedule(a.File)) return 1;
  for (const auto& name : ScheduleFileList()) {
    std::cout << (name == ScheduleFile().filename() ? "* " : "  ") << name << '\n';
  }
  return 0;
}

int NameSchedule(const ScheduleArguments& a, bool rename, const Common& common) {
  if (!OpenSchedule(common)) return 1;
  const HCNEWSCHEDULE screen{a.Name};
  return (rename ? screen.RenameCommand() : screen.CreateCommand()) ? 0 : 1;
}

}  // namespace tipline::cli
