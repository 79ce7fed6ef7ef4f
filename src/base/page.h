#pragma once
// Figures on a page of text.
#include <string>
#include <string_view>
#include <utility>

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

/// A page of text in columns, built in one string.
class Page {
 public:
  /// Blanks up to the column, counted from 1; a single one when the line is there already.
  Page& Tab(int column) {
    const auto width = text_.size() - line_;
    const auto before = static_cast<std::size_t>(column - 1);
    text_.append(width <= before ? before - width : 1, ' ');
    return *this;
  }
  Page& Put(std::string_view text) {
    text_ += text;
    return *this;
  }
  Page& Put(int number) { return Put(std::to_string(number)); }
  /// The last `width` characters of the text behind blanks.
  Page& Right(int width, std::string_view text) {
    const auto room = static_cast<std::size_t>(width);
    if (text.size() > room) text.remove_prefix(text.size() - room);
    text_.append(room - text.size(), ' ');
    return Put(text);
  }
  Page& Right(int width, int number) { return Right(width, std::to_string(number)); }
  /// The text, cut or filled with blanks to the width.
  Page& Left(int width, std::string_view text) {
    const auto room = static_cast<std::size_t>(width);
    text = text.substr(0, room);
    Put(text);
    text_.append(room - text.size(), ' ');
    return *this;
  }
  Page& End() {
    text_ += '\n';
    line_ = text_.size();
    return *this;
  }

  std::string Text() { return std::move(text_); }

 private:
  std::string text_;
  std::size_t line_ = 0;
};

}  // namespace tipline
