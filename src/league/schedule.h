#pragma once
// The season's schedule: `league.ScheduleGame` in memory, one file of the league folder on disk, and its
// spare copy "SKED". A row's number is good until the next load only.
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "league/league.h"
#include "league/tournament_record.h"

namespace tipline {

inline constexpr int kScheduleSlotBytes = 200;
inline constexpr int kMostScheduleRows = 20000;
inline constexpr std::string_view kDefaultScheduleFile = "Sked.skd";

/// Types of the games of a date, by their number less 1.
struct GameType {
  char letter;
  std::string_view words;
};
inline constexpr GameType kGameTypes[7] = {
    {'R', "Regular Season"},       {'P', "Pool Play"},  {'N', "Non-Advancing"}, {'Q', "Quarter Final"},
    {'L', "Quarter Final(Loser)"}, {'S', "Semi Final"}, {'C', "Championship"}};
/// "Pool Play" for 'P'; what is no type is a game of the regular season.
std::string_view GameTypeWords(char type);

/// The current schedule file, named by the rules; the default one when that is no plain name ending in
/// ".skd". Empty when no league is open.
std::filesystem::path ScheduleFile();
std::filesystem::path SpareSchedule();  ///< "SKED"

/// A schedule made anew is of the season of team 1; where that says nothing, of the season it was.
void TakeSeasonOfLeague();

/// Reads the current file, made empty when there is none, into `league.ScheduleGame`, with `ScheduleYear` and
/// the flags of its months. The default file heals itself from the spare copy when it is empty and that is
/// not. False, after telling the user, when the file can't be read or made; the schedule is then empty. Rows
/// beyond 20,000 are left out, with a message.
bool LoadSchedule();

/// Writes the rows in their order, all with `ScheduleYear`, over file and spare copy. Deleted rows and rows
/// that name no active team are left out; in memory they stay. False, after telling the user, when a write
/// failed.
bool SaveSchedule();

/// The same for some rows that changed since the load. Where file and spare copy hold just the rows of memory
/// no other slot is touched, so that a season's schedule need not be rewritten for every game.
bool SaveScheduleRows(std::span<const int> rows);

/// SaveSchedule in order of the dates, October first: rows that have a date and two teams and are not
/// deleted.
bool UnloadSortedSchedule();

/// Writes `rows` as a schedule file; for callers outside the open league. False when that failed.
[[nodiscard]] bool WriteSchedule(const std::filesystem::path& file, std::span<const ScheduleRecord> rows);

/// Old files number the teams in `LegacyTeam`; they move to `Team`.
void TakeLegacyTeams(ScheduleRecord& row);

/// An unplayed game between computers, a game of the regular season, with all texts blank.
ScheduleRecord NewScheduleGame(int visitor, int home, int month, int day);

/// Dates and pools of the in-season tournament, from the rules file; cleared, with 'R' for every date, when
/// they were never set.
TournamentPools ReadPools();
/// Type of a calendar date: a letter of `kGameTypes`, 'R' also for what is no date.
char DateTypeOf(const TournamentPools& pools, int month, int day);
/// Gives the row the type of its date; a championship game is played on a neutral court.
void TakeDateType(ScheduleRecord& row, const TournamentPools& pools);

struct GameTypeCount {
  int dates = 0, games = 0, played = 0;  ///< games: unplayed, to be played next, and played
};
/// Counts by number of the game type, over calendar and `league.ScheduleGame`.
Table<GameTypeCount, 1, 7> CountGameTypes();

/// Name of a team of the schedule: its city, "TBD" for team 999; empty for a number that names no team.
std::string ScheduleTeamName(int team);
/// An active team with a name, or the undecided one.
bool IsScheduleTeam(int team);

inline bool IsOn(const ScheduleRecord& row, int month, int day) {
  return row.Month == month && row.Day == day;
}
inline bool HasTeam(const ScheduleRecord& row, int team) {
  return row.Team[1] == team || row.Team[2] == team;
}

/// Calls visit(row, number) for every game of `league.ScheduleGame` that is not deleted.
template <class Visit>
void ForScheduledGames(Visit&& visit) {
  for (int n = 1; n <= league.GameCount(); ++n) {
    const ScheduleRecord& row = league.ScheduleGame[static_cast<std::size_t>(n)];
    if (row.Status != 'D') visit(row, n);
  }
}

}  // namespace tipline
