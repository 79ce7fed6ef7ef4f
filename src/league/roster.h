#pragma once
// One team with its men, as roster screens, rating runs and games take it.
#include "base/tables.h"
#include "league/league.h"

namespace tipline {

struct Roster {
  int TeamNo = 0;
  TeamRecord team;
  CoachRecord coach;
  Table<PlayerRecord, 0, kRosterSlots> player;  ///< by roster slot; 0 stays empty, an unused slot has RecNo 0
};

/// The man of a roster slot belongs to the team; an empty slot, or a former member who keeps his, does not.
inline bool OnTeam(const Roster& roster, int slot) {
  return roster.player[slot].RecNo != 0 && roster.player[slot].TeamNo == roster.TeamNo;
}

/// Reads a team, its coach and its men from the league folder. Roster slots that point at a removed row are
/// cleared in the copy. False when `teamNo` is outside 1..720 or the slot holds no team.
bool ReadRoster(int teamNo, Roster& roster);

/// Writes coach, men (each at its RecNo) and team back, in this order; `league.coach` and `league.team`
/// follow. A slot without a man is cleared. False, after telling the user, when a file could not be written;
/// what comes after it is then left alone.
bool WriteRoster(const Roster& roster);

}  // namespace tipline
