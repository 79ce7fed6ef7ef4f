#include "engine/weights_terms.h"

namespace tipline {

namespace {

const UsagePower kUsage{1.5};
constexpr KindTerms kKind{-40, 25, 30, 25, -30};

struct FoulDuel : Duel {
  const bool college = IsCollege(shooter);
  const int year = shooter.Year < kFirstEraYear ? kFirstEraYear : shooter.Year;
  const EraRecord& row = EraRow(year, college, 2017);
  const bool oneFoulLeft = DefenderOneFoulLeft();
};

/// Older seasons gave more free throws for a foul.
double OldSeason(int year) {
  return year <= 1960 ? 0.8 : year <= 1969 ? 0.86 : year <= 1973 ? 0.91 : year <= 1979 ? 0.96 : 1;
}

/// Fouls that his real free throws stand for, less the free throws after his baskets.
void RealFouls(const FoulDuel& duel, Thousandths& w) {
  const double throws = duel.offense.EraFTA + duel.defense.EraFTA;
  const double perThrow = throws > 0 ? (duel.offense.EraPF + duel.defense.EraPF) / throws : 1;
  w.Add(duel.real.FTA * perThrow);
  w.Add(-(duel.real.FGM - duel.real.F3M) * 0.07);
  w.Times(0.89);
  if (duel.year <= 1990) w.Times(1.03);
  if (duel.oneFoulLeft) w.Times(0.95);
  w.Times(OldSeason(duel.year));
  const PlayerRecord& r = duel.shooter;
  if (r.RateOffFastbreak >= 10 && r.RateOffDrive >= 10) {
    w.Times(0.9);
    if (r.RatePassing >= 10) w.Times(0.9);
  }
}

double LevelFactor(const TeamRecord& team) {
  return team.TeamType == 'A' ? 0.9 : team.TeamType == 'C' ? 0.8 : team.TeamType == 'O' ? 0.85 : 1;
}

void LeagueLevel(const FoulDuel& duel, Thousandths& w) {
  if (duel.offenseTeam.TeamType == 'A' && duel.shooter.Year == 1972) w.Times(0.8);
  w.Times(LevelFactor(duel.offenseTeam));
  w.Over(LevelFactor(duel.defenseTeam));
  if (duel.offenseTeam.TeamSex == 'W') w.Times(0.8);
  if (duel.defenseTeam.TeamSex == 'W') w.Over(0.8);
}

/// Rebounds draw fouls of their own, which come off here; fewer where the season missed more shots.
void ReboundFouls(const FoulDuel& duel, Thousandths& w) {
  double perRebound = 0.07;
  if (!duel.college) {
    const EraRecord& pro = EraRow(duel.year, false, 2017);
    perRebound -= (static_cast<double>(pro.FGA) - pro.FGM - 45.3) * 0.005;
  }
  if (perRebound < -0.03) perRebound = 0.01;
  w.Add(-duel.real.Reb * perRebound);
}

/// A man who shoots more threes than his time is fouled less on the floor than his free throws say; one who
/// lives by them is fouled more when he does go in.
void ThreePointShooter(const FoulDuel& duel, Thousandths& w) {
  if (league.rules.ThreePointCheck == 0 || duel.real.F3A < 10) return;
  w.Times(0.95);
  const double usual = duel.row.F3A / (duel.row.FGA + 0.1);
  const double own = duel.real.F3A / (duel.real.FGA + 0.1);
  if (own > usual + 0.1) w.Times(1.1);
  if (own > usual + 0.15) w.Times(1.1);
}

/// Nobody fouls a good free-throw shooter gladly.
void FreeThrowShooter(const FoulDuel& duel, Thousandths& w) {
  const double usual = duel.row.FTM / (duel.row.FTA + 0.1);
  const double own = std::max(duel.real.FTM / (duel.real.FTA + 0.1), usual * 0.7);
  for (int k = 1; k <= 5; ++k) {
    if (own > usual + 0.071 + 0.2 * k) w.Times(0.99);
  }
}

void EraAndLevel(const FoulDuel& duel, Thousandths& w) {
  if (duel.college) w.Times(1.01);
  if (league.rules.PeriodList == 4) w.Times(game.Period == 1 ? 0.91 : 1.03);
  if (duel.BothDraft()) w.Times(0.95);
  const double mean = MeanOfSides(duel.offense.EraPF, duel.defense.EraPF);
  w.Times(EraFactor(duel, mean, &EraRecord::PF));
  if (duel.college) {
    w.Times(1.2);
    if (duel.shooter.Year >= 2015) w.Times(1.1);
  }
  if (duel.Draft(duel.offenseTeam)) w.Times(0.9);
}

/// The more fouls the team has, the more careful it is. Three draws.
void TeamFouls(const FoulDuel& duel, Thousandths& w) {
  const int fouls = duel.defense.TeamFouls;
  w.Times(fouls > 5 + Rnd(3) ? 0.7 : 1.02);
  w.Times(fouls > 7 + Rnd(3) ? 0.4 : 1.02);
  w.Times(fouls > 9 + Rnd(3) ? 0.2 : 1.02);
}

void LatePeriodScore(Thousandths& w) {
  if (!LastPeriod()) return;
  const int margin = Margin();
  w.Times(margin > 25 ? 0.3 : margin > 20 ? 0.5 : margin > 15 ? 0.7 : margin > 10 ? 0.9 : 1.05);
}

/// The game is over before the horn.
void GarbageTime(Thousandths& w) {
  if (game.Period != league.rules.PeriodList) return;
  const int margin = Margin(), clock = game.GameClock;
  if (margin > 25 && clock < 2 * kMinute) w.Times(0.5);
  if (margin > 20 && clock < 900) w.Times(0.5);
  if (margin > 15 && clock < kMinute) w.Times(0.5);
  if (margin > 10 && clock < 200) w.Times(0.5);
}

/// How often the five in front of him foul, against the fives of their seasons.
void DefendersHabit(const FoulDuel& duel, Thousandths& w) {
  const bool zone = duel.defense.DefenseType != 0;
  double usual = 0, own = 0;
  for (const int slot : duel.defense.Lineup) {
    if (slot == 0) continue;
    const PlayerRecord& man = PlayerAt(duel.D, slot);
    usual += OwnEra(man).PF / (IsCollege(man) ? 202.5 : 242.5);
    const bool onBall = slot == game.BallDefender;
    const double part = zone ? (onBall ? 1.2 : 0.95) : (onBall ? 1.4 : 0.9);
    own += man.Stats[1].Pf / (man.Stats[1].Min + 1.0) * part;
  }
  if (usual > 0) w.Times(own / usual);
}

/// The defender who means to foul does so; at the end of the last period he waits for nothing. A draw.
int CoverageTerm() {
  constexpr int kCoverage[6] = {0, -100, -70, 0, 20, 50};
  const int coverage = game.play.PlayCoverage;
  if (coverage != 6) return Entry(kCoverage, coverage);
  return LastPeriod() && game.GameClock < 50 + Rnd(300) ? 995 : 900;
}

void SetPlaySituation(const FoulDuel& duel, Thousandths& sum) {
  constexpr int kPressure[5] = {0, 60, 40, 80, 100};
  if (!IsSetShot(duel.kind)) return;
  sum.Add(CoverageTerm());
  sum.Add(Entry(kPressure, duel.defense.Pressure));
  if (duel.oneFoulLeft) {
    sum.Add(-50);
  } else if (duel.guarded && duel.defenderMan.SafeStyle == 1) {
    sum.Add(-100);
  }
}

/// The kind of play, less the average over the plays that he makes.
void KindOfPlay(const FoulDuel& duel, Thousandths& sum) {
  const double threes = ThreeShare(duel);
  sum.Add(kKind.Of(duel.kind) - (kKind.OfTwos(duel.mix) * (1 - threes) + kKind.three * threes));
}

/// A defense with hardly a man left to lose does not foul.
void MenLeft(const FoulDuel& duel, Thousandths& w) {
  if (game.AnalysisMode) return;
  if (league.rules.DqList > 0) {
    const int men = duel.defense.EligibleCount;
    if (men <= 6) w.value = 0;
    if (men == 7) w.Times(0.3);
  }
  if (game.GameClock < 30) w.value = 0;
}

void SeasonSteps(const FoulDuel& duel, Thousandths& w) {
  RealFouls(duel, w);
  LeagueLevel(duel, w);
  if (!game.AnalysisMode && StrangersOnOffense(duel)) w.Times(0.9);
  ReboundFouls(duel, w);
  Overuse(w, kUsage, -0.06, 0.08);
  ThreePointShooter(duel, w);
  FreeThrowShooter(duel, w);
  EraAndLevel(duel, w);
}

void GameSteps(const FoulDuel& duel, Thousandths& w) {
  TeamFouls(duel, w);
  LatePeriodScore(w);
  OutOfZone(duel, w, 0.9, 0.8);
  if (!game.NeutralGame) w.Times(duel.O == 2 ? 1.04 : 0.96);
  if (duel.defense.NoFoul == 1) w.Times(0.1);
  GarbageTime(w);
  DefendersHabit(duel, w);
  Tiredness(duel, w, -0.005);
  OutOfPosition(duel, w, -2);
}

}  // namespace

void FoulWeight() {
  const FoulDuel duel;
  Thousandths w;
  SeasonSteps(duel, w);
  GameSteps(duel, w);
  Thousandths sum;
  SetPlaySituation(duel, sum);
  KindOfPlay(duel, sum);
  TalentTerms(duel, sum, 0.5);
  w.Add(sum.value * SeasonPlays(duel));
  w.AtLeast(Round(game.play.ShotChance * 0.01));
  MenLeft(duel, w);
  game.play.FoulChance = w.value;
}

}  // namespace tipline
