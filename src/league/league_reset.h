#pragma once
// A league begins its season anew, and a folder is rid of what serves no more purpose.
#include <functional>
#include <string>

#include "base/types.h"

namespace tipline {

/// Told what is being done while it lasts: "Deleting player stats..".
using WorkLabel = std::function<void(const std::string&)>;

/// The open league as before its first game: record book, player, game and team results go, with
/// `realLifeToo` the real season lines as well; games of a cup go from the schedule, the others are played
/// again. Asks nothing; ends with "League Reset Complete!". False, after telling the user, when a file could
/// not be written; what comes after it is then as it was.
bool ResetLeague(bool realLifeToo = false, const WorkLabel& label = {});
/// The same without its last word.
bool ClearSeason(bool realLifeToo = false, const WorkLabel& label = {});
/// The part of it that clears results alone; it too reads teams and schedule anew.
bool ZeroStats(bool realLifeToo = false, const WorkLabel& label = {});

/// After asking, removes what CleanLeagueFolderRoutine finds, and says so. False when the answer is no or a
/// file could not be written.
bool CleanLeagueFolder();
/// Of two rows of one roster with the same man and real season one goes, first the one without replay games;
/// rows of HCPLAYER that are neither on a roster nor free agents are emptied. `league.player` follows.
bool CleanLeagueFolderRoutine();

inline constexpr u8 kCleaned = 133;  ///< `CleanMark` of a league whose folder has been cleaned
/// The same without a question, once in the life of a league: nothing where the rules say that it was done.
/// False, after telling the user, when a file could not be written.
bool CleanUnmarkedFolder();

}  // namespace tipline
