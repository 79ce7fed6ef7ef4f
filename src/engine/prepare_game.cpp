// A game is set up: tables cleared, start values given.
#include <algorithm>

#include "coach/game_plan.h"
#include "coach/substitutions.h"
#include "engine/chances.h"
#include "engine/engine.h"
#include "engine/fatigue.h"
#include "engine/game_state.h"
#include "engine/point_spread.h"
#include "engine/weights.h"
#include "league/shot_splits.h"
#include "narration/narrator.h"

namespace tipline {
namespace {

void ClearGameLine(PlayerRecord& p) {
  p.Stats[3] = {};
  for (int period = 1; period <= 5; ++period) p.QuarterPoints[period][3] = 0;
  for (const ShotSplit& split : kShotSplits) (p.*split.man)[3] = 0;
  for (auto* total :
       {&p.OppFGA, &p.OppFGM, &p.CarriedTotal1, &p.CarriedTotal2, &p.CarriedTotal3, &p.CarriedTotal4}) {
    (*total)[3] = 0;
  }
  p.Flagrants[3] = 0;
}

}  // namespace

void PrepareGame() {
  Table<CoachMode, 1, 2> mode;
  for (int s = 1; s <= 2; ++s) mode[s] = game.side[s].CoachMode;
  static_cast<GameRun&>(game) = GameRun{};
  game.GameClock = FullPeriod();
  game.ShotClock = FullShotClock();
  for (int s = 1; s <= 2; ++s) {
    Side& side = game.side[s];
    side.CoachMode = mode[s];
    side.TimeoutsLeft = league.rules.TimeoutList;
    side.GamePlanIndex = PlanAgainst(game.coach[s], game.GameTeam[3 - s]);
    game.team[s].Possessions[3] = game.team[s].OppPossessions[3] = 0;
    game.team[s].TeamRebounds[3] = 0;
    for (int slot = 1; slot <= kRosterSlots; ++slot) ClearGameLine(PlayerAt(s, slot));
  }
  game.SpreadPoints = PointSpread().points;
  game.TickerStamp = game.team[2].ArenaAge * 12 + 1;
  const int nerve = Rnd(4);
  game.RunOffset = nerve - Rnd(4);
  CalibrateLeague();
}

void NewGame() {
  if (game.GameOver) return;
  game.GameDone = false;
  BeginFilm();
  game.OffenseSide = 2;
  game.DefenseSide = 1;
  game.ActingSide = 1;
  LoadLineups();
  game.GameState = "JUMPBALL-1";
  SetPlayBox();
}

}  // namespace tipline
