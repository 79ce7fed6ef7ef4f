#include "base/replace_file.h"

#include <system_error>

#include "base/types.h"
#include "platform/file_handle.h"

namespace tipline {
namespace {

std::filesystem::path Beside(const std::filesystem::path& path) {
  auto temporary = path;
  temporary += ".new";
  return temporary;
}

}  // namespace

bool WriteBeside(const std::filesystem::path& path, std::string_view bytes, Saving saving) {
  platform::FileHandle out(Beside(path), platform::Opening::kOver);
  if (!out.Open()) return false;
  bool whole = out.WriteAt(0, reinterpret_cast<const u8*>(bytes.data()), bytes.size());
  whole = whole && (saving == Saving::kUnflushed || out.Flush());
  whole = out.Close() && whole;
  if (!whole) DropBeside(path);
  return whole;
}

bool TakePlace(const std::filesystem::path& path) {
  std::error_code error;
  std::filesystem::rename(Beside(path), path, error);
  return !error;
}

void DropBeside(const std::filesystem::path& path) {
  std::error_code ignored;
  std::filesystem::remove(Beside(path), ignored);
}

}  // namespace tipline
