// Men on the floor who change places.
#include <utility>

#include "coach/substitutions_pass.h"

namespace tipline {
namespace {

/// Lists `a` or `b` among his positions; the spot position counts only when `spot`.
bool ListsEither(const PlayerRecord& p, int a, int b, bool spot) {
  return p.PrimaryPosition == a || p.PrimaryPosition == b || p.SecondaryPosition == a ||
         p.SecondaryPosition == b || (spot && (p.SpotPosition == a || p.SpotPosition == b));
}

bool ListsLikePosition(const PlayerRecord& p, int position) {
  switch (position) {
    case 5:
      return ListsEither(p, 4, 5, false);
    case 4:
      return ListsEither(p, 4, 5, false) || ListsEither(p, 3, 4, true);
    case 3:
      return ListsEither(p, 3, 4, true);
    default:
      return ListsEither(p, 1, 2, true);
  }
}

int Fit(const PlayerRecord& p, int position) {
  const int own = p.PrimaryPosition == position     ? 30
                  : p.SecondaryPosition == position ? 20
                  : p.SpotPosition == position      ? 10
                                                    : 0;
  return own + (ListsLikePosition(p, position) ? 1 : 0);
}

/// The man at `b` takes `a` when he fits it better and both then stand where they can play.
void ExchangeIfBetter(int side, int a, int b) {
  Table<int, 1, kPositions>& lineup = game.side[side].Lineup;
  if (a == b || lineup[a] == 0 || lineup[b] == 0) return;
  const PlayerRecord& atA = OnFloor(side, a);
  const PlayerRecord& atB = OnFloor(side, b);
  const int moved = Fit(atB, a);
  if (moved > Fit(atA, a) && moved >= 10 && Fit(atA, b) >= 10) std::swap(lineup[a], lineup[b]);
}

/// A floor partner with fresh legs who can play `position`; 0 for none.
int FreshPartner(int side, int position) {
  const Side& s = game.side[side];
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = s.Lineup[p];
    if (p == position || slot == 0 || ManAt(side, slot).Energy < 80) continue;
    if (Lists(PlayerAt(side, slot), position)) return p;
  }
  return 0;
}

/// The first tired man makes room: a partner takes his place, and the bench gets the partner's.
bool MakeRoom(const SubPass& pass, int side) {
  Side& s = game.side[side];
  for (int position = 1; position <= kPositions; ++position) {
    const int slot = s.Lineup[position];
    if (slot == 0 || slot == s.FreeThrowMan || pass.IsShooter(side, slot)) continue;
    if (ManAt(side, slot).Energy > 79) continue;
    const int partner = FreshPartner(side, position);
    if (partner == 0) continue;
    s.Lineup[position] = s.Lineup[partner];
    s.Lineup[partner] = 0;
    return true;
  }
  return false;
}

/// Nobody who plays `position` or `like` stands at `position`: a partner who plays it moves there.
void BringTo(int side, int position, int like) {
  Table<int, 1, kPositions>& lineup = game.side[side].Lineup;
  if (lineup[position] == 0 || ListsEither(OnFloor(side, position), position, like, true)) return;
  for (int p = 1; p <= kPositions; ++p) {
    if (p == position || lineup[p] == 0 || !Lists(OnFloor(side, p), position)) continue;
    std::swap(lineup[p], lineup[position]);
    return;
  }
}

}  // namespace

bool IsLikeMan(const PlayerRecord& p, int position) { return ListsLikePosition(p, position); }

void RepairPositions(const SubPass& pass) {
  for (int side = 1; side <= 2; ++side) {
    const Side& s = game.side[side];
    if (pass.gridUsed[side] || s.AutoSubWhenTired != 1 || s.AutoSubWhenFoulTrouble != 1) continue;
    for (int a = 1; a <= kPositions; ++a) {
      for (int b = 1; b <= kPositions; ++b) ExchangeIfBetter(side, a, b);
    }
    for (int a = 1; a <= kPositions; ++a) {  // whoever is still misplaced looks once more
      for (int b = 1; b <= kPositions && Fit(OnFloor(side, a), a) <= 9; ++b) ExchangeIfBetter(side, a, b);
    }
  }
}

void MakeRoomForFreshMen(SubPass& pass) {
  for (int side = 1; side <= 2; ++side) {
    while (AnySubCheck(side) && pass.freshPartners < 5 && Rnd(10) <= 9 && MakeRoom(pass, side)) {
      ++pass.freshPartners;
    }
  }
}

void GuardAndCenter(const SubPass& pass) {
  if (pass.freeThrow) return;
  for (int side = 1; side <= 2; ++side) {
    BringTo(side, 1, 2);
    BringTo(side, 5, 4);
  }
}

}  // namespace tipline
