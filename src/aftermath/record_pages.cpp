#include "aftermath/record_pages.h"

#include <algorithm>
#include <cstdio>

#include "aftermath/record_names.h"

namespace tipline {
namespace {

void AddPlaces(std::vector<RecordLine>& lines, RecordBlock block, bool team, int id) {
  const std::string name = RecordName(id);
  if (name.empty()) return;
  const int slot = RecordSlot(block, id + (team ? kTeamRecords : 0));
  const RecordRow& row = league.RecordBook.Row[static_cast<std::size_t>(slot)];
  for (int place = 1; place <= kRecordPlaces; ++place) {
    if (row.Value[place] <= 0) continue;
    lines.push_back({block, team, name, place, row.Value[place], row.Holder[place].Str(),
                     row.HolderTeam[place].Str(), row.Opponent[place].Str(), row.Date[place].Str()});
  }
}

std::string LineText(const RecordLine& line) {
  char text[160];
  std::snprintf(text, sizeof text, "  %-26s%7d  %-20s  %-3s  %-3s  %s",
                line.Place == 1 ? line.Record.c_str() : "", line.Value, line.Holder.c_str(),
                line.HolderTeam.c_str(), line.Opponent.c_str(), line.Date.c_str());
  return std::string(text) + '\n';
}

}  // namespace

std::vector<RecordLine> RecordLines(RecordBlock block, bool teams) {
  std::vector<RecordLine> lines;
  if (league.RecordBook.Row.empty()) return lines;
  for (int id = 1; id < kTeamRecords; ++id) AddPlaces(lines, block, teams, id);
  return lines;
}

std::string RecordBlockPage(RecordBlock block, bool teams) {
  const auto lines = RecordLines(block, teams);
  if (lines.empty()) return "";
  std::string page = block == RecordBlock::kGame ? "Game Records" : "Season Records";
  page += teams ? ", Teams\n" : ", Players\n";
  for (const RecordLine& line : lines) page += LineText(line);
  return page;
}

std::string RecordBookPage(bool teams) {
  const std::string games = RecordBlockPage(RecordBlock::kGame, teams);
  const std::string season = RecordBlockPage(RecordBlock::kSeason, teams);
  return games + (games.empty() || season.empty() ? "" : "\n") + season;
}

}  // namespace tipline
