#include "league/season_date.h"

namespace tipline {

SeasonDate DaysLater(SeasonDate date, int days) {
  constexpr int kDays[] = {0, 30, 31, 30, 31, 31, 28, 31, 30, 31, 30, 31, 31};  // September to August
  if (date.month < 1 || date.month > 12) return {};
  int day = date.day + days;
  int month = date.month;
  while (day > kDays[month]) {
    if (month == 12) return {12, kDays[12]};
    day -= kDays[month++];
  }
  return {month, day};
}

}  // namespace tipline
