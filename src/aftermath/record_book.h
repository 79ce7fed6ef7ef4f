#pragma once
// The record book: the five best of every category, in a game and in a season, of men and teams. One file
// HCRECORDS in the league folder, and one for all leagues in the data tree, which no reset touches.
//
// A finished league game enters both in the same way, once the season lines count it:
//   LoadRecordBook(); UpdatePlayerRecords(); UpdateTeamRecords(); SaveRecordBook();
// and again with AllTimeFolder() where the rule AllTimeRecordCheck is 1.
#include <filesystem>
#include <string_view>

#include "league/record_row.h"

namespace tipline {

enum class RecordBlock { kSeason, kGame };

/// Slot of a category, id 1 to 400, teams from 201 on.
constexpr int RecordSlot(RecordBlock block, int id) {
  return (block == RecordBlock::kGame ? kRecordIds : 0) + id;
}

/// Takes the book of a folder into `league.RecordBook`, of the open league when it is empty; of what stands
/// in memory already only the rows that differ from the file are read anew. A missing file opens empty. A
/// league without a folder has a book in memory alone. False, told, with no book loaded, when it can't be
/// read.
bool LoadRecordBook(const std::filesystem::path& folder = {});
/// Writes the rows that changed since it was loaded; the first time all 800. False when that failed, which is
/// told, or another book is loaded; what was entered is then forgotten.
bool SaveRecordBook(const std::filesystem::path& folder = {});

/// Enter the game just ended into the loaded book: all of its men, both of its teams. Read `game`; a playoff
/// game is no matter for the book.
void UpdatePlayerRecords();
void UpdateTeamRecords();

/// What one performance leaves in a row.
struct RecordEntry {
  int Value = 0;
  Text<20> Holder;
  Text<3> HolderTeam, Opponent;
  Text<12> Date;
};
/// Enters what is above the fifth place; true when the row changed. In a season's row a holder has one place,
/// whose value never falls. Whoever was first with a value stays ahead. A value is held at 32767.
bool InsertRecord(RecordRow& row, RecordBlock block, const RecordEntry& entry);

/// Folder of the book of all leagues.
std::filesystem::path AllTimeFolder();

}  // namespace tipline
