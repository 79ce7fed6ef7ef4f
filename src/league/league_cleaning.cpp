// Rows of HCPLAYER that serve no more purpose.
#include "base/record_file.h"
#include "league/files.h"
#include "league/league_reset.h"
#include "league/roster.h"
#include "league/rules.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

using InUse = std::vector<char>;

bool AreTwins(const PlayerRecord& a, const PlayerRecord& b) {
  const StatLine& x = a.Stats[1];
  const StatLine& y = b.Stats[1];
  return a.FirstName == b.FirstName && a.LastName == b.LastName && x.G == y.G && x.Min == y.Min &&
         x.FGA == y.FGA && x.FTA == y.FTA && x.Reb == y.Reb;
}

void Drop(Roster& roster, int slot, InUse& inUse) {
  inUse[static_cast<std::size_t>(roster.team.Roster[slot])] = 0;
  roster.team.Roster[slot] = 0;
  roster.player[slot] = {};
}

/// True when a twin was dropped.
bool DropTwins(Roster& roster, InUse& inUse) {
  bool dropped = false;
  const auto stands = [&roster](int slot) { return roster.player[slot].RecNo > 0; };
  for (int i = 1; i <= kRosterSlots; ++i) {
    for (int j = i + 1; j <= kRosterSlots && stands(i); ++j) {
      if (!stands(j) || !AreTwins(roster.player[i], roster.player[j])) continue;
      const bool first = roster.player[i].Stats[2].G != 0, second = roster.player[j].Stats[2].G != 0;
      if (first && second) continue;
      Drop(roster, second ? i : j, inUse);
      dropped = true;
    }
  }
  return dropped;
}

bool CleanTeam(int teamNo, InUse& inUse) {
  Roster roster;
  if (!ReadRoster(teamNo, roster)) {  // his men must not be taken for nobody's
    return platform::RefusedWith("The roster of " + TeamName(league.team[teamNo]) + " could not be read!");
  }
  for (const i16 row : roster.team.Roster) {
    if (row > 0 && static_cast<std::size_t>(row) < inUse.size()) inUse[static_cast<std::size_t>(row)] = 1;
  }
  return !DropTwins(roster, inUse) || WriteRoster(roster);
}

bool EmptyUnusedRows(const InUse& inUse) {
  const RecordFile file(PlayersFile(), kPlayerSlotBytes);
  if (!file.Exists()) return true;
  const bool written = file.RewriteAll(0, [&inUse](int row, u8* bytes) {
    if (static_cast<std::size_t>(row) >= inUse.size() || inUse[static_cast<std::size_t>(row)]) return;
    PlayerRecord player;
    ReadRecord(bytes, player);
    if (player.TeamNo == kFreeAgent) return;
    player.TeamNo = 0;
    player.FirstName = "";
    player.LastName = "";
    WriteRecord(player, bytes);
  });
  return Written(written, file.Path());
}

}  // namespace

bool CleanLeagueFolderRoutine() {
  LoadLeaguePlayers();  // men whom no roster names are entered in their team's before the rows are looked at
  InUse inUse(static_cast<std::size_t>(PlayerRows()) + 1);
  for (int team = 1; team <= kTeams; ++team) {
    if (league.team[team].TeamActive == 1 && !CleanTeam(team, inUse)) return false;
  }
  if (!EmptyUnusedRows(inUse)) return false;
  LoadLeaguePlayers();
  return true;
}

bool CleanUnmarkedFolder() {
  if (league.rules.CleanMark == kCleaned) return true;
  if (!CleanLeagueFolderRoutine()) return false;
  league.rules.CleanMark = kCleaned;
  return SaveRules();
}

bool CleanLeagueFolder() {
  auto& dialogs = platform::dialogs();
  if (!dialogs.Ask("Clean folder by removing duplicate or damaged player data?")) return false;
  if (!CleanLeagueFolderRoutine()) return false;
  dialogs.Tell("League Folder Cleaned!");
  return true;
}

}  // namespace tipline
