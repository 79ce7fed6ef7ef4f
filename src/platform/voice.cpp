// Speech by the command `spd-say` of the desktop's speech dispatcher, started without a shell.
#include "platform/voice.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <sstream>

#include "platform/command.h"

namespace tipline::platform {
namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

class SilentVoice : public Voice {
 public:
  bool Silent() const override { return true; }
  std::vector<std::string> Voices() override { return {}; }
  void Select(int) override {}
  void SetRate(double) override {}
  void SetVolume(int) override {}
  void Speak(std::string_view, bool) override {}
};

SilentVoice silent;
Voice* inUse = &silent;

/// What a command prints in at most a few seconds.
std::string OutputOf(const std::string& command, const std::vector<std::string>& arguments) {
  constexpr std::size_t kMost = 200'000;
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return "";
  const pid_t process = StartCommand(command, arguments, ends[1]);
  close(ends[1]);
  std::string output;
  const auto end = Clock::now() + milliseconds(3000);
  pollfd ready{ends[0], POLLIN, 0};
  while (process > 0 && output.size() < kMost && Clock::now() < end && poll(&ready, 1, 100) >= 0) {
    if (ready.revents == 0) continue;
    std::array<char, 4096> part;
    const ssize_t bytes = read(ends[0], part.data(), part.size());
    if (bytes <= 0) break;
    output.append(part.data(), static_cast<std::size_t>(bytes));
  }
  close(ends[0]);
  if (process > 0) (void)WaitForCommand(process, Clock::now() + milliseconds(500));
  return output;
}

class SpeechDispatcher : public Voice {
 public:
  explicit SpeechDispatcher(std::string command) : command_(std::move(command)) {}
  ~SpeechDispatcher() override { Collect(); }

  bool Silent() const override { return hung_; }
  std::vector<std::string> Voices() override;
  void Select(int index) override;
  void SetRate(double rate) override { rate_ = static_cast<int>(std::clamp(rate, -1.0, 1.0) * 100); }
  void SetVolume(int percent) override { volume_ = std::clamp(percent, 0, 100) * 2 - 100; }
  void Speak(std::string_view text, bool wait) override;

 private:
  /// Takes leave of those who have spoken.
  void Collect() {
    std::erase_if(speaking_, [](pid_t process) { return waitpid(process, nullptr, WNOHANG) != 0; });
  }

  std::string command_, voice_;
  std::vector<std::string> voices_;
  bool listed_ = false;
  bool hung_ = false;  ///< it did not come to the end of a text, and would hang at each
  int selected_ = 0, rate_ = 0, volume_ = 100;
  std::vector<pid_t> speaking_;  ///< texts that nobody waits for
};

/// Index 0 is the voice that the dispatcher takes by itself. Its list has a heading, then a voice a line, the
/// name first; columns are two blanks or more apart.
std::vector<std::string> SpeechDispatcher::Voices() {
  if (listed_) return voices_;
  listed_ = true;
  voices_ = {"default"};
  std::istringstream lines(OutputOf(command_, {"--list-synthesis-voices"}));
  std::string line;
  std::getline(lines, line);
  while (std::getline(lines, line)) {
    line.erase(0, std::min(line.find_first_not_of(' '), line.size()));
    line.erase(std::min(line.find("  "), line.size()));
    if (!line.empty()) voices_.push_back(line);
  }
  return voices_;
}

void SpeechDispatcher::Select(int index) {
  if (index == selected_) return;
  selected_ = index;
  voice_.clear();
  if (index <= 0) return;
  const auto names = Voices();
  if (static_cast<std::size_t>(index) < names.size()) voice_ = names[static_cast<std::size_t>(index)];
}

void SpeechDispatcher::Speak(std::string_view text, bool wait) {
  Collect();
  if (hung_) return;
  std::vector<std::string> arguments{"--rate", std::to_string(rate_), "--volume", std::to_string(volume_)};
  if (!voice_.empty()) arguments.insert(arguments.end(), {"--synthesis-voice", voice_});
  if (wait) arguments.emplace_back("--wait");
  arguments.insert(arguments.end(), {"--", std::string(text)});
  const pid_t process = StartCommand(command_, arguments, -1);
  if (process <= 0) return;
  if (!wait) {
    speaking_.push_back(process);
    return;
  }
  // The slowest speaker takes a third of a second for a letter; then something hangs.
  hung_ = !WaitForCommand(process, Clock::now() + milliseconds(3000 + 300 * static_cast<int>(text.size())))
               .inTime;
  if (Finished) Finished();
}

}  // namespace

Voice& voice() { return *inUse; }
void UseVoice(Voice* voice) { inUse = voice ? voice : &silent; }

std::unique_ptr<Voice> DesktopVoice() {
  std::string command = FindCommand("spd-say");
  if (command.empty()) return nullptr;
  return std::make_unique<SpeechDispatcher>(std::move(command));
}

}  // namespace tipline::platform
