// One exhibition game: between computers in one go, or coached at the terminal.
#include <unistd.h>

#include <chrono>
#include <iostream>
#include <optional>

#include "aftermath/game_done.h"
#include "cli/box_score.h"
#include "cli/coach_marks.h"
#include "cli/coach_session.h"
#include "cli/commands.h"
#include "cli/commentary_print.h"
#include "cli/game_request.h"
#include "cli/speaker.h"
#include "cli/terminal.h"
#include "engine/eligible.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "gamesetup/team_pick_screen.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/league_check.h"
#include "league/program.h"
#include "league/setup.h"
#include "narration/film.h"

namespace tipline::cli {
namespace {

bool Coaches(const PlayRequest& request, int side) {
  return request.Coach == "both" || request.Coach == (side == 1 ? "visitor" : "home");
}

/// The screens of a game as the terminal has them: the options answer the preference screen.
class TerminalGame : public GameScreens {
 public:
  TerminalGame(const PlayRequest& request, const Common& common, WatchUntil until)
      : request_(request), quiet_(common.Quiet), until_(until) {}
  bool Preview(const ScheduleRecord&) override { return true; }
  void GameSetupScreen(HCGAMEsetup& screen) override;
  void OpenViewer() override { viewed_ = true; }
  void OpenGame() override { Coach(); }

  /// A game of two computers was told as it went.
  bool Watched() const { return printer_ && game.side[1].CoachMode == "C" && game.side[2].CoachMode == "C"; }
  /// The game came to its end; a viewed one is told from the first play on.
  bool Finished() {
    if (viewed_ && game.GameOver) Coach();
    return game.GameOver;
  }

 private:
  void UseRequest(HCGAMEsetup& screen) const;
  void Coach() const;

  const PlayRequest& request_;
  bool quiet_;
  WatchUntil until_;
  bool viewed_ = false;
  std::optional<CommentaryPrinter> printer_;
  std::optional<Speaker> speaker_;
};

void TerminalGame::GameSetupScreen(HCGAMEsetup& screen) {
  for (int s = 1; s <= 2; ++s) screen.ComputerOption[s] = !Coaches(request_, s);
  if (request_.Neutral) screen.ClickNeutral(true);
  screen.Zoom(until_);
  screen.Ok();
  UseRequest(screen);
  std::cout << TeamName(game.team[1]) << (game.NeutralGame ? " and " : " at ") << TeamName(game.team[2])
            << (game.NeutralGame ? " on a neutral court" : ", " + screen.ArenaLabel) << "\n";
  if (screen.PointSpreadLabel != "No Line") std::cout << screen.PointSpreadLabel << "\n";
  const bool told = !quiet_ && !request_.Log;
  // Somebody who watches at a terminal reads with the game: a tenth of a second for each step of the setting.
  const bool reads = isatty(STDOUT_FILENO) != 0 && !request_.Fast;
  if (told) printer_.emplace(std::cout, std::chrono::milliseconds(reads ? 100 * setup.PBPdelayscroll : 0));
  if (request_.Speak) {
    TurnNarratorOn();
    speaker_.emplace();
  }
  game.CommentaryOn = told || request_.Speak || !request_.Film.empty();
}

/// How often a human is asked. The setup file is written by then: the option is for this game alone.
void TerminalGame::UseRequest(HCGAMEsetup& screen) const {
  if (request_.Calls == "none") screen.CallNoPlaysCommand();
  if (request_.Calls == "default") screen.Command2();
  if (request_.Calls == "all") screen.Command3();
  if (request_.Brief) screen.Controls.PBPOption = 1;
  screen.SaveChanges();
}

void TerminalGame::Coach() const {
  CoachSession session(std::cin, std::cout, std::cerr,
                       {isatty(STDIN_FILENO) != 0, isatty(STDOUT_FILENO) != 0, printer_.has_value()});
  session.GoOnFromHere();
}

/// The visitor's league, where he comes from another one.
bool EnterFolder(const PlayRequest& request, HCGameTeams2008& screen) {
  if (request.From.empty()) return true;
  const auto folder = FindLeague(request.From);
  if (folder.empty()) return Refuse("there is no league named \"" + request.From + "\""), false;
  if (const auto fault = LeagueFault(folder); !fault.empty()) return Refuse(fault), false;
  screen.PickFolder(1, folder);
  return true;
}

bool EnterTeams(const PlayRequest& request, HCGameTeams2008& screen) {
  for (int s = 1; s <= 2; ++s) {
    const int team = FindTeam(s == 1 ? request.Visitor : request.Home, screen.PickTeams[s]);
    if (team == 0) return false;
    screen.PickTeam(s, team);
    if (game.GameTeam[s] == 0) return Refuse("team " + std::to_string(team) + " can't be loaded"), false;
    const int men = CountEligible(s);
    if (men < kPositions) {
      Refuse(TeamName(game.team[s]) + " has only " + std::to_string(men) + " men who can play");
      return false;
    }
  }
  return true;
}

/// The mark of --until; "NONE" without it. False, told, when it does not lie ahead.
bool EnterMark(const std::string& text, const HCGameTeams2008& screen, WatchUntil& mark) {
  if (text.empty()) return true;
  const int period = screen.ScenarioPeriod + 1;
  const int clock = screen.ScenarioMinutes * kMinute + screen.ScenarioSeconds * 10;
  mark = ReadMark(SplitWords(text), period);
  if (Ahead(mark, period, clock)) return true;
  Refuse("\"" + text + "\" is no mark ahead of this game; say such as \"end 2\" or \"4th 2:00\"");
  return false;
}

}  // namespace

int PlayExhibition(const PlayRequest& request, const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  program.GameKind = "E";
  program.ScenarioGame = !request.Scenario.empty();
  HCGameTeams2008 screen;
  WatchUntil until;
  if (!request.Date.empty() && !EnterDate(request.Date, screen)) return 1;
  if (program.ScenarioGame && !EnterScenario(request.Scenario, screen)) return 1;
  if (!EnterMark(request.Until, screen, until)) return 1;
  if (!EnterFolder(request, screen) || !EnterTeams(request, screen)) return 1;
  TerminalGame terminal(request, common, until);
  const bool played = screen.PlayCommand(terminal);
  const bool finished = played && terminal.Finished();
  program.Autoplaying = program.ReplayLocked = program.ScenarioGame = game.CommentaryOn = false;
  if (!played) return 1;
  const int code = request.Film.empty() || SaveFilm(request.Film) ? 0 : 1;
  if (!finished) {
    std::cout << "The game was not finished.\n";
    return code;
  }
  std::cout << (terminal.Watched() ? std::string(99, '-') : "") << '\n';
  LeaveGameScreen();
  PrintBox(std::cout);
  std::cout << "\nFinal: " << TeamName(game.team[1]) << " " << game.side[1].Score << ", "
            << TeamName(game.team[2]) << " " << game.side[2].Score << '\n';
  return code;
}

}  // namespace tipline::cli
