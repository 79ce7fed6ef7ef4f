#pragma once
// What the stages of LoadLineups share.
#include "engine/game_state.h"
#include "league/player_values.h"

namespace tipline {

/// One call of LoadLineups.
struct SubPass {
  int period = 1, minute = 1;  ///< cell of the rotation grid
  int foulLimit = 99;          ///< foul trouble begins here
  int subTimeLeft = 99999;     ///< the clock from the last period on; before it there is always time
  bool early = false;          ///< less than three minutes of the period have run
  bool fullClock = false;
  bool freeThrow = false;
  bool settled = false;                      ///< too soon or too late in the game for more removals
  bool unattended = false;                   ///< bulk play, or the game runs up to a mark
  int tries = 0;                             ///< passes so far
  int freshPartners = 0;                     ///< times a tired man made room for a fresh partner
  Table<bool, 1, 2> hasGrid{};               ///< the side's rotation grid names somebody for this minute
  Table<bool, 1, 2> gridUsed{};              ///< somebody came in by it at this stop
  Table2<int, 1, 2, 1, kPositions> order{};  ///< positions in the order in which they are filled

  /// The man at the line, who must stay.
  bool IsShooter(int side, int slot) const {
    return freeThrow && slot != 0 && side == game.OffenseSide && slot == game.BallPlayer;
  }
};

// The stages, in their order (substitutions_removal.cpp, substitutions_entry.cpp, substitutions_floor.cpp).
void TakeOffUnfit(const SubPass& pass);
void TakeOffTired(const SubPass& pass);
void TakeOffForBlowout();
void TakeOffFoulTrouble(const SubPass& pass);
void EnterByGrid(SubPass& pass);
void RepairPositions(const SubPass& pass);
void MakeRoomForFreshMen(SubPass& pass);
/// False when nobody on the bench could take an empty position.
bool FillPositions(const SubPass& pass);
void GuardAndCenter(const SubPass& pass);

inline bool IsComputer(int side) { return game.side[side].CoachMode == "C"; }
inline bool TiredCheck(const SubPass& pass, int side) {
  return game.side[side].AutoSubWhenTired == 1 || pass.unattended;
}
inline bool AnySubCheck(int side) {
  return game.side[side].AutoSubWhenTired == 1 || game.side[side].AutoSubWhenFoulTrouble == 1;
}
/// Shoots free throws too badly to protect a lead with. Draws.
inline bool PoorFreeThrower(const PlayerRecord& p) {
  return p.Stats[1].FTM / (p.Stats[1].FTA + 1.0) < 0.501 + 0.101 * Rnd();
}
/// His coach wants him on the floor when it is close at the end.
inline bool IsCrunchMan(const PlayerRecord& p) { return game.CrunchTime == 1 && p.PlayAtCrunchTime != 0; }

/// Plays a position near this one.
bool IsLikeMan(const PlayerRecord& p, int position);
/// The cell of the rotation grid; a value that is no position is cleared.
int GridCell(const SubPass& pass, PlayerRecord& p);

}  // namespace tipline
