#pragma once
// The team pick screen: an exhibition, a scenario, or a league game that is not on the schedule.
#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "gamesetup/game_screens.h"
#include "league/league.h"

namespace tipline {

struct HCGameTeams2008 {
  /// A line of the roster panel, figures per game: of the replay season in a league game, else of the real
  /// one.
  struct PanelLine {
    int Slot = 0;
    std::string Position, Name;
    double Reb = 0, Ast = 0, St = 0, Bk = 0, Avg = 0;
  };
  struct Label {
    std::string Text;
    int ForeColor = 0, BackColor = 0;
  };

  std::string Title;
  int CalendarYear = 0;
  Table<std::filesystem::path, 1, 2> TeamDir;
  Table<std::vector<TeamRecord>, 1, 2> PickTeams;  ///< index = team number, 0 unused
  Table<std::vector<int>, 1, 2> PickList;          ///< active teams of the side's folder, by city
  Table<Label, 1, 2> TeamLabel;
  Table<std::vector<PanelLine>, 1, 2> RosterPanel;
  std::vector<std::string> ScenarioPeriodList;
  std::array<std::string, 3> ScenarioSituationList{"Jump Ball", "Visitor Possession", "Home Possession"};
  int ScenarioPeriod = 0, ScenarioSituation = 0;  ///< index of the choice, 0 the first
  int ScenarioMinutes = 0, ScenarioSeconds = 0;
  Table<int, 1, 2> ScenarioPoints{};

  /// Opens the screen for `program.GameKind` and `program.ScenarioGame`: both coaches human, no teams of an
  /// earlier game, both sides on the open league.
  HCGameTeams2008();

  /// Another folder for a side; its pick is gone. Nothing in a league game: both teams are of this league.
  void PickFolder(int side, const std::filesystem::path& folder);
  /// Loads the team into its side of the game; one that is not there leaves the side without a pick. The
  /// league stays as it is, whatever folder the team is from.
  void PickTeam(int side, int team);
  void PickDate(int calendarMonth, int day, int year);
  // Out of their bounds the boxes take the nearest bound; a full period leaves no seconds.
  void SetScenarioMinutes(int minutes);
  void SetScenarioSeconds(int seconds);
  void SetScenarioPoints(int side, int points);

  /// Sets the game up and plays it. False, with its message and the choices as they were, when something is
  /// missing.
  bool PlayCommand(GameScreens& screens);
  /// Leaves the league as it was.
  void CancelCommand();

 private:
  std::filesystem::path savedLeagueFolder_;

  void ClearPick(int side);
  bool LoadFrom(int side, int team) const;
  void FillList(int side);
  void ShowRoster(int side);
  bool TakeDate() const;
  void StartScenario() const;
};

}  // namespace tipline
