#include "aftermath/text_lines.h"

#include "base/record_file.h"
#include "league/files.h"

namespace tipline {

bool AppendLines(const std::filesystem::path& file, const std::vector<std::string>& lines) {
  if (lines.empty()) return true;
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return Written(AppendToFile(file, text), file);
}

bool LoadLines(const std::filesystem::path& file, std::vector<std::string>& lines) {
  lines.clear();
  std::error_code error;
  if (!std::filesystem::exists(file, error)) return true;
  bool ok = false;
  const std::string text = ReadWholeFile(file, &ok);
  if (!WasRead(ok, file)) return false;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    lines.push_back(text.substr(at, end - at));
    if (!lines.back().empty() && lines.back().back() == '\r') lines.back().pop_back();
    at = end + 1;
  }
  return true;
}

}  // namespace tipline
