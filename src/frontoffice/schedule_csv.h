#pragma once
// The schedule as comma-separated text: month, day, visitor, home for each game.
#include <filesystem>

namespace tipline {

/// Writes the games of `league.ScheduleGame` that are not deleted; what names no date or no team is passed
/// over. False, after telling the user, when the file can't be written.
bool ExportCsvSchedule(const std::filesystem::path& file);

/// Asks, then replaces the schedule, in memory and in its file, by the games of the text. False when the
/// answer was no; also, with a message that names what is wrong and nothing changed, at the first bad game.
bool HcImportCSVSchedule(const std::filesystem::path& file);

}  // namespace tipline
