#pragma once
// The list of recent leagues: a text file of full paths as the data tree writes them, the current league
// first.
#include <filesystem>
#include <string>
#include <vector>

namespace tipline {

/// Folder of all leagues under the data home.
std::filesystem::path LeaguesFolder();

/// The league of that name, an empty path when there is none such. For an empty `name` the first of the
/// recent list, whatever has become of it; an empty path without a list.
std::filesystem::path FindLeague(const std::string& name);

/// Up to 30 entries, the current league first; empty without a list.
std::vector<std::string> RecentLeagues();

/// Puts a league at the top of the list. False when the list could not be written.
bool MakeCurrent(const std::string& name);

}  // namespace tipline
