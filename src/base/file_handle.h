#pragma once
// An open file of this machine, closed with the object. For what the standard streams can't do: hold a file
// against other programs, cut it, flush it to the disk.
#include <filesystem>
#include <string>
#include <utility>

#include "base/types.h"

namespace tipline {

class FileHandle {
 public:
  FileHandle() = default;
  /// `flags` as `open` takes them (O_RDWR ...); a new file may be read by whom the user's mask lets.
  FileHandle(const std::filesystem::path& file, int flags);
  FileHandle(FileHandle&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  FileHandle& operator=(FileHandle&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~FileHandle() { Close(); }

  bool Open() const { return number_ >= 0; }
  bool Close();                      ///< false when the system could not keep what was written
  bool Hold() const;                 ///< waits until no other program holds it; held until it is closed
  bool Removed() const;              ///< the open file has no name any more
  long long Length() const;          ///< in bytes, -1 when it can't be told
  bool Cut(long long length) const;  ///< cuts, or lengthens with zeros
  bool Flush() const;                ///< to the disk itself
  /// All of `size` bytes, else false.
  bool ReadAt(long long offset, u8* bytes, std::size_t size) const;
  bool WriteAt(long long offset, const u8* bytes, std::size_t size) const;
  std::string ReadAll(bool* ok) const;

 private:
  int number_ = -1;
};

}  // namespace tipline
