// Saves that are cut short: by a kill at any moment, by a full disk. A file is as before or as after.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <bitset>
#include <csignal>

#include "base/random.h"
#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "league/roster.h"
#include "league/rules.h"
#include "league/schedule.h"
#include "league/setup.h"
#include "platform/dialogs.h"
#include "support/small_disk.h"

namespace tipline {
namespace {

constexpr int kTeam = 5;
constexpr u8 kFirstVersion = 100;  // versions 100 to 199: no letter and no marker means anything to a save
constexpr int kVersions = 100;

/// A record whose every byte tells the version.
template <Described R>
void Mark(R& record, u8 version) {
  const std::vector<u8> bytes(static_cast<std::size_t>(R::kRecordSize), version);
  ReadRecord(bytes.data(), record);
}

bool SaveTables(u8 version) {
  for (int team = 1; team <= kTeams; ++team) Mark(league.team[team], version);
  Mark(league.rules, version);
  league.tournamentPools.assign(kRulesSlotBytes, version);
  league.ScheduleYear = version;
  league.ScheduleGame.resize(1231);
  for (ScheduleRecord& row : league.ScheduleGame) {
    Mark(row, version);
    row.Team.Fill(kFreeAgent);
  }
  return SaveAllTeams() && SaveRules() && SaveSchedule();
}

/// Slots in files of many; the list of days off is made anew each time.
bool SaveSlots(u8 version) {
  static Roster roster;
  roster.TeamNo = kTeam;
  Mark(roster.team, version);
  Mark(roster.coach, version);
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    Mark(roster.player[slot], version);
    roster.player[slot].RecNo = static_cast<i16>(slot);
    roster.player[slot].TeamNo = kTeam;
    Mark(roster.daily[slot], version);
  }
  Mark(setup, version);
  std::error_code ignored;
  std::filesystem::remove(DailyFile(), ignored);
  return WriteRoster(roster) && SaveSetup();
}

/// One file, or a team's slot in it; two versions on disk, one after the other, show which bytes tell it.
struct Watched {
  std::filesystem::path file;
  std::size_t from = 0, length = 1u << 30;
  std::string first = {}, second = {};

  std::string Bytes() const {
    const std::string all = ReadWholeFile(file);
    return all.size() <= from ? "" : all.substr(from, length);
  }
  /// Of one version throughout.
  bool Whole() const {
    const std::string bytes = Bytes();
    if (bytes.empty() && file == DailyFile()) return true;
    if (bytes.size() != second.size()) return false;
    std::bitset<256> versions;
    for (std::size_t k = 0; k < bytes.size(); ++k) {
      const bool tells = first[k] == kFirstVersion && second[k] == kFirstVersion + 1;
      if (tells) versions.set(static_cast<u8>(bytes[k]));
    }
    return versions.count() == 1 && (versions >> kFirstVersion).any();
  }
};

class Crashes : public testing::Test {
 protected:
  void SetUp() override {
    constexpr std::size_t kSlot = kTeamSlotBytes, kBefore = (kTeam - 1) * kSlot;
    watched = {{TeamsFile(), 0, kBefore}, {TeamsFile(), kBefore, kSlot}, {TeamsFile(), kBefore + kSlot}};
    for (const auto& file : {CoachesFile(), PlayersFile(), DailyFile(), RulesFile(), ScheduleFile(),
                             SpareSchedule(), SetupFile()})
      watched.push_back({file});
    ASSERT_TRUE(SaveTables(kFirstVersion) && SaveSlots(kFirstVersion));
    for (Watched& w : watched) w.first = w.Bytes();
    ASSERT_TRUE(SaveTables(kFirstVersion + 1) && SaveSlots(kFirstVersion + 1));
    for (Watched& w : watched) w.second = w.Bytes();
  }

  /// Saves one version after the other until it is killed, at most `longest` microseconds later.
  static void KillASaver(bool (*save)(u8), int longest) {
    const auto pause = static_cast<useconds_t>(Rnd(longest));
    const pid_t saver = ::fork();
    ASSERT_GE(saver, 0);
    if (saver == 0) {
      for (int n = 0; n < 10000; ++n) (void)save(static_cast<u8>(kFirstVersion + n % kVersions));
      ::_exit(0);
    }
    ::usleep(pause);
    ::kill(saver, SIGKILL);
    int state = 0;
    ::waitpid(saver, &state, 0);
    ASSERT_TRUE(WIFSIGNALED(state)) << "it was to be killed while it saves";
  }

  bool UndoIsDue() const {
    return std::any_of(watched.begin(), watched.end(),
                       [](const Watched& w) { return std::filesystem::exists(w.file.string() + ".undo"); });
  }

  TemporaryLeague home;
  std::vector<Watched> watched;
};

TEST_F(Crashes, AKilledSaveLeavesEveryFileOldOrNew) {
  const struct {
    bool (*save)(u8);
    int kills, longest;
  } savers[] = {{SaveSlots, 200, 10000}, {SaveTables, 60, 60000}};
  int cutShort = 0;
  for (const auto& s : savers) {
    for (int n = 1; n <= s.kills; ++n) {
      KillASaver(s.save, s.longest);
      cutShort += UndoIsDue();
      for (const Watched& w : watched) ASSERT_TRUE(w.Whole()) << w.file << " at byte " << w.from;
    }
  }
  EXPECT_FALSE(UndoIsDue()) << "whoever reads a file mends it";
  EXPECT_GT(cutShort, 0) << "no kill struck a save";
}

TEST_F(Crashes, AFullDiskIsToldAndKeepsTheFile) {
  static PlayerRecord man;
  const struct {
    const char* name;
    bool (*save)();
    rlim_t room;
  } cases[] = {
      {"HCTEAMS", SaveAllTeams, 100000},
      {"HCTEAMS", [] { return WriteTeam(kTeam); }, 7000},
      {"HCgameplan", [] { return WriteCoach(kTeam); }, 70000},
      {"HCPLAYER", [] { return man.RecNo = kRosterSlots + 1, WritePlayer(man); }, 46000},
      {"HcDaily", [] { return WriteDaily(kRosterSlots + 1, {}); }, 15000},
      {"HCRULES", SaveRules, 15000},
      {"Sked.skd", SaveSchedule, 200000},
      {"HcSetup2023.dat", [] { return setup = {}, SaveSetup(); }, 4000},
  };
  const auto files = [this] {
    std::string all;
    for (const Watched& w : watched) all += ReadWholeFile(w.file);
    return all;
  };
  for (const auto& c : cases) {
    const std::string before = files();
    platform::ScriptedDialogs dialogs;
    league.team[kTeam].City = "Changed";
    {
      const SmallDisk full(c.room);
      EXPECT_FALSE(c.save()) << c.name;
    }
    EXPECT_EQ(dialogs.told, std::vector<std::string>{std::string(c.name) + " could not be written!"});
    EXPECT_TRUE(files() == before) << c.name;
    EXPECT_FALSE(UndoIsDue()) << c.name;
  }
}

}  // namespace
}  // namespace tipline
