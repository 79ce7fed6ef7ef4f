#pragma once
// Markers: a byte beside a field that older layouts did not have. It holds its value once the field was set.
#include "base/types.h"

namespace tipline {

/// Sets the marker. True when it was missing: the caller then fills the fields it guards.
inline bool TakeMark(u8& mark, u8 value) {
  const bool missing = mark != value;
  mark = value;
  return missing;
}

}  // namespace tipline
