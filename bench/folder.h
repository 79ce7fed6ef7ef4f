#pragma once
// A data home for a benchmark, in the temporary folder and gone with the object.
#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "league/program.h"

namespace tipline {

class BenchFolder {
 public:
  BenchFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "tipline-bench-XXXXXX").string();
    if (!::mkdtemp(pattern.data())) throw std::runtime_error("no folder can be made beside " + pattern);
    home_ = pattern;
    program = {};
    program.Home = home_;
    program.ProgramFolder = home_ / "program";
    std::filesystem::create_directories(program.ProgramFolder);
  }
  ~BenchFolder() {
    program = {};
    std::error_code ignored;
    std::filesystem::remove_all(home_, ignored);
  }
  BenchFolder(const BenchFolder&) = delete;
  BenchFolder& operator=(const BenchFolder&) = delete;

  const std::filesystem::path& Home() const { return home_; }

 private:
  std::filesystem::path home_;
};

}  // namespace tipline
