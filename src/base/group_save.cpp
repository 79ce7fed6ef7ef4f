#include "base/group_save.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <optional>
#include <utility>

namespace tipline {
namespace {

namespace fs = std::filesystem;
using platform::FileHandle;
using platform::Holding;
using platform::Opening;

constexpr std::string_view kHeading = "TIPGROUP";
constexpr long long kMostBytes = 1LL << 40;  // of a file

GroupSave* underWay = nullptr;

fs::path JournalOf(const fs::path& folder) { return folder / "HcBooks.redo"; }

/// Eight bytes at a time: a game's journal is long.
std::uint64_t SumOf(std::string_view bytes) {
  std::uint64_t sum = 0xcbf29ce484222325u ^ bytes.size();
  for (; !bytes.empty(); bytes.remove_prefix(std::min<std::size_t>(8, bytes.size()))) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes.data(), std::min<std::size_t>(8, bytes.size()));
    sum = (sum ^ word) * 0x9e3779b97f4a7c15u;
    sum ^= sum >> 29;
  }
  return sum;
}

template <class Number>
void Put(std::string& to, Number number) {
  char bytes[sizeof number];
  std::memcpy(bytes, &number, sizeof number);
  to.append(bytes, sizeof number);
}

void PutText(std::string& to, std::string_view text) {
  Put(to, static_cast<std::uint64_t>(text.size()));
  to.append(text);
}

template <class Number>
bool Take(std::string_view& from, Number& number) {
  if (from.size() < sizeof number) return false;
  std::memcpy(&number, from.data(), sizeof number);
  from.remove_prefix(sizeof number);
  return true;
}

bool TakeText(std::string_view& from, std::string_view& text) {
  std::uint64_t size = 0;
  if (!Take(from, size) || size > from.size()) return false;
  text = from.substr(0, static_cast<std::size_t>(size));
  from.remove_prefix(text.size());
  return true;
}

using FileList = std::vector<std::pair<fs::path, GatheredFile>>;

/// Files are named from the folder: a league may be moved before its journal is carried out.
std::string NameFrom(const fs::path& folder, const fs::path& file) {
  if (file.parent_path() == folder) return file.filename().string();
  return fs::absolute(file).lexically_relative(fs::absolute(folder).lexically_normal()).string();
}

/// A journal comes with its folder, perhaps from somebody else: it may name files of the folder, and of the
/// two above it where all leagues lie.
bool IsSound(const fs::path& name) {
  auto part = name.begin();
  for (int up = 0; up < 2 && part != name.end() && *part == ".."; ++up) ++part;
  return part != name.end() && std::next(part) == name.end() && *part != ".." && *part != "." &&
         part->has_filename() && !part->has_root_path();
}

std::string JournalText(const fs::path& folder, const FileList& files) {
  std::string text(kHeading);
  Put(text, std::uint64_t{0});
  for (const auto& [path, file] : files) {
    PutText(text, NameFrom(folder, path));
    Put(text, static_cast<u8>(file.replaced));
    Put(text, file.length);
    PutText(text, file.whole);
    Put(text, static_cast<std::uint64_t>(file.pieces.size()));
    for (const FilePiece& piece : file.pieces) {
      Put(text, piece.offset);
      PutText(text, {reinterpret_cast<const char*>(piece.bytes.data()), piece.bytes.size()});
    }
  }
  const std::uint64_t length = text.size() + sizeof(std::uint64_t);
  std::memcpy(text.data() + kHeading.size(), &length, sizeof length);
  Put(text, SumOf(text));
  return text;
}

bool TakeFile(std::string_view& text, GatheredFile& file) {
  u8 replaced = 0;
  std::string_view whole;
  std::uint64_t count = 0;
  if (!Take(text, replaced) || !Take(text, file.length) || !TakeText(text, whole) || !Take(text, count))
    return false;
  if (file.length < 0 || file.length > kMostBytes) return false;
  file.replaced = replaced != 0;
  file.whole = whole;
  for (std::uint64_t k = 0; k < count; ++k) {
    FilePiece piece;
    std::string_view bytes;
    if (!Take(text, piece.offset) || !TakeText(text, bytes) || piece.offset < 0 || piece.offset > kMostBytes)
      return false;
    piece.bytes.assign(bytes.begin(), bytes.end());
    file.pieces.push_back(std::move(piece));
  }
  return true;
}

