#include "base/record_file.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

#include "base/undo_journal.h"
#include "harness/temporary_home.h"
#include "league/player_record.h"
#include "support/small_disk.h"

namespace tipline {
namespace {

constexpr int kSlot = 1500;

class RecordFiles : public testing::Test {
 protected:
  TemporaryLeague folder;
  std::filesystem::path path = program.LeagueFolder / "F";
  std::filesystem::path undo = program.LeagueFolder / "F.undo";
  RecordFile file{path, kSlot};

  const std::vector<u8> slot = std::vector<u8>(kSlot, 9);

  /// Another program that saves slots 1 and 100, stopped just before.
  pid_t StoppedSaver() const {
    const pid_t saver = ::fork();
    if (saver == 0) {
      std::signal(SIGXFSZ, SIG_DFL);  // on a full disk it dies
      ::raise(SIGSTOP);
      ::_exit(file.WriteSlots({{1, slot}, {100, slot}}) ? 0 : 1);
    }
    ::waitpid(saver, nullptr, WUNTRACED);
    return saver;
  }
  static bool EndsWell(pid_t saver) {
    int state = 1;
    ::kill(saver, SIGCONT);
    return ::waitpid(saver, &state, 0) == saver && state == 0;
  }
  void DieBehindTheFirstSlot() const {
    const SmallDisk full(50 * kSlot);
    EXPECT_TRUE(!EndsWell(StoppedSaver()) && IsHalfChanged(path));
  }
};

TEST_F(RecordFiles, AWriteKeepsTheBytesOfTheSlotBehindTheRecord) {
  ASSERT_TRUE(WriteWholeFile(path, std::string(3 * kSlot, '\xA5')));
  PlayerRecord player;
  player.Age = 30;
  ASSERT_TRUE(file.Write(2, player));
  std::string expected(3 * kSlot, '\xA5');
  expected.replace(kSlot, PlayerRecord::kRecordSize, PlayerRecord::kRecordSize, '\0');
  expected[kSlot + 948] = 30;
  EXPECT_TRUE(ReadWholeFile(path) == expected);
}

TEST_F(RecordFiles, AFileGrowsByWholeSlotsOfZeros) {
  PlayerRecord player;
  ASSERT_TRUE(file.Write(3, player));
  EXPECT_EQ(file.Count(), 3);
  EXPECT_EQ(ReadWholeFile(path), std::string(3 * kSlot, '\0'));
  EXPECT_FALSE(file.Write(0, player));
}

TEST_F(RecordFiles, WhatIsNotThereReadsAsZeros) {
  PlayerRecord player;
  player.Age = 9;
  file.Read(1, player);
  EXPECT_EQ(player.Age, 0) << "no file";
  ASSERT_TRUE(WriteWholeFile(path, std::string(kSlot + 950, '\x07')));
  file.Read(2, player);
  EXPECT_EQ(player.Age, 7) << "the last bytes of a short file";
  EXPECT_EQ(player.PrimaryPosition, 0) << "behind them";
  EXPECT_EQ(file.Count(), 2) << "the last one is more than half there";
  int sum = 0;
  file.ReadAll(3, [&sum](int, const u8* at) { sum += at[0] + at[949] + at[1499]; });
  EXPECT_EQ(sum, 3 * 7 + 2 * 7);
}

TEST_F(RecordFiles, AFolderInTheFilesPlaceIsRefused) {
  TemporaryLeague::Block(path);
  bool read = true;
  EXPECT_EQ(ReadWholeFile(path, &read), "");
  EXPECT_FALSE(read);
  EXPECT_FALSE(file.Write(1, PlayerRecord{}));
  EXPECT_FALSE(file.RewriteAll(1, [](int, u8*) {}));
  EXPECT_FALSE(WriteWholeFile(path, "x"));
  EXPECT_FALSE(std::filesystem::exists(path.string() + ".new")) << "nothing is left behind";
}

TEST_F(RecordFiles, SlotsThatDoNotAllFitAreAllLeft) {
  const std::string old(10 * kSlot, '\x07');
  const struct {
    const char* why;
    RecordFile::Slots slots;
    rlim_t room;
    bool there;
  } cases[] = {
      {"the second one lies behind the end of the room", {{1, slot}, {10, slot}}, 9 * kSlot, true},
      {"the file had to grow", {{1, slot}, {11, slot}}, 10 * kSlot, true},
      {"and had grown already", {{11, slot}, {12, slot}}, 11 * kSlot, true},
      {"there was no file", {{1, slot}, {10, slot}}, 9 * kSlot, false},
      {"no room for what stood there before", {{1, slot}}, 100, true},
      {"no such slot", {{1, slot}, {0, slot}}, 20 * kSlot, true},
  };
  for (const auto& c : cases) {
    std::filesystem::remove(path);
    ASSERT_TRUE(!c.there || WriteWholeFile(path, old));
    {
      const SmallDisk full(c.room);
      EXPECT_FALSE(file.WriteSlots(c.slots)) << c.why;
    }
    EXPECT_FALSE(std::filesystem::exists(undo)) << c.why;
    EXPECT_EQ(std::filesystem::exists(path), c.there) << c.why;
    EXPECT_TRUE(ReadWholeFile(path) == (c.there ? old : "")) << c.why;
  }
}

TEST_F(RecordFiles, AnUndoThatIsNotWholeIsThrownAway) {
  const std::string old(2 * kSlot, '\x07');
  for (const std::string& bytes : {std::string(), std::string("TIPUNDO1"), std::string("TIPUNDO1") + old}) {
    ASSERT_TRUE(WriteWholeFile(path, old));
    ASSERT_TRUE(WriteWholeFile(undo, bytes));
    EXPECT_EQ(file.Count(), 2);
    EXPECT_FALSE(std::filesystem::exists(undo));
    EXPECT_TRUE(ReadWholeFile(path) == old);
  }
}

TEST_F(RecordFiles, AHalfChangeIsUndoneOrNotShown) {
  const std::string old(10 * kSlot, '\x07');
  ASSERT_TRUE(WriteWholeFile(path, old));
  DieBehindTheFirstSlot();
  {
    const SmallDisk full(0);  // the old bytes can't be put back
    PlayerRecord player;
    EXPECT_FALSE(file.Read(1, player));
    EXPECT_NE(file.Fault(), "");
  }
  EXPECT_TRUE(ReadWholeFile(path) == old);
  std::filesystem::remove(path);
  DieBehindTheFirstSlot();
  EXPECT_FALSE(file.Exists()) << "there was none";
  DieBehindTheFirstSlot();
  std::ofstream(path) << std::string(101 * kSlot, '\x05');
  EXPECT_EQ(file.Count(), 101) << "a copy that somebody put back is not the half made file";
}

TEST_F(RecordFiles, ASaverWaitsForWhoeverIsAtTheFile) {
  const std::string old(100 * kSlot, '\x07');
  ASSERT_TRUE(WriteWholeFile(path, old));
  pid_t saver = StoppedSaver();
  EXPECT_TRUE(file.ReadAll(100, [saver](int n, const u8* bytes) {
    if (n == 1) ::kill(saver, SIGCONT), ::usleep(50000);
    EXPECT_EQ(bytes[0], 7) << n;
  }));
  EXPECT_TRUE(EndsWell(saver));
  ASSERT_TRUE(WriteWholeFile(path, old));
  saver = StoppedSaver();
  EXPECT_TRUE(file.RewriteAll(1, [saver](int n, u8*) {
    if (n == 1) ::kill(saver, SIGCONT), ::usleep(50000);
  }));
  EXPECT_TRUE(EndsWell(saver));
  EXPECT_EQ(ReadWholeFile(path)[0], 9) << "the rewrite did not bring the old slot back";
}

TEST_F(RecordFiles, AStoppedSaverStopsNobodyForLong) {
  const platform::FileHandle stopped(undo, platform::Opening::kNew);
  ASSERT_TRUE(stopped.Hold(platform::Holding::kAlone));
  EXPECT_FALSE(WriteWholeFile(path, "x"));
}

}  // namespace
}  // namespace tipline
