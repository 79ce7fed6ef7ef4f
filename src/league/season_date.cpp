#include "league/season_date.h"

#include "base/calendar.h"

namespace tipline {

SeasonDate DaysLater(SeasonDate date, int days) {
  constexpr int kAugust = 12;
  if (date.month < 1 || date.month > kAugust) return {};
  int day = date.day + days;
  for (int month = date.month; month <= kAugust; ++month) {
    const int length = DaysOfMonth(CalendarMonth(month));
    if (day <= length) return {month, day};
    day -= length;
  }
  return {kAugust, DaysOfMonth(CalendarMonth(kAugust))};
}

}  // namespace tipline
