#pragma once
// The leagues that a user can choose from, seen from outside: nothing here opens one, or writes a file of it.
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tipline {

/// What the teams of a league say of it.
struct LeagueGlance {
  std::string Kind;    ///< "pro", "college, women": by its first team
  std::string Season;  ///< "2022", or "1968-2022" where the teams are of several years
  int Teams = 0;       ///< active ones
};

/// A look into a folder; nothing when it can't be opened as a league.
std::optional<LeagueGlance> GlanceAt(const std::filesystem::path& folder);

struct KnownLeague {
  std::string Name;    ///< last part of the folder
  std::string Folder;  ///< text of the data tree, which ends in a separator
  bool Recent = false;
  bool Current = false;
};

/// The recent leagues, the current one first, then the others of the seasons root by name. Reads the recent
/// list anew.
std::vector<KnownLeague> KnownLeagues();
/// The first of them of that name, or with that folder, one written just so before one in another case;
/// nothing when there is none.
std::optional<KnownLeague> FindKnownLeague(const std::string& nameOrFolder);

}  // namespace tipline
