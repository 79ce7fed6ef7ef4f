#pragma once
// A finished game as one record of 20000 bytes, BOX<n>.BOX of the league folder; the same record is the
// snapshot of a game under way ("TempBox") and the game file for the league's statistician.
#include <filesystem>
#include <string>

#include "aftermath/box_record.h"

namespace tipline {

inline constexpr int kBoxBytes = 20000;

/// "BOX17.BOX" for game 17 of SCORES.
std::string BoxFileNameOf(int n);

/// Takes the page from the report file where that is 100 bytes long or more, closes `Min` and `G` of the game
/// lines, fills the record from `game` and writes it under `program.BoxFileName` in the league folder, with
/// the play log beside it. False, told, when it could not be written.
bool SaveBoxFile();

/// Reads the record under `program.BoxFileName` into the game tables; `program.BoxRecordOnly` restores no
/// more than the scoring log, `program.ResumingGame` leaves out the adding to the season lines. False, told,
/// with the tables as they were, when the name is too short, the file is missing or can't be read.
bool LoadBoxFile();

/// The record alone, damaged or not; what a short file lacks reads as zeros. False when there is none.
bool ReadBox(const std::filesystem::path& file, BoxRecord& box);

}  // namespace tipline
