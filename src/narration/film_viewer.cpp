#include "narration/film_viewer.h"

#include <algorithm>

#include "base/text.h"
#include "league/program.h"

namespace tipline {

HCGameFilmsList::HCGameFilmsList() : Heading("Games in " + program.LeagueFolder.filename().string()) {
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(program.LeagueFolder, error)) {
    const auto& path = entry.path();
    if (SameText(path.extension().string(), ".flm")) Files.push_back(path.filename().string());
  }
  std::sort(Files.begin(), Files.end());
}

bool HCFILM::Open(const std::string& file) {
  std::error_code error;
  const bool here = std::filesystem::exists(file, error) || program.LeagueFolder.empty();
  film = ReadFilm(here ? std::filesystem::path(file) : program.LeagueFolder / file);
  Play = 1;
  return Count() > 0;
}

void HCFILM::Scroll(int play) { Play = std::clamp(play, 1, std::max(1, Count())); }

std::vector<std::string> HCFILM::ShowPlay() const {
  std::vector<std::string> lines;
  for (int n = 1; n <= Frame().FilmLineCount; ++n) {
    std::string line = Frame().FilmLine[n].Str();
    if (line != "..") lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace tipline
