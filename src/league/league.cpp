#include "league/league.h"

#include "league/program.h"
#include "league/setup.h"

namespace tipline {

League league;
Program program;
Setup setup;

namespace {

// A division owns 12 of the first 432 slots and 8 of the others.
constexpr int kFirstBlock = 432;
constexpr int kFirstBlockTeams = 12;
constexpr int kSecondBlockTeams = 8;

}  // namespace

std::string TeamName(const TeamRecord& team) {
  if (team.Nickname.Empty() || team.Nickname == team.City) return team.City.Str();
  return team.City.Str() + " " + team.Nickname.Str();
}

int DivisionOf(int team) {
  if (team < 1 || team > kTeams) return 0;
  if (team <= kFirstBlock) return (team - 1) / kFirstBlockTeams + 1;
  return (team - kFirstBlock - 1) / kSecondBlockTeams + 1;
}

int ConferenceOf(int team) { return team < 1 || team > kTeams ? 0 : league.Conference[team]; }

Table<int, 1, 20> TeamsOfDivision(int division) {
  Table<int, 1, 20> teams;
  for (int k = 1; k <= kFirstBlockTeams; ++k) teams[k] = (division - 1) * kFirstBlockTeams + k;
  for (int k = 1; k <= kSecondBlockTeams; ++k) {
    teams[kFirstBlockTeams + k] = kFirstBlock + (division - 1) * kSecondBlockTeams + k;
  }
  return teams;
}

const EraRecord& EraRow(int year, bool college, int fallback, int oldest) {
  if (year < oldest || year > kLastEraYear) year = fallback;
  year = year < kFirstEraYear ? kFirstEraYear : year > kLastEraYear ? kLastEraYear : year;
  return college ? league.EraCollege[year] : league.EraPro[year];
}

}  // namespace tipline
