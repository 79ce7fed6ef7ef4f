#pragma once
// The screen on which a coach says who sits out on which day: the team's schedule by its men.
#include <span>
#include <string>

#include "league/roster.h"

namespace tipline {

/// Works on the roster in hand; it is saved with it. Dates are season month x 100 + day.
struct HcDailyLineups {
  Roster& own;

  explicit HcDailyLineups(Roster& roster) : own(roster) {}

  /// "X" where the man at a slot sits out on that date, "" elsewhere.
  std::string Cell(int slot, int date) const;
  /// Takes the man out for that date, or back in. False, with its message, when he is away on that day, or
  /// has all his 100 dates; false for a slot without a man or for no date.
  bool Toggle(int slot, int date);
  /// After asking, clears every date of every man. False when the answer is no.
  bool ActivateAll();
  /// After asking, enters the team's game dates for every man beside those he has. A man whose 100 entries
  /// are full plays on the dates that are left; the coach is told of him. False when the answer is no.
  bool InactivateAll(std::span<const int> gameDates);
  /// Whether games go by these lists.
  void UseDailyLinesIfAvailableCheck(bool on) { own.coach.UseDailyInactive = on ? 1 : 0; }
};

}  // namespace tipline
