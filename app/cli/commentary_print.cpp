#include "cli/commentary_print.h"

#include <thread>

#include "cli/coach_events.h"
#include "cli/columns.h"
#include "narration/lines.h"
#include "narration/speech.h"

namespace tipline::cli {

namespace {

/// As the play that is told began: "2nd 4:32   Boston 45   Denver 43".
std::string PbpScoreLine() {
  const int regular = league.rules.PeriodList;
  std::string period = OrdinalText(game.Period);
  if (game.Period > regular)
    period = game.Period == regular + 1 ? "OT" : OrdinalText(game.Period - regular) + " OT";
  std::string line = period + " " + ClockText(game.scene.GameClock);
  for (int s = 1; s <= 2; ++s) line += "   " + PbpTeamName(s) + " " + std::to_string(game.scene.Score[s]);
  return line;
}

}  // namespace

void CommentaryPrinter::Line(std::string_view text, int, int) {
  if (game.scene.OffenseSide != offense_ || game.Period != period_) {
    offense_ = game.scene.OffenseSide;
    period_ = game.Period;
    out_ << "\n" << Plain(PbpScoreLine()) << "\n";
  }
  out_ << "  " << Plain(std::string(text)) << "\n";
  if (SpeechOn()) out_.flush();  // it is read while it is heard
}

void CommentaryPrinter::Pause() {
  out_.flush();
  std::this_thread::sleep_for(pause_);
}

}  // namespace tipline::cli
