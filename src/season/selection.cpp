#include "season/selection.h"

#include <algorithm>
#include <tuple>

#include "base/calendar.h"

namespace tipline {
namespace {

ScheduleRecord& RowAt(int n) { return league.ScheduleGame[static_cast<std::size_t>(n)]; }

bool HasMark(const ScheduleRecord& row, char mark) { return row.Status.bytes[0] == mark; }

void SetMark(ScheduleRecord& row, char mark) { row.Status = std::string_view(&mark, 1); }

bool HasUndecidedTeam(const ScheduleRecord& row) {
  const bool open = HasMark(row, 'U') || HasMark(row, 'N');
  return open && HasTeam(row, kFreeAgent);
}

}  // namespace

int DateKey(GameDate date) {
  if (date.month < 1 || date.month > 12 || date.day < 1 || date.day > 31) return kNoDateKey;
  const bool calendarYear = league.HasAugustGames && league.HasSeptemberGames;
  return 100 * (calendarYear ? date.month : SeasonMonth(date.month)) + date.day;
}

bool ComputersPlay(const ScheduleRecord& row) { return row.CoachKind[1] != 'H' && row.CoachKind[2] != 'H'; }

bool IsIn(const Selection& selection, const ScheduleRecord& row) {
  if (selection.Team != 0 && !HasTeam(row, selection.Team)) return false;
  switch (selection.Scope) {
    case Scope::kDay:
      return DateOf(row) == selection.Date;
    case Scope::kMonth:
      return row.Month == selection.Date.month;
    case Scope::kThrough:
      return DateKey(row) <= DateKey(selection.Date);
    case Scope::kAll:
      break;
  }
  return true;
}

int ChangeMarks(const Selection& selection, char from, char to) {
  int changed = 0;
  for (int n = 1; n <= league.GameCount(); ++n) {
    ScheduleRecord& row = RowAt(n);
    if (!HasMark(row, from) || !IsIn(selection, row)) continue;
    if (to == 'N' && DateKey(row) == kNoDateKey) continue;
    SetMark(row, to);
    ++changed;
  }
  return changed;
}

int MarkFirst(const Selection& selection, int count) {
  int marked = 0;
  for (const int n : RowsInOrder('U', selection)) {
    if (marked >= count) break;
    SetMark(RowAt(n), 'N');
    ++marked;
  }
  return marked;
}

int DropMarks() { return ChangeMarks({}, 'N', 'U'); }

bool AnyMarked() {
  return std::any_of(league.ScheduleGame.begin() + 1, league.ScheduleGame.end(),
                     [](const ScheduleRecord& row) { return HasMark(row, 'N'); });
}

std::vector<int> RowsInOrder(char mark, const Selection& selection) {
  std::vector<int> rows;
  for (int n = 1; n <= league.GameCount(); ++n) {
    const ScheduleRecord& row = RowAt(n);
    if (HasMark(row, mark) && IsIn(selection, row) && DateKey(row) < kNoDateKey) rows.push_back(n);
  }
  const auto place = [](int n) { return std::tuple(DateKey(RowAt(n)), !ComputersPlay(RowAt(n)), n); };
  std::sort(rows.begin(), rows.end(), [place](int a, int b) { return place(a) < place(b); });
  return rows;
}

void MarkedGames::Gather() {
  rows_ = RowsInOrder('N');
  next_ = 0;
  firstUndecided_ = kNoDateKey;
  ForScheduledGames([this](const ScheduleRecord& row, int) {
    if (HasUndecidedTeam(row)) firstUndecided_ = std::min(firstUndecided_, DateKey(row));
  });
}

int MarkedGames::Peek() {
  for (; next_ < rows_.size(); ++next_) {
    const ScheduleRecord* row = league.Row(rows_[next_]);
    if (row && HasMark(*row, 'N')) return rows_[next_];
  }
  return 0;
}

int MarkedGames::Next() {
  const int row = Peek();
  if (row > 0) ++next_;
  return row;
}

}  // namespace tipline
