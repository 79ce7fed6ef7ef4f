#include "platform/dialogs.h"

namespace tipline::platform {
namespace {

class SilentDialogs : public Dialogs {
 public:
  void Tell(std::string_view, std::string_view) override {}
  bool Ask(std::string_view, std::string_view) override { return false; }
};

SilentDialogs silent;
Dialogs* inUse = &silent;

}  // namespace

Dialogs& dialogs() { return *inUse; }
void UseDialogs(Dialogs* dialogs) { inUse = dialogs ? dialogs : &silent; }

bool RefusedWith(std::string_view message, std::string_view title) {
  dialogs().Tell(message, title);
  return false;
}

bool ScriptedDialogs::Ask(std::string_view question, std::string_view) {
  asked.emplace_back(question);
  if (answers.empty()) {
    unexpected.emplace_back(question);
    return false;
  }
  const bool answer = answers.front();
  answers.pop_front();
  return answer;
}

}  // namespace tipline::platform
