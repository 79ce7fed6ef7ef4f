#include "harness/memory_league.h"

#include <stdexcept>
#include <utility>

#include "engine/engine.h"
#include "engine/game_state.h"
#include "league/files.h"
#include "league/program.h"
#include "league/rules.h"
#include "league/setup.h"

namespace tipline {
namespace {

void Fresh() {
  random.Script({});
  league = {};
  program = {};
  setup = {};
  CallAllPlays();  // a human is asked at every play
  game = {};
  if (!UseShippedEras()) throw std::runtime_error("the era tables can't be read");
}

void SeatLeague(const MadeLeague& made) {
  league.rules = made.rules;
  league.player.assign(1, {});
  for (const Roster& roster : made.teams) {
    league.team[roster.TeamNo] = roster.team;
    league.coach[roster.TeamNo] = roster.coach;
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (roster.player[slot].RecNo > 0) league.player.push_back(roster.player[slot]);
    }
  }
  for (const PlayerRecord& man : made.freeAgents) league.player.push_back(man);
  const TeamRecord& first = made.teams[0].team;
  RepairRules(first.Year, first.TeamType.bytes[0]);
  DerivePositionLabels();
  RebuildLookups();
}

}  // namespace

void OpenMemoryLeague(const LeagueRequest& request) {
  Fresh();
  MadeLeague made;
  std::string message;
  if (!DrawLeague(request, made, message)) throw std::runtime_error(message);
  SeatLeague(made);
}

void OpenMemoryLeague(const char* preset, int year, std::uint64_t seed) {
  LeagueRequest request;
  request.Name = "Memory";
  request.Preset = preset;
  request.Year = year;
  request.Seed = seed;
  OpenMemoryLeague(request);
}

void OpenSmallLeague(const char* preset, std::uint64_t seed) {
  LeagueRequest request;
  request.Name = "Memory";
  request.Preset = preset;
  request.Seed = seed;
  request.Divisions = 2;
  request.Teams = 6;
  OpenMemoryLeague(request);
}

std::vector<int> MemoryTeams() {
  std::vector<int> teams;
  for (int team = 1; team <= kTeams; ++team) {
    if (league.team[team].TeamActive == 1) teams.push_back(team);
  }
  return teams;
}

Roster RosterOf(int teamNo) {
  Roster roster;
  roster.TeamNo = teamNo;
  roster.team = league.team[teamNo];
  roster.coach = league.coach[teamNo];
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (const int row = roster.team.Roster[slot]; row > 0) {
      roster.player[slot] = league.player[static_cast<std::size_t>(row)];
    }
  }
  return roster;
}

void KeepRoster(const Roster& roster) {
  league.coach[roster.TeamNo] = roster.coach;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (const int row = roster.team.Roster[slot]; row > 0) {
      league.player[static_cast<std::size_t>(row)] = roster.player[slot];
    }
  }
}

void SeatTeam(int teamNo, int side) {
  game.GameTeam[side] = teamNo;
  game.team[side] = league.team[teamNo];
  game.coach[side] = league.coach[teamNo];
  game.loaded[side].Fill({});
  game.player[side][0] = {};
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    const int row = game.team[side].Roster[slot];
    game.player[side][slot] = row > 0 ? league.player[static_cast<std::size_t>(row)] : PlayerRecord{};
  }
  ReadySide(side);
}

void SetUpMatch(int visitor, int home) {
  SeatTeam(visitor, 1);
  SeatTeam(home, 2);
  for (int side = 1; side <= 2; ++side) game.side[side].CoachMode = "C";
  PrepareGame();
}

void PlayMatch(int visitor, int home) {
  program.Autoplaying = true;
  SetUpMatch(visitor, home);
  NewGame();
  program.Autoplaying = false;
}

void KeepBooks() {
  for (int side = 1; side <= 2; ++side) {
    league.team[game.GameTeam[side]] = game.team[side];
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (OnTeam(side, slot)) {
        const PlayerRecord& man = PlayerAt(side, slot);
        league.player[static_cast<std::size_t>(man.RecNo)] = man;
      }
    }
  }
}

std::vector<Pairing> RoundOf(const std::vector<int>& teams, int round) {
  const int n = static_cast<int>(teams.size()) / 2 * 2;
  const auto at = [&](int place) {  // the first team keeps its place, the others walk round the table
    const int walked = place == 0 ? 0 : (place - 1 + round) % (n - 1) + 1;
    return teams[static_cast<std::size_t>(walked)];
  };
  std::vector<Pairing> pairs;
  for (int k = 0; k < n / 2; ++k) {
    Pairing pair{at(k), at(n - 1 - k)};
    if ((round / (n - 1) + round + k) % 2 == 1) std::swap(pair.visitor, pair.home);
    pairs.push_back(pair);
  }
  return pairs;
}

}  // namespace tipline
