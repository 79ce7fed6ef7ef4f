#include "base/record_file.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <system_error>

#include "base/undo_journal.h"
#include "platform/file_handle.h"

namespace tipline {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

File OpenFile(const std::filesystem::path& path, const char* mode) {
  return File(std::fopen(path.c_str(), mode));
}

}  // namespace

bool RecordFile::Exists() const {
  UndoUnfinished(path_);
  std::error_code error;
  return std::filesystem::is_regular_file(path_, error);
}

long long RecordFile::Bytes() const {
  UndoUnfinished(path_);
  std::error_code error;
  const auto size = std::filesystem::file_size(path_, error);
  return error ? 0 : static_cast<long long>(size);
}

void RecordFile::ReadBytes(int n, u8* bytes, int length) const {
  std::fill(bytes, bytes + length, u8{0});
  if (n < 1) return;
  UndoUnfinished(path_);
  const File file = OpenFile(path_, "rb");
  if (!file || std::fseek(file.get(), static_cast<long>(n - 1) * slot_, SEEK_SET) != 0) return;
  [[maybe_unused]] const auto got = std::fread(bytes, 1, static_cast<std::size_t>(length), file.get());
}

bool RecordFile::WriteSlots(const Slots& slots) const {
  std::vector<FilePiece> pieces;
  long long end = 0;
  for (const auto& [n, bytes] : slots) {
    if (n < 1) return false;
    pieces.push_back({(n - 1LL) * slot_, bytes});
    end = std::max(end, static_cast<long long>(n) * slot_);
  }
  return pieces.empty() || ChangeInPlace(path_, pieces, end);
}

void RecordFile::ReadAll(int count, const std::function<void(int, const u8*)>& visit) const {
  constexpr int kSlotsAtOnce = 64;
  const auto slot = static_cast<std::size_t>(slot_);
  std::vector<u8> buffer(slot * kSlotsAtOnce);
  UndoUnfinished(path_);
  const File file = OpenFile(path_, "rb");
  for (int n = 1; n <= count; n += kSlotsAtOnce) {
    const std::size_t got = file ? std::fread(buffer.data(), 1, buffer.size(), file.get()) : 0;
    std::fill(buffer.begin() + static_cast<std::ptrdiff_t>(got), buffer.end(), u8{0});
    for (int k = 0; k < kSlotsAtOnce && n + k <= count; ++k) {
      visit(n + k, buffer.data() + slot * static_cast<std::size_t>(k));
    }
  }
}

bool RecordFile::RewriteAll(int count, const std::function<void(int, u8*)>& fill) const {
  const auto slot = static_cast<std::size_t>(slot_);
  bool read = false;
  std::string bytes = ReadWholeFile(path_, &read);
  std::error_code error;
  if (!read && std::filesystem::exists(path_, error)) return false;
  bytes.resize(slot * static_cast<std::size_t>(count), '\0');
  for (int n = 1; n <= count; ++n) {
    fill(n, reinterpret_cast<u8*>(bytes.data()) + slot * static_cast<std::size_t>(n - 1));
  }
  return WriteWholeFile(path_, bytes);
}

std::string ReadWholeFile(const std::filesystem::path& path, bool* ok) {
  std::string bytes;
  UndoUnfinished(path);
  const File file = OpenFile(path, "rb");
  std::size_t got = file ? 1 : 0;
  while (got > 0) {
    constexpr std::size_t kAtOnce = 1 << 16;
    const std::size_t before = bytes.size();
    bytes.resize(before + kAtOnce);
    got = std::fread(bytes.data() + before, 1, kAtOnce, file.get());
    bytes.resize(before + got);
  }
  const bool read = file && std::ferror(file.get()) == 0;
  if (!read) bytes.clear();
  if (ok) *ok = read;
  return bytes;
}

bool WriteWholeFile(const std::filesystem::path& path, std::string_view bytes) {
  // Shorter files hold nothing that is not soon told again, and a flush takes as long as a game.
  constexpr std::size_t kWorthAFlush = 4096;
  UndoUnfinished(path);  // later it would put old bytes into the new file
  auto temporary = path;
  temporary += ".new";
  std::error_code error;
  {
    platform::FileHandle out(temporary, platform::Opening::kOver);
    if (!out.Open()) return false;
    bool whole = out.WriteAt(0, reinterpret_cast<const u8*>(bytes.data()), bytes.size());
    whole = whole && (bytes.size() < kWorthAFlush || out.Flush());
    whole = out.Close() && whole;
    if (whole) std::filesystem::rename(temporary, path, error);
    if (whole && !error) return true;
  }
  std::filesystem::remove(temporary, error);
  return false;
}

}  // namespace tipline
