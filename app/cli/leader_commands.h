#pragma once
// The commands of the stat books on the command line: leaders, best games, leader reports, records.
#include <string>
#include <vector>

#include "cli/commands.h"

namespace tipline::cli {

struct LeaderRequest {
  std::string Board;  ///< "points" ... or what FindLeaderColumn takes; "" the eight boards
  std::string Team;   ///< "" all teams
  int Top = 0;        ///< rows of a list; 0 ten, or what the report says
  int Report = 0;     ///< number of a leader report, 0 none
  bool Real = false, Replay = false;
  bool BestGames = false;     ///< the best single games in place of the season
  std::string Category;       ///< of the best games: its name, "" all
  bool Columns = false;       ///< list what men can be ranked by
  bool Reports = false;       ///< list the leader reports
  int Define = 0, Clear = 0;  ///< number of the report to keep or to empty
  std::string Name;
  std::vector<std::string> Sections;  ///< "KEY=COLUMN,COLUMN" of the report to keep
};
int ShowLeaders(const LeaderRequest& request, const Common& common);

struct RecordRequest {
  bool All = false, Season = false, Game = false;  ///< both blocks, or one; all without
  bool Teams = false, Players = false;             ///< the same of whose records
  bool AllTime = false;                            ///< the book of all leagues
};
int ShowRecords(const RecordRequest& request, const Common& common);

}  // namespace tipline::cli
