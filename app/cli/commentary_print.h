#pragma once
// Commentary on a terminal: the lines as they come, and a score line where the ball changes hands.
#include <chrono>
#include <ostream>
#include <string>

#include "platform/commentary_box.h"

namespace tipline::cli {

/// Shows the commentary of `game` on `out` while it lives.
class CommentaryPrinter : private platform::CommentaryBox {
 public:
  /// `pause`: how long it waits behind each stop, and at each ".."; a listener reads meanwhile.
  explicit CommentaryPrinter(std::ostream& out, std::chrono::milliseconds pause = {})
      : out_(out), pause_(pause) {
    platform::UseCommentaryBox(this);
  }
  ~CommentaryPrinter() override { platform::UseCommentaryBox(nullptr); }
  CommentaryPrinter(const CommentaryPrinter&) = delete;
  CommentaryPrinter& operator=(const CommentaryPrinter&) = delete;

 private:
  void Line(std::string_view text, int side, int sound) override;
  void Pause() override;
  void StopShown() override { Pause(); }

  std::ostream& out_;
  std::chrono::milliseconds pause_;
  int offense_ = 0, period_ = 0;  ///< whose ball, and when, at the last score line
};

}  // namespace tipline::cli
