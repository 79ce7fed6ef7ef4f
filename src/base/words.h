#pragma once
// Words of the game that the compiler checks: one byte in memory, a text on files and prompts.
#include <iterator>
#include <string_view>

#include "base/types.h"

namespace tipline {

/// A word out of the table `Words::kTexts`, whose first entry is the word's value at start.
/// Made from a literal while compiling: a mistyped word does not compile.
template <class Words>
class Word {
 public:
  constexpr Word() = default;

  consteval Word(const char* text) : index_(Find(text)) {
    if (index_ == kNone) throw "not a word of this table";
  }

  /// False, and nothing changed, when `text` is no word of the table.
  constexpr bool Set(std::string_view text) {
    const u8 found = Find(text);
    if (found == kNone) return false;
    index_ = found;
    return true;
  }

  /// The word with this number in the table; false, and nothing changed, when there is none.
  constexpr bool SetIndex(u8 index) {
    if (index >= std::size(Words::kTexts)) return false;
    index_ = index;
    return true;
  }

  constexpr std::string_view Text() const { return Words::kTexts[index_]; }
  constexpr u8 Index() const { return index_; }
  constexpr bool Empty() const { return Text().empty(); }

  friend constexpr bool operator==(Word, Word) = default;

 private:
  static constexpr u8 kNone = 255;

  static constexpr u8 Find(std::string_view text) {
    u8 index = 0;
    for (const auto word : Words::kTexts) {
      if (word == text) return index;
      ++index;
    }
    return kNone;
  }

  u8 index_ = 0;
};

}  // namespace tipline
