#pragma once
// Who was in the game just ended.
#include <algorithm>
#include <iterator>

#include "engine/game_state.h"

namespace tipline {

/// The man of the team was on the floor, if only for a free throw on which no time was charged.
inline bool PlayedIn(int side, int slot) {
  if (!OnTeam(side, slot)) return false;
  if (ManAt(side, slot).PlayerGameTime > 0) return true;
  const StatLine& l = PlayerAt(side, slot).Stats[3];
  const i16 counters[] = {l.FGA, l.FTA, l.FTM, l.Reb, l.Ast, l.St, l.Bk, l.To, l.Pf};
  return std::any_of(std::begin(counters), std::end(counters), [](i16 counter) { return counter > 0; });
}

}  // namespace tipline
