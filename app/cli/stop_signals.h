#pragma once
// The program is stopped from outside: it leaves the terminal as it was, and the data tree marked as closed.
#include <string>

namespace tipline::cli {

/// From now on SIGINT, SIGTERM, SIGHUP, SIGQUIT and SIGPIPE write "Closed" to this file and end the program
/// with exit code 128 + signal (130 for Ctrl-C).
void CloseOnSignals(const std::string& statusFile);

}  // namespace tipline::cli
