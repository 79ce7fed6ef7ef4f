// Commands that run the game: the attack, the answer to a call, timeouts, how far the computer goes on.
#include <algorithm>
#include <array>

#include "cli/coach_marks.h"
#include "cli/coach_screen.h"
#include "cli/coach_table.h"
#include "coach/computer_coach.h"
#include "engine/engine.h"
#include "engine/game_state.h"

namespace tipline::cli {
namespace {

std::string Handler() { return ManName(game.OffenseSide, game.BallPlayer); }

constexpr std::array<std::string_view, 9> kCallKinds{
    "any", "inside", "outside", "three", "drive", "goto", "pick and roll", "force three", "hold ball"};
constexpr int kInsideCall = 1, kPickCall = 6, kHoldCall = 8, kAnybodyHolds = 6;

constexpr std::array<std::string_view, 7> kDefenseCalls{"",      "off",  "loose",      "normal",
                                                        "tight", "foul", "double team"};

/// The position that the words name; 0, told, when they name none with a man.
int Teammate(CoachSession& session, const Words& words) {
  if (words.empty()) {
    session.Refuse("To whom? A position 1 to 5, its label, or a name.");
    return 0;
  }
  const Found found = FindPosition(game.OffenseSide, Joined(words));
  if (found.value > 0 && game.side[game.OffenseSide].Lineup[found.value] > 0) return found.value;
  session.Refuse(found.value > 0 ? "Nobody stands there." : found.fault);
  return 0;
}

/// "at 4" taken off the end of the words; a word and what stands behind it.
Words TakenFrom(Words& words, std::string_view word, bool& there) {
  Words rest;
  there = false;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (Squeezed(words[i]) != word) continue;
    there = true;
    rest.assign(words.begin() + static_cast<std::ptrdiff_t>(i) + 1, words.end());
    words.resize(i);
  }
  return rest;
}

/// Reads kind, man, force and alley-oop of a call. False, told, when they make none.
bool ReadCall(CoachSession& session, Words words, Call& call) {
  bool alley = false, force = false;
  Words lob = TakenFrom(words, "alley", alley);
  if (words.size() > 1 && Squeezed(words.back()) == "force") words.pop_back(), force = true;
  if (!lob.empty() && Squeezed(lob.back()) == "force") lob.pop_back(), force = true;
  std::size_t used = std::min<std::size_t>(words.size(), 3) + 1;  // "pick and roll" has three words
  int kind = kNoChoice;
  while (kind < 0 && --used > 0) kind = ChoiceOf(Joined(words, 0, used), kCallKinds);
  if (kind < 0) {
    session.Refuse("Call what? " + Listed(kCallKinds) + ".");
    return false;
  }
  call.CallKind = kind;
  call.CallForce = force ? 1 : 0;
  call.CallAlleyOop = alley ? 1 : 0;
  const Words who(words.begin() + static_cast<std::ptrdiff_t>(used), words.end());
  call.CallPlayer = who.empty() ? (kind == kHoldCall ? kAnybodyHolds : 0) : Teammate(session, who);
  if (!who.empty() && call.CallPlayer == 0) return false;
  const int target = call.CallPlayer <= kPositions ? call.CallPlayer : 0;
  call.CallAlleyPlayer = !alley ? 0 : lob.empty() ? target : Teammate(session, lob);
  return lob.empty() || call.CallAlleyPlayer > 0;
}

/// A call that contradicts itself, in a sentence; empty for a good one.
std::string FaultOf(const Call& call) {
  if (call.CallKind == kPickCall && call.CallPlayer == game.BallSlot && call.CallPlayer > 0)
    return Handler() + " has the ball: name another man to set the pick.";
  if (call.CallForce && (call.CallPlayer < 1 || call.CallPlayer > kPositions)) return "Force it to whom?";
  if (call.CallForce && call.CallKind != kInsideCall) return "Only an inside play can be forced.";
  if (call.CallAlleyOop && call.CallKind == 0) return "A lob needs a kind of play.";
  if (call.CallAlleyOop && call.CallAlleyPlayer == 0) return "A lob to whom?";
  if (call.CallKind == 0 && call.CallPlayer == 0) return "Call a kind of play, a man, or both.";
  return "";
}

std::string TellCall(const Call& call) {
  std::string text = "Called: " + std::string(kCallKinds[static_cast<std::size_t>(call.CallKind)]);
  if (call.CallPlayer >= 1 && call.CallPlayer <= kPositions)
    text += " for " + ManName(game.OffenseSide, game.side[game.OffenseSide].Lineup[call.CallPlayer]);
  if (call.CallForce) text += ", forced";
  if (call.CallAlleyOop)
    text += ", alley-oop to " +
            ManName(game.OffenseSide, game.side[game.OffenseSide].Lineup[call.CallAlleyPlayer]);
  return text + ".";
}

/// Index of the focus in its table; -1, told.
int FocusOf(CoachSession& session, const Words& words) {
  const int focus = ChoiceOf(Joined(words), TimeoutFocusWords::kTexts);
  if (focus < 0) session.Refuse("Stress what? " + Listed(TimeoutFocusWords::kTexts) + ".");
  return focus;
}

void SetFocus(int side, int focus) {
  game.side[side].TimeoutFocus.Set(TimeoutFocusWords::kTexts[static_cast<std::size_t>(focus)]);
}

/// The marks that are ahead, one behind the other; "" for none.
std::string MarksAhead() {
  std::string text;
  for (const auto word : WatchUntilWords::kTexts) {
    WatchUntil mark;
    mark.Set(word);
    if (Ahead(mark, game.Period, game.GameClock)) text += (text.empty() ? "" : "; ") + std::string(word);
  }
  return text;
}

}  // namespace

