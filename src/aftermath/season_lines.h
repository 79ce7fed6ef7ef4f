#pragma once
// What a game adds to the season of a man, and to the lines of both teams. All of it works on the tables of
// `game`.
#include <algorithm>
#include <limits>

#include "base/numbers.h"
#include "league/stat_line.h"

namespace tipline {

/// Adds without leaving the counter's range: a season counter that is full stays full.
template <class Counter>
void Add(Counter& counter, int value) {
  constexpr int low = std::numeric_limits<Counter>::min(), high = std::numeric_limits<Counter>::max();
  counter = static_cast<Counter>(Clamp(counter + value, low, high));
}

/// A value as a file holds it, within the range of its field.
template <class Field>
Field Held(int value) {
  constexpr int low = std::numeric_limits<Field>::min(), high = std::numeric_limits<Field>::max();
  return static_cast<Field>(Clamp(value, low, high));
}

/// The man of the team was on the floor, if only for a free throw.
bool HasPlayed(int side, int slot);

/// Closes the line of the game: whole minutes, a game from one minute on, fouled out or not.
void CloseGameLine(int side, int slot);

/// A game of the suspension is served; one that was earned today begins with the next game.
void ServeSuspension(int side, int slot);
/// Games that a man sat out since he last played.
void CountRest(int side, int slot);
/// What the commentary tells of his last game.
void NoteLastGame(int side, int slot);

/// Everything that his closed line adds to the season of a man who played: totals, positions, highs, doubles,
/// games at home or on the road, and the series in a playoff game.
void AddToSeason(int side, int slot);

}  // namespace tipline
