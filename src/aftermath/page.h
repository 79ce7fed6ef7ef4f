#pragma once
// A page of text in columns, built in one string.
#include <string>
#include <string_view>

namespace tipline {

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
