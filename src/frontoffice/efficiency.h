#pragma once
// A man's efficiency figure, and the rates of the statistics screens.
#include "base/tables.h"
#include "league/player_record.h"
#include "league/team_record.h"

namespace tipline {

/// The counts of a season that efficiency is measured with, of a league, a side or a man.
struct EfficiencyLine {
  double Games = 0, Min = 0, FGA = 0, FGM = 0, F3M = 0, FTA = 0, FTM = 0, Reb = 0, Off = 0, Ast = 0, St = 0,
         Bk = 0, To = 0, Pf = 0;
};

/// The replay season of a whole league: its teams' lines added up, and those of their opponents.
struct ReplayLeague {
  EfficiencyLine own, opponents;
};

/// Adds up the active teams of `league` that have played.
ReplayLeague MeasureReplayLeague();

/// The efficiency of a man's real (1) and replay (2) season, 15 the league's mean; 0.0 for a line without
/// minutes or games, or a league without figures. `team` is his team, `replay` from MeasureReplayLeague.
Table<double, 1, 2> CalculatePlayerPer(const PlayerRecord& player, const TeamRecord& team,
                                       const ReplayLeague& replay);

/// Percentages of a line, 0 to 1, and its rates for 48 minutes of play, on a college team for 40.
struct StatRates {
  double FGPct = 0, F3Pct = 0, FTPct = 0, MinutesPerGame = 0;
  double FGA = 0, FGM = 0, F3A = 0, F3M = 0, FTA = 0, FTM = 0, Off = 0, Reb = 0, Ast = 0, Bk = 0, St = 0,
         To = 0, Pf = 0;
};
StatRates ComputeRates(const StatLine& line, bool collegeTeam);

}  // namespace tipline