Answer DoContinue(CoachSession& session, const Words&) {
  const Refusal why = ContinueChosen();  // which tells why not
  if (why == Refusal::kNotNow) return session.Refuse("This stop asks for a choice.");
  return why == Refusal::kNone ? Answer::kGoesOn : Answer::kRefused;
}

Answer DoShoot(CoachSession& session, const Words&) {
  if (game.GameState == "FREETHROW-SHOOT")
    return session.GoOn(Handler() + " shoots his free throw.", FreeThrowChosen);
  return session.GoOn(Handler() + " looks for his shot.", ShootChosen);
}

Answer DoDrive(CoachSession& session, const Words&) {
  return session.GoOn(Handler() + " drives.", DriveChosen);
}

Answer DoBreak(CoachSession& session, const Words&) { return session.GoOn("They run.", FastBreakChosen); }

Answer DoPass(CoachSession& session, const Words&) {
  const bool onBreak = game.GameState == "FASTBREAK";
  return session.GoOn(onBreak ? "They pull the ball out." : Handler() + " looks to pass.", PassChosen);
}

Answer DoQuickPass(CoachSession& session, const Words& words) {
  const int position = Teammate(session, words);
  if (position == 0) return Answer::kRefused;
  if (position == game.BallSlot) return session.Refuse(Handler() + " has the ball.");
  game.possession.QuickPassTarget = position;
  const int slot = game.side[game.OffenseSide].Lineup[position];
  const std::string target = ManName(game.OffenseSide, slot);
  const Answer answer = session.GoOn("Quick pass to " + target + ".", QuickPassChosen);
  const bool refused = game.GameState == "OFFENSE" && game.possession.JustQuickPassed &&
                       game.BallPlayer != slot;  // he looked, and the ball went to somebody else
  if (refused) session.Say("The pass to " + target + " is not there.");
  return answer;
}

Answer DoGrid(CoachSession& session, const Words& words) {
  const int position = Teammate(session, words);
  if (position == 0) return Answer::kRefused;
  const std::string man = ManName(game.OffenseSide, game.side[game.OffenseSide].Lineup[position]);
  const int clock = game.GameClock, rows = game.PlayLogCount;
  const Answer answer = session.GoOn("", [position] { PlayGridChosen(position); });
  // With the clock running out they don't wait for a play, and the coach is asked again.
  const bool hurried = game.GameState == "OFFENSE" && game.GameClock == clock && game.PlayLogCount == rows;
  session.Say(hurried ? "They hurry: the ball goes to " + Handler() + "." : "A play for " + man + ".");
  return answer;
}

