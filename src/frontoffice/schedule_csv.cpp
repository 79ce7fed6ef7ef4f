#include "frontoffice/schedule_csv.h"

#include <algorithm>
#include <vector>

#include "base/calendar.h"
#include "base/csv.h"
#include "base/numbers.h"
#include "base/record_file.h"
#include "league/files.h"
#include "league/schedule.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

using platform::RefusedWith;

constexpr std::size_t kMostImported = 10000;

/// All fields of the text, line by line.
std::vector<std::string> Items(std::string_view text) {
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);  // spreadsheets mark their text so
  std::vector<std::string> items;
  for (const auto& line : Lines(text)) {
    if (Trimmed(line).empty()) continue;
    for (auto& field : CsvFields(line)) items.push_back(std::move(field));
  }
  return items;
}

/// Calendar month by the first three letters of its name, or by its place in the season (1 is September); 0
/// for no month.
int MonthOf(std::string_view text) {
  const std::string wanted = Upper(Trimmed(text));
  for (int season = 1; season <= 12; ++season) {
    const std::string name = Upper(kSeasonMonthNames[season - 1]);
    if (wanted.size() >= 3 && wanted.substr(0, 3) == name.substr(0, 3)) return CalendarMonth(season);
  }
  const int season = NumberIn<int>(text).value_or(0);
  return season >= 1 && season <= 12 ? CalendarMonth(season) : 0;
}

/// The first active team of that name; 0 for none.
int TeamNamed(std::string_view text) {
  for (int team = 1; team <= kTeams; ++team) {
    if (league.team[team].TeamActive == 1 && !league.team[team].City.Empty() &&
        SameText(league.team[team].City.View(), text)) {
      return team;
    }
  }
  return 0;
}

/// Game n out of its four fields. False, told, when one of them is wrong.
bool ReadGame(std::span<const std::string> fields, int n, ScheduleRecord& row) {
  const std::string game = "Game:" + std::to_string(n);
  const auto shown = [&fields](std::size_t k) { return std::string(Trimmed(fields[k])); };
  const int month = MonthOf(fields[0]);
  if (month == 0) return RefusedWith("Invalid month: " + shown(0) + " " + game);
  const int day = NumberIn<int>(fields[1]).value_or(0);
  if (day < 1 || day > (month == 2 ? 29 : 31)) {
    return RefusedWith("Invalid Day For " + std::string(MonthName(month)) + " : " + shown(1), game);
  }
  const int visitor = TeamNamed(fields[2]);
  if (visitor == 0) return RefusedWith("Invalid Team: " + shown(2), game);
  const int home = TeamNamed(fields[3]);
  if (home == 0) return RefusedWith("Invalid Team: " + shown(3), game);
  if (visitor == home) return RefusedWith("Visitor and Home must be different teams!", game);
  row = NewScheduleGame(visitor, home, month, day);
  return true;
}

/// Puts `rows` in the schedule's place; the old one stands when they can't be written.
bool Replace(std::vector<ScheduleRecord> rows) {
  std::swap(rows, league.ScheduleGame);
  const int year = league.ScheduleYear;
  TakeSeasonOfLeague();
  if (SaveSchedule()) return LoadSchedule();
  std::swap(rows, league.ScheduleGame);
  league.ScheduleYear = year;
  return false;
}

}  // namespace

bool ExportCsvSchedule(const std::filesystem::path& file) {
  std::string text;
  ForScheduledGames([&text](const ScheduleRecord& row, int) {
    const bool listed = row.Status == 'N' || row.Status == 'P' || row.Status == 'U';
    if (!listed || MonthName(row.Month).empty()) return;
    if (!IsScheduleTeam(row.Team[1]) || !IsScheduleTeam(row.Team[2])) return;
    text += std::string(MonthName(row.Month)) + "," + std::to_string(row.Day) + "," +
            CsvField(ScheduleTeamName(row.Team[1])) + "," + CsvField(ScheduleTeamName(row.Team[2])) + "\n";
  });
  return Written(WriteWholeFile(file, text), file);
}

bool HcImportCSVSchedule(const std::filesystem::path& file) {
  auto& dialogs = platform::dialogs();
  if (!dialogs.Ask("Import " + file.filename().string() + " from " + file.parent_path().string() + "?")) {
    return false;
  }
  bool read = false;
  std::vector<std::string> items = Items(ReadWholeFile(file, &read));
  if (!read) return RefusedWith(file.filename().string() + " could not be read!");
  if (items.empty() || items.size() % 4 != 0) return RefusedWith("This file is not in the proper format!");
  if (items.size() / 4 > kMostImported) {
    return RefusedWith("At most " + std::to_string(kMostImported) + " games can be imported!");
  }
  std::vector<ScheduleRecord> rows(1);
  for (std::size_t k = 0; k < items.size(); k += 4) {
    ScheduleRecord row;
    if (!ReadGame(std::span(items).subspan(k, 4), static_cast<int>(k / 4) + 1, row)) return false;
    rows.push_back(row);
  }
  const auto games = rows.size() - 1;
  if (!Replace(std::move(rows))) return false;
  dialogs.Tell("Imported " + std::to_string(games) + " games!");
  return true;
}

}  // namespace tipline
