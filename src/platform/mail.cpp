// Mail by the desktop's command `xdg-email`, which opens the letter in the user's mail program.
#include "platform/mail.h"

#include "platform/command.h"

namespace tipline::platform {
namespace {

class NoMail : public Mail {
 public:
  bool Send(const Letter&) override { return false; }
};

NoMail noMail;
Mail* inUse = &noMail;

class XdgEmail : public Mail {
 public:
  explicit XdgEmail(std::string command) : command_(std::move(command)) {}
  bool Send(const Letter& letter) override {
    if (letter.To.empty()) return false;
    std::vector<std::string> arguments{"--utf8", "--subject", letter.Subject, "--body", letter.Body};
    if (!letter.Attachment.empty()) {
      arguments.insert(arguments.end(), {"--attach", std::filesystem::absolute(letter.Attachment).string()});
    }
    for (const std::string& address : letter.To) {
      if (address.starts_with('-')) return false;  // it would be read as an option
      arguments.push_back(address);
    }
    const pid_t process = StartCommand(command_, arguments, -1);
    if (process <= 0) return false;
    return WaitForCommand(process, std::chrono::steady_clock::now() + std::chrono::seconds(30)).done;
  }

 private:
  std::string command_;
};

}  // namespace

Mail& mail() { return *inUse; }
void UseMail(Mail* mail) { inUse = mail ? mail : &noMail; }

std::unique_ptr<Mail> DesktopMail() {
  std::string command = FindCommand("xdg-email");
  if (command.empty()) return nullptr;
  return std::make_unique<XdgEmail>(std::move(command));
}

}  // namespace tipline::platform
