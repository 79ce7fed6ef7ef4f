#pragma once
// An empty data home with a league folder in it, gone with the object; the open league is fresh on both ends.
#include <filesystem>
#include <string>

#include "league/league.h"
#include "league/program.h"

namespace tipline {

class TemporaryLeague {
 public:
  explicit TemporaryLeague(const std::string& name = "Demo") {
    std::string pattern = (std::filesystem::temp_directory_path() / "tipline-XXXXXX").string();
    home_ = ::mkdtemp(pattern.data());
    Fresh();
    program.Home = home_;
    program.ProgramFolder = home_ / "program";
    program.LeagueFolder = home_ / "orvex-data" / "Basketball" / "Seasons" / name;
    std::filesystem::create_directories(program.ProgramFolder);
    std::filesystem::create_directories(program.LeagueFolder);
  }
  ~TemporaryLeague() {
    Fresh();
    std::error_code ignored;
    std::filesystem::remove_all(home_, ignored);
  }
  TemporaryLeague(const TemporaryLeague&) = delete;
  TemporaryLeague& operator=(const TemporaryLeague&) = delete;

  const std::filesystem::path& Home() const { return home_; }

  /// A folder in a file's place: nothing can be read from it or written to it, whoever runs the tests.
  static void Block(const std::filesystem::path& file) {
    std::filesystem::remove_all(file);
    std::filesystem::create_directories(file);
  }

 private:
  static void Fresh() {
    league = {};
    program = {};
  }
  std::filesystem::path home_;
};

}  // namespace tipline
