#include "base/page.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace tipline {

std::string AtRight(std::string_view text, std::size_t width) {
  if (text.size() >= width) return std::string(text.substr(text.size() - width));
  return std::string(width - text.size(), ' ').append(text);
}

std::string AtRight(int value, std::size_t width) { return AtRight(std::to_string(value), width); }

std::string AtLeft(std::string_view text, std::size_t width) {
  std::string line(text.substr(0, width));
  line.resize(width, ' ');
  return line;
}

void Tab(std::string& line, std::size_t column) {
  if (column > 0 && line.size() < column - 1) line.resize(column - 1, ' ');
}

std::string Decimal(double value, int places) {
  char digits[64];
  if (!(std::abs(value) < 1e15)) value = 0;
  const auto end = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, places).ptr;
  std::string text(digits, end);
  // What rounds to nothing has no sign.
  if (text[0] == '-' && text.find_first_of("123456789") == std::string::npos) text.erase(0, 1);
  return text;
}

std::string ShareText(int part, int whole) {
  // Half a thousandth goes up: 5 of 16 are .313.
  part = std::max(part, 0);
  const long long n = whole > 0 ? (2000LL * part + whole) / (2LL * whole) : 0;
  const std::string digits = std::to_string(n % 1000);
  return (n >= 1000 ? std::to_string(n / 1000) : "") + "." + std::string(3 - digits.size(), '0') + digits;
}

}  // namespace tipline
