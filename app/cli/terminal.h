#pragma once
// The user at the terminal: messages on standard error, questions where somebody can answer them.
#include <optional>
#include <string>
#include <string_view>

#include "platform/dialogs.h"

namespace tipline::cli {

class Terminal : public platform::Dialogs {
 public:
  Terminal() { platform::UseDialogs(this); }
  ~Terminal() override { platform::UseDialogs(nullptr); }
  void Tell(std::string_view message, std::string_view title) override;
  bool Ask(std::string_view question, std::string_view title) override;
  void Beep() override;

  bool AssumeYes = false;                ///< every question is answered so
  std::string_view YesOption = "--yes";  ///< the option that answers what nobody is there to answer
};

/// Somebody sits at both ends.
bool Interactive();

/// A line typed behind a prompt; nothing at the end of input.
std::optional<std::string> AskLine(std::string_view prompt);

/// One clear line on standard error; gives 1, the exit code of a refusal.
int Refuse(std::string_view message);

}  // namespace tipline::cli
