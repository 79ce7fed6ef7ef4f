#include "base/record_file.h"

#include <algorithm>
#include <optional>
#include <system_error>

#include "base/group_save.h"
#include "base/undo_journal.h"

namespace tipline {
namespace {

using platform::FileHandle;
using platform::Opening;

constexpr std::size_t kReadAtOnce = 256 * 1024;  // bytes

/// A file as a reader sees it: with what a group save under way has gathered for it.
class View {
 public:
  explicit View(const std::filesystem::path& path)
      : gathered_(Gathered(path)), file_(OpenToRead(path, &ok_)) {}

  bool Ok() const { return ok_; }
  bool There() const { return file_.Open() || gathered_; }
  long long Length() const {
    const long long length = file_.Open() ? std::max(file_.Length(), 0LL) : 0;
    return gathered_ ? gathered_->LengthOver(length) : length;
  }
  /// What the file holds from there on, zeros behind its end or without a file. False on an error.
  bool Fill(long long offset, std::span<u8> bytes) const {
    long long got = file_.Open() ? file_.ReadUpTo(offset, bytes.data(), bytes.size()) : 0;
    const bool read = got >= 0;
    got = std::max(got, 0LL);
    if (gathered_) got = gathered_->Over(offset, bytes.data(), bytes.size(), got);
    std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(got), bytes.end(), u8{0});
    return read;
  }
  std::string All(bool* read) const {
    if (!gathered_) return file_.Open() ? file_.ReadAll(read) : "";
    std::string bytes(static_cast<std::size_t>(Length()), '\0');
    *read = Fill(0, {reinterpret_cast<u8*>(bytes.data()), bytes.size()});
    return bytes;
  }

 private:
  bool ok_ = false;
  const GatheredFile* gathered_;
  FileHandle file_;
};

/// By the only saver of the file.
bool Replace(const std::filesystem::path& path, std::string_view bytes, Saving saving) {
  if (!WriteBeside(path, bytes, saving)) return false;
  if (TakePlace(path)) return true;
  DropBeside(path);
  return false;
}

/// In the group under way, or at once.
bool Change(const std::filesystem::path& path, std::vector<FilePiece> pieces, long long end) {
  return Gathering() ? Gather(path, std::move(pieces), end) : ChangeInPlace(path, pieces, end);
}

}  // namespace

bool RecordFile::Exists() const {
  if (Gathered(path_)) return true;
  UndoUnfinished(path_);
  std::error_code error;
  return std::filesystem::is_regular_file(path_, error);
}

long long RecordFile::Bytes() const { return View(path_).Length(); }

std::string RecordFile::Fault() const {
  u8 first = 0;
  if (ReadBytes(1, {&first, 1})) return "";
  if (!IsHalfChanged(path_)) return path_.string() + " can't be read.";
  return path_.string() + " is half changed, and the change can be neither undone nor waited for.";
}

bool RecordFile::ReadBytes(int n, std::span<u8> bytes) const {
  if (n >= 1) {
    const View file(path_);
    return file.Fill((n - 1LL) * slot_, bytes) && file.Ok();
  }
  std::fill(bytes.begin(), bytes.end(), u8{0});
  return true;
}

bool RecordFile::ReadSlots(std::span<const int> numbers,
                           const std::function<void(std::size_t, const u8*)>& visit) const {
  const auto slot = static_cast<std::size_t>(slot_);
  std::vector<u8> bytes;
  const View file(path_);
  bool ok = file.Ok();
  for (std::size_t k = 0; ok && k < numbers.size();) {
    if (numbers[k] < 1) {
      ++k;
      continue;
    }
    std::size_t run = 1;  // neighbors are read at once
    while (k + run < numbers.size() && numbers[k + run] == numbers[k] + static_cast<int>(run)) ++run;
    bytes.resize(run * slot);
    ok = file.Fill((numbers[k] - 1LL) * slot_, bytes);
    for (std::size_t n = 0; ok && n < run; ++n) visit(k + n, bytes.data() + n * slot);
    k += run;
  }
  return ok;
}

