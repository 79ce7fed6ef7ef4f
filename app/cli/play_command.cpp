// One exhibition game: between computers in one go, or coached at the terminal.
#include <unistd.h>

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

bool Coaches(const PlayRequest& request, int side) {
  return request.Coach == "both" || request.Coach == (side == 1 ? "visitor" : "home");
}

/// Who sits where, and how often he is asked.
void SeatCoaches(const PlayRequest& request) {
  for (int s = 1; s <= 2; ++s) game.side[s].CoachMode = "C";
  for (int s = 1; s <= 2; ++s) {
    if (Coaches(request, s)) game.side[s].CoachMode = "H";
  }
  if (request.Calls == "none") CallNoPlays();
  if (request.Calls == "default") UseDefaultCalls();
  if (request.Calls == "all") CallAllPlays();
}

/// A human starts with what his preferences leave to the computer.
bool PlayCoached() {
  for (int s = 1; s <= 2; ++s) {
    Side& side = game.side[s];
    if (side.CoachMode != "H") continue;
    side.AutoSubWhenTired = setup.SubWhenTiredCheck;
    side.AutoSubWhenFoulTrouble = setup.SubWhenInFoulTroubleCheck;
    side.UseRotationGrid = setup.UseRotationGridCheck;
    side.BothOffenses = setup.BothOffensesCheck;
    side.BothDefenses = setup.BothDefensesCheck;
  }
  CoachSession session(std::cin, std::cout, std::cerr,
                       {isatty(STDIN_FILENO) != 0, isatty(STDOUT_FILENO) != 0});
  return session.Run();
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
