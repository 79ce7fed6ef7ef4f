#pragma once
// Where commentary is shown: the front end's box, or nowhere.
#include <string_view>

namespace tipline::platform {

class CommentaryBox {
 public:
  virtual ~CommentaryBox() = default;
  /// A line; `side` is whose colours it takes (0 none), `sound` a cue (0 none).
  virtual void Line(std::string_view text, int side, int sound) = 0;
  virtual void Pause() = 0;
  /// All lines of the stop have been shown.
  virtual void StopShown() = 0;
};

/// The one in use; the silent one shows nothing.
CommentaryBox& commentaryBox();
/// Puts `box` in use until the next call; nullptr puts the silent one back. It must outlive its use.
void UseCommentaryBox(CommentaryBox* box);

}  // namespace tipline::platform
