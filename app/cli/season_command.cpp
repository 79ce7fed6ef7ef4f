#include "cli/season_command.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <thread>

#include "base/calendar.h"
#include "base/numbers.h"
#include "base/text.h"
#include "cli/columns.h"
#include "cli/leader_commands.h"
#include "cli/season_screens.h"
#include "cli/terminal.h"
#include "engine/game_state.h"
#include "league/files.h"
#include "league/player_values.h"
#include "league/program.h"
#include "season/autoplay_display.h"
#include "season/standings.h"

namespace tipline::cli {
namespace {

/// A month by its number or the beginning of its name; 0, told, for any other text.
int ReadMonth(const std::string& text) {
  if (const auto number = NumberIn<int>(text); number && *number >= 1 && *number <= 12) return *number;
  for (int month = 1; month <= 12 && text.size() >= 3; ++month) {
    if (SameText(MonthName(month).substr(0, text.size()), text)) return month;
  }
  Refuse("\"" + text + "\" is no month; write its name, or 1 to 12");
  return 0;
}

bool ReadGameDate(const std::string& text, GameDate& date) {
  MonthDay read;
  if (!ReadDate(text, read)) return false;
  date = {read.month, read.day};
  return true;
}

/// What the options choose; false, told, when they say nothing of use.
bool ReadSelection(const SeasonArguments& a, const HCAUTOPLAY& screen, Selection& selection) {
  if (a.Day) selection = {Scope::kDay, screen.CurrentDate, 0};
  if (!a.Date.empty()) {
    selection.Scope = Scope::kDay;
    if (!ReadGameDate(a.Date, selection.Date)) return false;
  }
  if (!a.Through.empty()) {
    selection.Scope = Scope::kThrough;
    if (!ReadGameDate(a.Through, selection.Date)) return false;
  }
  if (!a.Month.empty()) {
    selection.Scope = Scope::kMonth;
    selection.Date.month = ReadMonth(a.Month);
    if (selection.Date.month == 0) return false;
  }
  if (!a.Team.empty()) selection.Team = FindTeam(a.Team);
  return a.Team.empty() || selection.Team != 0;
}

std::string GameText(const ScheduleRecord& row) {
  return DateText({row.Month, row.Day}) + " " + ScheduleTeamName(row.Team[1]) + " @ " +
         ScheduleTeamName(row.Team[2]);
}

/// Nobody is asked for a game without a human, or when somebody is there to coach it.
bool MayBePlayed(const SeasonArguments& a, const ScheduleRecord& row) {
  if (ComputersPlay(row)) return true;
  if (a.Humans == "stop" || (a.Humans.empty() && !Interactive())) {
    Refuse("the next game, " + GameText(row) +
           ", has a human coach: --humans coach lets you coach it here, --humans computer leaves it to the "
           "computer");
    return false;
  }
  return true;
}

std::string GamesText(int games) { return Str(games) + (games == 1 ? " game" : " games"); }

/// The run and what ends it; gives the exit code and counts the games.
int Run(const SeasonArguments& a, HCAUTOPLAY& screen, SeasonScreens& screens, int& played) {
  while (const ScheduleRecord* next = screen.Upcoming()) {
    if (const int signal = StopRequest::Signal()) return 128 + signal;
    if (!MayBePlayed(a, *next)) return 1;
    const GameDate date = DateOf(*next);
    const int row = static_cast<int>(next - league.ScheduleGame.data());
    screen.ContinueRun = true;
    screen.PlayCommandChosen();
    if (row > 0 && league.Row(row)->Status == 'P') ++played;
    if (screen.GameLost || screen.StopRun) return 1;
    screens.progress->Show(played, DateText({date.month, date.day}));
    screens.TellResult();
    const bool finished = screen.Live && screen.Live->FinishRequested;  // and no other game begun
    if (!game.GameOver || finished) break;
  }
  return 0;
}

/// Behind a run: what it came to.
void Report(int code, int played, double seconds, const Common& common) {
  const auto left = static_cast<int>(RowsInOrder('U').size() + RowsInOrder('N').size());
  if (!common.Quiet) {
    std::cout << GamesText(played) << " played in " << Fixed(seconds, 1) << " seconds, " << Str(left)
              << " to come\n";
  }
  if (code >= 128) {
    std::cerr << "tipline: stopped; every game played is kept, go on with: tipline season play --all\n";
    return;
  }
  if (played == 0) return;
  std::cout << '\n';
  PrintPlain(std::cout, StandingsPage(OrderStandings(), true));
  LeaderRequest leaders;
  leaders.Top = 5;
  ShowLeaders(leaders, common);
}

}  // namespace

int PlaySeason(const SeasonArguments& a, const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  StopRequest stop;
  SeasonScreens screens(a, common, stop);
  HCAUTOPLAY screen(screens);
  screens.screen = &screen;
  screen.NoCompleteBox = true;
  screen.SeasonSeed = common.Seed;
  Selection selection;
  if (!screen.Open(league.rules.IsPlayoffModule == 1) || !ReadSelection(a, screen, selection)) return 1;
  if (screen.IncompletePoolPicture && !common.Quiet)
    std::cerr << "The dates of the in-season tournament are not all set.\n";
  const int games = screen.ChooseFirst(selection, a.Games > 0 ? a.Games : league.GameCount());
  if (games == 0) {
    if (!common.Quiet) std::cout << "No games are left to play there.\n";
    return 0;
  }
  if (a.Live) screen.OpenLiveTab(true);
  ProgressLine progress(games, common.Quiet || a.Live);
  screens.progress = &progress;
  const auto start = std::chrono::steady_clock::now();
  int played = 0;
  const int code = Run(a, screen, screens, played);
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  progress.Clear();
  DropMarks();
  screen.OpenLiveTab(false);
  Report(code, played, time.count(), common);
  return code;
}

int ReplaySeason(const SeasonArguments& a, const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  StopRequest stop;
  SeasonScreens screens(a, common, stop);
  HCAUTOPLAY screen(screens);
  screens.screen = &screen;
  screen.SeasonSeed = common.Seed;
  if (!screen.Open()) return 1;
  screens.gamesOfReplay = static_cast<int>(RowsInOrder('U').size() + RowsInOrder('P').size());
  const int cores = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  ProgressLine progress(a.Replays * screens.gamesOfReplay, common.Quiet);
  screens.progress = &progress;
  const bool done = screen.BulkRunCommand(a.Replays, a.Jobs > 0 ? a.Jobs : cores);
  progress.Clear();
  if (const int signal = StopRequest::Signal()) {
    std::cerr << "tipline: stopped; BulkReplay.csv holds the replays that were done\n";
    return 128 + signal;
  }
  return done ? 0 : 1;
}

int ShowSeasonStatus(const SeasonArguments& a, const Common& common) {
  if (!OpenTheLeague(common) || !LoadSchedule()) return 1;
  auto open = RowsInOrder('U');
  const auto marked = RowsInOrder('N');
  open.insert(open.end(), marked.begin(), marked.end());
  const auto rowAt = [](int n) -> const ScheduleRecord& { return *league.Row(n); };
  std::stable_sort(open.begin(), open.end(),
                   [&](int x, int y) { return DateKey(rowAt(x)) < DateKey(rowAt(y)); });
  const auto played = RowsInOrder('P').size();
  if (!common.Csv) {
    std::cout << Str(static_cast<int>(played)) << " of " << GamesText(static_cast<int>(played + open.size()))
              << " played";
    if (!open.empty()) std::cout << ", next on " << DateText({rowAt(open[0]).Month, rowAt(open[0]).Day});
    std::cout << "\n";
  }
  if (open.empty() && !common.Csv) return 0;
  Columns table(common.Csv ? std::vector<std::string>{"Date", "Visitor", "Home", "Coaches", "Line"}
                           : std::vector<std::string>{"<Date", "<Visitor", "<Home", "<Coach", "<Line"});
  for (std::size_t k = 0; k < open.size() && k < static_cast<std::size_t>(a.Next); ++k) {
    const ScheduleRecord& row = rowAt(open[k]);
    const std::string coaches = row.CoachKind[1].Str() + row.CoachKind[2].Str();
    table.Row({DateText({row.Month, row.Day}), ScheduleTeamName(row.Team[1]), ScheduleTeamName(row.Team[2]),
               common.Csv           ? coaches
               : ComputersPlay(row) ? "computer"
                                    : "human",
               EnterPointSPread(row)});
  }
  if (!common.Csv && a.Next > 0) std::cout << '\n';
  if (common.Csv || a.Next > 0) table.Print(std::cout, common.Csv);
  return 0;
}

}  // namespace tipline::cli
