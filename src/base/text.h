#pragma once
// Texts of fixed length as the files hold them: one byte a character, left-justified, padded with blanks.
#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace tipline {

/// `text` without leading and trailing blanks and zero bytes.
constexpr std::string_view Trimmed(std::string_view text) {
  const auto blank = [](char c) { return c == ' ' || c == '\0'; };
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  return text;
}

/// A text of N bytes. A fresh one is all zero bytes, as in a record that was never written.
template <int N>
class Text {
 public:
  static constexpr int kLength = N;

  constexpr Text() = default;
  constexpr Text(std::string_view text) { *this = text; }

  /// Cut to N characters, padded with blanks.
  constexpr Text& operator=(std::string_view text) {
    const auto kept = text.substr(0, N);
    std::fill(std::copy(kept.begin(), kept.end(), bytes.begin()), bytes.end(), ' ');
    return *this;
  }

  /// The text without the blanks around it. Valid while this object lives.
  constexpr std::string_view View() const { return Trimmed({bytes.data(), bytes.size()}); }
  std::string Str() const { return std::string(View()); }
  constexpr bool Empty() const { return View().empty(); }

  friend constexpr bool operator==(const Text& a, std::string_view b) { return a.View() == Trimmed(b); }
  friend constexpr bool operator==(const Text& a, const Text& b) { return a.View() == b.View(); }
  /// For the letters of one character: `team.TeamType == 'C'`.
  friend constexpr bool operator==(const Text& a, char letter) requires(N == 1) {
    return a.bytes[0] == letter;
  }

  std::array<char, N> bytes{};
};

std::string Upper(std::string_view text);               ///< ASCII letters only
bool SameText(std::string_view a, std::string_view b);  ///< trimmed, case-blind

}  // namespace tipline
