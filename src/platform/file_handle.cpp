#include "platform/file_handle.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <thread>

namespace tipline::platform {
namespace {

/// Calls move(done) for what is left until all of `size` is done or nothing moves. Gives back what is done,
/// -1 on an error.
template <class Move>
long long MoveAll(std::size_t size, Move&& move) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t moved = move(done);
    if (moved < 0 && errno == EINTR) continue;
    if (moved < 0) return -1;
    if (moved == 0) break;
    done += static_cast<std::size_t>(moved);
  }
  return static_cast<long long>(done);
}

int Flags(Opening opening) {
  switch (opening) {
    case Opening::kRead:
      return O_RDONLY | O_NONBLOCK;
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
    : number_(::open(file.c_str(), Flags(opening) | O_CLOEXEC, 0666)), fault_(number_ < 0 ? errno : 0) {
  if (Open() && opening == Opening::kRead) ::fcntl(number_, F_SETFL, 0);  // bytes of a pipe are waited for
}

bool FileHandle::Missing() const { return fault_ == ENOENT; }
bool FileHandle::Taken() const { return fault_ == EEXIST; }

bool FileHandle::Close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

bool FileHandle::Hold(Holding holding) const {
  using namespace std::chrono;
  const auto end = steady_clock::now() + kPatience;
  const int kind = (holding == Holding::kAlone ? LOCK_EX : LOCK_SH) | LOCK_NB;
  for (auto pause = 50us; ::flock(number_, kind) != 0; pause = std::min<microseconds>(2 * pause, 5ms)) {
    if (errno == EINTR) continue;
    if (errno != EWOULDBLOCK) return Open();
    if (steady_clock::now() >= end) return false;
    std::this_thread::sleep_for(pause);
  }
  return true;
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

long long FileHandle::ReadUpTo(long long offset, std::uint8_t* bytes, std::size_t size) const {
  return MoveAll(size, [&](std::size_t done) {
    return ::pread(number_, bytes + done, size - done, offset + static_cast<long long>(done));
  });
}

bool FileHandle::ReadAt(long long offset, std::uint8_t* bytes, std::size_t size) const {
  return ReadUpTo(offset, bytes, size) == static_cast<long long>(size);
}

bool FileHandle::WriteAt(long long offset, const std::uint8_t* bytes, std::size_t size) const {
  const long long written = MoveAll(size, [&](std::size_t done) {
    return ::pwrite(number_, bytes + done, size - done, offset + static_cast<long long>(done));
  });
  return written == static_cast<long long>(size);
}

std::string FileHandle::ReadAll(bool* ok) const {
  constexpr std::size_t kAtOnce = 1 << 16;
  std::string bytes;
  long long got = kAtOnce;
  while (got == kAtOnce) {
    const std::size_t before = bytes.size();
    bytes.resize(before + kAtOnce);
    got = MoveAll(kAtOnce, [&](std::size_t done) {
      return ::read(number_, bytes.data() + before + done, kAtOnce - done);
    });
    bytes.resize(before + static_cast<std::size_t>(std::max(got, 0LL)));
  }
  *ok = got >= 0;
  if (!*ok) bytes.clear();
  return bytes;
}

}  // namespace tipline::platform
