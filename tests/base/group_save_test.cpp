// A group of files is as before or as after, whoever is killed in between.
#include "base/group_save.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "base/random.h"
#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "support/small_disk.h"

namespace tipline {
namespace {

constexpr int kSlot = 300;

class GroupSaves : public testing::Test {
 protected:
  std::filesystem::path Path(const char* name) const { return home.Home() / name; }
  std::filesystem::path Journal() const { return Path("HcBooks.redo"); }

  /// Slots in one file, one replaced whole, one that grows, a new one: all tell the version.
  bool Gather(int version, bool keep = true) const {
    GroupSave group(home.Home());
    const std::vector<u8> slot(kSlot, static_cast<u8>(version));
    const bool gathered =
        RecordFile(Path("slots"), kSlot).WriteSlots({{3, slot}, {40, slot}, {7, slot}}) &&
        WriteWholeFile(Path("whole"), std::string(static_cast<std::size_t>(version) * 10, 'a')) &&
        AppendToFile(Path("growing"), std::string(100, static_cast<char>(version))) &&
        WriteWholeFile(Path(("box" + std::to_string(version)).c_str()), "box");
    EXPECT_TRUE(gathered);
    return !keep || group.Keep() == GroupSave::Kept::kYes;
  }

  /// Versions 1 to n are in the files, and nothing else.
  int Version() const {
    const auto growing = ReadWholeFile(Path("growing"));
    const int version = static_cast<int>(growing.size() / 100);
    EXPECT_EQ(growing.size() % 100, 0u);
    EXPECT_EQ(ReadWholeFile(Path("whole")).size(), static_cast<std::size_t>(version) * 10);
    const auto slots = ReadWholeFile(Path("slots"));
    for (const int n : {3, 7, 40}) {
      EXPECT_TRUE(slots.substr((n - 1u) * kSlot, kSlot) == std::string(kSlot, static_cast<char>(version)))
          << n;
    }
    EXPECT_TRUE(std::filesystem::exists(Path(("box" + std::to_string(version)).c_str())));
    EXPECT_FALSE(std::filesystem::exists(Path(("box" + std::to_string(version + 1)).c_str())));
    return version;
  }

  TemporaryHome home;
};

TEST_F(GroupSaves, ReadsSeeWhatIsGatheredAndFilesDoNot) {
  ASSERT_TRUE(Gather(1));
  {
    GroupSave group(home.Home());
    const RecordFile slots(Path("slots"), kSlot);
    ASSERT_TRUE(slots.WriteSlots({{41, std::vector<u8>(kSlot, 9)}, {3, std::vector<u8>(10, 8)}}));
    ASSERT_TRUE(slots.RewriteAll(42, [](int n, u8* bytes) {
      if (n == 42) bytes[0] = 7;
    }));
    ASSERT_TRUE(slots.WriteSlots({{1, {6}}}));
    EXPECT_EQ(slots.Count(), 42);
    std::string seen;
    slots.ReadAll(43, [&seen](int, const u8* bytes) { seen += static_cast<char>('0' + bytes[0]); });
    EXPECT_EQ(seen, "6080001" + std::string(32, '0') + "1970");
    ASSERT_TRUE(AppendToFile(Path("growing"), "xyz") && AppendToFile(Path("growing"), "!"));
    EXPECT_EQ(ReadWholeFile(Path("growing")), std::string(100, 1) + "xyz!");
    ASSERT_TRUE(WriteWholeFile(Path("new"), "abc"));
    EXPECT_TRUE(RecordFile(Path("new"), 1).Exists());
    bool ok = false;
    EXPECT_EQ(ReadWholeFile(Path("new"), &ok), "abc");
    EXPECT_TRUE(ok);
  }
  EXPECT_FALSE(std::filesystem::exists(Path("new"))) << "what is not kept is forgotten";
  EXPECT_EQ(Version(), 1);
}

TEST_F(GroupSaves, AreWholeWheneverTheirSaverIsKilled) {
  ASSERT_TRUE(Gather(1));
  int before = 1, cut = 0;
  for (int kill = 0; kill < 150; ++kill) {
    const auto pause = static_cast<useconds_t>(Rnd(3000));
    const pid_t saver = ::fork();
    ASSERT_GE(saver, 0);
    if (saver == 0) {
      for (int version = before + 1; version < 120; ++version) (void)Gather(version);
      ::_exit(0);
    }
    ::usleep(pause);
    ::kill(saver, SIGKILL);
    int state = 0;
    ::waitpid(saver, &state, 0);
    cut += ReadWholeFile(Journal()).starts_with("TIPGROUP");
    ASSERT_TRUE(FinishGroupSave(home.Home()));
    ASSERT_FALSE(std::filesystem::exists(Journal()));
    const int now = Version();
    ASSERT_GE(now, before);
    before = now > 90 ? 1 : now;
    if (before == 1) {
      for (const auto& entry : std::filesystem::directory_iterator(home.Home())) {
        if (entry.is_regular_file()) std::filesystem::remove(entry.path());
      }
      ASSERT_TRUE(Gather(1));
    }
  }
  EXPECT_GT(cut, 0) << "some were to be cut short";
}

TEST_F(GroupSaves, ChangeNothingOnAFullDisk) {
  ASSERT_TRUE(Gather(1));
  ASSERT_TRUE(Gather(2));
  for (const rlim_t bytes : {0, 150, 250}) {
    const SmallDisk disk(bytes);
    EXPECT_FALSE(Gather(3)) << bytes;
    EXPECT_FALSE(ReadWholeFile(Journal()).starts_with("TIPGROUP")) << bytes;
  }
  EXPECT_EQ(Version(), 2);
}

TEST_F(GroupSaves, GoOnWhereAFileCouldNotBeWritten) {
  ASSERT_TRUE(Gather(1));
  ASSERT_TRUE(Gather(2));
  {
    const SmallDisk disk(2000);  // room for all that grows, but the old bytes at 2700 can't be changed
    EXPECT_FALSE(Gather(3));
    EXPECT_FALSE(FinishGroupSave(home.Home()));
    EXPECT_FALSE(Gather(4)) << "nothing passes the one that is half made";
  }
  EXPECT_TRUE(Gather(4));
  EXPECT_EQ(ReadWholeFile(Path("growing")),
            std::string(100, 1) + std::string(100, 2) + std::string(100, 3) + std::string(100, 4));
}

TEST_F(GroupSaves, TakeADamagedJournalForOneThatNeverBegan) {
  ASSERT_TRUE(Gather(1));
  for (int trial = 0; trial < 200; ++trial) {
    std::string journal = "TIPGROUP";
    for (int k = Rnd(400); k > 0; --k) journal += static_cast<char>(Rnd(256) - 1);
    ASSERT_TRUE(WriteWholeFile(Journal(), journal));
    ASSERT_TRUE(FinishGroupSave(home.Home()));
    ASSERT_FALSE(std::filesystem::exists(Journal()));
  }
  EXPECT_EQ(Version(), 1);
}

}  // namespace
}  // namespace tipline
