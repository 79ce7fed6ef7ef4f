#pragma once
// What the commands on a team's coaching share.
#include <string>
#include <vector>

#include "cli/commands.h"
#include "league/roster.h"

namespace tipline::cli {

/// Reads a team of the open league, by what the user typed or by number, ready to be coached; false, told,
/// when that can't be done.
bool TakeTeam(const std::string& text, Roster& roster);
bool TakeTeam(int teamNo, Roster& roster);

/// The slots of the team's men.
std::vector<int> MenOf(const Roster& roster);

/// "PG-SG": where a man plays, by the league's labels.
std::string Positions(const PlayerRecord& player);

/// The line over what is shown of a team; none over comma-separated text.
void Heading(const Roster& roster, const std::string& what, const Common& common);

}  // namespace tipline::cli
