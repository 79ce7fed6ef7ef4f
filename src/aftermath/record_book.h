#pragma once
// The record book: the five best of every category, in a game and in a season, of men and teams. One file
// HCRECORDS in the league folder, and one for all leagues in the data tree.
#include <filesystem>

namespace tipline {

/// Reads the book of a folder into `league.RecordBook`; the folder of the open league when it is empty. A
/// missing file opens empty. False, told, when it can't be read.
bool LoadRecordBook(const std::filesystem::path& folder = {});
/// Writes what changed since it was loaded. False, told, when that failed.
bool SaveRecordBook(const std::filesystem::path& folder = {});

/// Enter the game just ended, all of its men, both of its teams. A playoff game is no matter for the book.
void UpdatePlayerRecords();
void UpdateTeamRecords();

/// Folder of the book of all leagues.
std::filesystem::path AllTimeFolder();

}  // namespace tipline
