#include "base/record_file.h"

#include <algorithm>
#include <system_error>

#include "base/undo_journal.h"

namespace tipline {
namespace {

using platform::FileHandle;
using platform::Opening;

/// What the file holds from there on, zeros behind its end or without a file. False on an error.
bool Fill(const FileHandle& file, long long offset, std::span<u8> bytes) {
  const long long got = file.Open() ? file.ReadUpTo(offset, bytes.data(), bytes.size()) : 0;
  std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(std::max(got, 0LL)), bytes.end(), u8{0});
  return got >= 0;
}

/// By the only saver of the file: the temporary one is his.
bool Replace(const std::filesystem::path& path, std::string_view bytes, Saving saving) {
  auto temporary = path;
  temporary += ".new";
  std::error_code error;
  {
    FileHandle out(temporary, Opening::kOver);
    if (!out.Open()) return false;
    bool whole = out.WriteAt(0, reinterpret_cast<const u8*>(bytes.data()), bytes.size());
    whole = whole && (saving == Saving::kUnflushed || out.Flush());
    whole = out.Close() && whole;
    if (whole) std::filesystem::rename(temporary, path, error);
    if (whole && !error) return true;
  }
  std::filesystem::remove(temporary, error);
  return false;
}

}  // namespace

bool RecordFile::Exists() const {
  UndoUnfinished(path_);
  std::error_code error;
  return std::filesystem::is_regular_file(path_, error);
}

long long RecordFile::Bytes() const {
  bool ok = false;
  const FileHandle file = OpenToRead(path_, &ok);
  return file.Open() ? std::max(file.Length(), 0LL) : 0;
}

std::string RecordFile::Fault() const {
  u8 first = 0;
  if (ReadBytes(1, {&first, 1})) return "";
  if (!IsHalfChanged(path_)) return path_.string() + " can't be read.";
  return path_.string() + " is half changed, and the change can be neither undone nor waited for.";
}

bool RecordFile::ReadBytes(int n, std::span<u8> bytes) const {
  bool ok = true;
  const FileHandle file = n < 1 ? FileHandle() : OpenToRead(path_, &ok);
  return Fill(file, (n - 1LL) * slot_, bytes) && ok;
}

bool RecordFile::ReadSlots(std::span<const int> numbers,
                           const std::function<void(std::size_t, const u8*)>& visit) const {
  std::vector<u8> bytes(static_cast<std::size_t>(slot_));
  bool ok = false;
  const FileHandle file = OpenToRead(path_, &ok);
  for (std::size_t k = 0; ok && k < numbers.size(); ++k) {
    if (numbers[k] < 1) continue;
    ok = Fill(file, (numbers[k] - 1LL) * slot_, bytes);
    if (ok) visit(k, bytes.data());
  }
  return ok;
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

bool RecordFile::ReadAll(int count, const std::function<void(int, const u8*)>& visit) const {
  constexpr int kSlotsAtOnce = 64;
  const auto slot = static_cast<std::size_t>(slot_);
  std::vector<u8> buffer(slot * kSlotsAtOnce);
  bool ok = false;
  const FileHandle file = OpenToRead(path_, &ok);
  for (int n = 1; n <= count; n += kSlotsAtOnce) {
    ok = Fill(file, (n - 1LL) * slot_, buffer) && ok;
    for (int k = 0; k < kSlotsAtOnce && n + k <= count; ++k) {
      visit(n + k, buffer.data() + slot * static_cast<std::size_t>(k));
    }
  }
  return ok;
}

bool RecordFile::RewriteAll(int count, const std::function<void(int, u8*)>& fill) const {
  const auto slot = static_cast<std::size_t>(slot_);
  const SoleSaver saver(path_);
  if (!saver.Holds()) return false;
  const FileHandle old(path_, Opening::kRead);
  bool read = old.Missing();
  std::string bytes = old.Open() ? old.ReadAll(&read) : "";
  if (!read) return false;
  const std::size_t slots = std::max((bytes.size() + slot / 2) / slot, static_cast<std::size_t>(count));
  bytes.resize(slot * slots, '\0');
  for (std::size_t k = 0; k < slots; ++k) {
    fill(static_cast<int>(k) + 1, reinterpret_cast<u8*>(bytes.data()) + slot * k);
  }
  return Replace(path_, bytes, Saving::kFlushed);
}

std::string ReadWholeFile(const std::filesystem::path& path, bool* ok) {
  bool read = false;
  const FileHandle file = OpenToRead(path, &read);
  const std::string bytes = file.Open() ? file.ReadAll(&read) : "";
  if (ok) *ok = file.Open() && read;
  return bytes;
}

bool WriteWholeFile(const std::filesystem::path& path, std::string_view bytes, Saving saving) {
  const SoleSaver saver(path);
  return saver.Holds() && Replace(path, bytes, saving);
}

}  // namespace tipline
