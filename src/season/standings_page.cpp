// The standings on paper.
#include <algorithm>

#include "base/csv.h"
#include "base/page.h"
#include "league/program.h"
#include "league/report_file.h"
#include "league/setup.h"
#include "season/standings.h"

namespace tipline {
namespace {

constexpr std::size_t kNameWidth = 20;

struct Line {
  const Standings& standings;
  const StandingsGroup& group;
  int number;
  const TeamRecord& team;
};

std::string Pair(int wins, int losses) { return std::to_string(wins) + "-" + std::to_string(losses); }

/// A column as wide as its heading; figures end where the heading's last letter stands.
struct Column {
  std::string_view heading, csv;
  std::string (*cell)(const Line&);
  enum When { kAlways, kConferenceRecord, kDivision, kConference, kFull } when = kAlways;
};

// clang-format off
constexpr Column kColumns[] = {
    {"  CW",        "CW",       [](const Line& l) { return std::to_string(l.team.DivisionWins); }, Column::kConferenceRecord},
    {"  CL",        "CL",       [](const Line& l) { return std::to_string(l.team.DivisionLosses); }, Column::kConferenceRecord},
    {"   W",        "W",        [](const Line& l) { return std::to_string(l.team.Wins); }},
    {"  L",         "L",        [](const Line& l) { return std::to_string(l.team.Losses); }},
    {"   Pct",      "Pct",      [](const Line& l) {
       const WinLoss record = OrderingRecord(l.standings, l.team);
       return ShareText(record.wins, record.wins + record.losses); }},
    {"    GB",      "GB",       [](const Line& l) { return GamesBehind(l.standings, l.group, l.number); }},
    {"  Stk",       "Stk",      [](const Line& l) { return StreakText(l.team); }},
    {"  L10 ",      "L10",      [](const Line& l) { return LastTenText(l.team); }},
    {"  Div ",      "Div",      [](const Line& l) { return Pair(l.team.DivisionWins, l.team.DivisionLosses); }, Column::kDivision},
    {"  Conf ",     "Conf",     [](const Line& l) { return Pair(l.team.ConferenceWins, l.team.ConferenceLosses); }, Column::kConference},
    {"  Home ",     "Home",     [](const Line& l) { return Pair(l.team.HomeWins, l.team.HomeLosses); }},
    {" Road ",      "Road",     [](const Line& l) { const WinLoss r = RoadRecord(l.team); return Pair(r.wins, r.losses); }},
    {"  OT ",       "OT",       [](const Line& l) { return Pair(l.team.OvertimeWins, l.team.OvertimeLosses); }, Column::kFull},
    {"  3Pt ",      "3Pt",      [](const Line& l) { return Pair(l.team.CloseWins, l.team.CloseLosses); }, Column::kFull},
    {"  10Pt ",     "10Pt",     [](const Line& l) { return Pair(l.team.BlowoutWins, l.team.BlowoutLosses); }, Column::kFull},
    {"  100+ ",     "100+",     [](const Line& l) { return Pair(l.team.WinsScoring100, l.team.LossesScoring100); }, Column::kFull},
    {" Half Lead ", "HalfLead", [](const Line& l) { return Pair(l.team.WinsLeadingAtHalf, l.team.LossesLeadingAtHalf); }, Column::kFull},
    {"Trail ",      "Trail",    [](const Line& l) { return Pair(l.team.WinsTrailingAtHalf, l.team.LossesTrailingAtHalf); }, Column::kFull},
    {" vs .500+ ",  "vs.500+",  [](const Line& l) { return Pair(l.team.WinsVsWinning, l.team.LossesVsWinning); }, Column::kFull},
    {".500- ",      "vs.500-",  [](const Line& l) { return Pair(l.team.WinsVsLosing, l.team.LossesVsLosing); }, Column::kFull},
    {"    Pts ",    "Pts",      [](const Line& l) { return Decimal(PointsPerGame(l.team, 1), 1); }, Column::kFull},
    {"  Opp ",      "Opp",      [](const Line& l) { return Decimal(PointsPerGame(l.team, 2), 1); }, Column::kFull},
    {" Diff ",      "Diff",     [](const Line& l) { return Decimal(PointsPerGame(l.team, 1) - PointsPerGame(l.team, 2), 1); }, Column::kFull},
};
// clang-format on

bool Shown(const Column& column, const Standings& standings, bool dated) {
  switch (column.when) {
    case Column::kConferenceRecord:
      return standings.byConferenceRecord;
    case Column::kDivision:
      return setup.DivisionCheck[0] == 1;
    case Column::kConference:
      return setup.ConferenceCheck[0] == 1;
    case Column::kFull:
      return !dated;
    default:
      return true;
  }
}

/// In the width of the heading, the blank at its end kept free where the text leaves it so.
std::string InColumn(const Column& column, const std::string& text) {
  const std::size_t width = column.heading.size();
  if (column.heading.back() != ' ' || text.size() >= width)
    return AtRight(text, std::max(width, text.size()));
  return AtRight(text, width - 1) + " ";
}

template <class Visit>
void ForTeams(const Standings& standings, const StandingsGroup& group, Visit visit) {
  for (const int team : group.teams) visit(Line{standings, group, team, league.team[team]});
}

}  // namespace

std::string StandingsPage(const Standings& standings, bool dated) {
  std::string page;
  for (const StandingsGroup& group : standings.groups) {
    std::string heads = AtLeft(group.heading, kNameWidth);
    for (const Column& column : kColumns) {
      if (Shown(column, standings, dated)) heads += column.heading;
    }
    page += heads + "\n";
    ForTeams(standings, group, [&](const Line& line) {
      page += AtLeft(StandingsName(line.team), kNameWidth);
      for (const Column& column : kColumns) {
        if (Shown(column, standings, dated)) page += InColumn(column, column.cell(line));
      }
      page += "\n";
    });
    page += "\n";
  }
  return page;
}

std::string StandingsCsv(const Standings& standings, bool dated) {
  const auto shown = [&](const Column& column) {
    return column.when == Column::kFull
               ? !dated
               : column.when != Column::kConferenceRecord || standings.byConferenceRecord;
  };
  std::string text = "Group,TeamNo,Team";
  for (const Column& column : kColumns) {
    if (shown(column)) text.append(",").append(column.csv);
  }
  text += "\n";
  for (const StandingsGroup& group : standings.groups) {
    ForTeams(standings, group, [&](const Line& line) {
      text +=
          CsvField(group.heading) + "," + std::to_string(line.number) + "," + CsvField(TeamName(line.team));
      for (const Column& column : kColumns) {
        if (shown(column)) text += "," + column.cell(line);
      }
      text += "\n";
    });
  }
  return text;
}

bool DisplayStandings() {
  const Standings standings = OrderStandings();
  return program.SilentReport || WriteReport("STANDINGS", StandingsPage(standings, false));
}

}  // namespace tipline
