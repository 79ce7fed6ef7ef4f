#include "frontoffice/rating_math.h"

namespace tipline {

const EraRecord& SeasonRow(int year, bool college) {
  const EraTable& table = college ? league.EraCollege : league.EraPro;
  const int first = Clamp(year, kFirstEraYear, kLastEraYear);
  for (int y = first; y <= kLastEraYear; ++y) {
    if (table[y].FGA > 0 && table[y].Games > 0) return table[y];
  }
  return table[first];
}

}  // namespace tipline
