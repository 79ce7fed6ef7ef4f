#pragma once
// Whether the files of a league can be what they should be, before anything reads, repairs or writes them.
#include <filesystem>
#include <string>
#include <vector>

namespace tipline {

/// Why a folder can't be opened as a league: there are no teams in it, or teams, players, plans, days off or
/// rules can't be read: repairs would put nobody, or defaults, in their place. Empty when it can; whatever
/// else its files lack is repaired. Reads only, but for saves that were cut short: one of a single file is
/// undone, one of a whole game is carried out.
std::string LeagueFault(const std::filesystem::path& folder);

/// What is wrong with the files of a league, alone and against each other, and what its opening would repair,
/// a sentence each; none when it is sound. `league` then holds the folder's rules, teams and schedule as they
/// stand, and `program.LeagueFolder` names it; no file is written.
std::vector<std::string> LeagueFindings(const std::filesystem::path& folder);

/// What is wrong with the era file, as one sentence; empty also when there is none.
std::string EraFault(const std::filesystem::path& file);

}  // namespace tipline
