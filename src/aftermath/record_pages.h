#pragma once
// The record book as a fan reads it.
#include <string>
#include <vector>

#include "aftermath/record_book.h"

namespace tipline {

/// One place of a category.
struct RecordLine {
  RecordBlock Block = RecordBlock::kGame;
  bool Team = false;
  std::string Record;  ///< "Points at Home"
  int Place = 0;       ///< 1 to 5
  int Value = 0;
  std::string Holder, HolderTeam, Opponent, Date;
};
/// The taken places of the loaded book, men's (or teams') of a game or a season, in the order of the ids.
std::vector<RecordLine> RecordLines(RecordBlock block, bool teams);

/// The loaded book of men, or of teams, as a page: the records of a game, then those of the season. Lines
/// ended by '\n'; empty when there are none.
std::string RecordBookPage(bool teams);
/// The same of one block.
std::string RecordBlockPage(RecordBlock block, bool teams);

}  // namespace tipline
