#include "engine/chances_terms.h"

namespace tipline {

namespace {

/// The share of his real season from which penalty step k is due. In a playoff module the list holds the
/// whole percentage.
double Threshold(int listed) { return (league.rules.IsPlayoffModule == 1 ? listed : listed + 100) / 100.0; }

/// The highest step whose threshold `share` has passed, `level` at least.
int Raised(int level, double share, const Table<u8, 1, 3>& steps) {
  for (int k = 1; k <= 3; ++k) {
    if (k > level && share > Threshold(steps[k])) level = k;
  }
  return level;
}

}  // namespace

int UsageLevel(int side, int slot) {
  const RulesRecord& rules = league.rules;
  if (rules.SeasonUsagePenaltiesCheck == 0 || program.GameKind == "E") return 0;
  const Man& man = ManAt(side, slot);
  if (game.AnalysisMode && !program.ReplayLocked) return man.UsageLevel;

  const StatLine &real = PlayerAt(side, slot).Stats[1], &replay = PlayerAt(side, slot).Stats[2];
  const int manyGames = rules.SeasonUsageGamesExemptionList;
  const int manyMinutes = rules.SeasonUsageMinutesExemptionList * 100;
  int level = 0;
  if (real.G > 0 && (manyGames == 0 || real.G < manyGames)) {
    level = Raised(level, (replay.G + 1.0) / real.G, rules.SeasonUsageGamesList);
  }
  if (real.Min > 0 && (manyMinutes == 0 || real.Min < manyMinutes)) {
    const double played = man.PlayerGameTime / static_cast<double>(kMinute) + replay.Min;
    level = Raised(level, played / real.Min, rules.SeasonUsageMinutesList);
  }
  const int few = rules.MinutesPerGameExemptionList;
  if (few > 0 && Ratio(replay.Min, replay.G) <= few) level = 0;
  return level;
}

}  // namespace tipline
