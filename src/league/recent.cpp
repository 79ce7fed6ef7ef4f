#include "league/recent.h"

#include <algorithm>

#include "base/csv.h"
#include "base/record_file.h"
#include "league/program.h"
#include "platform/folders.h"

namespace tipline {
namespace {

constexpr std::size_t kEntries = 30;
constexpr std::string_view kSeasons = "C:\\orvex-data\\Basketball\\Seasons\\";

std::filesystem::path ListFile() {
  return platform::RealPath(program.Home, "C:\\orvex-data\\Basketball\\Basketball-Recent");
}

bool IsLeague(const std::filesystem::path& folder) {
  std::error_code error;
  return !folder.empty() && std::filesystem::is_regular_file(folder / "HCTEAMS", error);
}

}  // namespace

std::filesystem::path LeaguesFolder() { return platform::RealPath(program.Home, kSeasons); }

std::filesystem::path FindLeague(const std::string& name) {
  if (!name.empty()) {
    const bool plain = name.find_first_of("/\\") == std::string::npos && name != "." && name != "..";
    const auto folder = LeaguesFolder() / name;
    return plain && IsLeague(folder) ? folder : std::filesystem::path();
  }
  const auto recent = RecentLeagues();
  return recent.empty() ? std::filesystem::path() : platform::RealPath(program.Home, recent.front());
}

std::vector<std::string> RecentLeagues() {
  auto entries = Lines(ReadWholeFile(ListFile()));
  if (entries.size() > kEntries) entries.resize(kEntries);
  return entries;
}

bool MakeCurrent(const std::string& name) {
  const std::string entry = std::string(kSeasons) + name + "\\";
  auto entries = RecentLeagues();
  entries.erase(std::remove(entries.begin(), entries.end(), entry), entries.end());
  entries.insert(entries.begin(), entry);
  if (entries.size() > kEntries) entries.resize(kEntries);
  std::string text;
  for (const auto& line : entries) text += line + "\n";
  std::error_code error;
  std::filesystem::create_directories(ListFile().parent_path(), error);
  return WriteWholeFile(ListFile(), text);
}

}  // namespace tipline
