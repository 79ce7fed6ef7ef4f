#pragma once
// Ratings set by hand: a grid of the roster, one row a slot.
#include <array>
#include <string_view>

#include "league/roster.h"

namespace tipline {

enum class RatingColumn {
  kOffense,
  kPass,
  kInside,
  kOutside,
  kDrive,
  kThree,
  kFast,
  kDunk,
  kRealIn,
  kDefMan,
  kDefIn,
  kDefForce,
  kSports,
  kDurability,
  kOffReb,
  kDefReb,
  kClutch
};  // clang-format keeps this list in the order of the grid
inline constexpr int kRatingColumns = 17;

std::string_view RatingCaption(RatingColumn column);
/// The value as the grid shows it.
double RatingCell(const PlayerRecord& player, RatingColumn column);
/// Writes a value when it lies in the range of its column; else leaves the rating as it was, and is false.
bool SetRating(PlayerRecord& player, RatingColumn column, double value);

struct HCEDITRATINGS {
  Table<std::array<double, kRatingColumns>, 1, kRosterSlots> Cell;

  void Fill(const Roster& roster);
  /// Writes every cell of the team's men into `roster`; the caller saves it.
  void SAVECHANGES(Roster& roster) const;
};

}  // namespace tipline
