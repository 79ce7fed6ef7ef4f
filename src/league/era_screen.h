#pragma once
// The averages of the seasons on a screen.
#include <string>
#include <string_view>

#include "league/league.h"

namespace tipline {

/// A box of a column: games, one of the thirteen figures, or a percentage that is only shown.
struct EraBox {
  std::string_view Name, Caption;
  f32 EraRecord::*Field;           ///< nullptr for the games
  f32 EraRecord::*Made = nullptr;  ///< set in a percentage: made / field
};

inline constexpr EraBox kEraBoxes[] = {
    {"GamesText", "Games", nullptr},
    {"FGAText", "FGA", &EraRecord::FGA},
    {"FGMText", "FGM", &EraRecord::FGM},
    {"FGPctLabel", "FG%", &EraRecord::FGA, &EraRecord::FGM},
    {"F3AText", "3PA", &EraRecord::F3A},
    {"F3MText", "3PM", &EraRecord::F3M},
    {"F3PctLabel", "3P%", &EraRecord::F3A, &EraRecord::F3M},
    {"FTAText", "FTA", &EraRecord::FTA},
    {"FTMText", "FTM", &EraRecord::FTM},
    {"FTPctLabel", "FT%", &EraRecord::FTA, &EraRecord::FTM},
    {"RebText", "Reb", &EraRecord::Reb},
    {"OffRebText", "Off", &EraRecord::OffReb},
    {"AstText", "Ast", &EraRecord::Ast},
    {"StText", "St", &EraRecord::St},
    {"BkText", "Bk", &EraRecord::Bk},
    {"TOText", "TO", &EraRecord::TO},
    {"PFText", "PF", &EraRecord::PF},
};

/// The screen of the era tables; reads and writes `league.EraPro` and `league.EraCollege`.
struct HCERAFORM {
  bool Closed = true;
  int Year = kFirstEraYear;  ///< the year picked in the list of 1946 to 2050

  void Open();
  /// Picks a year; one outside the list changes nothing.
  void YearList(int year);

  std::string Heading(bool college) const;  ///< "Pro: 1984-1985"
  std::string BoxText(bool college, const EraBox& box) const;
  /// The user leaves a box with `text` in it. False, and nothing changed, when the text is no number, is
  /// negative, or the box is one that is only shown.
  bool LeaveBox(bool college, std::string_view name, std::string_view text);

  /// Label of the file's place.
  std::string LocationLabel() const;
  /// Asks whether to save; reads the tables again and closes in every case.
  void OkCommand();
};

}  // namespace tipline