/// In a group: what changes nothing is left out.
bool RecordFile::GatherSlots(const Slots& slots) const {
  const auto slot = static_cast<std::size_t>(slot_);
  const View file(path_);
  if (!file.Ok()) return false;
  std::vector<FilePiece> pieces;
  std::vector<u8> before;
  const long long length = file.Length();
  long long end = 0;
  for (std::size_t k = 0; k < slots.size();) {
    // Slots that lie near one another are read at once.
    const int first = slots[k].first;
    std::size_t count = 1;
    while (k + count < slots.size() && slots[k + count].first > slots[k + count - 1].first &&
           (slots[k + count].first - first) * slot < kReadAtOnce)
      ++count;
    const auto span = static_cast<std::size_t>(slots[k + count - 1].first - first + 1);
    const long long from = (first - 1LL) * slot_;
    before.resize(span * slot);
    if (first < 1 || !file.Fill(from, before)) return false;
    for (; count > 0; --count, ++k) {
      const auto& [n, bytes] = slots[k];
      const u8* old = before.data() + static_cast<std::size_t>(n - first) * slot;
      end = std::max(end, static_cast<long long>(n) * slot_);
      const bool same =
          n * static_cast<long long>(slot_) <= length && std::equal(bytes.begin(), bytes.end(), old);
      if (same) continue;
      // A whole slot, so that neighbors make one piece.
      std::vector<u8> whole(old, old + slot);
      std::copy_n(bytes.begin(), std::min(bytes.size(), slot), whole.begin());
      const long long at = (n - 1LL) * slot_;
      if (!pieces.empty() &&
          pieces.back().offset + static_cast<long long>(pieces.back().bytes.size()) == at) {
        pieces.back().bytes.insert(pieces.back().bytes.end(), whole.begin(), whole.end());
      } else {
        pieces.push_back({at, std::move(whole)});
      }
    }
  }
  return pieces.empty() || Gather(path_, std::move(pieces), end);
}

bool RecordFile::WriteSlots(const Slots& slots) const {
  if (Gathering()) return GatherSlots(slots);
  std::vector<FilePiece> pieces;
  long long end = 0;
  for (const auto& [n, bytes] : slots) {
    if (n < 1) return false;
    pieces.push_back({(n - 1LL) * slot_, bytes});
    end = std::max(end, static_cast<long long>(n) * slot_);
  }
  return pieces.empty() || Change(path_, std::move(pieces), end);
}

bool RecordFile::ReadAll(int count, const std::function<void(int, const u8*)>& visit) const {
  const auto slot = static_cast<std::size_t>(slot_);
  const int atOnce = std::max(1, static_cast<int>(kReadAtOnce / slot));
  std::vector<u8> buffer(slot * static_cast<std::size_t>(std::min(atOnce, std::max(count, 1))));
  const View file(path_);
  bool ok = file.Ok();
  for (int n = 1; n <= count; n += atOnce) {
    ok = file.Fill((n - 1LL) * slot_, buffer) && ok;
    for (int k = 0; k < atOnce && n + k <= count; ++k) {
      visit(n + k, buffer.data() + slot * static_cast<std::size_t>(k));
    }
  }
  return ok;
}

bool RecordFile::RewriteAll(int count, const std::function<void(int, u8*)>& fill) const {
  const auto slot = static_cast<std::size_t>(slot_);
  std::optional<SoleSaver> saver;
  if (!Gathering()) saver.emplace(path_);
  if (saver && !saver->Holds()) return false;
  std::string bytes;
  if (!ReadToRewrite(bytes)) return false;
  const std::size_t slots = std::max((bytes.size() + slot / 2) / slot, static_cast<std::size_t>(count));
  bytes.resize(slot * slots, '\0');
  for (std::size_t k = 0; k < slots; ++k) {
    fill(static_cast<int>(k) + 1, reinterpret_cast<u8*>(bytes.data()) + slot * k);
  }
  return saver ? Replace(path_, bytes, Saving::kFlushed) : GatherWhole(path_, std::move(bytes));
}

/// The old bytes, by the saver who holds the file or within a group; empty where there is no file.
bool RecordFile::ReadToRewrite(std::string& bytes) const {
  bool read = true;
  if (Gathering()) {
    const View file(path_);
    if (file.There()) bytes = file.All(&read);
    return file.Ok() && read;
  }
  const FileHandle old(path_, Opening::kRead);
  read = old.Missing();
  if (old.Open()) bytes = old.ReadAll(&read);
  return read;
}

std::string ReadWholeFile(const std::filesystem::path& path, bool* ok) {
  const View file(path);
  bool read = false;
  const std::string bytes = file.There() ? file.All(&read) : "";
  if (ok) *ok = file.Ok() && read;
  return bytes;
}

bool WriteWholeFile(const std::filesystem::path& path, std::string_view bytes, Saving saving) {
  if (Gathering()) return GatherWhole(path, std::string(bytes));
  const SoleSaver saver(path);
  return saver.Holds() && Replace(path, bytes, saving);
}

bool AppendToFile(const std::filesystem::path& path, std::string_view bytes) {
  const long long end = View(path).Length();
  FilePiece piece{end, {bytes.begin(), bytes.end()}};
  return Change(path, {std::move(piece)}, end + static_cast<long long>(bytes.size()));
}

}  // namespace tipline
