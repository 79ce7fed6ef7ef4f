#pragma once
// The spots of the floor: 101 to 104 under the basket from left to right, 201 to 209 in the two-point area,
// 301 to 309 beyond the arc, each row from one sideline to the other.

namespace tipline {

/// The spots are equal or next to each other; on a drive, also when `other` lies on the path of the drive
/// from `ball`.
bool SpotsAdjacent(int ball, int other, bool drive);
/// `other` lies in a corner too far off for its defender to foul the man at `ball`.
bool SpotsFarApart(int ball, int other);
/// The two spots lie on opposite sides of the floor.
bool OppositeSides(int ball, int other);
inline bool IsInsideSpot(int spot) { return spot >= 101 && spot <= 104; }
inline bool IsThreeSpot(int spot) { return spot >= 301 && spot <= 309; }

}  // namespace tipline
