#include "platform/commentary_box.h"

namespace tipline::platform {
namespace {

class SilentBox : public CommentaryBox {
 public:
  void Line(std::string_view, int, int) override {}
  void Pause() override {}
  void StopShown() override {}
};

SilentBox silent;
CommentaryBox* inUse = &silent;

}  // namespace

CommentaryBox& commentaryBox() { return *inUse; }
void UseCommentaryBox(CommentaryBox* box) { inUse = box ? box : &silent; }

}  // namespace tipline::platform
