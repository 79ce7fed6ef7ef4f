#include "aftermath/game_film.h"

#include <cstdio>

#include "base/calendar.h"
#include "base/numbers.h"
#include "engine/game_state.h"
#include "league/files.h"
#include "league/program.h"
#include "narration/film.h"

namespace tipline {
namespace {

/// A team's name as a part of a file name.
std::string Cleaned(std::string name) {
  std::erase_if(name, [](char c) {
    return std::string_view("/\\*-@#!&%$").find(c) != std::string_view::npos ||
           static_cast<unsigned char>(c) < ' ';
  });
  return name;
}

}  // namespace

std::string FilmName() {
  const int month = CalendarMonth(Clamp(game.GameMonth, 1, 12));
  char date[16];
  std::snprintf(date, sizeof date, "%02d-%.3s-%02d", month, MonthName(month).data(),
                Clamp(game.GameDay, 0, 99));
  return std::string(date) + "-" + Cleaned(game.team[1].City.Str()) + "-" + Cleaned(game.team[2].City.Str()) +
         ".flm";
}

bool SaveGameFilm() {
  program.LastFilmFile.clear();
  if (!FilmIsKept() || game.commentary.Film.empty()) return true;
  const std::string name = FilmName();
  if (!SaveFilm(LeagueFile(name))) return false;
  program.LastFilmFile = name;
  return true;
}

}  // namespace tipline
