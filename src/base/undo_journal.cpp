#include "base/undo_journal.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_handle.h"

namespace tipline {
namespace {

namespace fs = std::filesystem;
using platform::FileHandle;
using platform::Opening;

constexpr std::string_view kHeading = "TIPUNDO1";
constexpr long long kNoFile = -1;  // as a length

/// What a file was before a change.
struct Before {
  long long length = kNoFile;
  std::vector<FilePiece> pieces;  // all inside that length
};

fs::path JournalOf(const fs::path& file) {
  auto journal = file;
  journal += ".undo";
  return journal;
}

std::uint64_t SumOf(std::string_view bytes) {
  std::uint64_t sum = 0xcbf29ce484222325u;
  for (const char c : bytes) sum = (sum ^ static_cast<u8>(c)) * 0x100000001b3u;
  return sum;
}

template <class Number>
void Put(std::string& to, Number number) {
  char bytes[sizeof number];
  std::memcpy(bytes, &number, sizeof number);
  to.append(bytes, sizeof number);
}

template <class Number>
bool Take(std::string_view& from, Number& number) {
  if (from.size() < sizeof number) return false;
  std::memcpy(&number, from.data(), sizeof number);
  from.remove_prefix(sizeof number);
  return true;
}

std::string JournalText(const Before& before) {
  std::string text(kHeading);
  Put(text, before.length);
  for (const FilePiece& piece : before.pieces) {
    Put(text, piece.offset);
    Put(text, static_cast<long long>(piece.bytes.size()));
    text.append(piece.bytes.begin(), piece.bytes.end());
  }
  Put(text, SumOf(text));
  return text;
}

/// Nothing when the journal is not whole: the change it was for had not begun.
std::optional<Before> ReadJournal(std::string_view text) {
  std::uint64_t sum = 0;
  if (text.size() < kHeading.size() + sizeof sum || !text.starts_with(kHeading)) return {};
  std::memcpy(&sum, text.data() + text.size() - sizeof sum, sizeof sum);
  text.remove_suffix(sizeof sum);
  if (SumOf(text) != sum) return {};
  text.remove_prefix(kHeading.size());
  Before before;
  if (!Take(text, before.length)) return {};
  while (!text.empty()) {
    FilePiece piece;
    long long size = 0;
    if (!Take(text, piece.offset) || !Take(text, size)) return {};
    if (size < 0 || static_cast<std::size_t>(size) > text.size()) return {};
    if (piece.offset < 0 || piece.offset > before.length - size) return {};
    piece.bytes.assign(text.begin(), text.begin() + size);
    text.remove_prefix(static_cast<std::size_t>(size));
    before.pieces.push_back(std::move(piece));
  }
  return before;
}

/// Makes the piece stand in the file. What the change never reached is left alone: where it failed, a write
/// of the old bytes would fail as well.
bool Stands(const FileHandle& data, const FilePiece& piece) {
  std::vector<u8> now(piece.bytes.size());
  if (data.ReadAt(piece.offset, now.data(), now.size()) && now == piece.bytes) return true;
  return data.WriteAt(piece.offset, piece.bytes.data(), piece.bytes.size());
}

bool PutBack(const fs::path& file, const Before& before) {
  std::error_code error;
  if (before.length == kNoFile) return fs::remove(file, error), !error;
  FileHandle data(file, Opening::kChange);
  if (!data.Open()) return data.Missing();  // removed since: there is nothing to mend
  bool whole = true;
  for (const FilePiece& piece : before.pieces) whole = Stands(data, piece) && whole;
  return data.Cut(before.length) && data.Close() && whole;
}

/// The journal, held by nobody else. Its saver died, or failed, with the change half made: it is undone. A
/// saver that finished has removed it.
void Undo(const fs::path& file, FileHandle& journal) {
  if (journal.Removed()) return;
  bool read = false;
  const std::string text = journal.ReadAll(&read);
  if (!read) return;
  const auto before = ReadJournal(text);
  if (before && !PutBack(file, *before)) return;
  std::error_code ignored;  // then it is undone once more at the next opening
  fs::remove(JournalOf(file), ignored);
}

/// A new, empty journal, held by this program alone; not open when there can be none.
FileHandle NewJournal(const fs::path& file) {
  constexpr int kTries = 20;  // each lost to another program that saves the same file
  for (int i = 0; i < kTries; ++i) {
    UndoUnfinished(file);
    FileHandle journal(JournalOf(file), Opening::kNew);
    if (!journal.Open() && !journal.Taken()) break;
    if (journal.Open() && journal.Hold() && !journal.Removed()) return journal;
  }
  return {};
}

std::optional<Before> LookBefore(const FileHandle& data, std::span<const FilePiece> pieces) {
  Before before;
  if (!data.Open()) return before;
  before.length = data.Length();
  if (before.length < 0) return {};
  for (const FilePiece& piece : pieces) {
    const auto size = static_cast<long long>(piece.bytes.size());
    const long long there = std::min(size, before.length - piece.offset);
    if (there <= 0) continue;
    FilePiece old{piece.offset, std::vector<u8>(static_cast<std::size_t>(there))};
    if (!data.ReadAt(old.offset, old.bytes.data(), old.bytes.size())) return {};
    before.pieces.push_back(std::move(old));
  }
  return before;
}

bool Apply(FileHandle& data, std::span<const FilePiece> pieces, long long length) {
  for (const FilePiece& piece : pieces) {
    if (!data.WriteAt(piece.offset, piece.bytes.data(), piece.bytes.size())) return false;
  }
  return (data.Length() >= length || data.Cut(length)) && data.Close();
}

}  // namespace

bool ChangeInPlace(const fs::path& file, std::span<const FilePiece> pieces, long long length) {
  if (file.empty()) return false;
  FileHandle journal = NewJournal(file);
  if (!journal.Open()) return false;
  FileHandle data(file, Opening::kChange);
  const bool missing = data.Missing();
  const auto before = data.Open() || missing ? LookBefore(data, pieces) : std::nullopt;
  bool whole = before.has_value();
  if (whole) {
    const std::string text = JournalText(*before);
    whole = journal.WriteAt(0, reinterpret_cast<const u8*>(text.data()), text.size());
  }
  if (whole && missing) data = FileHandle(file, Opening::kNew);
  whole = whole && data.Open() && Apply(data, pieces, length);
  std::error_code error;
  if (whole && fs::remove(JournalOf(file), error) && !error) return true;
  Undo(file, journal);
  return false;
}

void UndoUnfinished(const fs::path& file) {
  if (file.empty()) return;
  FileHandle journal(JournalOf(file), Opening::kChange);
  if (journal.Open() && journal.Hold()) Undo(file, journal);
}

}  // namespace tipline
