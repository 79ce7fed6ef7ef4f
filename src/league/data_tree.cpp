#include "league/data_tree.h"

#include <algorithm>

#include "base/csv.h"
#include "base/record_file.h"
#include "base/text.h"
#include "league/program.h"
#include "league/rules.h"
#include "platform/folders.h"

namespace tipline {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kListed = 31;        // entries that are read
constexpr std::size_t kWritten = 30;       // and written
constexpr std::size_t kShortestPath = 10;  // anything shorter names no league
constexpr std::string_view kHomeDrive = "C:";
constexpr std::size_t kSeasonsShown = 999;

fs::path DriveFile() { return program.ProgramFolder / "Orvex-Basketball-Drive"; }
fs::path ListFile() { return TreePath("Basketball\\Basketball-Recent"); }

std::string FirstLine(const fs::path& file) {
  const auto lines = Lines(ReadWholeFile(file));
  return lines.empty() ? "" : std::string(Trimmed(lines.front()));
}

bool IsDrive(std::string_view text) { return text.size() == 2 && text[1] == ':'; }

void MakeFolder(const fs::path& folder) {
  std::error_code ignored;  // told nowhere: what needs the folder says so itself
  fs::create_directories(folder, ignored);
}

void WriteQuietly(const fs::path& file, const std::string& line) {
  MakeFolder(file.parent_path());
  (void)WriteWholeFile(file, line + "\n");
}

std::string Unquoted(std::string_view line) {
  line = Trimmed(line);
  if (line.size() >= 2 && line.front() == '"' && line.back() == '"') line = line.substr(1, line.size() - 2);
  return std::string(Trimmed(line));
}

bool EndsInSeparator(std::string_view text) {
  return !text.empty() && (text.back() == '\\' || text.back() == '/');
}

void TakeCurrent() {
  program.LeagueFolder = RealFolder(program.RecentList.front());
  MakeFolder(program.LeagueFolder);
}

}  // namespace

void ReadDrive() {
  std::string drive = FirstLine(DriveFile());
  if (!IsDrive(drive) || !platform::DriveExists(program.Home, drive)) {
    drive = kHomeDrive;
    WriteQuietly(DriveFile(), drive);
  }
  program.DataDrive = drive;
}

bool ChooseDrive(std::string_view drive) {
  if (!IsDrive(drive) || !platform::DriveExists(program.Home, drive)) return false;
  WriteQuietly(DriveFile(), std::string(drive));
  ReadDrive();
  MakeDataFolders();
  return true;
}

std::string TreeText(std::string_view below) {
  return program.DataDrive + "\\orvex-data\\" + std::string(below);
}

fs::path TreePath(std::string_view below) { return RealFolder(TreeText(below)); }

void MakeDataFolders() {
  constexpr struct {
    std::string_view folder, stamp;
  } kFolders[] = {{"Seasons", ""},
                  {"PlayerPhotos", ""},
                  {"Uniforms", ""},
                  {"Sounds", "Basketball-Sound-Edition"},
                  {"Arenas", "Basketball-Arenas-Edition"},
                  {"Courts", "Basketball-Courts-Edition"},
                  {"TeamLogos", "Basketball-TeamLogos-Edition"}};
  const std::string edition = std::to_string(kEditionYear);
  for (const auto& place : kFolders) {
    const fs::path folder = TreePath("Basketball\\" + std::string(place.folder));
    MakeFolder(folder);
    if (place.stamp.empty() || FirstLine(folder / place.stamp) == edition) continue;
    WriteQuietly(folder / place.stamp, edition);
  }
}

std::string SeasonsRoot() { return TreeText("Basketball\\Seasons\\"); }
fs::path LeaguesFolder() { return RealFolder(SeasonsRoot()); }

std::vector<std::string> SeasonNames() {
  std::vector<std::string> names;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(LeaguesFolder(), error)) {
    const std::string name = entry.path().filename().string();
    if (entry.is_directory(error) && !name.starts_with(".")) names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  if (names.size() > kSeasonsShown) names.resize(kSeasonsShown);
  return names;
}

fs::path FindLeague(const std::string& name) {
  if (name.empty()) {
    ReadRecentList();
    const bool none = SameText(program.RecentList.front(), SeasonsRoot());
    return none ? fs::path() : program.LeagueFolder;
  }
  const bool plain = name.find_first_of("/\\") == std::string::npos && name != "." && name != "..";
  const auto folder = LeaguesFolder() / name;
  std::error_code error;
  return plain && fs::is_regular_file(folder / "HCTEAMS", error) ? folder : fs::path();
}

fs::path RealFolder(std::string_view text) { return platform::RealPath(program.Home, text); }

std::string Normalised(std::string_view folder) {
  std::string text(Trimmed(folder));
  while (text.size() >= 2 && EndsInSeparator(text) && EndsInSeparator({text.data(), text.size() - 1})) {
    text.pop_back();
  }
  if (!EndsInSeparator(text)) text += '\\';
  return text;
}

void ReadRecentList() {
  ReadDrive();
  MakeDataFolders();
  program.RecentList.clear();
  std::error_code error;
  if (!fs::exists(ListFile(), error)) WriteQuietly(ListFile(), "");
  for (const auto& line : Lines(ReadWholeFile(ListFile()))) {
    if (program.RecentList.size() < kListed) program.RecentList.push_back(Unquoted(line));
  }
  if (program.RecentList.empty()) program.RecentList.emplace_back();
  std::string& current = program.RecentList.front();
  if (current.size() < kShortestPath) current = SeasonsRoot();
  current = Normalised(current);
  TakeCurrent();
}

bool WriteRecentList() {
  std::vector<std::string> kept;
  for (std::size_t k = 0; k < std::min(program.RecentList.size(), kWritten); ++k) {
    const std::string& entry = program.RecentList[k];
    if (entry.size() <= kShortestPath) continue;
    const std::string folder = Normalised(entry);
    const auto same = [&folder](const std::string& other) { return SameText(other, folder); };
    if (std::none_of(kept.begin(), kept.end(), same)) kept.push_back(folder);
  }
  std::string text;
  for (const auto& folder : kept) text += '"' + folder + "\"\n";
  if (kept.empty()) kept.push_back(SeasonsRoot());
  program.RecentList = kept;
  MakeFolder(ListFile().parent_path());
  if (!WriteWholeFile(ListFile(), text)) return false;
  TakeCurrent();
  FindPhotoFolder();
  return true;
}

bool PushRecent(const std::string& folder) {
  program.RecentList.insert(program.RecentList.begin(), Normalised(folder));
  return WriteRecentList();
}

bool PushSeason(const std::string& folder) {
  constexpr std::size_t kSeasonsKept = 20;
  auto& list = program.RecentList;
  if (list.size() >= kSeasonsKept) list.erase(list.begin() + kSeasonsKept - 1);
  return PushRecent(folder);
}

bool MakeCurrent(const std::string& name) {
  ReadRecentList();
  return PushSeason(SeasonsRoot() + name);
}

std::string ShortEntry(std::string_view folder) {
  std::string_view path = folder;
  while (EndsInSeparator(path)) path.remove_suffix(1);
  const auto cut = path.find_last_of("/\\");
  const auto last = cut == std::string_view::npos ? path : path.substr(cut + 1);
  return std::string(folder.substr(0, 3)) + "..." + std::string(last);
}

}  // namespace tipline
