#include "engine/chances_terms.h"

namespace tipline {

namespace {

/// The figures of a season that a play reads.
struct Level {
  double FGA = 0, twoPct = 0, threePct = 0, freeThrowPct = 0, FTA = 0, TO = 0, PF = 0;
};

Level LevelOf(const EraRecord& era) {
  return {era.FGA, TwoPct(era), ThreePct(era), FreeThrowPct(era), era.FTA, era.TO, era.PF};
}

void AddLevel(Level& sum, const Level& x) {
  sum.FGA += x.FGA;
  sum.twoPct += x.twoPct;
  sum.threePct += x.threePct;
  sum.freeThrowPct += x.freeThrowPct;
  sum.FTA += x.FTA;
  sum.TO += x.TO;
  sum.PF += x.PF;
}

void SetMeans(Side& side, const Level& sum, int men) {
  const double n = men > 0 ? men : 1;
  side.EraFGA = sum.FGA / n;
  side.Era2Pct = sum.twoPct / n;
  side.Era3Pct = sum.threePct / n;
  side.EraFTPct = sum.freeThrowPct / n;
  side.EraFTA = sum.FTA / n;
  side.EraTO = sum.TO / n;
  side.EraPF = sum.PF / n;
}

}  // namespace

void EraMeans() {
  const EraRecord* known = nullptr;  // most games are of one season: its figures are worked out once
  Level level;
  for (int s = 1; s <= 2; ++s) {
    Level sum;
    int men = 0;
    for (const int slot : game.side[s].Lineup) {
      if (slot == 0) continue;
      const EraRecord& era = OwnEra(PlayerAt(s, slot));
      if (&era != known) level = LevelOf(era);
      known = &era;
      AddLevel(sum, level);
      ++men;
    }
    SetMeans(game.side[s], sum, men);
  }
}

int EraSettingYear() {
  constexpr int kYear[8] = {0, 1995, 1955, 1965, 1975, 1985, 1995, 2005};
  return Entry(kYear, league.rules.GameEraList);
}

}  // namespace tipline
