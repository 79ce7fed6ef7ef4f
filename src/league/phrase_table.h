#pragma once
// The announcer's phrases: twenty variants of each of 300 roles, as the phrase file holds them.
#include <concepts>
#include <vector>

#include "base/record.h"

namespace tipline {

inline constexpr int kPhraseSlots = 300;
inline constexpr int kPhraseSlotsUsed = 253;
inline constexpr int kPhraseVariants = 20;
inline constexpr int kPhraseLength = 40;

using PhraseText = Text<kPhraseLength>;

/// One variant in the phrase file; record number (slot - 1) x 20 + variant.
struct PhraseRecord {
  static constexpr int kRecordSize = kPhraseLength;
  PhraseText PhraseTable;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, PhraseRecord>
void Describe(Record& r, Visitor&& field) {
  field(0, "PhraseTable", r.PhraseTable, "a way to say it; blank: the slot's own text");
}

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
