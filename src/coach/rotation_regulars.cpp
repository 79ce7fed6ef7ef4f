// The men behind the first choices of the rotation grid, and its repairs.
#include <algorithm>
#include <limits>

#include "base/numbers.h"
#include "coach/rotation_sheet.h"
#include "league/player_values.h"

namespace tipline {
namespace {

constexpr int kMostTarget = 59;
constexpr int kFirstChoice = 6;
constexpr int kFewHoles = 30;  // more than these are no gaps but a short roster
constexpr double kNoLimit = std::numeric_limits<double>::infinity();

/// Positions that a man takes as a regular; 0 none.
struct RolePositions {
  int first = 0, second = 0;

  RolePositions(const PlayerRecord& p, bool several) {
    for (int q = 1; q <= 5; ++q) {
      if (p.DepthRank[q] > (first ? p.DepthRank[first] : 0)) first = q;
    }
    for (int q = 1; several && q <= 5; ++q) {
      if (q != first && p.DepthRank[q] > (second ? p.DepthRank[second] : 0)) second = q;
    }
  }

  /// The second position has periods of its own, other ones in every other round; the last round goes
  /// without.
  int In(int period, int round) const {
    const bool firstHalf = period <= 2;
    const bool elsewhere = round <= 4 && firstHalf == (round % 2 == 1);
    return elsewhere && second != 0 ? second : first;
  }
};

void PlaceRegular(RotationSheet& sheet, int slot, int round) {
  const GridMan& man = sheet.man[slot];
  const RolePositions positions(sheet.Player(slot), man.places >= 2);
  for (const int period : kPeriodsByWeight) {
    if (man.placed >= man.target + 3) return;
    const int n = std::max(period == 4 ? 4 : 3, Int(man.target - man.placed / 4.0 + 0.5));
    sheet.PlaceBlock(slot, period, positions.In(period, round), n, kNoLimit);
  }
}

/// He stands at this position in the minute before or after.
bool StandsBeside(const RotationSheet& sheet, int slot, int period, int minute, int position) {
  return (minute < sheet.minutes && sheet.PositionOf(slot, period, minute + 1) == position) ||
         (minute > 1 && sheet.PositionOf(slot, period, minute - 1) == position);
}

/// Each hole goes to the first regular who is off the floor then and whom `suits` lets in.
template <class Suits>
void GiveHoles(RotationSheet& sheet, Suits suits) {
  if (sheet.Open() > kFewHoles) return;
  sheet.EachFree([&](int period, int minute, int position) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!sheet.man[slot].regular || !sheet.IsOpen(slot, period, minute, position)) continue;
      if (!suits(slot, period, minute, position)) continue;
      sheet.Place(slot, period, minute, position);
      return;
    }
  });
}

}  // namespace

void ChooseRegulars(RotationSheet& sheet) {
  struct Sweep {
    int least, rank, most;
  };
  // Least target, least best rank, and how many regulars are enough.
  constexpr Sweep kSweeps[] = {{20, 4, kRosterSlots}, {15, 3, 10}, {10, 2, 10}, {10, 1, 12}};
  int regulars = 0;
  const auto choose = [&](GridMan& man) { man.regular = true, ++regulars; };
  for (GridMan& man : sheet.man) {
    if (man.member && man.bestRank >= 5) choose(man);
  }
  const std::size_t sweeps = sheet.regulation == 2 ? 4 : 3;
  for (std::size_t s = 0; s < sweeps; ++s) {
    for (int target = 50; target >= kSweeps[s].least; --target) {
      for (GridMan& man : sheet.man) {
        if (regulars >= kSweeps[s].most) break;
        if (man.member && !man.regular && man.bestRank >= kSweeps[s].rank && man.target >= target)
          choose(man);
      }
    }
  }
}

void PlaceRegulars(RotationSheet& sheet) {
  for (int round = 1; round <= 5; ++round) {
    for (int target = kMostTarget; target >= 1; --target) {
      for (int slot = 1; slot <= kRosterSlots; ++slot) {
        const GridMan& man = sheet.man[slot];
        if (man.regular && man.bestRank < kFirstChoice && man.target >= target) {
          PlaceRegular(sheet, slot, round);
        }
      }
    }
    if (round == 3) MoveIntoHoles(sheet);
  }
}

void MoveIntoHoles(RotationSheet& sheet) {
  sheet.EachFree([&sheet](int period, int minute, int position) {
    for (int from = 1; from <= 5; ++from) {
      const int slot = sheet.SlotAt(period, minute, from);
      if (slot == 0) continue;
      const PlayerRecord& p = sheet.Player(slot);
      if (p.DepthRank[position] == 0 && p.PrimaryPosition != position) continue;
      return sheet.Shift(period, minute, from, position);
    }
  });
}

void FillHoles(RotationSheet& sheet) {
  GiveHoles(sheet, [&sheet](int slot, int period, int minute, int position) {
    return StandsBeside(sheet, slot, period, minute, position);
  });
  GiveHoles(sheet, [&sheet](int slot, int, int, int position) {
    const PlayerRecord& p = sheet.Player(slot);
    return sheet.man[slot].placed < sheet.man[slot].target + 7.5 &&
           (p.DepthRank[position] > 0 || Lists(p, position));
  });
}

}  // namespace tipline
