#pragma once
// What the screen of the scheduled games shows beside its commands: the day, a game's result, the calendar,
// the standings.
#include <string>
#include <vector>

#include "season/selection.h"

namespace tipline {

/// A game in the list of the day.
struct SkedLine {
  int Row = 0;
  std::string Status;  ///< "Unplayed", "Play Next", the score, or "***** Now Playing *****"
  std::string Visitor, Home, Points, Rebounds, Assists;
  Table<char, 1, 2> CoachKind{};
};
/// The games of a date by row; `playingRow` is under way.
std::vector<SkedLine> DisplaySked(GameDate date, int playingRow = 0);

/// The panel of a game that was played: line by line what there is to tell of it.
std::vector<std::string> DisplayGame2019Format(const ScheduleRecord& row);

/// A date with games, for the calendar.
struct CalendarDate {
  GameDate Date;
  int Games = 0, Played = 0;
};
std::vector<CalendarDate> UpdateAutoplayCalendarDates();

/// "ATL by 5" for a game to come, "Pick" where neither is ahead, "No Line" while a team is not rated.
std::string EnterPointSPread(const ScheduleRecord& row);

/// The short grid of the standings.
struct StandingsLine {
  int Team = 0, W = 0, L = 0;
  std::string GB;  ///< "-" for the first
};
/// Active teams of the divisions on view in the order of the standings, games behind the first of them; by
/// the record that orders the table.
std::vector<StandingsLine> DisplayStandings(const std::vector<int>& divisions);

}  // namespace tipline
