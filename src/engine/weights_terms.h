#pragma once
// What the weights of a turnover and of a foul have in common.
#include "engine/chances_terms.h"
#include "engine/weights.h"

namespace tipline {

/// Share of his shots that are threes.
inline double ThreeShare(const Duel& duel) { return duel.real.F3A / (duel.real.FGA + 1.0); }

/// A thousandth of his real season's plays: what one point of the situation sum is worth.
inline double SeasonPlays(const Duel& duel) {
  const StatLine& real = duel.real;
  return ((real.FGA - real.F3A) * 0.93 + real.F3A * 0.99 + real.To + real.FTA) / 1000;
}

/// From his own season into the season of this game: the mean of the two fives, or the era setting's figure.
inline double EraFactor(const Duel& duel, double mean, f32 EraRecord::*figure) {
  const double own = OwnEra(duel.shooter).*figure;
  const double here = EraSettingYear() > 0 ? SettingEra(duel.shooter).*figure : mean;
  return own > 0 && here > 0 ? here / own : 1;
}

/// A shot from a zone that is not the one he found open: `near` one zone off, `far` two.
inline void OutOfZone(const Duel& duel, Thousandths& weight, double near, double far) {
  const int zone = duel.shooterMan.NaturalZone;
  const int shot = duel.kind == "INSIDE"    ? kInside
                   : duel.kind == "OUTSIDE" ? kOutside
                   : duel.kind == "THREE"   ? kThree
                                            : 0;
  if (shot == 0 || zone == 0 || shot == zone) return;
  weight.Times(shot + zone == kInside + kThree ? far : near);
}

/// A man who is good at a kind of shot loses the ball and is fouled less often at it.
inline void TalentTerms(const Duel& duel, Thousandths& sum, double rate) {
  const PlayerRecord& r = duel.shooter;
  const double threes = ThreeShare(duel), twos = 1 - threes;
  sum.Add(-twos * duel.mix.ShareInside * (r.RateOffInside - 5.7) * rate);
  sum.Add(-twos * duel.mix.ShareOutside * (r.RateOffOutside - 5.5) * rate);
  sum.Add(-twos * duel.mix.ShareDrive * (r.RateOffDrive - 5) * rate);
  sum.Add(-(r.RateOffThree - 5.5) * threes * rate);
}

/// What a kind of shot adds: a three has its own value, a two that of its kind.
struct KindTerms {
  int three, putback, inside, drive, outside;

  int Of(PlayKind kind) const {
    if (game.play.ShotValue == "THREE") return three;
    return kind == "OFFREB"    ? putback
           : kind == "INSIDE"  ? inside
           : kind == "DRIVE"   ? drive
           : kind == "OUTSIDE" ? outside
                               : 0;
  }
  /// The average over the twos that he takes.
  double OfTwos(const LoadedMan& mix) const {
    return mix.SharePutback * putback + mix.ShareInside * inside + mix.ShareDrive * drive +
           mix.ShareOutside * outside;
  }
};

}  // namespace tipline
