#include "engine/chances_terms.h"

#include "league/player_values.h"

namespace tipline {

namespace {

const RatingPower kTalent{kTalentExponent};
const UsagePower kUsage{1.3};

/// The last moments: a factor for each of two seconds, one and a half, one, a half that the clock is down to.
void Hurry(Thousandths& chance, double factor) {
  for (const int mark : {20, 15, 10, 5}) {
    if (game.GameClock <= mark) chance.Times(factor);
  }
}

}  // namespace

bool StrangersOnOffense(const Duel& duel) {
  const int first = Rnd(kPositions);
  const int second = Rnd(kPositions);
  const int a = duel.offense.Lineup[first], b = duel.offense.Lineup[second];
  return a > 0 && b > 0 && PlayerAt(duel.O, a).Year != PlayerAt(duel.O, b).Year;
}

double ScoreFactor(int lead, double leading, double trailing) {
  if (lead > 15 + Rnd(10)) return 1;
  if (lead < -15 - Rnd(10)) return 1;
  if (lead >= 3 + Rnd(6)) return leading;
  if (lead <= -3 - Rnd(6)) return trailing;
  return 1;
}

void PassingOfFive(const Duel& duel, Thousandths& chance) {
  const int passing = duel.offense.LineupPassing;
  if (duel.Draft(duel.offenseTeam)) {
    chance.Add((passing - 18) * 5.5);
  } else {
    chance.Add(2 * (passing - duel.offense.TeamPassing));
  }
}

void SeasonForm(const Duel& duel, Thousandths& chance, double leading, double trailing) {
  if (game.AnalysisMode || !(LastPeriod() || Rnd(5) == 1)) return;
  if (GamesPlayed(duel.offenseTeam) >= 5) chance.Times(1 + duel.offense.TeamPointDiff * 0.002);
  if (GamesPlayed(duel.defenseTeam) >= 5) chance.Times(1 - duel.defense.TeamPointDiff * 0.002);
  const double factor = ScoreFactor(Lead(duel.O), leading, trailing);
  if (factor != 1) chance.Times(factor);
}

void ReplayCorrection(const Duel& duel, Thousandths& chance, Shots real, Shots replay, int least,
                      double bound) {
  if (duel.Draft(duel.offenseTeam) || game.MixedEras != 0) return;
  if (league.rules.GameEraList != 0 || game.AnalysisMode) return;
  if (real.made < least + Rnd(least)) return;
  if (replay.made < 10 + Rnd(10)) return;
  if (real.tried <= 0 || replay.tried <= 0) return;
  const double drift = Ratio(real.made, real.tried) - Ratio(replay.made, replay.tried);
  chance.Add(Clamp(drift * 1000 * 1.5, -bound, bound));
}

void Condition(const Duel& duel, Thousandths& chance, int mismatch) {
  Tiredness(duel, chance, -0.002);
  Overuse(chance, kUsage, -0.05, 0.05);
  OutOfPosition(duel, chance, -0.5);
  if (!duel.guarded || game.BallSlot < 1 || game.BallSlot > kPositions) return;
  const bool switched = duel.defense.Lineup[game.BallSlot] != game.BallDefender;
  if (switched && !Lists(duel.defender, game.BallSlot)) chance.Add(mismatch);
}

void DefenseTerms(Thousandths& chance, double defenseFactor) {
  const Play& play = game.play;
  for (int j = 1; j <= 6; ++j) {
    if (play.DefenseUse[j] == 0) continue;
    chance.Add((play.DefenseNorm[j] - play.DefenseRating[j] * defenseFactor) * play.DefenseUse[j]);
  }
}

void ThinDefense(const Duel& duel, Thousandths& chance, const int (&byEligible)[7], int stealFoul) {
  chance.Add(Entry(byEligible, duel.defense.EligibleCount));
  if (duel.defense.StealFoul == 1) chance.Add(stealFoul);
}

void Tempo(const Duel& duel, Thousandths& chance, bool ranked) {
  constexpr int kOption[4] = {-60, -30, -10, 10};
  constexpr int kPace[5] = {-40, -20, 0, -20, -40};
  if (ranked && game.BallSlot >= 1 && game.BallSlot <= kPositions) {
    chance.Add(Entry(kOption, duel.offense.Option[game.BallSlot]));
  }
  chance.Add(Entry(kPace, duel.offense.OffensePace));
  if (duel.offense.QuickShot == 1) {
    if (game.GameClock < 2 * kMinute) chance.Times(0.9);
    Hurry(chance, 0.9);
  }
  if (duel.offense.LastShot == 1) {
    if (game.GameClock < 2 * kMinute) chance.Times(0.95);
    Hurry(chance, 0.95);
  }
}

void HomeFloor(const Duel& duel, Thousandths& chance, int points, int twoPeriodPoints) {
  if (game.NeutralGame) return;
  if (league.rules.PeriodList == 2) points += twoPeriodPoints;
  chance.Add(duel.O == 2 ? points : -points);
}

void OthersDoubled(const Duel& duel, Thousandths& look) {
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = duel.offense.Lineup[p];
    if (p == game.BallSlot || slot == 0) continue;
    if (DoubledOnPick(ManAt(duel.O, slot))) look.Add(game.DoubleTeamCount * 20);
  }
}

double TalentOf(u8 rating) { return kTalent[rating]; }

}  // namespace tipline
