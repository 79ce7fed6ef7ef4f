#pragma once
// Defaults that the load of a team asks for where its records never had them. The load declares them; they
// are worked out by the coach and the front office, which stand above it (frontoffice/team_defaults.cpp).
#include "league/roster.h"

namespace tipline {

/// Plans, by their marker and version. True when something changed.
bool DefaultPlans(Roster& roster);
void DefaultDepthCharts(Roster& roster);
void DefaultSpecialLineups(Roster& roster);
/// The three defensive ratings of a man, from his real line.
void DeriveDefense(PlayerRecord& player, const TeamRecord& team);
/// Durability of the team's men, from their games.
void DeriveDurability(Roster& roster);

}  // namespace tipline
