// Saves that are cut short: by a kill at any moment, by a full disk. A file is as before or as after.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

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

bool WriteAMan() {
  PlayerRecord man;
  man.RecNo = kRosterSlots + 1;
  return WritePlayer(man);
}

/// One file, or a team's slot in it, and which of its bytes tell the version.
struct Watched {
  std::filesystem::path file;
  std::size_t from, length;
  bool mayBeMissing = false;
  std::string first = {}, tells = {};

  std::string Bytes() const {
    const std::string all = ReadWholeFile(file);
    return all.size() <= from ? "" : all.substr(from, length);
  }
  /// Two versions on disk, one after the other, show which bytes those are.
  void Learn() {
    tells = Bytes();
    for (std::size_t k = 0; k < tells.size(); ++k) {
      tells[k] = static_cast<u8>(first[k]) == kFirstVersion && static_cast<u8>(tells[k]) == kFirstVersion + 1;
    }
  }
  /// Of one version throughout.
  bool Whole() const {
    const std::string bytes = Bytes();
    if (bytes.empty() && mayBeMissing) return true;
    if (bytes.size() != tells.size()) return false;
    int version = -1;
    for (std::size_t k = 0; k < bytes.size(); ++k) {
      if (!tells[k]) continue;
      if (version >= 0 && static_cast<u8>(bytes[k]) != version) return false;
      version = static_cast<u8>(bytes[k]);
    }
    return version >= kFirstVersion;
  }
};

class Crashes : public testing::Test {
 protected:
  void SetUp() override {
    constexpr std::size_t kSlot = kTeamSlotBytes, kBefore = (kTeam - 1) * kSlot, kAll = 1u << 30;
    watched = {{TeamsFile(), 0, kBefore}, {TeamsFile(), kBefore, kSlot}, {TeamsFile(), kBefore + kSlot, kAll},
               {CoachesFile(), 0, kAll},  {PlayersFile(), 0, kAll},      {DailyFile(), 0, kAll, true},
               {RulesFile(), 0, kAll},    {ScheduleFile(), 0, kAll},     {SpareSchedule(), 0, kAll},
               {SetupFile(), 0, kAll}};
    ASSERT_TRUE(SaveTables(kFirstVersion) && SaveSlots(kFirstVersion));
    for (Watched& w : watched) w.first = w.Bytes();
    ASSERT_TRUE(SaveTables(kFirstVersion + 1) && SaveSlots(kFirstVersion + 1));
    for (Watched& w : watched) {
      w.Learn();
      ASSERT_GT(std::count(w.tells.begin(), w.tells.end(), 1), 1000) << w.file;
    }
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
  const struct {
    const char* name;
    bool (*save)();
    rlim_t room;
  } cases[] = {
      {"HCTEAMS", SaveAllTeams, 100000},
      {"HCTEAMS", [] { return WriteTeam(kTeam); }, 7000},
      {"HCgameplan", [] { return WriteCoach(kTeam); }, 70000},
      {"HCPLAYER", WriteAMan, 46000},
      {"HcDaily", [] { return WriteDaily(kRosterSlots + 1, {}); }, 15000},
      {"HCRULES", SaveRules, 15000},
      {"Sked.skd", SaveSchedule, 200000},
      {"HcSetup2023.dat", [] { return setup = {}, SaveSetup(); }, 4000},
  };
  for (const auto& c : cases) {
    std::vector<std::string> before;
    for (const Watched& w : watched) before.push_back(ReadWholeFile(w.file));
    platform::ScriptedDialogs dialogs;
    bool saved = true;
    {
      const SmallDisk full(c.room);
      league.team[kTeam].City = "Changed";
      saved = c.save();
    }
    EXPECT_FALSE(saved) << c.name;
    EXPECT_EQ(dialogs.told, std::vector<std::string>{std::string(c.name) + " could not be written!"});
    for (std::size_t k = 0; k < watched.size(); ++k)
      EXPECT_TRUE(ReadWholeFile(watched[k].file) == before[k]) << c.name << ": " << watched[k].file;
    EXPECT_FALSE(UndoIsDue()) << c.name;
  }
}

}  // namespace
}  // namespace tipline
