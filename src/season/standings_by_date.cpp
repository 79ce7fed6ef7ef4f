// The standings of a day in the past, replayed from the results.
#include "base/calendar.h"
#include "base/tables.h"
#include "league/office_files.h"
#include "league/program.h"
#include "league/report_file.h"
#include "platform/dialogs.h"
#include "season/standings.h"

namespace tipline {
namespace {

/// A season runs from September to August: months 9 to 12 come before 1 to 8.
bool InScope(const ScheduleRecord& row, int month, int day) {
  if (day == 0) return row.Month == month;
  if (row.Month == month) return row.Day <= day;
  if (month >= 9) return row.Month >= 9 && row.Month < month;
  return row.Month >= 9 || row.Month < month;
}

void ClearRecord(TeamRecord& team) {
  team.Wins = team.Losses = team.Streak = 0;
  team.HomeWins = team.HomeLosses = team.NeutralWins = team.NeutralLosses = 0;
  team.DivisionWins = team.DivisionLosses = team.ConferenceWins = team.ConferenceLosses = 0;
  team.LastTen.Fill(Text<1>(" "));
}

void Rise(u8& counter) {
  if (counter < 255) ++counter;
}

void Enter(TeamRecord& team, bool won) {
  for (int k = 10; k > 1; --k) team.LastTen[k] = team.LastTen[k - 1];
  team.LastTen[1] = Text<1>(won ? "W" : "L");
  ++(won ? team.Wins : team.Losses);
  if (won) {
    team.Streak = static_cast<i16>(team.Streak >= 0 ? team.Streak + 1 : 1);
  } else {
    team.Streak = static_cast<i16>(team.Streak <= 0 ? team.Streak - 1 : -1);
  }
}

bool Counts(const ScheduleRecord& row) {
  // The final of the in-season cup does not count.
  const auto known = [](int team) {
    return team >= 1 && team <= kTeams && league.team[team].TeamActive == 1;
  };
  return known(row.Team[1]) && known(row.Team[2]) && row.GameType != 'C';
}

void Replay(const ScheduleRecord& row) {
  if (!Counts(row)) return;
  const int winnerSide = row.Score[2] > row.Score[1] ? 2 : 1;
  const int winner = row.Team[winnerSide], loser = row.Team[3 - winnerSide];
  TeamRecord& won = league.team[winner];
  TeamRecord& lost = league.team[loser];
  Enter(won, true);
  Enter(lost, false);
  TeamRecord& home = league.team[row.Team[2]];
  if (row.NeutralSite == 1) {
    Rise(won.NeutralWins);
    Rise(lost.NeutralLosses);
  } else {
    Rise(winnerSide == 2 ? home.HomeWins : home.HomeLosses);
  }
  if (DivisionOf(winner) == DivisionOf(loser)) {
    Rise(won.DivisionWins);
    Rise(lost.DivisionLosses);
  }
  if (ConferenceOf(winner) == ConferenceOf(loser)) {
    Rise(won.ConferenceWins);
    Rise(lost.ConferenceLosses);
  }
}

}  // namespace

bool HcStandingsByDate::BuildStandingsByDate() {
  if (Month < 1 || Month > 12 || Day < 0 || Day > ScheduleDays(Month)) {
    return platform::RefusedWith("Please select a date to view!");
  }
  if (!LoadScores()) return false;
  const auto before = league.team;
  for (int t = 1; t <= kTeams; ++t) ClearRecord(league.team[t]);
  for (std::size_t n = 1; n < league.Scores.size(); ++n) {
    if (InScope(league.Scores[n], Month, Day)) Replay(league.Scores[n]);
  }
  standings = OrderStandings();
  page = StandingsPage(standings, true);
  csv = StandingsCsv(standings, true);
  league.team = before;
  return program.SilentReport || WriteReport("STANDINGS", page);
}

}  // namespace tipline
