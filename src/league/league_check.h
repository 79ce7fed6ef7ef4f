#pragma once
// Whether the files of a league can be what they should be, before anything reads, repairs or writes them.
#include <filesystem>
#include <string>

namespace tipline {

/// The first thing that is wrong with the files of a league folder, as one sentence; empty when they are
/// sound: whole tables, rules within their lists, rosters and players that belong to each other. Reads only.
std::string LeagueFault(const std::filesystem::path& folder);

/// The same of the era file; empty also when there is none.
std::string EraFault(const std::filesystem::path& file);

}  // namespace tipline
