// Looks at the film of a game: frame by frame at a terminal, all of it otherwise.
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <optional>

#include "cli/coach_events.h"
#include "cli/columns.h"
#include "cli/commands.h"
#include "cli/speaker.h"
#include "cli/terminal.h"
#include "league/program.h"
#include "narration/film.h"
#include "narration/speech.h"

namespace tipline::cli {
namespace {

void ShowPlay(const Film& film, int n) {
  const FilmFrame& frame = film.frames[static_cast<std::size_t>(n - 1)];
  std::cout << '\n';
  for (int s = 1; s <= 2; ++s) {
    std::cout << Plain(frame.FilmTeam[s].Str()) << ' ' << static_cast<int>(frame.FilmScore[s]) << "   ";
  }
  std::cout << "period " << static_cast<int>(frame.FilmPeriod) << "  " << ClockText(frame.FilmClock) << "   "
            << n << " of " << film.frames.size() << '\n';
  std::string whole;
  for (int line = 1; line <= frame.FilmLineCount; ++line) {
    const std::string text = Plain(frame.FilmLine[line].Str());
    if (text == "..") continue;
    std::cout << "  " << text << std::endl;
    if (!Interactive()) SpeakLine(text);
    whole += (whole.empty() ? "" : " , ") + text;
  }
  if (Interactive()) SpeakLine(whole, false);  // who steps through it may go on while it is said
}

/// The frame that a command leads to from frame n; 0 to leave, -1 for what is none.
int Step(const std::string& command, int n, int count) {
  if (command.empty() || command == "n" || command == "next") return std::min(n + 1, count);
  if (command == "p" || command == "previous") return std::max(n - 1, 1);
  if (command == "f" || command == "first") return 1;
  if (command == "l" || command == "last") return count;
  if (command == "q" || command == "quit") return 0;
  const bool digits = command.size() <= 4 && command.find_first_not_of("0123456789") == std::string::npos;
  const int frame = digits ? std::stoi(command) : -1;
  return frame >= 1 && frame <= count ? frame : -1;
}

void StepThrough(const Film& film) {
  const int count = static_cast<int>(film.frames.size());
  for (int n = 1; n != 0;) {
    ShowPlay(film, n);
    int next = -1;
    while (next < 0) {
      const auto command = AskLine("next, previous, first, last, a number, quit [next]: ");
      if (!command) return;
      next = Step(*command, n, count);
      if (next < 0) std::cout << "There are frames 1 to " << count << ".\n";
    }
    n = next;
  }
}

int ListFilms() {
  std::vector<std::string> names;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(program.LeagueFolder, error)) {
    if (SameText(entry.path().extension().string(), ".flm"))
      names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  std::cout << "Games in " << Plain(program.LeagueFolder.filename().string()) << '\n';
  for (const std::string& name : names) std::cout << "  " << Plain(name) << '\n';
  return 0;
}

}  // namespace

int ShowFilm(const std::string& file, bool speak, const Common& common) {
  const bool there = std::filesystem::exists(file);
  if (file.empty() || !there) {  // then it is a film of the league
    if (!OpenTheLeague(common)) return 1;
    if (file.empty()) return ListFilms();
  }
  const Film film = ReadFilm(there ? std::filesystem::path(file) : program.LeagueFolder / file);
  if (film.frames.empty()) return 1;
  std::optional<Speaker> speaker;
  if (speak) speaker.emplace();
  program.FilmReplay = true;
  if (Interactive()) {
    StepThrough(film);
  } else {
    for (int n = 1; n <= static_cast<int>(film.frames.size()); ++n) ShowPlay(film, n);
  }
  program.FilmReplay = false;
  return 0;
}

}  // namespace tipline::cli
