#pragma once
// The leaders of the season, ten in each of eight averages (HcLeaders), and the forty best single games in
// thirteen categories (HcTop40).
#include <string_view>

#include "league/leader_tables.h"
#include "league/player_record.h"
#include "league/stat_line.h"

namespace tipline {

/// Bring the tables up to date with both teams of the game just ended, once season lines, wins and losses
/// count it. A playoff game is no matter for the leaders; its best performances are. A file is written only
/// when something changed; without a league folder nothing is done. False, told, when a file can't be read or
/// written.
bool UpdateLeaders();
bool UpdateTop40();

/// The tables as they stand; cleared, with their marker set, where the file is missing or of an older layout.
/// False, told, with an empty table, when the file is there and can't be read.
bool ReadLeaders(LeaderTable& table);
bool ReadTop40(Top40Table& table);

// Boards ------------------------------------------------------------------------------------------------

inline constexpr int kNotQualified = -99;  ///< value of a man who has fallen behind what a leader must have
inline constexpr int kFirstPercentageBoard = 6;

/// "Scoring", for board 1 to 8.
std::string_view BoardName(int board);
/// He has played, or shot, enough in this season line for a place on the board, in a team of so many games.
bool BoardQualifies(int board, const StatLine& season, const PlayerRecord& man, int teamGames);
/// What a man has on board 1 to 8 in his season, the average x 100 or the percentage x 1000; kNotQualified
/// when that is not enough for it.
int BoardValue(int board, const PlayerRecord& man, int teamGames);

struct BoardEntry {
  Text<25> Name;
  Text<3> Team;
  int Value = 0, RecNo = 0;
};
/// A man who is on the board takes his new value, whatever it is; another one enters when his is above that
/// of the tenth place. The board is then in order again. False when it did not change.
bool EnterBoard(LeaderTable& table, int board, const BoardEntry& entry);
/// Highest value first; equal ones keep their order.
void SortLeaderBoard(LeaderTable& table, int board);

// Best games --------------------------------------------------------------------------------------------

/// "Game Score", for category 1 to 13.
std::string_view TopCategoryName(int category);
double TopCategoryValue(int category, const StatLine& line);

struct TopRow {
  f32 Value = 0;
  Text<15> Name;
  Text<20> Game;
};
TopRow TopRowOf(const Top40Table& table, int place, int category);
/// Enters a performance ahead of all that are not better; the fortieth falls out. False, and nothing changed,
/// when it is below the fortieth place; an empty place has 0.
bool InsertTop40(Top40Table& table, int category, const TopRow& row);

}  // namespace tipline
