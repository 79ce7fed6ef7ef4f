#pragma once
// The computer's own calendar.
#include <string>

namespace tipline::platform {

/// Today where the computer stands: "10-27-2023".
std::string ComputerDate();

}  // namespace tipline::platform
