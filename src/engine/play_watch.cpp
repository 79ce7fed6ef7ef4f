#include "engine/play_watch.h"

#include "engine/game_state.h"

namespace tipline {

void ShowToWatcher(int side, int period, bool posted) {
  if (!game.Watcher || game.AnalysisMode) return;
  PlayMoment moment;
  moment.Side = side;
  moment.Posted = posted;
  if (posted) {
    moment.Slot = game.play.PostedSlot;
    moment.PlayResult = game.play.Posted;
  }
  moment.Period = period;
  moment.PeriodEnded = game.GameOver || game.Period != period;
  moment.Clock = moment.PeriodEnded ? 0 : game.GameClock;
  game.Watcher->PlayShown(moment);
}

}  // namespace tipline
