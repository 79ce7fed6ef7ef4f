#pragma once
// Two rosters of ten in the middle of a game, for tests of the clock and of who plays.
#include "engine/game_state.h"
#include "league/program.h"
#include "league/setup.h"

namespace tipline {

constexpr int kMen = 10;

/// Slots 1 to 5 play positions 1 to 5, slots 6 to 10 the same as second choice. Fresh men of 2010 on four
/// quarters of twelve minutes; both coaches are human and leave the substitutions to themselves.
inline void TwoTeams() {
  game = {};
  league.rules = {};
  league.EraPro = league.EraCollege = {};
  setup = {};
  CallAllPlays();
  program = {};
  league.rules.PeriodList = 4;
  league.rules.MinuteList = 12;
  league.rules.OverTimeList = 5;
  league.rules.ShotClockList = 24;
  league.rules.DqList = 6;
  for (int side = 1; side <= 2; ++side) {
    game.GameTeam[side] = side;
    game.team[side].TeamType = "P";
    game.team[side].Year = 2010;
    game.side[side].CoachMode = "H";
    for (int slot = 1; slot <= kMen; ++slot) {
      PlayerRecord& p = PlayerAt(side, slot);
      const int position = (slot - 1) % 5 + 1;
      p.TeamNo = static_cast<i16>(side);
      p.Year = 2010;
      p.PrimaryPosition = static_cast<u8>(position);
      p.PositionAllowed[position] = 1;
      p.DepthRank[position] = slot <= 5 ? 6 : 5;
      p.TargetMinutes = slot <= 5 ? 32 : 16;
      p.DontPlayWhenTired = 1;
      LoadedAt(side, slot).PlayLength = 5000;
      LoadedAt(side, slot).RestLength = 1200;
      if (slot <= 5) game.side[side].Lineup[slot] = slot;
    }
  }
  game.GameClock = 5000;
  game.ShotClock = 240;
  game.GameState = "OFFENSE";
  game.BallPlayer = game.BallSlot = 1;
}

}  // namespace tipline
