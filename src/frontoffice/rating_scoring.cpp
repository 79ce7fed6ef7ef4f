// How much of the offense is his: use of possessions, where he shoots from, the end of games, dunks.
#include "frontoffice/rating_math.h"
#include "frontoffice/ratings.h"
#include "league/player_values.h"

namespace tipline {
namespace {

constexpr int kLastYearWithoutMinutes = 1951;

/// Possessions a man used per game against the league's average man, 50 each.
int PossessionUse(const PlayerRecord& player, const RatingRun& run) {
  const StatLine& real = player.Stats[1];
  const EraRecord& era = SeasonRow(player.Year, IsCollegeLevel(player));
  const double freeThrowRate = Against(era.PF, era.FTA);
  double leagueUse = era.FGA * run.SexFGFactor + era.PF * run.SexBFactor;
  if (!IsWoman(player)) leagueUse += -era.Reb * 0.03 + era.TO * 0.9 - era.OffReb * 0.9 - era.FGM * 0.05;
  leagueUse /= 5;
  double use =
      real.FGA + real.FTA * freeThrowRate - real.Reb * 0.03 + real.To - real.Off * 0.8 - real.FGM * 0.05;
  const double minutes = std::max<double>(1, real.Min);
  use /= minutes / (IsCollegeLevel(player) ? 40 : run.LevelFactor * 48);
  return Int(Against(use, leagueUse) * 50 + 0.5);
}

// The share of inside shots that a position brings with it.
int InsideByPosition(const PlayerRecord& player) {
  constexpr int kPrimary[] = {0, 0, 0, 30, 70, 70};
  const int primary = player.PrimaryPosition, secondary = player.SecondaryPosition;
  int r = primary <= 5 ? kPrimary[primary] : 0;
  if (secondary == 1 || secondary == 2) r -= 10;
  if (secondary == 3 && primary < 3) r += 10;
  if ((secondary == 4 || secondary == 5) && primary < 4) r += 20;
  return r;
}

double ByBoardsAndAssists(double r, const StatLine& real, const EraRecord& era) {
  const double boards = Share(era.OffReb / 5, era.Games);
  r += real.Off / (real.Min + 1.0) / (boards > 0 ? boards : 0.32) * 35;
  return r - Against(real.Ast / (real.Min + 1.0), Share(era.Ast / 5, era.Games)) * 20;
}

double ByThrees(double r, const StatLine& real, const EraRecord& era) {
  const double league = Share(era.F3A, era.FGA);
  if (league > 0) {
    const double use = real.F3A / (real.FGA + 1.0) / league;
    r -= use * 30;
    if (use > 0.5 && r > 70) r -= 10;
  }
  return std::min(r, 90.0);
}

/// A good free-throw shooter has a jump shot as well.
double ByFreeThrows(double r, const StatLine& real, const EraRecord& era) {
  if (r < 80) return r;
  const double f = real.FTM / (real.FTA + 1.0) - era.FTM / (era.FTA + 1.0);
  for (const double limit : {-0.02, 0.02, 0.04, 0.06}) {
    if (f > limit) r -= 10;
  }
  return r;
}

double WithinHisPosition(double r, const PlayerRecord& player) {
  if (player.PrimaryPosition == 1 && r > 20) r = 20;
  if (player.PrimaryPosition == 2 && r > 30) r = 30;
  if (r < 10 && player.PrimaryPosition > 2) r = 10;
  if (r < 10 && player.SecondaryPosition > 3) r = 10;
  if (r < 50 && player.PrimaryPosition > 3) r = 50;
  return r;
}

double BigManWithRange(double r, const StatLine& real) {
  if (r < 80 || real.F3A <= 10) return r;
  const double use = Share(real.F3A, real.FGA);
  for (const double limit : {0.01, 0.015, 0.02}) {
    if (use > limit) r -= 10;
  }
  return r;
}

}  // namespace

void RatingRun::SetFactors(const PlayerRecord& player) {
  const bool woman = IsWoman(player);
  SexFGFactor = woman ? 0.79 : 1.0;
  SexBFactor = woman ? 0.92 : 1.0;
  LevelFactor = woman && !IsCollegeLevel(player) ? 40.0 / 48 : 1.0;
}

void DefaultScoring(PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  const StatLine& real = player.Stats[1];
  const bool college = IsCollegeTeam(team);
  double r =
      college ? PointsOf(real) / (std::max<double>(1, real.Min) / 40) * 10 / 2.5 : PossessionUse(player, run);
  if (player.Year <= kLastYearWithoutMinutes) r *= 1.3;
  player.RateOffense = Stored(college ? r : std::min(r, 100.0));
}

void DefaultRealInside(PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  if (run.MissingDataCheck && player.RealInsidePct > 0) return;
  const StatLine& real = player.Stats[1];
  double r = InsideByPosition(player);
  if (IsCollegeTeam(team)) {
    r -= real.Ast / (real.Min + 1.0) / 0.09 * 20;
  } else {
    const EraRecord& era = SeasonRow(player.Year, IsCollegeLevel(player));
    r = ByBoardsAndAssists(r, real, era);
    r = ByThrees(r, real, era);
    r = ByFreeThrows(r, real, era);
    r = WithinHisPosition(r, player);
    r = BigManWithRange(r, real);
  }
  player.RealInsidePct = static_cast<u8>(10 * Tenth(Clamp(r, 0.0, 90.0)));
}

void DefaultClutch(PlayerRecord& player) {
  const StatLine& real = player.Stats[1];
  const double minutes = real.Min / (real.G + 1.0);
  double r = player.RateOffense;
  r *= minutes > 40 ? 1.2 : minutes > 30 ? 1.1 : minutes > 20 ? 1.0 : minutes > 10 ? 0.8 : 0.5;
  const int age = player.Age;
  r *= age > 35 ? 1.2 : age > 30 ? 1.1 : age > 25 ? 1.0 : age > 18 ? 0.8 : 1.0;
  player.RateClutch = std::min<u8>(10, Tenth(r));
}

void DefaultDunk(PlayerRecord& player) {
  const StatLine& real = player.Stats[1];
  const int height = HeightOf(player);
  double r = (height - 75) * 10;
  const double points = PointsOf(real) / (real.G + 1.0);
  for (const int limit : {24, 27, 30}) {
    if (points >= limit) r *= 1.1;
  }
  if (player.Age >= 17) r *= (28.0 / player.Age) * (28.0 / player.Age);
  const double threes = real.F3A / (real.FGA + 1.0);
  if (threes > 0.4) r *= 0.8;
  if (threes > 0.3) r *= 0.8;
  if (threes > 0.2 && height <= 82) r *= 0.8;
  if (threes > 0.1 && height <= 82) r *= 0.8;
  if (real.Bk / (real.Min + 1.0) * 48 > 2) r *= 1.5;
  player.RateDunk = Tenth(Clamp(r, 0.0, 100.0));
}

}  // namespace tipline
