#pragma once
// The fixed-record files of a league folder: single records, whole tables, season reset of a record.
#include <filesystem>

#include "league/league.h"

namespace tipline {

std::filesystem::path TeamsFile();    ///< HCTEAMS of the open league
std::filesystem::path PlayersFile();  ///< HCPLAYER
std::filesystem::path CoachesFile();  ///< HCgameplan
std::filesystem::path RulesFile();    ///< HCRULES

/// Record n of HCTEAMS into, or out of, `league.team[n]`. A number outside 1..720 changes nothing and gives
/// false.
bool ReadTeam(int team);
bool WriteTeam(int team);
/// The same for `league.coach[n]`. A write renews `TeamNo`.
bool ReadCoach(int team);
bool WriteCoach(int team);
/// Row `recNo` of HCPLAYER. Past the end it reads as an empty row.
void ReadPlayer(int recNo, PlayerRecord& player);
/// Writes a row at its `RecNo`; false when that is below 1 or the file can't be written.
bool WritePlayer(const PlayerRecord& player);

/// All rows of HCPLAYER into `league.player`, index = row.
void LoadLeaguePlayers();
int PlayerRows();

/// All 720 slots, with the repairs of a league load; rebuilds the lookups. Slots that a repair changed are
/// written back.
void LoadAllTeams();
bool SaveAllTeams();
/// Rebuilds division, conference and year lookups from `league.team`.
void RebuildLookups();

/// Season reset of a team: results, counters, season lines. Names, files, roster and real-life totals stay.
void ZeroTeam(int team);
/// Clears block 1 (real life) or 2 (replay season) of a player; block 2 clears the season's counters with it.
void ZeroPlayer(PlayerRecord& player, int block);

/// The coach's plan of a team as a file of its own, `<City> Coach.coa` in the league folder. False when it
/// could not be written.
bool ExportCoach(int team);
/// Reads such a file over the team's record. Refused, with its message, when the file belongs to another
/// team.
bool ImportCoach(int team);

}  // namespace tipline
