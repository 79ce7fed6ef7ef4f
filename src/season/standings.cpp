#include "season/standings.h"

#include <utility>

#include "base/numbers.h"
#include "base/page.h"
#include "league/program.h"
#include "league/rules.h"
#include "league/setup.h"

namespace tipline {
namespace {

bool ByConference() { return league.rules.StandingsOption == 1; }

double WinShareOf(int wins, int losses) {
  return wins + losses > 0 ? static_cast<double>(wins) / (wins + losses) : 0;
}

void ClearUnplayed(TeamRecord& team) {
  if (team.Wins + team.Losses > 0) return;
  team.HomeWins = team.HomeLosses = team.NeutralWins = team.NeutralLosses = 0;
  team.DivisionWins = team.DivisionLosses = 0;
  team.Streak = 0;
}

double KeyOf(const Standings& standings, const TeamRecord& team) {
  double key = WinShareOf(team.Wins, team.Losses);
  const double conference = WinShareOf(team.DivisionWins, team.DivisionLosses);
  if (standings.byConferenceRecord) key = conference;
  key *= 100000;
  if (program.SilentReport) key = conference;
  const WinLoss record = OrderingRecord(standings, team);
  if (key >= 1) return key + record.wins;
  return key <= 0 ? key - record.losses : key;
}

/// By swaps, as the table has always been sorted: it decides the order of those who stay tied.
void Sort(Standings& standings) {
  auto& order = standings.StandingsOrder;
  const auto& key = standings.StandingsKey;
  for (std::size_t i = 0; i < order.size(); ++i) {
    for (std::size_t j = i; j < order.size(); ++j) {
      if (key[order[j]] > key[order[i]]) std::swap(order[i], order[j]);
    }
  }
}

void Group(Standings& standings) {
  const bool conferences = ByConference() && !IsCollegeLeague();
  for (const int number : conferences ? std::vector<int>{1, 2} : league.UsedDivisions) {
    StandingsGroup group;
    group.heading =
        conferences ? "Conference " + std::to_string(number) : league.rules.DivisionName[number].Str();
    for (const int team : standings.StandingsOrder) {
      if ((conferences ? ConferenceOf(team) : DivisionOf(team)) == number) group.teams.push_back(team);
    }
    if (!group.teams.empty()) standings.groups.push_back(std::move(group));
  }
}

}  // namespace

bool IsCollegeLeague() { return league.rules.PeriodList <= 2; }

double PointsPerGame(const TeamRecord& team, int whose) {
  const int games = team.Wins + team.Losses;
  return games > 0 ? static_cast<double>(PointsOf(team.TeamStats[whose])) / games : 0;
}

WinLoss OrderingRecord(const Standings& standings, const TeamRecord& team) {
  if (standings.byConferenceRecord) return {team.DivisionWins, team.DivisionLosses};
  return {team.Wins, team.Losses};
}

WinLoss RoadRecord(const TeamRecord& team) {
  return {team.Wins - team.HomeWins - team.NeutralWins, team.Losses - team.HomeLosses - team.NeutralLosses};
}

std::string StreakText(const TeamRecord& team) {
  if (team.Streak == 0) return "";
  return (team.Streak > 0 ? "W" : "L") + std::to_string(team.Streak > 0 ? team.Streak : -team.Streak);
}

std::string LastTenText(const TeamRecord& team) {
  int wins = 0, losses = 0;
  for (const auto& result : team.LastTen) {
    if (result == 'W') ++wins;
    if (result == 'L') ++losses;
  }
  return std::to_string(wins) + "-" + std::to_string(losses);
}

std::string StandingsName(const TeamRecord& team) {
  return setup.StandingsTeamNameList == 1 && !team.Nickname.Empty() ? team.Nickname.Str() : team.City.Str();
}

std::string GamesBehind(const Standings& standings, const StandingsGroup& group, int team) {
  if (group.teams.empty() || team == group.teams.front()) return "-";
  const WinLoss leader = OrderingRecord(standings, league.team[group.teams.front()]);
  const WinLoss own = OrderingRecord(standings, league.team[team]);
  return Decimal(((leader.wins - leader.losses) - (own.wins - own.losses)) / 2.0, 1);
}

bool OrderStandingsBy(bool conference) {
  const u8 before = league.rules.StandingsOption;
  league.rules.StandingsOption = conference ? 1 : 0;
  if (SaveRules()) return true;
  league.rules.StandingsOption = before;
  return false;
}

Standings OrderStandings() {
  Standings standings;
  standings.byConferenceRecord = IsCollegeLeague() && ByConference();
  for (int t = 1; t <= kTeams; ++t) {
    if (league.team[t].TeamActive != 1) continue;
    ClearUnplayed(league.team[t]);
    standings.StandingsKey[t] = KeyOf(standings, league.team[t]);
    standings.StandingsOrder.push_back(t);
  }
  Sort(standings);
  Group(standings);
  return standings;
}

}  // namespace tipline
