#include "frontoffice/fictional_players.h"

#include "frontoffice/rating_math.h"
#include "league/files.h"
#include "league/roster.h"
#include "platform/dialogs.h"

#include <limits>

namespace tipline {
namespace {

constexpr std::size_t kFewestLastNames = 10;
constexpr int kMostAtOnce = 5000;
constexpr std::string_view kInvalid = "Invalid Choice!";

bool HasTeam(int teamNo) { return teamNo >= 1 && teamNo <= kTeams; }

int FreeSlots(const Roster& roster) {
  Roster copy = roster;
  int free = 0;
  for (int slot = FindFreeSlot(copy.team, copy.TeamNo, copy.player); slot;
       slot = FindFreeSlot(copy.team, copy.TeamNo, copy.player)) {
    copy.team.Roster[slot] = 1;
    copy.player[slot].TeamNo = static_cast<i16>(copy.TeamNo);
    ++free;
  }
  return free;
}

/// The league's letters for a man without a team.
TeamRecord PoolTeam() {
  TeamRecord pool;
  pool.TeamType = league.team[1].TeamType.View();
  pool.TeamSex = league.team[1].TeamSex.View();
  pool.ScheduleStrength = league.team[1].ScheduleStrength;
  return pool;
}

}  // namespace

void TeamNeeds::Count(int team, const PlayerRecord& player, bool others) {
  ++TeamCount[team];
  const double minutes = player.Stats[1].Min;
  const auto add = [&](int position, double part) {
    if (position >= 1 && position <= 5) TeamNeed[team][position] += minutes * part;
  };
  add(player.PrimaryPosition, 0.75);
  if (!others) return;
  const bool both = player.SecondaryPosition && player.SpotPosition;
  add(player.SecondaryPosition, both ? 0.125 : 0.25);
  add(player.SpotPosition, both ? 0.125 : 0.25);
}

int TeamNeeds::NeediestTeam(int position, int most) const {
  int best = kFreeAgent;
  double lowest = 99999999;
  for (int t = 1; t <= kTeams; ++t) {
    if (league.team[t].TeamActive != 1 || TeamCount[t] >= most) continue;
    const double need = position >= 1 && position <= 5 ? 100 * TeamNeed[t][position] : 0;
    if (need + TeamCount[t] < lowest) {
      lowest = need + TeamCount[t];
      best = t;
    }
  }
  return best;
}

TeamNeeds CountTeamNeeds() {
  TeamNeeds needs;
  for (int t = 1; t <= kTeams; ++t) {
    Roster roster;
    if (league.team[t].TeamActive != 1 || !ReadRoster(t, roster)) continue;
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      const PlayerRecord& player = roster.player[slot];
      if (player.RecNo > 0 && player.TeamNo == t) needs.Count(t, player, true);
    }
  }
  return needs;
}

int FindFreeSlot(const TeamRecord& team, int teamNo, const Table<PlayerRecord, 0, kRosterSlots>& player) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (team.Roster[slot] == 0) return slot;
    const PlayerRecord& man = player[slot];
    const bool played = man.TeamNo == teamNo + kFormerMember && man.Stats[2].G > 0;
    if (man.TeamNo != teamNo && !played) return slot;
  }
  return 0;
}

std::string HcCreateFictionalPlayer::Caption() const {
  if (FictionQuantity < 1) return "Create Players";
  return FictionQuantity == 1 ? "Create Player" : "Create " + std::to_string(FictionQuantity);
}

bool HcCreateFictionalPlayer::Refused() const {
  const auto tell = [](const std::string& message) {
    platform::dialogs().Tell(message, kInvalid);
    return true;
  };
  if (FictionPosition < 0 || FictionPosition > 5) return tell("Please Select A Position!");
  if (FictionQuality < 0 || FictionQuality > 3) return tell("Please Select A Player Quality!");
  if (FictionQuantity < 1) return tell("Select A Quantity Of Players To Create!");
  if (FictionQuantity > kMostAtOnce) return tell("The Maximum Quantity Of Players To Create Is 5000!");
  Roster roster;
  if (LeagueWide || !HasTeam(FictionTeam) || !ReadRoster(FictionTeam, roster)) return false;
  const int free = FreeSlots(roster);
  if (FictionQuantity <= free) return false;
  return tell("A Maximum Of " + std::to_string(free) + " Players May Be Created For " +
              roster.team.City.Str() + "!");
}

bool HcCreateFictionalPlayer::CreateCommand() { return !Refused() && CreateFictionalPlayers(); }

/// The positions spread evenly over the run.
int HcCreateFictionalPlayer::MixedPosition(int i) const {
  const double part = static_cast<double>(i) / FictionQuantity;
  return part <= 0.2 ? 1 : part <= 0.4 ? 2 : part <= 0.6 ? 3 : part <= 0.8 ? 4 : 5;
}

bool HcCreateFictionalPlayer::CreateFictionalPlayers() {
  Created = Assigned = 0;
  const FictionFiles names = LoadFictionFiles();
  if (names.Last.size() < kFewestLastNames) {
    return platform::RefusedWith("Missing ORV Fiction Data Files!");
  }
  TeamNeeds needs = LeagueWide ? CountTeamNeeds() : TeamNeeds{};
  for (int i = 1; i <= FictionQuantity; ++i) {
    const int position = FictionPosition == 0 ? MixedPosition(i) : FictionPosition;
    const int team = LeagueWide ? needs.NeediestTeam(position, FictionMaxPerTeam) : FictionTeam;
    if (!AddPlayer(names, position, team, needs)) return false;
  }
  Report();
  return true;
}

bool HcCreateFictionalPlayer::AddPlayer(const FictionFiles& names, int position, int teamNo,
                                        TeamNeeds& needs) {
  Roster roster;
  int slot = 0;
  if (HasTeam(teamNo) && ReadRoster(teamNo, roster)) {
    slot = FindFreeSlot(roster.team, teamNo, roster.player);
  }
  FictionOrder order;
  order.Position = position;
  order.Quality = static_cast<tipline::FictionQuality>(FictionQuality);
  order.Year = slot ? roster.team.Year : FictionYear;
  order.TeamNo = slot ? teamNo : kFreeAgent;
  PlayerRecord player = CreateOnePlayer(order, names, slot ? roster.team : PoolTeam());
  const int row = PlayerRows() + 1;
  if (row > std::numeric_limits<i16>::max()) {
    return platform::RefusedWith("The player file is full!");
  }
  player.RecNo = static_cast<i16>(row);
  if (!WritePlayer(player)) return false;
  ++Created;
  if (HasTeam(teamNo)) needs.Count(teamNo, player, false);
  if (!slot) return true;
  league.team[teamNo].Roster[slot] = player.RecNo;
  ++Assigned;
  return WriteTeam(teamNo);
}

void HcCreateFictionalPlayer::Report() const {
  const std::string created = std::to_string(Created);
  if (!LeagueWide) {
    platform::dialogs().Tell(created + " Players Created!");
    return;
  }
  platform::dialogs().Tell(" Players Created: " + created + "\nAssigned To Teams: " +
                           std::to_string(Assigned) + "\nFree Agents: " + std::to_string(Created - Assigned));
}

}  // namespace tipline
