#include "platform/folders.h"

#include <algorithm>
#include <cstdlib>
#include <system_error>

namespace tipline::platform {
namespace {

namespace fs = std::filesystem;

fs::path Environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? fs::path(value) : fs::path();
}

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// One folder or file name of a tree text, without what the machine can't store or would read as "here" or
/// "one up".
std::string Component(std::string_view part) {
  std::string name(part);
  std::erase(name, '\0');
  const auto first = name.find_first_not_of(' ');
  if (first == std::string::npos) return "";
  name = name.substr(first, name.find_last_not_of(' ') - first + 1);
  return name.find_first_not_of(". ") == std::string::npos ? "" : name;
}

bool SameName(std::string_view a, std::string_view b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](char x, char y) { return lower(x) == lower(y); });
}

/// `name` as it is written in this folder: itself, or the first entry that differs in case only.
std::string AsWritten(const fs::path& folder, const std::string& name) {
  std::error_code error;
  if (fs::exists(folder / name, error)) return name;
  std::string found;
  for (const auto& entry : fs::directory_iterator(folder, error)) {
    const std::string other = entry.path().filename().string();
    if (SameName(other, name) && (found.empty() || other < found)) found = other;
  }
  return found.empty() ? name : found;
}

fs::path FolderOfProgram() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? fs::current_path(error) : program.parent_path();
}

}  // namespace

fs::path DataHome(std::string_view given) {
  if (!given.empty()) return fs::path(given);
  if (const auto home = Environment("TIPLINE_HOME"); !home.empty()) return home;
  if (const auto data = Environment("XDG_DATA_HOME"); !data.empty()) return data / "tipline";
  if (const auto user = Environment("HOME"); !user.empty()) return user / ".local" / "share" / "tipline";
  std::error_code error;
  return fs::temp_directory_path(error) / "tipline";
}

fs::path RealPath(const fs::path& home, std::string_view tree) {
  fs::path path = home;
  while (!tree.empty() && tree.front() == ' ') tree.remove_prefix(1);
  if (tree.size() >= 2 && tree[1] == ':' && IsLetter(tree[0])) {
    const char letter = static_cast<char>(tree[0] | 0x20);
    if (letter != 'c') path /= std::string("drive-") + letter;
    tree.remove_prefix(2);
  }
  while (!tree.empty()) {
    const auto end = std::min(tree.find_first_of("/\\"), tree.size());
    if (const auto name = Component(tree.substr(0, end)); !name.empty()) path /= AsWritten(path, name);
    tree.remove_prefix(std::min(end + 1, tree.size()));
  }
  return path;
}

bool DriveExists(const fs::path& home, std::string_view drive) {
  if (drive.size() != 2 || drive[1] != ':' || !IsLetter(drive[0])) return false;
  std::error_code error;
  return (drive[0] | 0x20) == 'c' || fs::is_directory(RealPath(home, drive), error);
}

fs::path ShippedData() {
  if (const auto given = Environment("TIPLINE_DATA"); !given.empty()) return given;
  std::error_code error;
  if (fs::is_directory(TIPLINE_SHIPPED_DATA, error)) return TIPLINE_SHIPPED_DATA;
  return FolderOfProgram() / "data";
}

}  // namespace tipline::platform
