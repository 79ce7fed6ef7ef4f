#pragma once
// Messages and questions to the user. The command line prints and asks, the desktop shows boxes, a test
// scripts answers.
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace tipline::platform {

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// A message; `title` may be empty, the program's own title then stands.
  virtual void Tell(std::string_view message, std::string_view title = "") = 0;
  /// A question with yes and no; true for yes.
  virtual bool Ask(std::string_view question, std::string_view title = "") = 0;
  /// Nothing came of what the user pressed.
  virtual void Beep() {}
};

/// The one in use: that of the front end, or the silent one, which keeps quiet and answers no.
Dialogs& dialogs();
/// Puts `dialogs` in use until the next call; nullptr puts the silent one back. It must outlive its use.
void UseDialogs(Dialogs* dialogs);
/// Tells why something is refused; false for the caller to give back.
bool RefusedWith(std::string_view message, std::string_view title = "");

/// For tests: what was told and asked, and a queue of answers. A question with no answer left is kept in
/// `unexpected`.
class ScriptedDialogs : public Dialogs {
 public:
  ScriptedDialogs() { UseDialogs(this); }
  ~ScriptedDialogs() override { UseDialogs(nullptr); }
  void Tell(std::string_view message, std::string_view) override { told.emplace_back(message); }
  bool Ask(std::string_view question, std::string_view title) override;
  void Beep() override { ++beeps; }

  int beeps = 0;
  std::deque<bool> answers;
  std::vector<std::string> told, asked, unexpected;
};

}  // namespace tipline::platform
