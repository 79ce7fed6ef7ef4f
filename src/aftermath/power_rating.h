#pragma once
// The power rating of a team: it rises when a game went better than the spread said, and falls else.

namespace tipline {

/// The margin of side 1 as the ratings take it: a big one counts less, and the visitors gain a point.
double DampedMargin(int margin);

/// How far a team moves that won by `margin` where `spread` was expected, both below zero for the other way
/// round, and that had so many games before; 0.21 to 0.9 up or down.
double RatingStep(double margin, int spread, int games);

/// Moves both teams of `game` by the spread of the game. Wins and losses must not count it yet;
/// `game.SpreadPoints` is the home team's afterwards.
void UpdatePowerRatings();

}  // namespace tipline
