#include "frontoffice/schedule_files.h"

#include <algorithm>

#include "base/record_file.h"
#include "league/files.h"
#include "league/program.h"
#include "league/rules.h"
#include "league/schedule.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

using platform::RefusedWith;

constexpr std::string_view kEnding = ".skd";
constexpr std::size_t kLongestName = 30;  // with its ending, as the rules hold it

/// File of the typed name; empty, told, when it can't be one or is there already.
std::filesystem::path NewFile(std::string_view typed) {
  const std::string name = std::string(Trimmed(typed)) + std::string(kEnding);
  const bool odd = std::any_of(name.begin(), name.end(), [](char c) {
    return static_cast<unsigned char>(c) < 32 || std::string_view("\\/:*?\"<>|").find(c) != std::string::npos;
  });
  if (name.size() == kEnding.size() || name.front() == '.' || odd) {
    RefusedWith("\"" + std::string(Trimmed(typed)) + "\" can't be the name of a schedule!");
    return {};
  }
  if (name.size() > kLongestName) {
    RefusedWith("The name of a schedule has at most " + std::to_string(kLongestName - kEnding.size()) +
                " characters!");
    return {};
  }
  for (const auto& taken : ScheduleFileList()) {
    if (!SameText(taken, name)) continue;
    RefusedWith(taken + " exists already!");
    return {};
  }
  return LeagueFile(name);
}

/// The spare copy follows the schedule that becomes current, so that it never fills another one's empty file.
bool FollowWithSpare(const std::filesystem::path& file) {
  bool read = false;
  const std::string bytes = ReadWholeFile(file, &read);
  return WasRead(read, file) && Written(WriteWholeFile(SpareSchedule(), bytes), SpareSchedule());
}

/// The rules name the current schedule; false, told and as before, when they can't be written.
bool SetCurrent(std::string_view name) {
  const auto before = league.rules.ScheduleFile;
  league.rules.ScheduleFile = name;
  if (SaveRules()) return true;
  league.rules.ScheduleFile = before;
  return false;
}

}  // namespace

std::vector<std::string> ScheduleFileList() {
  std::vector<std::string> names;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(program.LeagueFolder, error)) {
    const std::string name = entry.path().filename().string();
    if (entry.is_regular_file(error) && name.size() > kEnding.size() && Upper(name).ends_with(".SKD")) {
      names.push_back(name);
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

bool ChooseSchedule(std::string_view file) {
  for (const auto& name : ScheduleFileList()) {
    if (name != file || name.size() > kLongestName) continue;
    return FollowWithSpare(LeagueFile(name)) && SetCurrent(name) && LoadSchedule();
  }
  return RefusedWith("There is no schedule " + std::string(file) + " in this league!");
}

bool HCNEWSCHEDULE::CreateCommand() const {
  const auto file = NewFile(NameText);
  if (file.empty() || !Written(WriteWholeFile(file, ""), file)) return false;
  if (FollowWithSpare(file) && SetCurrent(file.filename().string())) return LoadSchedule();
  std::error_code error;
  std::filesystem::remove(file, error);
  return false;
}

bool HCNEWSCHEDULE::RenameCommand() const {
  const auto file = NewFile(NameText);
  const auto before = ScheduleFile();
  if (file.empty()) return false;
  std::error_code error;
  std::filesystem::rename(before, file, error);
  if (!Written(!error, file)) return false;
  if (SetCurrent(file.filename().string())) return LoadSchedule();
  std::filesystem::rename(file, before, error);
  return false;
}

}  // namespace tipline
