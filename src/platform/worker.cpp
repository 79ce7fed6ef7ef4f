#include "platform/worker.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <exception>
#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace tipline::platform {
namespace {

bool Try(const std::function<bool()>& work) {
  try {
    return work();
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace

Worker::Worker(const std::function<bool()>& work) {
  std::fflush(nullptr);  // what waits to be printed would be printed twice
  const pid_t parent = getpid();
  const pid_t process = fork();
  if (process > 0) {
    process_ = process;
  } else if (process < 0) {
    succeeded_ = Try(work);
  } else {
#ifdef __linux__
    prctl(PR_SET_PDEATHSIG, SIGKILL);  // nobody is left to take the results
    if (getppid() != parent) _exit(1);
#else
    (void)parent;
#endif
    _exit(Try(work) ? 0 : 1);
  }
}

Worker::~Worker() { Wait(); }

bool Worker::Collect(bool wait) {
  if (process_ == 0) return true;
  int status = 0;
  pid_t ended;
  do {
    ended = waitpid(process_, &status, wait ? 0 : WNOHANG);
  } while (ended < 0 && errno == EINTR);
  if (ended == 0) return false;
  succeeded_ = ended == process_ && WIFEXITED(status) && WEXITSTATUS(status) == 0;
  process_ = 0;
  return true;
}

void Worker::Stop() {
  if (process_ > 0) kill(process_, SIGKILL);
}

bool Worker::Running() { return !Collect(false); }

bool Worker::Wait() {
  Collect(true);
  return succeeded_;
}

}  // namespace tipline::platform
