#include "aftermath/highlights.h"

#include "aftermath/season_lines.h"
#include "aftermath/text_lines.h"
#include "base/calendar.h"
#include "base/record_file.h"
#include "engine/game_state.h"
#include "league/files.h"
#include "league/program.h"

namespace tipline {
namespace {

constexpr std::size_t kDateTag = 6;       // "Nov 5 "
constexpr std::size_t kRoomForDate = 35;  // a longer line goes without its date

std::string DateTag() {
  const std::string day = std::to_string(game.GameDay);
  const auto month = MonthName(CalendarMonth(Clamp(game.GameMonth, 1, 12)));
  return std::string(month.substr(0, 3)) + (day.size() < 2 ? " " : "") + day + " ";
}

/// His name and his team: what every line ends with, but for the date.
std::string NameTag(int side, int slot) {
  const std::string abbrev = game.team[side].Abbrev.Str();
  return PlayerAt(side, slot).LastName.Str() + " " + std::string(3 - abbrev.size(), ' ') + abbrev;
}

/// The lines of one man.
class ManLines {
 public:
  ManLines(int side, int slot, std::vector<std::string>& lines)
      : name_(NameTag(side, slot)), tag_(DateTag()), lines_(lines) {}
  void Post(const std::string& item) { lines_.push_back(item + " " + name_ + tag_); }
  void PostShort(const std::string& item) {
    const bool room = item.size() + 1 + name_.size() + tag_.size() < kRoomForDate;
    lines_.push_back(item + " " + name_ + (room ? tag_ : ""));
  }

 private:
  std::string name_, tag_;
  std::vector<std::string>& lines_;
};

bool IsFeat(const StatLine& line) {
  return PointsOf(line) >= 30 || line.Reb >= 15 || line.Ast >= 10 || line.Bk >= 5 || line.St >= 5;
}

/// "30 Pts, 12 Reb": each count that is worth it, as long as there is room.
std::string FeatText(const StatLine& line) {
  const struct {
    int count, least;
    std::size_t room;
    const char* unit;
  } items[] = {{PointsOf(line), 10, 99, " Pts,"},
               {line.Reb, 5, 30, " Reb,"},
               {line.Ast, 5, 30, " Ast,"},
               {line.Bk, 5, 15, " Bk,"},
               {line.St, 5, 15, " St,"}};
  std::string text;
  for (const auto& item : items) {
    if (item.count >= item.least && text.size() < item.room)
      text += " " + std::to_string(item.count) + item.unit;
  }
  return text.substr(1, text.size() - 2);  // without the blank in front and the comma behind
}

/// "9/14 FG".
std::string RateText(int made, int tried, const char* unit) {
  return std::to_string(made) + "/" + std::to_string(tried) + unit;
}

void AddMan(int side, int slot, std::vector<std::string>& lines) {
  const PlayerRecord& p = PlayerAt(side, slot);
  const StatLine& line = p.Stats[3];
  ManLines man(side, slot, lines);
  if (p.InjuryReturnDay != 0) man.Post(" Injured");
  if (ManAt(side, slot).Ejected > 0) man.Post(" Ejected");
  if (IsFeat(line)) man.PostShort(FeatText(line));
  if (line.To >= 10) man.Post(std::to_string(line.To) + " Turnovers");
  const auto rate = [](int made, int tried) { return tried > 0 ? static_cast<double>(made) / tried : 0; };
  if (line.FGM >= 10 && rate(line.FGM, line.FGA) >= 0.6) man.Post(RateText(line.FGM, line.FGA, " FG"));
  if (line.F3M >= 5 && (line.F3M >= 8 || rate(line.F3M, line.F3A) > 0.9))
    man.Post(RateText(line.F3M, line.F3A, " 3pt"));
  if (line.FTM >= 10 && rate(line.FTM, line.FTA) >= 0.6) man.Post(RateText(line.FTM, line.FTA, " FT"));
}

/// Points of an entry of the scoring log.
int PointsOfKind(char kind) {
  return kind == 'F' ? 1 : std::string_view("3+-").find(kind) != std::string_view::npos ? 3 : 2;
}

/// A shot from the floor, no put-back, that went in as the last period ran out and gave his side the lead.
void AddBuzzerBeater(std::vector<std::string>& lines) {
  int n = game.ScoreLogCount;
  while (n > 0 && game.ScoreLog[n].Kind == 'F' && game.ScoreLog[n].TimeLeft == 0) --n;  // he was fouled, too
  if (n == 0) return;
  const ScoreLogRow& row = game.ScoreLog[n];
  const bool putBack = std::string_view("Rk-").find(row.Kind) != std::string_view::npos;
  if (row.TimeLeft > 0 || row.Kind == 'F' || putBack || row.Period < league.rules.PeriodList) return;
  if (row.Side < 1 || row.Side > 2 || row.Slot < 1 || row.Slot > kRosterSlots) return;
  if (row.Period != game.Period) return;
  const int lead = row.Side == 1 ? row.VisitorScore - row.HomeScore : row.HomeScore - row.VisitorScore;
  if (lead > 0 && lead <= PointsOfKind(row.Kind)) ManLines(row.Side, row.Slot, lines).Post(" Buzzer Beater!");
}

std::filesystem::path HighlightsFile() { return LeagueFile("HcHighlights.txt"); }

}  // namespace

std::vector<std::string> GameHighlights() {
  std::vector<std::string> lines;
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (HasPlayed(side, slot)) AddMan(side, slot, lines);
    }
  }
  AddBuzzerBeater(lines);
  return lines;
}

bool PostHighlights(const std::vector<std::string>& lines) { return AppendLines(HighlightsFile(), lines); }

void ListHighlights(const std::vector<std::string>& lines) {
  constexpr std::size_t kMost = 500;
  auto& list = program.HighlightList;
  for (const std::string& line : lines) list.push_front(line);
  if (list.size() > kMost) list.resize(kMost);
}

Highlight ReadHighlight(const std::string& line) {
  constexpr std::size_t kAbbrev = 3;
  const auto isMonth = [](std::string_view text) {
    for (const std::string_view name : kSeasonMonthNames) {
      if (name.substr(0, 3) == text) return true;
    }
    return false;
  };
  std::string rest = line;
  Highlight found;
  if (rest.size() >= kDateTag && isMonth(std::string_view(rest).substr(rest.size() - kDateTag, 3))) {
    found.Date = rest.substr(rest.size() - kDateTag, kDateTag - 1);
    if (found.Date[3] != ' ') found.Date.insert(3, " ");
    rest.resize(rest.size() - kDateTag);
  }
  if (rest.size() > kAbbrev) {
    found.Abbrev = std::string(Trimmed(std::string_view(rest).substr(rest.size() - kAbbrev)));
    rest.resize(rest.size() - kAbbrev);
  }
  found.Text = std::string(Trimmed(rest));
  return found;
}

bool LoadHighlights(std::vector<std::string>& lines) { return LoadLines(HighlightsFile(), lines); }

}  // namespace tipline
