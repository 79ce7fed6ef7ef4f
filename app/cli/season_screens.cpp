#include "cli/season_screens.h"
#include "aftermath/game_done.h"

#include <unistd.h>

#include <cstdio>
#include <iostream>
#include <thread>

#include "cli/box_score.h"
#include "cli/coach_session.h"
#include "cli/columns.h"
#include "cli/terminal.h"
#include "engine/game_state.h"
#include "league/program.h"
#include "league/setup.h"

namespace tipline::cli {
namespace {

std::string Minutes(double seconds) {
  const int whole = static_cast<int>(seconds + 0.5);
  const int rest = whole % 60;
  return std::to_string(whole / 60) + (rest < 10 ? ":0" : ":") + std::to_string(rest);
}

void PrintScore() {
  std::cout << TeamName(game.team[1]) << " " << game.side[1].Score << ", " << TeamName(game.team[2]) << " "
            << game.side[2].Score << '\n';
}

}  // namespace

ProgressLine::ProgressLine(int games, bool quiet)
    : games_(games), shown_(!quiet && isatty(STDERR_FILENO) != 0) {}

void ProgressLine::Show(int done, const std::string& what) {
  if (!shown_) return;
  const auto now = Clock::now();
  if (now - last_ < std::chrono::milliseconds(100) && done < games_) return;
  last_ = now;
  const double seconds = std::chrono::duration<double>(now - start_).count();
  const double rate = seconds > 0 ? done / seconds : 0;
  std::string line = what + "  " + Str(done) + " of " + Str(games_) + " games";
  if (done > 0) line += ", " + Fixed(rate, 0) + " a second, " + Minutes((games_ - done) / rate) + " left";
  std::cerr << '\r' << line << "\033[K" << std::flush;
  dirty_ = true;
}

void ProgressLine::Clear() {
  if (dirty_) std::cerr << "\r\033[K" << std::flush;
  dirty_ = false;
}

void SeasonScreens::GameSetupScreen(HCGAMEsetup& setupScreen) {
  if (progress) progress->Clear();
  if (a_.Humans == "computer") {
    setupScreen.ComputerOption.Fill(true);
    setupScreen.SaveChanges();  // for this game: the user's preferences stay as they are
    return;
  }
  setupScreen.Ok();
  seen_ = true;
  std::cout << '\n'
            << DateText({game.GameCalendarMonth, game.GameDay}) << ": " << TeamName(game.team[1])
            << (game.NeutralGame ? " and " : " at ") << TeamName(game.team[2]) << '\n';
  if (!quiet_ && !a_.Live) printer_.emplace(std::cout);
  game.CommentaryOn = !quiet_ || a_.Live;
}

/// A computer game that the preferences want shown.
void SeasonScreens::OpenViewer() {
  seen_ = true;
  if (progress) progress->Clear();
  if (!quiet_ && !a_.Live) printer_.emplace(std::cout);
  game.CommentaryOn = !quiet_ || a_.Live;
}

void SeasonScreens::OpenGame() {
  seen_ = true;
  stop_.Pause();
  const bool told = printer_.has_value() || a_.Live;
  CoachSession session(std::cin, std::cout, std::cerr,
                       {isatty(STDIN_FILENO) != 0, isatty(STDOUT_FILENO) != 0, told});
  session.GoOnFromHere();
  stop_.Resume();
}

void SeasonScreens::PlayTold(std::string_view line) {
  if (!quiet_) std::cout << Plain(std::string(line)) << '\n';
}

void SeasonScreens::ShowBox() { PrintBox(std::cout); }

void SeasonScreens::TakeCommand() {
  const auto answer = AskLine("Enter goes on; n next play, f finish, b box, j take over, x exit: ");
  if (!answer || *answer == "x") return screen->ExitCommand();
  if (*answer == "n") return screen->NextPlayCommand();
  if (*answer == "f") return screen->FinishGameCommand();
  if (*answer == "b") return screen->BoxCommand();
  if (*answer == "j") {
    screen->JoinGameCommand();
    return;
  }
  if (answer->empty()) screen->ContinueCommand();
}

void SeasonScreens::WaitAtPause() {
  const NowPlaying& live = *screen->Live;
  if (!Interactive()) return screen->ContinueCommand();
  if (!live.PauseCountdownRunning) {
    PrintScore();
    return TakeCommand();
  }
  std::this_thread::sleep_for(std::chrono::seconds(1));
  screen->Live->NowPlayingTimer();
}

void SeasonScreens::BulkProgress(int replays, int games) {
  if (!progress) return;
  progress->Show(replays * gamesOfReplay + games, "Bulk Completed: " + Str(replays));
}

void SeasonScreens::TellResult() {
  printer_.reset();
  if (!a_.Live) game.CommentaryOn = false;
  if (!seen_) return;
  seen_ = false;
  if (!game.GameOver) {
    std::cout << "The game was not finished.\n";
    return;
  }
  LeaveGameScreen();
  std::cout << '\n';
  PrintBox(std::cout);
  std::cout << "\nFinal: ";
  PrintScore();
}

}  // namespace tipline::cli
