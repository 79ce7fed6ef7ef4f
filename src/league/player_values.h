#pragma once
// Values worked out from a player's record alone.
#include <string>

#include "league/player_record.h"

namespace tipline {

/// A man of a college or international league: measured against college figures and forty minutes.
inline bool IsCollegeLevel(const PlayerRecord& player) {
  return player.PlayerType == 'C' || player.PlayerType == 'O';
}

/// "Al Ray".
std::string FullName(const PlayerRecord& player);
/// "A.Ray", for a table; the last name alone when he has no first.
std::string InitialName(const PlayerRecord& player);

/// As he is known: the name that screens show, the last name where there is none.
inline std::string KnownName(const PlayerRecord& player) {
  return player.ShortName.Empty() ? player.LastName.Str() : player.ShortName.Str();
}

/// One of his three positions is this one.
inline bool Lists(const PlayerRecord& player, int position) {
  return player.PrimaryPosition == position || player.SecondaryPosition == position ||
         player.SpotPosition == position;
}
/// Minutes a game of his real season; 0 without a game.
inline double MinutesPerGame(const PlayerRecord& player) {
  const StatLine& real = player.Stats[1];
  return real.G > 0 ? static_cast<double>(real.Min) / real.G : 0;
}

/// Defence of a man at position 1 to 5, 0.0 to 10.0: outside and inside defence weighted by position, less
/// out of place. Any other position: 0.
double PositionDefense(const PlayerRecord& player, int position);

/// His worth all told, 0.0 to 10.0: his real line brought to the level of the season 2000, with defence,
/// passing and rebounding. Reads his real line, his ratings and the era tables.
double PlayerOverall(const PlayerRecord& player);

/// His durability, or the one that the rules give to all men.
int Durability(const PlayerRecord& player);

/// Sets `Salary`, in thousands and at least 300, from the same value and his minutes.
void DefaultSALARY(PlayerRecord& player, bool collegeTeam);

}  // namespace tipline
