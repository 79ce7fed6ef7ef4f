#pragma once
// Months: calendar months 1 to 12, season months 1 (September) to 12 (August).
#include <string_view>

namespace tipline {

/// Names by season month, less 1.
inline constexpr std::string_view kSeasonMonthNames[12] = {"September", "October",  "November", "December",
                                                           "January",   "February", "March",    "April",
                                                           "May",       "June",     "July",     "August"};

/// Calendar month of season month 1 to 12.
constexpr int CalendarMonth(int seasonMonth) { return seasonMonth <= 4 ? seasonMonth + 8 : seasonMonth - 4; }
/// Season month of calendar month 1 to 12.
constexpr int SeasonMonth(int month) { return month >= 9 ? month - 8 : month + 4; }

/// "October" for calendar month 10; empty outside 1 to 12.
constexpr std::string_view MonthName(int month) {
  return month < 1 || month > 12 ? std::string_view() : kSeasonMonthNames[SeasonMonth(month) - 1];
}

/// Days of a calendar month in a year of 365 days; 0 outside 1 to 12.
constexpr int DaysOfMonth(int month) {
  if (month < 1 || month > 12) return 0;
  if (month == 2) return 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

/// Days of a calendar month that a game can be set on: February has 29.
constexpr int ScheduleDays(int month) { return month == 2 ? 29 : DaysOfMonth(month); }

}  // namespace tipline
