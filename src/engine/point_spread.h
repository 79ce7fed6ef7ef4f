#pragma once
// What is expected of a game before it begins.

namespace tipline {

struct BettingLine {
  int points = 0;    ///< above 0 the visitor by so many, below it the home team
  int favorite = 0;  ///< side, 0 a pick
};
/// From the power ratings of both teams of the game and the court; reads `game`.
BettingLine PointSpread();

}  // namespace tipline
