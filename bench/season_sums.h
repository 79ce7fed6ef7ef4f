#pragma once
// A season in memory, and its sums: what the game gave beside what the men's own seasons promised.
#include <vector>

#include "league/era_record.h"
#include "league/stat_line.h"

namespace tipline {

/// Counters of a team and game.
struct TeamRates {
  double FGA = 0, FGM = 0, F3A = 0, F3M = 0, FTA = 0, FTM = 0, Reb = 0, Off = 0, Ast = 0, St = 0, Bk = 0,
         To = 0, Pf = 0;

  double Points() const { return 2 * FGM + F3M + FTM; }
  double Possessions() const { return FGA - Off + To + 0.44 * FTA; }
  void Add(const StatLine& line, double times);
  void Divide(double by);
};
TeamRates RatesOf(const EraRecord& era);

/// A man over the season.
struct ManSums {
  int games = 0;
  double minutes = 0;  ///< with their tenths; the season line holds whole minutes
};

struct SeasonSums {
  TeamRates replay, real;  ///< sums at first, a team's game after Close; real by the minutes played
  int games = 0, homeWins = 0, overtimes = 0;
  double margin = 0, marginSquares = 0;  ///< of the home side
  double possessions = 0, teamRebounds = 0, teamTurnovers = 0;
  double positionPoints[6] = {};
  int foulOuts = 0;
  double freeFoulOuts = 0;   ///< expected if fouls fell by a man's own rate, whoever watched over them
  std::vector<ManSums> man;  ///< by RecNo

  /// Takes in the game that has just ended, before or after its books are kept.
  void Add();
  /// Sums become averages of a team and game.
  void Close();
};

/// Dates the next game: the rounds of a season run from October to April.
void SetDateOfRound(int round, int rounds);

/// Plays rounds of a season in the open league until at least `games` are played; with dates where the
/// league's data is held for it (`program.ReplayLocked`), so that injuries last.
SeasonSums PlaySeason(int games);

}  // namespace tipline
