// Blocks, steals, assists and fouls: each a draw among the five, by what a man does in a real season.
#include "engine/who.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "engine/chances.h"
#include "engine/court.h"
#include "engine/eligible.h"
#include "engine/execution.h"
#include "engine/fast_break.h"
#include "engine/resolution.h"
#include "league/player_values.h"
#include "league/program.h"

namespace tipline {
namespace {

using Weights = std::array<double, kPositions>;

double Rate(int count, int minutes) { return count / (minutes + 1.0); }

/// Replay rate over real rate; below 0 when one of them is not known.
double Drift(int replay, int replayMin, int real, int realMin) {
  if (real <= 0 || realMin <= 0 || replayMin <= 0) return -1;
  return (static_cast<double>(replay) / replayMin) / (static_cast<double>(real) / realMin);
}

bool Exhibition() { return program.GameKind == "E"; }

/// Spot of the attacker whom the defender at `position` guards; 0 when he guards nobody.
int SpotGuardedBy(int position) {
  for (int p = 1; p <= kPositions; ++p) {
    if (Defense().Matchup[p] == position && Offense().Lineup[p] > 0) {
      return ManAt(game.OffenseSide, Offense().Lineup[p]).CourtSpot;
    }
  }
  return 0;
}

int BallSpot() { return ManAt(game.OffenseSide, game.BallPlayer).CourtSpot; }

bool BesideTheBall(int s) { return (s >= 201 && s <= 309) || s == 101 || s == 104; }

/// Help comes from the next man over.
double HelpOnBlock(int s, int a) {
  double w = 1;
  if (BesideTheBall(s) && (a == s + 1 || a + 1 == s)) w *= 3;
  if (s >= 301 && s <= 309 && (a + 99 == s || a + 100 == s)) w *= 3;
  const bool middle = s == 204 || s == 205;
  if ((s >= 201 && s <= 203 && a == 102) || (s >= 206 && s <= 208 && a == 104) ||
      (middle && (a == 103 || a == 102))) {
    w *= 3;
  }
  return OppositeSides(s, a) ? w * 0.1 : w;
}

double BlockWeight(int position) {
  const int slot = Defense().Lineup[position];
  if (slot == 0) return 0;
  const PlayerRecord& d = PlayerAt(game.DefenseSide, slot);
  const StatLine& real = d.Stats[1];
  const StatLine& replay = d.Stats[2];
  double w = Rate(real.Bk, real.Min);
  if (w * 48 > 3 + 2 * Rnd()) w *= 1.5;
  w = w * 1000 + 1;
  const double drift = Drift(replay.Bk, replay.Min, real.Bk, real.Min);
  if (!Exhibition() && replay.Min > 100 && drift >= 0) {
    if (drift > 1 + 0.15 * Rnd()) {
      w *= 0.5;
    } else if (drift < 1 - 0.2 * Rnd()) {
      w *= 1.5;
    }
  }
  if (slot == game.BallDefender) {
    w *= 10;
  } else if (game.GameState == "OFFENSE") {
    w *= HelpOnBlock(BallSpot(), SpotGuardedBy(position));
  }
  if (position == 4) w *= 1.1;
  if (position == 5) w *= 1.6;
  if (position > Rnd(3)) w += 1;
  return game.GameState == "FASTBREAK" ? w + ManAt(game.DefenseSide, slot).DefendsBreak : w;
}

/// The season so far pulls a thief back to his real rate.
double StealDrift(const StatLine& real, const StatLine& replay) {
  const double q = (static_cast<double>(replay.St) / replay.Min) / ((real.St + 1.0) / (real.Min + 1.0));
  return q > 1.5    ? 0.25
         : q > 1.1  ? 0.5
         : q > 1.01 ? 0.75
         : q < 0.5  ? 1.75
         : q < 0.9  ? 1.5
         : q < 0.99 ? 1.25
                    : 1.0;
}

double StealWeight(int position) {
  constexpr double kTrap[kPositions] = {0.01, 0.01, 0.2, 2, 2};
  const int slot = Defense().Lineup[position];
  if (slot == 0) return 0;
  const PlayerRecord& d = PlayerAt(game.DefenseSide, slot);
  const StatLine& real = d.Stats[1];
  double w = Rate(real.St, real.Min) * 1000;
  const bool onBall = slot == game.BallDefender;
  w = onBall ? w * 2 + 1 : w * 0.5;
  if (!onBall && game.GameState == "OFFENSE") {
    const int s = BallSpot();
    const int a = SpotGuardedBy(position);
    if (BesideTheBall(s) && (a == s + 1 || a + 1 == s)) w *= 2;
    if (IsThreeSpot(s) && a < 200) w *= 0.5;
    if (IsInsideSpot(s) && a >= 300) w *= 0.5;
  }
  if (!Exhibition() && d.Stats[2].Min > 100 && !game.play.TrapPass) w *= StealDrift(real, d.Stats[2]);
  if (game.play.TrapPass) w *= kTrap[position - 1];
  return game.GameState == "FASTBREAK" ? w + ManAt(game.DefenseSide, slot).DefendsBreak : w;
}

/// x^1.75 for a rate of assists a minute.
double PassersEdge(double rate) { return rate > 0 ? std::pow(rate, 1.75) : 0; }

/// A good passer out of his place finds fewer men.
double OutOfPlace(const PlayerRecord& p, int position) {
  const bool own = p.PrimaryPosition == position || (p.SecondaryPosition == position && Rnd(2) == 1) ||
                   (p.SpotPosition == position && Rnd(5) == 1);
  if (own || position == 1) return 1;
  const int cap = position == 2 ? 5 : 4;
  return p.RatePassing > cap ? static_cast<double>(cap) / p.RatePassing : 1;
}

double AssistDrift(const PlayerRecord& p) {
  const StatLine& real = p.Stats[1];
  const StatLine& replay = p.Stats[2];
  if (game.team[game.OffenseSide].RosterKind == 'D' || replay.Ast <= 25 || real.Ast <= 25 ||
      replay.Min <= 200 || real.Min <= 200) {
    return 1;
  }
  const double q = Drift(replay.Ast, replay.Min, real.Ast, real.Min);
  const auto low = [q] { return q < 0.97 - 0.05 * Rnd() ? 1.6 : q < 1 - 0.01 * Rnd() ? 1.3 : 1.0; };
  double w = q > 1.03 + 0.05 * Rnd() ? 0.4 : q > 1 + 0.02 * Rnd() ? 0.7 : low();
  const double shots = real.G > 0 ? static_cast<double>(real.FGA) / real.G : 0;
  if (shots < 10 + 10 * Rnd()) w *= low();
  return w;
}

double AssistWeight(int position) {
  const int side = game.OffenseSide;
  const int slot = Offense().Lineup[position];
  if (slot == 0 || slot == game.BallPlayer) return 0;
  const PlayerRecord& p = PlayerAt(side, slot);
  const StatLine& real = p.Stats[1];
  double w = PassersEdge(Rate(real.Ast, real.Min)) * 1000;
  if (position == 1 && p.RateOffense >= 40 + Rnd(40)) w *= 2.5;
  if (p.Year >= 1950 && p.Year <= 2015 && league.EraPro[p.Year].Ast > 0) {
    w *= league.EraPro[2005].Ast / league.EraPro[p.Year].Ast;
  }
  w *= OutOfPlace(p, position);
  if (p.PrimaryPosition == 1 && position >= 2) w *= 0.5;
  if (p.PrimaryPosition == 2 && position >= 3) w *= 0.5;
  if (position >= 3 && (p.PrimaryPosition == position || (p.SecondaryPosition == position && Rnd(2) == 1)) &&
      p.RatePassing >= 4 + Rnd(6)) {
    w *= 1.5;
  }
  if (Offense().CoachMode == "C" && game.CrunchTime && Lead(side) > 0 &&
      real.FTM / (real.FTA + 1.0) < 0.501 + 0.101 * Rnd()) {
    w *= 0.01;
  }
  w *= AssistDrift(p);
  if (game.GameState == "FASTBREAK") {
    if (!InTheBreak(side, slot)) return 0;
    if (slot == game.fastBreak.BreakStealer) w *= 3;
    w += 1000;
  }
  return w;
}

// ---- fouls ----

double FoulByKind(int position, int slot) {
  const PlayKind k = game.PlayKind;
  const bool onBall = slot == game.BallDefender && game.play.FoulingSide == game.DefenseSide;
  if (k == "DRIVE") {
    const double w = onBall ? 1.25 : 0.75;
    return position >= 3 + Rnd(2) ? w * 2 : w;
  }
  if (k == "INSIDE") return onBall ? 1.5 : 0.5;
  if (k == "OUTSIDE" || k == "THREE") return onBall ? 5 : 0.01;
  if (k == "FASTBREAK") return InTheBreak(game.play.FoulingSide, slot) ? 1 : 0;
  return 1;
}

/// Where he and his man stand to the ball.
double FoulByPlace(int position, int slot) {
  const int s = BallSpot();
  const int a = SpotGuardedBy(position);
  const bool drive = game.PlayKind == "DRIVE";
  if (!drive && s >= 300 && a < 199) return 0;
  if (s <= 104 && a >= 300) return 0;
  double w = SpotsAdjacent(s, a, drive) ? 5 : 1;
  if (game.GameState == "OFFENSE" && slot != game.BallDefender && !(drive && a <= 199)) {
    if (std::abs(s - a) >= 150 || SpotsFarApart(s, a)) w = 0;
  }
  if (game.PlayKind == "THREE" && slot != game.BallDefender) {
    const int gap = std::abs(s - a);
    if (gap != 1 && gap != 100 && a != s + 99) w = 0;
  }
  return w;
}

/// Men in foul trouble, and men who must last, hold back.
double FoulTrouble(const PlayerRecord& f) {
  const StatLine& real = f.Stats[1];
  const int fouls = f.Stats[3].Pf;
  const double minutes = MinutesPerGame(f);
  double w = minutes < 43 + 5 * Rnd() ? 0.5 : 1;
  if (fouls >= 1) {
    if (league.rules.PeriodList == 2) {
      if (minutes < 35 + Rnd(5) && game.Period == 1) w *= 0.25;
    } else if (minutes >= 35 + Rnd(5)) {
      if (game.Period <= Rnd(3)) w *= 0.25;
      if (fouls == 3 && game.Period == 3) w *= 0.25;
      if (fouls >= 3 && game.Period <= 1 + Rnd(3)) w *= 0.25;
      if (fouls >= game.Period && minutes >= 35 + Rnd(5)) w *= 0.25;
    }
  }
  if (fouls >= game.Period) {
    w *= 0.5;
    if (real.Min > 1500 + Rnd(2000) && real.Dq < Rnd(3)) w *= 0.5;
  }
  return w;
}

double FoulDrift(const PlayerRecord& f) {
  const StatLine& real = f.Stats[1];
  const StatLine& replay = f.Stats[2];
  if (Exhibition() || replay.Min <= 50 + Rnd(200)) return 1;
  const double q = Drift(replay.Pf, replay.Min, real.Pf, real.Min);
  if (q < 0) return 1;
  if (q > 1.06 + 0.03 * Rnd()) return 0.4;
  if (q > 1.03 + 0.03 * Rnd()) return 0.6;
  if (q > 1 + 0.03 * Rnd()) return 0.8;
  if (q < 0.94 - 0.03 * Rnd()) return 1.6;
  if (q < 0.97 - 0.03 * Rnd()) return 1.4;
  if (q < 1 - 0.03 * Rnd()) return 1.2;
  return 1;
}

double FoulWeightOf(int position) {
  constexpr double kByPosition[kPositions] = {0.7, 0.9, 1, 1.3, 1.1};
  const int side = game.play.FoulingSide;
  const int slot = game.side[side].Lineup[position];
  if (slot == 0) return 0;
  const PlayerRecord& f = PlayerAt(side, slot);
  const bool defending = side == game.DefenseSide;
  double w = Rate(f.Stats[1].Pf, f.Stats[1].Min) * 1000;
  w *= FoulByKind(position, slot);
  if (ManAt(side, slot).SafeStyle) w *= 0.25;
  if (defending) w *= FoulByPlace(position, slot);
  w *= FoulTrouble(f);
  w *= FoulDrift(f);
  if (defending && slot == game.BallDefender) w += 1;
  if (position >= 4 && game.PlayKind == "INSIDE") w *= 3;
  if (position >= 4 && game.PlayKind == "OUTSIDE") w *= 2;
  w *= kByPosition[position - 1];
  if (game.PlayKind == "FASTBREAK") w = InTheBreak(side, slot) ? w + 100 : 0;
  const int limit = league.rules.DqList;
  if (limit > 0 && f.Stats[3].Pf == limit - 1) w *= 0.25;
  w *= 0.9;
  return w > 0 ? std::max(1.0, w) : 0;
}

template <class WeightOf>
Weights WeighFive(WeightOf weight) {
  Weights w{};
  for (int p = 1; p <= kPositions; ++p) w[static_cast<std::size_t>(p - 1)] = weight(p);
  return w;
}

/// A drawn position, or the drawn man's stand-in when all weights came out empty.
int DrawFrom(const Weights& weights, int side) {
  const int drawn = WeightedDraw(weights);
  return drawn >= 0 ? drawn + 1 : DrawPosition(side);
}

}  // namespace

bool InTheBreak(int side, int slot) {
  const Man& man = ManAt(side, slot);
  return side == game.OffenseSide ? man.InBreak == 1 : man.DefendsBreak == 1;
}

bool NoTimeToRun(int newOffense) {
  const int clock = game.GameClock;
  if (game.side[newOffense].EligibleCount <= 3 || clock - game.PlayTime < 10) return true;
  if (!LastPeriod()) return false;
  if (clock < 1200 + Rnd(1200) && Margin() >= 15 + Rnd(10)) return true;
  if (clock < 600 && Margin() >= 10 + Rnd(10)) return true;
  return clock < 1200 + Rnd(1200) && Lead(newOffense) > 10;
}

void BlockTest() {
  Play& play = game.play;
  double g = 7;
  if (const int centre = Defense().Lineup[5]; centre > 0) {
    const PlayerRecord& d = PlayerAt(game.DefenseSide, centre);
    const EraRecord& era = EraRow(d.Year, IsCollege(d), 2013);
    g = (era.FGA - era.FGM) / (era.Bk + 1);
  }
  const PlayKind k = game.PlayKind;
  g *= k == "THREE" ? 5 : k == "DRIVE" ? 0.9 : k == "INSIDE" ? 0.8 : k == "OUTSIDE" ? 3 : 1;
  if (const int position = DrawPosition(game.DefenseSide); position > 0) {
    const PlayerRecord& d = OnFloor(game.DefenseSide, position);
    const StatLine& real = d.Stats[1];
    const StatLine& replay = d.Stats[2];
    if (real.Bk > 5 && replay.Bk > 1)
      g *= Clamp(Rate(replay.Bk, replay.Min) / Rate(real.Bk, real.Min), 0.5, 3.0);
  }
  g = Clamp(g / game.BlockTune, 2.0, 50.0) * 0.65;
  play.Blocked = RndTo(g) == 1;
  if (!play.Blocked) return;
  if (PlayerAt(game.DefenseSide, game.BallDefender).Year <= 1973 && Rnd(100) <= 18) play.Blocked = false;
  if (k == "FASTBREAK" && game.fastBreak.BreakDefenders == 0) play.Blocked = false;
  if (play.Blocked) FindBlocker();
}

void FindBlocker() {
  const int position = DrawFrom(WeighFive(BlockWeight), game.DefenseSide);
  game.play.BlockerSlot = position;
  game.play.Blocker = position > 0 ? Defense().Lineup[position] : 0;
}

void FindStealer() {
  int position = 0;
  const bool running = game.GameState == "FASTBREAK";
  for (int tries = 0; tries < 100; ++tries) {
    position = DrawFrom(WeighFive(StealWeight), game.DefenseSide);
    if (!running || position == 0 || InTheBreak(game.DefenseSide, Defense().Lineup[position])) break;
  }
  game.play.StealerSlot = position;
  game.play.Stealer = position > 0 ? Defense().Lineup[position] : 0;
}

void FindAssister() {
  Play& play = game.play;
  const int side = game.OffenseSide;
  const bool setUp = game.call.LobFrom > 0 || (game.call.PickBall > 0 && game.call.PickScreener > 0);
  const int passer =
      game.possession.LastPasserSlot > 0 ? Offense().Lineup[game.possession.LastPasserSlot] : 0;
  const bool received = passer > 0 && game.possession.QuickPassReceiver == game.BallPlayer;
  if ((setUp || received) && play.Assister > 0 && play.Assister != game.BallPlayer &&
      PositionOf(side, play.Assister)) {
    return;
  }
  play.Assister = 0;
  Weights weights = WeighFive(AssistWeight);
  const int drawn = WeightedDraw(weights);
  int position = drawn >= 0 ? drawn + 1 : 0;
  if (position == 0) {
    position = Offense().Lineup[2] > 0 && Offense().Lineup[2] != game.BallPlayer ? 2 : 1;
    if (Offense().Lineup[position] == game.BallPlayer) position = 0;
  }
  if (position > 0) play.Assister = Offense().Lineup[position];
  if (game.possession.PassFirst && game.possession.PassFirstFrom > 0)
    play.Assister = game.possession.PassFirstFrom;
  if (play.ExtraPass && play.ExtraPassFrom > 0) play.Assister = play.ExtraPassFrom;
  if (play.Assister == game.BallPlayer || PositionOf(side, play.Assister) == 0) play.Assister = 0;
}

void FindFouler() {
  Play& play = game.play;
  const int position = DrawFrom(WeighFive(FoulWeightOf), play.FoulingSide);
  play.FoulerSlot = position;
  play.Fouler = position > 0 ? game.side[play.FoulingSide].Lineup[position] : 0;
}

void BallAfterSteal() {
  const int newOffense = game.DefenseSide;
  const int thief = game.play.Stealer;
  const Side& side = game.side[newOffense];
  int g = (side.OffensePace - 2) * 5 + 50;
  const int tendency = game.coach[newOffense].Coverage1[side.GamePlanIndex];
  g = Round(g * (tendency + 1) / 3.0);
  if (game.MomentumTime >= 1 && side.TimeoutFocus != "None")
    Scale(g, side.TimeoutFocus == "Fastbreak" ? 1.1 : 0.9);
  if (NoTimeToRun(newOffense)) g = 0;
  if (game.play.StolenInbound) g = 100;
  SwapSides();
  game.ShotClock = FullShotClock();
  game.NeedsInbound = game.DeadBallKind = 0;
  game.PlayKind = "";
  game.GameState = "OFFENSE";
  if (Rnd(100) > g) return;
  game.GameState = "FASTBREAK";
  game.fastBreak.BreakStealer = thief;
  const int speed = PlayerAt(newOffense, thief).RateOffFastbreak;
  if (Rnd(2) == 1) {
    const int first = Rnd(7);
    const int second = Rnd(2);
    game.fastBreak.Breakaway = speed > first + second ? 1 : 0;
  }
}

}  // namespace tipline
