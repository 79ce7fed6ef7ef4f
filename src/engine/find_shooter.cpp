// Who ends up with the ball.
#include <algorithm>
#include <array>

#include "coach/computer_coach.h"
#include "engine/commands.h"
#include "engine/eligible.h"
#include "engine/fast_break.h"
#include "engine/game_state.h"
#include "engine/resolution.h"
#include "engine/shot_selection.h"
#include "league/program.h"

namespace tipline {
namespace {

using Weights = std::array<int, kPositions>;
constexpr int kMostWeight = 32000;  // of all five together

double FGAPerMinute(const StatLine& s) { return s.Min > 0 ? static_cast<double>(s.FGA) / s.Min : 0; }

/// The season so far against the real one.
double ShotDrift(const PlayerRecord& p) {
  const StatLine& real = p.Stats[1];
  const StatLine& replay = p.Stats[2];
  const auto& order = p.ShotSelection;
  if (game.team[game.OffenseSide].RosterKind == 'D' || order[1] != 3 || order[2] != 3 || order[3] != 3 ||
      replay.Min <= 200 || replay.FGA <= 50 || real.FGA <= 50 || real.Min <= 200) {
    return 1;
  }
  const double q = FGAPerMinute(replay) / FGAPerMinute(real);
  if (q > 1.05 + 0.05 * Rnd()) return 0.5;
  if (q > 1 + 0.025 * Rnd()) return 0.8;
  if (q < 0.95 - 0.05 * Rnd()) return 1.5;
  if (q < 1 - 0.025 * Rnd()) return 1.2;
  return 1;
}

int ShooterWeight(int position) {
  constexpr double kOrder[6] = {1, 0.001, 0.25, 1, 1.25, 1.5};
  const int slot = Offense().Lineup[position];
  if (slot == 0) return 0;
  const PlayerRecord& p = PlayerAt(game.OffenseSide, slot);
  const int pick = ManAt(game.OffenseSide, slot).ShotPick;
  int offense = p.RateOffense;
  if (offense == 0 && Rnd(2) == 1) offense = 5;
  int g = offense * 10 + 1 + Offense().Option[position] * 1000;
  if (position == 1) Scale(g, 1.1);
  if (p.RatePassing >= Rnd(2) + 8) Scale(g, 1.1);
  if (position == 2) Scale(g, 0.96);
  if (position >= 3 && p.RatePassing >= Rnd(6) + 4) Scale(g, 1.25);
  if (pick >= kInside && pick <= kThree) Scale(g, kOrder[std::min<int>(p.ShotSelection[pick], 5)]);
  if (p.RateOffOutside >= Rnd(3) + 7) Scale(g, 1.2);
  Scale(g, ShotDrift(p));
  if (Offense().QuickShot == 1 && game.GameClock < 1200)
    Scale(g, pick == kThree ? 2.5 : pick == kOutside ? 1.5 : 0.5);
  return g + 1;
}

int BreakWeight(int position) {
  const int side = game.OffenseSide;
  const int slot = Offense().Lineup[position];
  if (slot == 0 || !InTheBreak(side, slot)) return 0;
  const PlayerRecord& p = PlayerAt(side, slot);
  const StatLine& real = p.Stats[1];
  const StatLine& replay = p.Stats[2];
  int g = (p.RateOffFastbreak + 5) * 100;
  if (slot == game.fastBreak.BreakStealer) g *= 3;
  if (Offense().CoachMode == "C" && Lead(side) > 0 && game.CrunchTime &&
      real.FTM / (real.FTA + 1.0) < 0.501 + 0.101 * Rnd()) {
    Scale(g, 0.01);
  }
  const double own = real.FGA / (real.Min + 1.0);
  if (game.team[side].RosterKind == 'D' || program.GameKind == "E" || replay.Min <= 60 || own <= 0) return g;
  return Round(g / Clamp(replay.FGA / (replay.Min + 1.0) / own, 0.7, 1.3));
}

template <class WeightOf>
Weights WeighFive(WeightOf weight) {
  Weights w{};
  int sum = 0;
  for (int p = 1; p <= kPositions; ++p) {
    const int g = std::min(weight(p), kMostWeight - sum);
    w[static_cast<std::size_t>(p - 1)] = g;
    sum += g;
  }
  return w;
}

bool PlaysSomewhere(int position) {
  const PlayerRecord& p = OnFloor(game.OffenseSide, position);
  return p.PrimaryPosition != 0 || p.SecondaryPosition != 0 || p.SpotPosition != 0;
}

/// Draws until a man with a position of his own has the ball; one time in a thousand anybody does.
void DrawShooter() {
  for (;;) {
    const int drawn = WeightedDraw(WeighFive(ShooterWeight));
    const int position = drawn >= 0 ? drawn + 1 : DrawPosition(game.OffenseSide);
    const bool accepted = position > 0 && PlaysSomewhere(position);
    const int spare = Rnd(kPositions);
    if (accepted || position == 0) {
      GiveBall(position);
      Offense().Option[spare] = 3;
      return;
    }
    if (Rnd(1000) == 1) {
      GiveBall(spare);
      Offense().Option[spare] = 3;
      return;
    }
  }
}

void KindFromPick() {
  Man& man = ManAt(game.OffenseSide, game.BallPlayer);
  if (man.ShotPick == 0 && game.BallPlayer > 0) {
    man.ShotPick = Rnd(100) <= BallHandler().RealInsidePct ? kInside : kOutside;
  }
  game.PlayKind = KindOfPick(man.ShotPick);
}

/// A defense that fouls poor shooters finds the poorest of the five with the ball.
void PoorestShooter() {
  if (Defense().QuickFoul != 2 || Rnd(10) > 8) return;
  int poorest = 0;
  double lowest = 2;
  for (int p = 1; p <= kPositions; ++p) {
    if (Offense().Lineup[p] == 0) continue;
    const StatLine& real = OnFloor(game.OffenseSide, p).Stats[1];
    const double rate = real.FTM / (real.FTA + 1.0);
    if (rate < lowest) {
      lowest = rate;
      poorest = p;
    }
  }
  if (poorest > 0) GiveBall(poorest);
}

void FindRunner() {
  const int thief = PositionOf(game.OffenseSide, game.fastBreak.BreakStealer);
  if (game.fastBreak.Breakaway && thief > 0) {
    GiveBall(thief);
  } else {
    const int drawn = WeightedDraw(WeighFive(BreakWeight));
    GiveBall(drawn >= 0 ? drawn + 1 : DrawPosition(game.OffenseSide));
  }
  game.PlayKind = "FASTBREAK";
}

}  // namespace

void FindShooter() {
  if (game.call.PickBall > 0 && game.call.PickScreener > 0) return;
  if (game.GameState == "FASTBREAK") return FindRunner();
  DrawShooter();
  KindFromPick();
  if (game.PlayKind == "OUTSIDE") ComputerDriveDecision();
  const bool lateHalf = (game.Period == 2 || game.Period >= 4) && game.GameClock < 1200;
  if (lateHalf && Offense().QuickShot == 1 && game.PlayKind == "DRIVE" && Rnd(3) < 3) {
    game.PlayKind = KindOfPick(ManAt(game.OffenseSide, game.BallPlayer).ShotPick);
  }
  if (Rnd(2) == 1 && game.PlayKind == "OUTSIDE" && game.BallDefender > 0 &&
      HeightOf(BallHandler()) + 5 + Rnd(5) < HeightOf(PlayerAt(game.DefenseSide, game.BallDefender))) {
    ComputerDriveDecision();
  }
  PoorestShooter();
}

}  // namespace tipline
