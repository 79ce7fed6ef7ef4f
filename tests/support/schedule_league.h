#pragma once
// An open league of named teams without men, for tests of the schedule.
#include <string>

#include "harness/temporary_home.h"
#include "league/files.h"
#include "league/schedule.h"
#include "platform/dialogs.h"

namespace tipline {

class ScheduleLeague {
 public:
  TemporaryLeague folder;
  platform::ScriptedDialogs dialogs;

  /// So many teams in the first slots of each of so many divisions; "Team 1" is the team in slot 1.
  explicit ScheduleLeague(int divisions = 2, int each = 4) {
    for (int division = 1; division <= divisions; ++division) {
      for (int place = 1; place <= each; ++place) {
        const int team = TeamsOfDivision(division)[place];
        league.team[team].TeamActive = 1;
        league.team[team].City = "Team " + std::to_string(team);
        league.team[team].Year = 1985;
      }
    }
    RebuildLookups();
    league.rules.ScheduleFile = kDefaultScheduleFile;
  }

  static ScheduleRecord& Add(int visitor, int home, int month = 11, int day = 1) {
    league.ScheduleGame.push_back(NewScheduleGame(visitor, home, month, day));
    return league.ScheduleGame.back();
  }
  static ScheduleRecord& Row(int n) { return league.ScheduleGame[static_cast<std::size_t>(n)]; }

  /// Dates and pools of a tournament, as the rules file would have brought them.
  static void SetPools(const TournamentPools& pools) { league.tournamentPools = RecordBytes(pools); }
  static TournamentPools Pools() {
    TournamentPools pools;
    pools.PoolMark = TournamentPools::kSetMark;
    for (auto& days : pools.DateType) days.Fill(std::string_view("R"));
    return pools;
  }
};

}  // namespace tipline
