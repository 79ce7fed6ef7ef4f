#include "platform/command.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <thread>

extern char** environ;

namespace tipline::platform {

std::string FindCommand(const char* name) {
  const char* path = std::getenv("PATH");
  std::istringstream folders(path ? path : "");
  for (std::string folder; std::getline(folders, folder, ':');) {
    const std::string file = folder + "/" + name;
    std::error_code error;
    if (!folder.empty() && std::filesystem::is_regular_file(file, error) && access(file.c_str(), X_OK) == 0) {
      return file;
    }
  }
  return "";
}

pid_t StartCommand(const std::string& command, std::vector<std::string> arguments, int out) {
  std::vector<char*> argv;
  arguments.insert(arguments.begin(), command);
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  posix_spawn_file_actions_t files;
  if (posix_spawn_file_actions_init(&files) != 0) return 0;
  posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  if (out >= 0) {
    posix_spawn_file_actions_adddup2(&files, out, STDOUT_FILENO);
  } else {
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  }
  pid_t process = 0;
  if (posix_spawn(&process, command.c_str(), &files, nullptr, argv.data(), environ) != 0) process = 0;
  posix_spawn_file_actions_destroy(&files);
  return process;
}

Ending WaitForCommand(pid_t process, std::chrono::steady_clock::time_point end) {
  int status = 0;
  pid_t ended = 0;
  while ((ended = waitpid(process, &status, WNOHANG)) == 0) {
    if (std::chrono::steady_clock::now() >= end) {
      kill(process, SIGKILL);
      waitpid(process, nullptr, 0);
      return {};
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return {true, ended == process && WIFEXITED(status) && WEXITSTATUS(status) == 0};
}

}  // namespace tipline::platform
