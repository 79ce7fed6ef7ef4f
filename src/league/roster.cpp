#include "league/roster.h"

#include "base/record_file.h"
#include "league/files.h"
#include "league/saved_rotation.h"

namespace tipline {
namespace {

/// A man reads at the record that the roster names; one who is no more leaves his slot.
void ReadMan(const RecordFile& players, i16& entry, PlayerRecord& man) {
  players.Read(entry, man);
  if (man.RecNo == 0 || man.TeamNo == 0) {
    man = {};
    entry = 0;
    return;
  }
  man.RecNo = entry;  // a wrong number in the row would later be written over another man
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

bool WriteMen(const Roster& roster) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (roster.player[slot].RecNo > 0 && !WritePlayer(roster.player[slot])) return false;
  }
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
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(roster, slot) || roster.player[slot].RecNo < 1) continue;
    if (!WriteDaily(roster.player[slot].RecNo, roster.daily[slot])) return false;
  }
  return true;
}

}  // namespace

bool ReadRoster(int teamNo, Roster& roster) {
  const RecordFile teams(TeamsFile(), kTeamSlotBytes);
  const RecordFile players(PlayersFile(), kPlayerSlotBytes);
  const RecordFile coaches(CoachesFile(), kCoachSlotBytes);
  if (teamNo < 1 || teamNo > kTeams) return false;
  TeamRecord team;
  teams.Read(teamNo, team);
  if (team.TeamActive != 1) return false;
  roster = Roster{};
  roster.TeamNo = teamNo;
  roster.team = team;
  coaches.Read(teamNo, roster.coach);
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (team.Roster[slot] > 0) ReadMan(players, roster.team.Roster[slot], roster.player[slot]);
    ReadDaily(roster.player[slot].RecNo, roster.daily[slot]);
  }
  return true;
}

bool WriteRoster(const Roster& roster) {
  if (roster.TeamNo < 1 || roster.TeamNo > kTeams) return false;
  return WriteCoachOf(roster) && WriteMen(roster) && WriteTeamOf(roster) && WriteDaysOff(roster);
}

}  // namespace tipline
