// Files: how long a big league takes to load and a new one to make.
#include <chrono>
#include <filesystem>
#include <iomanip>
#include <ostream>
#include <stdexcept>

#include "base/record_file.h"
#include "bench.h"
#include "engine/engine.h"
#include "frontoffice/league_maker.h"
#include "harness/temporary_home.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/program.h"
#include "league/rules.h"
#include "league/schedule.h"

namespace tipline {
namespace {

constexpr int kRows = 50000;

template <class Work>
double Seconds(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void WriteManyPlayers() {
  const bool written = RecordFile(PlayersFile(), kPlayerSlotBytes).RewriteAll(kRows, [](int n, u8* bytes) {
    PlayerRecord man;
    man.RecNo = static_cast<i16>(n);
    man.TeamNo = static_cast<i16>(n % kTeams + 1);
    man.LastName = "Player " + std::to_string(n);
    WriteRecord(man, bytes);
  });
  if (!written) throw std::runtime_error("the player file can't be written");
}

void Make() {
  LeagueRequest request;
  request.Name = "Bench";
  std::string message;
  if (!MakeLeague(request, message)) throw std::runtime_error(message);
}

void Print(std::ostream& out, const char* what, double seconds, double aim) {
  out << std::left << std::setw(34) << what << std::fixed << std::setprecision(2) << seconds * 1000
      << " ms, aim under " << std::setprecision(0) << aim * 1000
      << " ms: " << (seconds < aim ? "ok" : "too slow") << '\n';
}

void OpenBench() {
  if (!LoadRules()) throw std::runtime_error("the rules can't be read");
  LoadAllTeams();
  LoadLeaguePlayers();
  LoadSchedule();
  if (league.ActiveTeams != 30) throw std::runtime_error("the league was not opened");
}

/// Seconds of one load, over the teams of the open league.
double LoadSides() {
  constexpr int kTimes = 20;
  const auto teams = league.ActiveTeams;
  const double all = Seconds([] {
    for (int k = 0; k < kTimes; ++k) {
      for (int team = 1; team <= kTeams; ++team) {
        if (league.team[team].TeamActive == 1) LoadTeam(team, 1);
      }
    }
  });
  return all / kTimes / teams;
}

}  // namespace

int Load(std::ostream& out) {
  const TemporaryHome folder;
  UseShippedEras();
  const double make = Seconds(Make);
  program.LeagueFolder = LeaguesFolder() / "Bench";
  const double open = Seconds(OpenBench);
  const double team = LoadSides();
  program.LeagueFolder = folder.Home() / "many";
  std::filesystem::create_directories(program.LeagueFolder);
  WriteManyPlayers();
  const double load = Seconds(LoadLeaguePlayers);
  if (league.player.size() != kRows + 1) throw std::runtime_error("the players were not loaded");
  Print(out, "a league of 30 teams is made", make, 3);
  Print(out, "that league is opened", open, 0.05);
  Print(out, "a team is loaded for a game", team, 0.001);
  Print(out, "HCPLAYER of 50,000 rows is loaded", load, 0.7);
  return 0;
}

}  // namespace tipline
