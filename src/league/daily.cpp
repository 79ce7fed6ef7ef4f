#include "league/daily.h"

#include <algorithm>

#include "base/record_file.h"
#include "league/files.h"

namespace tipline {
namespace {

RecordFile Daily() { return {DailyFile(), kDailySlotBytes}; }

}  // namespace

bool ReadDailies(std::span<const int> rows, std::span<DailyRecord> dailies) {
  return Daily().ReadSlots(rows, [&dailies](std::size_t k, const u8* bytes) {
    DailyRecord& daily = dailies[k];
    ReadRecord(bytes, daily);
    if (daily.DailyMark != DailyRecord::kSetMark) daily = {};
    daily.DailyMark = DailyRecord::kSetMark;
  });
}

bool ReadDaily(int recNo, DailyRecord& daily) {
  daily = {};
  daily.DailyMark = DailyRecord::kSetMark;
  return ReadDailies({&recNo, 1}, {&daily, 1});
}

bool WriteDaily(int recNo, const DailyRecord& daily) {
  return recNo >= 1 && Written(Daily().Write(recNo, daily), DailyFile());
}

bool SitsOut(const DailyRecord& daily, int date) {
  const auto first = daily.InactiveDates.begin() + 1;
  return date > 0 && std::find(first, daily.InactiveDates.end(), date) != daily.InactiveDates.end();
}

bool EnterDate(DailyRecord& daily, int date) {
  const auto free = std::find(daily.InactiveDates.begin() + 1, daily.InactiveDates.end(), 0);
  if (free == daily.InactiveDates.end()) return false;
  *free = static_cast<i16>(date);
  return true;
}

void ClearDate(DailyRecord& daily, int date) {
  std::replace(daily.InactiveDates.begin() + 1, daily.InactiveDates.end(), static_cast<i16>(date), i16{0});
}

bool AwayOn(const PlayerRecord& p, int date) {
  const bool notYet = p.StartMonth > 0 && date < DateOf(p.StartMonth, p.StartDay);
  const bool noMore = p.EndMonth > 0 && date > DateOf(p.EndMonth, p.EndDay);
  if (league.rules.TransactionDatesCheck == 1 && (notYet || noMore)) return true;
  for (int span = 1; span <= 5; ++span) {
    const int start = DateOf(p.InactiveStartMonth[span], p.InactiveStartDay[span]);
    const int stop = DateOf(p.InactiveStopMonth[span], p.InactiveStopDay[span]);
    if (start <= date && date <= stop) return true;
  }
  return false;
}

}  // namespace tipline
