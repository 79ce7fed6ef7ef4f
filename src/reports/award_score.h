#pragma once
// What makes the most valuable player: his worth over the season, what his team won with him, his defense.
#include "league/player_record.h"
#include "league/team_record.h"

namespace tipline {

/// Factor for the share of games that his team has won; a team without a game stands at a half.
double TeamWinFactor(const TeamRecord& team);
/// Factor for his defense of outside men.
double DefenseFactor(const PlayerRecord& player);
/// His place in the race: minutes and efficiency of a line, with both factors.
double MvpScore(const StatLine& line, double efficiency, const PlayerRecord& player, const TeamRecord& team);

}  // namespace tipline
