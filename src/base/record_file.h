#pragma once
// Files of equal slots: record n (from 1) starts at byte (n - 1) x slot length, a record may be shorter than
// its slot. A file is open for the length of one operation only. Whenever the program is killed, or the disk
// is full, a file holds all that an operation writes or nothing of it. Two programs at the same file change
// it one after the other, and neither reads a half change; no operation waits for the other one for long.
// Within a group save (base/group_save.h) writes are gathered, and reads see them.
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "base/record.h"
#include "base/replace_file.h"

namespace tipline {

class RecordFile {
 public:
  RecordFile(std::filesystem::path path, int slotLength) : path_(std::move(path)), slot_(slotLength) {}

  const std::filesystem::path& Path() const { return path_; }
  bool Exists() const;
  /// Length of the file, 0 when there is none or it can't be read.
  long long Bytes() const;
  /// Slots in it. A file may end with its last record instead of its slot: one that is more than half there
  /// counts.
  int Count() const { return static_cast<int>((Bytes() + slot_ / 2) / slot_); }

  /// Why a file that is there can't be read, as one sentence; empty when it can, or there is none.
  std::string Fault() const;

  /// Slot n filled into `record`; what lies past the end of the file, or of a missing one, reads as zeros,
  /// and so does a slot below 1. False, with `record` as it was, when the file is there and can't be read.
  template <Described R>
  bool Read(int n, R& record) const {
    std::vector<u8> bytes(static_cast<std::size_t>(R::kRecordSize));
    if (!ReadBytes(n, bytes)) return false;
    ReadRecord(bytes.data(), record);
    return true;
  }

  /// Some slots in one opening: visit(k, bytes) sees the whole slot numbers[k], zeros past the end; a number
  /// below 1 is passed over. False when the file is there and can't be read: some are then not visited.
  [[nodiscard]] bool ReadSlots(std::span<const int> numbers,
                               const std::function<void(std::size_t, const u8*)>& visit) const;

  /// Writes the record into slot n and keeps the bytes of the slot behind it; the file is made, and grows
  /// with zeros, as needed. False when the file could not be written.
  template <Described R>
  [[nodiscard]] bool Write(int n, const R& record) const {
    return WriteSlots({{n, RecordBytes(record)}});
  }

  /// Several records, each with the number of its slot, in the same way and in one step: all of them or none.
  using Slots = std::vector<std::pair<int, std::vector<u8>>>;
  [[nodiscard]] bool WriteSlots(const Slots& slots) const;

  /// One pass over slots 1 to `count` with one buffer; visit(n, bytes) sees whole slots, zeros past the end.
  /// It may not write this file. False when the file is there and can't be read, zeros then stand for the
  /// rest.
  bool ReadAll(int count, const std::function<void(int, const u8*)>& visit) const;

  /// Writes slots 1 to `count`, and all that the file has beyond them, in one pass: fill(n, bytes) gets
  /// each slot as it stands (zeros where new) and changes it, but reads and writes no file of this name. The
  /// new file, which ends behind the last slot, replaces the old one in one step. False, with the old file
  /// kept, when that failed or an old file is there and can't be read.
  [[nodiscard]] bool RewriteAll(int count, const std::function<void(int, u8*)>& fill) const;

 private:
  bool ReadBytes(int n, std::span<u8> bytes) const;
  bool GatherSlots(const Slots& slots) const;
  bool ReadToRewrite(std::string& bytes) const;

  std::filesystem::path path_;
  int slot_;
};

/// The whole file as bytes; an empty text when it can't be read (then `*ok`, if given, is false).
std::string ReadWholeFile(const std::filesystem::path& path, bool* ok = nullptr);

/// Writes a temporary file beside `path`, flushes it and renames it over it: a crash, or power loss, leaves
/// the old file or the new one (an unflushed one may be empty after power loss). False, with the old one
/// kept, when that failed.
[[nodiscard]] bool WriteWholeFile(const std::filesystem::path& path, std::string_view bytes,
                                  Saving saving = Saving::kFlushed);

/// Adds bytes to the end of a file, which is made when it is missing. False, with nothing added, when that
/// failed.
[[nodiscard]] bool AppendToFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace tipline
