// The table of season averages: Basketball-Era.dat with its fills.
#include "base/record_file.h"
#include "league/files.h"
#include "league/program.h"
#include "league/rules.h"

namespace tipline {
namespace {

constexpr int kCollegeRecord = 200;  // the college row of a year lies so many records behind the pro row
constexpr int kEraRecords = kCollegeRecord + kLastEraYear - kFirstEraYear + 1;

/// The row that a record of the file holds; nullptr for the records between the tables.
EraRecord* RowOfRecord(int record) {
  const bool college = record > kCollegeRecord;
  const int year = kFirstEraYear - 1 + record - (college ? kCollegeRecord : 0);
  if (year > kLastEraYear) return nullptr;
  return college ? &league.EraCollege[year] : &league.EraPro[year];
}

/// The older layout held season totals.
void ConvertOldTotals(EraRecord& row) {
  if (row.EraMark == 99) return;
  row.EraMark = 99;
  const double games = row.Games == 0 ? 1 : row.Games;
  for (int i = 0; i < 13; ++i) row.*kEraFigures[i] = static_cast<f32>(row.OldTotals[i + 1] / games);
}

/// Turnovers of the seasons that did not count them.
double EstimatedTurnovers(const EraRecord& row, int year) {
  struct Weights {
    int before;
    double Ast, FGA;
  };
  constexpr Weights kWeights[] = {
      {1960, 0.33, 0.17}, {1965, 0.31, 0.16}, {1970, 0.30, 0.15}, {1973, 0.29, 0.14}};
  for (const auto& w : kWeights) {
    if (year < w.before) return row.Ast * w.Ast + row.FGA * w.FGA;
  }
  return row.TO;
}

void FillRow(EraRecord& row, int year) {
  if (row.TO == 0) row.TO = static_cast<f32>(EstimatedTurnovers(row, year));
  if (row.Bk == 0) row.Bk = static_cast<f32>((row.FGA - row.FGM) * 0.11);
  if (row.St == 0) row.St = static_cast<f32>(row.TO * 0.42);
}

/// The last years of the table take what they lack from the year before.
void ExtendProTable() {
  for (int year = 2047; year <= kLastEraYear; ++year) {
    EraRecord& row = league.EraPro[year];
    const EraRecord& before = league.EraPro[year - 1];
    if (row.Games == 0) row.Games = before.Games;
    for (const auto figure : kEraFigures) {
      if (row.*figure == 0) row.*figure = before.*figure;
    }
  }
}

/// The season of 72 games, which older era files hold unfinished.
void FixSeason2020() {
  EraRecord& row = league.EraPro[2020];
  if (row.Games == 82) row.Games = 72;
  if (row.TO == 0) row.TO = league.EraPro[2019].TO;
  if (row.St == 0) row.St = row.TO * 0.42F;
  if (row.F3A >= 26 && row.FGA >= 87 && row.Bk == 4.9F) return;
  row.FGA = 88.4F, row.FGM = 41.2F, row.F3A = 34.6F, row.F3M = 12.7F, row.FTA = 21.8F, row.FTM = 17.0F;
  row.Reb = 44.3F, row.OffReb = 9.8F, row.Ast = 24.8F, row.St = 7.6F, row.Bk = 4.9F, row.PF = 19.3F;
}

/// The season now running is played with the averages of the last complete one.
void FillEditionYear() {
  for (const auto figure : kEraFigures) {
    league.EraPro[kEditionYear].*figure = league.EraPro[kEditionYear - 1].*figure;
  }
}

}  // namespace

void FillEras() {
  for (int year = kFirstEraYear; year <= kLastEraYear; ++year) {
    ConvertOldTotals(league.EraPro[year]);
    FillRow(league.EraPro[year], year);
    FillRow(league.EraCollege[year], year);
  }
  ExtendProTable();
  FixSeason2020();
  FillEditionYear();
}

bool LoadEra() {
  const RecordFile file(EraFile(), kEraSlotBytes);
  file.ReadAll(kEraRecords, [](int record, const u8* bytes) {
    if (EraRecord* row = RowOfRecord(record)) ReadRecord(bytes, *row);
  });
  FillEras();
  return file.Exists();
}

bool SaveEra() {
  const RecordFile file(EraFile(), kEraSlotBytes);
  const bool written = file.RewriteAll(kEraRecords, [](int record, u8* bytes) {
    if (const EraRecord* row = RowOfRecord(record)) WriteRecord(*row, bytes);
  });
  return Written(written, file.Path());
}

}  // namespace tipline
