#pragma once
// An empty data home, gone with the object; program and league are fresh on both ends.
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "league/league.h"
#include "league/program.h"

namespace tipline {

class TemporaryHome {
 public:
  TemporaryHome() {
    std::string pattern = (std::filesystem::temp_directory_path() / "tipline-XXXXXX").string();
    if (!::mkdtemp(pattern.data())) throw std::runtime_error("no folder can be made beside " + pattern);
    home_ = pattern;
    Fresh();
    program.Home = home_;
    program.ProgramFolder = home_ / "program";
    std::filesystem::create_directories(program.ProgramFolder);
  }
  ~TemporaryHome() {
    Fresh();
    std::error_code ignored;
    std::filesystem::remove_all(home_, ignored);
  }
  TemporaryHome(const TemporaryHome&) = delete;
  TemporaryHome& operator=(const TemporaryHome&) = delete;

  const std::filesystem::path& Home() const { return home_; }

 private:
  static void Fresh() {
    league = {};
    program = {};
  }
  std::filesystem::path home_;
};

/// The same with the folder of a league "Demo" in it, which is open.
class TemporaryLeague : public TemporaryHome {
 public:
  TemporaryLeague() {
    program.LeagueFolder = Home() / "orvex-data" / "Basketball" / "Seasons" / "Demo";
    std::filesystem::create_directories(program.LeagueFolder);
  }

  /// A folder in a file's place: nothing can be read from it or written to it, whoever runs the tests.
  static void Block(const std::filesystem::path& file) {
    std::filesystem::remove_all(file);
    std::filesystem::create_directories(file);
  }
};

}  // namespace tipline
