#include "league/startup.h"

#include "base/group_save.h"
#include "base/record_file.h"
#include "base/text.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/league_reset.h"
#include "league/office_files.h"
#include "league/program.h"
#include "league/rules.h"
#include "league/schedule.h"
#include "league/setup.h"
#include "platform/dialogs.h"
#include "platform/folders.h"

namespace tipline {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kModule = "-Playoffs";

fs::path StatusFile() { return TreePath("Basketball-status.txt"); }

void WriteStatus(std::string_view word) {
  std::error_code ignored;  // without the file nobody is warned, that is all
  fs::create_directories(StatusFile().parent_path(), ignored);
  (void)WriteWholeFile(StatusFile(), std::string(word) + "\n", Saving::kUnflushed);
}

bool IsFolder(const fs::path& folder) {
  std::error_code error;
  return fs::is_directory(folder, error);
}

/// The current league's text without the separator at its end.
std::string BareFolder() {
  std::string folder = program.RecentList.empty() ? "" : program.RecentList.front();
  while (!folder.empty() && (folder.back() == '\\' || folder.back() == '/')) folder.pop_back();
  return folder;
}

/// The folder of a tree text is there; otherwise the user is told.
bool IsAvailable(const std::string& folder) {
  return IsFolder(RealFolder(folder)) || platform::RefusedWith(folder + " is not available!");
}

bool Ask(std::string_view question) { return platform::dialogs().Ask(question); }

bool HasUnplayedGames() {
  for (const ScheduleRecord& row : league.ScheduleGame) {
    if (row.Status == 'U') return true;
  }
  return false;
}

}  // namespace

bool CheckGameOpenStatus() {
  const std::string word(Trimmed(ReadWholeFile(StatusFile()).substr(0, 4)));
  if (word == "Open" && !platform::dialogs().Ask(
                            "Tipline appears to already be open! Opening a second instance of the game may "
                            "cause data issues.\nContinue?",
                            "Game Already Open!")) {
    return false;
  }
  WriteStatus("Open");
  return true;
}

void MarkClosed() { WriteStatus("Closed"); }
std::string StatusFilePath() { return StatusFile().string(); }

bool OpenLeague() {
  const fs::path folder = program.LeagueFolder;
  if (!FinishGroupSave(folder)) return Written(false, folder);
  program.BooksBehind = false;
  SaveSetup();
  LoadSetup();
  program.LeagueFolder = folder;
  const bool rules = LoadRules();
  if (!LoadAllTeams()) return false;
  LoadLeaguePlayers();
  const bool schedule = LoadSchedule();
  const bool scores = LoadScores();
  return schedule && scores && (rules || SaveRules()) && CleanUnmarkedFolder();
}

bool OpenSeason(const std::string& name) {
  if (FindLeague(name).empty() || !MakeCurrent(name)) return false;
  return OpenLeague();
}

bool OpenRecentLeague(const std::string& folder) {
  return IsAvailable(folder) && PushRecent(folder) && OpenLeague();
}

std::string SeasonModeLabel() {
  const std::string named(Trimmed(league.LeagueFolderName));
  const std::string name = named.size() < 3 ? std::to_string(league.team[1].Year) : named;
  return name + "\n" + (league.rules.IsPlayoffModule == 1 ? "Playoffs" : "Regular Season");
}

bool SwitchSeasonMode() {
  std::string folder = BareFolder();
  if (league.rules.IsPlayoffModule == 1) {
    program.PlayoffGame = false;
    if (Upper(folder).ends_with(Upper(kModule))) folder.resize(folder.size() - kModule.size());
    return IsAvailable(folder) && PushSeason(folder) && OpenLeague();
  }
  if (HasUnplayedGames() && !Ask("There are unplayed games on the schedule. Continue?")) return false;
  if (league.rules.HasPlayoffModule == 0) {
    if (Ask("A playoff module does not exist for this league. Create it now?")) {
      platform::dialogs().Tell("This edition can't create a playoff module yet!");
    }
    return false;
  }
  const std::string module = folder + std::string(kModule);
  return IsAvailable(module) && PushSeason(module) && OpenLeague();
}

HCSETUPFORM::HCSETUPFORM() : FolderLabel(program.RecentList.empty() ? "" : program.RecentList.front()) {}

std::vector<std::string> HCSETUPFORM::DriveList() const {
  std::vector<std::string> drives{"C:"};
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    const std::string drive{letter, ':'};
    if (letter != 'C' && platform::DriveExists(program.Home, drive)) drives.push_back(drive);
  }
  return drives;
}

std::vector<std::string> HCSETUPFORM::FolderList() const { return SeasonNames(); }

bool HCSETUPFORM::ChooseDrive(const std::string& drive) {
  MarkClosed();
  const bool moved = tipline::ChooseDrive(drive);
  WriteStatus("Open");
  if (moved) FolderLabel = SeasonsRoot();
  return moved;
}

bool HCSETUPFORM::SaveCommand() {
  const std::string label = Upper(Trimmed(FolderLabel));
  if (label.ends_with("\\SEASONS") || label.ends_with("SEASONS\\")) {
    return platform::RefusedWith("Please select a season or hit cancel.");
  }
  if (!PushRecent(FolderLabel) || !OpenLeague()) return false;
  league.rules.CleanMark = 0;  // the new league is cleaned up at the next look
  if (!SaveRules()) return false;
  FindPhotoFolder();
  return true;
}

bool HCSETUPFORM::PickRecent(int entry) {
  if (entry < 1 || entry > static_cast<int>(program.RecentList.size())) return false;
  return OpenRecentLeague(program.RecentList[static_cast<std::size_t>(entry - 1)]);
}

}  // namespace tipline
