#include "cli/stop_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstring>

namespace tipline::cli {
namespace {

char closedFile[4096];  // a signal handler can't allocate

extern "C" void Stopped(int signal) {
  constexpr char kClosed[] = "Closed\n";
  const int file = open(closedFile, O_WRONLY | O_TRUNC);
  if (file >= 0) {
    [[maybe_unused]] const auto written = write(file, kClosed, sizeof kClosed - 1);
    close(file);
  }
  if (isatty(STDOUT_FILENO)) {
    constexpr char kPlain[] = "\033[0m\n";  // lines are read as they are typed: only the letters may be bold
    [[maybe_unused]] const auto written = write(STDOUT_FILENO, kPlain, sizeof kPlain - 1);
  }
  _exit(128 + signal);
}

volatile std::sig_atomic_t noted = 0;
constexpr int kNoted[] = {SIGINT, SIGTERM, SIGHUP};

extern "C" void Note(int signal) {
  noted = signal;
  for (const int each : kNoted) std::signal(each, Stopped);
}

}  // namespace

StopRequest::StopRequest() {
  noted = 0;
  Resume();
}

StopRequest::~StopRequest() { Pause(); }

int StopRequest::Signal() { return noted; }

void StopRequest::Pause() {
  for (const int each : kNoted) std::signal(each, Stopped);
}

void StopRequest::Resume() {
  for (const int each : kNoted) std::signal(each, Note);
}

void CloseOnSignals(const std::string& statusFile) {
  std::strncpy(closedFile, statusFile.c_str(), sizeof closedFile - 1);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE}) std::signal(signal, Stopped);
}

}  // namespace tipline::cli
