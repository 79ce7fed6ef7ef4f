#include "cli/team_work.h"

#include <iostream>

#include "cli/terminal.h"
#include "league/files.h"

namespace tipline::cli {

bool TakeTeam(const std::string& text, Roster& roster) {
  const int teamNo = FindTeam(text);
  return teamNo != 0 && TakeTeam(teamNo, roster);
}

bool TakeTeam(int teamNo, Roster& roster) {
  if (!ReadRoster(teamNo, roster)) {
    Refuse("the team can't be read: " + TeamsFile().string());
    return false;
  }
  return true;
}

std::vector<int> MenOf(const Roster& roster) {
  std::vector<int> slots;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(roster, slot)) slots.push_back(slot);
  }
  return slots;
}

std::string Positions(const PlayerRecord& p) {
  std::string text;
  for (const int position : {p.PrimaryPosition, p.SecondaryPosition, p.SpotPosition}) {
    if (position >= 1 && position <= 5) text += (text.empty() ? "" : "-") + league.PositionLabel[position];
  }
  return text;
}

void Heading(const Roster& roster, const std::string& what, const Common& common) {
  if (!common.Csv) std::cout << TeamName(roster.team) << " " << roster.team.Year << ": " << what << "\n\n";
}

}  // namespace tipline::cli
