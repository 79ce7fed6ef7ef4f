#include "league/player_values.h"

#include "base/numbers.h"
#include "league/league.h"

namespace tipline {
namespace {

constexpr int kLevelSeason = 2000;    // every season is brought to the level of this one
constexpr int kUnknownSeason = 2012;  // what a man of an unknown season is taken for

const EraRecord& Season(const PlayerRecord& player) {
  return EraRow(player.Year, IsCollegeLevel(player), kUnknownSeason, kFirstEraYear);
}

/// Brings a count of his season to that of the level season.
struct EraFactors {
  const EraRecord& level;
  const EraRecord& own;
  double operator()(f32 EraRecord::*figure) const {
    return static_cast<double>(level.*figure) / (static_cast<double>(own.*figure) + 0.01);
  }
};

double Threes(const PlayerRecord& player, int year, const EraFactors& k) {
  const StatLine& real = player.Stats[1];
  if (year <= 1976 && real.F3A >= 1) return real.F3M;
  const double factor = k(&EraRecord::F3M);
  return real.F3M * (year < 1985 ? std::min(factor, 4.0) : factor);
}

double Production(const PlayerRecord& player) {
  const StatLine& real = player.Stats[1];
  const bool known = player.Year >= kFirstEraYear && player.Year <= kLastEraYear;
  const int year = known ? player.Year : kUnknownSeason;
  const EraFactors k{EraRow(kLevelSeason, IsCollegeLevel(player), kLevelSeason), Season(player)};
  const double made = real.FGM * k(&EraRecord::FGM);
  const double freeThrows = real.FTM * k(&EraRecord::FTM);
  double value = 2 * made + freeThrows;
  value += Threes(player, year, k);
  value += 0.4 * made - 0.7 * real.FGA * k(&EraRecord::FGA);
  value -= 0.4 * (real.FTA * k(&EraRecord::FTA) - freeThrows);
  return value - real.To * k(&EraRecord::TO);
}

double PerGame(const PlayerRecord& player, double production) {
  const double perMinute = production / (player.Stats[1].Min + 0.1);
  if (!IsCollegeLevel(player)) return perMinute * 48;
  return perMinute * 40 * (player.ScheduleStrength + 10) / 17;
}

double DefenseAtHisPositions(const PlayerRecord& player) {
  const struct {
    int position, weight;
  } places[] = {{player.PrimaryPosition, 70}, {player.SecondaryPosition, 25}, {player.SpotPosition, 5}};
  double sum = 0;
  int weights = 0;
  for (const auto& place : places) {
    if (place.position == 0) continue;
    sum += PositionDefense(player, place.position) * place.weight;
    weights += place.weight;
  }
  return sum / std::max(1, weights);
}

/// A man seen for a few minutes only is worth what can be trusted of it.
double ByMinutes(double value, int minutes) {
  if (minutes < 10) value *= 0.5;
  if (minutes < 20) return value * 0.1;
  if (minutes < 50) return value * 0.3;
  if (minutes < 150) return value * 0.5;
  if (minutes < 250) return value * 0.7;
  return value;
}

double RawValue(const PlayerRecord& player) {
  double value = PerGame(player, Production(player));
  value += DefenseAtHisPositions(player) * 0.37 + player.RateDefForce * 0.24 + player.RatePassing * 0.45 +
           player.RateRebDef * 0.29 + player.RateRebOff * 0.22;
  return ByMinutes(value, player.Stats[1].Min);
}

}  // namespace

std::string FullName(const PlayerRecord& player) {
  return std::string(Trimmed(player.FirstName.Str() + " " + player.LastName.Str()));
}

std::string InitialName(const PlayerRecord& player) {
  const std::string first = player.FirstName.Str();
  return first.empty() ? player.LastName.Str() : first.substr(0, 1) + "." + player.LastName.Str();
}

double PositionDefense(const PlayerRecord& player, int position) {
  if (position < 1 || position > 5) return 0;
  constexpr double kInside[] = {0, 0.069, 0.044, 0.147, 0.539, 0.739};
  const double w = kInside[position];
  const double value = (1 - w) * player.RateDefOutside + w * player.RateDefInside;
  double penalty = 0.5;
  if (player.PrimaryPosition == position) penalty = 0;
  if (player.SecondaryPosition == position) penalty = 0.02;
  if (player.SpotPosition == position) penalty = 0.1;
  return Clamp((1 - penalty) * value, 0.0, 10.0);
}

double PlayerOverall(const PlayerRecord& player) { return Clamp(RawValue(player) / 2.85, 0.0, 10.0); }

void DefaultSALARY(PlayerRecord& player, bool collegeTeam) {
  double value = RawValue(player) * 0.7;
  for (int k = 20; k >= 5; --k) {
    if (value > k) value *= 1.05;
  }
  const double season = Season(player).Games * (collegeTeam ? 40 : 48 * league.FullSeasonScale);
  const double salary = season > 0 ? value * 1000 * player.Stats[1].Min / season : 0;
  player.Salary = std::max(300, Int(salary));
}

int Durability(const PlayerRecord& player) {
  const int forAll = league.rules.UniversalDurabilityList;
  return forAll > 0 ? forAll : player.RateDurability;
}

}  // namespace tipline
