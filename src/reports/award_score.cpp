#include "reports/award_score.h"

namespace tipline {

double TeamWinFactor(const TeamRecord& team) {
  const int games = team.Wins + team.Losses;
  const double share = games > 0 ? static_cast<double>(team.Wins) / games : 0.5;
  if (share > 0.7) return 1.15;
  if (share > 0.6) return 1.1;
  if (share > 0.5) return 1.05;
  if (share < 0.3) return 0.85;
  if (share < 0.4) return 0.9;
  return share < 0.5 ? 0.95 : 1;
}

double DefenseFactor(const PlayerRecord& player) {
  constexpr double kFactors[] = {0.95, 0.97, 0.99, 1, 1, 1, 1, 1, 1.01, 1.03, 1.04};
  return player.RateDefOutside <= 10 ? kFactors[player.RateDefOutside] : 1;
}

double MvpScore(const StatLine& line, double efficiency, const PlayerRecord& player, const TeamRecord& team) {
  return line.Min / 100.0 * (efficiency / 100) * TeamWinFactor(team) * DefenseFactor(player);
}

}  // namespace tipline
