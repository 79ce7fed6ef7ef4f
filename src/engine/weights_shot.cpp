#include "engine/weights_terms.h"

namespace tipline {

namespace {

/// His real attempts, carried into the seasons of this game.
void RealAttempts(const Duel& duel, Thousandths& w) {
  w.Add(duel.real.FGA * 1.005);
  if (IsCollege(duel.shooter)) w.Times(0.97);
  const double own = OwnEra(duel.shooter).FGA;
  const double here = MeanOfSides(duel.offense.EraFGA, duel.defense.EraFGA);
  if (own > 0 && here > 0) w.Times(here / own);
  w.AtLeast(10);
}

/// In a game that is decided the side that leads takes its time. Up to two draws.
void DecidedGame(const Duel& duel, Thousandths& w) {
  if (game.AnalysisMode || Margin() < 15) return;
  if (!(Margin() >= 15 + Rnd(10) || Margin() >= (7 + Rnd(3)) * game.Period)) return;
  w.Times(Lead(duel.O) > 0 ? 0.95 : 1.05);
}

void Focus(const Duel& duel, Thousandths& w) {
  if (game.MomentumTime < 1) return;
  const TimeoutFocus own = duel.offense.TimeoutFocus, other = duel.defense.TimeoutFocus;
  if (own != "None") w.Times(own == "Offense" ? 1.05 : 0.95);
  if (other != "None" && other != "Pressure") w.Times(other == "Defense" ? 0.95 : 1.05);
}

}  // namespace

void ShotWeight() {
  const Duel duel;
  Thousandths w;
  RealAttempts(duel, w);
  if (duel.BothDraft()) w.Times(1.05);
  const double lineup = LineupTerm(duel, 0.4, 30);
  if (w.value > 300) w.Add(lineup);
  DecidedGame(duel, w);
  Focus(duel, w);
  game.play.ShotChance = w.value;
}

}  // namespace tipline
