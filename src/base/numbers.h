#pragma once
// The roundings that the rules are written with.
#include <cmath>

namespace tipline {

/// To the nearest whole number, ties to the even one. Outside the range of an int: its nearest end; no
/// number: 0.
inline int Round(double x) {
  if (!(x > -2147483647.0)) return x < 0 ? -2147483647 : 0;
  if (x > 2147483647.0) return 2147483647;
  return static_cast<int>(std::lrint(x));
}

/// The whole part, cut down also below zero.
inline int Int(double x) {
  if (!(x > -2147483647.0)) return x < 0 ? -2147483647 : 0;
  if (x > 2147483647.0) return 2147483647;
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
