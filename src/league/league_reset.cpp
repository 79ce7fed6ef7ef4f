#include "league/league_reset.h"

#include <algorithm>

#include "base/record_file.h"
#include "league/files.h"
#include "league/program.h"
#include "league/rules.h"
#include "league/schedule.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

namespace fs = std::filesystem;

void Say(const WorkLabel& label, const std::string& text) {
  if (label) label(text);
}

/// A file that is not there stays so.
bool Truncate(std::string_view name) {
  const auto file = LeagueFile(name);
  std::error_code error;
  return !fs::exists(file, error) || Written(WriteWholeFile(file, ""), file);
}

bool ZeroPlayers(bool realLifeToo) {
  const RecordFile file(PlayersFile(), kPlayerSlotBytes);
  const bool written = file.RewriteAll(0, [realLifeToo](int, u8* bytes) {
    PlayerRecord player;
    ReadRecord(bytes, player);
    ZeroPlayer(player, 2);
    if (realLifeToo) ZeroPlayer(player, 1);
    WriteRecord(player, bytes);
  });
  return Written(written, file.Path());
}

/// Games of a cup are drawn anew when their round comes.
bool IsCupGame(const ScheduleRecord& row) {
  return std::string_view("NQLSC").find(row.GameType.View()) != std::string_view::npos &&
         !row.GameType.Empty();
}

void MakeUnplayed(ScheduleRecord& row) {
  row.Status = "U";
  row.PlayoffFlag = "N";
  row.Score = {};
  row.Overtime = 0;
  row.GameStats = {};
  for (auto& record : row.RecordAfter) record = "";
  row.BoxFile = "";
  for (auto* leader :
       {&row.ScoringLeader, &row.ReboundLeader, &row.AssistLeader, &row.StealLeader, &row.BlockLeader}) {
    *leader = "";
  }
}

bool ZeroSchedule() {
  for (ScheduleRecord& row : league.ScheduleGame) {
    if (row.Status != 'D') MakeUnplayed(row);
  }
  return SaveSchedule() && LoadSchedule();
}

/// The cup's pools have no results any more; who plays in which stays.
bool ZeroPools() {
  TournamentPools pools = ReadPools();
  if (pools.PoolMark != TournamentPools::kSetMark) return true;
  pools.PoolPointsFor = pools.PoolPointsAgainst = {};
  pools.PoolWins = pools.PoolLosses = {};
  WriteRecord(pools, league.tournamentPools.data());
  return SaveRules();
}

std::vector<fs::path> BoxFiles() {
  std::vector<fs::path> boxes;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(LeagueFile(""), error)) {
    if (Upper(entry.path().extension().string()) == ".BOX") boxes.push_back(entry.path());
  }
  return boxes;
}

bool DeleteBoxes(const WorkLabel& label) {
  const auto boxes = BoxFiles();
  for (std::size_t k = 0; k < boxes.size(); ++k) {
    Say(label, "Deleting box " + std::to_string(k + 1) + " of " + std::to_string(boxes.size()) + "...");
    std::error_code error;
    for (const auto& file : {boxes[k], fs::path(boxes[k]).replace_extension(".PLY")}) {  // and its play log
      fs::remove(file, error);
      if (error && !Written(false, file)) return false;
    }
  }
  return true;
}

/// Teams first: the schedule keeps only games of teams that are there.
bool ReadSeason() { return LoadAllTeams() && LoadSchedule(); }

/// Of the season as it stands in memory.
bool ClearResults(bool realLifeToo, const WorkLabel& label) {
  Say(label, "Deleting player stats..");
  for (const char* name : {"HcHighlights.txt", "HcLeaders", "HcTop40", "HcTicker", "HcInjuryHistory"}) {
    if (!Truncate(name)) return false;
  }
  program.HighlightList.clear();
  if (!ZeroPlayers(realLifeToo)) return false;
  Say(label, "Deleting game scores..");
  if (!ZeroSchedule() || !Truncate("SCORES") || !DeleteBoxes(label)) return false;
  Say(label, "Deleting team stats..");
  for (int team = 1; team <= kTeams; ++team) ZeroTeam(team);
  league.Scores.assign(1, {});
  if (league.player.size() > 1) LoadLeaguePlayers();
  return SaveAllTeams();
}

}  // namespace

bool ZeroStats(bool realLifeToo, const WorkLabel& label) {
  return ReadSeason() && ClearResults(realLifeToo, label);
}

bool ClearSeason(bool realLifeToo, const WorkLabel& label) {
  if (!ReadSeason()) return false;
  for (ScheduleRecord& row : league.ScheduleGame) {
    if (IsCupGame(row)) row.Status = "D";
  }
  return ZeroPools() && Truncate("HCRECORDS") && ClearResults(realLifeToo, label);
}

bool ResetLeague(bool realLifeToo, const WorkLabel& label) {
  if (!ClearSeason(realLifeToo, label)) return false;
  platform::dialogs().Tell("League Reset Complete!");
  return true;
}

}  // namespace tipline
