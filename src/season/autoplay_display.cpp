#include "season/autoplay_display.h"

#include <algorithm>
#include <cstdlib>

#include "base/numbers.h"
#include "frontoffice/schedule_editor.h"
#include "season/standings.h"

namespace tipline {
namespace {

constexpr int kTellingStreak = 3;

std::string StatusOf(const ScheduleRecord& row, int n, int playingRow) {
  if (n == playingRow) return "***** Now Playing *****";
  return row.Status == 'N' ? "Play Next" : StatusWords(row);
}

std::string StreakText(int team) {
  const int streak = league.team[team].Streak;
  if (std::abs(streak) < kTellingStreak) return "";
  return ScheduleTeamName(team) + " " + std::to_string(std::abs(streak)) +
         (streak > 0 ? " Game Win Streak" : " Game Losing Streak");
}

}  // namespace

std::vector<SkedLine> DisplaySked(GameDate date, int playingRow) {
  std::vector<SkedLine> lines;
  ForScheduledGames([&](const ScheduleRecord& row, int n) {
    if (DateOf(row) != date) return;
    SkedLine line{n,
                  StatusOf(row, n, playingRow),
                  ScheduleTeamName(row.Team[1]),
                  ScheduleTeamName(row.Team[2]),
                  row.ScoringLeader.Str(),
                  row.ReboundLeader.Str(),
                  row.AssistLeader.Str(),
                  {}};
    for (int side = 1; side <= 2; ++side) line.CoachKind[side] = row.CoachKind[side] == 'H' ? 'H' : 'C';
    lines.push_back(line);
  });
  return lines;
}

std::vector<std::string> DisplayGame2019Format(const ScheduleRecord& row) {
  std::vector<std::string> lines;
  if (row.GameType != 'R') lines.emplace_back(GameTypeWords(row.GameType.bytes[0]));
  if (row.Status != 'P') return lines;
  for (int side = 1; side <= 2; ++side) {
    lines.push_back((side == 1 && row.Overtime == 1 ? "OT! " : "") + ScheduleTeamName(row.Team[side]) + " " +
                    std::to_string(row.Score[side]) + " (" + row.RecordAfter[side].Str() + ")");
  }
  std::string leaders;
  const auto add = [&leaders](const std::string& who, const char* what) {
    if (!who.empty()) leaders += who + what;
  };
  add(row.ScoringLeader.Str(), " Pts, ");
  add(row.ReboundLeader.Str(), " Reb, ");
  add(row.AssistLeader.Str(), " Ast, ");
  if (leaders.size() > 2) lines.push_back(leaders.substr(0, leaders.size() - 2));
  for (const int team : row.Team) {
    const bool stored = team >= 1 && team <= kTeams;
    if (const std::string streak = stored ? StreakText(team) : ""; !streak.empty()) lines.push_back(streak);
  }
  return lines;
}

std::vector<CalendarDate> UpdateAutoplayCalendarDates() {
  std::vector<CalendarDate> dates;
  ForScheduledGames([&dates](const ScheduleRecord& row, int) {
    if (DateKey(row) == kNoDateKey) return;
    auto at = std::find_if(dates.begin(), dates.end(),
                           [&row](const CalendarDate& known) { return known.Date == DateOf(row); });
    if (at == dates.end()) at = dates.insert(at, {DateOf(row), 0, 0});
    ++at->Games;
    at->Played += row.Status == 'P';
  });
  std::sort(dates.begin(), dates.end(),
            [](const CalendarDate& a, const CalendarDate& b) { return DateKey(a.Date) < DateKey(b.Date); });
  return dates;
}

std::string EnterPointSPread(const ScheduleRecord& row) {
  constexpr double kHomeCourt = 3.5;
  Table<double, 1, 2> rating{};
  for (int side = 1; side <= 2; ++side) {
    const int team = row.Team[side];
    if (team < 1 || team > kTeams || league.team[team].PowerRating == 0) return "No Line";
    rating[side] = league.team[team].PowerRating;
  }
  const bool neutral = row.NeutralSite == 1 || league.rules.NeutralCheck == 1;
  const int points = Int(rating[1] - rating[2] - (neutral ? 0 : kHomeCourt) + 0.5);
  if (points == 0) return "Pick";
  return ScheduleTeamName(row.Team[points > 0 ? 1 : 2]) + " by " + std::to_string(std::abs(points));
}

std::vector<StandingsLine> DisplayStandings(const std::vector<int>& divisions) {
  const Standings standings = OrderStandings();
  StandingsGroup view;
  for (const int team : standings.StandingsOrder) {
    if (std::find(divisions.begin(), divisions.end(), DivisionOf(team)) != divisions.end()) {
      view.teams.push_back(team);
    }
  }
  std::vector<StandingsLine> lines;
  for (const int team : view.teams) {
    const WinLoss record = OrderingRecord(standings, league.team[team]);
    lines.push_back({team, record.wins, record.losses, GamesBehind(standings, view, team)});
  }
  return lines;
}

}  // namespace tipline
