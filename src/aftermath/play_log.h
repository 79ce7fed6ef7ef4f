#pragma once
// The plays of a game, row by row: as text, and in a file beside the box of a stored game.
#include <filesystem>
#include <string>

#include "engine/game_state.h"

namespace tipline {

/// A row of the play log in words, cut to the widths of its columns: clock 6, team 3, name 12, action 10,
/// outcome 6, score 7, note 25.
struct PlayText {
  int Period = 0;
  std::string Clock, Abbrev, Name, Action, Outcome, Score, Note;
};
PlayText TextOf(const PlayLogRow& row);

/// "8:42", in the last minute "0:08.4".
std::string ClockText(int tenths);

/// "BOX17.PLY" beside "BOX17.BOX".
std::filesystem::path PlayLogBeside(const std::filesystem::path& box);

/// Writes the plays of `game` to the file. False when that failed.
[[nodiscard]] bool SavePlayLog(const std::filesystem::path& file);
/// Reads such a file into `game`; rows that can't be of a game are left out. False, with an empty log, when
/// there is none or it can't be read.
bool ReadPlayLog(const std::filesystem::path& file);

}  // namespace tipline
