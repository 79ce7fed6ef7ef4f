#include "gamesetup/upcoming_games.h"

#include "base/calendar.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "league/program.h"
#include "league/schedule.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

void TakeDate(const ScheduleRecord& row) {
  constexpr int kJanuary = 5;  // as a season month
  game.GameDay = row.Day;
  game.GameCalendarMonth = row.Month;
  game.GameYear = league.ScheduleGame[1].Year;
  game.GameMonth = SeasonMonth(row.Month);
  if (game.GameMonth >= kJanuary) ++game.GameYear;
}

bool LoadBoth(const ScheduleRecord& row) {
  const bool loaded = LoadTeam(row.Team[1], 1);
  return LoadTeam(row.Team[2], 2) && loaded;
}

bool TeamsSelected(bool selected) {
  if (!selected) {
    platform::dialogs().Tell("Teams not selected for this game! Use Organize\\Schedule to select teams.",
                             "Teams Not Selected For This Game!");
  }
  return selected;
}

void PrepareAndPlay(GameScreens& screens) {
  PrepareGame();
  HCGAMEsetup setupScreen;
  screens.GameSetupScreen(setupScreen);
  NewGame();
  const bool watched = game.side[1].CoachMode == "H" || game.side[2].CoachMode == "H";
  if (watched) screens.OpenGame();
}

}  // namespace

bool PlayUpcomingGame(int row, GameScreens& screens) {
  if (row < 1 || row > league.GameCount()) return false;
  const ScheduleRecord chosen = league.ScheduleGame[static_cast<std::size_t>(row)];
  if (!TeamsSelected(chosen.Team[1] != kFreeAgent && chosen.Team[2] != kFreeAgent)) return false;
  if (!screens.Preview(chosen)) return false;
  game.ScheduleRow = row;
  game.WatchUntil = "NONE";
  TakeDate(chosen);
  program.ReplayLocked = true;
  program.GameKind = "L";
  program.TwoFolderGame = program.ScenarioGame = false;
  game.GameStarted = game.GameOver = game.GameDone = false;
  for (Side& side : game.side) side.CoachMode = "H";
  const bool loaded = LoadBoth(chosen);
  game.NeutralGame = chosen.NeutralSite == 1;
  if (TeamsSelected(loaded)) PrepareAndPlay(screens);  // a row may name a team that was removed since
  game.ScheduleRow = 0;
  LoadSchedule();
  program.Autoplaying = program.ReplayLocked = false;
  return loaded;
}

}  // namespace tipline
