#include "base/undo_journal.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

namespace tipline {
namespace {

namespace fs = std::filesystem;
using platform::FileHandle;
using platform::Holding;
using platform::Opening;
using Clock = std::chrono::steady_clock;

constexpr std::string_view kHeading = "TIPUNDO2";
constexpr long long kNoFile = -1;  // as a length

/// What a file was before a change.
struct Before {
  long long length = kNoFile;
  long long longest = 0;          // neither before nor after the change is the file longer
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
  Put(text, before.longest);
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
  if (!Take(text, before.length) || !Take(text, before.longest)) return {};
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

/// A file that is gone since, or longer than the change could leave it, is another one than it was for: there
/// is nothing to mend.
bool PutBack(const fs::path& file, const Before& before) {
  FileHandle data(file, Opening::kChange);
  if (!data.Open()) return data.Missing();
  if (data.Length() > before.longest) return true;
  std::error_code error;
  if (before.length == kNoFile) return fs::remove(file, error), !error;
  bool whole = true;
  for (const FilePiece& piece : before.pieces) whole = Stands(data, piece) && whole;
  return data.Cut(before.length) && data.Close() && whole;
}

bool RemoveJournal(const fs::path& file) {
  std::error_code error;
  return fs::remove(JournalOf(file), error) && !error;
}

/// The journal, held by nobody else. Its saver died, or failed, with the change half made: it is undone. A
/// saver that finished has removed it.
Undone Undo(const fs::path& file, const FileHandle& journal) {
  if (journal.Removed()) return Undone::kAll;
  bool read = false;
  const std::string text = journal.ReadAll(&read);
  if (!read) return Undone::kNot;
  const auto before = ReadJournal(text);
  if (before && !PutBack(file, *before)) return Undone::kNot;
  return RemoveJournal(file) ? Undone::kAll : Undone::kJournalStays;
}

/// A new, empty journal, held by this program alone: whoever has it is the only one who saves this file. Not
/// open when there can be none, or others save it again and again.
FileHandle NewJournal(const fs::path& file) {
  const auto end = Clock::now() + platform::kPatience;
  while (!file.empty() && UndoUnfinished(file) == Undone::kAll) {
    FileHandle journal(JournalOf(file), Opening::kNew);
    if (!journal.Open() && !journal.Taken()) break;
    if (journal.Open() && journal.Hold(Holding::kAlone) && !journal.Removed()) return journal;
    if (Clock::now() > end) break;
  }
  return {};
}

std::optional<Before> LookBefore(const FileHandle& data, std::span<const FilePiece> pieces,
                                 long long length) {
  Before before;
  if (data.Open()) {
    before.length = data.Length();
    if (before.length < 0) return {};
  }
  before.longest = std::max(before.length, length);
  for (const FilePiece& piece : pieces) {
    const auto size = static_cast<long long>(piece.bytes.size());
    before.longest = std::max(before.longest, piece.offset + size);
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
  const FileHandle journal = NewJournal(file);
  if (!journal.Open()) return false;
  FileHandle data(file, Opening::kChange);
  const bool missing = data.Missing();
  const bool held = data.Open() && data.Hold(Holding::kAlone);
  const auto before = held || missing ? LookBefore(data, pieces, length) : std::nullopt;
  bool begun = false;
  if (before) {
    const std::string text = JournalText(*before);
    begun = journal.WriteAt(0, reinterpret_cast<const u8*>(text.data()), text.size());
  }
  if (begun && missing) data = FileHandle(file, Opening::kNew);
  begun = begun && data.Open() && (held || data.Hold(Holding::kAlone));
  if (begun && Apply(data, pieces, length) && RemoveJournal(file)) return true;
  if (begun) {
    Undo(file, journal);
  } else {
    RemoveJournal(file);  // the file is as it was, or one that somebody else has just made
  }
  return false;
}

Undone UndoUnfinished(const fs::path& file) {
  if (file.empty()) return Undone::kAll;
  const FileHandle journal(JournalOf(file), Opening::kRead);
  if (!journal.Open()) return journal.Missing() ? Undone::kAll : Undone::kNot;
  return journal.Hold(Holding::kAlone) ? Undo(file, journal) : Undone::kNot;
}

bool IsHalfChanged(const fs::path& file) {
  std::error_code error;
  return !file.empty() && fs::is_regular_file(JournalOf(file), error);
}

FileHandle OpenToRead(const fs::path& file, bool* ok) {
  const auto end = Clock::now() + platform::kPatience;
  Undone undone = Undone::kAll;
  do {
    FileHandle data(file, Opening::kRead);
    if (data.Open() && !data.Hold(Holding::kShared)) break;
    // A saver first makes his journal and then waits until nobody reads.
    if (undone == Undone::kJournalStays || !IsHalfChanged(file)) {
      *ok = data.Open() || data.Missing();
      return data;
    }
    data.Close();
    undone = UndoUnfinished(file);
  } while (undone != Undone::kNot && Clock::now() < end);
  *ok = false;
  return {};
}

FileHandle OpenToChange(const fs::path& file) {
  const auto end = Clock::now() + platform::kPatience;
  while (UndoUnfinished(file) != Undone::kNot) {
    FileHandle data(file, Opening::kChange);
    if (!data.Open()) return data;
    if (!data.Hold(Holding::kAlone)) break;
    // A saver makes his journal first, then waits for the file, and only then looks what stands there.
    if (!data.Removed() && !IsHalfChanged(file)) return data;
    if (Clock::now() > end) break;
  }
  return {};
}

SoleSaver::SoleSaver(const fs::path& file) : file_(file), journal_(NewJournal(file)) {}

SoleSaver::~SoleSaver() {
  if (Holds()) RemoveJournal(file_);
}

}  // namespace tipline
