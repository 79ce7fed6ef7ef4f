#pragma once
// The roundings that the rules are written with.
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

#include "base/text.h"

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

/// The number that a text says, blanks around it left out; nothing for any other text, or one that N can't
/// hold.
template <class N>
std::optional<N> NumberIn(std::string_view text) {
  text = Trimmed(text);
  N number{};
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
}

template <class T>
constexpr T Clamp(T value, T low, T high) {
  return value < low ? low : high < value ? high : value;
}

}  // namespace tipline
