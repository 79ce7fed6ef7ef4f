#pragma once
// HCRECORDS, the record book: a row of the five best for each category, in a season and in a game.
#include <concepts>
#include <filesystem>
#include <type_traits>
#include <vector>

#include "base/record.h"

namespace tipline {

inline constexpr int kRecordSlotBytes = 300;
inline constexpr int kRecordIds = 400;    ///< rows of a block; those of teams begin behind 200
inline constexpr int kRecordSlots = 800;  ///< the season's block, behind it the game's
inline constexpr int kRecordPlaces = 5;

struct RecordRow {
  static constexpr int kRecordSize = 200;

  Table<i16, 1, kRecordPlaces> Value;
  Table<Text<20>, 1, kRecordPlaces> Holder;
  Table<Text<3>, 1, kRecordPlaces> HolderTeam, Opponent;
  Table<Text<12>, 1, kRecordPlaces> Date;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, RecordRow>
void Describe(Record& r, Visitor&& field) {
  field(0, "Value", r.Value, "the five best, best first; 0 an empty place");
  field(10, "Holder", r.Holder, "last name; of a team its year and city");
  field(110, "HolderTeam", r.HolderTeam, "abbreviation of his team; empty for a team");
  field(125, "Opponent", r.Opponent, "abbreviation of the opponent");
  field(140, "Date", r.Date, "calendar month/day/year; of a team with the last two digits of the year");
}

/// A book in memory. The file stays the truth: whoever loads the book takes in what differs there.
struct RecordBook {
  std::filesystem::path Folder;  ///< whose book it is; empty: of no file
  std::vector<RecordRow> Row;    ///< index = slot, 0 unused; empty until the first load
  std::vector<u8> Stored;        ///< the rows as they were last read or written, 200 bytes a slot
  std::vector<bool> Changed;     ///< by slot: entered since then
};

}  // namespace tipline
