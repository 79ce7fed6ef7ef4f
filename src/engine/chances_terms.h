#pragma once
// What the chances of shots and the weights of plays have in common: the men of the play, looked up once, and
// the corrections that several of them make in the same way.
#include <cmath>

#include "engine/chances.h"
#include "engine/game_state.h"
#include "league/program.h"

namespace tipline {

/// A chance or weight in thousandths. Each step leaves a whole number, ties to the even one. Held far beyond
/// all that a game can bring, so that no figures out of a bad file run out of the numbers.
struct Thousandths {
  int value = 0;

  void Add(int x) { value = Held(static_cast<double>(value) + x); }
  void Add(double x) { value = Held(value + x); }
  void Times(double factor) { value = Held(value * factor); }
  void Over(double divisor) { value = Held(value / divisor); }
  void AtLeast(int x) { value = value < x ? x : value; }
  void AtMost(int x) { value = value > x ? x : value; }

 private:
  static int Held(double x) { return Round(x > 1e8 ? 1e8 : x < -1e8 ? -1e8 : x); }
};

/// The ball handler against the man who guards him, and their sides.
struct Duel {
  const int O = game.OffenseSide, D = game.DefenseSide;
  const Side &offense = game.side[O], &defense = game.side[D];
  const TeamRecord &offenseTeam = game.team[O], &defenseTeam = game.team[D];
  const PlayerRecord& shooter = game.player[O][game.BallPlayer];
  const PlayerRecord& defender = game.player[D][game.BallDefender];
  const Man &shooterMan = game.man[O][game.BallPlayer], &defenderMan = game.man[D][game.BallDefender];
  const LoadedMan& mix = game.loaded[O][game.BallPlayer];
  const StatLine& real = shooter.Stats[1];
  const PlayKind kind = game.PlayKind;
  const bool guarded = game.BallDefender > 0;

