#include "engine/chances_terms.h"

namespace tipline {

namespace {

const double kCommonInside = std::pow(5.7, kTalentExponent);
const double kCommonOutside = std::pow(5.5, kTalentExponent);
const double kCommonDrive = std::pow(5.0, kTalentExponent);

struct TwoPointShot : Duel {
  const bool drive = kind == "DRIVE", inside = kind == "INSIDE", outside = kind == "OUTSIDE";
  Thousandths chance;
  Thousandths look;  ///< what the openness of the shot gives, added at the end
};

/// The level of the game that the shot is taken in.
double EraOfGame(const TwoPointShot& s) {
  const int setting = league.rules.GameEraList;
  double level = MeanOfSides(s.offense.Era2Pct, s.defense.Era2Pct);
  if (setting == 1) {
    level = IsCollege(s.shooter) ? 0.355 : 0.455;
  } else if (EraSettingYear() > 0) {
    level = FieldGoalPct(SettingEra(s.shooter));
  }
  return s.offenseTeam.TeamSex == 'W' ? level * 0.95 : level;
}

void RealPercentage(TwoPointShot& s) {
  const int tried = s.real.FGA - s.real.F3A + 1;
  double pct = Ratio(s.real.FGM - s.real.F3M, tried) + LoadedAt(s.O, game.BallPlayer).HotHand;
  if (pct > 1.0) pct = 0.3;
  s.chance.Add(Carried(pct, TwoPct(OwnEra(s.shooter)), EraOfGame(s)));
}

void OutOfZone(TwoPointShot& s) {
  const int zone = s.shooterMan.NaturalZone;
  if (s.inside && zone == kOutside) s.chance.Times(0.95);
  if (s.inside && zone == kThree) s.chance.Times(0.9);
  if (s.outside && (zone == kInside || zone == kThree)) s.chance.Times(0.95);
}

void SelectionOfKind(TwoPointShot& s) {
  const int row = s.inside ? 1 : s.outside ? 2 : s.drive ? 4 : s.kind == "FASTBREAK" ? 5 : 0;
  if (row > 0) SeldomShot(s.chance, s.shooter.ShotSelection[row]);
}

/// The form that a league of its own reality gave the shooter and his five.
void AlternateForm(TwoPointShot& s) {
  if (league.rules.AlternateRealityCheck == 0) return;
  s.chance.Add((s.shooter.AltForm1 - 10) * 7 + (s.shooter.AltForm2 - 10) * 7);
  for (const int slot : s.offense.Lineup) {
    if (slot > 0) s.chance.Add((PlayerAt(s.O, slot).AltForm3 - 10) * 0.6);
  }
}

void LowScoringSeason(TwoPointShot& s) {
  const double pct = FieldGoalPct(OwnEra(s.shooter));
  if (pct > 0 && pct < 0.45) s.chance.Add(-(0.45 - pct) * 100);
}

void CollegeStrength(TwoPointShot& s) {
  if (!s.BothOfType('C') && !s.BothOfType('O')) return;
  s.chance.Add((s.offense.CollegeStrength - s.defense.CollegeStrength) * 8);
}

/// The corrections that know the teams and the men but not yet the kind of shot.
void Corrections(TwoPointShot& s) {
  constexpr int kThin[7] = {100, 100, 100, 60, 50, 40, 30};
  if (s.DefenderOneFoulLeft()) s.chance.Times(1.02);
  if (IsCollege(s.shooter)) s.chance.Add(-14);
  PassingOfFive(s, s.chance);
  OutOfZone(s);
  SeasonForm(s, s.chance, 0.94, 1.06);
  ReplayCorrection(s, s.chance, TwosOf(s.real), TwosOf(s.shooter.Stats[2]), 50, 75);
  Condition(s, s.chance, 4);
  SelectionOfKind(s);
  Mismatch(s.chance);
  s.chance.Add(LineupTerm(s, 0.5, 50));
  s.chance.Add((23.1 - game.play.TeamDefense) * 5.5);
  AlternateForm(s);
  if (s.shooter.PlayerType == 'A') s.chance.Add(-10);
  ThinDefense(s, s.chance, kThin, 50);
  LowScoringSeason(s);
  CollegeStrength(s);
  if (LateSeason(s)) s.chance.Add(-14);
}

/// The kinds of two differ in how well they fall; less the average of his own kinds, so that a man's
/// percentage stays his own.
void KindOfShot(TwoPointShot& s) {
  const PlayerRecord& r = s.shooter;
  // against the rating of a common man, in tenths: all of these end in a half
  const int putback = Round((r.RateOffInside * 10 - 51) * 1.5 + 49);
  const int inside = Round((r.RateOffInside * 10 - 57) * 1.5 + 59);
  const int outside = Round((r.RateOffOutside * 10 - 55) * 1.5 - 98);
  const int drive = (r.RateOffDrive - 5) * 15 - 48;
  const int onBreak = Round((r.RateOffFastbreak * 10 - 65) * 1.5 + 140);
  s.chance.Add(-(inside * s.mix.ShareInside + putback * s.mix.SharePutback + outside * s.mix.ShareOutside +
                 drive * s.mix.ShareDrive + onBreak * s.mix.ShareBreak));
  DefenseTerms(s.chance, Clamp(game.play.DefenseFactor, 0.3, 1.7));
  if (s.kind == "OFFREB" && (game.PutbackClass == 1 || game.PutbackClass == 2)) s.chance.Add(putback);
  if (s.inside) s.chance.Add(inside);
  if (s.outside) s.chance.Add(outside);
  if (s.drive) s.chance.Add(drive);
  if (s.kind == "FASTBREAK") s.chance.Add(onBreak);
}

/// More runners than men back: an open basket.
void BreakNumbers(TwoPointShot& s) {
  constexpr double kEdge[5] = {1.03, 1.12, 1.27, 1.45, 1.6};
  if (s.kind != "FASTBREAK") return;
  const int edge = game.fastBreak.BreakAttackers - game.fastBreak.BreakDefenders;
  if (edge >= 0 && edge <= 4) s.chance.Times(kEdge[edge]);
  if (game.fastBreak.Breakaway == 1) s.chance.Times(1.8);
}

void InsideMan(TwoPointShot& s) {
  const int pct = s.shooter.RealInsidePct;
  s.chance.Add(pct >= 90 ? 20 : pct >= 70 ? 1 : pct >= 60 ? 5 : pct <= 40 ? -10 : 0);
}

/// What a team outside the first pro league gives away to one inside it.
int BelowProLevel(const TeamRecord& team) {
  if (IsCollegeOrInternational(team)) return 100;
  if (team.TeamType == 'A') return team.Year < 1970 ? 60 : team.Year < 1973 ? 40 : 20;
  return 0;
}

double SexFactor(const TeamRecord& team) {
  return team.TeamSex == 'W' ? 0.8 : team.TeamSex == 'M' ? 1.2 : 1.0;
}

void LeagueLevel(TwoPointShot& s) {
  s.chance.Add(-BelowProLevel(s.offenseTeam));
  s.chance.Add(BelowProLevel(s.defenseTeam));
  s.chance.Times(SexFactor(s.offenseTeam));
  s.chance.Over(SexFactor(s.defenseTeam));
}

void ConferenceEdge(TwoPointShot& s) {
  const bool usual = s.chance.value > 50 && s.chance.value < 900;
  if (usual && s.SameProSeason()) Conferences(s, s.chance, 20);
}

/// A pass out of a guarded hand, nerves at the end of a close game, orders to the defense.
void OpenedBefore(TwoPointShot& s) {
  if (game.possession.PassFirst == 1) s.look.value = 200;
  if (!game.AnalysisMode && LastPeriod() && game.GameClock < kMinute + Rnd(3000) && Margin() < 10) {
    s.look.Add((s.shooter.RateClutch - 5) * 15);
  }
  if (s.defense.NoFoul == 1) s.look.Add(100);
}

// clang-format off
// Rows: drive, inside, outside. Columns: coverage 0 to 6; help 0 to 4.
constexpr int kCoverage[3][7] = {{0, -70, -40, 0,  20,  50, 0},
                                 {0,  50,  20, 0, -40, -70, 0},
                                 {0,  60,  30, 0, -30, -60, 0}};
constexpr int kHelp[3][5] = {{0, -10,  10, -40,  40},
                             {0, -20,  40, -60,  80},
                             {0,  40, -10, 100, -50}};
// clang-format on
constexpr int kPressure[5] = {0, 20, 30, 40, 50};

void DoubleTeams(TwoPointShot& s) {
  if (game.Switched == 1) return;
  const Man& man = s.shooterMan;
  if (s.inside && man.DoubleTeamInside == 1) {
    s.look.Add(-DoubleTeamCost(s.shooter, s.shooter.RateOffInside, 90));
  }
  if (s.outside && man.DoubleTeamOutside == 1) {
    s.look.Add(-DoubleTeamCost(s.shooter, s.shooter.RateOffOutside, 70));
  }
  if (s.inside || s.outside) OthersDoubled(s, s.look);
}

/// The 2-3 closes the lane and gives the outside, the 3-2 the other way round.
void Zones(TwoPointShot& s) {
  const int type = s.defense.DefenseType;
  const int inside = type == 2 ? -30 : type == 3 ? 30 : 0;
  if (s.inside) s.look.Add(inside);
  if (s.outside) s.look.Add(-inside);
}

void DefenseOrders(TwoPointShot& s) {
  const int row = ShotRow(s.kind);
  const bool two = row >= 0 && row <= 2;
  if (two) s.look.Add(Entry(kCoverage[row], game.play.PlayCoverage));
  if (s.guarded && s.defenderMan.SafeStyle == 1) s.look.Add(100);
  DoubleTeams(s);
  Zones(s);
  if (two) s.look.Add(Entry(kHelp[row], s.defense.DefenseHelp));
  if (IsSetShot(s.kind)) s.look.Add(Entry(kPressure, s.defense.Pressure));
}

void InsideTalent(TwoPointShot& s) {
  const PlayerRecord& r = s.shooter;
  s.look.Add(TalentGain(r.RateOffInside, kCommonInside));
  if (r.RateOffense >= 100 && r.RealInsidePct >= 80 && r.RateOffInside >= 9) s.look.Add(20);
  if (r.RateOffense >= 70 && r.RealInsidePct >= 90 && r.RateOffInside >= 10) s.look.Add(15);
}

/// A man who shoots better than he drives has the shot for its own sake.
void OutsideTalent(TwoPointShot& s) {
  const PlayerRecord& r = s.shooter;
  const double shooter = std::max(r.RateOffOutside - r.RateOffDrive + 1.0, 0.2);
  s.look.Add(TalentGain(r.RateOffOutside, kCommonOutside) * shooter);
  if (r.RateOffense >= 100 && r.RealInsidePct <= 20 && r.RateOffInside >= 9 && r.RateOffDrive <= 5) {
    s.look.Add(20);
  }
}

void TalentCurve(TwoPointShot& s) {
  if (s.inside) InsideTalent(s);
  if (s.outside) OutsideTalent(s);
  if (s.drive) s.look.Add(TalentGain(s.shooter.RateOffDrive, kCommonDrive));
}

}  // namespace

void TwoChance() {
  TwoPointShot s;
  RealPercentage(s);
  Corrections(s);
  if (s.real.FGA < 20) s.chance.value = Clamp(s.chance.value, 200, 500);
  KindOfShot(s);
  BreakNumbers(s);
  InsideMan(s);
  LeagueLevel(s);
  Tempo(s, s.chance, s.drive || s.inside || s.outside);
  HomeFloor(s, s.chance, 9, 5);
  ConferenceEdge(s);
  OpenedBefore(s);
  DefenseOrders(s);
  TalentCurve(s);
  if (HawaiiLeague()) s.chance.Add(-18);
  game.play.TwoPointChance = std::max(0, s.chance.value + s.look.value);
}

}  // namespace tipline
