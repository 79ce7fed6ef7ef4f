#pragma once
// The plan screen: a coach's sliders and his grid of coverage, one of eleven plans at a time.
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "coach/game_plan.h"

namespace tipline {

struct SliderCaption {
  std::string_view frame, caption;
};
/// Frame and caption of slider 0 to 16, as the screen shows them.
const SliderCaption& CaptionOf(int slider);

/// Columns of the grid behind the names: coverage in three zones, double teams in three zones, usage.
enum class PlanColumn { kInside, kOutside, kThree, kDoubleInside, kDoubleOutside, kDoubleThree, kUsage };
inline constexpr std::array<std::string_view, 7> kPlanColumns{"Inside",  "Outside", "Three", "Dbl In",
                                                              "Dbl Out", "Dbl 3",   "Usage"};
inline constexpr std::array<std::string_view, 4> kUsageCaptions{"25%", "50%", "75%", "100%"};

inline constexpr std::array<std::string_view, 5> kOverallPaceCaptions{"Very Slow", "Slow", "Average", "Fast",
                                                                      "Very Fast"};

struct PlanScreen {
  Roster& own;                       ///< the team whose coach plans
  const Roster* opponent = nullptr;  ///< the opponent of the plan, where one is loaded
  int plan = 0;                      ///< 0 the general plan, 1 to 10
  int DefaultUsageList = 0;          ///< usage that the computer's plan gives every man, 0 to 3

  explicit PlanScreen(Roster& team) : own(team) {}

  /// One line for each plan.
  std::vector<std::string> GamePlanList() const;
  /// "Game Plan vs " and the opponent.
  std::string Title() const;
  /// Names the opponent of the plan on the screen; 0 empties it. False, with its message, for the general
  /// plan; false for a slot that holds no team.
  bool ChooseOpponent(int teamNo);
  /// `opponent` is the team that the plan on the screen is written against: its men can be covered.
  bool OpponentLoaded() const;
  /// Value of slider 0 to 16.
  int Slider(int slider) const;
  /// False, and nothing changes, unless slider 0..16 and value 0..4.
  bool SetSlider(int slider, int value);
  /// The pace that the coach likes, whoever the opponent. False, and nothing changes, unless 0..4.
  bool SetOverallPace(int value);
  /// "Computer Set Matchups": the computer finds the match-ups of the coach's games.
  void ComputerMatchupsCheck(bool on) { own.coach.ComputerMatchups = on ? 1 : 0; }
  /// Steps a cell of the grid for a man of the opponent: coverage on to the next and from "Foul" to "Off",
  /// one that was never set from "Normal"; double team on and off, usage on and from "100%" to "25%". False,
  /// and nothing changes, for a slot without a man.
  bool StepCell(int slot, PlanColumn column);
  /// Every man of the plan is covered as usual, nobody doubled; the usage stays.
  void ClearPlayerDefense();
  /// Saves the team and writes its plan, rotation included, to `<City> Coach.coa` in the league folder.
  /// False, after telling the user, when a file could not be written.
  bool ExportPlan() const;
  /// Takes such a file over for the team in hand, coach and men; the caller saves. False, with its message
  /// and nothing changed, when the file is missing or belongs to another team.
  bool ImportPlan();
  /// The computer's own plan, sliders and, where the opponent is loaded, grid. Draws.
  void ComputerGamePlan();
};

}  // namespace tipline
