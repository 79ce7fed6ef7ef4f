#pragma once
// While it lives no file can grow past `bytes`, as on a full disk.
#include <sys/resource.h>

#include <csignal>

namespace tipline {

class SmallDisk {
 public:
  explicit SmallDisk(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    rlimit now = before_;
    now.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &now);
  }
  ~SmallDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signal_);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

 private:
  void (*signal_)(int);
  rlimit before_{};
};

}  // namespace tipline
