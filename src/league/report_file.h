#pragma once
// The file that every report is written to, for the viewer: "VTX.txt" of the league folder.
#include <filesystem>
#include <string_view>

namespace tipline {

std::filesystem::path ReportFile();  ///< empty when no league is open

/// Writes a page over the last report, at once also within a group save: every game has one, and nothing is
/// lost with it. False when that failed; without an open league there is no file to write.
[[nodiscard]] bool WriteReportFile(std::string_view page);
/// The same, and keeps its name in `program.ReportName`. False, told, when it could not be written.
bool WriteReport(std::string_view name, std::string_view page);

}  // namespace tipline
