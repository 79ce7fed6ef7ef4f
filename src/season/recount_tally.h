#pragma once
// What the boxes of a season add up to.
#include <map>
#include <set>
#include <string>
#include <vector>

#include "league/box_record.h"
#include "league/league.h"

namespace tipline {

/// A man's game as his box has it.
struct BoxMan {
  int recNo = 0, side = 0, slot = 0;
  const StatLine* line = nullptr;
  int time = 0;  ///< tenths
  bool Played() const;
};

/// The men of a side of a box who belong to its team, by slot; of a damaged box none.
std::vector<BoxMan> MenOfBox(const BoxRecord& box, int side);

struct SeasonTally {
  /// Teams and men with their stored records, in which all that games count is cleared and counted anew.
  std::map<int, TeamRecord> team;
  std::map<int, PlayerRecord> man;
  std::set<std::pair<int, int>> uncertain;  ///< (RecNo, position) whose minutes a box cuts

  /// Takes the records as they stand and clears what games count.
  void Begin();
  /// Adds a game; `row` is its record of SCORES.
  void Add(const BoxRecord& box, const ScheduleRecord& row);
};

/// The man of the game by its line, side and slot; slot 0 when nobody's score is above 0.
BoxMan MvpOfBox(const BoxRecord& box);

}  // namespace tipline
