#pragma once
// Which games of the schedule are to be played, and in what order. Works on the marks of
// `league.ScheduleGame`: 'U' unplayed, 'N' to be played next.
#include <string>
#include <vector>

#include "league/schedule.h"

namespace tipline {

/// A calendar date of the season.
struct GameDate {
  int month = 0, day = 0;
  bool operator==(const GameDate&) const = default;
};
inline GameDate DateOf(const ScheduleRecord& row) { return {row.Month, row.Day}; }

inline constexpr int kNoDateKey = 1232;  ///< behind every date
/// Where a date stands in the season: 100 x season month + day. The season begins in September; one with
/// games in August and in September goes by the calendar year. `kNoDateKey` for what is no date.
int DateKey(GameDate date);
inline int DateKey(const ScheduleRecord& row) { return DateKey(DateOf(row)); }

/// A computer coaches both sides.
bool ComputersPlay(const ScheduleRecord& row);

enum class Scope { kDay, kMonth, kThrough, kAll };

/// Games of a scope of `date`, and of `team` where that is not 0.
struct Selection {
  tipline::Scope Scope = Scope::kAll;
  GameDate Date;
  int Team = 0;
};
bool IsIn(const Selection& selection, const ScheduleRecord& row);

/// Turns the mark `from` of the selection's games into `to`; gives their count. A row without a date is never
/// marked for play.
int ChangeMarks(const Selection& selection, char from, char to);
/// Marks the first `count` unplayed games of a selection, in the order in which they are played.
int MarkFirst(const Selection& selection, int count);
/// Every 'N' goes back to 'U'; gives their count.
int DropMarks();
bool AnyMarked();

/// Rows with a mark in the order of play: by date; on one date games of computers before those of a human;
/// then by row. So a human game comes before all that is later, and nothing earlier is left out for it.
std::vector<int> RowsInOrder(char mark, const Selection& selection = {});

/// The marked games of a run, found once: after each game the next one costs no look at the schedule.
class MarkedGames {
 public:
  void Gather();
  /// The next row that still is marked, without taking it; 0 at the end.
  int Peek();
  int Next();  ///< takes it
  /// A game that is not played yet has an undecided team, on the row's date or before.
  bool UndecidedUpTo(const ScheduleRecord& row) const { return DateKey(row) >= firstUndecided_; }

 private:
  std::vector<int> rows_;
  std::size_t next_ = 0;
  int firstUndecided_ = kNoDateKey;
};

}  // namespace tipline
