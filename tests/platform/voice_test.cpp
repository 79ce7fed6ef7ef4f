#include "platform/voice.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "base/record_file.h"
#include "harness/temporary_home.h"

namespace tipline {
namespace {

/// A spd-say that notes its arguments, one a line, stands first in the path while this lives.
class FakeSpeaker {
 public:
  FakeSpeaker() {
    const auto command = home_.Home() / "spd-say";
    EXPECT_TRUE(WriteWholeFile(command,
                               "#!/bin/sh\n"
                               "[ \"$1\" = --list-synthesis-voices ] &&\n"
                               "  printf ' NAME  LANGUAGE\\n Anna US   en\\n Bo   de\\n' && exit\n"
                               "printf '%s\\n' \"$@\" >> \"${0%/*}/said\"\n"));
    std::filesystem::permissions(command, std::filesystem::perms::owner_all);
    setenv("PATH", home_.Home().c_str(), 1);
  }
  ~FakeSpeaker() { setenv("PATH", path_.c_str(), 1); }
  std::string Said() const { return ReadWholeFile(home_.Home() / "said"); }

 private:
  TemporaryHome home_;
  std::string path_ = std::getenv("PATH");
};

TEST(DesktopVoice, SaysTheTextAsItStands) {
  const FakeSpeaker speaker;
  const auto voice = platform::DesktopVoice();
  ASSERT_TRUE(voice);
  EXPECT_EQ(voice->Voices(), (std::vector<std::string>{"default", "Anna US", "Bo"}));
  voice->Select(1), voice->SetRate(-0.5), voice->SetVolume(75);
  int finished = 0;
  voice->Finished = [&finished] { ++finished; };
  voice->Speak("-x \"$(id)\"; 'b'", true);
  voice->Select(9);
  voice->Speak("bye", true);
  const std::string usual = "--rate\n-50\n--volume\n50\n";
  EXPECT_EQ(speaker.Said(), usual + "--synthesis-voice\nAnna US\n--wait\n--\n-x \"$(id)\"; 'b'\n" + usual +
                                "--wait\n--\nbye\n");
  EXPECT_EQ(finished, 2);
}

TEST(DesktopVoice, IsNoneWhereNothingIsInstalled) {
  const FakeSpeaker speaker;
  std::filesystem::remove(std::filesystem::path(std::getenv("PATH")) / "spd-say");
  EXPECT_FALSE(platform::DesktopVoice());
  EXPECT_TRUE(platform::voice().Silent());
}

}  // namespace
}  // namespace tipline
