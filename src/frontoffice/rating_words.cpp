#include "frontoffice/rating_words.h"

namespace tipline {

std::string_view RatingWord(int rating) {
  constexpr std::string_view kWords[] = {"Very Poor",     "Poor", "Fair",      "Below Average", "Average",
                                         "Above Average", "Good", "Very Good", "Excellent",     "Excellent"};
  return kWords[Clamp(rating, 1, 10) - 1];
}

std::array<TeamRatingRow, 10> HCGAMERATINGS(const Side& side) {
  const struct {
    std::string_view caption;
    double value, middle, step;
  } rows[] = {
      // clang-format off
      {"Offense",           static_cast<double>(Int(side.LineupOffense / 10.0)), 25, 2},
      {"Offense-Inside",    static_cast<double>(side.LineupInside),              18, 2},
      {"Offense-Outside",   static_cast<double>(side.LineupOutside),             22, 2},
      {"Offense-Fastbreak", static_cast<double>(side.LineupFast),                18, 1.5},
      {"Passing",           static_cast<double>(side.LineupPassing),             18, 2},
      {"Defense-Outside",   side.LineupDefense,                                  25, 2},
      {"Defense-Inside",    side.LineupDefInside,                                18, 2},
      {"Defense-Force To",  static_cast<double>(side.LineupForce),               25, 2},
      {"Rebounding-Off",    static_cast<double>(side.LineupRebOff),              11, 2},
      {"Rebounding-Def",    static_cast<double>(side.LineupRebDef),              18, 2},
      // clang-format on
  };
  std::array<TeamRatingRow, 10> words;
  for (std::size_t i = 0; i < words.size(); ++i) {
    words[i] = {rows[i].caption, RatingWord(Int((rows[i].value - rows[i].middle) / rows[i].step + 5))};
  }
  return words;
}

}  // namespace tipline
