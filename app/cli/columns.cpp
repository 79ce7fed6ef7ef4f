#include "cli/columns.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "base/csv.h"

namespace tipline::cli {

namespace {

/// Bytes of the UTF-8 character that begins at `at`; 1 for a byte that begins none.
std::size_t CharacterLength(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0; };
  const int lead = byte(at), second = byte(at + 1);
  std::size_t length = lead >= 0xC2 && lead <= 0xDF   ? 2
                       : lead >= 0xE0 && lead <= 0xEF ? 3
                       : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                      : 1;
  if ((lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90))
    length = 1;  // a longer way to say it
  for (std::size_t i = 1; i < length; ++i) {
    if (byte(at + i) < 0x80 || byte(at + i) > 0xBF) return 1;
  }
  return length;
}

}  // namespace

Columns::Columns(std::vector<std::string> headings, std::size_t gap)
    : headings_(std::move(headings)), gap_(gap) {
  for (auto& heading : headings_) {
    left_.push_back(!heading.empty() && heading[0] == '<');
    if (left_.back()) heading.erase(0, 1);
  }
}

void Columns::PrintLine(std::ostream& out, const std::vector<std::string>& cells,
                        const std::vector<std::size_t>& widths) const {
  std::string line;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const std::string blanks(widths[i] - std::min(widths[i], cells[i].size()), ' ');
    line += left_[i] ? cells[i] + blanks : blanks + cells[i];
    if (i + 1 < cells.size()) line.append(gap_, ' ');
  }
  line.erase(line.find_last_not_of(' ') + 1);
  out << Plain(std::move(line)) << '\n';
}

void Columns::Print(std::ostream& out, bool csv) const {
  if (csv) {
    const auto line = [&out](const std::vector<std::string>& cells) {
      for (std::size_t i = 0; i < cells.size(); ++i) out << (i ? "," : "") << CsvField(Plain(cells[i]));
      out << '\n';
    };
    line(headings_);
    for (const auto& row : rows_) {
      if (!row.empty()) line(row);
    }
    return;
  }
  std::vector<std::size_t> widths;
  std::size_t total = 0;
  for (std::size_t i = 0; i < headings_.size(); ++i) {
    std::size_t width = headings_[i].size();
    for (const auto& row : rows_) width = i < row.size() ? std::max(width, row[i].size()) : width;
    widths.push_back(width);
    total += width + (i ? gap_ : 0);
  }
  PrintLine(out, headings_, widths);
  for (const auto& row : rows_) {
    if (row.empty()) {
      out << std::string(total, '-') << '\n';
    } else {
      PrintLine(out, row, widths);
    }
  }
}

void PrintPlain(std::ostream& out, std::string_view page) {
  while (!page.empty()) {
    const auto end = std::min(page.find('\n'), page.size());
    out << Plain(std::string(page.substr(0, end))) << '\n';
    page.remove_prefix(std::min(end + 1, page.size()));
  }
}

std::string Fixed(double value, int places) {
  char text[40];
  std::snprintf(text, sizeof text, "%.*f", places, value);
  return text;
}

std::string Share(int made, int tried) {
  const std::string text = Fixed(tried > 0 ? static_cast<double>(made) / tried : 0, 3);
  return text[0] == '0' ? text.substr(1) : text;
}

std::string Plain(std::string text) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = CharacterLength(text, at);
    const int last = static_cast<unsigned char>(text[at + length - 1]);
    const bool steers = length == 1 ? last < 32 || (last >= 127 && last < 160)
                                    : length == 2 && text[at] == '\xC2' && last < 160;
    if (steers) text.replace(at, length, length, '?');
    at += length;
  }
  return text;
}

}  // namespace tipline::cli
