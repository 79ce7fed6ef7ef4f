// Who guards whom, man to man.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "coach/computer_coach.h"
#include "engine/game_state.h"

namespace tipline {
namespace {

/// [attacker's position - 1][own position - 1]
using Values = std::array<std::array<double, kPositions>, kPositions>;

/// How much of this man's game is played outside: his share of inside shots, as his season played.
double OutsideShare(const PlayerRecord& p) {
  const int year = p.Year < 1930 || p.Year >= 2050 ? 2013 : p.Year;
  return p.RealInsidePct * (0.019325 - 0.000012571 * year) + 0.001238602 * year - 1.716306;
}

/// Inside men are the ones to be stopped. A share between two steps keeps the factor of the man before.
double InsideFactor(int insidePct, double before) {
  if (insidePct <= 20) return 0.92;
  if (insidePct == 30) return 0.97;
  if (insidePct == 40) return 1;
  if (insidePct >= 50 && insidePct <= 60) return 1.1;
  if (insidePct >= 70 && insidePct <= 80) return 1.14;
  if (insidePct >= 90 && insidePct <= 100) return 1.15;
  return before;
}

/// What each man of the five is worth against each attacker.
Values MatchupValues(int side) {
  Values values{};
  double factor = 0;
  for (int j = 1; j <= kPositions; ++j) {
    const PlayerRecord& attacker = OnFloor(3 - side, j);
    const double outside = OutsideShare(attacker);
    const double weight = std::sqrt(static_cast<double>(attacker.RateOffense));
    factor = InsideFactor(attacker.RealInsidePct, factor);
    for (int k = 1; k <= kPositions; ++k) {
      const PlayerRecord& d = OnFloor(side, k);
      double value = (outside * d.RateDefOutside + (1 - outside) * d.RateDefInside) * factor;
      value += d.RateDefForce / 6.0;
      value -= std::abs(k - j) / 10.0;
      values[static_cast<std::size_t>(j - 1)][static_cast<std::size_t>(k - 1)] = value * weight + 0.7 * Rnd();
    }
  }
  return values;
}

}  // namespace

bool ComputerSetMatchups(int side) {
  Table<int, 1, kPositions>& stored = game.side[side].StoredMatchup;
  stored = {{1, 2, 3, 4, 5}};
  if (Defense().DefenseType != 0) return false;
  if (game.side[side].CoachMode == "H" && !league.rules.AllowComputerManMatchupsCheck) return false;
  const Values values = MatchupValues(side);
  std::array<int, kPositions> guards{1, 2, 3, 4, 5};
  double best = 0;
  do {
    double sum = 0;
    for (std::size_t j = 0; j < kPositions; ++j) sum += values[j][static_cast<std::size_t>(guards[j] - 1)];
    if (sum <= best) continue;
    best = sum;
    std::copy(guards.begin(), guards.end(), stored.begin());
  } while (std::next_permutation(guards.begin(), guards.end()));
  return true;
}

}  // namespace tipline
