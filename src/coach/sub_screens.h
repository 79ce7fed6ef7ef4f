#pragma once
// The panels in which a human coach makes his substitutions, at a stop. Nothing changes in the game before
// Ok.
#include "engine/game_state.h"

namespace tipline {

/// The sub panel of a whole team.
struct HCQUICKSUB {
  int side = 1;
  Table<int, 1, kPositions> lineup{};  ///< the five as chosen so far, 0 empty

  explicit HCQUICKSUB(int forSide) : side(forSide), lineup(game.side[forSide].Lineup) {}

  /// Puts the man at roster place `slot` in at a position; a man already chosen changes places with the one
  /// there. False, with its message, when nobody is chosen who may play, or when the side's substitution
  /// settings keep a tired man or one in foul trouble off.
  bool PutIn(int position, int slot);
  /// Sends a line-up in, as far as its men may come in: 0 the first men of the depth chart, 1 to 7 the
  /// special line-ups (blowout, offense, three point, free throw, fastbreak, defense, press). A man who is
  /// kept off is told of, and his place stays as it is. False when `index` is no line-up or nobody is named
  /// for it.
  bool QuickLineup(int index);
  /// Takes the five into the game. False, with its message, when a spot is empty or the free-throw shooter is
  /// missing.
  bool Ok();
};

/// The list of men for one position of a side.
struct HCquickOnePlayerSub {
  int side = 1;
  int position = 1;

  /// Puts the man in at once. Asks first when he does not play the position; false when refused or when he
  /// can't come in.
  bool Choose(int slot);
};

}  // namespace tipline
