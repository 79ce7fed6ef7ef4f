#include "coach/depth_chart.h"

#include "base/numbers.h"
#include "league/player_values.h"

namespace tipline {
namespace {

constexpr int kRanks = 6;
constexpr int kSpecialLineups = 7;

/// A man who played little counts for less.
double ByGames(const PlayerRecord& player) {
  const StatLine& real = player.Stats[1];
  const double season = EraRow(player.Year, IsCollegeLevel(player), 2012).Games + 1.0;
  if (MinutesPerGame(player) >= 10 && real.G / season >= 0.2) return 1;
  return real.G < 10 ? 0.1 : real.G < 20 ? 0.2 : real.G < 30 ? 0.3 : real.G < 40 ? 0.4 : 1;
}

double DepthWeight(const PlayerRecord& player, int position, bool userSalary) {
  const StatLine& real = player.Stats[1];
  if (real.G <= 0) return 0;
  double fit = 0;
  if (player.SpotPosition == position) fit = 1;
  if (player.SecondaryPosition == position) fit = 4.5;
  if (player.PrimaryPosition == position) fit = 6;
  double starter = 0.2;
  if (static_cast<double>(real.GS) / real.G > 0.95) {
    if (player.SecondaryPosition == position) starter = 5;
    if (player.PrimaryPosition == position) starter = 10;
  }
  double weight = real.Min / (real.G + 1.0) * fit * starter * ByGames(player);
  if (player.PrimaryPosition == position) {
    weight *= ((userSalary ? player.Salary2 : player.Salary) + 10000.0) / 10000;
  }
  return std::min(weight, 10000.0);
}

/// The ranks 6 down to 1 at a position by whole weight, equal weights to the lower slot first.
void RankPosition(Roster& roster, int position, bool userSalary) {
  Table<int, 1, kRosterSlots> weight{};
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(roster, slot)) weight[slot] = Int(DepthWeight(roster.player[slot], position, userSalary));
  }
  for (int rank = kRanks; rank >= 1; --rank) {
    int best = 0;
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (weight[slot] >= 1 && (best == 0 || weight[slot] > weight[best])) best = slot;
    }
    if (best == 0) return;
    roster.player[best].DepthRank[position] = static_cast<u8>(rank);
    weight[best] = 0;
  }
}

int PositionFit(const PlayerRecord& player, int position) {
  int fit = 0;
  if (player.PrimaryPosition == position) fit = 1000;
  if (player.SecondaryPosition == position) fit = 500;
  if (player.SpotPosition == position) fit = 100;
  return fit;
}

/// How well a man fits a special lineup at a position: the blowout lineup spares the regulars, the others
/// take them.
int LineupFit(const PlayerRecord& player, int lineup, int position) {
  int fit = PositionFit(player, position);
  const double minutes = MinutesPerGame(player);
  if (lineup == 1) {
    for (const int limit : {40, 30, 20}) {
      if (minutes > limit) fit = Round(fit * 0.1);
    }
  } else if (minutes < (lineup == 2 ? 20 : 10)) {
    fit = Round(fit * 0.5);
  }
  for (const int games : {50, 30}) {
    if (player.Stats[1].G < games) fit = Round(fit * 0.3);
  }
  return fit;
}

double LineupScore(const PlayerRecord& player, int lineup) {
  const StatLine& real = player.Stats[1];
  switch (lineup) {
    case 2:
      return player.RateOffense * 3 / 10.0 + player.RatePassing;
    case 3:
      return player.RateOffThree * 100 + player.RateOffense;
    case 4:
      return real.FTM / (real.FTA + 1.0);
    case 5:
      return player.RateOffFastbreak * 100 + player.RateOffense;
    case 6:
      return player.RateDefOutside * 3 + player.RateDefForce;
    case 7:
      return player.RateDefForce * 5 + player.RateDefOutside;
    default:
      return 1;
  }
}

void PickForLineup(Roster& roster, int lineup, int position) {
  int chosen = 0;
  double best = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    const PlayerRecord& player = roster.player[slot];
    if (!OnTeam(roster, slot) || player.Stats[1].G <= 0 || player.RotationOrder[lineup] != 0) continue;
    const double score = LineupScore(player, lineup) * LineupFit(player, lineup, position);
    if (score > best) {
      best = score;
      chosen = slot;
    }
  }
  if (chosen) roster.player[chosen].RotationOrder[lineup] = static_cast<u8>(position);
}

}  // namespace

void CheckTargets(Roster& roster, const RulesRecord& rules) {
  int sum = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(roster, slot)) sum += roster.player[slot].TargetMinutes;
  }
  if (sum >= (rules.PeriodList == 2 ? 150 : 180)) return;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(roster, slot)) continue;
    PlayerRecord& player = roster.player[slot];
    player.TargetMinutes = static_cast<u8>(Clamp(Int(MinutesPerGame(player)), 0, 255));
  }
}

void ClearDepthCharts(Roster& roster) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(roster, slot)) roster.player[slot].DepthRank.Fill(0);
  }
}

void ClearSpecialLineups(Roster& roster) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(roster, slot)) roster.player[slot].RotationOrder.Fill(0);
  }
}

void SetDefaultDepthCharts(Roster& roster, const RulesRecord& rules) {
  ClearDepthCharts(roster);
  CheckTargets(roster, rules);
  for (int position = 1; position <= 5; ++position) {
    RankPosition(roster, position, rules.SalaryValueList == 1);
  }
}

void SetDefaultSpecialLineups(Roster& roster) {
  ClearSpecialLineups(roster);
  for (int lineup = 1; lineup <= kSpecialLineups; ++lineup) {
    for (int position = 1; position <= 5; ++position) PickForLineup(roster, lineup, position);
  }
}

}  // namespace tipline
