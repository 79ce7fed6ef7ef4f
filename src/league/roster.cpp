#include "league/roster.h"

#include <algorithm>
#include <memory>

#include "base/record_file.h"
#include "league/coach_repairs.h"
#include "league/files.h"
#include "league/markers.h"
#include "league/player_repairs.h"
#include "league/saved_rotation.h"
#include "league/team_defaults.h"
#include "league/team_repairs.h"

namespace tipline {
namespace {

using Bytes = std::vector<u8>;

/// The records of a roster as they stand, to see afterwards what a repair changed.
struct RosterBytes {
  Bytes team, coach;
  Table<Bytes, 0, kRosterSlots> man;

  explicit RosterBytes(const Roster& roster)
      : team(RecordBytes(roster.team)), coach(RecordBytes(roster.coach)) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) man[slot] = RecordBytes(roster.player[slot]);
  }
};

void ClearSlot(Roster& roster, int slot) {
  roster.player[slot] = {};
  roster.daily[slot] = {};
  roster.team.Roster[slot] = 0;
}

/// A man stands on one slot, and the row that the slot names is his.
void SortEntries(Roster& roster) {
  auto& entry = roster.team.Roster;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    PlayerRecord& man = roster.player[slot];
    const bool again =
        std::find(entry.begin(), entry.begin() + slot - 1, entry[slot]) != entry.begin() + slot - 1;
    if (entry[slot] < 1 || man.RecNo == 0 || man.TeamNo == 0 || again) {
      if (entry[slot] != 0) ClearSlot(roster, slot);
    } else {
      man.RecNo = entry[slot];  // a wrong number in the row would later be written over another man
    }
  }
}

/// A man of the team who is on no slot enters the highest free one.
void EnterMissingMen(Roster& roster) {
  auto& entry = roster.team.Roster;
  const std::size_t end = std::min<std::size_t>(league.player.size(), 32768);  // entries name no row behind
  for (std::size_t row = 1; row < end; ++row) {
    if (league.player[row].TeamNo != roster.TeamNo) continue;
    const auto number = static_cast<i16>(row);
    if (std::find(entry.begin(), entry.end(), number) != entry.end()) continue;
    int slot = kRosterSlots;
    while (slot > 0 && entry[slot] != 0) --slot;
    if (slot == 0) return;
    PlayerRecord man;
    DailyRecord daily;
    if (!ReadPlayer(number, man) || !ReadDaily(number, daily)) return;
    if (man.TeamNo != roster.TeamNo || man.RecNo == 0) continue;  // the file has moved on
    entry[slot] = man.RecNo = number;
    roster.player[slot] = man;
    roster.daily[slot] = daily;
  }
}

void RepairMen(Roster& roster) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (roster.player[slot].RecNo != 0) RepairPlayer(roster.player[slot], roster.team);
  }
}

/// What coach and front office work out where nobody has yet.
void MakeDefaults(Roster& roster) {
  TeamRecord& team = roster.team;
  if (TakeMark(team.DurabilityMark, 99) && team.TeamType == 'C') DeriveDurability(roster);
  const bool plans = DefaultPlans(roster);
  const bool charts = TakeMark(team.RotationMark, 2);
  const bool lineups = TakeMark(team.RotationMark2, 99);
  if (charts) DefaultDepthCharts(roster);
  if (lineups) DefaultSpecialLineups(roster);
  if (plans || charts || lineups) CopyRotationToCoach(roster);
}

RosterChanges Compare(const RosterBytes& before, const Roster& roster) {
  RosterChanges changes;
  changes.team = RecordBytes(roster.team) != before.team;
  changes.coach = RecordBytes(roster.coach) != before.coach;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    changes.man[slot] = roster.player[slot].RecNo > 0 && RecordBytes(roster.player[slot]) != before.man[slot];
  }
  return changes;
}

/// Writes the men of the slots that pick(slot) names, in one step.
template <class Pick>
bool WriteMen(const Roster& roster, Pick pick) {
  const RecordFile file(PlayersFile(), kPlayerSlotBytes);
  RecordFile::Slots men;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    const PlayerRecord& man = roster.player[slot];
    if (man.RecNo > 0 && pick(slot)) men.emplace_back(man.RecNo, RecordBytes(man));
  }
  return Written(file.WriteSlots(men), file.Path());
}

