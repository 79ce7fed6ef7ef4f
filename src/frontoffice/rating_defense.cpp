#include "frontoffice/rating_math.h"
#include "frontoffice/ratings.h"
#include "league/player_values.h"

namespace tipline {
namespace {

struct DefenseRatingsOf {
  int outside = 0, inside = 0, force = 0;
};

/// From his steals and blocks alone.
DefenseRatingsOf SimpleWay(const PlayerRecord& player) {
  const StatLine& real = player.Stats[1];
  const double minutes = real.Min + 10.0;
  DefenseRatingsOf d{5, 5, 5};
  const auto addOutside = [&d](double rate) { d.outside += std::max({Int(2 * rate - 3), -1, -d.outside}); };
  addOutside(real.St / minutes / 0.03);
  addOutside(real.Bk / minutes / 0.015);

  const double perGame = real.Min / (real.G + 0.1);
  double k = 1.0;
  for (const int limit : {12, 10, 8}) {
    if (perGame <= limit) k *= 0.9;
  }
  d.force = Int(real.St / minutes / 0.04 * k * 3 + d.force - 3);
  d.force = std::min(d.force, perGame <= 8 ? 3 : perGame <= 10 ? 4 : perGame <= 12 ? 5 : 10);
  d.inside = Int(real.Bk / minutes / 0.023 * 3 + d.inside - 3);
  if (player.RealInsidePct <= 20) --d.inside;
  return d;
}

/// What the two sides of his team did in a season.
struct TeamDefense {
  double oppFGA, oppFGM, oppTo, st, bk;
};

TeamDefense ReadTeam(const TeamRecord& team, const EraRecord& era, const RatingRun& run) {
  const auto known = [&](int figure, double eraFigure) {
    return figure == 0 || run.FictionalRatingRun ? era.Games * eraFigure : figure;
  };
  const RealTotalsLine& own = team.RealTotals[1];
  const RealTotalsLine& opp = team.RealTotals[2];
  return {known(opp.FGA, era.FGA), known(opp.FGM, era.FGM), known(opp.To, era.TO), known(own.St, era.St),
          known(own.Bk, era.Bk)};
}

/// Against what his team allows: shots, turnovers, and his own part of its steals and blocks.
DefenseRatingsOf RegularWay(const PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  const StatLine& real = player.Stats[1];
  const EraRecord& era = SeasonRow(player.Year, IsCollegeLevel(player));
  const TeamDefense t = ReadTeam(team, era, run);
  const bool enough = real.Min > 100;
  const double minutes = real.Min + 1.0, teamMinutes = era.Games * 240.0;
  const double shooting = (Share(era.FGM, era.FGA) - Share(t.oppFGM, t.oppFGA)) / 0.003 + 50;
  const double blocks = Against(real.Bk / minutes, Share(t.bk, teamMinutes)) * 15 - 15;

  double outside = shooting;
  if (enough) {
    outside += blocks;
    outside += Against(real.St / minutes, Share(t.st, teamMinutes)) * 55 - 55;
    outside += real.Min / (real.G + 1.0) / 25 * 25 - 25;
  }
  double force = Against(Share(t.oppTo, t.oppFGA), Share(era.TO, era.FGA)) * 20 + 50 - 20;
  const double stealRate = t.st / (teamMinutes + 1);
  if (enough && stealRate > 0) force += real.St / minutes / stealRate * 80 - 80;
  double inside = shooting;
  if (enough) inside += blocks;
  if (HeightOf(player) < 80) inside *= 0.5;
  if (HeightOf(player) < 76) inside *= 0.5;
  const auto rating = [](double r) { return static_cast<int>(Tenth(Clamp(r, 0.0, 100.0))); };
  return {rating(outside), rating(inside), rating(force)};
}

bool HasDefense(const PlayerRecord& player) {
  return player.RateDefForce || player.OldRateDefOutside || player.OldRateDefInside ||
         player.RateDefOutside || player.RateDefInside;
}

}  // namespace

void DefaultDefense(PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  if (run.MissingDataCheck && !run.FictionalRatingRun && HasDefense(player)) return;
  const bool simple = IsWoman(player) || IsCollegeOrInternational(team);
  const DefenseRatingsOf d = simple ? SimpleWay(player) : RegularWay(player, team, run);
  const auto held = [](int rating) { return static_cast<u8>(Clamp(rating, 0, 10)); };
  player.OldRateDefOutside = player.RateDefOutside = held(d.outside);
  player.OldRateDefInside = player.RateDefInside = held(d.inside);
  player.RateDefForce = held(d.force);
}

}  // namespace tipline
