#include "league/files.h"

#include <algorithm>

#include "base/record_file.h"
#include "league/program.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

bool IsTeamSlot(int team) { return team >= 1 && team <= kTeams; }

RecordFile Teams() { return {TeamsFile(), kTeamSlotBytes}; }
RecordFile Coaches() { return {CoachesFile(), kCoachSlotBytes}; }
RecordFile Players() { return {PlayersFile(), kPlayerSlotBytes}; }

RecordFile CoachExport(int team) { return {CoachExportFile(team), kCoachSlotBytes}; }

/// The season of 2019 was cut short, and its era row with it; whoever has more games played it as planned.
bool HoldsFullSeasonOf2019() {
  return std::any_of(league.player.begin(), league.player.end(), [](const PlayerRecord& man) {
    return man.Year == 2019 && IsTeamSlot(man.TeamNo) && man.Stats[1].G >= 75;
  });
}

}  // namespace

std::filesystem::path LeagueFile(std::string_view name) {
  return program.LeagueFolder.empty() ? std::filesystem::path() : program.LeagueFolder / name;
}

std::filesystem::path TeamsFile() { return LeagueFile("HCTEAMS"); }
std::filesystem::path PlayersFile() { return LeagueFile("HCPLAYER"); }
std::filesystem::path CoachesFile() { return LeagueFile("HCgameplan"); }
std::filesystem::path RulesFile() { return LeagueFile("HCRULES"); }
std::filesystem::path DailyFile() { return LeagueFile("HcDaily"); }

std::filesystem::path EraFile() {
  if (program.ProgramFolder.empty()) return {};
  return program.ProgramFolder / "Basketball-Era.dat";
}

std::string CityInFileName(int team) {
  std::string name = league.team[team].City.Str();
  std::erase_if(name,
                [](char c) { return c == '\0' || std::string_view("/\\+*?").find(c) != std::string::npos; });
  return name;
}

bool Written(bool written, const std::filesystem::path& file) {
  if (!written) platform::dialogs().Tell(file.filename().string() + " could not be written!");
  return written;
}

bool WasRead(bool read, const std::filesystem::path& file) {
  return read || platform::RefusedWith(file.filename().string() + " could not be read!");
}

bool ReadTeam(int team) {
  const auto file = Teams();
  return IsTeamSlot(team) && file.Exists() && file.Read(team, league.team[team]);
}

bool WriteTeam(int team) {
  return IsTeamSlot(team) && Written(Teams().Write(team, league.team[team]), TeamsFile());
}

bool ReadCoach(int team) { return IsTeamSlot(team) && Coaches().Read(team, league.coach[team]); }

bool WriteCoach(int team) {
  if (!IsTeamSlot(team)) return false;
  league.coach[team].TeamNo = static_cast<i16>(team);
  return Written(Coaches().Write(team, league.coach[team]), CoachesFile());
}

bool ReadPlayer(int recNo, PlayerRecord& player) { return Players().Read(recNo, player); }

bool ReadPlayers(std::span<const int> rows, std::span<PlayerRecord> men) {
  return Players().ReadSlots(rows, [&men](std::size_t k, const u8* bytes) { ReadRecord(bytes, men[k]); });
}

bool WritePlayer(const PlayerRecord& player) {
  return player.RecNo >= 1 && Written(Players().Write(player.RecNo, player), PlayersFile());
}

int PlayerRows() { return Players().Count(); }

void LoadLeaguePlayers() {
  const auto file = Players();
  const int rows = std::min(file.Count(), kMostPlayers);
  league.player.resize(static_cast<std::size_t>(rows) + 1);
  league.player[0] = {};
  const bool read = file.ReadAll(rows, [](int row, const u8* bytes) {
    ReadRecord(bytes, league.player[static_cast<std::size_t>(row)]);
  });
  if (!WasRead(read, file.Path())) league.player.resize(1);
  league.FullSeasonScale = HoldsFullSeasonOf2019() ? 82.0 / 71 : 1.0;
}

bool SaveAllTeams() {
  const auto file = Teams();
  const bool written = file.RewriteAll(kTeams, [](int team, u8* bytes) {
    if (IsTeamSlot(team)) WriteRecord(league.team[team], bytes);
  });
  return Written(written, TeamsFile());
}

std::filesystem::path CoachExportFile(int team) { return LeagueFile(CityInFileName(team) + " Coach.coa"); }

bool ExportCoach(int team) {
  if (!IsTeamSlot(team)) return false;
  CoachRecord coach;
  if (!WasRead(Coaches().Read(team, coach), CoachesFile())) return false;
  coach.TeamNo = static_cast<i16>(team);
  const auto file = CoachExport(team);
  return Written(file.Write(1, coach), file.Path());
}

bool ImportCoach(int team, CoachRecord& coach) {
  if (!IsTeamSlot(team)) return false;
  const auto file = CoachExport(team);
  if (!file.Exists()) {
    return platform::RefusedWith(file.Path().filename().string() + " is not there!");
  }
  CoachRecord read;
  if (!WasRead(file.Read(1, read), file.Path())) return false;
  if (read.TeamNo != team) {
    return platform::RefusedWith("You may only import a game plan for " + TeamName(league.team[team]) + "!");
  }
  coach = read;
  return true;
}

}  // namespace tipline
