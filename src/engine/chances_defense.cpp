#include "engine/chances_terms.h"

namespace tipline {

namespace {

enum : int { kBallOut = 1, kBallIn, kHelpOut, kHelpOutIn, kHelpIn, kHelpInIn };

constexpr double kMeanDefense = 23.1;  // of a five, weighted by whom they guard

// clang-format off
// What each rating weighs. Columns: the outside and inside defense of the ball's defender, of those who guard
// the others outside, of those who guard the others inside.
constexpr int kUse[5][6] = {
    {1,  9, 1, 2, 1,  8},   // second chance
    {8,  2, 2, 2, 1, 10},   // drive
    {1, 11, 1, 1, 1,  6},   // inside
    {9,  1, 3, 0, 1,  0},   // outside
    {7,  1, 2, 0, 0,  0}};  // three

// The normal of each rating by position of the ball handler; an inside shot moves it.
constexpr double kNorm[5][6] = {
    {6.3, 1.7, 13.2, 9.8, 3.9, 7.5},
    {6.0, 2.3, 13.7, 9.2, 3.9, 7.5},
    {5.8, 3.4, 14.2, 8.3, 3.4, 7.2},
    {3.2, 5.5, 17.5, 8.5, 2.8, 5.3},
    {2.2, 6.2, 18.2, 9.1, 3.0, 3.8}};
constexpr double kInsideNorm[5][6] = {
    {-1, 1, 2, -1.0, 1.0, -2},
    { 0, 0, 1, -1.0, 1.0, -1},
    { 0, 0, 1, -1.0, 1.0, -1},
    { 0, 0, 1, -0.5, 0.5, -1},
    { 0, 0, 1, -0.5, 0.5, -1}};
// clang-format on

int UseRow(PlayKind kind) { return kind == "OFFREB" ? 0 : ShotRow(kind) < 0 ? -1 : ShotRow(kind) + 1; }

/// How much of a defender's attention is free to help, by his coverage of his own man.
double FreeToHelp(int coverage) {
  constexpr double kFree[7] = {1.0, 1.2, 1.1, 1.0, 0.8, 0.6, 0.6};
  return coverage >= 0 && coverage <= 6 ? kFree[coverage] : 1.0;
}

/// The slot that guards position p of the offense, 0 nobody.
int DefenderOf(int p) {
  const Side& defense = Defense();
  const int own = defense.Matchup[p];
  return own >= 1 && own <= kPositions ? defense.Lineup[own] : 0;
}

void AddHelp(int pick, double share, const PlayerRecord& defender) {
  auto& rating = game.play.DefenseRating;
  const int out = pick == kInside ? kHelpIn : kHelpOut, in = out + 1;
  rating[out] = Round(rating[out] + defender.RateDefOutside * share);
  rating[in] = Round(rating[in] + defender.RateDefInside * share);
}

void RatingsAroundBall() {
  auto& rating = game.play.DefenseRating;
  rating.Fill(0);
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = DefenderOf(p);
    const PlayerRecord& defender = PlayerAt(game.DefenseSide, slot);
    const Man& attacker = ManAt(game.OffenseSide, Offense().Lineup[p]);
    if (slot == game.BallDefender) {
      rating[kBallOut] = defender.RateDefOutside;
      rating[kBallIn] = defender.RateDefInside;
    } else if (attacker.ShotPick >= kInside && attacker.ShotPick <= kThree) {
      AddHelp(attacker.ShotPick, FreeToHelp(CoverageOfPick(attacker)), defender);
    }
  }
}

/// How much the man counts in the attack: inside men are where a defense is tested.
double AttackWeight(int insidePct) {
  return insidePct <= 20   ? 0.92
         : insidePct <= 30 ? 0.97
         : insidePct <= 40 ? 1.0
         : insidePct <= 60 ? 1.1
         : insidePct <= 80 ? 1.14
                           : 1.15;
}

/// Which part of a defender's worth is his outside defense, against this man.
double OutsidePart(const PlayerRecord& attacker) {
  const double year = attacker.Year < 1940 || attacker.Year > 2050 ? 2013 : attacker.Year;
  return attacker.RealInsidePct * (0.019325 - 0.000012571 * year) + 0.001238602 * year - 1.716306;
}

double WeightedDefense() {
  double weights = 0, sum = 0;
  for (int p = 1; p <= kPositions; ++p) {
    const PlayerRecord& attacker = OnFloor(game.OffenseSide, p);
    const PlayerRecord& defender = PlayerAt(game.DefenseSide, DefenderOf(p));
    const double weight = AttackWeight(attacker.RealInsidePct), out = OutsidePart(attacker);
    weights += weight;
    sum += (defender.RateDefOutside * out + defender.RateDefInside * (1 - out)) * weight;
  }
  return sum / weights * 5;
}

/// On the break nobody has found his man yet, and in a zone a man guards a place.
double TeamDefense() {
  const Side& defense = Defense();
  double worth = game.PlayKind == "FASTBREAK" ? defense.LineupDefense * 0.95 : WeightedDefense();
  if (defense.DefenseType != 0) worth = (2 * defense.LineupDefense + worth) / 3;
  return worth;
}

void NormsAndWeights() {
  Play& play = game.play;
  const int use = UseRow(game.PlayKind), position = game.BallSlot;
  const bool known = position >= 1 && position <= kPositions;
  for (int j = 1; j <= 6; ++j) {
    play.DefenseUse[j] = use < 0 ? 0 : kUse[use][j - 1];
    play.DefenseNorm[j] = known ? kNorm[position - 1][j - 1] : 0;
    if (known && game.PlayKind == "INSIDE") play.DefenseNorm[j] += kInsideNorm[position - 1][j - 1];
  }
}

}  // namespace

void DefenseRatings() {
  Play& play = game.play;
  RatingsAroundBall();
  play.TeamDefense = TeamDefense();
  play.DefenseFactor = play.TeamDefense > 0 ? kMeanDefense / play.TeamDefense : 1.0;
  NormsAndWeights();
}

}  // namespace tipline
