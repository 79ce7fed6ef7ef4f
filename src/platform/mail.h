#pragma once
// Letters that the user sends from his own mail program.
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace tipline::platform {

struct Letter {
  std::vector<std::string> To;  ///< mail addresses
  std::string Subject, Body;
  std::filesystem::path Attachment;  ///< empty for none
};

class Mail {
 public:
  virtual ~Mail() = default;
  /// Hands the letter over; false when nobody takes it.
  virtual bool Send(const Letter& letter) = 0;
};

/// The one in use; the default takes no letter.
Mail& mail();
/// Puts `mail` in use until the next call; nullptr puts the default back. It must outlive its use.
void UseMail(Mail* mail);

/// The mail program of the desktop, in which the letter opens ready to be sent; nullptr where the desktop
/// offers none.
std::unique_ptr<Mail> DesktopMail();

/// For tests: keeps the letters, or takes none.
class ScriptedMail : public Mail {
 public:
  ScriptedMail() { UseMail(this); }
  ~ScriptedMail() override { UseMail(nullptr); }
  bool Send(const Letter& letter) override {
    if (takes) sent.push_back(letter);
    return takes;
  }

  bool takes = true;
  std::vector<Letter> sent;
};

}  // namespace tipline::platform
