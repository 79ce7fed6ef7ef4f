#pragma once
// Dates of a season: months are counted from 1 (September) to 12 (August), so that they compare across New
// Year.
#include <compare>

namespace tipline {

struct SeasonDate {
  int month = 0;  ///< 1 to 12; 0 no date
  int day = 0;
  auto operator<=>(const SeasonDate&) const = default;
};

/// The date `days` (0 or more) later. What would pass the end of August stays on its last day; no date stays
/// none. February has 28 days.
SeasonDate DaysLater(SeasonDate date, int days);

}  // namespace tipline
