#include "aftermath/team_books.h"

#include "aftermath/season_lines.h"
#include "engine/game_state.h"
#include "league/shot_splits.h"

namespace tipline {
namespace {

struct HighLow {
  Table<u8, 1, 2> TeamRecord::*high, TeamRecord::*low;
  i16 StatLine::*count;
};
// clang-format off
constexpr HighLow kHighLows[] = {
    {&TeamRecord::HighFGA, &TeamRecord::LowFGA, &StatLine::FGA}, {&TeamRecord::HighFGM, &TeamRecord::LowFGM, &StatLine::FGM},
    {&TeamRecord::HighF3A, &TeamRecord::LowF3A, &StatLine::F3A}, {&TeamRecord::HighF3M, &TeamRecord::LowF3M, &StatLine::F3M},
    {&TeamRecord::HighFTA, &TeamRecord::LowFTA, &StatLine::FTA}, {&TeamRecord::HighFTM, &TeamRecord::LowFTM, &StatLine::FTM},
    {&TeamRecord::HighReb, &TeamRecord::LowReb, &StatLine::Reb}, {&TeamRecord::HighOff, &TeamRecord::LowOff, &StatLine::Off},
    {&TeamRecord::HighAst, &TeamRecord::LowAst, &StatLine::Ast}, {&TeamRecord::HighTo,  &TeamRecord::LowTo,  &StatLine::To},
    {&TeamRecord::HighSt,  &TeamRecord::LowSt,  &StatLine::St},  {&TeamRecord::HighBk,  &TeamRecord::LowBk,  &StatLine::Bk},
    {&TeamRecord::HighPf,  &TeamRecord::LowPf,  &StatLine::Pf}};
// clang-format on

/// Column 1 holds what the team did, column 2 what its opponents did against it. A column without a low of
/// points had no game yet.
void CompareColumn(TeamRecord& team, int column, int side) {
  const StatLine& line = game.side[side].TeamLine;
  const u8 points = Held<u8>(game.side[side].Score);
  const bool first = team.LowPoints[column] == 0;
  const auto compare = [first](u8& high, u8& low, u8 value) {
    high = std::max(high, value);
    low = first ? value : std::min(low, value);
  };
  compare(team.HighPoints[column], team.LowPoints[column], points);
  for (const HighLow& pair : kHighLows) {
    compare((team.*pair.high)[column], (team.*pair.low)[column], Held<u8>(line.*pair.count));
  }
}

void AddShotTable(int side) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!HasPlayed(side, slot)) continue;
    for (const ShotSplit& split : kShotSplits)
      Add(game.team[side].*split.team, (PlayerAt(side, slot).*split.man)[3]);
  }
}

void AddPeriodPoints(TeamRecord& team, int side) {
  for (int period = 1; period <= 10; ++period) {
    Add(team.PeriodPoints[period][1], game.side[side].PeriodScore[period]);
    Add(team.PeriodPoints[period][2], game.side[3 - side].PeriodScore[period]);
  }
}

void AddTeamCounters(TeamRecord& team, int side) {
  const Side &own = game.side[side], &other = game.side[3 - side];
  Add(team.TeamTurnovers[1], own.GameTeamTurnovers);
  Add(team.TeamTurnovers[2], other.GameTeamTurnovers);
  Add(team.TeamRebounds[2], own.GameTeamRebounds);
  Add(team.OppTeamRebounds, other.GameTeamRebounds);
  Add(team.Possessions[2], team.Possessions[3]);
  Add(team.OppPossessions[2], team.OppPossessions[3]);
}

}  // namespace

void AddTeamBooks() {
  for (int side = 1; side <= 2; ++side) {
    TeamRecord& team = game.team[side];
    AddTeamCounters(team, side);
    AddShotTable(side);
    CompareColumn(team, 1, side);
    CompareColumn(team, 2, 3 - side);
    AddPeriodPoints(team, side);
  }
}

}  // namespace tipline
