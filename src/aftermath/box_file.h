#pragma once
// A finished game as one record of 20000 bytes, BOX<n>.BOX of the league folder; the same record is the
// snapshot of a game under way ("TempBox") and the game file for the league's statistician.
#include <filesystem>
#include <string>

#include "league/box_record.h"

namespace tipline {

/// "BOX17.BOX" for game 17 of SCORES.
std::string BoxFileNameOf(int n);

/// Takes the page that WriteBoxText wrote last, else the report file where that is 100 bytes long or more,
/// else the page that the box had; closes `Min` and `G` of the game lines, clears counts of shots that no man
/// can have, fills the record from `game` and writes it under `program.BoxFileName` in the league folder. A
/// name that ends in ".BOX" has the play log beside it; any other is a snapshot, which is not flushed to the
/// disk. False, told, when it could not be written. A league without a folder has no files: the lines are
/// closed, and that is all.
bool SaveBoxFile();

/// Reads the record under `program.BoxFileName` into the game tables. A side that holds the team already
/// keeps its records, any other takes the team's and men of whom only the box tells.
/// - `program.BoxRecordOnly`: no more than the scoring log is restored.
/// - `program.ResumingGame`: all that a snapshot holds, into two loaded teams. Otherwise each man's line is
///   added to his season line as well, so that several boxes in a row sum up.
/// The scoring log stays empty while a game is on. False, told, with the tables as they were, when the name
/// is too short, the file is missing, can't be read or names no two teams.
bool LoadBoxFile();

/// The record alone, damaged or not; what a short file lacks reads as zeros. False when there is none.
bool ReadBox(const std::filesystem::path& file, BoxRecord& box);

}  // namespace tipline
