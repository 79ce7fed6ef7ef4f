#include "coach/sub_screens.h"

#include <algorithm>
#include <string>
#include <utility>

#include "coach/substitutions.h"
#include "engine/eligible.h"
#include "engine/fatigue.h"
#include "league/player_values.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

using platform::RefusedWith;

std::string NameOf(int side, int slot) { return FullName(PlayerAt(side, slot)); }

int PlaceOf(const Table<int, 1, kPositions>& lineup, int slot) {
  for (int p = 1; p <= kPositions; ++p) {
    if (lineup[p] == slot) return p;
  }
  return 0;
}

/// Tells when the man at the line is not among the five.
bool ShooterMissing(int side, const Table<int, 1, kPositions>& lineup) {
  if (!IsFreeThrow(game.GameState) || side != game.OffenseSide || game.BallPlayer == 0) return false;
  if (PlaceOf(lineup, game.BallPlayer) != 0) return false;
  return !RefusedWith(NameOf(side, game.BallPlayer) + " is at the line..he must be in the game!");
}

/// Who a lineup names for a position, of those who may appear and are not taken yet; 0 nobody.
int NamedFor(int side, int index, int position, const Table<int, 1, kPositions>& taken) {
  int named = 0;
  int bestRank = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!MayAppear(side, slot) || PlaceOf(taken, slot) != 0) continue;
    const PlayerRecord& p = PlayerAt(side, slot);
    const int rank = index == 0 ? p.DepthRank[position] : p.RotationOrder[index] == position ? 1 : 0;
    if (rank <= bestRank) continue;
    bestRank = rank;
    named = slot;
  }
  return named;
}

/// The side's own settings keep a tired man off, and one in foul trouble; the coach is told.
bool KeptOff(int side, int slot) {
  const Side& s = game.side[side];
  if (s.AutoSubWhenTired == 1 && ManAt(side, slot).Energy < 80) {
    return !RefusedWith(
        NameOf(side, slot) +
        " is tired!. Uncheck 'Auto Sub When Tired' to allow for tired players to be entered.");
  }
  if (s.AutoSubWhenFoulTrouble == 1 && PlayerAt(side, slot).Stats[3].Pf >= FoulTroubleLimit()) {
    return !RefusedWith(
        NameOf(side, slot) +
        " is in foul trouble!. Uncheck 'Auto Sub When In Foul Trouble' to allow for players in foul "
        "trouble to be entered.");
  }
  return false;
}

}  // namespace

bool HCQUICKSUB::PutIn(int position, int slot) {
  if (slot < 1 || slot > kRosterSlots || !MayAppear(side, slot))
    return RefusedWith("You must select a player!");
  if (const int place = PlaceOf(lineup, slot)) {
    std::swap(lineup[place], lineup[position]);
    return true;
  }
  if (KeptOff(side, slot)) return false;
  lineup[position] = slot;
  return true;
}

bool HCQUICKSUB::QuickLineup(int index) {
  if (index < 0 || index >= static_cast<int>(kQuickLineups.size())) return false;
  Table<int, 1, kPositions> five{};
  for (int position = 1; position <= kPositions; ++position) {
    const int slot = NamedFor(side, index, position, five);
    const bool stays = PlaceOf(lineup, slot) != 0;
    if (slot != 0 && (stays || !KeptOff(side, slot))) five[position] = slot;
  }
  if (std::all_of(five.begin(), five.end(), [](int slot) { return slot == 0; })) return false;
  for (int position = 1; position <= kPositions; ++position) {
    if (five[position] == 0 && PlaceOf(five, lineup[position]) == 0) five[position] = lineup[position];
  }
  lineup = five;
  return true;
}

bool HCQUICKSUB::Ok() {
  if (PlaceOf(lineup, 0) != 0) return RefusedWith("You must fill all 5 lineup spots!");
  if (ShooterMissing(side, lineup)) return false;
  game.side[side].Lineup = lineup;
  return true;
}

bool HCquickOnePlayerSub::Choose(int slot) {
  if (slot >= 1 && slot <= kRosterSlots && MayAppear(side, slot)) {
    const bool fits = Lists(PlayerAt(side, slot), position);
    if (!fits && !platform::dialogs().Ask("Use " + NameOf(side, slot) + " out of position?")) return false;
  }
  HCQUICKSUB panel(side);
  if (!panel.PutIn(position, slot) || ShooterMissing(side, panel.lineup)) return false;
  game.side[side].Lineup = panel.lineup;
  return true;
}

}  // namespace tipline
