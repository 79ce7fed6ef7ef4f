#pragma once
// The user's preferences: the program's setup file.
#include <filesystem>

#include "league/setup_record.h"

namespace tipline {

extern SetupRecord setup;

inline constexpr int kSetupSlotBytes = 30000;
std::filesystem::path SetupFile();  ///< of this edition, in the program folder

/// Finds the data tree, reads the recent list, then the setup file of this edition, in the program folder;
/// fills what its markers say was never set and holds the rest to its bounds. A missing, short or damaged
/// file gives the defaults; nothing is told.
void LoadSetup();
/// Notes the current league and writes the setup. False, after telling the user, when that failed.
bool SaveSetup();
/// The repairs of LoadSetup alone, on `setup`.
void RepairSetup();

// The buttons of the play-calling grid, `PlayCallFrequency`; a screen has a record of its own.
void UseDefaultCalls(SetupRecord& s = setup);  ///< the human calls some plays, and all when it counts
void CallNoPlays(SetupRecord& s = setup);
void CallAllPlays(SetupRecord& s = setup);

}  // namespace tipline
