#pragma once
// A whole league out of nothing: teams, coaches, made-up men, rules.
#include <filesystem>
#include <string>
#include <vector>

#include "frontoffice/league_kinds.h"
#include "league/roster.h"

namespace tipline {

struct LeagueRequest {
  std::string Name;
  std::string Preset = "pro";  ///< "pro", "college", "women", "historic"
  int Year = 0;                ///< 1946 to 2050; in this and the next three 0 takes the preset's
  int Divisions = 0;           ///< 1 to 36
  int Teams = 0;               ///< of the league; an equal number in each division, at most 20 there
  int Games = 0;  ///< of a team's season: an even number from 10 to 98; 0 takes what the kind plays
  std::uint64_t Seed = 1;
};

/// A league before it is written. Teams in the order of their slots; `player` rows are numbered.
struct MadeLeague {
  RulesRecord rules;
  std::vector<Roster> teams;
  std::vector<PlayerRecord> freeAgents;
  int games = 0;  ///< of a team's season
};

/// Draws a league; the same request gives the same league, and the generator of the game is left as it was.
/// False, with one sentence in `message`, when the request can't be met. Needs the era tables.
bool DrawLeague(const LeagueRequest& request, MadeLeague& made, std::string& message);

/// Whether a league of this name, kind, year and size can be asked for; if not, why, in one sentence.
bool RequestIsSound(const LeagueRequest& request, std::string& message);

/// Draws a league and writes its folder under LeaguesFolder(): into a folder beside, renamed when all is
/// written, so that a failure leaves nothing. The schedule is drawn last and in this step alone. `message`
/// says in lines what was made and what of the schedule could not be placed; false with one sentence in it.
bool MakeLeague(const LeagueRequest& request, std::string& message);

}  // namespace tipline
