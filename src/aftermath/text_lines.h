#pragma once
// Text files of the league that grow by whole lines.
#include <filesystem>
#include <string>
#include <vector>

namespace tipline {

/// Appends lines, each with its end. No lines write nothing. False, told, when that failed.
bool AppendLines(const std::filesystem::path& file, const std::vector<std::string>& lines);
/// All lines without their ends; a missing file has none. False, told, when it can't be read.
bool LoadLines(const std::filesystem::path& file, std::vector<std::string>& lines);

}  // namespace tipline
