#pragma once
// The leaders screen: the eight boards and the best games as the files keep them, any column over the whole
// league, and the leader reports.
#include <string>
#include <vector>

#include "aftermath/leader_boards.h"
#include "reports/leader_reports.h"

namespace tipline {

/// A list of leaders ready to be shown: men by place, each with his value of the key column in front.
struct LeaderList {
  struct Line {
    int Place = 0, RecNo = 0;
    std::string Name, Team;
    std::vector<std::string> Cells;
  };
  std::string Title;                  ///< "League Leaders: Scoring a Game"
  std::vector<std::string> Headings;  ///< of the cells
  std::vector<Line> Lines;
};

struct HcLeaders2023 {
  // The screen's lists.
  SeasonLine StatsList = SeasonLine::kReplay;
  int TeamList = 0;  ///< 0 "All Teams"
  int TopList = 10;  ///< rows of a list, at least 1

  LeaderTable Leaders;
  Top40Table Top;

  /// Reads both files of the open league. False, told, when one can't be read.
  bool Open();

  /// Board 1 to 8 as the games have kept it, ten men at most; whoever does not qualify is left out. Reads the
  /// replay of the whole league, whatever the lists say.
  LeaderList Board(int board) const;
  /// The best single games of category 1 to 13.
  LeaderList TopGames(int category) const;
  /// The men of `league.player` ranked by a column, with others beside it, as the lists say: those who
  /// qualify and have more than nothing. Equal values stay in the order of the file. Empty, told, when real
  /// figures are asked for that only a replay has.
  std::vector<LeaderList> Sections(const LeaderReport& report) const;
  /// A report as a page of text, each section under its title; empty, told, as above.
  std::string BuildSubs(int report) const;
};

/// Lists as a page: title, headings and lines in columns, each line ended by '\n'.
std::string PageOf(const std::vector<LeaderList>& lists);

}  // namespace tipline
