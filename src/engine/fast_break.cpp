// A fast break: how many run, who they are, and where it takes them.
#include "engine/fast_break.h"

#include <algorithm>

#include "engine/game_state.h"
#include "engine/shot_selection.h"

namespace tipline {
namespace {

enum class Quality { kGood, kBad, kNormal };

Quality DrawQuality() {
  const int r = Rnd(10);
  Quality q;
  if (game.PlayResult == "ST") {
    q = r <= 7 ? Quality::kGood : r <= 9 ? Quality::kBad : Quality::kNormal;
  } else {
    q = r <= 2 ? Quality::kGood : r <= 6 ? Quality::kBad : Quality::kNormal;
  }
  const int luck = Rnd(6);
  if (luck == 1) q = Quality::kGood;
  if (luck == 2) q = Quality::kBad;
  const int crash = Defense().CrashBoardsOffense;  // men at the boards are late getting back
  if (crash == 1 && Rnd(3) == 1) q = Quality::kGood;
  if (crash == 2 && Rnd(3) == 1) q = Quality::kBad;
  return q;
}

void DrawNumbers(Quality q) {
  int& attackers = game.fastBreak.BreakAttackers;
  int& defenders = game.fastBreak.BreakDefenders;
  if (q == Quality::kBad) {
    attackers = Rnd(3);
    defenders = attackers + (Rnd(3) == 1 ? 1 : 0);
  } else if (q == Quality::kGood) {
    attackers = 2 + Rnd(2);
    if (Rnd(20) == 1) attackers = 3 + Rnd(2);
    defenders = attackers - 1;
    if (Rnd(4) == 1) defenders = attackers - Rnd(2);
    if (Rnd(20) == 1) defenders = Rnd(2);
    defenders = std::max(1, defenders);
  } else {
    attackers = defenders = 1 + Rnd(3);
  }
}

int MenOnFloor(int side) {
  int count = 0;
  for (const int slot : game.side[side].Lineup) count += slot > 0 ? 1 : 0;
  return count;
}

constexpr int kMostTries = 400;  // then whoever is drawn joins

void Join(int slot, int place) {
  constexpr int kLane[kPositions + 1] = {0, 0, -1, 1, -2, 2};
  Man& man = ManAt(game.OffenseSide, slot);
  man.InBreak = 1;
  man.BreakLane = kLane[std::min(place, kPositions)];
}

/// The thief runs first; fast men are likelier to be with him.
void ChooseRunners() {
  const Side& offense = Offense();
  const int wanted = std::min(game.fastBreak.BreakAttackers, MenOnFloor(game.OffenseSide));
  bool in[kPositions + 1] = {};
  int count = 0;
  if (const int p = PositionOf(game.OffenseSide, game.fastBreak.BreakStealer); p > 0 && wanted > 0) {
    in[p] = true;
    ++count;
  }
  for (int tries = 1; count < wanted; ++tries) {
    const int p = Rnd(kPositions);
    if (in[p] || offense.Lineup[p] == 0) continue;
    const int speed = OnFloor(game.OffenseSide, p).RateOffFastbreak;
    int g = speed * 20 + count;
    if (tries > 10) g += speed * 2 + 1;
    if (Rnd(100) == 1) g += 1;
    if (game.fastBreak.BreakAttackers == 5 || tries > kMostTries) g = 200;
    if (Rnd(200) > g) continue;
    in[p] = true;
    ++count;
  }
  int place = 0;
  for (int p = 1; p <= kPositions; ++p) {
    if (in[p]) Join(offense.Lineup[p], ++place);
  }
}

/// A spot of the lane, beyond the arc or short of it, as the break runs to the right (side 1) or to the left.
int LaneSpot(int lane, bool three) {
  if (lane == 0) return three ? 303 + Rnd(3) : 202 + Rnd(4);
  const bool high = (lane < 0) == (game.OffenseSide == 1);
  if (lane == 1 || lane == -1) {
    if (three) return (high ? 305 : 300) + Rnd(3);
    return (high ? 203 : 200) + Rnd(5);
  }
  if (three) return (high ? 306 : 300) + Rnd(3);
  return (high ? 205 : 200) + Rnd(3);
}

int DrawSpot(const PlayerRecord& p, const Man& man, bool handler) {
  const bool arc = handler && game.fastBreak.BreakThree;
  bool three = arc;
  if (Rnd(3) == 1 && p.RateOffOutside >= Rnd(10)) three = true;
  if (handler && !arc && p.RateOffInside >= Rnd(7) + 3) return 101 + Rnd(2);
  const int spot = LaneSpot(man.BreakLane, three);
  const bool known =
      (spot >= 101 && spot <= 104) || (spot >= 201 && spot <= 208) || (spot >= 301 && spot <= 309);
  return known ? spot : 200 + Rnd(8);
}

/// Two runners never end on one spot, nor on the crowded middle ones.
bool Crowded(const bool* taken) { return (taken[204] && taken[205]) || (taken[205] && taken[305]); }

bool TryPlacing() {
  bool taken[310] = {};
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = Offense().Lineup[p];
    if (slot == 0) continue;
    Man& man = ManAt(game.OffenseSide, slot);
    if (!man.InBreak) continue;
    man.BreakSpot = DrawSpot(PlayerAt(game.OffenseSide, slot), man, slot == game.BallPlayer);
    if (taken[man.BreakSpot]) return false;
    taken[man.BreakSpot] = true;
    if (Crowded(taken)) return false;
  }
  return true;
}

bool GetsBack(int position) {
  constexpr int kOdds[kPositions + 1] = {0, 1, 1, 2, 10, 20};
  const int wanted = game.fastBreak.BreakDefenders;
  return wanted == 5 || wanted >= Rnd(3) + 2 || position <= 2 || Rnd(kOdds[position]) == 1;
}

void ChooseDefenders() {
  const int wanted = std::min(game.fastBreak.BreakDefenders, MenOnFloor(game.DefenseSide));
  int count = 0;
  for (int tries = 1; count < wanted; ++tries) {
    const int p = Rnd(kPositions);
    const int slot = Defense().Lineup[p];
    if (slot == 0 || ManAt(game.DefenseSide, slot).DefendsBreak) continue;
    if (tries <= kMostTries && !GetsBack(p)) continue;
    ManAt(game.DefenseSide, slot).DefendsBreak = 1;
    ++count;
  }
}

}  // namespace

void SetFastbreakNumbers() {
  DrawNumbers(DrawQuality());
  int& attackers = game.fastBreak.BreakAttackers;
  int& defenders = game.fastBreak.BreakDefenders;
  attackers = std::min(attackers, MenOnFloor(game.OffenseSide));
  defenders = std::min(defenders, MenOnFloor(game.DefenseSide));
  if (attackers < 2) attackers = defenders = 2;
  if (defenders == 0 && Rnd(3) < 3) defenders = 1;
  PlaceBreakMembers();
}

void PlaceBreakMembers() {
  for (int p = 1; p <= kPositions; ++p) {
    for (int s = 1; s <= 2; ++s) {
      Man& man = ManAt(s, game.side[s].Lineup[p]);
      man.InBreak = man.DefendsBreak = man.BreakLane = man.BreakSpot = 0;
    }
  }
  ChooseRunners();
  for (int tries = 0; tries < kMostTries && !TryPlacing(); ++tries) {
  }
  ChooseDefenders();
}

}  // namespace tipline
