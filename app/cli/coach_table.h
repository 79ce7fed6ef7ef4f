#pragma once
// The commands of a coach at the terminal, as one table.
#include <span>
#include <string>
#include <string_view>

#include "cli/coach_session.h"

namespace tipline::cli {

struct Command {
  std::string_view name, brief;  ///< brief: the short form, "" for none
  std::string_view arguments;    ///< as the help shows them
  std::string_view help;
  std::string_view examples;  ///< arguments that make sense, parted by ';'
  bool (*open)();             ///< at the stop as it stands
  Answer (*run)(CoachSession&, const Words& arguments);
};

std::span<const Command> Commands();
/// By its name, its short form, or what only one name begins with; nullptr for none.
const Command* FindCommand(std::string_view word);
/// One sentence that names the commands that are open.
std::string OpenCommands();
/// Why a command is not open.
std::string WhyClosed(const Command& command);
/// The command that an empty line stands for: to go on where that is open, else the plain thing to do.
std::string_view PlainCommand();

// The handlers, by what they are about.

// coach_offense.cpp
Answer DoContinue(CoachSession&, const Words&);
Answer DoShoot(CoachSession&, const Words&);
Answer DoDrive(CoachSession&, const Words&);
Answer DoBreak(CoachSession&, const Words&);
Answer DoPass(CoachSession&, const Words&);
Answer DoQuickPass(CoachSession&, const Words&);
Answer DoGrid(CoachSession&, const Words&);
Answer DoCall(CoachSession&, const Words&);
Answer DoBurn(CoachSession&, const Words&);
Answer DoComputer(CoachSession&, const Words&);
Answer DoDefenseCall(CoachSession&, const Words&);
Answer DoTimeout(CoachSession&, const Words&);
Answer DoFocus(CoachSession&, const Words&);
Answer DoAuto(CoachSession&, const Words&);
Answer DoDelegate(CoachSession&, const Words&);

// coach_strategy.cpp
Answer DoZone(CoachSession&, const Words&);
Answer DoHelp(CoachSession&, const Words&);  ///< help defense, or the list of commands
Answer DoPress(CoachSession&, const Words&);
Answer DoPace(CoachSession&, const Words&);
Answer DoAttack(CoachSession&, const Words&);
Answer DoCrash(CoachSession&, const Words&);
Answer DoStrategy(CoachSession&, const Words&);
Answer DoSet(CoachSession&, const Words&);

// coach_defense.cpp
Answer DoDefense(CoachSession&, const Words&);
Answer DoMatch(CoachSession&, const Words&);
Answer DoCover(CoachSession&, const Words&);
Answer DoDouble(CoachSession&, const Words&);
Answer DoOrder(CoachSession&, const Words&);
Answer DoSafe(CoachSession&, const Words&);
Answer DoPlan(CoachSession&, const Words&);

// coach_men.cpp
Answer DoSub(CoachSession&, const Words&);
Answer DoLineup(CoachSession&, const Words&);
Answer DoJumper(CoachSession&, const Words&);
Answer DoBench(CoachSession&, const Words&);
Answer DoBox(CoachSession&, const Words&);
Answer DoStats(CoachSession&, const Words&);
Answer DoQuit(CoachSession&, const Words&);

}  // namespace tipline::cli
