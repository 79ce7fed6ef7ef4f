#include "league/report_file.h"

#include "base/record_file.h"
#include "league/files.h"
#include "league/program.h"

namespace tipline {

std::filesystem::path ReportFile() { return LeagueFile("VTX.txt"); }

bool WriteReportFile(std::string_view page) {
  const auto file = ReportFile();
  return file.empty() || WriteWholeFile(file, page, Saving::kUnflushed);
}

bool WriteReport(std::string_view name, std::string_view page) {
  program.ReportName = name;
  return Written(WriteReportFile(page), ReportFile());
}

}  // namespace tipline
