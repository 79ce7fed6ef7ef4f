#include "league/report_file.h"

#include "base/undo_journal.h"
#include "league/files.h"
#include "league/program.h"

namespace tipline {

std::filesystem::path ReportFile() { return LeagueFile("VTX.txt"); }

bool WriteReportFile(std::string_view page) {
  const auto path = ReportFile();
  if (path.empty()) return true;
  platform::FileHandle file = OpenToChange(path);
  if (file.Missing()) file = platform::FileHandle(path, platform::Opening::kNew);
  return file.Open() && file.WriteAt(0, reinterpret_cast<const u8*>(page.data()), page.size()) &&
         file.Cut(static_cast<long long>(page.size())) && file.Close();
}

bool WriteReport(std::string_view name, std::string_view page) {
  program.ReportName = name;
  return Written(WriteReportFile(page), ReportFile());
}

}  // namespace tipline
