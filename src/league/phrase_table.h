#pragma once
// The announcer's phrases: twenty variants of each of 300 roles, as the phrase file holds them.
#include <vector>

#include "base/text.h"

namespace tipline {

inline constexpr int kPhraseSlots = 300;
inline constexpr int kPhraseSlotsUsed = 253;
inline constexpr int kPhraseVariants = 20;
inline constexpr int kPhraseLength = 40;

using PhraseText = Text<kPhraseLength>;

/// All variants, slot by slot; empty until the table is loaded.
struct PhraseTable {
  std::vector<PhraseText> Cells;
  bool Loaded() const { return !Cells.empty(); }
  /// Variant 1 to 20 of slot 1 to 300; the table is loaded.
  PhraseText& At(int variant, int slot) {
    return Cells[static_cast<std::size_t>((slot - 1) * kPhraseVariants + variant - 1)];
  }
};

}  // namespace tipline
