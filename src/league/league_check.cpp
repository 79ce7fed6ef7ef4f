#include "league/league_check.h"

#include <cmath>

#include "base/group_save.h"
#include "base/record_file.h"
#include "league/league.h"

namespace tipline {
namespace {

constexpr double kHighestFigure = 1000;  // no team has so many of anything in a game
constexpr int kEraRecords = 305;         // 105 pro rows, 95 unused, 105 college rows

std::string MissingOrShort(const std::filesystem::path& path, long long bytes) {
  const RecordFile file(path, 1);
  if (!file.Exists()) return path.string() + " is missing.";
  if (file.Bytes() < bytes) return path.string() + " is too short to be whole.";
  return "";
}

std::string Damaged(const std::filesystem::path& file) { return file.string() + " is damaged."; }

bool RowMakesSense(const EraRecord& row) {
  for (const auto figure : kEraFigures) {
    if (!std::isfinite(row.*figure) || row.*figure < 0 || row.*figure > kHighestFigure) return false;
  }
  return row.Games >= 0 && row.Games < 200;
}

}  // namespace

std::string LeagueFault(const std::filesystem::path& folder) {
  if (!FinishGroupSave(folder)) {
    return "A game that was being saved in " + folder.string() +
           " can't be brought into all of its files: the disk is full, or they can't be written.";
  }
  const RecordFile teams(folder / "HCTEAMS", kTeamSlotBytes);
  if (!teams.Exists()) return teams.Path().string() + " is missing.";
  for (const char* name : {"HCTEAMS", "HCPLAYER", "HCgameplan", "HcDaily", "HCRULES"}) {
    if (auto fault = RecordFile(folder / name, 1).Fault(); !fault.empty()) return fault;
  }
  bool found = false;
  teams.ReadAll(kTeams,
                [&found](int, const u8* bytes) { found = found || (bytes[0] == 1 && bytes[1] == 0); });
  return found ? "" : teams.Path().string() + " holds no team.";
}

std::string EraFault(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::exists(file, error)) return "";
  const int whole = (kEraRecords - 1) * kEraSlotBytes + EraRecord::kRecordSize;
  if (auto fault = MissingOrShort(file, whole); !fault.empty()) return fault;
  bool sound = true;
  RecordFile(file, kEraSlotBytes).ReadAll(kEraRecords, [&sound](int record, const u8* bytes) {
    if (record > 105 && record <= 200) return;
    EraRecord row;
    ReadRecord(bytes, row);
    sound = sound && RowMakesSense(row);
  });
  return sound ? "" : Damaged(file);
}

}  // namespace tipline
