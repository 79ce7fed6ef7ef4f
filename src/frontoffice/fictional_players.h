#pragma once
// The screen that fills a league, or one team, with made-up players.
#include <string>

#include "base/tables.h"
#include "frontoffice/made_up_player.h"
#include "league/league.h"

namespace tipline {

/// What the active teams hold, by team and position: minutes there (`TeamNeed`) and men (`TeamCount`).
struct TeamNeeds {
  Table2<double, 0, kTeams, 0, 5> TeamNeed{};
  Table<int, 0, kTeams> TeamCount{};

  /// His minutes at his first position (three quarters) and, when `others`, at his other ones (the rest).
  void Count(int team, const PlayerRecord& player, bool others);
  /// The team that lacks a man at the position most, among those with fewer than `most` men; 999 for none.
  int NeediestTeam(int position, int most) const;
};

/// Counts the rosters of all active teams of `league`, reading their files.
TeamNeeds CountTeamNeeds();

/// Lowest slot that is empty or holds a man who is neither on the team nor was in this season; 0 for none.
/// `player` gives the men by roster slot.
int FindFreeSlot(const TeamRecord& team, int teamNo, const Table<PlayerRecord, 0, kRosterSlots>& player);

struct HcCreateFictionalPlayer {
  int FictionQuantity = 1;
  int FictionMaxPerTeam = 15;
  int FictionYear = 2022;
  int FictionPosition = -1;      ///< 0 mixed, 1 to 5, below 0 not chosen
  int FictionQuality = -1;       ///< as FictionQuality, below 0 not chosen
  int FictionTeam = kFreeAgent;  ///< from the roster screen: the team, or 999 for the pool
  bool LeagueWide = false;       ///< from the tools: every man goes to the team that needs him most

  int Created = 0, Assigned = 0;  ///< of the last run

  /// Text of the command.
  std::string Caption() const;
  /// Checks the request and makes the players: each goes to the end of HCPLAYER, and into his team's roster.
  /// False, after its message, when the request is refused or a file can't be written.
  bool CreateCommand();

 private:
  bool Refused() const;
  bool CreateFictionalPlayers();
  int MixedPosition(int i) const;
  bool AddPlayer(const FictionFiles& names, int position, int teamNo, TeamNeeds& needs);
  void Report() const;
};

}  // namespace tipline
