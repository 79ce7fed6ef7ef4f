// The run: the next game, played, kept, and what ends it.
#include "season/autoplay_screen.h"

#include <algorithm>

#include "aftermath/box_file.h"
#include "aftermath/box_text.h"
#include "base/random.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "gamesetup/upcoming_games.h"
#include "league/files.h"
#include "league/program.h"
#include "league/setup.h"
#include "platform/dialogs.h"
#include "season/standings.h"

namespace tipline {
namespace {

ScheduleRecord& RowAt(int n) { return league.ScheduleGame[static_cast<std::size_t>(n)]; }

/// Games of the cup are on the schedule, and the dates that it needs are not all set.
bool CupIsIncomplete() {
  bool cup = false;
  ForScheduledGames([&cup](const ScheduleRecord& row, int) {
    cup = cup || std::string_view("PQNLSC").find(row.GameType.View()) != std::string_view::npos;
  });
  if (!cup) return false;
  const auto counts = CountGameTypes();
  const int pool = Round(league.ActiveTeams / 6.0);
  const int poolDates = 2 * Int(pool / 2.0 + 0.99) - 1;
  const auto dates = [&counts](int number) { return counts[number].dates; };
  return dates(2) < poolDates || dates(3) < 1 || dates(4) < 1 || dates(5) < 1 || dates(6) != 1 ||
         dates(7) != 1;
}

/// Neither a row that was dropped, nor one of teams that are gone, stays in the file.
bool LeavesTheFile(const ScheduleRecord& row) {
  return row.Status == 'D' || !IsScheduleTeam(row.Team[1]) || !IsScheduleTeam(row.Team[2]);
}

/// One number of many, each of which moves all bits of it.
std::uint64_t SeedOf(std::initializer_list<std::uint64_t> numbers) {
  std::uint64_t seed = 0;
  for (const std::uint64_t number : numbers) {
    seed = (seed ^ number) + 0x9e3779b97f4a7c15u;
    seed = (seed ^ (seed >> 30)) * 0xbf58476d1ce4e5b9u;
    seed = (seed ^ (seed >> 27)) * 0x94d049bb133111ebu;
    seed ^= seed >> 31;
  }
  return seed;
}

bool SideIsHuman() { return game.side[1].CoachMode == "H" || game.side[2].CoachMode == "H"; }

/// The books have the game; a league in memory alone has none to be kept in.
bool IsKept() { return game.GameOver && (game.InTheBooks || program.LeagueFolder.empty()); }

}  // namespace

bool HCAUTOPLAY::Open(bool playoffs) {
  program.PlayoffGame = playoffs;
  game.ExitRequested = false;
  if (!LoadSchedule()) return false;
  bool stale = DropMarks() > 0;
  for (auto row = league.ScheduleGame.begin() + 1; row != league.ScheduleGame.end(); ++row) {
    stale = stale || LeavesTheFile(*row);
  }
  if (stale && (!SaveSchedule() || !LoadSchedule())) return false;
  Reselected();
  IncompletePoolPicture = CupIsIncomplete();
  const auto open = RowsInOrder('U'), played = RowsInOrder('P');
  if (!open.empty()) {
    CurrentDate = DateOf(RowAt(open.front()));
  } else if (!played.empty()) {
    CurrentDate = DateOf(RowAt(played.back()));
  }
  return true;
}

void HCAUTOPLAY::OpenLiveTab(bool open) {
  Live.reset();
  if (!open) return;
  Live = std::make_unique<NowPlaying>();
  Live->LineShown = [this](std::string_view line) { screens_.PlayTold(line); };
  Live->WaitAtPause = [this] {
    screens_.Refresh();
    screens_.WaitAtPause();
  };
}

void HCAUTOPLAY::Reselected() {
  GamesMarked = AnyMarked();
  gathered_ = -1;
}

bool HCAUTOPLAY::SaveMarks() {
  const bool saved = SaveSchedule();
  Reselected();
  screens_.Refresh();
  return saved;
}

MarkedGames& HCAUTOPLAY::Marked() {
  if (gathered_ != league.GameCount()) {
    marked_.Gather();
    gathered_ = league.GameCount();
  }
  return marked_;
}

const ScheduleRecord* HCAUTOPLAY::Upcoming() { return league.Row(Marked().Peek()); }

void HCAUTOPLAY::EndRun() {
  AutoRunning = false;
  screens_.Refresh();
  if (!NoCompleteBox) platform::dialogs().Tell("All requested games have been played.", "Complete!");
  program.ReplayLocked = game.GameStarted = false;
}

/// Games in their order can't be played past one whose teams are not known.
void HCAUTOPLAY::StopAtUndecided() {
  DropMarks();
  StopRun = true;
  AutoRunning = program.ReplayLocked = false;
  SaveMarks();
  platform::dialogs().Tell(
      "Scheduled teams are not set for this date and\\or preceeding dates! To edit the schedule go to "
      "Organize\\Schedule.",
      "TBD Games On The Schedule!");
}

/// The game can't be loaded, or was not kept: the reason has been told.
void HCAUTOPLAY::Abandon() {
  DropMarks();
  GameLost = StopRun = true;
  AutoRunning = program.ReplayLocked = game.GameStarted = false;
  Reselected();
}

void HCAUTOPLAY::TakeRow(int row) {
  const ScheduleRecord& chosen = RowAt(row);
  game.ScheduleRow = PlayingRow = row;
  if (CurrentDate != DateOf(chosen)) {
    CurrentDate = DateOf(chosen);
    screens_.Refresh();
  }
  game.OffenseSide = 1;
  game.DefenseSide = 2;
}

void HCAUTOPLAY::PlayCommandChosen() {
  StopRun = GameLost = false;
  if (!ContinueRun && !GamesMarked) {
    program.ReplayLocked = false;
    platform::dialogs().Tell("No games are marked to play");
    return;
  }
  AutoRunning = true;
  ContinueRun = GamesMarked = false;
  const int row = Marked().Next();
  if (row == 0) return EndRun();
  TakeRow(row);
  if (marked_.UndecidedUpTo(RowAt(row))) {
    StopAtUndecided();
  } else if (ComputersPlay(RowAt(row))) {
    QuickAutoLoadAndPlay();
  } else {
    PlayHumanGame();
  }
  PlayingRow = game.ScheduleRow = 0;
  program.Autoplaying = false;
  screens_.Refresh();
}

/// Flags and date of the game of `PlayingRow`, and both teams. False, told, when a team can't be loaded.
bool HCAUTOPLAY::BeginGame() {
  const ScheduleRecord& row = RowAt(PlayingRow);
  program.ReplayLocked = true;
  program.GameKind = "L";
  program.TwoFolderGame = program.ScenarioGame = false;
  game.GameStarted = game.GameOver = game.GameDone = false;
  game.ExitRequested = false;
  game.WatchUntil = "NONE";
  TakeDateOf(row, league.ScheduleYear);
  for (int s = 1; s <= 2; ++s) {
    game.side[s].CoachMode = "C";
    if (row.CoachKind[s] == 'H') game.side[s].CoachMode = "H";
  }
  game.NeutralGame = row.NeutralSite == 1 || league.rules.NeutralCheck == 1;
  if (SeasonSeed) {
    const auto number = [](int n) { return static_cast<std::uint64_t>(n); };
    SeedRandom(SeedOf(
        {*SeasonSeed, number(Replay), number(DateKey(row)), number(row.Team[1]), number(row.Team[2])}));
  }
  if (!LoadBothTeams()) return false;
  PrepareGame();
  return true;
}

bool HCAUTOPLAY::LoadBothTeams() {
  for (int s = 1; s <= 2; ++s) {
    const int team = RowAt(PlayingRow).Team[s];
    if (!LoadTeam(team, s)) {
      const std::string name = ScheduleTeamName(team);
      return platform::RefusedWith((name.empty() ? "Team " + std::to_string(team) : name) +
                                   " could not be loaded!");
    }
  }
  return true;
}

void HCAUTOPLAY::QuickAutoLoadAndPlay() {
  if (StopRun) return;
  if (!BeginGame()) return Abandon();
  program.Autoplaying = true;
  if (Live) Live->BeginGame();
  if (setup.ComputerCheck == 1) {  // it is shown, and ends the run
    program.Autoplaying = false;
    screens_.OpenViewer();
    AutoRunning = GamesMarked = false;
  }
  NewGame();
  const bool joined = !game.GameOver && !game.ExitRequested;
  if (joined) screens_.OpenGame();
  AfterGame();
}

void HCAUTOPLAY::PlayHumanGame() {
  AutoRunning = false;
  if (!BeginGame()) return Abandon();
  HCGAMEsetup setupScreen;
  screens_.GameSetupScreen(setupScreen);
  NewGame();
  if (!game.GameDone) screens_.OpenGame();
  AutoRunning = GamesMarked = false;
  AfterGame();
}

/// A game that is over and kept leaves its row played; any other leaves it as it was.
void HCAUTOPLAY::AfterGame() {
  program.ReplayLocked = false;
  game.ExitRequested = false;
  if (!game.GameOver) {
    DropMarks();
    AutoRunning = false;
    Reselected();
  } else if (!IsKept()) {
    Abandon();
  } else {
    if (!SideIsHuman() && setup.ComputerCheck == 0) return;
    DropMarks();
    AutoRunning = false;
    Reselected();
  }
}

void HCAUTOPLAY::Timer1() {
  if (!game.GameOver || !AutoRunning || StopRun) return;
  if (Live && Live->FinishRequested) {  // the game was to be finished, and no other begun
    AutoRunning = false;
    return Reselected();
  }
  ContinueRun = true;
  PlayCommandChosen();
}

void HCAUTOPLAY::PauseCommand() {
  DropMarks();
  StopRun = true;
  AutoRunning = false;
  SaveMarks();
}

void HCAUTOPLAY::ExitCommand() {
  game.ExitRequested = PlayingRow != 0;
  if (Live) {
    Live->FinishRequested = false;
    Live->ContinueCommand();
  }
  PauseCommand();
}

void HCAUTOPLAY::Command1() {
  ExitCommand();
  program.ReplayLocked = game.GameStarted = false;
}

void HCAUTOPLAY::ContinueCommand() {
  if (Live) Live->ContinueCommand();
}

void HCAUTOPLAY::NextPlayCommand() {
  if (Live && Live->JoinEnabled) Live->NextPlayCommand();
}

void HCAUTOPLAY::FinishGameCommand() {
  if (Live && Live->JoinEnabled) Live->FinishCommand();
}

void HCAUTOPLAY::BoxCommand() {
  if (PlayingRow == 0) return;
  const std::string before = program.BoxFileName;
  program.BoxFileName = "TempBox";
  (void)WriteBoxText();  // the record takes its page from it
  const bool saved = SaveBoxFile();
  program.BoxFileName = before;
  if (saved) screens_.ShowBox();
}

bool HCAUTOPLAY::StandingsTypeMenu(bool conference) {
  if (!OrderStandingsBy(conference)) return false;
  screens_.Refresh();
  return true;
}

bool HCAUTOPLAY::JoinGameCommand() {
  if (!Live || PlayingRow == 0) return false;
  if (!Live->JoinEnabled || game.GameOver) {
    platform::dialogs().Beep();
    return false;
  }
  AutoRunning = false;
  RowAt(PlayingRow).CoachKind.Fill(std::string_view("H"));
  for (Side& side : game.side) side.CoachMode = "H";
  game.GameStarted = true;
  game.GameDone = program.Autoplaying = false;
  Live->FinishCommand();  // from here on it is the coach who stops the game
  return true;
}

}  // namespace tipline
