#pragma once
// The film of a league game, kept in the league's folder.
#include <string>

namespace tipline {

/// "11-Nov-05-Miami-Atlanta.flm": date, visitor and home team, for the game in hand.
std::string FilmName();

/// Writes the frames of the game into the league's folder and notes `program.LastFilmFile`, where the rules
/// keep the film and there is a frame. False, told, when it could not be written.
bool SaveGameFilm();

}  // namespace tipline
