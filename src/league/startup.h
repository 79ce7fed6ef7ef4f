#pragma once
// The start of the program, and how a league is made current.
#include <string>
#include <vector>

namespace tipline {

/// Looks at the status file of the data tree. When another copy of the program has it open the user is asked;
/// false when he does not want to go on, and the file is left as it is. Otherwise the file says "Open".
bool CheckGameOpenStatus();
/// The program ends: the file says "Closed".
void MarkClosed();
/// The status file, for a front end that has to write it while it is being stopped.
std::string StatusFilePath();

/// Reads the league in `program.LeagueFolder` anew, as every opening does: setup written and read, rules,
/// teams with their repairs, players, schedule, games played; then the clean-up, where the folder never had
/// it. A league without a rules file gets one, one without teams opens. False, told, when the schedule or
/// that rules file can't be read or written, or the clean-up failed.
bool OpenLeague();
/// Makes a league of the seasons root current. False when there is no such folder, or it holds no league.
bool OpenSeason(const std::string& name);
/// Makes a league of the recent list current. False, with its message and nothing changed, when its folder is
/// gone.
bool OpenRecentLeague(const std::string& folder);

/// League name and, on a second line, "Regular Season" or "Playoffs".
std::string SeasonModeLabel();
/// Moves between a league and its playoff module beside it, after the questions that belong to it. False when
/// the user says no, or there is no module.
bool SwitchSeasonMode();

/// The screen that chooses the active season.
struct HCSETUPFORM {
  std::string FolderLabel;  ///< tree text of the folder picked

  HCSETUPFORM();
  /// Letters of the drives that are there, "C:" first.
  std::vector<std::string> DriveList() const;
  /// Folders under the label's seasons root.
  std::vector<std::string> FolderList() const;
  /// Moves the tree, and the folder list with it; the tree left behind is free for another copy of the
  /// program. False when there is no such drive.
  bool ChooseDrive(const std::string& drive);
  /// Makes the picked folder the active season. False, with its message, while no season is picked.
  bool SaveCommand();
  /// The same with entry 1.. of the recent list.
  bool PickRecent(int entry);
};

}  // namespace tipline
