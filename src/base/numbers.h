#pragma once
// The roundings that the rules are written with.
#include <cmath>

namespace tipline {

/// Where both stop, so that figures out of a bad file can still be added to one another.
inline constexpr int kFarthest = 1000000000;

/// To the nearest whole number, ties to the even one. Beyond `kFarthest` it stops there; no number: 0.
inline int Round(double x) {
  if (!(x > -kFarthest)) return x < 0 ? -kFarthest : 0;
  if (x > kFarthest) return kFarthest;
  return static_cast<int>(std::lrint(x));
}

/// The whole part, cut down also below zero.
inline int Int(double x) {
  if (!(x > -kFarthest)) return x < 0 ? -kFarthest : 0;
  if (x > kFarthest) return kFarthest;
  const int whole = static_cast<int>(x);
  return whole - (x < whole ? 1 : 0);
}

/// A whole-number weight or chance times a factor, rounded at once.
inline void Scale(int& weight, double factor) { weight = Round(weight * factor); }

template <class T>
constexpr T Clamp(T value, T low, T high) {
  return value < low ? low : high < value ? high : value;
}

}  // namespace tipline
