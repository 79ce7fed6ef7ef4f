#pragma once
// Figures on a page of text.
#include <string>
#include <string_view>

namespace tipline {

/// Set to the right in `width` columns; a longer text keeps its last ones.
std::string AtRight(std::string_view text, std::size_t width);
std::string AtRight(int value, std::size_t width);
/// Set to the left in `width` columns, cut to them.
std::string AtLeft(std::string_view text, std::size_t width);
/// Fills `line` with blanks up to column `column`, from 1; a line that is longer stays as it is.
void Tab(std::string& line, std::size_t column);
/// With `places` behind the point: "12.5", "0.5", "-3.0".
std::string Decimal(double value, int places);
/// A share as standings and boxes print it: ".487", "1.000"; ".000" of nothing.
std::string ShareText(int part, int whole);

}  // namespace tipline
