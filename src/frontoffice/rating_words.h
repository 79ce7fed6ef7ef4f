#pragma once
// Ratings in words.
#include <array>
#include <string_view>

#include "engine/game_state.h"

namespace tipline {

/// The word of a rating 1 to 10, "Very Poor" to "Excellent"; other values take the nearest.
std::string_view RatingWord(int rating);

struct TeamRatingRow {
  std::string_view caption, word;
};

/// The ten ratings of a side's five in words, from the sums that LineupValues left in `game`.
std::array<TeamRatingRow, 10> HCGAMERATINGS(const Side& side);

}  // namespace tipline
