#pragma once
// Record 2 of the rules file: dates and pools of the in-season tournament.
#include <concepts>

#include "base/record.h"

namespace tipline {

struct TournamentPools {
  static constexpr int kRecordSize = 5466;
  static constexpr int kSetMark = 133;  ///< of PoolMark; without it nothing in the record counts

  u8 PoolMark = 0;
  Table2<Text<1>, 0, 31, 0, 12> DateType;
  Table<u8, 0, 720> PoolOfTeam;
  Table<i16, 0, 720> PoolPointsFor, PoolPointsAgainst;
  Table<u8, 0, 720> PoolWins, PoolLosses;
  i16 InSeasonEnabled = 0;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, TournamentPools>
void Describe(Record& r, Visitor&& field) {
  field(0, "PoolMark", r.PoolMark, "marker 133: the tables have been set");
  field(1, "DateType", r.DateType, "type of a date's games, by (day, calendar month); 'R' regular season");
  field(417, "PoolOfTeam", r.PoolOfTeam, "1 to 6 the pools A to F, 0 none");
  field(1138, "PoolPointsFor", r.PoolPointsFor, "points scored in pool games");
  field(2580, "PoolPointsAgainst", r.PoolPointsAgainst, "points allowed in pool games");
  field(4022, "PoolWins", r.PoolWins, "pool games won");
  field(4743, "PoolLosses", r.PoolLosses, "pool games lost");
  field(5464, "InSeasonEnabled", r.InSeasonEnabled, "1: the season holds a tournament");
}

}  // namespace tipline
