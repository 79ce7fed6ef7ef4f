#include "coach/rotation_sheet.h"

#include <algorithm>

#include "base/numbers.h"

namespace tipline {
namespace {

constexpr int kSpreadRank = 3;  // from this rank on a position counts as his

GridMan ReadMan(const Roster& roster, int slot) {
  GridMan man;
  if (!OnTeam(roster, slot)) return man;
  const PlayerRecord& player = roster.player[slot];
  man.member = true;
  const StatLine& real = player.Stats[1];
  man.target = player.TargetMinutes;
  if (man.target == 0 && real.G >= 0) man.target = Int(real.Min / (real.G + 1.0) + 0.5);
  for (const int rank : player.DepthRank) {
    man.places += rank >= kSpreadRank ? 1 : 0;
    man.bestRank = std::max(man.bestRank, rank);
  }
  if (man.places >= 2) man.spread = 1 - 0.21 * (man.places - 1);
  return man;
}

}  // namespace

RotationSheet::RotationSheet(const Roster& team, int leaguePeriods, int periodMinutes)
    : roster(team), regulation(leaguePeriods), minutes(periodMinutes) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) man[slot] = ReadMan(team, slot);
}

void RotationSheet::Place(int slot, int period, int minute, int position) {
  cell_[period][minute][position] = static_cast<u8>(slot);
  own_[slot][period][minute] = static_cast<u8>(position);
  if (period != kOvertimeGrid) ++man[slot].placed;
}

void RotationSheet::Shift(int period, int minute, int from, int to) {
  const u8 slot = cell_[period][minute][from];
  cell_[period][minute][from] = 0;
  cell_[period][minute][to] = slot;
  own_[slot][period][minute] = static_cast<u8>(to);
}

void RotationSheet::PlaceBlock(int slot, int period, int position, int n, double most) {
  const auto take = [&](int minute) {
    if (man[slot].placed < most && IsOpen(slot, period, minute, position)) {
      Place(slot, period, minute, position);
    }
  };
  if (IsOpen(slot, period, 1, position)) {
    for (int minute = 1; minute <= std::min(n, minutes); ++minute) take(minute);
    return;
  }
  int last = minutes;
  while (last > 1 && !IsOpen(slot, period, last, position)) --last;
  for (int minute = last; minute > std::max(0, last - n); --minute) take(minute);
}

int RotationSheet::Open() const {
  int open = regulation * minutes * 5;
  for (const GridMan& m : man) open -= m.placed;
  return open;
}

}  // namespace tipline
