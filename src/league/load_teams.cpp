// Opening a league's teams: the repairs that every opening makes, and the lookups over all slots.
#include <set>

#include "base/record_file.h"
#include "league/files.h"
#include "league/team_repairs.h"

namespace tipline {
namespace {

bool WriteTeams(const std::set<int>& teams) {
  const RecordFile file(TeamsFile(), kTeamSlotBytes);
  const bool written = file.RewriteAll(*teams.rbegin(), [&teams](int team, u8* bytes) {
    if (teams.contains(team)) WriteRecord(league.team[team], bytes);
  });
  return Written(written, file.Path());
}

void CountDivisions() {
  league.DivisionTeams.Fill(0);
  league.UsedDivisions.clear();
  league.ActiveTeams = league.LargestDivision = 0;
  for (int team = 1; team <= kTeams; ++team) {
    if (league.team[team].TeamActive != 1) continue;
    ++league.ActiveTeams;
    ++league.DivisionTeams[DivisionOf(team)];
  }
  league.EqualDivisions = true;
  for (int division = 1; division <= kDivisions; ++division) {
    const int teams = league.DivisionTeams[division];
    if (teams == 0) continue;
    league.UsedDivisions.push_back(division);
    league.EqualDivisions = league.EqualDivisions && teams == league.DivisionTeams[league.UsedDivisions[0]];
    league.LargestDivision = std::max(league.LargestDivision, teams);
  }
}

/// The first half of the used divisions, the middle one included, is conference 1; one division alone is
/// conference 1. A college team's conference is its division.
void SetConferences() {
  league.Conference.Fill(0);
  const auto used = static_cast<int>(league.UsedDivisions.size());
  for (int k = 0; k < used; ++k) {
    const int division = league.UsedDivisions[static_cast<std::size_t>(k)];
    const int half = k < (used + 1) / 2 ? 1 : 2;
    for (const int team : TeamsOfDivision(division)) {
      league.Conference[team] = league.team[team].TeamType == 'C' ? division : half;
    }
  }
}

void CompareYears() {
  std::set<int> years;
  for (int team = 1; team <= kTeams; ++team) {
    const TeamRecord& t = league.team[team];
    if (t.TeamActive == 1 && t.Year >= 1850 && t.Year <= 2100) years.insert(t.Year);
  }
  league.MixedYears = years.size() > 1;
}

}  // namespace

bool LoadAllTeams() {
  std::set<int> repaired;
  const bool read =
      RecordFile(TeamsFile(), kTeamSlotBytes).ReadAll(kTeams, [&repaired](int slot, const u8* bytes) {
        TeamRecord& team = league.team[slot];
        ReadRecord(bytes, team);
        const bool active = team.TeamActive == 1;
        if (active) RepairTeamAtOpening(team);
        RepairSlot(team);
        if (!active) return;
        const auto now = RecordBytes(team);
        if (!std::equal(now.begin(), now.end(), bytes)) repaired.insert(slot);
      });
  if (!repaired.empty()) WriteTeams(repaired);
  RebuildLookups();
  return WasRead(read, TeamsFile());
}

void RebuildLookups() {
  CountDivisions();
  SetConferences();
  CompareYears();
}

}  // namespace tipline