/// Nothing when the journal is not whole, or emptied: no file is half written then.
std::optional<FileList> ReadJournal(const fs::path& folder, std::string_view text) {
  std::uint64_t length = 0, sum = 0;
  constexpr std::size_t kHead = kHeading.size() + sizeof length;
  if (text.size() < kHead + sizeof sum || !text.starts_with(kHeading)) return {};
  std::memcpy(&length, text.data() + kHeading.size(), sizeof length);
  if (length < kHead + sizeof sum || length > text.size()) return {};
  text = text.substr(0, static_cast<std::size_t>(length));
  std::memcpy(&sum, text.data() + text.size() - sizeof sum, sizeof sum);
  text.remove_suffix(sizeof sum);
  if (SumOf(text) != sum) return {};
  text.remove_prefix(kHead);
  FileList files;
  while (!text.empty()) {
    std::string_view name;
    GatheredFile file;
    if (!TakeText(text, name) || !IsSound(fs::path(name)) || !TakeFile(text, file)) return {};
    files.emplace_back(folder / fs::path(name), std::move(file));
  }
  return files;
}

/// A file while the group is written into it.
class Target {
 public:
  Target(const fs::path& path, const GatheredFile& gathered) : path_(path), gathered_(gathered) {}

  /// What needs room on the disk: all that lies beyond the file's old end.
  bool MakeRoom() {
    data_ = OpenToChange(path_);
    if (data_.Missing()) {
      data_ = FileHandle(path_, Opening::kNew);
      made_ = data_.Open();
      if (!made_ || !data_.Hold(Holding::kAlone)) return false;
    }
    before_ = data_.Open() ? data_.Length() : -1;
    if (before_ < 0 || !WriteAll(before_, kNoEnd)) return false;
    return data_.Length() >= gathered_.length || data_.Cut(gathered_.length);
  }

  bool Finish() {
    if (!WriteAll(0, before_)) return false;
    const auto whole = static_cast<long long>(gathered_.whole.size());
    return (!gathered_.replaced || before_ <= whole || data_.Cut(whole)) && data_.Close();
  }

  /// As before MakeRoom.
  void TakeBack() {
    if (before_ >= 0) data_.Cut(before_);
    std::error_code ignored;
    if (made_) fs::remove(path_, ignored);
  }

 private:
  static constexpr long long kNoEnd = std::numeric_limits<long long>::max();

  /// What was gathered for the stretch of the file between two offsets.
  bool WriteAll(long long from, long long to) const {
    const auto write = [&](long long offset, const u8* bytes, std::size_t size) {
      const long long first = std::max(from, offset);
      const long long end = std::min(to, offset + static_cast<long long>(size));
      return first >= end ||
             data_.WriteAt(first, bytes + (first - offset), static_cast<std::size_t>(end - first));
    };
    if (gathered_.replaced)
      return write(0, reinterpret_cast<const u8*>(gathered_.whole.data()), gathered_.whole.size());
    return std::all_of(gathered_.pieces.begin(), gathered_.pieces.end(), [&](const FilePiece& piece) {
      return write(piece.offset, piece.bytes.data(), piece.bytes.size());
    });
  }

  const fs::path& path_;
  const GatheredFile& gathered_;
  FileHandle data_;
  long long before_ = -1;
  bool made_ = false;
};

enum class Written { kAll, kNothing, kHalf };

Written WriteFiles(const FileList& files) {
  std::vector<std::unique_ptr<Target>> targets;
  for (const auto& [path, file] : files) {
    targets.push_back(std::make_unique<Target>(path, file));
    if (targets.back()->MakeRoom()) continue;
    for (const auto& target : targets) target->TakeBack();
    return Written::kNothing;
  }
  for (const auto& target : targets) {
    if (!target->Finish()) return Written::kHalf;
  }
  return Written::kAll;
}

/// The journal of the folder, held by this program alone, with nothing to carry out in it; not open when
/// there can be none. It stays between two saves: a file that is made and removed again and again is dear.
FileHandle OwnJournal(const fs::path& folder) {
  for (int tries = 0; tries < 100; ++tries) {
    FileHandle journal(JournalOf(folder), Opening::kChange);
    if (journal.Missing()) journal = FileHandle(JournalOf(folder), Opening::kNew);
    if (!journal.Open() && journal.Taken()) continue;
    if (!journal.Open() || !journal.Hold(Holding::kAlone)) break;
    if (journal.Removed()) continue;
    char heading[kHeading.size()] = {};
    const long long got = journal.ReadUpTo(0, reinterpret_cast<u8*>(heading), sizeof heading);
    if (got >= 0 && std::string_view(heading, sizeof heading) != kHeading) return journal;
    journal.Close();
    if (!FinishGroupSave(folder)) break;
  }
  return {};
}

bool Empty(const FileHandle& journal) {
  constexpr u8 kNothing[kHeading.size()] = {};
  return journal.WriteAt(0, kNothing, sizeof kNothing);
}

}  // namespace

