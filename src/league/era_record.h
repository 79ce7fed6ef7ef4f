#pragma once
// One row of Basketball-Era.dat: a season in averages per team and game. Slots are 100 bytes.
#include <concepts>
#include <type_traits>

#include "base/record.h"

namespace tipline {

struct EraRecord {
  static constexpr int kRecordSize = 81;

  i16 Games = 0;
  Table<i16, 1, 13> OldTotals;
  u8 EraMark = 0;
  f32 FGA = 0, FGM = 0, F3A = 0, F3M = 0, FTA = 0, FTM = 0, Reb = 0, OffReb = 0;
  f32 Ast = 0, St = 0, Bk = 0, TO = 0, PF = 0;
};

/// The per-game fields, in the order of OldTotals.
inline constexpr f32 EraRecord::*kEraFigures[13] = {
    &EraRecord::FGA, &EraRecord::FGM, &EraRecord::F3A,    &EraRecord::F3M, &EraRecord::FTA,
    &EraRecord::FTM, &EraRecord::Reb, &EraRecord::OffReb, &EraRecord::Ast, &EraRecord::St,
    &EraRecord::Bk,  &EraRecord::TO,  &EraRecord::PF,
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, EraRecord>
void Describe(Record& r, Visitor&& field) {
  field(0, "Games", r.Games, "games per team in that season");
  field(2, "OldTotals", r.OldTotals,
        "season totals of the older layout: FGA, FGM, F3A, F3M, FTA, FTM, Reb, OffReb, Ast, St, Bk, TO, PF");
  field(28, "EraMark", r.EraMark, "marker 99: the per-game fields hold");
  field(29, "FGA", r.FGA, "field-goal attempts per team per game");
  field(33, "FGM", r.FGM, "field goals made");
  field(37, "F3A", r.F3A, "three-point attempts");
  field(41, "F3M", r.F3M, "three-pointers made");
  field(45, "FTA", r.FTA, "free-throw attempts");
  field(49, "FTM", r.FTM, "free throws made");
  field(53, "Reb", r.Reb, "rebounds");
  field(57, "OffReb", r.OffReb, "offensive rebounds");
  field(61, "Ast", r.Ast, "assists");
  field(65, "St", r.St, "steals");
  field(69, "Bk", r.Bk, "blocks");
  field(73, "TO", r.TO, "turnovers");
  field(77, "PF", r.PF, "personal fouls");
}

}  // namespace tipline
