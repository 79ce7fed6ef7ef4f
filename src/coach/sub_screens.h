#pragma once
// The panels in which a human coach makes his substitutions, at a stop. Nothing changes in the game before
// Ok.
#include <array>
#include <string_view>

#include "engine/game_state.h"

namespace tipline {

inline constexpr std::array<std::string_view, 8> kQuickLineups{
    "Enter Starters",    "Blowout Lineup",   "Offense Lineup", "Three Point Lineup",
    "Free Throw Lineup", "Fastbreak Lineup", "Defense Lineup", "Press Lineup"};

/// The sub panel of a whole team.
struct HCQUICKSUB {
  int side = 1;
  Table<int, 1, kPositions> lineup{};  ///< the five as chosen so far, 0 empty

  explicit HCQUICKSUB(int forSide) : side(forSide), lineup(game.side[forSide].Lineup) {}

  /// Puts the man at roster place `slot` in at a position; a man already chosen changes places with the one
  /// there. False, with its message, when nobody is chosen who may play, or when the side's substitution
  /// settings keep a tired man or one in foul trouble off.
  bool PutIn(int position, int slot);
  /// Puts one of the special lineups in: 0 the starters by the depth chart, 1 to 7 as `kQuickLineups` names
  /// them. Who may not appear is left out, for a starter the next of his position comes in; a position that
  /// nobody is left for, or whose man the settings keep off (he is told of), keeps its man. False, and
  /// nothing changes, for another index or when the lineup names nobody who may appear.
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
