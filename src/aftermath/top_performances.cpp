// The forty best single games of the season in each category, playoff games too.
#include <algorithm>
#include <string>

#include "aftermath/box_text.h"
#include "aftermath/leader_boards.h"
#include "aftermath/season_lines.h"
#include "base/record_file.h"
#include "engine/game_state.h"
#include "league/files.h"
#include "league/program.h"

namespace tipline {
namespace {

constexpr int kOwnTable = 13;  // of the categories, the one that has its tables at the record's end

RecordFile Top40File() { return {LeagueFile("HcTop40"), kLeaderSlotBytes}; }

struct Category {
  std::string_view name;
  double (*of)(const StatLine& line);
};
// clang-format off
constexpr Category kCategories[] = {
    {"Scoring",             [](const StatLine& l) -> double { return PointsOf(l); }},
    {"Rebounds",            [](const StatLine& l) -> double { return l.Reb; }},
    {"Assists",             [](const StatLine& l) -> double { return l.Ast; }},
    {"Steals",              [](const StatLine& l) -> double { return l.St; }},
    {"Blocks",              [](const StatLine& l) -> double { return l.Bk; }},
    {"Game Score",          [](const StatLine& l) { return GameScore(l); }},
    {"Field Goals-Made",    [](const StatLine& l) -> double { return l.FGM; }},
    {"Three Pointers-Made", [](const StatLine& l) -> double { return l.F3M; }},
    {"Free Throws-Made",    [](const StatLine& l) -> double { return l.FTM; }},
    {"Turnovers",           [](const StatLine& l) -> double { return l.To; }},
    {"Field Goals-Att",     [](const StatLine& l) -> double { return l.FGA; }},
    {"Free Throws-Att",     [](const StatLine& l) -> double { return l.FTA; }},
    {"Three Pointers-Att",  [](const StatLine& l) -> double { return l.F3A; }},
};
// clang-format on

f32 ValueAt(const Top40Table& t, int place, int category) {
  return category == kOwnTable ? t.TopValue13[place] : t.TopValue[place][category];
}

void Put(Top40Table& t, int place, int category, const TopRow& row) {
  if (category == kOwnTable) {
    t.TopValue13[place] = row.Value;
    t.TopName13[place] = row.Name;
    t.TopGame13[place] = row.Game;
    return;
  }
  t.TopValue[place][category] = row.Value;
  t.TopName[place][category] = row.Name;
  t.TopGame[place][category] = row.Game;
}

/// "BOS vs NYK 12/96".
std::string GameText(int side) {
  const std::string year = std::to_string(game.GameYear);
  return game.team[side].Abbrev.Str() + " vs " + game.team[3 - side].Abbrev.Str() + " " +
         std::to_string(game.GameCalendarMonth) + "/" +
         year.substr(year.size() - std::min<std::size_t>(year.size(), 2));
}

bool EnterTeam(Top40Table& table, int side) {
  TopRow row;
  row.Game = GameText(side);
  bool changed = false;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!HasPlayed(side, slot)) continue;
    const PlayerRecord& man = PlayerAt(side, slot);
    row.Name = man.LastName.View();
    for (int category = 1; category <= kTopCategories; ++category) {
      row.Value = static_cast<f32>(TopCategoryValue(category, man.Stats[3]));
      if (InsertTop40(table, category, row)) changed = true;
    }
  }
  return changed;
}

}  // namespace

std::string_view TopCategoryName(int category) {
  return category >= 1 && category <= kTopCategories ? kCategories[category - 1].name : std::string_view();
}

double TopCategoryValue(int category, const StatLine& line) { return kCategories[category - 1].of(line); }

TopRow TopRowOf(const Top40Table& t, int place, int category) {
  if (category == kOwnTable) return {t.TopValue13[place], t.TopName13[place], t.TopGame13[place]};
  return {t.TopValue[place][category], t.TopName[place][category], t.TopGame[place][category]};
}

bool InsertTop40(Top40Table& t, int category, const TopRow& row) {
  if (!(row.Value >= ValueAt(t, kTopPlaces, category))) return false;
  int place = 1;
  while (place <= kTopPlaces && ValueAt(t, place, category) > row.Value) ++place;
  if (place > kTopPlaces) return false;
  for (int k = kTopPlaces; k > place; --k) {
    Put(t, k, category, TopRowOf(t, k - 1, category));
    if (category != kOwnTable) t.TopExtra[k][category] = t.TopExtra[k - 1][category];
  }
  Put(t, place, category, row);
  if (category != kOwnTable) t.TopExtra[place][category] = "";
  return true;
}

bool ReadTop40(Top40Table& table) {
  table = {};
  const RecordFile file = Top40File();
  const bool read = file.Path().empty() || file.Read(1, table);
  if (!read || table.Top40Mark != kLeaderMark) table = {};
  table.Top40Mark = kLeaderMark;
  return WasRead(read, file.Path());
}

bool UpdateTop40() {
  if (program.LeagueFolder.empty()) return true;
  Top40Table table;
  if (!ReadTop40(table)) return false;
  const bool visitors = EnterTeam(table, 1), home = EnterTeam(table, 2);
  if (!visitors && !home) return true;
  const RecordFile file = Top40File();
  return Written(file.Write(1, table), file.Path());
}

}  // namespace tipline
