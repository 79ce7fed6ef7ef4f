#pragma once
// Commands of the desktop, started without a shell.
#include <sys/types.h>

#include <chrono>
#include <string>
#include <vector>

namespace tipline::platform {

/// The file of a command on the PATH; empty when it is not installed.
std::string FindCommand(const char* name);

/// Starts a command with nothing to read; what it prints goes to `out`, or nowhere below 0. Its process id, 0
/// when it could not be started.
pid_t StartCommand(const std::string& command, std::vector<std::string> arguments, int out);

/// How a process ended.
struct Ending {
  bool inTime = false;  ///< false: it ran beyond the time it had, and was ended
  bool done = false;    ///< it ended by itself and found nothing wrong
};
/// Waits until the process is over, at the longest until `end`.
Ending WaitForCommand(pid_t process, std::chrono::steady_clock::time_point end);

}  // namespace tipline::platform
