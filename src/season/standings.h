#pragma once
// The standings: who leads each division or conference, in what order, with what records.
#include <string>
#include <vector>

#include "league/league.h"

namespace tipline {

/// Teams that are ranked together, the leader first.
struct StandingsGroup {
  std::string heading;
  std::vector<int> teams;
};

struct Standings {
  BigTable<double, 1, kTeams> StandingsKey{};
  std::vector<int> StandingsOrder;     ///< all active teams, the best first
  std::vector<StandingsGroup> groups;  ///< by division, or by conference in a pro league that is set so
  bool byConferenceRecord = false;     ///< a college league that is ordered by the games of the conference
};

/// A college league plays two halves.
bool IsCollegeLeague();
/// Of the team (1) or its opponents (2); 0 before the first game.
double PointsPerGame(const TeamRecord& team, int whose);

/// Wins and losses.
struct WinLoss {
  int wins = 0, losses = 0;
};
/// The record that orders the table: of all games, or of the conference's own.
WinLoss OrderingRecord(const Standings& standings, const TeamRecord& team);
/// On the road: what is left of all games without those at home and on neutral courts.
WinLoss RoadRecord(const TeamRecord& team);
/// "W3", "L1"; empty before the first game.
std::string StreakText(const TeamRecord& team);
/// Of the last ten games: "7-3".
std::string LastTenText(const TeamRecord& team);
/// City or nickname, by the user's choice.
std::string StandingsName(const TeamRecord& team);
/// Games behind the leader of the group: "0.5", "-" for himself.
std::string GamesBehind(const Standings& standings, const StandingsGroup& group, int team);

/// Orders the active teams of `league.team` by the rule `StandingsOption`: share of wins, then more wins, or
/// among teams without one fewer losses; who is still tied keeps the order of the slots as far as the sort
/// leaves it. A team without games gets its counters of places, divisions and streak cleared. With
/// `program.SilentReport` the key is the bare share of conference games.
Standings OrderStandings();

/// The report: all columns, or those that a dated table knows.
std::string StandingsPage(const Standings& standings, bool dated);
/// One line a team, comma-separated, with a heading.
std::string StandingsCsv(const Standings& standings, bool dated);

/// "Display Total Record" (false) or "Display Conference Record" (true): sets the rule and saves it at once.
/// False, told, with the rule as it was, when that failed.
bool OrderStandingsBy(bool conference);

/// Orders the teams, and but for `program.SilentReport` writes the report "STANDINGS". False, told, when that
/// failed.
bool DisplayStandings();

/// The table as it was at the end of a date, or of one month's games alone.
struct HcStandingsByDate {
  int Month = 0;  ///< calendar month
  int Day = 0;    ///< 0: the month alone

  /// Replays the results of SCORES and leaves the dated table in `standings`; `league.team` is as before.
  /// False, with its message, when no valid date was picked.
  bool BuildStandingsByDate();

  Standings standings;
  std::string page, csv;
};

}  // namespace tipline
