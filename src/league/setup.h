#pragma once
// The user's preferences that a game reads.
#include "base/tables.h"
#include "base/types.h"

namespace tipline {

struct Setup {
  u8 ComputerCheck = 0;  ///< 0 computer games are played at once, 1 they are shown
  /// Minutes left in the period from which the ball is brought up as a play of its own: index 1 before the
  /// last period, 2 from it on; 0 never.
  Table<u8, 1, 2> MoveUpList{};
  /// Tenths of the plays that the human calls, 0 to 10: [clock band 1 to 3][period 1 to 4, 5 overtime].
  Table2<u8, 1, 3, 1, 5> PlayCallFrequency = [] {
    Table2<u8, 1, 3, 1, 5> all;
    for (auto& band : all) band.Fill(10);
    return all;
  }();
};

extern Setup setup;

// The buttons of the play-calling grid, `PlayCallFrequency`.
void UseDefaultCalls();  ///< the human calls some plays, and all of them when it counts
void CallNoPlays();
void CallAllPlays();

}  // namespace tipline
