#pragma once
// The books of a league against its box files: what the games have added up to is counted anew, game by game.
// Lines, totals, standings and lists are added up by code of its own; only the figures of a single line that
// a list ranks are those of the lists.
#include <string>
#include <vector>

namespace tipline {

struct Recount {
  int games = 0, boxes = 0;         ///< records of SCORES, and of those with a box that can be read
  int men = 0, teams = 0;           ///< compared
  long figures = 0;                 ///< compared, all told
  std::vector<std::string> faults;  ///< what differs, a sentence each
  long leftOut = 0;                 ///< sentences beyond those kept
};

/// Counts the open league. Reads its files; changes none, and nothing in memory but `league.Scores` and the
/// loaded record book. What a box does not tell is taken as it stands: streaks of shots, scouting counters,
/// power ratings, minutes at a position of a man who stood there for more than 53 minutes of one game, the
/// season's rows of the record book and its rows by kind of shot, quarter and half.
Recount RecountLeague();

}  // namespace tipline
