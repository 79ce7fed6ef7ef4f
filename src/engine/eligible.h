#pragma once
// Who can still play in this game.

namespace tipline {

/// On the team, under the foul limit, neither out, hurt nor shaken up.
bool IsEligible(int side, int slot);
/// Such a man whom the roster limit lets in: it counts the men who have appeared in this game.
bool MayAppear(int side, int slot);
/// Eligible men of a side. Marks inactive men as out.
int CountEligible(int side);

/// A position drawn from the five; where it is empty, the next filled one. 0 when the floor is empty.
int DrawPosition(int side);

}  // namespace tipline
