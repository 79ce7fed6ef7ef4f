#include "platform/clock.h"

#include <ctime>

namespace tipline::platform {

std::string ComputerDate() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&now, &local);
  char text[16];
  return {text, std::strftime(text, sizeof text, "%m-%d-%Y", &local)};
}

}  // namespace tipline::platform
