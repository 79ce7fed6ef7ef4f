#pragma once
// The days on which a man sits out: one slot of HcDaily for each row of HCPLAYER, 500 bytes.
#include <concepts>
#include <span>
#include <type_traits>

#include "base/record.h"
#include "league/player_record.h"

namespace tipline {

inline constexpr int kDailySlotBytes = 500;

struct DailyRecord {
  static constexpr int kRecordSize = 203;
  static constexpr int kSetMark = 99;  ///< of DailyMark; without it nothing in the record counts

  u8 DailyMark = 0;
  Table<i16, 0, 100> InactiveDates;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, DailyRecord>
void Describe(Record& r, Visitor&& field) {
  field(0, "DailyMark", r.DailyMark, "marker 99: the dates have been cleared");
  field(1, "InactiveDates", r.InactiveDates,
        "dates on which the man sits out, season month x 100 + day; 0 free; entry 0 is not used");
}

/// A date as lists hold it: season month (1 September) x 100 + day.
constexpr int DateOf(int seasonMonth, int day) { return seasonMonth * 100 + day; }

/// The records of rows of HCPLAYER in the open league, dailies[k] of rows[k]; one that was never written
/// reads as no dates. A row below 1 is passed over. False when HcDaily is there and can't be read.
bool ReadDailies(std::span<const int> rows, std::span<DailyRecord> dailies);
/// The same of one row; what can't be read has no dates.
bool ReadDaily(int recNo, DailyRecord& daily);
/// False, after telling the user, when it could not be written; false for a row below 1.
bool WriteDaily(int recNo, const DailyRecord& daily);

bool SitsOut(const DailyRecord& daily, int date);
/// Enters a date in the first free entry. False, and nothing changes, when all 100 are taken.
bool EnterDate(DailyRecord& daily, int date);
/// Takes a date off the list wherever it stands.
void ClearDate(DailyRecord& daily, int date);

/// The man is not with the team on that day: before his first day or after his last one, where the rules look
/// at transaction dates, or within one of his five inactive spans. A span that ends before it begins is none.
bool AwayOn(const PlayerRecord& player, int date);

}  // namespace tipline
