// A league's files against each other, and against what an opening would make of them.
#include <algorithm>

#include "base/calendar.h"
#include "base/record_file.h"
#include "league/daily.h"
#include "league/files.h"
#include "league/league_check.h"
#include "league/league_reset.h"
#include "league/program.h"
#include "league/roster.h"
#include "league/rules.h"
#include "league/schedule.h"
#include "league/team_repairs.h"

namespace tipline {
namespace {

namespace fs = std::filesystem;

std::string Count(int n, const char* one, const char* many) {
  return std::to_string(n) + (n == 1 ? one : many);
}

class Doctor {
 public:
  std::vector<std::string> Examine() {
    ReadRaw();
    Lengths();
    Rules();
    for (int team = 1; team <= kTeams; ++team) {
      if (league.team[team].TeamActive == 1) Team(team);
    }
    Homeless();
    Schedule();
    DaysOff();
    return std::move(found_);
  }

 private:
  void Say(std::string sentence) { found_.push_back(std::move(sentence)); }

  /// A file is long enough when it reaches to the last team; what it never held reads as nothing.
  void Lengths() {
    int last = 1;
    for (int team = 1; team <= kTeams; ++team) {
      if (league.team[team].TeamActive == 1) last = team;
    }
    const struct {
      const char* name;
      int least;  // bytes; 0: the file may be missing
      int slot;   // 0: the file may end anywhere behind that
    } files[] = {{"HCTEAMS", last * kTeamSlotBytes, kTeamSlotBytes},
                 {"HCPLAYER", kPlayerSlotBytes, kPlayerSlotBytes},
                 {"HCgameplan", (last - 1) * kCoachSlotBytes + CoachRecord::kRecordSize, 0},
                 {"HCRULES", RulesRecord::kRecordSize, 0},
                 {"HcDaily", 0, kDailySlotBytes},
                 {"SCORES", 0, kScheduleSlotBytes}};
    for (const auto& f : files) {
      Length(LeagueFile(f.name), f.least, f.slot);
    }
  }

  void Length(const fs::path& path, int least, int slot) {
    const std::string name = path.filename().string();
    const RecordFile file(path, 1);
    std::error_code error;
    const bool there = file.Exists();
    if (!there && (least > 0 || fs::exists(path, error))) return Say(name + " is missing.");
    if (!there) return;
    const auto size = file.Bytes();
    if (size < least) {
      Say(name + " has " + std::to_string(size) + " bytes, whole it has at least " + std::to_string(least) +
          ".");
    }
    if (slot > 0 && size % slot != 0)
      Say(name + " ends within a record of " + std::to_string(slot) + " bytes.");
  }

  void ReadRaw() {
    RecordFile(TeamsFile(), kTeamSlotBytes).ReadAll(kTeams, [](int n, const u8* bytes) {
      ReadRecord(bytes, league.team[n]);
    });
    std::vector<u8> slots(2 * kRulesSlotBytes);
    RecordFile(RulesFile(), kRulesSlotBytes).ReadAll(2, [&slots](int n, const u8* bytes) {
      std::copy_n(bytes, kRulesSlotBytes, slots.begin() + std::ptrdiff_t{n - 1} * kRulesSlotBytes);
    });
    ReadRecord(slots.data(), league.rules);
    league.tournamentPools.assign(slots.begin() + kRulesSlotBytes, slots.end());
    LoadLeaguePlayers();
    onRoster_.assign(league.player.size(), 0);
  }

  void Rules() {
    if (!RulesMakeSense(league.rules)) Say("HCRULES holds rules outside their lists.");
    const TeamRecord& first = league.team[1];
    if (RepairRules(first.Year, first.TeamType.bytes[0])) Say("An opening would repair the rules.");
    if (league.rules.CleanMark != kCleaned)
      Say("An opening would clean the folder: rows of men who stand on no roster, or twice, go.");
  }

  void Team(int teamNo) {
    const std::string name = "Team " + std::to_string(teamNo) + " " + league.team[teamNo].City.Str();
    Roster roster;
    if (!LookAtRoster(teamNo, roster)) return;
    Entries(roster, name);
    const int plans = roster.coach.TeamNo;
    if (plans != 0 && plans != teamNo)
      Say(name + ": its game plan is that of team " + std::to_string(plans) + ".");
    const std::vector<u8> stands = RecordBytes(roster.team);
    RepairTeamAtOpening(roster.team);
    RepairSlot(roster.team);
    const bool opening = RecordBytes(roster.team) != stands;
    TellRepairs(RepairRoster(roster), opening, name);
  }

