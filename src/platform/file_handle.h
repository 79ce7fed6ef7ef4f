#pragma once
// An open file of this machine, closed with the object. For what the standard streams can't do: hold a file
// against other programs, cut it, flush it to the disk.
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>

namespace tipline::platform {

enum class Opening {
  kRead,    ///< a file that is there, to read; opening a pipe waits for nobody
  kChange,  ///< a file that is there, to read and write
  kNew,     ///< the same, but it must not be there yet
  kOver,    ///< to write from its beginning, whether it was there or not
};

/// How a file is held against the other programs that hold it.
enum class Holding { kShared, kAlone };
/// The longest wait for another program: a save takes much less, and one that is stopped must stop no other.
inline constexpr std::chrono::seconds kPatience{3};

class FileHandle {
 public:
  FileHandle() = default;
  /// A new file may be read by whom the user's mask lets.
  FileHandle(const std::filesystem::path& file, Opening opening);
  FileHandle(FileHandle&& other) noexcept
      : number_(std::exchange(other.number_, -1)), fault_(std::exchange(other.fault_, 0)) {}
  FileHandle& operator=(FileHandle&& other) noexcept {
    std::swap(number_, other.number_);
    std::swap(fault_, other.fault_);
    return *this;
  }
  ~FileHandle() { Close(); }

  bool Open() const { return number_ >= 0; }
  bool Missing() const;  ///< not open, because there is no such file
  bool Taken() const;    ///< not open, because a new one is there already
  bool Close();          ///< false when the system could not keep what was written
  /// Holds it until it is closed; false when others did for longer than kPatience. A drive that knows no
  /// such holding keeps nobody back.
  bool Hold(Holding holding) const;
  bool Removed() const;              ///< the open file has no name any more
  long long Length() const;          ///< in bytes, -1 when it can't be told
  bool Cut(long long length) const;  ///< cuts, or lengthens with zeros
  bool Flush() const;                ///< to the disk itself
  /// All of `size` bytes, else false.
  bool ReadAt(long long offset, std::uint8_t* bytes, std::size_t size) const;
  bool WriteAt(long long offset, const std::uint8_t* bytes, std::size_t size) const;
  /// As many of `size` bytes as there are before the end; -1 on an error.
  long long ReadUpTo(long long offset, std::uint8_t* bytes, std::size_t size) const;
  /// All that can be read, from files and pipes, once for each opening; empty, and `*ok` false, on an error.
  std::string ReadAll(bool* ok) const;

 private:
  int number_ = -1, fault_ = 0;
};

}  // namespace tipline::platform
