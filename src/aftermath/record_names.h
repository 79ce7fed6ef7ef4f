#pragma once
// The categories of the record book, by id: their names, and what a line, a man or a team has in each.
#include <iterator>
#include <string>
#include <string_view>

#include "engine/game_state.h"
#include "league/shot_splits.h"

namespace tipline {

struct RecordFigure {
  std::string_view name;
  int (*of)(const StatLine& line);
};
// clang-format off
/// Ids 1 to 16; with " on Road" 61 to 76, with " at Home" 81 to 96.
inline constexpr RecordFigure kRecordFigures[] = {
    {"Minutes",              [](const StatLine& l) -> int { return l.Min; }},
    {"Field Goals Made",     [](const StatLine& l) -> int { return l.FGM; }},
    {"Field Goal Attempts",  [](const StatLine& l) -> int { return l.FGA; }},
    {"Free Throws Made",     [](const StatLine& l) -> int { return l.FTM; }},
    {"Free Throw Attempts",  [](const StatLine& l) -> int { return l.FTA; }},
    {"Three Pointers Made",  [](const StatLine& l) -> int { return l.F3M; }},
    {"Three Point Attempts", [](const StatLine& l) -> int { return l.F3A; }},
    {"Rebounds",             [](const StatLine& l) -> int { return l.Reb; }},
    {"Offensive Rebounds",   [](const StatLine& l) -> int { return l.Off; }},
    {"Assists",              [](const StatLine& l) -> int { return l.Ast; }},
    {"Steals",               [](const StatLine& l) -> int { return l.St; }},
    {"Blocked Shots",        [](const StatLine& l) -> int { return l.Bk; }},
    {"Turnovers",            [](const StatLine& l) -> int { return l.To; }},
    {"Personal Fouls",       [](const StatLine& l) -> int { return l.Pf; }},
    {"Points",               [](const StatLine& l) -> int { return PointsOf(l); }},
    {"Defensive Rebounds",   [](const StatLine& l) -> int { return l.Reb - l.Off; }},
};

/// Ids 30 to 39, attempts and makes of each: places in `kShotSplits`. A fast break, or a shot off an offensive
/// rebound, is one kind, for two points or for three.
struct RecordShot {
  std::string_view attempts, made;
  int split, threes;  ///< attempts; -1 the kind has no threes. The makes stand eight places behind
};
inline constexpr RecordShot kRecordShots[] = {
    {"Inside Attempts",    "Inside Shots Made",    0, -1},
    {"Outside Attempts",   "Outside Shots Made",   1, -1},
    {"Drive Attempts",     "Drive Shots Made",     3, -1},
    {"Fastbreak Attempts", "Fastbreak Shots Made", 4,  6},
    {"Off-Reb Attempts",   "Off-Reb Shots Made",   5,  7},
};
inline constexpr int kMadeSplits = 8;

/// Ids 180 to 185 in a quarter, 190 to 195 in a half.
struct RecordStretch {
  std::string_view name;
  int ShortLine::*counter;
};
inline constexpr RecordStretch kRecordStretches[] = {
    {"Points",    &ShortLine::Points}, {"Rebounds", &ShortLine::Reb}, {"Assists",   &ShortLine::Ast},
    {"Steals",    &ShortLine::St},     {"Blocks",   &ShortLine::Bk},  {"Turnovers", &ShortLine::To},
};
// clang-format on

inline constexpr int kShotRecords = 30;
inline constexpr int kRoadRecords = 61;
inline constexpr int kHomeRecords = 81;
inline constexpr int kMarginRecord = 120;
inline constexpr int kPeriodRecords = 121;     ///< to 127: points by quarter
inline constexpr int kOppPeriodRecords = 131;  ///< to 137
inline constexpr int kRecordPeriods = 7;
inline constexpr int kQuarterRecords = 180;
inline constexpr int kHalfRecords = 190;
inline constexpr int kTeamRecords = 200;  ///< id 1 of a team stands in row 201

/// "Steals at Home"; empty for an id without a category.
std::string RecordName(int id);

}  // namespace tipline
