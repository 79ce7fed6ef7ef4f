#include "harness/disk_league.h"

#include <stdexcept>

#include "engine/game_state.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/program.h"
#include "league/rules.h"
#include "league/schedule.h"

namespace tipline {

void MakeDiskLeague(LeagueRequest request) {
  if (!UseShippedEras()) throw std::runtime_error("the era tables can't be read");
  if (request.Name.empty()) request.Name = "Disk";
  std::string message;
  if (!MakeLeague(request, message)) throw std::runtime_error(message);
  program.LeagueFolder = LeaguesFolder() / request.Name;
  if (!LoadRules() || !LoadAllTeams() || !LoadSchedule())
    throw std::runtime_error("the league was not opened");
  LoadLeaguePlayers();
}

int PlayScheduledGames(int most, std::optional<std::uint64_t> seed, const std::function<void(int)>& behind) {
  NoScreens screens;
  HCAUTOPLAY screen(screens);
  screen.NoCompleteBox = true;
  screen.SeasonSeed = seed;
  if (!screen.Open()) throw std::runtime_error("the schedule was not opened");
  screen.ChooseFirst({}, most > 0 ? most : league.GameCount());
  int played = 0;
  while (screen.Upcoming()) {
    screen.ContinueRun = true;
    screen.PlayCommandChosen();
    if (screen.GameLost || screen.StopRun || !game.InTheBooks) break;
    ++played;
    if (behind) behind(played);
  }
  return played;
}

}  // namespace tipline
