#pragma once
// The program is stopped from outside: it leaves the terminal as it was, and the data tree marked as closed.
#include <string>

namespace tipline::cli {

/// From now on SIGINT, SIGTERM, SIGHUP, SIGQUIT and SIGPIPE write "Closed" to this file and end the program
/// with exit code 128 + signal (130 for Ctrl-C).
void CloseOnSignals(const std::string& statusFile);

/// While it lives, the first SIGINT, SIGTERM or SIGHUP is noted and no more; the work at hand is brought to a
/// good end. A second one ends the program as before: the files are whole at any moment.
class StopRequest {
 public:
  StopRequest();
  ~StopRequest();
  StopRequest(const StopRequest&) = delete;
  StopRequest& operator=(const StopRequest&) = delete;

  /// The signal that came; 0 none.
  static int Signal();
  /// Signals end the program at once again, and wait no more, as long as somebody plays at the terminal.
  void Pause();
  void Resume();
};

}  // namespace tipline::cli
