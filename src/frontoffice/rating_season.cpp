// Dates, durability and sportsmanship, and the figures that old seasons did not keep.
#include "frontoffice/rating_math.h"
#include "frontoffice/ratings.h"

namespace tipline {
namespace {

/// What a minute of his team brings an average man of a figure; the season's average where his team's is not
/// known.
double TeamRate(const PlayerRecord& player, int teamFigure, f32 EraRecord::*eraFigure, const RatingRun& run) {
  const EraRecord& era = SeasonRow(player.Year, false);
  if (teamFigure == 0 || run.FictionalRatingRun) return era.*eraFigure / (run.LevelFactor * 48) / 5;
  return Share(teamFigure, era.Games * 48.5) / 5;
}

i16 WholeCount(double count) { return static_cast<i16>(Clamp(Int(count), 0, 32767)); }

double BlocksByPosition(const PlayerRecord& player) {
  switch (player.PrimaryPosition) {
    case 1:
      return 0.15;
    case 2:
      return 0.25;
    case 3:
      return 0.4;
    case 4:
      return 1.2;
    case 5:
      return HeightOf(player) >= 85 ? 3.5 : HeightOf(player) <= 79 ? 2.2 : 2.8;
    default:
      return 1.0;
  }
}

}  // namespace

void DefaultAllSeason(PlayerRecord& player, const RatingRun& run) {
  if (run.MissingDataCheck && (player.StartMonth || player.StartDay || player.EndMonth || player.EndDay)) {
    return;
  }
  player.StartMonth = 1;
  player.StartDay = 1;
  player.EndMonth = 12;
  player.EndDay = 31;
}

void DefaultDurability(PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  if (run.MissingDataCheck && player.RateDurability > 0) return;
  const double games = player.Stats[1].G;
  // Season months from October to March: what lies before or after them is no chance to play.
  const double from = std::max(2.0, player.StartMonth + player.StartDay / 31.0);
  const double to = std::min(7.0, player.EndMonth + player.EndDay / 31.0);
  const double days = Clamp((to - from) * 30, 30.0, 180.0);
  int r = Int(games * (IsCollegeOrInternational(team) ? 4 : 1.8) * 10 / days + 0.5);
  if (IsWoman(player)) r = Round(games / 31 * 10);
  player.RateDurability = static_cast<u8>(Clamp(r, 0, 10));
}

void DefaultSportsmanship(PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  if (run.MissingDataCheck && player.RateSportsmanship > 0) return;
  const StatLine& real = player.Stats[1];
  if (IsCollegeTeam(team)) {
    player.RateSportsmanship = Stored(std::max(1.0, 9 - real.Pf / (real.Min / 40.0 + 1)));
    return;
  }
  const double fouls = real.Pf / (real.Min + 1.0) * 48;
  const double r = fouls > 0 ? SeasonRow(player.Year, false).PF / 5 / fouls * 50 : 50;
  player.RateSportsmanship = Clamp<u8>(Tenth(r), 1, 10);
}

void DefaultTurnovers(PlayerRecord& player, const TeamRecord& team) {
  StatLine& real = player.Stats[1];
  if (IsCollegeTeam(team) || real.To != 0) return;
  struct Estimate {
    int from;
    double ast, fga;
  };
  // clang-format off
  constexpr Estimate kEstimates[] = {
      {1973, 0,    0   },  // kept from here on
      {1970, 0.29, 0.14},
      {1965, 0.30, 0.15},
      {1960, 0.31, 0.16},
      {   0, 0.33, 0.17},
  };
  // clang-format on
  const Estimate* row = kEstimates;
  while (row->from > 0 && player.Year < row->from) ++row;
  real.To = static_cast<i16>(Clamp(Round(real.Ast * row->ast + real.FGA * row->fga), 0, 32767));
}

void DefaultSteals(PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  StatLine& real = player.Stats[1];
  if (IsCollegeTeam(team) || real.St != 0) return;
  constexpr double kByPosition[] = {0, 0.03, 0.015, 0, -0.015, -0.03};
  const double shift = player.PrimaryPosition <= 5 ? kByPosition[player.PrimaryPosition] : 0;
  const double rate = TeamRate(player, team.RealTotals[1].St, &EraRecord::St, run) + shift;
  real.St = WholeCount(std::max(0.01, rate) * real.Min);
}

void DefaultBlockedShots(PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  StatLine& real = player.Stats[1];
  if (IsCollegeTeam(team) || real.Bk != 0) return;
  const double rate = TeamRate(player, team.RealTotals[1].Bk, &EraRecord::Bk, run) * BlocksByPosition(player);
  real.Bk = WholeCount(std::max(0.0001, rate) * real.Min);
}

}  // namespace tipline
