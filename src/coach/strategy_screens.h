#pragma once
// The two screens in which a human coach says how his side plays, at a stop: the quick strategy and the full
// defense screen. The computer coach fills the same settings of `game.side`.
#include <array>
#include <span>
#include <string>
#include <string_view>

#include "engine/game_state.h"

namespace tipline {

/// The lists of a side's strategy; each is one setting of `game.side`.
enum class StrategyList { kType, kHelp, kPressure, kPace, kInsideOffense, kCrashOffense, kCrashDefense };
inline constexpr std::array kStrategyLists{StrategyList::kType,          StrategyList::kHelp,
                                           StrategyList::kPressure,      StrategyList::kPace,
                                           StrategyList::kInsideOffense, StrategyList::kCrashOffense,
                                           StrategyList::kCrashDefense};

/// Captions of a list, by the value they stand for.
std::span<const std::string_view> StrategyCaptions(StrategyList list);
/// The value a side plays by now.
int StrategyValue(int side, StrategyList list);
/// Writes the setting of a side at once. False, and nothing changes, for a value that the list does not show
/// (a zone where the rules forbid it among them).
bool SetStrategy(int side, StrategyList list, int value);

/// The small screen of the side at a stop: the lists write at once, as do the three substitution checks.
struct QuickStrategy {
  int side = 1;

  /// Team name and " Strategy".
  std::string Title() const;
  bool Set(StrategyList list, int value) { return SetStrategy(side, list, value); }
  void UseRotationGridCheck(bool on);
  void AutoSubWhenTiredCheck(bool on);
  void AutoSubWhenFoulTroubleCheck(bool on);
};

/// Where a man can be covered and doubled.
enum class Zone { kInside, kOutside, kThree };

/// The full defense screen of a side: match-ups, coverage of the other side's men, orders to his own men,
/// and the settings of the end of a game. Opens with what is in force; the grids of the men write at once,
/// all else with SaveDefenseScreen.
struct DefenseScreen {
  int side = 1;
  Table<int, 1, kPositions> StoredMatchup{};  ///< attacker's position -> own position
  bool ComputerMatchups = false;              ///< "Computer Set Matchups"
  bool UseRotationGridCheck = false, AutoSubWhenTiredCheck = false, AutoSubWhenFoulTroubleCheck = false;
  bool LastShotCheck = false, QuickShotCheck = false, NoFoulCheck = false, StealFoulCheck = false;
  bool TimeoutDefenseCheck = false, TimeoutOffenseCheck = false;
  int QuickFoulList = 0;  ///< 0 "None", 1 "Any Shooter", 2 "Poor Shooter"

  explicit DefenseScreen(int forSide);

  /// The best match-ups by the search of the computer coach, put into the grid. False when it does not search
  /// (a zone, or the rules leave it to the coach) and puts position against position.
  bool ComputerSuggestMatchupsCommand();
  /// The computer's whole call for this side: coverage, help, press, zone.
  void ComputerCallCommand();
  /// Coverage 1 "Off" .. 6 "Foul" of the other side's man at a roster slot. False for a value out of range or
  /// a slot without a man.
  bool SetCoverage(int slot, Zone zone, int coverage);
  bool SetDoubleTeam(int slot, Zone zone, bool doubled);
  /// Own man's standing order: 0 "Normal", 1 "Inside", 2 "Outside", 3 "Three" in turn; without the
  /// three-point rule 3 is passed over. False for a slot without a man.
  bool StepGlobalOffense(int slot);
  /// Own man defends "Normal" or "Safe", in turn.
  bool StepSafeStyle(int slot);
  /// Takes the settings into the game. False, with its message, when a position is left undefended.
  bool SaveDefenseScreen();
};

inline constexpr std::array<std::string_view, 6> kCoverageCaptions{"Off",   "Loose", "Normal",
                                                                   "Tight", "Deny",  "Foul"};
inline constexpr std::array<std::string_view, 3> kQuickFoulCaptions{"None", "Any Shooter", "Poor Shooter"};

}  // namespace tipline
