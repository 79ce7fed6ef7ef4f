#pragma once
// The era figures that ship with the program, put straight into the league's tables.

namespace tipline {

/// Fills `league.EraPro` and `league.EraCollege` from the shipped figures, later seasons like the last one.
/// Turnovers, steals and blocks that a season did not keep are estimated as at a program start.
void LoadShippedEras();

}  // namespace tipline
