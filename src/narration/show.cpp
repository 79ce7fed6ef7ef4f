#include "narration/show.h"

#include <algorithm>
#include <string>

#include "narration/film.h"
#include "narration/lines.h"
#include "narration/narrator.h"
#include "narration/speech.h"
#include "platform/commentary_box.h"

namespace tipline {
namespace {

struct Turn {
  std::string_view his, hers;
};
// clang-format off
constexpr Turn kAtStart[] = {{"he ",  "she "},  {"his ", "her "}, {"he's ", "she's "},
                             {"but he's ", "but she's "}, {"and he's ", "and she's "}};
constexpr Turn kAtEnd[]   = {{" him", " her"}, {" him!", " her!"}, {" got him", " got her"},
                             {" him off", " her off"}};
constexpr Turn kInside[]  = {{" his ", " her "}, {" him ", " her "}};
// clang-format on
constexpr int kMostTurns = 99;

/// The first of " his " and " him " from the left, turned; false when there is none.
bool TurnInside(std::string& line) {
  std::size_t at = std::string::npos;
  for (const Turn& turn : kInside) at = std::min(at, line.find(turn.his));
  if (at == std::string::npos) return false;
  line.replace(at, kInside[0].his.size(), kInside[0].hers);
  return true;
}

std::string TurnedToHers(std::string_view text) {
  std::string line(Trimmed(text));
  for (const Turn& turn : kAtStart) {
    if (line.starts_with(turn.his)) line.replace(0, turn.his.size(), turn.hers);
  }
  for (const Turn& turn : kAtEnd) {
    if (line.ends_with(turn.his)) line.replace(line.size() - turn.his.size(), turn.his.size(), turn.hers);
  }
  for (int k = 0; k < kMostTurns && TurnInside(line); ++k) {
  }
  return std::string(Trimmed(line));
}

/// The score sounds once a stop.
void ClearLaterCues() {
  bool seen = false;
  for (int n = 1; n <= game.commentary.PbpLineCount; ++n) {
    int& cue = game.commentary.Line[n].Sound;
    if (cue == 2 && seen) cue = 0;
    seen |= cue == 2;
  }
}

/// The box keeps the pace of the lines and plays the sounds.
void ShowLines() {
  platform::CommentaryBox& box = platform::commentaryBox();
  for (int n = 1; n <= game.commentary.PbpLineCount; ++n) {
    const PbpLine& line = game.commentary.Line[n];
    if (line.IsPause()) {
      box.Pause();
    } else {
      box.Line(line.Text, line.Side, line.Sound);
      SpeakShownLine(n);
    }
  }
  box.StopShown();
}

}  // namespace

void RewriteGender() {
  for (int n = 1; n <= game.commentary.PbpLineCount; ++n) {
    std::string& text = game.commentary.Line[n].Text;
    text = TurnedToHers(text);
  }
}

void ShowPlayByPlay() {
  if (NoLineYet()) return;
  ClearLaterCues();
  if (WomensGame()) RewriteGender();
  AddFilmFrames();
  if (!OnlyFilmed()) {
    ShowLines();
    if (game.commentary.TellsPlay) SpeakPlay();
  }
  game.commentary.PbpLineCount = 0;
}

}  // namespace tipline
