#pragma once
// The fixed-record files of a league folder: single records, whole tables, season reset of a record.
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "league/league.h"

namespace tipline {

/// A file of the open league; an empty path, which nothing can be read from or written to, when none is open.
std::filesystem::path LeagueFile(std::string_view name);
std::filesystem::path TeamsFile();    ///< HCTEAMS of the open league
std::filesystem::path PlayersFile();  ///< HCPLAYER
std::filesystem::path CoachesFile();  ///< HCgameplan
std::filesystem::path RulesFile();    ///< HCRULES
std::filesystem::path DailyFile();    ///< HcDaily
std::filesystem::path EraFile();      ///< Basketball-Era.dat of the program folder, shared by all leagues

/// The team's city as a part of a file name: without / \ + * ? and zero bytes.
std::string CityInFileName(int team);

/// Gives `written` back, after telling the user the file's name when it is false. Every write below goes
/// through it, so a caller only stops.
bool Written(bool written, const std::filesystem::path& file);
/// The same for a read.
bool WasRead(bool read, const std::filesystem::path& file);

/// Record n of HCTEAMS into, or out of, `league.team[n]`. A number outside 1..720, or a file that is missing
/// or can't be read, changes nothing and gives false.
bool ReadTeam(int team);
bool WriteTeam(int team);
/// The same for `league.coach[n]`; what is not in the file reads as zeros. A write renews `TeamNo`.
bool ReadCoach(int team);
bool WriteCoach(int team);
/// Row `recNo` of HCPLAYER. Past the end it reads as an empty row. False, with `player` as it was, when the
/// file is there and can't be read.
bool ReadPlayer(int recNo, PlayerRecord& player);
/// men[k] from rows[k] in one opening; a row below 1 is passed over.
bool ReadPlayers(std::span<const int> rows, std::span<PlayerRecord> men);
/// Writes a row at its `RecNo`; false when that is below 1 or the file can't be written.
bool WritePlayer(const PlayerRecord& player);

/// All rows of HCPLAYER into `league.player`, index = row; sets `league.FullSeasonScale`. A file that can't
/// be read is told of and has none.
void LoadLeaguePlayers();
int PlayerRows();

/// All 720 slots, with the repairs of a league load; rebuilds the lookups. Teams that a repair changed are
/// written back; free slots are repaired in memory only. False, after telling the user, when HCTEAMS is there
/// and can't be read: no team is there then.
bool LoadAllTeams();
bool SaveAllTeams();
/// Rebuilds division, conference and year lookups from `league.team`.
void RebuildLookups();

/// Season reset of `league.team[team]`: results, counters, season lines. Names, files, roster, real-life
/// totals and markers stay.
void ZeroTeam(int team);
/// Clears block 1 (real life) or 2 (replay season) of a player; block 2 clears the season's counters with it,
/// and outside a game those of the playoff series. Any other block clears nothing. Markers stay.
void ZeroPlayer(PlayerRecord& player, int block);

/// `<City> Coach.coa` in the league folder, for team 1 to 720.
std::filesystem::path CoachExportFile(int team);
/// Writes the coach's plan of a team, as HCgameplan holds it, into that file. False, after telling the user,
/// when it could not be read or written.
bool ExportCoach(int team);
/// Reads that file over `coach`. Refused, with its message and nothing changed, when there is none, it can't
/// be read, or it belongs to another team.
bool ImportCoach(int team, CoachRecord& coach);

}  // namespace tipline
