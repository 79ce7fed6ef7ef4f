#include "aftermath/power_rating.h"

#include <cstdlib>

#include "engine/game_state.h"

namespace tipline {

double DampedMargin(int margin) {
  const int size = std::abs(margin);
  const double share = size > 29   ? 0.5
                       : size > 24 ? 0.6
                       : size > 19 ? 0.7
                       : size > 14 ? 0.8
                       : size > 9  ? 0.9
                                   : 1;
  return margin * share + 1;
}

double RatingStep(double margin, int spread, int games) {
  const double weight = games >= 30 ? 0.7 : games >= 20 ? 0.8 : games >= 10 ? 0.9 : 1.0;
  const bool better = margin > spread;
  const double miss = better ? margin - spread : spread - margin;
  const double step = miss > 9 ? 0.9 : miss > 6 ? 0.7 : miss > 3 ? 0.5 : 0.3;
  return weight * (better ? step : -step);
}

void UpdatePowerRatings() {
  double margin = DampedMargin(game.side[1].Score - game.side[2].Score);
  for (int side = 1; side <= 2; ++side) {
    TeamRecord& team = game.team[side];
    team.PowerRating += RatingStep(margin, game.SpreadPoints, team.Wins + team.Losses);
    if (side == 2) break;
    margin = -margin;
    game.SpreadPoints = -game.SpreadPoints;
  }
}

}  // namespace tipline
