#include "cli/terminal.h"

#include <unistd.h>

#include <algorithm>
#include <iostream>

namespace tipline::cli {

void Terminal::Tell(std::string_view message, std::string_view title) {
  std::cerr << "tipline: " << message;
  if (!title.empty()) std::cerr << " (" << title << ")";
  std::cerr << '\n';
}

bool Terminal::Ask(std::string_view question, std::string_view) {
  if (AssumeYes) return true;
  if (!Interactive()) {
    std::string line(question);
    std::replace(line.begin(), line.end(), '\n', ' ');
    Refuse(std::string(YesOption) + " answers the question: " + line);
    return false;
  }
  const auto answer = AskLine(std::string(question) + " [y/n] ");
  return answer && !answer->empty() && ((*answer)[0] == 'y' || (*answer)[0] == 'Y');
}

void Terminal::Beep() {
  if (isatty(STDERR_FILENO)) std::cerr << '\a';
}

bool Interactive() { return isatty(STDIN_FILENO) && isatty(STDOUT_FILENO); }

std::optional<std::string> AskLine(std::string_view prompt) {
  std::cout << prompt << std::flush;
  std::string line;
  if (!std::getline(std::cin, line)) return std::nullopt;
  return line;
}

int Refuse(std::string_view message) {
  std::cerr << "tipline: " << message << '\n';
  return 1;
}

}  // namespace tipline::cli
