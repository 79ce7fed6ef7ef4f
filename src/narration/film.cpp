#include "narration/film.h"

#include <algorithm>

#include "base/record_file.h"
#include "engine/game_state.h"
#include "league/program.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

FilmFrame Header() {
  FilmFrame frame;
  for (int s = 1; s <= 2; ++s) {
    frame.FilmTeam[s] = game.team[s].City.View();
    frame.FilmScore[s] = static_cast<u8>(std::min(game.side[s].Score, 255));
  }
  frame.FilmPeriod = static_cast<u8>(std::min(game.Period, 255));
  frame.FilmClock = static_cast<i16>(std::min<int>(game.GameClock, 32767));
  frame.FilmMark = kFilmMark;
  return frame;
}

void AddFrame(int first, int last) {
  FilmFrame frame = Header();
  frame.FilmLineCount = static_cast<u8>(last - first + 1);
  for (int n = first; n <= last; ++n) {
    const PbpLine& line = game.commentary.Line[n];
    frame.FilmLine[n - first + 1] = line.Text;
    frame.FilmSide[n - first + 1] = static_cast<u8>(line.Side);
  }
  auto& film = game.commentary.Film;
  if (film.size() == static_cast<std::size_t>(kFilmFrames)) {
    film.back() = frame;
  } else {
    film.push_back(frame);
  }
}

/// A frame of the first kind has fewer and shorter lines.
FilmFrame Widened(const OldFilmFrame& old) {
  FilmFrame frame;
  frame.FilmTeam = old.FilmTeam;
  frame.FilmPeriod = old.FilmPeriod;
  frame.FilmClock = old.FilmClock;
  frame.FilmScore = old.FilmScore;
  frame.FilmLineCount = std::min<u8>(old.FilmLineCount, OldFilmFrame::kLines);
  frame.FilmMark = old.FilmMark;
  for (int n = 1; n <= OldFilmFrame::kLines; ++n) {
    frame.FilmLine[n] = old.FilmLine[n].View();
    frame.FilmSide[n] = old.FilmSide[n];
  }
  return frame;
}

/// What a damaged file holds is made fit to be shown.
void Mend(FilmFrame& frame) {
  frame.FilmLineCount = std::min<u8>(frame.FilmLineCount, FilmFrame::kLines);
  frame.FilmClock = std::max<i16>(frame.FilmClock, 0);
  for (u8& side : frame.FilmSide) side = side > 2 ? u8{0} : side;
}

}  // namespace

bool FilmIsKept() {
  const bool human = game.side[1].CoachMode == "H" || game.side[2].CoachMode == "H";
  const bool wanted = (human ? league.rules.GameFilmsHuman : league.rules.GameFilmsComputer) == 1;
  return wanted && program.GameKind == "L" && !program.LeagueFolder.empty() && !game.AnalysisMode;
}

void AddFilmFrames() {
  const int lines = game.commentary.PbpLineCount;
  for (int first = 1; first <= lines; first += FilmFrame::kLines) {
    AddFrame(first, std::min(lines, first + FilmFrame::kLines - 1));
  }
}

bool SaveFilm(const std::filesystem::path& file) {
  auto& film = game.commentary.Film;
  if (film.empty()) return platform::RefusedWith("There is no film of this game.");
  // A film keeps nothing of an older one.
  std::string bytes(film.size() * kFilmSlotBytes, '\0');
  auto* slot = reinterpret_cast<u8*>(bytes.data());
  for (FilmFrame& frame : film) {
    frame.FilmVersion = kFilmVersion;
    WriteRecord(frame, slot);
    slot += kFilmSlotBytes;
  }
  return WriteWholeFile(file, bytes) || platform::RefusedWith("The film can't be written: " + file.string());
}

Film ReadFilm(const std::filesystem::path& file) {
  Film film;
  FilmFrame first;
  RecordFile(file, kFilmSlotBytes).Read(1, first);
  film.old = first.FilmVersion != kFilmVersion;
  const RecordFile in(file, film.old ? kOldFilmSlotBytes : kFilmSlotBytes);
  const int count = std::min(in.Count(), kFilmFrames);
  in.ReadAll(count, [&film](int, const u8* slot) {
    FilmFrame frame;
    if (film.old) {
      OldFilmFrame old;
      ReadRecord(slot, old);
      frame = Widened(old);
    } else {
      ReadRecord(slot, frame);
    }
    if (frame.FilmMark != kFilmMark) return;
    Mend(frame);
    film.frames.push_back(frame);
  });
  if (film.frames.empty()) platform::dialogs().Tell("This is no film of a game: " + file.string());
  return film;
}

}  // namespace tipline
