#pragma once
// How often a man of this kind shoots, loses the ball, or draws a foul.

namespace tipline {

/// Sums of both line-ups, for this play, and the `UsageLevel` of their men. A side's sums stop at an empty
/// position.
void LineupValues();
void ShotWeight();      ///< sets `ShotChance`
void TurnoverWeight();  ///< sets `TurnoverChance`; after ShotWeight
void FoulWeight();      ///< sets `FoulChance`; after ShotWeight

/// Measures how far the league's replay has drifted from its era and sets the tuning that pulls it back; also
/// `MixedEras`, `TeamPassing`, `WinShare`. From PrepareGame. Samples `league.player`, or the league's file
/// when the players are not in memory.
void CalibrateLeague();

}  // namespace tipline