Answer DoCall(CoachSession& session, const Words& words) {
  Call call = game.call;
  if (!ReadCall(session, words, call)) return Answer::kRefused;
  if (const std::string fault = FaultOf(call); !fault.empty()) return session.Refuse(fault);
  const Call before = game.call;
  game.call = call;
  const Answer answer = session.GoOn(TellCall(call), UsePlayNowRoutine);
  if (answer == Answer::kRefused) game.call = before;
  return answer;
}

Answer DoBurn(CoachSession& session, const Words&) { return session.GoOn("They run the clock.", BurnChosen); }

Answer DoComputer(CoachSession& session, const Words&) {
  const GameState s = game.GameState;
  if ((s == "OFFENSE" && !BallIsDue()) || s == "OFFREB" || s == "FASTBREAK")
    return session.GoOn("The computer calls the play.", ComputerChosen);
  if (s == "DEFENSE-CALL") return session.GoOn("The computer answers the call.", ComputerDefenseChosen);
  ComputerDefenseCall(session.Side());
  session.Say("The computer has set your defense.");
  return Answer::kStays;
}

Answer DoDefenseCall(CoachSession& session, const Words& words) {
  const int call = ChoiceOf(Joined(words), kDefenseCalls);
  if (call < 1) return session.Refuse("Guard the ball how? " + Listed(kDefenseCalls) + ".");
  game.call.DefenseCall = call;
  return session.GoOn(
      "The ball is guarded: " + std::string(kDefenseCalls[static_cast<std::size_t>(call)]) + ".",
      DefensePlayCallChosen);
}

Answer DoTimeout(CoachSession& session, const Words& words) {
  const int side = session.Side();
  if (!words.empty()) {
    const int focus = FocusOf(session, words);
    if (focus < 0) return Answer::kRefused;
    SetFocus(side, focus);
  }
  const int left = game.side[side].TimeoutsLeft - 1;
  return session.GoOn("Timeout " + game.team[side].City.Str() + ", " + std::to_string(left) +
                          " left; stressed: " + std::string(game.side[side].TimeoutFocus.Text()) + ".",
                      TimeoutChosen);
}

Answer DoFocus(CoachSession& session, const Words& words) {
  const int focus = FocusOf(session, words);
  if (focus < 0) return Answer::kRefused;
  SetFocus(session.Side(), focus);
  session.Say("Stressed in the timeout: " + std::string(game.side[session.Side()].TimeoutFocus.Text()) + ".");
  return Answer::kStays;
}

Answer DoAuto(CoachSession& session, const Words& words) {
  const std::string ahead = MarksAhead();
  if (ahead.empty()) {
    return session.Refuse(game.Period > league.rules.PeriodList
                              ? "There are no marks in overtime; delegate leaves your plays to the computer."
                              : "No mark is ahead of us.");
  }
  if (words.empty()) {
    session.Say("Marks ahead: " + ahead + ".");
    return Answer::kStays;
  }
  const WatchUntil mark = ReadMark(words, game.Period);
  if (!Ahead(mark, game.Period, game.GameClock))
    return session.Refuse("That is no mark ahead of us; auto alone lists them.");
  return session.GoOn("Both sides play on alone: " + std::string(mark.Text()) + ".", [mark] {
    game.WatchUntil = mark;
    SetPlayBox();
  });
}

Answer DoDelegate(CoachSession& session, const Words& words) {
  constexpr std::array<std::string_view, 2> kEnds{"offense", "defense"};
  const int end = words.size() == 2 ? ChoiceOf(words[0], kEnds) : kNoChoice;
  const int on = words.size() == 2 ? OnOff(words[1]) : kNoChoice;
  if (end < 0 || on < 0) return session.Refuse("Delegate offense or defense, on or off.");
  Side& side = game.side[session.Side()];
  (end == 0 ? side.BothOffenses : side.BothDefenses) = on;
  session.Say(std::string(on ? "The computer calls" : "You call") + " your " +
              std::string(kEnds[static_cast<std::size_t>(end)]) + ".");
  return Answer::kStays;
}

}  // namespace tipline::cli
