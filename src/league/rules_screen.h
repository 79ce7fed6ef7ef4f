#pragma once
// The rule book on a screen.
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "league/league.h"

namespace tipline {

/// One line of a list with the value that it stands for.
struct RuleChoice {
  u8 value;
  std::string text;
};

/// A check box, or a list when it has choices, over one byte of the rule book.
struct RuleControl {
  std::string_view Tab, Name, Caption;
  u8& (*Field)(RulesRecord& rules);
  std::vector<RuleChoice> (*Choices)() = nullptr;
  u8 Ticked = 1, Unticked = 0;
  std::string_view Tip = "";
};

/// All lists and checks of the screen, tab by tab.
std::span<const RuleControl> RuleControls();

/// The screen of the league's rules; reads and writes `league.rules`. A list or check writes its field at
/// once; texts and the roster limit wait for SAVE.
struct HCRULESFORM {
  bool Closed = true;
  std::string LeagueName;
  Table<std::string, 1, 36> DivisionName;
  int RosterLimitIndex = 0;
  std::vector<int> Teams;          ///< lines of both team lists: active teams, by city
  std::vector<std::string> File1;  ///< image files of the logo folder
  int File1Index = -1;             ///< the highlighted one, -1 none

  /// Fills the screen from the open league and the logo folder.
  void Open();

  /// The control of that name; nullptr for none.
  static const RuleControl* Find(std::string_view name);
  std::string Caption(const RuleControl& control) const;
  bool Enabled(const RuleControl& control) const;
  bool IsTicked(const RuleControl& check) const;
  /// Line of a list; -1 when its field holds a value that no line stands for.
  int ListIndex(const RuleControl& list) const;

  /// Ticks or clears a check, or picks a line of a list, by the control's name. False, and nothing changed,
  /// for a wrong name, a disabled control or a line that is not there.
  bool Check(std::string_view name, bool ticked);
  bool Choose(std::string_view name, int index);

  bool IsFavorite(int team) const;
  bool IsPauseTeam(int team) const;
  void TeamList(int team, bool ticked);
  void PauseTeamList(int team, bool ticked);
  void SelectAllTeamsFavoriteCommand();
  void ClearFavoriteTeamSelectionCommand();
  void SelectAllPauseTeamsCommand();
  void ClearAllPauseTeamsCommand();

  /// Makes the highlighted file the league's logo, or takes the logo away; both save the rules.
  void USELOGOCommand();
  void Command4();
  /// The logo file on this machine; empty when the league has none.
  std::filesystem::path DisplayLeagueLogo() const;

  /// Text of the label; empty while it does not show.
  std::string_view HistoricalEraLabel() const;
  bool EraListRed() const;

  /// Writes what is left and the rule book, reads it again and closes. False, and still open, when the write
  /// failed.
  bool SAVE();
  void CANCEL();
};

}  // namespace tipline
