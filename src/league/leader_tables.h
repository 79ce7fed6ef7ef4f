#pragma once
// HcLeaders, the boards of the season's leaders, and HcTop40, the best single games: one record each.
#include <concepts>
#include <type_traits>

#include "base/record.h"

namespace tipline {

inline constexpr int kLeaderSlotBytes = 30000;  ///< of both files
inline constexpr u8 kLeaderMark = 22;           ///< of a record in this layout
inline constexpr int kBoards = 8;               ///< in use, of 30
inline constexpr int kBoardPlaces = 10;
inline constexpr int kTopPlaces = 40;
inline constexpr int kTopCategories = 13;

struct LeaderTable {
  static constexpr int kRecordSize = 10913;

  u8 LeaderMark = 0;
  // [place 1 to 10, 0 spare][board]
  Table2<Text<25>, 0, kBoardPlaces, 0, 30> LeaderName;
  Table2<Text<3>, 0, kBoardPlaces, 0, 30> LeaderTeam;
  Table2<i16, 0, kBoardPlaces, 0, 30> LeaderValue, LeaderRecNo;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, LeaderTable>
void Describe(Record& r, Visitor&& field) {
  field(0, "LeaderMark", r.LeaderMark, "marker 22: the boards have been cleared for this layout");
  field(1, "LeaderName", r.LeaderName,
        "first and last name by (place 1 to 10; board 1 points, 2 rebounds, 3 assists, 4 steals, 5 blocks, "
        "6 field goals, 7 free throws, 8 threes)");
  field(8526, "LeaderTeam", r.LeaderTeam, "abbreviation of his team");
  field(9549, "LeaderValue", r.LeaderValue,
        "average x 100, from board 6 on percentage x 1000; -99 does not qualify any more");
  field(10231, "LeaderRecNo", r.LeaderRecNo, "his RecNo");
}

struct Top40Table {
  static constexpr int kRecordSize = 29881;

  u8 Top40Mark = 0;
  // [place][category]
  Table2<f32, 1, kTopPlaces, 1, 12> TopValue;
  Table2<Text<15>, 1, kTopPlaces, 1, 12> TopName;
  Table2<Text<20>, 1, kTopPlaces, 1, 12> TopGame, TopExtra;
  Table<f32, 1, kTopPlaces> TopValue13;
  Table<Text<15>, 1, kTopPlaces> TopName13;
  Table<Text<20>, 1, kTopPlaces> TopGame13;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, Top40Table>
void Describe(Record& r, Visitor&& field) {
  field(0, "Top40Mark", r.Top40Mark, "marker 22: the lists have been cleared for this layout");
  field(
      1, "TopValue", r.TopValue,
      "by (place; category 1 points, 2 rebounds, 3 assists, 4 steals, 5 blocks, 6 game score, 7 field goals "
      "made, 8 threes made, 9 free throws made, 10 turnovers, 11 field-goal and 12 free-throw attempts)");
  field(1921, "TopName", r.TopName, "last name");
  field(9121, "TopGame", r.TopGame, "the game: 'BOS vs NYK 12/96'");
  field(18721, "TopExtra", r.TopExtra, "moves with its row, read by nobody");
  field(28321, "TopValue13", r.TopValue13, "category 13, three-point attempts");
  field(28481, "TopName13", r.TopName13, "last name");
  field(29081, "TopGame13", r.TopGame13, "the game");
}

}  // namespace tipline
