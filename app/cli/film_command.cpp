// Looks at the film of a game: play by play at a terminal, all of it otherwise.
#include <filesystem>
#include <iostream>
#include <optional>

#include "base/numbers.h"
#include "cli/coach_events.h"
#include "cli/columns.h"
#include "cli/commands.h"
#include "cli/speaker.h"
#include "cli/terminal.h"
#include "league/program.h"
#include "narration/film_viewer.h"
#include "narration/speech.h"

namespace tipline::cli {
namespace {

void Show(const HCFILM& screen) {
  const FilmFrame& frame = screen.Frame();
  std::cout << '\n';
  for (int s = 1; s <= 2; ++s) {
    std::cout << Plain(frame.FilmTeam[s].Str()) << ' ' << static_cast<int>(frame.FilmScore[s]) << "   ";
  }
  std::cout << "period " << static_cast<int>(frame.FilmPeriod) << "  " << ClockText(frame.FilmClock) << "   "
            << screen.PlaceLabel() << '\n';
  std::string whole;
  for (const std::string& line : screen.ShowPlay()) {
    const std::string text = Plain(line);
    std::cout << "  " << text << std::endl;
    if (!Interactive()) SpeakLine(text);
    whole += (whole.empty() ? "" : " , ") + text;
  }
  if (Interactive()) SpeakLine(whole, false);  // who steps through it may go on while it is said
}

/// False for what is no command, and no play of the film.
bool Step(const std::string& command, HCFILM& screen) {
  const int play = NumberIn<int>(command).value_or(0);
  if (command.empty() || command == "n" || command == "next") {
    screen.NextCommand();
  } else if (command == "p" || command == "previous") {
    screen.PreviousCommand();
  } else if (command == "f" || command == "first") {
    screen.FirstCommand();
  } else if (command == "l" || command == "last") {
    screen.LastCommand();
  } else if (play >= 1 && play <= screen.Count()) {
    screen.Scroll(play);
  } else {
    return false;
  }
  return true;
}

void StepThrough(HCFILM& screen) {
  Show(screen);
  for (;;) {
    const auto command = AskLine("next, previous, first, last, a number, quit [next]: ");
    if (!command || *command == "q" || *command == "quit") return;
    if (Step(*command, screen)) {
      Show(screen);
    } else {
      std::cout << "There are plays 1 to " << screen.Count() << ".\n";
    }
  }
}

int ListFilms() {
  const HCGameFilmsList list;
  std::cout << Plain(list.Heading) << '\n';
  for (const std::string& name : list.Files) std::cout << "  " << Plain(name) << '\n';
  return 0;
}

}  // namespace

int ShowFilm(const std::string& file, bool speak, const Common& common) {
  std::error_code error;
  if (!std::filesystem::exists(file, error) && !OpenTheLeague(common)) return 1;
  if (file.empty()) return ListFilms();
  HCFILM screen;
  if (!screen.Open(file)) return 1;
  std::optional<Speaker> speaker;
  if (speak) speaker.emplace();
  program.FilmReplay = true;
  if (Interactive()) {
    StepThrough(screen);
  } else {
    for (; screen.Play < screen.Count(); screen.NextCommand()) Show(screen);
    Show(screen);
  }
  program.FilmReplay = false;
  return 0;
}

}  // namespace tipline::cli
