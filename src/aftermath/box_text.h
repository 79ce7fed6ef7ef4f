#pragma once
// The box of a game as a page of text, the way a newspaper prints it.
#include <string>

#include "league/stat_line.h"

namespace tipline {

/// Rebuilds `TeamLine` of both sides from their men. Once a league game that is over, it is added to the
/// season: to each team's own line, to the opponents' line of the other, and to the home line of side 2;
/// `game.TeamTotalsAdded` is then set.
void SumTeamTotals();

/// A man's game as one number, with `shotCost` off for each shot: 0.7 in the rows of the box and the list of
/// top games, 0.4 in the team's row and for the most valuable player.
double GameScore(const StatLine& line, double shotCost = 0.7);

/// Side and slot of the best man of the winners, the visitors where it is tied; slot 0 when nobody's score is
/// above 0.
struct GameMvp {
  int Side = 0, Slot = 0;
};
GameMvp PickGameMvp();

/// The page, lines ended by '\n'. Reads `game`, `program`, `setup`, and the league's rules and schedule.
std::string BoxPage();

/// Sums the totals where that is due, works out what only the box shows (bench, paint and second-chance
/// points), writes the page to the report file "VTX.txt" of the league, and picks the game's most valuable
/// player: `game.MvpSide`, `game.MvpSlot`; the first time behind a game that is over it is credited to him.
/// False when the page could not be written; the tables are then as if it was.
bool WriteBoxText();

/// The play log and the scoring list as pages of text.
std::string PlayLogPage();
std::string ScoringPage();
/// Writes PlayLogPage to the report file, report name "PLAY-BY-PLAY". False, told, when that failed.
bool WritePlayLogText();

}  // namespace tipline
