#pragma once
// A data home of its own for one test, gone with it.
#include <cstdlib>
#include <filesystem>

#include "league/program.h"

namespace tipline {

class TempHome {
 public:
  TempHome() {
    auto pattern = (std::filesystem::temp_directory_path() / "tipline-test-XXXXXX").string();
    path_ = ::mkdtemp(pattern.data());
    program.Home = path_;
    program.ProgramFolder = path_ / "program";
  }
  ~TempHome() {
    program = before_;
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }
  const std::filesystem::path& Path() const { return path_; }

 private:
  Program before_ = program;
  std::filesystem::path path_;
};

}  // namespace tipline
