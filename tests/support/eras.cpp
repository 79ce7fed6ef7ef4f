#include "support/eras.h"

#include <string>

#include "base/csv.h"
#include "base/record_file.h"
#include "league/league.h"
#include "platform/folders.h"

namespace tipline {
namespace {

void FillUnkept(EraRecord& row, int year) {
  if (row.TO == 0) {
    row.TO = year >= 1973   ? 0
             : year >= 1970 ? row.Ast * 0.29f + row.FGA * 0.14f
             : year >= 1965 ? row.Ast * 0.30f + row.FGA * 0.15f
             : year >= 1960 ? row.Ast * 0.31f + row.FGA * 0.16f
                            : row.FGA * 0.17f + row.Ast * 0.33f;
  }
  if (row.Bk == 0) row.Bk = (row.FGA - row.FGM) * 0.11f;
  if (row.St == 0) row.St = row.TO * 0.42f;
}

void LoadTable(const char* file, EraTable& table) {
  table = {};
  const auto lines = Lines(ReadWholeFile(platform::ShippedData() / file));
  int last = kFirstEraYear;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const auto fields = CsvFields(lines[i]);
    const int year = std::stoi(fields[0]);
    EraRecord& row = table[year];
    row.Games = static_cast<i16>(std::stoi(fields[1]));
    std::size_t f = 2;
    for (f32* figure : {&row.FGA, &row.FGM, &row.F3A, &row.F3M, &row.FTA, &row.FTM, &row.Reb, &row.OffReb,
                        &row.Ast, &row.St, &row.Bk, &row.TO, &row.PF}) {
      *figure = std::stof(fields[f++]);
    }
    FillUnkept(row, year);
    row.EraMark = 99;
    last = year;
  }
  for (int year = last + 1; year <= kLastEraYear; ++year) table[year] = table[last];
}

}  // namespace

void LoadShippedEras() {
  LoadTable("era_pro.csv", league.EraPro);
  LoadTable("era_college.csv", league.EraCollege);
}

}  // namespace tipline
