// The first choices of the rotation grid: they open and close the periods.
#include <algorithm>

#include "base/numbers.h"
#include "base/random.h"
#include "coach/rotation_sheet.h"
#include "league/player_values.h"

namespace tipline {
namespace {

using KeyMen = Table<int, 1, 5>;

constexpr int kMostTarget = 50;  // higher targets count as this one
constexpr int kOverTarget = 2;   // minutes above his target at which a first choice is full
constexpr int kShortStint = 6;   // of a man who is needed elsewhere, too

int ListedFactor(const PlayerRecord& p, int position) {
  return p.PrimaryPosition == position     ? 3
         : p.SecondaryPosition == position ? 2
         : p.SpotPosition == position      ? 1
                                           : 0;
}

KeyMen FindKeyMen(const RotationSheet& sheet) {
  KeyMen key{};
  for (int position = 1; position <= 5; ++position) {
    int best = 0;
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!sheet.man[slot].member) continue;
      const PlayerRecord& p = sheet.Player(slot);
      const int value = p.DepthRank[position] * 1000 + p.TargetMinutes * ListedFactor(p, position);
      if (value <= best) continue;
      best = value;
      key[position] = slot;
    }
  }
  return key;
}

/// He has played enough of a season to be counted on.
bool Proven(const PlayerRecord& p) {
  const int year = p.Year < 1920 || p.Year > 2100 ? 2020 : p.Year;
  return p.Stats[1].G > EraRow(year, IsCollegeLevel(p), kLastEraYear).Games / 4.0;
}

/// Writes the stints of one first choice at his position.
class KeyStints {
 public:
  KeyStints(RotationSheet& sheet, int slot, int position)
      : sheet_(sheet),
        man_(sheet.man[slot]),
        slot_(slot),
        position_(position),
        last_(sheet.minutes),
        shared_(man_.places >= 2) {}

  void Place() {
    Range(kOvertimeGrid, 1, last_);
    First();
    Fourth();
    Third();
    Second();
  }

 private:
  void Minute(int period, int minute) {
    const bool full = period != kOvertimeGrid && man_.placed >= man_.target + kOverTarget;
    if (minute < 1 || minute > last_ || full) return;
    if (sheet_.IsOpen(slot_, period, minute, position_)) sheet_.Place(slot_, period, minute, position_);
  }
  void Range(int period, int from, int to) {
    for (int minute = from; minute <= std::min(to, last_); ++minute) Minute(period, minute);
  }
  /// n minutes that end with `end`, the latest first.
  void Closing(int period, int end, int n) {
    for (int minute = end; minute > std::max(0, end - n); --minute) Minute(period, minute);
  }
  int Length(double share, int least) const {
    const int n = std::max(least, Int(man_.target * share * man_.spread + 0.5));
    return shared_ ? std::min(n, kShortStint) : n;
  }
  /// A long share is split, a short one half of the times.
  bool Splits(int n, int longShare) const { return !shared_ && (n >= longShare || Rnd(2) == 1); }

  void First() {
    const int n = Length(0.23, 5);
    if (!Splits(n, 7)) return Range(1, 1, n);
    const int opening = std::max(5, Int(n * 0.65 + 0.5));
    Range(1, 1, opening);
    Closing(1, last_, std::max(3, n - opening));
  }

  void Fourth() {
    const int n = Length(0.28, 4);
    if (!Splits(n, 6)) return Closing(4, last_, n);
    const int closing = std::max(4, Int(n * 0.7 + 0.5));
    const int early = std::max(3, n - closing);
    Closing(4, last_, closing);
    if (n <= 9 && Rnd(2) == 1) {
      Range(4, 3, early + 3);
    } else {
      Range(4, 1, early);
    }
  }

  void Third() {
    const int n = Length(0.24, 4);
    if (!Splits(n, 6)) return Range(3, 1, n);
    const int opening = std::max(4, Int(n * 0.67 + 0.5));
    Range(3, 1, opening);
    const bool restsAtTheEnd = n <= 10 && Rnd(2) == 1;
    Closing(3, restsAtTheEnd ? last_ - 2 : last_, std::max(3, n - opening));
  }

  /// Last of all: what his target still asks for. Who has just closed the first period rests first.
  void Second() {
    int n = Int(man_.target * 0.22 * man_.spread - man_.placed + 0.5);
    if (man_.places == 1) n = man_.target;
    n = std::min(std::max(n, 4), last_);
    if (shared_) n = std::min(n, kShortStint);
    if (shared_ || sheet_.PositionOf(slot_, 1, last_) != 0) return Range(2, std::max(1, last_ - n), last_);
    double opening = Int(n * 0.5 + 0.5);
    if (Rnd(2) == 1) opening = n * 0.4;
    opening = std::max(3.0, opening);
    Range(2, 1, Int(opening));
    Closing(2, last_, Int(std::max(3.0, n - opening)));
  }

  RotationSheet& sheet_;
  GridMan& man_;
  int slot_, position_, last_;
  bool shared_;
};

/// A man's other positions, by rank.
struct OtherPositions {
  int highest = 0, lowest = 0;

  OtherPositions(const PlayerRecord& p, int position) {
    for (int q = 1; q <= 5; ++q) {
      if (q == position || p.DepthRank[q] == 0) continue;
      if (highest == 0 || p.DepthRank[q] > p.DepthRank[highest]) highest = q;
      if (lowest == 0 || p.DepthRank[q] < p.DepthRank[lowest]) lowest = q;
    }
  }
};

/// What a man of several positions still owes is spent at his others: the better one late and early, the
/// lesser one in between.
void SpendElsewhere(RotationSheet& sheet, int slot, int position) {
  const OtherPositions other(sheet.Player(slot), position);
  const GridMan& man = sheet.man[slot];
  for (int k = 0; k < kBuiltPeriods; ++k) {
    const int period = kPeriodsByWeight[k];
    const int n = std::max(period == 4 ? 4 : 3, Int(man.target - man.placed / 4.0 + 0.5));
    const int there = k < 2 ? other.highest : other.lowest;
    sheet.PlaceBlock(slot, period, there, n, man.target + kOverTarget);
  }
}

}  // namespace

void PlaceKeyMen(RotationSheet& sheet) {
  const KeyMen key = FindKeyMen(sheet);
  Table<bool, 0, kRosterSlots> done{};
  for (int target = kMostTarget; target >= 1; --target) {
    for (int position = 1; position <= 5; ++position) {
      const int slot = key[position];
      if (slot == 0 || done[slot] || sheet.man[slot].target < target || !Proven(sheet.Player(slot))) continue;
      done[slot] = true;
      KeyStints(sheet, slot, position).Place();
    }
  }
  for (int target = kMostTarget; target >= 1; --target) {
    for (int position = 1; position <= 5; ++position) {
      const int slot = key[position];
      if (slot == 0 || sheet.man[slot].places < 2 || sheet.man[slot].target != target) continue;
      SpendElsewhere(sheet, slot, position);
    }
  }
}

}  // namespace tipline
