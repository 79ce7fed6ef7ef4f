#include "engine/point_spread.h"

#include "base/numbers.h"
#include "engine/game_state.h"

namespace tipline {

BettingLine PointSpread() {
  constexpr double kHomeCourt = 3.5;
  double gap = game.team[1].PowerRating - game.team[2].PowerRating;
  if (!game.NeutralGame) gap -= kHomeCourt;
  const int points = Int(gap + 0.5);
  return {points, points > 0 ? 1 : points < 0 ? 2 : 0};
}

}  // namespace tipline
