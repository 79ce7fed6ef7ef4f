#pragma once
// The number types of the league's files: unsigned byte, signed 16 and 32 bit, single and double.
#include <cstdint>

namespace tipline {

using u8 = std::uint8_t;
using i16 = std::int16_t;
using i32 = std::int32_t;
using f32 = float;
using f64 = double;

}  // namespace tipline
