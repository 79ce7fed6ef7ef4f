#include "cli/columns.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "base/csv.h"

namespace tipline::cli {

Columns::Columns(std::vector<std::string> headings) : headings_(std::move(headings)) {
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
    if (i + 1 < cells.size()) line += "  ";
  }
  line.erase(line.find_last_not_of(' ') + 1);
  out << Plain(std::move(line)) << '\n';
}

void Columns::Print(std::ostream& out, bool csv) const {
  if (csv) {
    const auto line = [&out](const std::vector<std::string>& cells) {
      for (std::size_t i = 0; i < cells.size(); ++i) out << (i ? "," : "") << CsvField(cells[i]);
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
    total += width + (i ? 2 : 0);
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
  for (char& c : text) {
    if (static_cast<unsigned char>(c) < 32 || c == 127) c = '?';
  }
  return text;
}

}  // namespace tipline::cli
