#pragma once
// An entry of the score ticker, one slot of HcTicker: where a game stood at some moment.
#include <concepts>

#include "base/record.h"

namespace tipline {

inline constexpr int kTickerSlotBytes = 50;

struct TickerRecord {
  static constexpr int kRecordSize = 50;

  u8 TickerStamp = 0, Month = 0, Day = 0, Period = 0;
  i16 GameClock = 0;
  u8 Final = 0;
  i16 Team1 = 0, Team2 = 0, Score1 = 0, Score2 = 0;
  tipline::Text<30> Text;
  Table<u8, 1, 5> Reserved;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, TickerRecord>
void Describe(Record& r, Visitor&& field) {
  field(0, "TickerStamp", r.TickerStamp,
        "begins at the home team's time zone x 12 + 1 and rises by 1 with each entry of the game");
  field(1, "Month", r.Month, "season month of the game");
  field(2, "Day", r.Day, "its day");
  field(3, "Period", r.Period, "period, overtimes counted on");
  field(4, "GameClock", r.GameClock, "tenths left");
  field(6, "Final", r.Final, "1: the game is over");
  field(7, "Team1", r.Team1, "visitor");
  field(9, "Team2", r.Team2, "home team");
  field(11, "Score1", r.Score1, "points of the visitor");
  field(13, "Score2", r.Score2, "points of the home team");
  field(15, "Text", r.Text, "who leads the game in points, or a team's streak");
  field(45, "Reserved", r.Reserved, "not used");
}

}  // namespace tipline
