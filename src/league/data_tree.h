#pragma once
// The data tree: one top folder for all leagues and shared media on a drive of its own, and the list of
// recent leagues. Files and labels carry the tree's texts (`C:\orvex-data\...`); `program` the real paths.
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tipline {

/// Finds the drive of the tree: `program.DataDrive` from the program folder's drive file, or, where that says
/// nothing of use or names a drive that is not there, the drive of the data home, which is then written to
/// it.
void ReadDrive();
/// Moves the tree to another drive ("D:"): notes it, and makes the folders. False, with nothing changed, when
/// there is no such drive.
bool ChooseDrive(std::string_view drive);
/// A place of the tree as its text, below `<drive>\orvex-data\`.
std::string TreeText(std::string_view below);
/// The same as a real path.
std::filesystem::path TreePath(std::string_view below);
/// Makes the folders of the tree and, in the media folders, the stamp files of this edition. What can't be
/// made is passed over.
void MakeDataFolders();

/// Folder of all leagues on the tree's drive.
std::filesystem::path LeaguesFolder();
std::string SeasonsRoot();  ///< its text, which ends in a separator
/// Names of the folders under it, sorted; at most 999.
std::vector<std::string> SeasonNames();
/// The league of that name, an empty path when there is none such. For an empty `name` the current one,
/// whatever has become of it; an empty path when no league was ever current.
std::filesystem::path FindLeague(const std::string& name);

/// Drive, folders and list: fills `program.RecentList` from its file and makes entry 1 the current league,
/// `program.LeagueFolder`; the seasons root where the list says nothing of use.
void ReadRecentList();
/// Writes the list without repetitions, and makes entry 1 current. False when the file can't be written.
bool WriteRecentList();
/// Puts a league's text at the head of the list and writes it.
bool PushRecent(const std::string& folder);
/// The same for a season picked from the seasons list or the playoff switch: what stood at place 20 leaves.
bool PushSeason(const std::string& folder);
/// The same for a league of the seasons root, by its name.
bool MakeCurrent(const std::string& name);
/// A list entry as screens show it: drive, "...", and the last folder.
std::string ShortEntry(std::string_view folder);
/// The folder a tree text names.
std::filesystem::path RealFolder(std::string_view text);
/// Ends in one separator, not in two.
std::string Normalised(std::string_view folder);

}  // namespace tipline