  bool Draft(const TeamRecord& team) const { return team.RosterKind == 'D'; }
  bool BothDraft() const { return Draft(offenseTeam) && Draft(defenseTeam); }
  bool BothOfType(char type) const { return offenseTeam.TeamType == type && defenseTeam.TeamType == type; }
  /// Two pro teams of one season: the strength of their conferences is known.
  bool SameProSeason() const { return BothOfType('P') && offenseTeam.Year == defenseTeam.Year; }
  /// The defender has one foul left before he is out.
  bool DefenderOneFoulLeft() const {
    const int limit = league.rules.DqList;
    return guarded && limit > 0 && defender.Stats[3].Pf == limit - 1;
  }
};

/// A rating's powers, worked out once: a rating is a byte.
struct RatingPower {
  explicit RatingPower(double exponent) {
    for (int r = 0; r < 256; ++r) power[r] = std::pow(r, exponent);
  }
  double operator[](u8 rating) const { return power[rating]; }
  double power[256];
};
/// The same for the usage levels 0 to 3.
struct UsagePower {
  explicit UsagePower(double exponent) {
    for (int u = 0; u < 4; ++u) power[u] = std::pow(u, exponent);
  }
  double operator[](int level) const { return power[Clamp(level, 0, 3)]; }
  double power[4];
};

/// The entry of a short table, 0 for an index that it does not have.
template <int N>
constexpr int Entry(const int (&table)[N], int index) {
  return index >= 0 && index < N ? table[index] : 0;
}
/// Row of a table by kind of set shot: drive, inside, outside, three; -1 for the other kinds.
constexpr int ShotRow(PlayKind kind) {
  return kind == "DRIVE" ? 0 : kind == "INSIDE" ? 1 : kind == "OUTSIDE" ? 2 : kind == "THREE" ? 3 : -1;
}

inline double Ratio(double part, double whole) { return whole > 0 ? part / whole : 0; }
inline int GamesPlayed(const TeamRecord& team) { return team.Wins + team.Losses; }

/// The season that a man's record was made in; a year outside the table counts as 2017.
inline const EraRecord& OwnEra(const PlayerRecord& player) {
  return EraRow(player.Year, IsCollege(player), 2017);
}
/// The season of the era setting, in the man's own table. Only with a setting.
inline const EraRecord& SettingEra(const PlayerRecord& player) {
  return EraTableOf(IsCollege(player))[EraSettingYear()];
}
inline double TwoPct(const EraRecord& era) { return Ratio(era.FGM - era.F3M, era.FGA - era.F3A); }
inline double ThreePct(const EraRecord& era) { return era.F3M / (era.F3A + 0.1); }
inline double FieldGoalPct(const EraRecord& era) { return Ratio(era.FGM, era.FGA); }
inline double FreeThrowPct(const EraRecord& era) { return Ratio(era.FTM, era.FTA); }

/// The mean of the two sides; a side without a figure (an empty five, a bare era table) takes the other's.
inline double MeanOfSides(double a, double b) { return a <= 0 ? b : b <= 0 ? a : (a + b) / 2; }
/// A percentage carried from its own era into another, in thousandths; as it is where a figure is missing.
inline double Carried(double pct, double own, double here) {
  return own > 0 && here > 0 ? pct / own * 1000 * here : pct * 1000;
}

/// Coverage and double team of a man on the shot that he has now.
inline int CoverageOfPick(const Man& man) {
  switch (man.ShotPick) {
    case kInside:
      return man.CoverageInside;
    case kOutside:
      return man.CoverageOutside;
    case kThree:
      return man.CoverageThree;
    default:
      return 3;
  }
}
inline bool DoubledOnPick(const Man& man) {
  return (man.ShotPick == kInside && man.DoubleTeamInside == 1) ||
         (man.ShotPick == kOutside && man.DoubleTeamOutside == 1) ||
         (man.ShotPick == kThree && man.DoubleTeamThree == 1);
}

/// How far the five's offense lies outside the normal 240 to 260; 0 within.
inline int OutsideBand(int lineupOffense) {
  return lineupOffense < 240 ? lineupOffense - 240 : lineupOffense > 260 ? lineupOffense - 260 : 0;
}
/// What a five that is better or worse on offense than the normal adds; a stock team's real figures hold most
/// of it already.
inline double LineupTerm(const Duel& duel, double perPoint, double bound) {
  const int outside = OutsideBand(duel.offense.LineupOffense);
  double term = outside * perPoint;
  if (outside != 0 && !duel.Draft(duel.offenseTeam)) term = (term + 3) / 4;
  return Clamp(term, -bound, bound);
}

/// Two men drawn from the offense come from different seasons: they do not know each other's game. Two draws.
bool StrangersOnOffense(const Duel& duel);

/// Men who lead ease off, men who trail bear down; in a game far apart neither. Up to four draws.
double ScoreFactor(int lead, double leading, double trailing);

/// A tired man: from an energy of 79 down, `rate` per point on the shooter, the opposite on his defender.
inline void Tiredness(const Duel& duel, Thousandths& x, double rate) {
  if (league.rules.FatigueMeterCheck == 0) return;
  const int own = duel.shooterMan.Energy, other = duel.defenderMan.Energy;
  if (own <= 79) x.Times(1 + (80 - own) * rate);
  if (other <= 79) x.Times(1 - (80 - other) * rate);
}

/// Men used beyond their real season: the ball handler's factor, then his defender's.
inline void Overuse(Thousandths& x, const UsagePower& power, double own, double other) {
  const int u = ManAt(game.OffenseSide, game.BallPlayer).UsageLevel;
  const int v = ManAt(game.DefenseSide, game.BallDefender).UsageLevel;
  if (u > 0) x.Times(1 + power[u] * own);
  if (v > 0) x.Times(1 + power[v] * other);
}

/// Men used where none of their positions lies: `rate` of the whole for the offense, the opposite for the
/// defense.
inline void OutOfPosition(const Duel& duel, Thousandths& x, double rate) {
  x.Add(duel.offense.OutOfPosition * x.value * rate);
  x.Add(-duel.defense.OutOfPosition * x.value * rate);
}

/// The stronger conference, as games between the two went that season.
inline void Conferences(const Duel& duel, Thousandths& x, double weight) {
  const int year = duel.offenseTeam.Year;
  x.Add((ConferenceShare(game.GameTeam[duel.O], year) - 0.5) * weight);
  x.Add(-(ConferenceShare(game.GameTeam[duel.D], year) - 0.5) * weight);
}

/// The league whose team 13 plays in Hawaii shoots lower and is never tuned.
inline bool HawaiiLeague() { return league.team[13].City == "Hawaii"; }

// Steps that a two and a three take alike.
void PassingOfFive(const Duel& duel, Thousandths& chance);
void SeasonForm(const Duel& duel, Thousandths& chance, double leading, double trailing);

/// Makes and attempts of a kind of shot in a line.
struct Shots {
  int made = 0, tried = 0;
};
inline Shots TwosOf(const StatLine& line) { return {line.FGM - line.F3M, line.FGA - line.F3A}; }
inline Shots ThreesOf(const StatLine& line) { return {line.F3M, line.F3A}; }
/// A man whose replay runs away from his real percentage is pulled back, by `bound` at most. Asked of men who
/// made `least` and a draw up to as many. Up to two draws.
void ReplayCorrection(const Duel& duel, Thousandths& chance, Shots real, Shots replay, int least,
                      double bound);
/// Tiredness, usage, men out of position, and a defender who is away from his own positions.
void Condition(const Duel& duel, Thousandths& chance, int mismatch);
/// What the ratings of the men around the ball take or give, by kind of shot.
void DefenseTerms(Thousandths& chance, double defenseFactor);
/// A defense that must not foul, because few of its men are left or because it goes for the ball.
void ThinDefense(const Duel& duel, Thousandths& chance, const int (&byEligible)[7], int stealFoul);
/// His rank in the passing order (where the kind of shot counts it), pace, hurry at the end of a period.
void Tempo(const Duel& duel, Thousandths& chance, bool ranked);
void HomeFloor(const Duel& duel, Thousandths& chance, int points, int twoPeriodPoints);
/// A shot of a kind that his coach wants to see seldom; `selection` is `ShotSelection`.
inline void SeldomShot(Thousandths& chance, int selection) {
  if (selection == 5) chance.Add(-40);
  if (selection == 4) chance.Add(-20);
}
inline void Mismatch(Thousandths& chance) {
  if (game.play.HeightMismatch >= 1) chance.Add(3 * game.play.HeightMismatch);
}
/// A playoff game, or a season gone on beyond 82 games.
inline bool LateSeason(const Duel& duel) { return program.PlayoffGame || GamesPlayed(duel.offenseTeam) > 82; }
/// The help that a double team leaves open: for each other man who is doubled where he stands.
void OthersDoubled(const Duel& duel, Thousandths& look);
/// What a double team costs: a base, and more for a man without a name for scoring or a low rating there.
inline int DoubleTeamCost(const PlayerRecord& shooter, int rating, int base) {
  const int weakness = Round((10 - rating) / 10.0 * (110 - shooter.RateOffense));
  return base + (weakness > 0 ? weakness : 0);
}
/// Talent counts more than in proportion: a rating to the power 1.7, against that of a common shooter.
double TalentOf(u8 rating);
inline constexpr double kTalentExponent = 1.7;
inline double TalentGain(u8 rating, double commonTalent) { return (TalentOf(rating) - commonTalent) * 0.4; }

}  // namespace tipline
