#include "gamesetup/upcoming_games.h"

#include "base/calendar.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "league/program.h"
#include "league/roster.h"
#include "league/schedule.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

/// A row names no team yet, or one that was removed since.
bool TeamsSelected(const ScheduleRecord& row) {
  Roster roster;
  if (LookAtRoster(row.Team[1], roster) && LookAtRoster(row.Team[2], roster)) return true;
  return platform::RefusedWith("Teams not selected for this game! Use Organize\\Schedule to select teams.",
                               "Teams Not Selected For This Game!");
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

void TakeDateOf(const ScheduleRecord& row, int seasonYear) {
  constexpr int kJanuary = 5;  // as a season month
  game.GameDay = row.Day;
  game.GameCalendarMonth = row.Month;
  game.GameYear = seasonYear;
  game.GameMonth = SeasonMonth(row.Month);
  if (game.GameMonth >= kJanuary) ++game.GameYear;
}

bool PlayUpcomingGame(int row, GameScreens& screens) {
  if (!league.Row(row)) return false;
  const ScheduleRecord chosen = *league.Row(row);
  if (!TeamsSelected(chosen)) return false;
  if (!screens.Preview(chosen)) return false;
  game.ScheduleRow = row;
  game.WatchUntil = "NONE";
  TakeDateOf(chosen, league.ScheduleGame[1].Year);
  program.ReplayLocked = true;
  program.GameKind = "L";
  program.TwoFolderGame = program.ScenarioGame = false;
  game.GameStarted = game.GameOver = game.GameDone = false;
  for (Side& side : game.side) side.CoachMode = "H";
  for (int s = 1; s <= 2; ++s) LoadTeam(chosen.Team[s], s);
  game.NeutralGame = chosen.NeutralSite == 1;
  PrepareAndPlay(screens);
  game.ScheduleRow = 0;
  LoadSchedule();
  program.Autoplaying = program.ReplayLocked = false;
  return true;
}

}  // namespace tipline
