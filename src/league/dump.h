#pragma once
// Records of the files in words, from the descriptions that read and write them.
#include <ostream>
#include <string>
#include <string_view>

namespace tipline {

/// Prints record n of a file field by field: offset, name, value, meaning. The last part of `fileName` says
/// which format it is, letters large or small; a bare name lies in the league folder, era, setup and phrase
/// files in the program folder. False, and nothing printed, for another name or a record that does not begin
/// within the file.
bool DumpRecord(std::string_view fileName, int n, std::ostream& out);

/// Names of the files that have a format: "HCTEAMS, ... and Sked.skd".
std::string FormatNames();

/// The formats of all these files as a document in Markdown.
std::string FormatDocument();

}  // namespace tipline