/// A row that holds nobody is written as such before it leaves its slot. False when a write failed.
bool RemoveNobodies(Roster& roster, RosterChanges& changes) {
  const auto isNobody = [&roster](int slot) {
    return roster.player[slot].RecNo != 0 && roster.player[slot].TeamNo == 0;
  };
  if (!WriteMen(roster, isNobody)) return false;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!isNobody(slot)) continue;
    ClearSlot(roster, slot);
    changes.team = true;
    changes.man[slot] = false;
  }
  return true;
}

void WriteChanges(Roster& roster, RosterChanges changes) {
  if (!RemoveNobodies(roster, changes)) return;
  if (changes.coach) {
    league.coach[roster.TeamNo] = roster.coach;
    if (!WriteCoach(roster.TeamNo)) return;
  }
  if (!WriteMen(roster, [&changes](int slot) { return changes.man[slot]; })) return;
  if (!changes.team) return;
  league.team[roster.TeamNo] = roster.team;
  WriteTeam(roster.TeamNo);
}

bool WriteCoachOf(const Roster& roster) {
  const RecordFile file(CoachesFile(), kCoachSlotBytes);
  CoachRecord coach = roster.coach;
  CopyRotationToCoach(roster, coach);
  coach.TeamNo = static_cast<i16>(roster.TeamNo);
  if (!Written(file.Write(roster.TeamNo, coach), file.Path())) return false;
  league.coach[roster.TeamNo] = coach;
  return true;
}

bool WriteTeamOf(const Roster& roster) {
  const RecordFile file(TeamsFile(), kTeamSlotBytes);
  TeamRecord team = roster.team;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (roster.player[slot].RecNo < 1) team.Roster[slot] = 0;
  }
  if (!Written(file.Write(roster.TeamNo, team), file.Path())) return false;
  league.team[roster.TeamNo] = team;
  return true;
}

bool WriteDaysOff(const Roster& roster) {
  const RecordFile file(DailyFile(), kDailySlotBytes);
  RecordFile::Slots lists;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    const int recNo = roster.player[slot].RecNo;
    if (OnTeam(roster, slot) && recNo >= 1) lists.emplace_back(recNo, RecordBytes(roster.daily[slot]));
  }
  return Written(file.WriteSlots(lists), file.Path());
}

}  // namespace

bool RosterChanges::Any() const {
  return team || coach || std::find(man.begin(), man.end(), true) != man.end();
}

bool LookAtRoster(int teamNo, Roster& roster) {
  const RecordFile teams(TeamsFile(), kTeamSlotBytes);
  const RecordFile coaches(CoachesFile(), kCoachSlotBytes);
  if (teamNo < 1 || teamNo > kTeams) return false;
  TeamRecord team;
  if (!teams.Read(teamNo, team) || team.TeamActive != 1) return false;
  roster = Roster{};
  roster.TeamNo = teamNo;
  roster.team = team;
  std::vector<int> rows(1);
  rows.insert(rows.end(), team.Roster.begin(), team.Roster.end());
  return coaches.Read(teamNo, roster.coach) && ReadPlayers(rows, roster.player.cells_) &&
         ReadDailies(rows, roster.daily.cells_);
}

RosterChanges RepairRoster(Roster& roster) {
  const RosterBytes before(roster);
  SortEntries(roster);
  EnterMissingMen(roster);
  RepairTeam(roster.team, roster.coach);
  RepairCoach(roster.coach, roster.team);
  RepairMen(roster);
  MakeDefaults(roster);
  return Compare(before, roster);
}

bool ReadRoster(int teamNo, Roster& roster) {
  if (!LookAtRoster(teamNo, roster)) return false;
  const RosterChanges changes = RepairRoster(roster);
  if (changes.Any()) WriteChanges(roster, changes);
  return true;
}

bool WriteRoster(const Roster& roster) {
  if (roster.TeamNo < 1 || roster.TeamNo > kTeams) return false;
  return WriteCoachOf(roster) && WriteMen(roster, [](int) { return true; }) && WriteTeamOf(roster) &&
         WriteDaysOff(roster);
}

}  // namespace tipline
