#include "season/power_rankings.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "base/csv.h"
#include "base/numbers.h"
#include "base/page.h"
#include "league/files.h"
#include "league/office_files.h"
#include "league/program.h"
#include "league/report_file.h"
#include "season/standings.h"

namespace tipline {
namespace {

constexpr double kMiddle = 80;

int GamesOf(const TeamRecord& team) { return team.Wins + team.Losses; }

/// A margin over few games says less.
double SampleWeight(int games) {
  if (games < 1) return 0;
  if (games == 1) return 0.5;
  return games >= 10 ? 1.0 : 0.5 + 0.055 * (games - 1);
}

/// Points a game better than the opponents, on a neutral court: a team that played more on the road gets the
/// credit.
double BaseMargin(const TeamRecord& team) {
  const int games = GamesOf(team);
  if (team.TeamActive != 1 || games == 0) return 0;
  const int home = team.HomeWins + team.HomeLosses, road = games - home;
  const double margin = PointsPerGame(team, 1) - PointsPerGame(team, 2) + 3.0 * (road - home) / games;
  return SampleWeight(games) * margin;
}

/// What a rout is worth beyond 15, 20 and 25 points.
double BlowoutTrim(int margin) {
  const int size = std::abs(margin);
  double trim = 0;
  if (size > 15) trim += 0.1 * (size - 15);
  if (size > 20) trim += (margin > 0 ? 0.1 : 0.2) * (size - 20);
  if (size > 25) trim += 0.1 * (size - 25);
  return margin > 0 ? trim : -trim;
}

const TeamRecord* TeamAt(int team) { return team >= 1 && team <= kTeams ? &league.team[team] : nullptr; }

/// 1 or 2, 0 when the team did not play in this game.
int SideOf(const ScheduleRecord& row, int team) {
  return row.Team[1] == team ? 1 : row.Team[2] == team ? 2 : 0;
}

/// The opponent's strength in one game.
double Strength(const TeamRecord& team, const TeamRecord& opponent) {
  double strength = SampleWeight(GamesOf(opponent)) * BaseMargin(opponent);
  if (team.TeamType == 'C' && opponent.TeamType == 'C') strength += 3.0 * (opponent.ScheduleStrength - 7);
  return strength;
}

struct Figures {
  std::string wins, losses, share, points, opponents, difference, opponentShare, schedule, power;
};

Figures FiguresOf(const PowerLine& line) {
  const TeamRecord& team = league.team[line.team];
  const double own = PointsPerGame(team, 1), other = PointsPerGame(team, 2);
  const int games = line.OppWins + line.OppLosses;
  return {std::to_string(team.Wins),
          std::to_string(team.Losses),
          ShareText(team.Wins, GamesOf(team)),
          Decimal(own, 1),
          Decimal(other, 1),
          Decimal(own - other, 1),
          ShareText(line.OppWins, games),
          team.TeamType == 'C' ? Decimal(games > 0 ? line.ScheduleSum / games : 0, 1) : "",
          Decimal(line.PowerRating, 1)};
}

}  // namespace

PowerLine ComputePowerRating(int number) {
  PowerLine line;
  line.team = number;
  const TeamRecord* team = TeamAt(number);
  if (!team || team->TeamActive != 1 || GamesOf(*team) == 0) return line;
  double trim = 0, strength = 0;
  for (std::size_t n = 1; n < league.Scores.size(); ++n) {
    const ScheduleRecord& row = league.Scores[n];
    const int side = SideOf(row, number);
    const TeamRecord* opponent = side > 0 ? TeamAt(row.Team[3 - side]) : nullptr;
    if (!opponent) continue;
    line.OppWins += opponent->Wins;
    line.OppLosses += opponent->Losses;
    trim += BlowoutTrim(row.Score[side] - row.Score[3 - side]);
    line.ScheduleSum += opponent->ScheduleStrength * GamesOf(*opponent);
    strength += Strength(*team, *opponent);
  }
  const int games = GamesOf(*team);
  const double adjusted = std::min(BaseMargin(*team) - trim / games + strength / games, 80.0);
  line.PowerRating = std::max(kMiddle + adjusted, 0.0);
  return line;
}

std::vector<PowerLine> PowerRankings() {
  std::vector<PowerLine> lines;
  for (int t = 1; t <= kTeams; ++t) {
    if (league.team[t].TeamActive != 1) continue;
    lines.push_back(ComputePowerRating(t));
    league.team[t].PowerRating = lines.back().PowerRating;
  }
  for (std::size_t i = 0; i < lines.size(); ++i) {
    for (std::size_t j = i; j < lines.size(); ++j) {
      if (lines[j].PowerRating > lines[i].PowerRating) std::swap(lines[i], lines[j]);
    }
  }
  return lines;
}

std::string PowerPage(const std::vector<PowerLine>& lines) {
  const bool college = IsCollegeLeague();
  std::string page = league.rules.LeagueName.Str() + " Power Rankings\n\n" + std::string(23, ' ') +
                     "  W   L   Pct     Pts    Opp   Diff  Opp%" + (college ? "   SOS" : "") + "   Power\n";
  int place = 0;
  for (const PowerLine& line : lines) {
    const Figures f = FiguresOf(line);
    page += AtRight(++place, 2) + " " + AtLeft(StandingsName(league.team[line.team]), 20) +
            AtRight(f.wins, 3) + AtRight(f.losses, 4) + AtRight(f.share, 6) + AtRight(f.points, 8) +
            AtRight(f.opponents, 7) + AtRight(f.difference, 7) + AtRight(f.opponentShare, 6) +
            (college ? AtRight(f.schedule, 6) : "") + AtRight(f.power, 8) + "\n";
  }
  return page;
}

std::string PowerCsv(const std::vector<PowerLine>& lines) {
  std::string text = "Place,TeamNo,Team,W,L,Pct,Pts,Opp,Diff,Opp%,SOS,Power\n";
  int place = 0;
  for (const PowerLine& line : lines) {
    const Figures f = FiguresOf(line);
    text += std::to_string(++place) + "," + std::to_string(line.team) + "," +
            CsvField(TeamName(league.team[line.team]));
    for (const auto& cell : {f.wins, f.losses, f.share, f.points, f.opponents, f.difference, f.opponentShare,
                             f.schedule, f.power}) {
      text += "," + cell;
    }
    text += "\n";
  }
  return text;
}

bool DisplayPowerRankings() {
  if (!LoadScores()) return false;
  for (int t = 1; t <= kTeams && !program.LeagueFolder.empty(); ++t) {
    if (league.team[t].TeamActive == 1 && !ReadTeam(t)) return WasRead(false, TeamsFile());
  }
  const auto lines = PowerRankings();
  return program.SilentReport || WriteReport("POWER RANKINGS", PowerPage(lines));
}

}  // namespace tipline
