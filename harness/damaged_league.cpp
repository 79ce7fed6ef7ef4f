#include "harness/damaged_league.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "base/random.h"
#include "base/record_file.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "frontoffice/league_maker.h"
#include "harness/memory_league.h"
#include "league/daily.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/league_check.h"
#include "league/league_reset.h"
#include "league/office_files.h"
#include "league/program.h"
#include "league/roster.h"
#include "league/rules.h"
#include "league/schedule.h"

namespace tipline {
namespace {

constexpr int kImageTeams = 4;

char NoiseByte() { return static_cast<char>(Rnd(256) - 1); }

std::size_t Place(std::size_t size) { return static_cast<std::size_t>(Rnd(static_cast<int>(size)) - 1); }

void Flip(std::string& bytes, int places) {
  for (int k = 0; k < places; ++k) bytes[Place(bytes.size())] = NoiseByte();
}

/// A word at its limits, where a count or a number of a row may stand.
void PutExtremeWord(std::string& bytes) {
  constexpr i16 kExtremes[] = {-32768, -1, 0, 1, 255, 256, 999, 1000, 32767};
  const auto at = Place(bytes.size() - 1);
  const i16 word = kExtremes[Place(std::size(kExtremes))];
  bytes[at] = static_cast<char>(word & 255);
  bytes[at + 1] = static_cast<char>(word >> 8 & 255);
}

void DamageBytes(std::string& bytes) {
  const int harm = Rnd(8);
  if (harm == 1) bytes.clear();
  if (bytes.size() < 2) return;
  if (harm == 2) bytes.resize(Place(bytes.size()));
  if (harm == 3) bytes.append(Place(40000), NoiseByte());
  if (harm == 4) bytes.assign(bytes.size(), '\0');
  if (harm == 5) {
    for (char& byte : bytes) byte = NoiseByte();
  }
  if (harm == 6) Flip(bytes, Rnd(5000));
  if (harm == 7) Flip(bytes, Rnd(20));
  if (harm == 8) {
    for (int k = Rnd(200); k > 0; --k) PutExtremeWord(bytes);
  }
}

void WriteImage(const LeagueImage& image) {
  std::error_code ignored;
  for (const auto& entry : std::filesystem::directory_iterator(program.LeagueFolder, ignored)) {
    std::filesystem::remove_all(entry.path(), ignored);
  }
  for (const auto& [name, bytes] : image) {
    if (!WriteWholeFile(program.LeagueFolder / name, bytes)) throw std::runtime_error("no room for " + name);
  }
}

void Open() {
  const bool rules = LoadRules();
  LoadAllTeams();
  if (!rules) SaveRules();
  LoadSchedule();
  (void)LoadScores();
  LoadLeaguePlayers();
}

/// The first field in which two records differ.
template <Described R>
std::string Difference(R before, const R& after) {
  const auto own = RecordBytes(before), other = RecordBytes(after);
  std::string field;
  Describe(before, [&](int offset, const char* name, auto& member, const char*) {
    const auto first = own.begin() + offset;
    const auto last = first + DiskSize<std::remove_cvref_t<decltype(member)>>();
    if (field.empty() && !std::equal(first, last, other.begin() + offset)) field = name;
  });
  return field;
}

/// A repair that is made again at the next load never ends.
std::string LoadTwice(int team) {
  Roster loaded, again;
  if (!ReadRoster(team, loaded)) return "team " + std::to_string(team) + " can't be loaded";
  if (!LookAtRoster(team, again)) return "team " + std::to_string(team) + " is gone after its load";
  loaded = again;
  const RosterChanges changes = RepairRoster(again);
  const std::string what = "team " + std::to_string(team) + " is repaired again: ";
  if (changes.team) return what + Difference(loaded.team, again.team);
  if (changes.coach) return what + "plan, " + Difference(loaded.coach, again.coach);
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (changes.man[slot]) return what + "man, " + Difference(loaded.player[slot], again.player[slot]);
  }
  return "";
}

void PlayLeagueGame(int visitor, int home) {
  program.GameKind = "L";
  program.ReplayLocked = program.Autoplaying = true;
  game.GameMonth = Rnd(12);
  game.GameDay = Rnd(31);
  LoadTeam(visitor, 1);
  LoadTeam(home, 2);
  for (int side = 1; side <= 2; ++side) game.side[side].CoachMode = "C";
  PrepareGame();
  NewGame();
  SaveTeam(visitor, 1);
  SaveTeam(home, 2);
  program.ReplayLocked = program.Autoplaying = false;
}

}  // namespace

LeagueImage MakeSmallImage() {
  LeagueRequest request;
  request.Name = "Fuzz";
  request.Divisions = 2, request.Teams = kImageTeams;
  request.Games = 10;
  std::string message;
  if (!MakeLeague(request, message)) throw std::runtime_error(message);
  program.LeagueFolder = LeaguesFolder() / request.Name;
  Open();
  DailyRecord daily;
  daily.DailyMark = 99;
  EnterDate(daily, DateOf(3, 4));
  for (int row = 1; row <= 20; ++row) WriteDaily(row, daily);
  league.Scores.assign(6, NewScheduleGame(1, 2, 11, 5));
  SaveScores();
  // Behind the last team the files hold nothing.
  LeagueImage image;
  const auto keep = [&image](const char* name, std::size_t most) {
    image[name] = ReadWholeFile(LeagueFile(name)).substr(0, most);
  };
  keep("HCTEAMS", std::size_t{12 + kImageTeams} * kTeamSlotBytes);
  keep("HCgameplan", std::size_t{12 + kImageTeams} * kCoachSlotBytes);
  for (const char* name : {"HCPLAYER", "HCRULES", "HcDaily", "SCORES", "Sked.skd", "SKED"})
    keep(name, 1 << 24);
  return image;
}

void Damage(LeagueImage& image) {
  for (int k = Rnd(3); k > 0; --k) {
    auto file = image.begin();
    std::advance(file, Rnd(static_cast<int>(image.size())) - 1);
    if (Rnd(12) == 1) {
      image.erase(file);
      if (image.empty()) return;
    } else {
      DamageBytes(file->second);
    }
  }
}

DamagedRun RunDamagedLeague(const LeagueImage& sound, std::uint64_t seed) {
  random.Seed(seed);
  LeagueImage image = sound;
  Damage(image);
  WriteImage(image);
  DamagedRun run;
  LeagueFindings(program.LeagueFolder);
  run.refused = !LeagueFault(program.LeagueFolder).empty();
  if (run.refused) return run;
  Open();
  const auto teams = MemoryTeams();
  for (const int team : teams) {
    if (run.fault.empty()) run.fault = LoadTwice(team);
  }
  if (teams.size() >= 2) {
    PlayLeagueGame(teams.front(), teams.back());
    run.played = game.GameOver;
    if (!run.played && run.fault.empty()) run.fault = "the game has no end";
  }
  if (seed % 8 == 0) CleanLeagueFolderRoutine();
  if (seed % 8 == 1) ResetLeague();
  LeagueFindings(program.LeagueFolder);
  return run;
}

}  // namespace tipline
