#include "league/league_check.h"

#include <cmath>

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

bool RulesMakeSense(const RulesRecord& r) {
  const bool periods = r.PeriodList == 0 || r.PeriodList == 2 || r.PeriodList == 4;
  return periods && r.MinuteList <= 20 && r.OverTimeList <= 20 && r.DqList <= 10 && r.ShotClockList <= 45 &&
         r.ThreePointCheck <= 1;
}

/// A team slot is free or taken, and what it names lies in the player file.
bool TeamMakesSense(const TeamRecord& team, int rows) {
  if (team.TeamActive != 0 && team.TeamActive != 1) return false;
  if (team.TeamActive == 0) return true;
  for (const i16 row : team.Roster) {
    if (row < 0 || row > rows) return false;
  }
  return true;
}

/// Most men whom the rosters name say the same of themselves.
struct Agreement {
  int agree = 0, differ = 0;
  void Count(bool same) { ++(same ? agree : differ); }
  bool Holds() const { return agree >= differ; }
};

std::string RostersAndPlayers(const std::filesystem::path& folder) {
  const RecordFile teams(folder / "HCTEAMS", kTeamSlotBytes);
  const RecordFile players(folder / "HCPLAYER", kPlayerSlotBytes);
  const RecordFile coaches(folder / "HCgameplan", kCoachSlotBytes);
  const int rows = players.Count();
  std::vector<int> teamOf(static_cast<std::size_t>(rows) + 1);
  players.ReadAll(rows, [&](int n, const u8* bytes) {
    PlayerRecord player;
    ReadRecord(bytes, player);
    teamOf[static_cast<std::size_t>(n)] = player.TeamNo;
  });
  bool sound = true;
  Agreement men, plans;
  teams.ReadAll(kTeams, [&](int n, const u8* bytes) {
    TeamRecord team;
    ReadRecord(bytes, team);
    if (!TeamMakesSense(team, rows)) sound = false;
    if (!sound || team.TeamActive != 1) return;
    for (const i16 row : team.Roster) {
      if (row > 0)
        men.Count(teamOf[static_cast<std::size_t>(row)] == n || teamOf[static_cast<std::size_t>(row)] == 0);
    }
    CoachRecord coach;
    coaches.Read(n, coach);
    plans.Count(coach.TeamNo == n || coach.TeamNo == 0);
  });
  if (!sound) return Damaged(teams.Path());
  if (!men.Holds()) return Damaged(players.Path());
  return plans.Holds() ? "" : Damaged(coaches.Path());
}

bool RowMakesSense(const EraRecord& row) {
  for (const auto figure : kEraFigures) {
    if (!std::isfinite(row.*figure) || row.*figure < 0 || row.*figure > kHighestFigure) return false;
  }
  return row.Games >= 0 && row.Games < 200;
}

}  // namespace

std::string LeagueFault(const std::filesystem::path& folder) {
  const struct {
    const char* name;
    long long bytes;
  } files[] = {{"HCTEAMS", kTeams * kTeamSlotBytes},
               {"HCPLAYER", kPlayerSlotBytes},
               {"HCgameplan", (kTeams - 1) * kCoachSlotBytes + CoachRecord::kRecordSize},
               {"HCRULES", RulesRecord::kRecordSize}};
  for (const auto& f : files) {
    if (auto fault = MissingOrShort(folder / f.name, f.bytes); !fault.empty()) return fault;
  }
  RulesRecord rules;
  RecordFile(folder / "HCRULES", kRulesSlotBytes).Read(1, rules);
  if (!RulesMakeSense(rules)) return Damaged(folder / "HCRULES");
  return RostersAndPlayers(folder);
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
