#pragma once
// Tables in comma-separated text.
#include <string>
#include <string_view>
#include <vector>

namespace tipline {

/// The fields of one line: commas part them, double quotes may hold a field, a doubled quote is one quote. A
/// trailing carriage return is dropped.
std::vector<std::string> CsvFields(std::string_view line);

/// The lines of a text, without their line ends; empty lines are left out.
std::vector<std::string> Lines(std::string_view text);

/// `field` as it must be written: in quotes when it holds a comma, a quote or a line end.
std::string CsvField(std::string_view field);

}  // namespace tipline
