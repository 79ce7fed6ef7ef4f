#pragma once
// The preference screen, which every game of a screen passes: who coaches, on what court, how much is shown.
#include <string>

#include "base/tables.h"
#include "engine/words.h"
#include "league/setup.h"

namespace tipline {

/// Outside a game (`program.ReplayLocked` false) the plain "Game Preferences"; the parts of today's game are
/// then hidden. Opening reads the rules and Ok writes the setup file, so games in bulk don't pass it.
struct HCGAMEsetup {
  SetupRecord Controls;                ///< every preference as the screen shows it
  bool TodaysGameFrame = false;        ///< a game is set up: coaches, court and spread are shown
  bool DefaultSubEnabled = true;       ///< not while a game is in progress
  Table<bool, 1, 2> ComputerOption{};  ///< else `HumanOption`
  bool NeutralBox = false;
  std::string ArenaLabel, PointSpreadLabel, GameFolderLabel;

  /// Shows the setup record; in a game it reads the rules and sets `game.NeutralGame` from box, rule and the
  /// row of the schedule.
  HCGAMEsetup();
  /// A click on the neutral box; in a game the court and the spread follow. The rule and a neutral row of the
  /// schedule stay stronger than the box.
  void ClickNeutral(bool ticked);
  // The buttons of the play-calling grid.
  void Command2() { UseDefaultCalls(Controls); }  ///< "Use &Default"
  void CallNoPlaysCommand() { CallNoPlays(Controls); }
  void Command3() { CallAllPlays(Controls); }  ///< "Call &All Plays"
  /// Both sides run unattended up to the mark; "NONE" for the other option.
  void Zoom(WatchUntil mark);
  /// Controls to the setup record, coaches to the game; both computers with nothing to be shown play at once
  /// (`program.Autoplaying`).
  void SaveChanges() const;
  /// "&Ok": saves, and a human begins the game with what his preferences leave to the computer. False, told,
  /// when the setup could not be written; the game goes on all the same.
  bool Ok() const;

 private:
  void SetCourt();
  void ShowSpread();
};

}  // namespace tipline
