// Passing and rebounding. These two have no upper bound of their own; they are held at 20.
#include "frontoffice/rating_math.h"
#include "frontoffice/ratings.h"
#include "league/player_values.h"

namespace tipline {
namespace {

constexpr int kHighest = 20;

u8 Held(int rating) { return static_cast<u8>(Clamp(rating, 0, kHighest)); }
u8 HeldTenth(double working) { return Held(Int(working / 10 + 0.5)); }

/// Assists against the average man's, slow teams counting for more.
int PassingWorking(const PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  const StatLine& real = player.Stats[1];
  const bool college = IsCollegeLevel(player);
  const EraRecord& era = SeasonRow(player.Year, college);
  const double base = era.Ast / 5 / (college ? 40 : run.LevelFactor * 48);
  double rate = real.Ast / (real.Min + 1.0);
  if (!college && IsWoman(player) && player.Year <= 2018) rate *= 1.1;
  if (base <= 0) return 50;
  int r = Int(rate / base * 36 + 0.5);
  const int teamShots = team.RealTotals[1].FGA;
  const double pace = Against(era.FGA, Share(teamShots, era.Games));
  const bool fullGame = run.LevelFactor == 1.0;
  if (teamShots > 1000 && !run.FictionalRatingRun && (college || fullGame)) {
    r = Round(r * pace * (college ? 1.0 : run.LevelFactor));
  }
  if (teamShots > 0 && (college ? !run.FictionalRatingRun : fullGame)) r = Round(r * pace);
  return r;
}

/// The rebounds of a game that a team's men fought for.
struct Boards {
  double teamReb, teamOff, oppReb, oppOff;
  double minutes;           // of all the team's men
  double offShare;          // offensive boards among the league's rebounds
  double defPart, offPart;  // the two parts of 67.5 that the league's boards fall into
};

Boards ReadBoards(const PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  const EraRecord& era = SeasonRow(player.Year, IsCollegeTeam(team));
  const EraRecord& totals = SeasonRow(player.Year, IsCollegeOrInternational(team));
  const auto known = [&](int figure, double eraFigure) {
    return figure == 0 || run.FictionalRatingRun ? totals.Games * eraFigure : figure;
  };
  Boards b{};
  b.teamReb = known(team.RealTotals[1].Reb, totals.Reb);
  b.teamOff = known(team.RealTotals[1].Off, totals.OffReb);
  b.oppReb = known(team.RealTotals[2].Reb, totals.Reb);
  b.oppOff = known(team.RealTotals[2].Off, totals.OffReb);
  b.minutes = era.Games * (IsCollegeTeam(team) ? 40.5 : 48.5) * 5;
  const bool kept = era.OffReb > 0 && era.Reb > 0;
  b.offShare = kept ? static_cast<double>(era.OffReb) / era.Reb : 0.33;
  b.defPart = kept ? (era.Reb - era.OffReb) * 67.5 / era.Reb : 45.0;
  b.offPart = 67.5 - b.defPart;
  return b;
}

/// His part of the boards of one end. `own` is what his team took there, `other` what the other side took,
/// `part` and `share` what the league takes.
double BoardsWorking(double rate, double own, double other, double minutes, double part, double share) {
  const double chances = own + other;
  if (chances == 0) return rate * 300;
  if (own <= 0 || minutes <= 0 || share <= 0) return 50;
  return rate / (own / minutes) * part * (own / chances) / share;
}

u8 ShortSeason(u8 rating, int minutes, u8 most) { return minutes < 150 ? std::min(rating, most) : rating; }

}  // namespace

void DefaultPassing(PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  if (run.MissingDataCheck && player.RatePassing > 0) return;
  const StatLine& real = player.Stats[1];
  if (IsCollegeTeam(team)) {
    player.RatePassing = Held(Int(real.Ast / (real.Min + 1.0) / 0.09 * 36 / 10 + 0.5));
    return;
  }
  player.RatePassing = ShortSeason(HeldTenth(PassingWorking(player, team, run)), real.Min, 7);
}

void DefaultRebounding(PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  if (run.MissingDataCheck && (player.RateRebDef || player.RateRebOff)) return;
  const StatLine& real = player.Stats[1];
  const double def = (real.Reb - real.Off) / (real.Min + 1.0);
  const double off = real.Off / (real.Min + 1.0);
  if (IsCollegeLevel(player)) {
    player.RateRebDef = Held(Int(def / 0.12 * 4.5));
    player.RateRebOff = Held(Int(off / 0.06 * 2.25));
    return;
  }
  const Boards b = ReadBoards(player, team, run);
  const double defWorking =
      BoardsWorking(def, b.teamReb - b.teamOff, b.oppOff, b.minutes, b.defPart, 1 - b.offShare);
  player.RateRebDef = ShortSeason(HeldTenth(defWorking), real.Min, 7);
  const double offWorking =
      BoardsWorking(off, b.teamOff, b.oppReb - b.oppOff, b.minutes, b.offPart, b.offShare);
  player.RateRebOff = ShortSeason(HeldTenth(offWorking), real.Min, 4);
}

}  // namespace tipline
