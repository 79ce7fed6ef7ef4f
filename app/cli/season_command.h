#pragma once
// The games of the schedule on the command line.
#include <string>

#include "cli/commands.h"
#include "season/selection.h"

namespace tipline::cli {

struct SeasonArguments {
  bool All = false, Day = false;
  std::string Date, Through, Month, Team;
  int Games = 0;              ///< at most so many; 0 all that are chosen
  std::string Humans = "";    ///< games with a human coach: "coach", "computer", "stop"; "" by the terminal
  bool Live = false;          ///< computer games are told, with the pauses of the league's settings
  int Replays = 0, Jobs = 0;  ///< Jobs 0: as many as there are processors
  int Next = 10;              ///< games that the status lists
  bool Yes = false;

  bool ChoosesGames() const {
    return All || Day || Games > 0 || !Date.empty() || !Through.empty() || !Month.empty() || !Team.empty();
  }
};

/// Plays games of the schedule in their order, each kept before the next one begins, then prints standings
/// and leaders. Exit code 1 when a game could not be kept or the run came to a game that it may not play;
/// 128 + signal when it was stopped, behind the game under way.
int PlaySeason(const SeasonArguments& a, const Common& common);
/// Replays of the whole season; the averages go to BulkReplay.csv of the league.
int ReplaySeason(const SeasonArguments& a, const Common& common);
/// How far the season is, and what comes next.
int ShowSeasonStatus(const SeasonArguments& a, const Common& common);

}  // namespace tipline::cli
