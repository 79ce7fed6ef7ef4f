#include "league/report_file.h"

#include "base/record_file.h"
#include "league/files.h"
#include "league/program.h"

namespace tipline {

std::filesystem::path ReportFile() { return LeagueFile("VTX.txt"); }

bool WriteReport(std::string_view name, std::string_view page) {
  program.ReportName = name;
  const auto file = ReportFile();
  return file.empty() || Written(WriteWholeFile(file, page, Saving::kUnflushed), file);
}

}  // namespace tipline
