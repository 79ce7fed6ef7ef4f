#include "platform/file_handle.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace tipline::platform {
namespace {

/// Calls move(done) for what is left until all of `size` is done; false on an error or when nothing moves.
template <class Move>
bool MoveAll(std::size_t size, Move&& move) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t moved = move(done);
    if (moved < 0 && errno == EINTR) continue;
    if (moved <= 0) return false;
    done += static_cast<std::size_t>(moved);
  }
  return true;
}

int Flags(Opening opening) {
  switch (opening) {
    case Opening::kNew:
      return O_RDWR | O_CREAT | O_EXCL;
    case Opening::kOver:
      return O_WRONLY | O_CREAT | O_TRUNC;
    default:
      return O_RDWR;
  }
}

}  // namespace

FileHandle::FileHandle(const std::filesystem::path& file, Opening opening)
    : number_(::open(file.c_str(), Flags(opening) | O_CLOEXEC, 0666)), fault_(number_ < 0 ? errno : 0) {}

bool FileHandle::Missing() const { return fault_ == ENOENT; }
bool FileHandle::Taken() const { return fault_ == EEXIST; }

bool FileHandle::Close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

bool FileHandle::Hold() const {
  int held = 0;
  do held = ::flock(number_, LOCK_EX);
  while (held != 0 && errno == EINTR);
  return held == 0;
}

bool FileHandle::Removed() const {
  struct stat state {};
  return ::fstat(number_, &state) == 0 && state.st_nlink == 0;
}

long long FileHandle::Length() const {
  struct stat state {};
  if (::fstat(number_, &state) != 0 || !S_ISREG(state.st_mode)) return -1;
  return state.st_size;
}

bool FileHandle::Cut(long long length) const { return ::ftruncate(number_, length) == 0; }

bool FileHandle::Flush() const { return ::fdatasync(number_) == 0; }

bool FileHandle::ReadAt(long long offset, std::uint8_t* bytes, std::size_t size) const {
  return MoveAll(size, [&](std::size_t done) {
    return ::pread(number_, bytes + done, size - done, offset + static_cast<long long>(done));
  });
}

bool FileHandle::WriteAt(long long offset, const std::uint8_t* bytes, std::size_t size) const {
  return MoveAll(size, [&](std::size_t done) {
    return ::pwrite(number_, bytes + done, size - done, offset + static_cast<long long>(done));
  });
}

std::string FileHandle::ReadAll(bool* ok) const {
  const long long length = Length();
  std::string bytes(length < 0 ? 0 : static_cast<std::size_t>(length), '\0');
  *ok = length >= 0 && ReadAt(0, reinterpret_cast<std::uint8_t*>(bytes.data()), bytes.size());
  return bytes;
}

}  // namespace tipline::platform
