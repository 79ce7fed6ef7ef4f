#pragma once
// What a man can have.
#include <string_view>

namespace tipline {

inline constexpr int kInjuryNames = 60;

/// Name of injury 1 to 60: 1 to 13 light ones, then from bad to grave, 51 to 60 odd ones. Any other number
/// is "".
std::string_view InjuryName(int word);

}  // namespace tipline
