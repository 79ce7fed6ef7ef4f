#pragma once
// The machine's voice for one command.
#include <memory>

#include "platform/voice.h"

namespace tipline::cli {

/// Puts the desktop's voice in use while it lives. A machine without one is told of on standard error, once,
/// and stays silent.
class Speaker {
 public:
  explicit Speaker(bool tells = true);  ///< without `tells` nothing is said of a missing voice
  ~Speaker() { platform::UseVoice(nullptr); }
  Speaker(const Speaker&) = delete;
  Speaker& operator=(const Speaker&) = delete;

 private:
  std::unique_ptr<platform::Voice> voice_;
};

/// The narrator is on, this game alone. A user who never chose what he wants to hear hears the plays, the
/// fouls, the scores and the line-ups.
void TurnNarratorOn();

}  // namespace tipline::cli
