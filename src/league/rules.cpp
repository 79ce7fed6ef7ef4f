#include "league/rules.h"

#include "base/record_file.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/program.h"
#include "league/schedule.h"

namespace tipline {
namespace {

std::string LastFolder(const std::filesystem::path& folder) {
  return folder.has_filename() ? folder.filename().string() : folder.parent_path().filename().string();
}

/// Both records of a rules file; what is not in it reads as zeros. False, and nothing changed, without a
/// file.
bool ReadRules(const std::filesystem::path& file) {
  bool read = false;
  std::string bytes = ReadWholeFile(file, &read);
  if (!read) return false;
  bytes.resize(2 * kRulesSlotBytes, '\0');
  const auto* from = reinterpret_cast<const u8*>(bytes.data());
  ReadRecord(from, league.rules);
  league.tournamentPools.assign(from + kRulesSlotBytes, from + 2 * kRulesSlotBytes);
  return true;
}

/// Dates and pools of the cup that were never set are set to none.
bool MarkPools() {
  TournamentPools pools = ReadPools();
  if (pools.PoolMark == TournamentPools::kSetMark) return false;
  pools.PoolMark = TournamentPools::kSetMark;
  league.tournamentPools.resize(kRulesSlotBytes);
  WriteRecord(pools, league.tournamentPools.data());
  return true;
}

}  // namespace

bool LoadRules() {
  league.LeagueFolderName = LastFolder(program.LeagueFolder);
  ReadTeam(1);
  const bool read = ReadRules(RulesFile());
  if (!read && !ReadRules(TreePath("Basketball\\HCRULES"))) {
    league.rules = {};
    league.tournamentPools.clear();
  }
  const TeamRecord& first = league.team[1];
  const bool marked = MarkPools();
  const bool repaired = RepairRules(first.Year, first.TeamType.bytes[0]);
  DerivePhotoRatio();
  DerivePositionLabels();
  if (read && (marked || repaired)) SaveRules();
  FindPhotoFolder();
  return read;
}

bool SaveRules() {
  RaiseFoulLimits(league.rules);
  const RecordFile file(RulesFile(), kRulesSlotBytes);
  const bool written = file.RewriteAll(2, [](int n, u8* bytes) {
    if (n == 1) WriteRecord(league.rules, bytes);
    if (n == 2)
      std::copy_n(league.tournamentPools.begin(),
                  std::min<std::size_t>(league.tournamentPools.size(), kRulesSlotBytes), bytes);
  });
  return Written(written, file.Path());
}

void RaiseFoulLimits(RulesRecord& rules) {
  for (int step = 2; step <= 3; ++step) {
    if (rules.FoulLimit[step] >= rules.FoulLimit[step - 1]) continue;
    rules.FoulLimit[step] = rules.FoulLimit[step - 1];
    rules.Penalty[step] = rules.Penalty[step - 1];
  }
}

void DerivePositionLabels() {
  if (league.rules.TraditionalPosCheck == 1) {
    league.PositionLabel = {{"G", "G", "F", "F", "C"}};
  } else {
    league.PositionLabel = {{"PG", "SG", "SF", "PF", "C"}};
  }
}

void DerivePhotoRatio() {
  constexpr double kHeightToWidth[7] = {1.1, 3.5 / 2.5, 1.0, 10.0 / 8, 7.0 / 5, 3.0 / 2, 2.5 / 3.5};
  const int shape = league.rules.PlayerHeigtToWidthList;
  league.PhotoRatio = kHeightToWidth[shape > 6 ? 5 : shape];
}

void FindPhotoFolder() {
  league.PhotoFolder = TreePath("Basketball\\PlayerPhotos");
  if (league.rules.PrivateLeaguePhotoFolderCheck != 1 || league.LeagueFolderName.empty()) return;
  league.PhotoFolder /= league.LeagueFolderName;
  std::error_code ignored;  // photos are for show: without the folder there are none
  std::filesystem::create_directories(league.PhotoFolder, ignored);
}

}  // namespace tipline
