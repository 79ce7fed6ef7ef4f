#pragma once
// The film of a game: a frame for each play that was told, written to a file and looked at again.
#include <filesystem>
#include <string>
#include <vector>

#include "league/film_record.h"

namespace tipline {

/// The rules keep the film of this game: one flag for games in which a human coaches, one for those between
/// computers. Only league games of an open league are kept.
bool FilmIsKept();

/// A frame of the lines in the buffer, with period, clock and score; a play of more than thirty lines takes a
/// second one. A frame behind the 500th overwrites it.
void AddFilmFrames();
/// Writes the frames of `game` to `file`, in slots of 2000 bytes. False, after telling the user, when that
/// failed; a game without frames writes nothing and is told too.
bool SaveFilm(const std::filesystem::path& file);

struct Film {
  std::vector<FilmFrame> frames;
  bool old = false;  ///< of the first kind: frames of 20 lines
};
/// Reads a film of either kind. An empty one, after telling the user, when the file can't be read or holds
/// no frame.
Film ReadFilm(const std::filesystem::path& file);

}  // namespace tipline
