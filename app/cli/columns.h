#pragma once
// A table for people, in aligned columns, or for programs, as comma-separated text.
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace tipline::cli {

class Columns {
 public:
  /// Headings; one that begins with '<' is a column of texts, set to the left. For people `gap` blanks stand
  /// between two columns.
  explicit Columns(std::vector<std::string> headings, std::size_t gap = 2);

  void Row(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }
  /// A rule across the table, for people only.
  void Rule() { rows_.emplace_back(); }

  void Print(std::ostream& out, bool csv) const;

 private:
  void PrintLine(std::ostream& out, const std::vector<std::string>& cells,
                 const std::vector<std::size_t>& widths) const;

  std::vector<std::string> headings_;
  std::size_t gap_;
  std::vector<bool> left_;
  std::vector<std::vector<std::string>> rows_;
};

/// The text with '?' for what would steer the terminal: a damaged file, or a coach's line, may hold it.
std::string Plain(std::string text);
/// The same for each line of a page.
void PrintPlain(std::ostream& out, std::string_view page);
inline std::string Str(int value) { return std::to_string(value); }
/// "7-15".
inline std::string Of(int made, int tried) { return Str(made) + "-" + Str(tried); }
/// `value` with that many places behind the point.
std::string Fixed(double value, int places);
/// A percentage as it is written on a box: ".487", "1.000"; ".000" without attempts.
std::string Share(int made, int tried);

}  // namespace tipline::cli
