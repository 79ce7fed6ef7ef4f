#pragma once
// Lines of statistics. All counts are totals. Points are never stored: 2 x FGM + F3M + FTM.
#include <concepts>
#include <type_traits>

#include "base/record.h"

namespace tipline {

struct StatLine {
  static constexpr int kRecordSize = 64;

  i16 G = 0, GS = 0, Min = 0, FGA = 0, FGM = 0, F3A = 0, F3M = 0, FTA = 0;
  i16 FTM = 0, Reb = 0, Off = 0, Ast = 0, St = 0, Bk = 0, To = 0, Pf = 0;
  i16 Dq = 0;
  u8 Technicals = 0, GameMvps = 0;
  i16 Dunks = 0;
  u8 DunkMark = 0, EjectionMark = 0, Flagrant2 = 0, Ejections = 0;
  Text<22> Spare;
};

constexpr int PointsOf(const StatLine& line) { return 2 * line.FGM + line.F3M + line.FTM; }

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, StatLine>
void Describe(Record& r, Visitor&& field) {
  field(0, "G", r.G, "games played");
  field(2, "GS", r.GS, "games started");
  field(4, "Min", r.Min, "minutes");
  field(6, "FGA", r.FGA, "field-goal attempts, three-point attempts included");
  field(8, "FGM", r.FGM, "field goals made, three-pointers included");
  field(10, "F3A", r.F3A, "three-point attempts");
  field(12, "F3M", r.F3M, "three-pointers made");
  field(14, "FTA", r.FTA, "free-throw attempts");
  field(16, "FTM", r.FTM, "free throws made");
  field(18, "Reb", r.Reb, "total rebounds");
  field(20, "Off", r.Off, "offensive rebounds");
  field(22, "Ast", r.Ast, "assists");
  field(24, "St", r.St, "steals");
  field(26, "Bk", r.Bk, "blocked shots");
  field(28, "To", r.To, "turnovers");
  field(30, "Pf", r.Pf, "personal fouls");
  field(32, "Dq", r.Dq, "disqualifications");
  field(34, "Technicals", r.Technicals, "technical fouls");
  field(35, "GameMvps", r.GameMvps, "game most-valuable-player awards");
  field(36, "Dunks", r.Dunks, "dunks");
  field(38, "DunkMark", r.DunkMark, "in a player's second line only: marker 99");
  field(39, "EjectionMark", r.EjectionMark, "in a player's first line only: marker 99");
  field(40, "Flagrant2", r.Flagrant2, "flagrant 2 fouls");
  field(41, "Ejections", r.Ejections, "ejections");
  field(42, "Spare", r.Spare, "unused text");
}

struct RealTotalsLine {
  static constexpr int kRecordSize = 52;

  i16 Spare0 = 0, FGA = 0, FGM = 0, F3A = 0, F3M = 0, FTA = 0, FTM = 0, Reb = 0;
  i16 Off = 0, Ast = 0, St = 0, Bk = 0, To = 0, Pf = 0;
  Table<u8, 1, 4> Spare28;
  Text<20> SpareText;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, RealTotalsLine>
void Describe(Record& r, Visitor&& field) {
  field(0, "Spare0", r.Spare0, "not used");
  field(2, "FGA", r.FGA, "field-goal attempts");
  field(4, "FGM", r.FGM, "field goals made");
  field(6, "F3A", r.F3A, "three-point attempts");
  field(8, "F3M", r.F3M, "three-pointers made");
  field(10, "FTA", r.FTA, "free-throw attempts");
  field(12, "FTM", r.FTM, "free throws made");
  field(14, "Reb", r.Reb, "rebounds");
  field(16, "Off", r.Off, "offensive rebounds");
  field(18, "Ast", r.Ast, "assists");
  field(20, "St", r.St, "steals");
  field(22, "Bk", r.Bk, "blocks");
  field(24, "To", r.To, "turnovers");
  field(26, "Pf", r.Pf, "personal fouls");
  field(28, "Spare28", r.Spare28, "not used");
  field(32, "SpareText", r.SpareText, "not used");
}

struct SeriesLine {
  static constexpr int kRecordSize = 30;

  u8 G = 0, GS = 0;
  i16 Min = 0;
  u8 OldFGA = 0, FGM = 0, F3A = 0, F3M = 0, FTA = 0, FTM = 0, Reb = 0, Off = 0;
  u8 Ast = 0, St = 0, Bk = 0, To = 0, Pf = 0, Dq = 0;
  i16 FGA = 0;
  u8 SeriesMark = 0;
  Text<9> Spare;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, SeriesLine>
void Describe(Record& r, Visitor&& field) {
  field(0, "G", r.G, "games");
  field(1, "GS", r.GS, "games started");
  field(2, "Min", r.Min, "minutes");
  field(4, "OldFGA", r.OldFGA, "field-goal attempts of the older layout");
  field(5, "FGM", r.FGM, "field goals made");
  field(6, "F3A", r.F3A, "three-point attempts");
  field(7, "F3M", r.F3M, "three-pointers made");
  field(8, "FTA", r.FTA, "free-throw attempts");
  field(9, "FTM", r.FTM, "free throws made");
  field(10, "Reb", r.Reb, "rebounds");
  field(11, "Off", r.Off, "offensive rebounds");
  field(12, "Ast", r.Ast, "assists");
  field(13, "St", r.St, "steals");
  field(14, "Bk", r.Bk, "blocks");
  field(15, "To", r.To, "turnovers");
  field(16, "Pf", r.Pf, "personal fouls");
  field(17, "Dq", r.Dq, "disqualifications");
  field(18, "FGA", r.FGA, "field-goal attempts");
  field(20, "SeriesMark", r.SeriesMark, "marker 99: FGA is valid");
  field(21, "Spare", r.Spare, "unused text");
}

}  // namespace tipline
