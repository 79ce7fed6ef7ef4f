#include "engine/court.h"

#include <cstdlib>

#include "base/random.h"

namespace tipline {
namespace {

// Neighbours of each spot in the rows closer to the basket and farther from it. The rows have 4, 9 and 9
// spots, so a spot under the basket faces two or three of the next row, and each of those the like-numbered
// one behind the arc.
// clang-format off
struct Reach { int low, high; };
constexpr Reach kOutsideOf[5] = {{0, 0}, {1, 3}, {3, 5}, {5, 7}, {7, 9}};  // 101..104 -> 20x
constexpr Reach kArcOf[5]     = {{0, 0}, {1, 2}, {0, 0}, {0, 0}, {8, 9}};  // 101..104 -> 30x: the two corners
// clang-format on

int Row(int spot) { return spot / 100; }
int Place(int spot) { return spot % 100; }

bool Within(int place, Reach reach) { return place >= reach.low && place <= reach.high; }

bool Neighbours(int ball, int other) {
  if (Row(ball) == Row(other)) return std::abs(ball - other) <= 1;
  const int near = Row(ball) < Row(other) ? ball : other;
  const int far = near == ball ? other : ball;
  if (IsInsideSpot(near)) {
    return Within(Place(far), Row(far) == 2 ? kOutsideOf[Place(near)] : kArcOf[Place(near)]);
  }
  return Row(near) == 2 && Row(far) == 3 && std::abs(Place(near) - Place(far)) <= 1;
}

bool OnThePath(int ball, int other) {
  if (ball == 101 || ball == 102) {
    if (Row(other) == 2) return other >= 201 && other <= 203 + Rnd(2);
    return Row(other) == 3 && other >= 301 && other <= 303 + Rnd(3);
  }
  if (ball == 103 || ball == 104) {
    if (Row(other) == 2) return other >= 203 + Rnd(2) && other <= 209;
    return Row(other) == 3 && other >= 303 + Rnd(3) && other <= 309;
  }
  return false;
}

struct Stretch {
  int low, high;
};
struct FarSpots {
  Stretch ball;
  Stretch far[2];
};
// From each stretch of spots, the attackers too far off: the far wing and the far corner.
// clang-format off
constexpr FarSpots kFar[] = {
    {{101, 102}, {{205, 309}, {}}},
    {{103, 104}, {{201, 203}, {205, 205}}},
    {{201, 203}, {{205, 309}, {}}},
    {{204, 205}, {{301, 301}, {309, 309}}},
    {{206, 209}, {{201, 204}, {301, 309}}},
    {{301, 302}, {{204, 208}, {308, 309}}},
    {{303, 303}, {{205, 209}, {308, 309}}},
    {{304, 306}, {{301, 301}, {309, 309}}},
    {{307, 307}, {{201, 204}, {301, 302}}},
    {{308, 309}, {{201, 205}, {301, 302}}},
};
// clang-format on

bool In(int spot, Stretch stretch) { return spot >= stretch.low && spot <= stretch.high; }

}  // namespace

bool SpotsAdjacent(int ball, int other, bool drive) {
  return Neighbours(ball, other) || (drive && OnThePath(ball, other));
}

bool SpotsFarApart(int ball, int other) {
  for (const FarSpots& row : kFar) {
    if (In(ball, row.ball)) return In(other, row.far[0]) || In(other, row.far[1]);
  }
  return false;
}

bool OppositeSides(int ball, int other) {
  if (In(ball, {301, 304}) || In(ball, {201, 203})) {
    return In(other, {206, 208}) || In(other, {306, 309}) || In(other, {103, 104});
  }
  if (In(ball, {306, 309}) || In(ball, {206, 207})) {
    return In(other, {201, 203}) || In(other, {301, 304}) || In(other, {101, 104});
  }
  return IsInsideSpot(ball) && IsThreeSpot(other);
}

}  // namespace tipline
