// What he does with the ball: free throw, three, outside, inside, drive, fastbreak.
#include <span>

#include "frontoffice/rating_math.h"
#include "frontoffice/ratings.h"
#include "league/player_values.h"

namespace tipline {
namespace {

/// His shooting and that of his league.
struct Shooting {
  const EraRecord& era;
  double two = 0, freeThrow = 0, three = 0;                    // his percentages
  double leagueTwo = 0, leagueFreeThrow = 0, leagueThree = 0;  // his league's
  double threeUse = 0;                                         // threes among his shots
  int inside = 0, offense = 0;

  double TwoEdge() const { return two - leagueTwo; }
  double FreeThrowEdge() const { return freeThrow - leagueFreeThrow; }
};

// Percentages of college and international basketball, whose levels differ too much for one average.
struct SchoolShooting {
  int fromYear;
  double freeThrow, two, three;
};
// clang-format off
constexpr SchoolShooting kSchool[] = {
    {1981, 0.721, 0.441, 0.331},
    {1971, 0.701, 0.421, 0.301},
    {1961, 0.691, 0.411, 0.301},
    {   0, 0.681, 0.371, 0.301},
};
// clang-format on

Shooting ReadShooting(const PlayerRecord& player, const TeamRecord& team) {
  const StatLine& real = player.Stats[1];
  Shooting s{SeasonRow(player.Year, IsCollegeLevel(player))};
  s.three = real.F3M / (real.F3A + 1.0);
  s.two = Share(real.FGM - real.F3M, real.FGA + 1.0 - real.F3A);
  s.freeThrow = real.FTM / (real.FTA + 1.0);
  s.threeUse = real.F3A / (real.FGA + 1.0);
  s.inside = player.RealInsidePct;
  s.offense = player.RateOffense;
  s.leagueThree = s.era.F3M / (s.era.F3A + 1.0);
  s.leagueTwo = Share(s.era.FGM - s.era.F3M, s.era.FGA - s.era.F3A);
  s.leagueFreeThrow = s.era.FTM / (s.era.FTA + 1.0);
  if (IsCollegeOrInternational(team)) {
    const SchoolShooting* row = kSchool;
    while (row->fromYear > 0 && player.Year < row->fromYear) ++row;
    s.leagueFreeThrow = row->freeThrow;
    s.leagueTwo = row->two;
    s.leagueThree = row->three;
  }
  return s;
}

/// The value of the first step whose limit `figure` reaches; `otherwise` when it reaches none.
double FirstReached(std::span<const Step> steps, double figure, double otherwise) {
  for (const Step& step : steps) {
    if (figure >= step.limit) return step.value;
  }
  return otherwise;
}

/// The value of the first step that `figure` stays below.
double FirstBelow(std::span<const Step> steps, double figure, double otherwise) {
  for (const Step& step : steps) {
    if (figure < step.limit) return step.value;
  }
  return otherwise;
}

u8 FreeThrowRating(const Shooting& s) {
  return Tenth(Clamp(Against(s.freeThrow, s.leagueFreeThrow) * 50, 0.0, 100.0));
}

u8 ThreeRating(const Shooting& s, const StatLine& real) {
  if (s.era.F3A <= 5) return 0;
  double r = (s.three - s.leagueThree) / 0.0021 + 50;
  if (real.F3A < 4) r = 0;
  if (r < 10 && real.F3M > 0) r = 10;
  r = Clamp(r, 0.0, 100.0);
  if (r > 30 && real.F3A < 10) r = 30;
  return Tenth(r);
}

// Outside: what a man who shoots threes, or a poor free-throw shooter, can't be below or above.
constexpr Step kThreeUseFloor[] = {{0.02, 50}, {0.015, 40}, {0.01, 30}, {0.005, 20}, {0, 10}};
constexpr Step kThreeUseCap[] = {{0.05, 60}, {0.15, 70}, {0.25, 80}};
constexpr Step kFreeThrowCap[] = {{-0.201, 10}, {-0.151, 20}, {-0.101, 30}};
constexpr Step kInsideShareCap[] = {{60, 50}, {50, 60}, {40, 70}, {30, 80}, {20, 90}};

double OutsideFloor(double r, const Shooting& s) {
  r = std::max(r, s.inside <= 10 ? 30.0 : s.inside <= 20 ? 20.0 : s.inside <= 30 ? 10.0 : r);
  if (s.TwoEdge() < -0.041) r = std::min(r, 50.0);
  if (s.FreeThrowEdge() > -0.015) r = std::max(r, 30.0);
  for (const Step& step : kThreeUseFloor) {
    if (s.threeUse > step.limit) return std::max(r, step.value);
  }
  return r;
}

u8 OutsideRating(const Shooting& s, const StatLine& real) {
  double r = 30;
  if (real.FTA > 10) r += s.FreeThrowEdge() / 0.00295;
  if (r > 25 && s.inside < 40) r += Against(s.two, s.leagueTwo - 0.037) * 100 - 100;
  r = OutsideFloor(r, s);
  if (s.era.F3A > 10) {
    const double use = Against(s.threeUse, Share(s.era.F3A, s.era.FGA));
    r = std::min(r, FirstBelow(kThreeUseCap, use, r));
  }
  r = std::min(r, FirstBelow(kFreeThrowCap, s.FreeThrowEdge(), r));
  r = Clamp(r, 0.0, 100.0);
  if (s.inside >= 100) r = 0;
  if (r == 0 && s.inside < 100) r = 10;
  return Tenth(std::min(r, FirstReached(kInsideShareCap, s.inside, r)));
}

constexpr Step kOffenseCap[] = {{10, 50}, {20, 60}, {30, 70}, {40, 80}, {50, 90}};

u8 InsideRating(const Shooting& s) {
  double r = (s.TwoEdge() - 0.035) / 0.0023 + 50;
  r = (r / 3 + s.offense) * (s.inside / 75.0);
  if (r < 10 && s.inside > 0) r = 10;
  r = Clamp(r, 0.0, 100.0);
  if (s.inside == 0) r = 0;
  if (s.TwoEdge() < -0.011) r = std::min(r, 50.0);
  r = std::max(r, s.inside > 80   ? 40.0
                  : s.inside > 60 ? 30.0
                  : s.inside > 40 ? 20.0
                  : s.inside > 20 ? 10.0
                                  : r);
  return Tenth(std::min(r, FirstBelow(kOffenseCap, s.offense, r)));
}

/// What an average man makes of this figure in a minute of his league.
double PerMinuteNorm(double eraFigure, double schoolNorm, bool collegeLevel, const TeamRecord& team,
                     const RatingRun& run) {
  if (IsCollegeOrInternational(team)) return schoolNorm;
  return collegeLevel ? eraFigure / 40 / 5 : eraFigure / (run.LevelFactor * 48) / 5;
}

/// A man who passes and draws fouls on the move is dangerous there.
double OnTheMove(double r, const PlayerRecord& player, const TeamRecord& team, const RatingRun& run,
                 bool countFreeThrows) {
  const StatLine& real = player.Stats[1];
  const bool college = IsCollegeLevel(player);
  const EraRecord& era = SeasonRow(player.Year, college);
  const double minutes = real.Min + 1.0;
  r += Against(real.Ast / minutes, PerMinuteNorm(era.Ast, 0.1, college, team, run)) * 10 - 10;
  if (!countFreeThrows) return r;
  return r + Against(real.FTA / minutes, PerMinuteNorm(era.FTA, 0.09, college, team, run)) * 10 - 10;
}

constexpr Step kDriveCap[] = {{70, 20}, {60, 30}, {50, 40}, {40, 50}, {30, 60}, {20, 70}};

u8 DriveRating(const PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  const int inside = player.RealInsidePct;
  double r = (90 - inside) * player.RateOffense / 90.0;
  if (r > 0) r = OnTheMove(r, player, team, run, inside < 30);
  r = Clamp(r, 0.0, 100.0);
  return Tenth(std::min(r, FirstReached(kDriveCap, inside, r)));
}

u8 FastbreakRating(const PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  double r = (100 - player.RealInsidePct) * player.RateOffense / 90.0;
  if (r > 0) r = OnTheMove(r, player, team, run, true);
  const int teamShots = team.RealTotals[1].FGA;
  if (teamShots > 0 && !run.FictionalRatingRun) {
    const EraRecord& era = SeasonRow(player.Year, IsCollegeLevel(player));
    r *= Against(Share(teamShots, era.Games), era.FGA);
  }
  return Tenth(Clamp(r, 0.0, 100.0));
}

/// A short season proves no skill above average, and a man nobody passes to no great shot.
void CloseLimits(PlayerRecord& player) {
  if (player.Stats[1].Min < 200) {
    for (u8* rating : {&player.RateOffThree, &player.RateOffOutside, &player.RateOffInside,
                       &player.RateOffFastbreak, &player.RateOffDrive}) {
      *rating = std::min<u8>(*rating, 5);
    }
  }
  constexpr Step kByOffense[] = {{20, 5}, {30, 6}, {40, 7}, {50, 8}};
  const auto cap = static_cast<u8>(FirstBelow(kByOffense, player.RateOffense, 255));
  player.RateOffOutside = std::min(player.RateOffOutside, cap);
  player.RateOffInside = std::min(player.RateOffInside, cap);
}

}  // namespace

void DefaultShooting(PlayerRecord& player, const TeamRecord& team, const RatingRun& run) {
  if (run.MissingDataCheck && (player.RateOffThree || player.RateOffOutside || player.RateOffInside ||
                               player.RateOffDrive || player.RateOffFastbreak)) {
    return;
  }
  const Shooting s = ReadShooting(player, team);
  player.RateReserved1 = FreeThrowRating(s);
  player.RateOffThree = ThreeRating(s, player.Stats[1]);
  player.RateOffOutside = OutsideRating(s, player.Stats[1]);
  player.RateOffInside = InsideRating(s);
  player.RateOffDrive = DriveRating(player, team, run);
  player.RateOffFastbreak = FastbreakRating(player, team, run);
  CloseLimits(player);
}

}  // namespace tipline
