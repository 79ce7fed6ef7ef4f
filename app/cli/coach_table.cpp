#include "cli/coach_table.h"

#include "engine/engine.h"
#include "engine/game_state.h"

namespace tipline::cli {
namespace {

// When a command is open.

bool Always() { return true; }
bool In(GameState state) { return game.GameState == state; }
bool Attack() { return In("OFFENSE") && !BallIsDue(); }
bool MayShoot() { return Attack() || In("OFFREB") || In("FREETHROW-SHOOT"); }
bool MayDrive() { return Attack() || (In("OFFREB") && game.PutbackClass == 2); }
bool MayPass() { return Attack() || In("OFFREB") || In("FASTBREAK"); }
bool OnBreak() { return In("FASTBREAK"); }
bool DefenseIsAsked() { return In("DEFENSE-CALL"); }
bool FocusCounts() { return game.MomentumTime > 0 || IsTimeout(game.GameState); }
/// Men come and go only while the ball is dead.
bool BallIsDead() { return !In("OFFENSE") && !In("DEFENSE-CALL") && !In("OFFREB") && !In("FASTBREAK"); }
/// A held ball; a period is opened by the centres.
bool HeldBall() { return IsJump(game.GameState) && !PeriodOpens(); }

// clang-format off
constexpr Command kCommands[] = {
    {"continue", "c", "", "go on from this stop", "", CanContinue, DoContinue},
    {"shoot", "s", "", "the man with the ball takes the shot he has, or his free throw", "", MayShoot, DoShoot},
    {"drive", "d", "", "he drives to the basket", "", MayDrive, DoDrive},
    {"fastbreak", "f", "", "run the break", "", OnBreak, DoBreak},
    {"pass", "p", "", "he gives the ball up and the team looks for a shot", "", MayPass, DoPass},
    {"quick", "q", "WHO", "a quick pass to a position", "3;PG;5", Attack, DoQuickPass},
    {"grid", "g", "WHO", "a play for this man, the better his option the likelier it works", "2;C", Attack, DoGrid},
    {"call", "", "KIND [WHO] [force] [alley [WHO]]",
     "a play: inside, outside, three, drive, goto, pick, force three, hold or any",
     "inside 5;inside 5 force;pick 4;pick and roll 4;three;goto 2;hold;force three 1;drive 1;any 3;inside 5 alley;"
     "outside alley 4",
     Attack, DoCall},
    {"burn", "b", "", "run time off the clock", "", Attack, DoBurn},
    {"def", "", "off | loose | normal | tight | double | foul", "how to guard the ball in this play",
     "tight;double;off;loose;normal;foul", DefenseIsAsked, DoDefenseCall},
    {"computer", "x", "", "the computer calls this play or, on the other stops, your whole defense", "", Always,
     DoComputer},
    {"timeout", "t", "[FOCUS]", "call time; the focus is what you stress", ";defense;rebound", TimeoutOpen, DoTimeout},
    {"focus", "", "none | offense | defense | pressure | rebound | fastbreak", "what you stress in this timeout",
     "defense;none", FocusCounts, DoFocus},
    {"auto", "a", "MARK", "both sides play on alone up to a mark: end 2, 4th 2:00, 6:00",
     ";end 4;4th 0:30;2:00;end;3rd 6:00;2 1:00", Always, DoAuto},
    {"delegate", "", "offense | defense on | off", "the computer calls all your plays, or all your defense",
     "offense on;defense on;offense off;defense off;", Always, DoDelegate},

    {"zone", "z", "man | 2-1-2 | 2-3 | 3-2", "what you defend with", "2-3;man;3-2;2-1-2", Always, DoZone},
    {"press", "", "none | half trap | half press | full trap | full press", "press and trap", "full;none;half trap",
     Always, DoPress},
    {"help", "?", "[inside | outside | strong inside | strong outside | normal | COMMAND | all]",
     "help defense; alone, the commands that are open", ";inside;strong outside;normal;call;all", Always, DoHelp},
    {"pace", "", "very slow | slow | normal | fast | very fast", "how fast you play", "fast;slow;normal", Always,
     DoPace},
    {"attack", "", "0 | 0-1 | 1 | 1-2 | 2", "how many men your offense keeps inside", "1;0-1;2;1-2", Always, DoAttack},
    {"crash", "", "[offense | defense] normal | strong | light", "how hard you go to the boards",
     "strong;offense light;defense strong;normal", Always, DoCrash},
    {"strategy", "", "", "what your side plays now", "", Always, DoStrategy},
    {"set", "", "[SETTING on | off]", "end of game, timeout wishes, substitutions left to the computer",
     ";lastshot on;quickshot on;nofoul on;quickfoul poor;stealfoul on;tired off;foultrouble on;grid on;lastshot off",
     Always, DoSet},

    {"defense", "", "", "your match-ups, coverage and orders", "", Always, DoDefense},
    {"match", "", "ATTACKER DEFENDER | five numbers | computer | auto on | off",
     "your position DEFENDER takes the attacker's position; all five at once; the best by the computer",
     "1 2;1 2 3 4 5;computer;auto on;auto off;5 5", Always, DoMatch},
    {"cover", "", "WHO ZONE HOW", "coverage of their man inside, outside, at three or everywhere (all)",
     "1 inside deny;PG all tight;5 three off;2 outside foul;1 all normal", Always, DoCover},
    {"double", "", "WHO ZONE [off]", "double-team their man there", "5 inside;5 inside off;C all", Always, DoDouble},
    {"order", "", "WHO normal | inside | outside | three", "the shot your man is told to take",
     "3 three;3 normal;1 outside", Always, DoOrder},
    {"safe", "", "WHO [off]", "your man stays out of foul trouble", "4;4 off", Always, DoSafe},
    {"plan", "", "[SLIDER 0-4 | computer | clear | against | cell WHO COLUMN]", "the game plan in force",
     ";Drive 3;15 2;against;cell 1 inside;cell 1 Dbl In;computer;clear;Use Zones 4", Always, DoPlan},

    {"sub", "", "[POSITION MAN ...]", "send men in; alone, the bench", ";1 6;2 #7 3 #8;1 #1 2 #2 3 #3 4 #4 5 #5",
     BallIsDead, DoSub},
    {"lineup", "l", "NAME", "starters, blowout, offense, three, free throw, fastbreak, defense or press",
     "press;starters;free throw;offense", BallIsDead, DoLineup},
    {"jumper", "", "WHO", "who jumps", "5;4", HeldBall, DoJumper},
    {"bench", "", "[ratings]", "who sits, and what they can do", ";ratings", Always, DoBench},
    {"box", "", "", "the box so far", "", Always, DoBox},
    {"stats", "", "[MAN]", "the two teams; one man's game, season and ratings", ";5;1", Always, DoStats},
    {"quit", "", "", "leave the game unfinished", "", Always, DoQuit},
};
// clang-format on

}  // namespace

std::span<const Command> Commands() { return kCommands; }

const Command* FindCommand(std::string_view word) {
  const std::string said = word == "?" ? "help" : Squeezed(word);
  if (said.empty()) return nullptr;
  const Command* begun = nullptr;
  int count = 0;
  for (const Command& c : kCommands) {
    if (said == c.name || said == c.brief) return &c;
    if (c.name.substr(0, said.size()) != said) continue;
    begun = &c;
    ++count;
  }
  return count == 1 ? begun : nullptr;
}

std::string OpenCommands() {
  std::string text;
  for (const Command& c : kCommands) {
    if (c.open == Always || !c.open()) continue;
    text += (text.empty() ? "" : ", ") + std::string(c.name);
  }
  return "Open: " + text + (text.empty() ? "" : ", ") + "and more (help).";
}

std::string WhyClosed(const Command& command) {
  if (command.run == DoTimeout && game.side[game.ActingSide].TimeoutsLeft == 0)
    return "There is no timeout left.";
  if (command.run == DoTimeout && game.TimeoutTaken) return "A timeout was just taken.";
  return "Not at this stop: " + std::string(command.name) + ". " + OpenCommands();
}

std::string_view PlainCommand() {
  if (CanContinue()) return "continue";
  if (game.GameState == "FREETHROW-SHOOT") return "shoot";
  const bool asked = game.GameState == "DEFENSE-CALL" && !game.side[game.ActingSide].BothDefenses;
  return asked ? "def normal" : "computer";
}

}  // namespace tipline::cli
