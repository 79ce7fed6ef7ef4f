// What a play takes. One working value goes through all steps; each keeps to whole tenths at once.
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/numbers.h"
#include "engine/clock.h"
#include "engine/game_state.h"
#include "league/program.h"
#include "league/setup.h"

namespace tipline {
namespace {

/// A play being timed. Times are tenths.
struct Charge {
  const Side& offense = Offense();
  const Side& defense = Defense();
  const TeamRecord& team = game.team[game.OffenseSide];
  bool college = team.TeamType == 'C';
  int full = league.rules.ShotClockList * 10;  ///< full shot clock, 0 without the rule
  int pace = offense.OffensePace - 2;          ///< -2 very slow .. 2 very fast
  bool fouling = defense.QuickFoul >= 1;       ///< the defense fouls to stop the clock
  bool turnoversKept = BallHandler().Year > 1976;
  double eraActivity = 1;  ///< of the era of one of the five
  int time = 0;

  bool HasShotClock() const { return full > 0; }
  void Times(double factor) { time = Round(time * factor); }
};

/// The man of the offense at a drawn position.
const PlayerRecord& DrawnMan() {
  const int position = Rnd(kPositions);
  return OnFloor(game.OffenseSide, position);
}

/// Stops that a team or man makes: shots that end a possession or nearly so, turnovers, fouls.
double Activity(double fga, double f3a, double to, double pf, bool turnoversKept) {
  return (fga - f3a) * 0.93 + f3a * 0.99 + (turnoversKept ? to : 0) + pf;
}

const EraRecord& EraOf(const PlayerRecord& p) {
  return EraTableOf(IsCollege(p))[Clamp<int>(p.Year, kFirstEraYear, kLastEraYear)];
}

bool LeagueOfTheIslands() { return league.team[13].City == "Hawaii"; }

// The base without a shot clock: long possessions, shorter in the early game and among students.
void BaseWithoutShotClock(Charge& c) {
  c.time = 135 + Rnd(70) - 30 * c.pace;
  const int year = BallHandler().Year;
  if (!c.college && year <= 1954) c.Times(0.9);
  if (c.college && year >= 1954) c.Times(0.85);
}

void BaseWithShotClock(Charge& c) {
  if (game.ShotClock < c.full - 15) {
    c.time = 50 + Rnd(20) - 10 * c.pace;
    return;
  }
  c.time = 126 + Rnd(60) - 30 * c.pace;
  if (game.Period == league.rules.PeriodList && game.GameClock < 300) c.Times(0.5);
  if (c.time < 50) c.time = 50 + Rnd(15);
}

// The way up the floor costs time where it is played out; students are scaled to their forty minutes.
void BringUpAndLength(Charge& c) {
  const int minutes = setup.MoveUpList[LastPeriod() ? 1 : 0];
  if (league.rules.PeriodList == 4 && minutes > (LastPeriod() ? 2 : 0)) c.Times(1 + 0.005 * minutes);
  if (c.college) c.Times(48.0 / 40 * 0.95);
  if (game.GameClock > 100 && c.time < 20) c.time = 20 + Rnd(20);
  if (c.time < 10) c.time = 10 + Rnd(15);
}

void LateAndShotClock(Charge& c) {
  if (LeagueOfTheIslands()) c.Times(1.05);
  if ((LastPeriod() || game.Period == 2) && game.GameClock < 250 && Lead(game.OffenseSide) < 0) c.Times(0.6);
  if (c.HasShotClock() && game.ShotClock > 80 && Rnd(10) < 10 && c.time >= game.ShotClock) {
    c.time = game.ShotClock - Rnd(60);
  }
}

void KindOfPlay(Charge& c) {
  if (game.PlayKind == "OFFREB") {
    c.time = 25 + Rnd(10);
  } else if (game.PlayKind == "FASTBREAK") {
    c.time = 30 + Rnd(25);
  } else if (c.time < 30) {
    c.time = 30 + Rnd(7);
  }
  if (game.play.IntentionalFoul == 1) {
    c.Times(0.3);
    c.time = Clamp(c.time, 10, 50);
  }
}

// A college five of high scorers runs.
void RunAndGun(Charge& c) {
  if (!c.college || DrawnMan().Year != c.team.Year) return;
  int points = 0;  // of the five in forty minutes
  for (int p = 1; p <= kPositions; ++p) {
    if (c.offense.Lineup[p] == 0) continue;
    const PlayerRecord& man = OnFloor(game.OffenseSide, p);
    points = Round(points + static_cast<double>(PointsOf(man.Stats[1])) / (man.Stats[1].Min + 1) * 40);
  }
  if (points > 90 + Rnd(30)) c.Times(0.2 + 0.3 * Rnd());
  if (game.play.IntentionalFoul != 1 && c.time < 15) c.time = 10 + Rnd(10);
}

void Pass(Charge& c) {
  if (game.call.PassMade != 1) return;
  if (game.GameState != "FASTBREAK" && game.GameState != "OFFREB") {
    const int base = game.ShotClock <= 6 ? 60 : game.ShotClock <= 12 ? 80 : 100;
    c.time = base + Rnd(20) - 20 * c.pace;
    if (c.time < 20) c.time = 15 + Rnd(15);
  }
  if (LastPeriod() && game.GameClock > 35 && game.GameClock < 90) c.time = std::min(c.time, 30);
}

/// Two men of the five come from seasons far apart. Every pair draws.
bool SeasonsFarApart() {
  bool apart = false;
  for (int a = 1; a <= 4; ++a) {
    for (int b = 2; b <= 5; ++b) {
      if (Offense().Lineup[a] == 0 || Offense().Lineup[b] == 0) continue;
      const int gap = std::abs(OnFloor(game.OffenseSide, a).Year - OnFloor(game.OffenseSide, b).Year);
      if (gap >= 10 + Rnd(10)) apart = true;
    }
  }
  return apart;
}

// A fast era gets through its possessions faster, measured against the year 2013.
void EraPace(Charge& c) {
  const EraRecord& own = EraOf(BallHandler());
  const EraRecord& modern = EraTableOf(IsCollege(BallHandler()))[2013];
  const double modernActivity = Activity(modern.FGA, own.F3A, modern.TO, modern.PF, c.turnoversKept) + 0.1;
  const EraRecord& era = EraOf(DrawnMan());
  c.eraActivity = Activity(era.FGA, era.F3A, era.TO, era.PF, c.turnoversKept) + 0.1;
  if (c.college && SeasonsFarApart()) c.Times(1.2);
  const double up = Rnd();
  const double down = Rnd();
  c.time = Round(c.time + up - down);
  double ratio = std::pow(c.eraActivity / modernActivity, 1.05);
  if (c.team.Year <= 1950 + Rnd(10)) ratio *= 1.1;
  c.time = Round(c.time / ratio);
}

void QuickShot(Charge& c) {
  if (c.offense.QuickShot != 1 || game.GameClock >= 1200) return;
  const int most = game.GameClock < 300 ? 30 : game.GameClock < 600 ? 40 : 50;
  c.time = 0;
  for (int i = 0; i < 3; ++i) c.time += Rnd(most);
}

// The slow paces work the shot clock down to its end.
void SlowPaces(Charge& c) {
  if (c.pace == -1) {
    if (!c.HasShotClock() && c.time < 15) c.time = 15 + Rnd(10);
    if (c.HasShotClock() && c.time > game.ShotClock - 6) c.time = game.ShotClock - 3 - Rnd(3);
  }
  if (c.pace == -2) {
    if (!c.HasShotClock() && c.time < 20) c.time = 20 + Rnd(10);
    if (c.HasShotClock() && c.time > game.ShotClock - 2) c.time = game.ShotClock - Rnd(3);
  }
}

void HumanOffense(Charge& c) {
  if (c.offense.CoachMode != "H" || !c.HasShotClock()) return;
  if (game.ShotClock < (0.85 + 0.15 * Rnd()) * c.full || c.time <= 100) return;
  const double up = Rnd();
  const double down = Rnd();
  c.time = Round((c.time + up - down) * 0.94);
}

// Draft teams of a small league are all stars: a little slower each.
void DraftTeams(Charge& c) {
  if (!(c.team.RosterKind == 'D') || DrawnMan().Year < 2010) return;
  c.Times(1.03);
  if (league.ActiveTeams <= 24) c.Times(1.04);
  if (league.ActiveTeams <= 15 + Rnd(5)) c.Times(1.04);
}

void FloorAndLastShot(Charge& c) {
  if (c.time < 15) c.time = 10 + Rnd(15);
  c.time = std::max(c.time, 3);
  if (c.offense.LastShot == 1 && c.HasShotClock() && game.GameClock < c.full && IsSetShot(game.PlayKind)) {
    c.time = game.ShotClock - Rnd(20);
  }
}

void BurnTheClock(Charge& c) {
  if (!c.HasShotClock()) {
    c.time = 100 + Rnd(50);
  } else if (game.ShotClock >= 60) {
    const int base = game.ShotClock >= 120 ? 80 : game.ShotClock >= 100 ? 60 : game.ShotClock >= 80 ? 40 : 20;
    c.time = base + Rnd(30);
  } else {
    c.time = 10 + Rnd(20);
  }
  c.time = std::min({std::max(c.time, 10), game.ShotClock, game.GameClock});
}

// The ball comes up against a press or late in the period, lost on the way or not.
void MoveUp(Charge& c) {
  const int base = game.PlayResult == "MOVE-UP" ? 64 : 38;
  c.time = std::min(base + Rnd(20) - 10 * c.pace, 99);
  if (c.fouling && game.GameClock < 1200) c.time = 1 + Rnd(10);
}

void BurnMoveUpAndStealFoul(Charge& c) {
  if (game.PlayResult == "BURN") BurnTheClock(c);
  if (game.PlayResult == "MOVE-UP" || game.PlayResult == "MOVE-UP-OB" || game.PlayResult == "MOVE-UP-ST") {
    MoveUp(c);
  }
  if (c.defense.StealFoul == 1 && LastPeriod()) {
    const int most = game.GameClock < 1500 + Rnd(1000) ? 15 : 35;
    const int first = Rnd(most);
    const int second = Rnd(most);
    c.time = 5 + first + second;
  }
  c.time = std::max(c.time, 1);
  if (c.HasShotClock()) c.time = std::min(c.time, c.full);
}

// From the frontcourt an inbound pass takes next to nothing, from the backcourt the way up is in it.
void BringTheBallIn(Charge& c) {
  const PlayResult& r = game.PlayResult;
  const bool lost = r == "IN-ST" || r == "IN-OB" || r == "IN-OB-DEF" || r == "IN-OB-OFF";
  if (game.DeadBallKind == 3 || game.DeadBallKind == 4) {
    if (r == "IN-EZ") c.time = 65 + Rnd(20) - 10 * c.pace;
    if (r == "IN-5") c.time = 0;
    if (lost) c.time = 35 + Rnd(20) - 10 * c.pace;
  } else if (game.DeadBallKind == 1 || game.DeadBallKind == 2) {
    if (r == "IN-EZ" || r == "IN-5") c.time = 0;
    if (lost) c.time = 3 + Rnd(3);
  }
}

// Five men who do more than their era get through their possessions faster.
void PaceOfTheFive(Charge& c) {
  double activity = 0;
  for (int p = 1; p <= kPositions; ++p) {
    const PlayerRecord& man = OnFloor(game.OffenseSide, p);
    const StatLine& real = man.Stats[1];
    const int stops = Round(Activity(real.FGA, real.F3A, real.To, real.Pf, c.turnoversKept));
    activity += stops / (real.Min + 0.1) * (IsCollege(man) ? 40 : 48);
  }
  const double x = activity / c.eraActivity;
  const double ratio = x * x * std::sqrt(x);
  const bool draft = c.team.RosterKind == 'D';
  c.time = Round(c.time / (draft ? Clamp(ratio, 0.8, 1.2) : Clamp(ratio, 0.7, 1.3)));
}

void LeagueTrims(Charge& c) {
  if (c.time > 40 + Rnd(40)) {
    c.Times(0.95);
    if (c.team.TeamType == 'P' && c.team.Year >= 2018) c.Times(1.04);
    if (c.college && c.team.Year >= 2000 + Rnd(10)) c.Times(1.04);
  }
  if (c.team.TeamType == 'A') {
    c.Times(0.95);
    if (c.team.Year == 1975) c.Times(1.3);
  }
}

/// A league game of two stock teams of one season, whose replay can be held against the real season.
bool ReplayOfOneSeason() {
  const TeamRecord& a = game.team[1];
  const TeamRecord& b = game.team[2];
  if (game.MixedEras == 1 || league.rules.GameEraList != 0 || program.GameKind != "L") return false;
  if (a.RosterKind == 'D' || b.RosterKind == 'D') return false;
  if (a.Year != b.Year || a.Year < 1945 || a.Year > 2050) return false;
  if (a.Wins + a.Losses < Rnd(2) || b.Wins + b.Losses < Rnd(2)) return false;
  return !LeagueOfTheIslands();
}

double StopsPerMinute(const StatLine& line, bool turnoversKept) {
  return (line.FGA + (turnoversKept ? line.To : 0) + line.Pf) / (line.Min + 1.0);
}

// A man who is busier in the replay than he was gets fewer possessions, and the other way round.
void ReplayFeedback(Charge& c) {
  if (c.time <= 40 + Rnd(30) || !ReplayOfOneSeason()) return;
  const PlayerRecord& man = DrawnMan();
  const StatLine& real = man.Stats[1];
  const StatLine& replay = man.Stats[2];
  if (real.Min / (real.G + 1.0) <= 10.0 || replay.Min / (replay.G + 1.0) <= 10.0) return;
  const bool turnoversKept = man.Year > 1976;
  const double was = StopsPerMinute(real, turnoversKept);
  const double is = StopsPerMinute(replay, turnoversKept);
  if (was <= 0 || is <= 0) return;
  static constexpr struct {
    double sign, width;
    int change;
  } kSteps[] = {{1, 0.015, 15},   {1, 0.005, 10},   {1, 0.001, 5},
                {-1, 0.015, -15}, {-1, 0.005, -10}, {-1, 0.001, -5}};
  for (const auto& step : kSteps) {
    const double drift = (is / was - 1) * step.sign;
    if (drift >= step.width * Rnd()) {
      c.time += step.change;
      return;
    }
  }
}

double PointsPer48(const PlayerRecord& man) {
  return static_cast<double>(PointsOf(man.Stats[1])) / man.Stats[1].Min * 48;
}

// Scorers of different seasons on one floor have to share the ball.
void StarsOfTwoSeasons(Charge& c) {
  const PlayerRecord& a = DrawnMan();
  const PlayerRecord& b = DrawnMan();
  if (a.Year == b.Year || a.Stats[1].Min <= 500 || b.Stats[1].Min <= 500) return;
  const double first = PointsPer48(a);
  const double second = PointsPer48(b);
  if (first > 17 + 5 * Rnd() && second > 17 + 5 * Rnd()) c.Times(1.2);
  if (first > 21 + 5 * Rnd() && second > 21 + 5 * Rnd()) c.Times(1.2);
}

/// Longest wait of a defense that fouls, by the clock that is left.
int FoulWait(bool anyShooter) {
  // clang-format off
  static constexpr int kClock[] = {500, 2500, 4000};
  static constexpr int kWait[2][4] = {{10, 15, 25, 35},   // a poor shooter has to be found
                                      { 5, 10, 20, 30}};  // any man will do
  // clang-format on
  int band = 0;
  while (band < 3 && game.GameClock >= kClock[band] + Rnd(1000)) ++band;
  return kWait[anyShooter ? 1 : 0][band];
}

void FoulingDefense(Charge& c) {
  if (!c.fouling) return;
  c.time = 3 + Rnd(FoulWait(c.defense.QuickFoul == 1));
  if (c.defense.QuickFoul == 3 && Rnd(2) == 1) c.time += Rnd(10);
  if (c.time >= game.GameClock) c.time = game.GameClock - Rnd(5);
}

void QuickPasses(Charge& c) {
  if (game.possession.JustQuickPassed == 1) c.time = 5 + Rnd(15);
  if (game.possession.QuickPassCount >= 1 && c.time > 60 + Rnd(30)) {
    c.time += 10;
    if (c.HasShotClock()) c.time = std::min(c.time, c.full - 2);
  }
}

void HoldToTheClocks(Charge& c) {
  c.time = std::max(c.time, 1);
  if (c.HasShotClock()) c.time = std::min(c.time, game.ShotClock);
  if (game.GameClock - game.ShotClock <= 9 && league.rules.DisplayTenthsCheck == 0) {
    game.ShotClock = game.GameClock;
  }
  if (c.fouling && c.time > 30 && game.GameClock > 40) c.time = 30 + Rnd(10);
  game.PlayTime = std::min(std::max(c.time, 0), game.GameClock);
}

// Who holds the ball or gets no shot off lets the period run out when it is nearly over.
void ResultsThatRunTheClock(const Charge& c) {
  const bool noShot = game.PlayResult == "NOSHOT";
  if (noShot || game.PlayResult == "HOLD BALL") {
    if (game.GameClock < 10 + Rnd(150) && game.ShotClock <= game.GameClock) game.PlayTime = game.GameClock;
    if (noShot) game.PlayTime = game.GameClock;
    if (c.HasShotClock()) game.PlayTime = std::min(game.PlayTime, game.ShotClock);
  }
  if (c.fouling && game.PlayTime > 25) game.PlayTime = std::min(24 + Rnd(10), game.GameClock);
  if (game.PlayResult == "SHOTCLOCK") game.PlayTime = game.ShotClock;
}

void SettleClocks(const Charge& c) {
  if (!c.HasShotClock()) game.ShotClock = kNoShotClock;
  game.ShotClock = std::min(game.ShotClock, game.GameClock);
  game.MomentumTime = std::max(game.MomentumTime - game.PlayTime, 0);
  for (Side& side : game.side) side.TimeSinceScore += game.PlayTime;
}

}  // namespace

void ChargeTime() {
  Charge c;
  game.TimeoutTaken = 0;
  if (c.HasShotClock()) {
    BaseWithShotClock(c);
    BringUpAndLength(c);
  } else {
    BaseWithoutShotClock(c);
  }
  LateAndShotClock(c);
  KindOfPlay(c);
  RunAndGun(c);
  Pass(c);
  EraPace(c);
  QuickShot(c);
  SlowPaces(c);
  HumanOffense(c);
  DraftTeams(c);
  FloorAndLastShot(c);
  BurnMoveUpAndStealFoul(c);
  BringTheBallIn(c);
  PaceOfTheFive(c);
  LeagueTrims(c);
  ReplayFeedback(c);
  StarsOfTwoSeasons(c);
  FoulingDefense(c);
  QuickPasses(c);
  HoldToTheClocks(c);
  ResultsThatRunTheClock(c);
  SettleClocks(c);
}

}  // namespace tipline
