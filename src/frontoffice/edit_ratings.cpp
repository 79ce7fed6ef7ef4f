#include "frontoffice/edit_ratings.h"

#include "base/numbers.h"

namespace tipline {
namespace {

struct Column {
  std::string_view caption;
  u8 PlayerRecord::*field;
  double most;
};

// clang-format off
constexpr Column kColumns[kRatingColumns] = {
    {"Offense", &PlayerRecord::RateOffense,       20},  // shown and taken divided by 10
    {"Pass",    &PlayerRecord::RatePassing,       15},
    {"O-In",    &PlayerRecord::RateOffInside,     20},
    {"O-Out",   &PlayerRecord::RateOffOutside,    20},
    {"O-Drive", &PlayerRecord::RateOffDrive,      20},
    {"O-Three", &PlayerRecord::RateOffThree,      20},
    {"O-Fast",  &PlayerRecord::RateOffFastbreak,  20},
    {"Dunk",    &PlayerRecord::RateDunk,          20},
    {"Real In", &PlayerRecord::RealInsidePct,    200},  // taken to the nearest ten
    {"D-Man",   &PlayerRecord::RateDefOutside,    20},
    {"D-In",    &PlayerRecord::RateDefInside,     20},
    {"D-Force", &PlayerRecord::RateDefForce,      20},
    {"Sports",  &PlayerRecord::RateSportsmanship, 20},
    {"Durab",   &PlayerRecord::RateDurability,    20},
    {"OffReb",  &PlayerRecord::RateRebOff,        20},
    {"DefReb",  &PlayerRecord::RateRebDef,        20},
    {"Clutch",  &PlayerRecord::RateClutch,        20},
};
// clang-format on

const Column& At(RatingColumn column) { return kColumns[static_cast<int>(column)]; }

}  // namespace

std::string_view RatingCaption(RatingColumn column) { return At(column).caption; }

double RatingCell(const PlayerRecord& player, RatingColumn column) {
  const double value = player.*At(column).field;
  return column == RatingColumn::kOffense ? value / 10 : value;
}

bool SetRating(PlayerRecord& player, RatingColumn column, double value) {
  if (!(value >= 0 && value <= At(column).most)) return false;
  int stored = Round(value);
  if (column == RatingColumn::kOffense) stored = Round(value * 10);
  if (column == RatingColumn::kRealIn) stored = 10 * Int(value / 10 + 0.5);
  player.*At(column).field = static_cast<u8>(stored);
  return true;
}

void HCEDITRATINGS::Fill(const Roster& roster) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    for (int c = 0; c < kRatingColumns; ++c) {
      Cell[slot][static_cast<std::size_t>(c)] = RatingCell(roster.player[slot], static_cast<RatingColumn>(c));
    }
  }
}

void HCEDITRATINGS::SAVECHANGES(Roster& roster) const {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (roster.player[slot].RecNo == 0) continue;
    for (int c = 0; c < kRatingColumns; ++c) {
      SetRating(roster.player[slot], static_cast<RatingColumn>(c), Cell[slot][static_cast<std::size_t>(c)]);
    }
  }
}

}  // namespace tipline