long long GatheredFile::Over(long long offset, u8* bytes, std::size_t size, long long got) const {
  const auto wanted = static_cast<long long>(size);
  if (replaced) {
    const auto there = static_cast<long long>(whole.size());
    const long long count = std::clamp<long long>(there - offset, 0, wanted);
    if (count > 0) std::memcpy(bytes, whole.data() + offset, static_cast<std::size_t>(count));
    return count;
  }
  const long long count = std::max(got, std::clamp<long long>(length - offset, 0, wanted));
  if (count > got) std::fill(bytes + got, bytes + count, u8{0});
  for (const FilePiece& piece : pieces) {
    const long long from = std::max(offset, piece.offset);
    const long long to = std::min(offset + count, piece.offset + static_cast<long long>(piece.bytes.size()));
    if (from < to) {
      std::memcpy(bytes + (from - offset), piece.bytes.data() + (from - piece.offset),
                  static_cast<std::size_t>(to - from));
    }
  }
  return count;
}

long long GatheredFile::LengthOver(long long fileLength) const {
  return replaced ? static_cast<long long>(whole.size()) : std::max(fileLength, length);
}

GroupSave::GroupSave(fs::path folder) : folder_(std::move(folder)), joined_(underWay != nullptr) {
  if (!joined_) underWay = this;
}

GroupSave::~GroupSave() {
  if (!joined_ && underWay == this) underWay = nullptr;
}

GatheredFile& GroupSave::Of(const fs::path& file) {
  const auto [entry, isNew] = files_.try_emplace(file.lexically_normal().native());
  if (isNew) order_.push_back(file);
  return entry->second;
}

bool Gathering() { return underWay != nullptr; }

const GatheredFile* Gathered(const fs::path& file) {
  if (!underWay) return nullptr;
  const auto entry = underWay->files_.find(file.lexically_normal().native());
  return entry == underWay->files_.end() ? nullptr : &entry->second;
}

bool Gather(const fs::path& file, std::vector<FilePiece> pieces, long long length) {
  if (!underWay) return false;
  GatheredFile& gathered = underWay->Of(file);
  for (FilePiece& piece : pieces) {
    const long long end = piece.offset + static_cast<long long>(piece.bytes.size());
    length = std::max(length, end);
    if (!gathered.replaced) {
      gathered.pieces.push_back(std::move(piece));
      continue;
    }
    gathered.whole.resize(std::max(gathered.whole.size(), static_cast<std::size_t>(end)), '\0');
    std::memcpy(gathered.whole.data() + piece.offset, piece.bytes.data(), piece.bytes.size());
  }
  if (gathered.replaced) {
    gathered.whole.resize(std::max(gathered.whole.size(), static_cast<std::size_t>(length)), '\0');
  }
  gathered.length = std::max(gathered.length, length);
  return true;
}

bool GatherWhole(const fs::path& file, std::string bytes) {
  if (!underWay) return false;
  GatheredFile& gathered = underWay->Of(file);
  gathered = {};
  gathered.replaced = true;
  gathered.whole = std::move(bytes);
  return true;
}

GroupSave::Kept GroupSave::Keep() {
  if (joined_) return Kept::kYes;  // the outer one keeps it
  underWay = nullptr;
  FileList files;
  for (const fs::path& path : order_)
    files.emplace_back(path, std::move(files_[path.lexically_normal().native()]));
  if (files.empty()) return Kept::kYes;
  const FileHandle journal = OwnJournal(folder_);
  if (!journal.Open()) return Kept::kNo;
  const std::string text = JournalText(folder_, files);
  if (!journal.WriteAt(0, reinterpret_cast<const u8*>(text.data()), text.size())) {
    Empty(journal);
    return Kept::kNo;
  }
  const Written written = WriteFiles(files);
  if (written == Written::kHalf || !Empty(journal)) return Kept::kLater;
  return written == Written::kAll ? Kept::kYes : Kept::kNo;
}

bool FinishGroupSave(const fs::path& folder) {
  if (folder.empty()) return true;
  const FileHandle journal(JournalOf(folder), Opening::kRead);
  if (!journal.Open()) return journal.Missing();
  if (!journal.Hold(Holding::kAlone)) return false;
  if (journal.Removed()) return true;  // its own program has finished
  bool read = false;
  const std::string text = journal.ReadAll(&read);
  if (!read) return false;
  const auto files = ReadJournal(folder, text);
  std::error_code error;
  if (!files) {  // nothing is to be done, even where it can't be removed
    fs::remove(JournalOf(folder), error);
    return true;
  }
  if (WriteFiles(*files) != Written::kAll) return false;
  return fs::remove(JournalOf(folder), error) && !error;
}

}  // namespace tipline
