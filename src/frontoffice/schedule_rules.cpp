#include "frontoffice/schedule_rules.h"

#include "league/schedule.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

using platform::RefusedWith;

bool EveryTeamHasPool(const TournamentPools& pools) {
  for (int team = 1; team <= kTeams; ++team) {
    if (league.team[team].TeamActive == 1 && pools.PoolOfTeam[team] == 0) return false;
  }
  return true;
}

/// Tournament dates pair teams of one pool or conference, the final those of both. An undecided team may turn
/// out to be any of them.
bool PairingAllowed(const ScheduleChoice& choice, char type, const TournamentPools& pools) {
  if (type == 'R') return true;
  if (!EveryTeamHasPool(pools)) {
    return RefusedWith(
        "All teams in this league must be assigned to a pool before scheduling in-season tournament games.",
        "Invalid Game Setup!");
  }
  if (choice.visitor == kFreeAgent || choice.home == kFreeAgent) return true;
  const bool conference = ConferenceOf(choice.visitor) == ConferenceOf(choice.home);
  if (type == 'P' && pools.PoolOfTeam[choice.visitor] != pools.PoolOfTeam[choice.home]) {
    return RefusedWith("Pool play games must include teams in the same pool.");
  }
  if ((type == 'L' || type == 'Q' || type == 'S') && !conference) {
    return RefusedWith(std::string(GameTypeWords(type)) +
                       " games must include teams in the same conference.");
  }
  if (type == 'C' && conference) {
    return RefusedWith(std::string(GameTypeWords(type)) +
                       " games must include teams from the opposite conferences.");
  }
  return true;
}

/// A second game of a team on one day is the user's to allow in the season; the tournament knows none.
bool DayAllowed(int team, const ScheduleChoice& choice, char type, int except) {
  if (team == kFreeAgent) return true;
  bool plays = false;
  ForScheduledGames([&](const ScheduleRecord& row, int n) {
    plays = plays || (n != except && IsOn(row, choice.month, choice.day) && HasTeam(row, team));
  });
  if (!plays) return true;
  const std::string name = ScheduleTeamName(team);
  if (type != 'R') {
    return RefusedWith(name + " is already schedule for at least one tournament game this day!",
                       "Invalid Team!");
  }
  return platform::dialogs().Ask(name + " is already schedule for at least one game this day!\n" +
                                 "Allow more than one game this day for " + name + "?");
}

bool MeetInPoolPlay(const ScheduleChoice& choice, int except) {
  if (choice.visitor == kFreeAgent || choice.home == kFreeAgent) return false;
  bool meet = false;
  ForScheduledGames([&](const ScheduleRecord& row, int n) {
    meet = meet ||
           (n != except && row.GameType == 'P' && HasTeam(row, choice.visitor) && HasTeam(row, choice.home));
  });
  return meet;
}

}  // namespace

bool ScheduleAllows(const ScheduleChoice& choice, int except) {
  const TournamentPools pools = ReadPools();
  const char type = DateTypeOf(pools, choice.month, choice.day);
  if (!PairingAllowed(choice, type, pools)) return false;
  if (!DayAllowed(choice.visitor, choice, type, except)) return false;
  if (!DayAllowed(choice.home, choice, type, except)) return false;
  if (type == 'P' && MeetInPoolPlay(choice, except)) {
    return RefusedWith("Selected teams are already scheduled for a Pool Play game!", "Invalid Choice!");
  }
  return true;
}

}  // namespace tipline
