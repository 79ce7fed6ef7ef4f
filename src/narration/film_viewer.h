#pragma once
// The films of a league, and one of them looked at play by play.
#include <filesystem>
#include <string>
#include <vector>

#include "narration/film.h"

namespace tipline {

/// The film files of the open league, by name.
struct HCGameFilmsList {
  std::string Heading;  ///< "Games in " and the league
  std::vector<std::string> Files;

  HCGameFilmsList();
};

/// A film and the play that is shown, 1 to Count(). Every step stays within the film.
struct HCFILM {
  Film film;
  int Play = 1;

  /// Opens a film; a name that is no file is looked for in the open league. False, told, when it holds no
  /// play.
  bool Open(const std::string& file);
  int Count() const { return static_cast<int>(film.frames.size()); }
  void FirstCommand() { Scroll(1); }
  void PreviousCommand() { Scroll(Play - 1); }
  void NextCommand() { Scroll(Play + 1); }
  void LastCommand() { Scroll(Count()); }
  void Scroll(int play);

  // What is shown of the play; a film is open.
  const FilmFrame& Frame() const { return film.frames[static_cast<std::size_t>(Play - 1)]; }
  /// Its lines in order, without pauses.
  std::vector<std::string> ShowPlay() const;
  std::string PlaceLabel() const { return std::to_string(Play) + " of " + std::to_string(Count()); }
};

}  // namespace tipline
