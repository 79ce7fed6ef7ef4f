#include "engine/chances_terms.h"

namespace tipline {

namespace {

/// His real percentage in thousandths; few attempts tell little.
int RealPercentage(const StatLine& real) {
  int pct = real.FTA > 0 ? Round(static_cast<double>(real.FTM) / real.FTA * 1000) : 300;
  if (real.FTA < 30) pct = Clamp(pct, 300, 800);
  if (real.FTA < 10) pct = Clamp(pct, 500, 700);
  return pct;
}

double EraOfGame(const Duel& duel) {
  double level = MeanOfSides(duel.offense.EraFTPct, duel.defense.EraFTPct);
  if (league.rules.GameEraList == 1) {
    level = 0.751;
  } else if (EraSettingYear() > 0) {
    level = FreeThrowPct(SettingEra(duel.shooter));
  }
  return duel.offenseTeam.TeamSex == 'W' ? level * 1.03 : level;
}

}  // namespace

int FreeThrowChance() {
  const Duel duel;
  Thousandths chance;
  const double pct = RealPercentage(duel.real) / 1000.0;
  chance.Add(Carried(pct, FreeThrowPct(OwnEra(duel.shooter)), EraOfGame(duel)));
  if (league.rules.AlternateRealityCheck != 0) chance.Add((duel.shooter.AltForm1 - 10) * 5);
  if (duel.offenseTeam.TeamSex == 'W') chance.Times(0.9);
  if (duel.defenseTeam.TeamSex == 'W') chance.Over(0.9);
  return chance.value;
}

}  // namespace tipline
