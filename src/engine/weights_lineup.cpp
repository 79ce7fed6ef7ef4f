#include "engine/weights_terms.h"
#include "league/player_values.h"

namespace tipline {

namespace {

const UsagePower kUsage{1.5};

struct OnFloorMan {
  const PlayerRecord& player;
  const Man& man;
  int position;
  double fit;  ///< about 1 at his own position, 0 where he has never played

  bool Own() const { return player.PrimaryPosition == position; }
  /// A big man who stands away from the basket.
  bool BigManOutside() const { return position >= 4 && man.ShotPick > kInside; }
};

/// With the positions named guard, forward and centre, both guards are one place and both forwards another.
double TraditionalFit(const PlayerRecord& player, int position, double fit) {
  if (position == 5) return fit;
  const int first = position <= 2 ? 1 : 3;
  const auto holds = [first](int own) { return own == first || own == first + 1; };
  if (holds(player.SpotPosition)) fit = 0.7;
  if (holds(player.SecondaryPosition)) fit = 0.9;
  if (holds(player.PrimaryPosition)) fit = 1.01;
  return fit;
}

double FitAt(const PlayerRecord& player, int position) {
  double fit = 0;
  if (player.PrimaryPosition == position) fit = 1.02;
  if (player.SecondaryPosition == position) fit = 0.9;
  if (player.SpotPosition == position) fit = 0.7;
  return league.rules.TraditionalPosCheck == 0 ? fit : TraditionalFit(player, position, fit);
}

/// What he can show of a rating where he stands, by position 1 to 5.
int Capped(int rating, const int (&cap)[5], int position) { return std::min(rating, cap[position - 1]); }

int InsideDefenseOf(const OnFloorMan& m) {
  constexpr int kCap[5] = {3, 3, 5, 255, 255};
  return Capped(m.player.RateDefInside, kCap, m.position);
}

/// The ball runs through the point guard; a passer counts for less away from it.
int PassingOf(const OnFloorMan& m) {
  const int rating = m.player.RatePassing;
  if (m.position == 1 || m.Own()) return rating;
  const bool pointGuard = m.player.PrimaryPosition == 1;
  if (m.position == 2) return std::min(rating, pointGuard ? 4 : 5);
  return rating >= 4 ? (pointGuard ? 3 : 4) : rating;
}

constexpr int kReboundCap[5] = {4, 3, 4, 255, 255};

int DefensiveReboundingOf(const OnFloorMan& m) {
  int x = Round(Capped(m.player.RateRebDef, kReboundCap, m.position) - m.fit);
  if (m.BigManOutside()) x -= 1;
  if (league.rules.FatigueMeterCheck != 0) x -= (m.man.Energy <= 35) + (m.man.Energy <= 70);
  return x;
}

int OffensiveReboundingOf(const OnFloorMan& m) {
  int x = Round(Capped(m.player.RateRebOff, kReboundCap, m.position) - (1 - m.fit));
  if (m.BigManOutside()) x -= 1;
  if (league.rules.FatigueMeterCheck != 0) x -= m.man.Energy <= 50;
  return x;
}

void AddMan(Side& side, const OnFloorMan& m) {
  const PlayerRecord& r = m.player;
  const double lost = 2 * (1 - m.fit);
  side.LineupOffense = Round(side.LineupOffense + (r.RateOffense - lost));
  side.LineupDefense += PositionDefense(r, m.position) - lost;
  side.LineupForce += Round(r.RateDefForce - lost);
  side.LineupDefInside += Round(InsideDefenseOf(m) - lost);
  side.LineupPassing += Round(PassingOf(m) - (1 - m.fit));
  side.LineupRebDef += DefensiveReboundingOf(m);
  side.LineupRebOff += OffensiveReboundingOf(m);
  side.LineupOutside += r.RateOffOutside;
  side.LineupInside += r.RateOffInside;
  side.LineupFast += r.RateOffFastbreak;
}

void ClearSums(Side& side) {
  side.LineupOffense = side.LineupForce = side.LineupPassing = side.LineupRebDef = side.LineupRebOff = 0;
  side.LineupOutside = side.LineupInside = side.LineupFast = 0;
  side.LineupDefense = side.LineupDefInside = 0;
}

void HoldAboveZero(Side& side) {
  for (int* sum : {&side.LineupOffense, &side.LineupForce, &side.LineupPassing, &side.LineupRebDef,
                   &side.LineupRebOff}) {
    *sum = std::max(*sum, 0);
  }
  side.LineupDefense = std::max(side.LineupDefense, 0.0);
  side.LineupDefInside = std::max(side.LineupDefInside, 0.0);
}

void SumLineup(int s) {
  Side& side = game.side[s];
  ClearSums(side);
  for (int position = 1; position <= kPositions; ++position) {
    const int slot = side.Lineup[position];
    if (slot == 0) break;
    const PlayerRecord& player = PlayerAt(s, slot);
    Man& man = ManAt(s, slot);
    man.UsageLevel = UsageLevel(s, slot);
    double fit = FitAt(player, position);
    if (man.UsageLevel > 0) fit *= 1 - kUsage[man.UsageLevel] * 0.05;
    AddMan(side, {player, man, position, fit});
  }
  HoldAboveZero(side);
}

}  // namespace

void LineupValues() {
  SumLineup(1);
  SumLineup(2);
}

}  // namespace tipline
