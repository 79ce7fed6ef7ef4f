#include "base/record_file.h"

#include <cstdio>
#include <fstream>
#include <memory>
#include <system_error>

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
  std::error_code error;
  return std::filesystem::is_regular_file(path_, error);
}

int RecordFile::Count() const {
  std::error_code error;
  const auto size = std::filesystem::file_size(path_, error);
  return error ? 0 : static_cast<int>(size / static_cast<unsigned>(slot_));
}

void RecordFile::ReadBytes(int n, u8* bytes, int length) const {
  std::fill(bytes, bytes + length, u8{0});
  if (n < 1) return;
  const File file = OpenFile(path_, "rb");
  if (!file || std::fseek(file.get(), static_cast<long>(n - 1) * slot_, SEEK_SET) != 0) return;
  [[maybe_unused]] const auto got = std::fread(bytes, 1, static_cast<std::size_t>(length), file.get());
}

bool RecordFile::WriteBytes(int n, const u8* bytes, int length) const {
  if (n < 1) return false;
  const long start = static_cast<long>(n - 1) * slot_;
  File file = OpenFile(path_, "r+b");
  if (!file) file = OpenFile(path_, "w+bx");  // x: a file that is there is never emptied
  if (!file || std::fseek(file.get(), start, SEEK_SET) != 0) return false;
  const auto size = static_cast<std::size_t>(length);
  if (std::fwrite(bytes, 1, size, file.get()) != size) return false;
  // A new slot at the end is filled up, so that the file's length stays a whole number of slots.
  if (std::fseek(file.get(), 0, SEEK_END) != 0) return false;
  if (std::ftell(file.get()) < start + slot_) {
    if (std::fseek(file.get(), start + slot_ - 1, SEEK_SET) != 0) return false;
    if (std::fputc(0, file.get()) == EOF) return false;
  }
  return std::fclose(file.release()) == 0;
}

void RecordFile::ReadAll(int count, const std::function<void(int, const u8*)>& visit) const {
  constexpr int kSlotsAtOnce = 64;
  const auto slot = static_cast<std::size_t>(slot_);
  std::vector<u8> buffer(slot * kSlotsAtOnce);
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
  auto temporary = path;
  temporary += ".new";
  std::error_code error;
  {
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    if (!out) return false;
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (out) std::filesystem::rename(temporary, path, error);
    if (out && !error) return true;
  }
  std::filesystem::remove(temporary, error);
  return false;
}

}  // namespace tipline
