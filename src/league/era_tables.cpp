// The era tables that ship with the program, as text: one line a season.
#include <optional>

#include "base/csv.h"
#include "base/numbers.h"
#include "base/record_file.h"
#include "league/rules.h"
#include "platform/dialogs.h"
#include "platform/folders.h"

namespace tipline {
namespace {

constexpr std::string_view kHeading = "Year,Games,FGA,FGM,F3A,F3M,FTA,FTM,Reb,OffReb,Ast,St,Bk,TO,PF";
constexpr std::size_t kFields = 15;

template <class Number>
std::optional<Number> Parse(std::string_view text, Number least, Number most) {
  const auto value = NumberIn<Number>(text);
  return value && *value >= least && *value <= most ? value : std::nullopt;
}

/// Puts one line into its row; gives its year, 0 for a bad line.
int TakeLine(std::string_view line, EraTable& table) {
  const auto fields = CsvFields(line);
  if (fields.size() != kFields) return 0;
  const auto year = Parse(fields[0], kFirstEraYear, kLastEraYear);
  const auto games = Parse<i16>(fields[1], 0, 200);
  if (!year || !games) return 0;
  EraRecord row;
  row.Games = *games;
  row.EraMark = 99;
  for (std::size_t i = 0; i < std::size(kEraFigures); ++i) {
    const auto figure = Parse(fields[i + 2], 0.0F, 1000.0F);
    if (!figure) return 0;
    row.*kEraFigures[i] = *figure;
  }
  table[*year] = row;
  return *year;
}

bool TellBad(const std::string& name, int line) {
  platform::dialogs().Tell(line == 0 ? name + " could not be read!"
                                     : name + ", line " + std::to_string(line) + ", could not be read!");
  return false;
}

/// Takes the next line, without its end, off `rest`. False when nothing is left.
bool NextLine(std::string_view& rest, std::string_view& line) {
  if (rest.empty()) return false;
  const auto end = std::min(rest.find('\n'), rest.size());
  line = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return true;
}

/// One table of the program; the seasons ahead of the first line and behind the last one take its row.
bool ReadTable(const std::string& name, EraTable& table) {
  bool read = false;
  const std::string text = ReadWholeFile(platform::ShippedData() / name, &read);
  if (!read) return TellBad(name, 0);
  std::string_view rest = text, line;
  int firstYear = kLastEraYear, lastYear = 0;
  for (int lineNo = 1; NextLine(rest, line); ++lineNo) {
    if (line.empty() || (lineNo == 1 && line == kHeading)) continue;
    const int year = TakeLine(line, table);
    if (year == 0) return TellBad(name, lineNo);
    firstYear = std::min(firstYear, year);
    lastYear = std::max(lastYear, year);
  }
  if (lastYear == 0) return TellBad(name, 0);
  for (int year = kFirstEraYear; year < firstYear; ++year) table[year] = table[firstYear];
  for (int year = lastYear + 1; year <= kLastEraYear; ++year) table[year] = table[lastYear];
  return true;
}

bool ReadTables() {
  EraTable pro, college;
  if (!ReadTable("era_pro.csv", pro) || !ReadTable("era_college.csv", college)) return false;
  league.EraPro = pro;
  league.EraCollege = college;
  return true;
}

}  // namespace

bool UseShippedEras() {
  if (!ReadTables()) return false;
  FillEras();
  return true;
}

bool MakeEraFile() {
  if (!ReadTables() || !SaveEra()) return false;  // the file holds what is known, each load fills it
  FillEras();
  return true;
}

}  // namespace tipline
