#pragma once
// One team with its men, as roster screens, rating runs and games take it.
#include "base/tables.h"
#include "league/daily.h"
#include "league/league.h"

namespace tipline {

struct Roster {
  int TeamNo = 0;
  TeamRecord team;
  CoachRecord coach;
  Table<PlayerRecord, 0, kRosterSlots> player;  ///< by roster slot; 0 stays empty, an unused slot has RecNo 0
  Table<DailyRecord, 0, kRosterSlots> daily;    ///< the days off of each of them
};

/// The man of a roster slot belongs to the team; an empty slot, or a former member who keeps his, does not.
inline bool OnTeam(const Roster& roster, int slot) {
  return roster.player[slot].RecNo != 0 && roster.player[slot].TeamNo == roster.TeamNo;
}

/// Which records of a roster a repair changed.
struct RosterChanges {
  bool team = false, coach = false;
  Table<bool, 0, kRosterSlots> man;  ///< by the slot he stood at

  bool Any() const;
};

/// Reads a team, its coach, its men and their days off from the league folder, repairs what needs it and
/// writes back, once, what a repair changed; `league.coach` and `league.team` follow. While
/// `league.player` is filled, a man of the team who is on no slot enters the highest free one. False when
/// `teamNo` is outside 1..720, the slot holds no team, or a file that is there can't be read: nothing is then
/// written, and `roster` holds nothing of use.
bool ReadRoster(int teamNo, Roster& roster);

/// The same as the records stand, without repair or write.
bool LookAtRoster(int teamNo, Roster& roster);

/// The repairs of ReadRoster on a roster in memory: removed rows and second entries leave their slots, then
/// team, coach and men in their order, and the defaults that were never made.
RosterChanges RepairRoster(Roster& roster);

/// Writes coach (with what the men carry of the rotation), men (each at its RecNo), team and days off back,
/// in this order; `league.coach` and `league.team` follow. A slot without a man is cleared. False, after
/// telling the user, when a file could not be written; what comes after it is then left alone.
bool WriteRoster(const Roster& roster);

}  // namespace tipline
