#include "league/league_list.h"

#include <algorithm>

#include "base/record_file.h"
#include "league/data_tree.h"
#include "league/league.h"
#include "league/league_check.h"
#include "league/program.h"

namespace tipline {
namespace {

std::string KindOf(const TeamRecord& team) {
  const bool women = team.TeamSex == 'W';
  switch (team.TeamType.bytes[0]) {
    case 'C':
      return women ? "college, women" : "college";
    case 'A':
      return women ? "alternate pro, women" : "alternate pro";
    case 'O':
      return women ? "international, women" : "international";
    default:
      return women ? "women" : "pro";
  }
}

std::string NameIn(std::string folder) {
  folder.pop_back();  // every entry ends in one separator
  return folder.substr(folder.find_last_of("/\\") + 1);
}

}  // namespace

std::optional<LeagueGlance> GlanceAt(const std::filesystem::path& folder) {
  if (!LeagueFault(folder).empty()) return std::nullopt;
  LeagueGlance glance;
  int first = 0, last = 0;
  RecordFile(folder / "HCTEAMS", kTeamSlotBytes).ReadAll(kTeams, [&](int, const u8* bytes) {
    TeamRecord team;
    ReadRecord(bytes, team);
    if (team.TeamActive != 1) return;
    if (++glance.Teams == 1) {
      glance.Kind = KindOf(team);
      first = last = team.Year;
    }
    first = std::min<int>(first, team.Year);
    last = std::max<int>(last, team.Year);
  });
  glance.Season = std::to_string(first) + (last > first ? "-" + std::to_string(last) : "");
  return glance;
}

std::vector<KnownLeague> KnownLeagues() {
  ReadRecentList();
  std::vector<KnownLeague> known;
  const auto add = [&known](const std::string& entry, bool recent) {
    const std::string folder = Normalised(entry);
    const auto same = [&folder](const KnownLeague& other) { return SameText(other.Folder, folder); };
    if (SameText(folder, SeasonsRoot()) || std::any_of(known.begin(), known.end(), same)) return;
    known.push_back({NameIn(folder), folder, recent, SameText(folder, program.RecentList.front())});
  };
  for (const auto& entry : program.RecentList) add(entry, true);
  for (const auto& name : SeasonNames()) {
    if (!FindLeague(name).empty()) add(SeasonsRoot() + name, false);
  }
  return known;
}

std::optional<KnownLeague> FindKnownLeague(const std::string& nameOrFolder) {
  const std::string folder = Normalised(nameOrFolder);
  std::optional<KnownLeague> found;
  for (const auto& one : KnownLeagues()) {
    if (one.Name == nameOrFolder || one.Folder == folder) return one;
    if (!found && (SameText(one.Name, nameOrFolder) || SameText(one.Folder, folder))) found = one;
  }
  return found;
}

}  // namespace tipline
