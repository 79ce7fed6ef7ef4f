#include "engine/eligible.h"

#include "engine/game_state.h"

namespace tipline {

bool IsEligible(int side, int slot) {
  if (!OnTeam(side, slot)) return false;
  const PlayerRecord& player = PlayerAt(side, slot);
  const int limit = league.rules.DqList;
  return (limit == 0 || player.Stats[3].Pf < limit) && !LoadedAt(side, slot).PlayerOut &&
         ManAt(side, slot).TemporaryInjury <= 0 && ManAt(side, slot).GameInjury <= 0;
}

bool MayAppear(int side, int slot) {
  if (!IsEligible(side, slot)) return false;
  const int limit = league.rules.RosterLimitList;
  if (limit == 0 || ManAt(side, slot).PlayerGameTime > 0) return true;
  int appeared = 0;
  for (int k = 1; k <= kRosterSlots; ++k) {
    appeared += OnTeam(side, k) && ManAt(side, k).PlayerGameTime > 0 ? 1 : 0;
  }
  return appeared < limit;
}

int CountEligible(int side) {
  int count = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(side, slot) && PlayerAt(side, slot).Status == kInactive) LoadedAt(side, slot).PlayerOut = 1;
    count += IsEligible(side, slot) ? 1 : 0;
  }
  return count;
}

int DrawPosition(int side) {
  const int drawn = Rnd(kPositions);
  for (int k = 0; k < kPositions; ++k) {
    const int position = (drawn - 1 + k) % kPositions + 1;
    if (game.side[side].Lineup[position] > 0) return position;
  }
  return 0;
}

}  // namespace tipline
