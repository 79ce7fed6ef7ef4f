#include "cli/coach_session.h"

#include <algorithm>

#include "cli/box_score.h"
#include "cli/coach_events.h"
#include "cli/coach_screen.h"
#include "cli/coach_table.h"
#include "cli/columns.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "league/program.h"

namespace tipline::cli {
namespace {

constexpr std::size_t kScreenWidth = 79;

/// What unchecks the settings that a refusal names.
constexpr struct {
  std::string_view setting, command;
} kUnchecks[] = {{"'Auto Sub When Tired'", " (set tired off)"},
                 {"'Auto Sub When In Foul Trouble'", " (set foultrouble off)"}};

bool BothCoached() { return game.side[1].CoachMode == "H" && game.side[2].CoachMode == "H"; }

/// A pace, or orders for the end of a game, that hold to the end of the period only.
bool HasOrders(const tipline::Side& s) {
  return s.OffensePace != 2 || s.LastShot || s.QuickFoul || s.StealFoul || s.NoFoul || s.TimeoutOffense ||
         s.TimeoutDefense;
}

/// The last row behind `told` that what interrupted the last play has left; 0 for none.
int RowOfIncident(int told) {
  int n = game.PlayLogCount;
  while (n > told && !IsOfIncident(game.PlayLog[n])) --n;
  return n > told ? n : 0;
}

using Five = Table<int, 1, kPositions>;

/// Names of the men of one five who are not in the other.
std::string Others(int side, const Five& five, const Five& other) {
  std::string names;
  for (const int slot : five) {
    if (slot == 0 || std::find(other.begin(), other.end(), slot) != other.end()) continue;
    names += (names.empty() ? "" : ", ") + ManName(side, slot);
  }
  return names;
}

}  // namespace

CoachSession::CoachSession(std::istream& in, std::ostream& out, std::ostream& err, Manner manner)
    : in_(in), out_(out), err_(err), manner_(manner), before_(platform::dialogs()) {
  platform::UseDialogs(this);
}

CoachSession::~CoachSession() { platform::UseDialogs(&before_); }

int CoachSession::Side() const { return game.ActingSide; }

void CoachSession::Say(std::string_view text, std::size_t blanks) {
  const std::string plain = Plain(std::string(text));
  std::string_view line = plain;
  std::string indent;
  while (line.size() + indent.size() > kScreenWidth) {
    const std::size_t room = kScreenWidth - indent.size();
    std::size_t cut = line.rfind(' ', room);
    if (cut == std::string_view::npos || cut < room / 2) cut = room;
    out_ << indent << line.substr(0, cut) << '\n';
    line.remove_prefix(cut);
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    indent.assign(blanks, ' ');
  }
  out_ << indent << line << '\n';
}

void CoachSession::Tell(std::string_view message, std::string_view) {
  refused_ = true;
  out_.flush();
  std::string text(message);
  for (const auto& u : kUnchecks) {
    if (message.find(u.setting) != std::string_view::npos) text += u.command;
  }
  err_ << Plain(text) << std::endl;
}

Answer CoachSession::Refuse(std::string_view reason) {
  Tell(reason, "");
  return Answer::kRefused;
}

bool CoachSession::Ask(std::string_view question, std::string_view) {
  const auto line = NextLine(std::string(question) + " [y/n] ");
  const std::string answer = line ? Squeezed(*line) : "";
  if (answer == "y" || answer == "yes") return true;
  refused_ = true;
  if (!answer.empty() && answer != "n" && answer != "no") kept_ = line;
  return false;
}

std::optional<std::string> CoachSession::NextLine(std::string_view prompt) {
  if (kept_) {
    const std::string line = *kept_;
    kept_.reset();
    return line;
  }
  out_ << Plain(std::string(prompt)) << std::flush;
  std::string line;
  if (!std::getline(in_, line)) {
    out_ << '\n';
    return std::nullopt;
  }
  if (!manner_.prompt) out_ << Plain(line) << '\n';
  return line;
}

void CoachSession::TellPeriodEnd(int period) {
  out_ << '\n';
  PrintPeriods(out_, period);
  if (!game.GameOver) TellOrdersGone();
}

void CoachSession::TellOrdersGone() {
  for (int side = 1; side <= 2; ++side) {
    if (orders_[side] && game.side[side].CoachMode == "H")
      Say((BothCoached() ? ShortTeam(side) + ": " : "") + "Pace and end-of-game orders are back to normal.");
    orders_[side] = false;
  }
}

/// The announcer has the word where a play was interrupted; a foul that the officials looked at is told
/// first.
void CoachSession::TellRow(int n, bool incident) {
  const PlayLogRow& row = game.PlayLog[n];
  if (!incident || row.Note == kFouledBy) Say(EventLine(row));
  if (incident) Say(IncidentLine(row));
}

void CoachSession::TellSinceLastStop() {
  if (toldRows_ < game.PlayLogCount) out_ << '\n';
  // Only the last incident is known whole; one that others followed is told by its row.
  const int incident = RowOfIncident(toldRows_);
  while (toldRows_ < game.PlayLogCount) {
    ++toldRows_;
    for (; toldPeriod_ < game.PlayLog[toldRows_].Period; ++toldPeriod_) TellPeriodEnd(toldPeriod_);
    if (!manner_.told) TellRow(toldRows_, toldRows_ == incident);
  }
  for (; toldPeriod_ < game.Period; ++toldPeriod_) TellPeriodEnd(toldPeriod_);
  TellChanges();
}

void CoachSession::TellChanges() {
  for (int side = 1; side <= 2; ++side) {
    const auto& before = fives_[side];
    const auto& now = game.side[side].Lineup;
    const std::string in = Others(side, now, before), out = Others(side, before, now);
    if (before[1] > 0 && !in.empty())
      Say("In for " + ShortTeam(side) + ": " + in + (out.empty() ? "." : ", out: " + out + "."));
    fives_[side] = now;
  }
}

void CoachSession::ShowTheStop() {
  const std::string score = Plain(ScoreLine());
  out_ << '\n' << (manner_.bold ? "\033[1m" + score + "\033[0m" : score) << '\n';
  PrintFloor(out_);
  Say((BothCoached() ? "[" + game.team[Side()].Abbrev.Str() + "] " : "") + Prompt());
  bool& shown = shown_[game.GameState.Index()];
  if (!shown) {  // once for each kind of stop
    Say(OpenCommands());
    Say("An empty line is: " + std::string(PlainCommand()) + ".");
  }
  shown = true;
}

Answer CoachSession::Obey(const std::string& line) {
  Words words = SplitWords(line);
  if (words.empty()) words = SplitWords(PlainCommand());
  const Command* command = FindCommand(words[0]);
  if (!command) return Refuse("There is no command \"" + Shortened(words[0]) + "\". " + OpenCommands());
  if (!command->open()) return Refuse(WhyClosed(*command));
  words.erase(words.begin());
  refused_ = false;
  for (int side = 1; side <= 2; ++side) orders_[side] = HasOrders(game.side[side]);
  const Answer answer = command->run(*this, words);
  if (answer == Answer::kStays) fives_[Side()] = game.side[Side()].Lineup;  // his own changes were told
  return answer;
}

Answer CoachSession::TakeCommand() {
  const auto line = NextLine("> ");
  if (line) return Obey(*line);
  HandOver();
  return Answer::kGoesOn;
}

void CoachSession::HandOver() {
  Say("That was the last word: the computer coaches on.");
  for (tipline::Side& side : game.side) side.CoachMode = "C";
  SetPlayBox();
}

bool CoachSession::Run() {
  NewGame();
  return GoOnFromHere();
}

bool CoachSession::GoOnFromHere() {
  // A scenario has no periods before its own.
  if (program.ScenarioGame) toldPeriod_ = game.PlayLogCount > 0 ? game.PlayLog[1].Period : game.Period;
  while (!game.GameOver) {
    TellSinceLastStop();
    ShowTheStop();
    Answer answer;
    do {
      answer = TakeCommand();
    } while (answer == Answer::kStays || answer == Answer::kRefused);
    if (answer == Answer::kQuits) return false;
  }
  TellSinceLastStop();
  return true;
}

}  // namespace tipline::cli
