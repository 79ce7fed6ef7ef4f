#pragma once
// What the options of `play` say of a game, read and checked against the league's rules.
#include <string>

#include "cli/commands.h"
#include "gamesetup/team_pick_screen.h"

namespace tipline::cli {

/// Enters the scenario into the screen. False, told, when it is none or lies outside the rules.
bool EnterScenario(const std::string& text, HCGameTeams2008& screen);
/// Enters the date "MM-DD". False, told, for any other text.
bool EnterDate(const std::string& text, HCGameTeams2008& screen);

}  // namespace tipline::cli
