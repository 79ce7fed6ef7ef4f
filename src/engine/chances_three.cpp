#include "engine/chances_terms.h"

namespace tipline {

namespace {

const double kCommonThree = std::pow(5.0, kTalentExponent);

struct ThreePointShot : Duel {
  const bool college = IsCollege(shooter);
  const int beforeLine = college ? 1985 : 1978;  ///< last season without the line
  double ownEra = 0;                             ///< league percentage of his season
  double offenseEra = 0, defenseEra = 0;         ///< of the two fives
  double pct = 0;                                ///< his own
  Thousandths chance;
  Thousandths look;  ///< what the openness of the shot gives, added at the end
};

/// The percentage of a season; a season without the line takes what its shooters would have made of it.
double EraPct(const PlayerRecord& player) {
  const double kept = ThreePct(OwnEra(player));
  if (kept > 0) return kept;
  double pct = player.Year <= 1950   ? 0.261
               : player.Year <= 1960 ? 0.271
               : player.Year <= 1970 ? 0.281
               : player.Year <= 1980 ? ThreePct(league.EraPro[1985])
                                     : ThreePct(league.EraPro[1996]);
  return IsCollege(player) ? pct - 0.01 : pct;
}

void EraOfShot(ThreePointShot& s) {
  s.ownEra = EraPct(s.shooter);
  s.offenseEra = ThreePct(OwnEra(s.shooter)) > 0 ? s.offense.Era3Pct : s.ownEra;
  s.defenseEra = s.defense.Era3Pct;
  if (s.defenseEra <= 0) s.defenseEra = EraPct(s.guarded ? s.defender : s.shooter);
  if (s.offenseTeam.TeamSex == 'W') {
    s.offenseEra *= 0.94;
    s.defenseEra *= 0.94;
  }
}

void RealPercentage(ThreePointShot& s) {
  s.pct = s.real.F3M / (s.real.F3A + 0.1);
  if (Margin() <= 10) s.pct += LoadedAt(s.O, game.BallPlayer).HotHand;
  const bool old = league.rules.ThreePointCheck != 0 && s.shooter.Year <= s.beforeLine;
  if (old && s.real.F3A < 10) s.pct = (s.shooter.RateOffOutside - 7) * 0.01 + s.ownEra;
}

/// The level of the era setting, and the share that a college line takes off it.
double SettingPct(const ThreePointShot& s) {
  constexpr double kFixed[5] = {0, 0.351, 0.261, 0.271, 0.281};
  const int setting = league.rules.GameEraList;
  if (setting <= 4) return kFixed[setting] - (s.college ? 0.01 : 0);
  int year = EraSettingYear();
  if (year == 1985 && s.college) year = 1986;
  return year > 0 ? ThreePct(EraTableOf(s.college)[year]) : MeanOfSides(s.offenseEra, s.defenseEra);
}

void Base(ThreePointShot& s) {
  if (league.rules.GameEraList == 0) {
    s.chance.Add(s.pct * 1000 + (s.defenseEra - s.offenseEra) * 1000 / 2);
  } else {
    s.chance.Add(Carried(s.pct, s.ownEra, SettingPct(s)));
  }
  s.chance.Add(10);
  s.chance.AtMost(Round(s.pct * 1000 + 200));
}

void OutOfZone(ThreePointShot& s) {
  if (s.kind != "THREE") return;
  if (s.shooterMan.NaturalZone == kOutside) s.chance.Times(0.95);
  if (s.shooterMan.NaturalZone == kInside) s.chance.Times(0.9);
}

/// Men who seldom tried it when the line was there have no such shot.
void FewAttempts(ThreePointShot& s) {
  if (s.shooter.Year <= s.beforeLine) return;
  if (s.real.F3A < 10) {
    s.chance.Times(0.5);
    s.chance.AtMost(250);
  }
  if (s.real.F3A < 30) {
    s.chance.Times(0.8);
    s.chance.AtMost(300);
  }
}

void KindOfShot(ThreePointShot& s) {
  if (s.kind == "OFFREB") {
    s.chance.Times(0.99);
  } else if (s.kind == "FASTBREAK") {
    s.chance.Times(1.02);
    s.chance.Times(1 - (s.shooter.RateOffFastbreak - 6) * 0.01);
  } else {
    s.chance.Times(0.97);
  }
}

void Strength(ThreePointShot& s) {
  const bool college = s.BothOfType('C') && s.chance.value > 100;
  if (!college && !s.BothOfType('O')) return;
  s.chance.Add((s.offense.CollegeStrength - s.defense.CollegeStrength) * 7);
}

double LevelFactor(const TeamRecord& team) {
  return team.TeamType == 'C' ? 0.8 : team.TeamType == 'A' ? 0.95 : team.TeamType == 'O' ? 0.87 : 1.0;
}

void LeagueLevel(ThreePointShot& s) {
  s.chance.Times(LevelFactor(s.offenseTeam));
  s.chance.Over(LevelFactor(s.defenseTeam));
  if (s.offenseTeam.TeamSex == 'W') s.chance.Times(0.8);
}

/// A three that the coach forces, most of all on a man who does not shoot it.
void Forced(ThreePointShot& s) {
  if (game.call.ForcedThree != 1) return;
  s.chance.Times(0.8);
  if (s.real.F3A < 150) s.chance.Times(1 - (150 - s.real.F3A) * 0.002);
}

void ConferenceEdge(ThreePointShot& s) {
  const bool usual = s.chance.value > 100 && s.chance.value < 700;
  if (usual && s.SameProSeason()) Conferences(s, s.chance, 15);
}

void Corrections(ThreePointShot& s) {
  PassingOfFive(s, s.chance);
  SeasonForm(s, s.chance, 0.95, 1.05);
  ReplayCorrection(s, s.chance, ThreesOf(s.real), ThreesOf(s.shooter.Stats[2]), 25, 50);
  OutOfZone(s);
  Condition(s, s.chance, 2);
  FewAttempts(s);
}

void TeamsAndDefense(ThreePointShot& s) {
  constexpr int kThin[7] = {80, 80, 80, 50, 40, 30, 20};
  KindOfShot(s);
  if (LateSeason(s)) s.chance.Add(-14);
  if (game.play.ShotLate == 1) {
    s.chance.Times(0.3);
  } else {
    s.chance.Add(5);
  }
  if (s.BothOfType('C')) s.chance.Add(2);
  s.chance.Add(LineupTerm(s, 0.3, 30));
  DefenseTerms(s.chance, game.play.DefenseFactor);
  s.chance.Add((23.1 - game.play.TeamDefense) * 5.5);
  Strength(s);
  if (league.rules.AlternateRealityCheck != 0) s.chance.Add((s.shooter.AltForm1 - 10) * 5);
  ThinDefense(s, s.chance, kThin, 35);
  LeagueLevel(s);
}

void Situation(ThreePointShot& s) {
  Tempo(s, s.chance, s.kind == "THREE");
  HomeFloor(s, s.chance, 6, 4);
  Forced(s);
  Mismatch(s.chance);
  SeldomShot(s.chance, s.shooter.ShotSelection[3]);
  ConferenceEdge(s);
  if (s.college) s.chance.Add(-10);
  s.chance.value = Round(s.chance.value * 1.05 + 15);
}

void OpenLook(ThreePointShot& s) {
  constexpr int kCoverage[7] = {0, 60, 30, 0, -30, -60, 0};
  constexpr int kHelp[5] = {0, 60, -40, 60, -40};
  if (s.defense.NoFoul == 1) s.look.Add(50);
  s.look.Add(Entry(kCoverage, game.play.PlayCoverage));
  if (game.Switched != 1) {
    const bool doubled = s.shooterMan.DoubleTeamThree == 1;
    if (doubled) s.look.Add(-DoubleTeamCost(s.shooter, s.shooter.RateOffThree, 50));
    OthersDoubled(s, s.look);
  }
  s.look.Add(Entry(kHelp, s.defense.DefenseHelp));
  s.look.Add(TalentGain(s.shooter.RateOffThree, kCommonThree));
}

/// The line was there and he never tried it: he has no such shot at all.
bool NeverTried(const ThreePointShot& s) { return s.shooter.Year > s.beforeLine && s.real.F3A == 0; }

}  // namespace

void ThreeChance() {
  ThreePointShot s;
  EraOfShot(s);
  RealPercentage(s);
  Base(s);
  Corrections(s);
  if (NeverTried(s)) {
    game.play.ThreePointChance = 0;
    return;
  }
  TeamsAndDefense(s);
  Situation(s);
  OpenLook(s);
  game.play.ThreePointChance = std::max(0, s.chance.value + s.look.value);
}

}  // namespace tipline
