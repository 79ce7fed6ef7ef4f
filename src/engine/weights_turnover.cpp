#include "engine/weights_terms.h"

namespace tipline {

namespace {

const UsagePower kUsage{1.5};
constexpr KindTerms kKind{-40, 45, 50, 35, -50};

void RealTurnovers(const Duel& duel, Thousandths& w) {
  const int year = duel.shooter.Year;
  w.Add(duel.real.To * 0.89);
  if (year <= 1990) w.Times(1.06);
  if (year >= 2021) w.Times(0.96);
  if (IsCollege(duel.shooter)) {
    w.Times(1.1);
    if (year >= 2015) w.Times(1.25);
  }
}

/// What a team's men are worth against its record: a team that wins more than its men should is well drilled.
double DrillFactor(int side) {
  if (GamesPlayed(game.team[side]) < 5 + Rnd(5)) return 1;
  const double share = game.side[side].WinShare;
  if (share <= 0) return 1;
  const int slot = game.side[side].Lineup[Rnd(kPositions)];
  if (slot == 0) return 1;
  const PlayerRecord& man = PlayerAt(side, slot);
  const double value = Clamp(man.Salary / (man.Stats[1].Min + 1.0) / 6.5, 0.0, 0.9);
  return Clamp(std::pow(value / share, 1.1), 0.95, 1.05);
}

void SeasonAndScore(const Duel& duel, Thousandths& w) {
  if (game.AnalysisMode || !(LastPeriod() || Rnd(5) == 1)) return;
  if (GamesPlayed(duel.offenseTeam) >= 5) w.Times(1 - duel.offense.TeamPointDiff * 0.003);
  const double score = ScoreFactor(Lead(duel.O), 1.25, 0.75);
  if (score != 1) w.Times(score);
  if (duel.Draft(duel.offenseTeam) || duel.Draft(duel.defenseTeam)) return;
  if (game.MixedEras != 0 || league.rules.GameEraList != 0) return;
  w.Times(DrillFactor(duel.O));
  w.Over(DrillFactor(duel.D));
}

/// Hands that force the ball loose: of the five, and of the man in front of him.
void ForcingDefense(const Duel& duel, Thousandths& w) {
  const int five = duel.defense.LineupForce;
  w.Times(five / 26.0);
  const double usual = std::max(five / 5.0, 1.0), base = duel.defense.DefenseType != 0 ? 6.2 : 4.2;
  w.Times((duel.defender.RateDefForce + base) / (usual + base));
}

/// A picked team of many seasons has never played together.
void PickedTeam(const Duel& duel, Thousandths& w) {
  if (duel.offenseTeam.TeamType != 'O' && duel.offenseTeam.TeamType != 'C') return;
  int year = -1;
  bool mixed = false;
  for (const int slot : duel.offense.Lineup) {
    if (slot == 0) continue;
    const int own = PlayerAt(duel.O, slot).Year;
    mixed = mixed || (year != -1 && own != year);
    year = own;
  }
  if (!mixed) return;
  w.Times(1.4);
  if (league.ActiveTeams > 30) w.Times(1.4);
}

/// A five that is good on offense keeps the ball.
void LineupFactor(const Duel& duel, Thousandths& w) {
  const int outside = OutsideBand(duel.offense.LineupOffense);
  if (outside == 0) return;
  double factor = 1 - outside * 0.0035;
  if (!duel.Draft(duel.offenseTeam)) factor = (factor + 3) / 4;
  w.Times(Clamp(factor, 0.7, 1.3));
}

void DraftLeague(const Duel& duel, Thousandths& w) {
  if (!duel.BothDraft()) return;
  w.Times(1.03);
  if (league.ActiveTeams <= 24) w.Times(1.03);
  if (league.ActiveTeams <= 12) w.Times(1.03);
}

double LevelFactor(const TeamRecord& team) {
  if (team.TeamType == 'A') return team.Year < 1970 ? 1.2 : team.Year < 1973 ? 1.15 : 1.1;
  return team.TeamType == 'C' ? 1.35 : team.TeamType == 'O' ? 1.25 : 1;
}

void LeagueLevel(const Duel& duel, Thousandths& w) {
  w.Times(LevelFactor(duel.offenseTeam));
  w.Over(LevelFactor(duel.defenseTeam));
  if (duel.offenseTeam.TeamSex == 'W') w.Times(1.3);
  if (duel.defenseTeam.TeamSex == 'W') w.Over(1.3);
}

void AlternateForm(const Duel& duel, Thousandths& w) {
  if (league.rules.AlternateRealityCheck == 0) return;
  w.Times((duel.shooter.AltForm5 + 20) / 30.0);
  if (duel.guarded) w.Times((duel.defender.AltForm2 + 20) / 30.0);
}

void CollegeStrength(const Duel& duel, Thousandths& w) {
  if (!duel.BothOfType('C') && !duel.BothOfType('O')) return;
  constexpr double kFactor[15] = {1.35, 1.3, 1.25, 1.2, 1.15, 1.05, 1.05, 1,
                                  0.95, 0.9, 0.85, 0.8, 0.75, 0.7,  0.65};
  const int edge = duel.offense.CollegeStrength - duel.defense.CollegeStrength;
  w.Times(kFactor[Clamp(edge, -7, 7) + 7]);
}

/// A defense that is down to few men takes no risks.
void ThinDefenseFactor(const Duel& duel, Thousandths& w) {
  const int men = duel.defense.EligibleCount;
  if (men <= 6) w.Times(men <= 2 ? 0.2 : men <= 5 ? 0.5 : 0.9);
}

void Focus(const Duel& duel, Thousandths& w) {
  if (game.MomentumTime < 1) return;
  const TimeoutFocus own = duel.offense.TimeoutFocus, other = duel.defense.TimeoutFocus;
  if (own != "None") w.Times(own == "Offense" ? 0.95 : 1.05);
  if (other != "None") w.Times(other == "Pressure" ? 1.15 : other == "Defense" ? 1.05 : 0.95);
}

// clang-format off
// By kind of set shot: drive, inside, outside, three; columns: help 0 to 4.
constexpr int kHelp[4][5] = {{0,  30, -40,   40,  -60},
                             {0,  60, -80,   80, -120},
                             {0, -40,  30,  -60,   40},
                             {0, -80,  60, -120,   80}};
// clang-format on
constexpr int kCoverage[7] = {0, -60, -30, 0, 30, 60, 0};
constexpr int kPressure[5] = {0, 70, 40, 70, 100};
constexpr int kPace[5] = {100, 40, 0, 40, 100};

void SetPlaySituation(const Duel& duel, Thousandths& sum) {
  const int row = ShotRow(duel.kind);
  if (row < 0) return;
  sum.Add(Entry(kCoverage, game.play.PlayCoverage));
  if (duel.defense.DefenseType != 0) sum.Add(-20);
  if (duel.defense.DefenseType == 2 && duel.kind == "INSIDE") sum.Add(-40);
  sum.Add(Entry(kHelp[row], duel.defense.DefenseHelp));
  sum.Add(Entry(kPressure, duel.defense.Pressure));
  if (duel.guarded && duel.defenderMan.SafeStyle == 1) sum.Add(-100);
  sum.Add(Entry(kPace, duel.offense.OffensePace));
  if (game.call.LongPlay == 1) sum.Add(20);
}

/// More runners than men back: the ball is seldom lost.
void BreakNumbers(const Duel& duel, Thousandths& w) {
  constexpr double kFactor[5] = {1.1, 0.7, 0.3, 0.2, 0.1};
  if (duel.kind != "FASTBREAK") return;
  const int edge = game.fastBreak.BreakAttackers - game.fastBreak.BreakDefenders;
  if (edge >= 0 && edge <= 4) w.Times(kFactor[edge]);
}

/// The kind of play, less the average over the plays that he makes.
void KindOfPlay(const Duel& duel, Thousandths& sum) {
  const double threes = ThreeShare(duel);
  const int edge = game.fastBreak.BreakAttackers - game.fastBreak.BreakDefenders;
  double usual = kKind.OfTwos(duel.mix) - edge * duel.mix.ShareBreak * 5;
  usual = usual * (1 - threes) + kKind.three * threes;
  sum.Add(kKind.Of(duel.kind) - usual);
}

/// Three defenses of their time, which took the ball away like no other.
void GreatDefense(const Duel& duel, Thousandths& w) {
  const TeamRecord& team = duel.defenseTeam;
  if (team.TeamType != 'P') return;
  const bool of1992 = team.Year == 1992 && (team.City == "New York" || team.City == "Chicago");
  if (of1992 || (team.Year == 2009 && team.City == "Los Angeles L")) w.Times(1.05);
}

/// The season, the score and the two sides' ways with the ball.
void SeasonSteps(const Duel& duel, Thousandths& w) {
  RealTurnovers(duel, w);
  SeasonAndScore(duel, w);
  if (duel.shooter.Year <= 1954) w.Times(1.05);
  ForcingDefense(duel, w);
  if (!game.AnalysisMode && StrangersOnOffense(duel)) w.Times(1.1);
  w.AtLeast(1);
  Overuse(w, kUsage, 0.08, -0.06);
  PickedTeam(duel, w);
  LineupFactor(duel, w);
  DraftLeague(duel, w);
  OutOfZone(duel, w, 1.4, 1.8);
  if (!game.NeutralGame) w.Times(duel.O == 2 ? 0.97 : 1.03);
  if (duel.defense.NoFoul == 1) w.Times(0.25);
  if (duel.defense.StealFoul == 1) w.Times(1.2);
}

void LevelSteps(const Duel& duel, Thousandths& w) {
  LeagueLevel(duel, w);
  AlternateForm(duel, w);
  CollegeStrength(duel, w);
  ThinDefenseFactor(duel, w);
  Focus(duel, w);
  const double mean = MeanOfSides(duel.offense.EraTO, duel.defense.EraTO);
  w.Times(EraFactor(duel, mean, &EraRecord::TO));
  if (duel.offenseTeam.Year < 1973 && duel.defenseTeam.Year > 1973) w.Times(0.85);
  w.AtLeast(5);
  Tiredness(duel, w, 0.007);
  OutOfPosition(duel, w, 2);
}

}  // namespace

void TurnoverWeight() {
  const Duel duel;
  Thousandths w;
  SeasonSteps(duel, w);
  LevelSteps(duel, w);
  Thousandths sum;
  SetPlaySituation(duel, sum);
  TalentTerms(duel, sum, 1.5);
  BreakNumbers(duel, w);
  KindOfPlay(duel, sum);
  if (duel.SameProSeason()) Conferences(duel, sum, -10);
  GreatDefense(duel, w);
  w.Add(sum.value * SeasonPlays(duel));
  const int alley = game.call.CallAlleyPlayer;
  if (alley != 0 && alley != game.BallSlot) w.Times(1.2);
  w.AtLeast(Round(game.play.ShotChance * 0.01));
  game.play.TurnoverChance = w.value;
}

}  // namespace tipline
