// One exhibition game: between computers in one go, or coached at the terminal.
#include <unistd.h>

#include <csignal>
#include <iostream>

#include "cli/box_score.h"
#include "cli/coach_session.h"
#include "cli/commands.h"
#include "cli/terminal.h"
#include "engine/eligible.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "league/files.h"
#include "league/program.h"
#include "league/setup.h"

namespace tipline::cli {
namespace {

constexpr int kInterrupted = 130;

/// Ctrl-C leaves at once. Lines are read as they are typed, so the terminal needs no repair but its plain
/// letters.
void Interrupted(int) {
  constexpr char kPlain[] = "\033[0m\n";
  const bool terminal = isatty(STDOUT_FILENO);
  const char* text = terminal ? kPlain : kPlain + sizeof kPlain - 2;
  if (write(STDOUT_FILENO, text, terminal ? sizeof kPlain - 1 : 1) < 0) _exit(1);
  _exit(kInterrupted);
}

bool Coaches(const PlayRequest& request, int side) {
  return request.Coach == "both" || request.Coach == (side == 1 ? "visitor" : "home");
}

/// Who sits where, and how often he is asked. A human's tired men, and those in foul trouble, come off by
/// themselves until he says otherwise.
void SeatCoaches(const PlayRequest& request) {
  for (int s = 1; s <= 2; ++s) game.side[s].CoachMode = "C";
  for (int s = 1; s <= 2; ++s) {
    if (Coaches(request, s)) game.side[s].CoachMode = "H";
  }
  if (request.Calls == "none") CallNoPlays();
  if (request.Calls == "default") UseDefaultCalls();
  if (request.Calls == "all") CallAllPlays();
}

bool PlayCoached() {
  for (int s = 1; s <= 2; ++s) {
    Side& side = game.side[s];
    if (side.CoachMode == "H") side.AutoSubWhenTired = side.AutoSubWhenFoulTrouble = 1;
  }
  const auto before = std::signal(SIGINT, Interrupted);
  CoachSession session(std::cin, std::cout, std::cerr,
                       {isatty(STDIN_FILENO) != 0, isatty(STDOUT_FILENO) != 0});
  const bool finished = session.Run();
  std::signal(SIGINT, before);
  return finished;
}

/// Loads both teams. 0, or the exit code of the refusal, told.
int LoadTeams(const PlayRequest& request) {
  const int visitor = FindTeam(request.Visitor);
  if (visitor == 0) return 1;
  const int home = FindTeam(request.Home);
  if (home == 0) return 1;
  if (visitor == home) return Refuse("a team can't play itself");
  LoadLeaguePlayers();
  program.GameKind = "E";
  for (int s = 1; s <= 2; ++s) {
    const int team = s == 1 ? visitor : home;
    if (!LoadTeam(team, s)) return Refuse("team " + std::to_string(team) + " can't be loaded");
    const int men = CountEligible(s);
    if (men < kPositions) {
      return Refuse(TeamName(game.team[s]) + " has only " + std::to_string(men) + " men who can play");
    }
  }
  return 0;
}

}  // namespace

int PlayExhibition(const PlayRequest& request, const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  if (const int refused = LoadTeams(request)) return refused;
  SeatCoaches(request);
  program.Autoplaying = request.Coach == "none";
  game.WatchUntil = "NONE";
  PrepareGame();
  std::cout << TeamName(game.team[1]) << " at " << TeamName(game.team[2]) << ", "
            << game.team[2].ArenaName.Str() << "\n";
  if (program.Autoplaying) {
    NewGame();
    program.Autoplaying = false;
  } else if (!PlayCoached()) {
    std::cout << "The game was not finished.\n";
    return 0;
  }
  std::cout << '\n';
  PrintBox(std::cout);
  std::cout << "\nFinal: " << TeamName(game.team[1]) << " " << game.side[1].Score << ", "
            << TeamName(game.team[2]) << " " << game.side[2].Score << '\n';
  return 0;
}

}  // namespace tipline::cli
