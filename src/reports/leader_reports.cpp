#include "reports/leader_reports.h"

#include <algorithm>
#include <memory>

#include "league/league.h"
#include "league/setup.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

using platform::RefusedWith;
using Section = LeaderReport::Section;

constexpr int kCells = 46;    // of a board in the setup
constexpr i16 kBegins = 300;  // the cell in front of a section's key
constexpr int kRealBit = 1;
constexpr int kFirstToClear = 9;

// What the columns are counted from: totals, and where the same figures begin a game, a minute, at home and
// on the road.
constexpr int kTotals = 0, kPerGame = 30, kPer48 = 60, kAtHome = 170, kOnRoad = 200;
constexpr int kGames = 1;

/// The figures that leaders are made of: points, rebounds, assists, steals, blocks, minutes.
std::vector<Section> FigureSections(int behind) {
  const Section sections[] = {
      {19, {3, 4, 5, 6, 8}}, {12, {3, 10, 11}}, {13, {3, 16}}, {14, {3}}, {15, {3}}, {3, {}}};
  std::vector<Section> made;
  for (const Section& section : sections) {
    Section moved{section.Key + behind, {kGames}};
    for (const int column : section.Columns) moved.Columns.push_back(column + behind);
    made.push_back(std::move(moved));
  }
  return made;
}

/// The user's most points, rebounds ... in one game.
std::vector<Section> HighSections() {
  std::vector<Section> sections;
  for (const int key : {164, 158, 160, 161, 162, 152, 154, 156}) sections.push_back({key, {kGames}});
  return sections;
}

std::vector<Section> DefaultSections(int number) {
  constexpr int kBehind[] = {kTotals, kPerGame, kPer48, kAtHome, kOnRoad};
  if (number <= 5) return FigureSections(kBehind[number - 1]);
  if (number == 6) return HighSections();
  return {{91, {1, 4, 5}}, {92, {1, 6, 7}}, {93, {1, 8, 9}}};
}

std::vector<Section> StoredSections(int number) {
  std::vector<Section> sections;
  bool keyFollows = false;
  for (int cell = 0; cell < kCells; ++cell) {
    const int column = setup.LeaderBoardColumns[cell][number];
    if (column == 0) break;
    if (column == kBegins) {
      keyFollows = true;
    } else if (LeaderColumnOf(column).Number == 0) {
      continue;
    } else if (keyFollows) {
      sections.push_back({column, {}});
      keyFollows = false;
    } else if (!sections.empty()) {
      sections.back().Columns.push_back(column);
    }
  }
  return sections;
}

std::vector<i16> CellsOf(const LeaderReport& report) {
  std::vector<i16> cells;
  for (const Section& section : report.Sections) {
    cells.push_back(kBegins);
    cells.push_back(static_cast<i16>(section.Key));
    for (const int column : section.Columns) cells.push_back(static_cast<i16>(column));
  }
  return cells;
}

void Store(int number, const LeaderReport& report) {
  const auto cells = CellsOf(report);
  for (int cell = 0; cell < kCells; ++cell) {
    const auto at = static_cast<std::size_t>(cell);
    setup.LeaderBoardColumns[cell][number] = at < cells.size() ? cells[at] : i16{0};
  }
  setup.LeaderBoardName[number] = report.Name.empty() ? "Custom" : report.Name;
  setup.LeaderBoardMain[number] = static_cast<u8>(report.Rows / 5 - 1);
  setup.LeaderBoardSub[number] = static_cast<u8>(report.Team % 256);
  const int real = report.Season == SeasonLine::kReal ? kRealBit : 0;
  setup.LeaderBoardDisplay[number] = static_cast<u8>(report.Team / 256 * 2 + real);
}

/// Changes a report in the setup and keeps it; what can't be kept is taken back.
bool Keep(int number, const LeaderReport& report) {
  const auto before = std::make_unique<SetupRecord>(setup);
  Store(number, report);
  if (SaveSetup()) return true;
  setup = *before;
  return false;
}

bool ColumnsAreThere(const LeaderReport& report) {
  return std::all_of(report.Sections.begin(), report.Sections.end(), [](const Section& section) {
    return LeaderColumnOf(section.Key).Number > 0 &&
           std::all_of(section.Columns.begin(), section.Columns.end(),
                       [](int column) { return LeaderColumnOf(column).Number > 0; });
  });
}

bool IsSound(const LeaderReport& report) {
  if (report.Sections.empty()) return RefusedWith("A leader report needs a key column.");
  if (!ColumnsAreThere(report)) return RefusedWith("A column of this leader report does not exist.");
  if (CellsOf(report).size() > kCells) {
    return RefusedWith("A leader report has room for 46 columns; each section takes one more.");
  }
  if (report.Rows < 5 || report.Rows > 50 || report.Rows % 5 != 0) {
    return RefusedWith("A leader report shows the top 5 to the top 50, by steps of five.");
  }
  if (report.Team < 0 || report.Team > kTeams) return RefusedWith("There is no such team.");
  return report.Season == SeasonLine::kReplay || !NeedsReplay(report) ||
         RefusedWith("This report is not available for real statistics");
}

bool IsReport(int number) {
  return (number >= 1 && number <= kLeaderReports) || RefusedWith("Leader reports are numbered 1 to 50.");
}

}  // namespace

LeaderReport LeaderReportOf(int number) {
  LeaderReport report;
  if (number < 1 || number > kLeaderReports) return report;
  report.Name = setup.LeaderBoardName[number].Str();
  if (number <= kDefaultLeaderReports) {
    report.Sections = DefaultSections(number);
    return report;
  }
  report.Sections = StoredSections(number);
  report.Rows = 5 * (1 + std::min<int>(setup.LeaderBoardMain[number], 9));
  const int display = setup.LeaderBoardDisplay[number];
  report.Season = (display & kRealBit) != 0 ? SeasonLine::kReal : SeasonLine::kReplay;
  const int team = setup.LeaderBoardSub[number] + display / 2 * 256;
  report.Team = team <= kTeams ? team : 0;
  return report;
}

bool NeedsReplay(const LeaderReport& report) {
  const auto replayOnly = [](int column) { return LeaderColumnOf(column).ReplayOnly; };
  return std::any_of(report.Sections.begin(), report.Sections.end(), [&](const Section& section) {
    return replayOnly(section.Key) || std::any_of(section.Columns.begin(), section.Columns.end(), replayOnly);
  });
}

bool SaveLeaderReport(int number, const LeaderReport& report) {
  if (!IsReport(number)) return false;
  if (number <= kDefaultLeaderReports) {
    return RefusedWith("You may not change default reports 1 thru 7");
  }
  return IsSound(report) && Keep(number, report);
}

bool ClearLeaderReport(int number) {
  if (!IsReport(number)) return false;
  if (number < kFirstToClear) return RefusedWith("You may not change default reports 1 thru 8");
  return platform::dialogs().Ask("Clear this leader report?") && Keep(number, {});
}

}  // namespace tipline
