#pragma once
// The voice that speaks the commentary: this machine's speech, or silence.
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tipline::platform {

class Voice {
 public:
  virtual ~Voice() = default;
  /// Nobody hears it: no text need be made for it.
  virtual bool Silent() const = 0;
  /// Names of the voices, in the order of their indexes from 0.
  virtual std::vector<std::string> Voices() = 0;
  /// The voice of that index; the usual one when there is none such.
  virtual void Select(int index) = 0;
  virtual void SetRate(double rate) = 0;    ///< -1 slowest, 0 usual, 1 fastest
  virtual void SetVolume(int percent) = 0;  ///< 0 to 100
  /// Says a text. With `wait` it comes back when the text has been said, and then calls Finished. Whatever
  /// goes wrong is silence.
  virtual void Speak(std::string_view text, bool wait) = 0;

  std::function<void()> Finished;  ///< called at the end of a text that was waited for; may be empty
};

/// The one in use; the silent one is the default.
Voice& voice();
/// Puts `voice` in use until the next call; nullptr puts the silent one back. It must outlive its use.
void UseVoice(Voice* voice);

/// The desktop's speech service; nullptr where it is not installed.
std::unique_ptr<Voice> DesktopVoice();

}  // namespace tipline::platform