  void TellRepairs(const RosterChanges& changes, bool opening, const std::string& name) {
    std::vector<std::string> what;
    if (changes.team || opening) what.push_back("the team");
    if (changes.coach) what.push_back("its game plan");
    const auto men = static_cast<int>(std::count(changes.man.begin(), changes.man.end(), true));
    if (men > 0) what.push_back(Count(men, " man", " men"));
    if (what.empty()) return;
    std::string list = what[0];
    for (std::size_t k = 1; k < what.size(); ++k) list += (k + 1 == what.size() ? " and " : ", ") + what[k];
    Say(name + ": its load would repair " + list + ".");
  }

  /// What the roster names, and what stands there.
  void Entries(const Roster& roster, const std::string& name) {
    int missing = 0;
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      const int row = roster.team.Roster[slot];
      if (row == 0) continue;
      if (row < 1 || row >= static_cast<int>(league.player.size())) {
        ++missing;
      } else {
        Entry(roster, slot, name + ": slot " + std::to_string(slot) + " names row " + std::to_string(row));
      }
    }
    if (missing > 0) {
      Say(name + ": " + Count(missing, " slot names a row", " slots name rows") +
          " that HCPLAYER does not have.");
    }
  }

  void Entry(const Roster& roster, int slot, const std::string& where) {
    const int row = roster.team.Roster[slot];
    const PlayerRecord& man = roster.player[slot];
    char& taken = onRoster_[static_cast<std::size_t>(row)];
    if (taken) Say(where + ", which stands on a roster already.");
    taken = 1;
    if (man.RecNo != row) Say(where + ", which calls itself " + std::to_string(man.RecNo) + ".");
    if (man.TeamNo != roster.TeamNo && man.TeamNo != roster.TeamNo + kFormerMember) {
      Say(where + ", a man of team " + std::to_string(man.TeamNo) + ".");
    }
  }

  void Homeless() {
    int men = 0;
    for (std::size_t row = 1; row < league.player.size(); ++row) {
      const int team = league.player[row].TeamNo;
      if (team >= 1 && team <= kTeams && league.team[team].TeamActive == 1 && !onRoster_[row]) ++men;
    }
    if (men > 0)
      Say(Count(men, " man says he is of a team whose roster", " men say they are of teams whose rosters") +
          (men == 1 ? " does not name him." : " do not name them."));
  }

  void Schedule() {
    const auto file = ScheduleFile();
    Length(file, 0, kScheduleSlotBytes);
    int strangers = 0, undated = 0;
    const RecordFile rows(file, kScheduleSlotBytes);
    rows.ReadAll(std::min(rows.Count(), kMostScheduleRows), [&](int, const u8* bytes) {
      ScheduleRecord row;
      ReadRecord(bytes, row);
      TakeLegacyTeams(row);
      if (row.Status == 'D') return;
      const int days = row.Month >= 1 && row.Month <= 12 ? ScheduleDays(row.Month) : 0;
      if (row.Day < 1 || row.Day > days) ++undated;
      if (!HasPlace(row.Team[1]) || !HasPlace(row.Team[2])) ++strangers;
    });
    const std::string name = file.filename().string();
    if (undated > 0) Say(name + ": " + Count(undated, " game has", " games have") + " no date.");
    if (strangers > 0)
      Say(name + ": " + Count(strangers, " game names", " games name") + " a team that is not there.");
  }

  static bool HasPlace(int team) {
    return team == kFreeAgent || (team >= 1 && team <= kTeams && league.team[team].TeamActive == 1);
  }

  void DaysOff() {
    int bad = 0;
    const RecordFile file(DailyFile(), kDailySlotBytes);
    file.ReadAll(std::min(file.Count(), 32767), [&bad](int, const u8* bytes) {
      DailyRecord daily;
      ReadRecord(bytes, daily);
      if (daily.DailyMark != DailyRecord::kSetMark) return;
      bad += std::any_of(daily.InactiveDates.begin() + 1, daily.InactiveDates.end(), [](i16 date) {
        return date != 0 && (date < 101 || date / 100 > 12 || date % 100 < 1 || date % 100 > 31);
      });
    });
    if (bad > 0) Say("HcDaily: " + Count(bad, " man has", " men have") + " days off that are no dates.");
  }

  std::vector<std::string> found_;
  std::vector<char> onRoster_;  ///< by row
};

}  // namespace

std::vector<std::string> LeagueFindings(const fs::path& folder) {
  program.LeagueFolder = folder;
  return Doctor().Examine();
}

}  // namespace tipline
