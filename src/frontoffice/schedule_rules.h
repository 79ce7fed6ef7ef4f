#pragma once
// What a game put on the schedule by hand must keep.
namespace tipline {

/// What is to be put on the schedule, or to take the place of a game there.
struct ScheduleChoice {
  int visitor = 0, home = 0;  ///< team numbers, 999 the undecided one, 0 none chosen
  int month = 0, day = 0;     ///< calendar date, 0 none chosen
};

/// Whether the league's rules of dates and pools let two different teams play on a date: asks or tells where
/// they do not. `except` is the row that the game replaces, 0 for a new one.
bool ScheduleAllows(const ScheduleChoice& choice, int except);

}  // namespace tipline
