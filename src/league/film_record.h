#pragma once
// A game's film: one frame for each play that was shown, in slots of 2000 bytes. Films of the first kind
// have slots of 1000 bytes and frames of 20 shorter lines.
#include <concepts>

#include "base/record.h"

namespace tipline {

inline constexpr int kFilmFrames = 500;  ///< more overwrite the last
inline constexpr int kFilmSlotBytes = 2000;
inline constexpr int kOldFilmSlotBytes = 1000;
inline constexpr i16 kFilmVersion = 2017;  ///< of each frame; without it on the first the film is an old one
inline constexpr u8 kFilmMark = 99;        ///< of a stored frame

struct FilmFrame {
  static constexpr int kRecordSize = 1869;
  static constexpr int kLines = 30;

  Table<Text<15>, 1, 2> FilmTeam;
  u8 FilmPeriod = 0;
  i16 FilmClock = 0;
  Table<u8, 1, 2> FilmScore;
  u8 FilmLineCount = 0;
  Table<Text<60>, 1, kLines> FilmLine;
  u8 FilmMark = 0;
  Table<u8, 1, kLines> FilmSide;
  i16 FilmVersion = 0;
};

struct OldFilmFrame {
  static constexpr int kRecordSize = 957;
  static constexpr int kLines = 20;

  Table<Text<15>, 1, 2> FilmTeam;
  u8 FilmPeriod = 0;
  i16 FilmClock = 0;
  Table<u8, 1, 2> FilmScore;
  u8 FilmLineCount = 0;
  Table<Text<45>, 1, kLines> FilmLine;
  u8 FilmMark = 0;
  Table<u8, 1, kLines> FilmSide;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, FilmFrame> ||
    std::same_as<std::remove_const_t<Record>, OldFilmFrame>
void Describe(Record& r, Visitor&& field) {
  constexpr int lines = Record::kLines;
  constexpr int width = decltype(r.FilmLine)::value_type::kLength;
  constexpr int mark = 36 + lines * width;
  field(0, "FilmTeam", r.FilmTeam, "city of the visitor and of the home team");
  field(30, "FilmPeriod", r.FilmPeriod, "period");
  field(31, "FilmClock", r.FilmClock, "game clock in tenths");
  field(33, "FilmScore", r.FilmScore, "score, visitor and home");
  field(35, "FilmLineCount", r.FilmLineCount, "lines of the frame");
  field(36, "FilmLine", r.FilmLine, "the commentary");
  field(mark, "FilmMark", r.FilmMark, "99: a stored frame");
  field(mark + 1, "FilmSide", r.FilmSide, "side whose colours a line takes, 0 none");
  if constexpr (requires { r.FilmVersion; }) {
    field(mark + 1 + lines, "FilmVersion", r.FilmVersion, "2017: the film has slots of 2000 bytes");
  }
}

}  // namespace tipline
