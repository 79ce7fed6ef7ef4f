#pragma once
// The kinds of league that can be made, and the rule book of each in its time.
#include <string_view>

#include "league/rules_record.h"

namespace tipline {

enum class GameLevel { kPro, kCollege, kWomen };

struct LeaguePreset {
  std::string_view name;
  GameLevel level;
  int year, divisions, teams, men, games;
};

/// The preset of that name; nullptr for none.
const LeaguePreset* FindPreset(std::string_view name);

/// Men on a team in that year: what the preset gives, within the active roster of the time.
int RosterSize(const LeaguePreset& preset, int year);

/// Games of a team's season, an even number of 10 and more: those of the preset in its own year, else what
/// was played in that year.
int SeasonGames(const LeaguePreset& preset, int year);

/// The rules of play of that year. What a league's rules leave to their markers stays unset, the first load
/// fills it; a marker is set only where this kind of league differs from what the load would give.
RulesRecord RulesOf(GameLevel level, int year);

}  // namespace tipline
