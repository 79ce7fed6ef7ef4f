#include "aftermath/finish_game.h"

#include <algorithm>
#include <limits>

#include "engine/eligible.h"
#include "engine/game_state.h"
#include "league/program.h"
#include "league/shot_splits.h"

namespace tipline {
namespace {

/// Adds without leaving the counter's range.
template <class Counter>
void Add(Counter& counter, int value) {
  const int low = std::numeric_limits<Counter>::min();
  const int high = std::numeric_limits<Counter>::max();
  counter = static_cast<Counter>(Clamp(counter + value, low, high));
}

// clang-format off
constexpr i16 StatLine::*kCounters[] = {
    &StatLine::FGA, &StatLine::FGM, &StatLine::F3A, &StatLine::F3M, &StatLine::FTA, &StatLine::FTM, &StatLine::Reb,
    &StatLine::Off, &StatLine::Ast, &StatLine::St,  &StatLine::Bk,  &StatLine::To,  &StatLine::Pf,  &StatLine::Dq,
    &StatLine::Dunks};
// clang-format on

void AddLine(StatLine& to, const StatLine& from) {
  for (const auto counter : kCounters) Add(to.*counter, from.*counter);
  Add(to.Technicals, from.Technicals);
  Add(to.Flagrant2, from.Flagrant2);
}

/// He was on the floor, if only for a free throw.
bool HasPlayed(int side, int slot) {
  if (ManAt(side, slot).PlayerGameTime > 0) return true;
  const StatLine& line = PlayerAt(side, slot).Stats[3];
  return std::any_of(std::begin(kCounters), std::end(kCounters), [&](const auto c) { return line.*c > 0; });
}

void CloseGameLine(int side, int slot) {
  StatLine& line = PlayerAt(side, slot).Stats[3];
  line.Min = static_cast<i16>(ManAt(side, slot).PlayerGameTime / kMinute);
  line.G = line.Min > 0 ? 1 : 0;
  line.Dq = FouledOut(line) ? 1 : 0;
}

/// The line of the games at home or on the road: index 3 the last such game, 2 all of them.
void AddPlaceLine(Table<StatLine, 1, 3>& lines, const StatLine& line) {
  lines[3] = line;
  AddLine(lines[2], line);
  Add(lines[2].Min, line.Min);
  Add(lines[2].G, 1);
  if (line.GS == 1) Add(lines[2].GS, 1);
}

/// A game of the suspension is served; one that was earned today begins with the next game.
void ServeSuspension(int side, int slot) {
  u8& games = PlayerAt(side, slot).SuspensionGames;
  if (LoadedAt(side, slot).Suspended && games > 0) --games;
}

void AddToSeason(int side, int slot) {
  PlayerRecord& p = PlayerAt(side, slot);
  const Man& man = ManAt(side, slot);
  const StatLine& line = p.Stats[3];
  StatLine& season = p.Stats[2];
  if (line.GS == 1) Add(season.GS, 1);
  Add(season.G, 1);
  Add(season.Min, line.Min);
  AddLine(season, line);
  Add(season.Ejections, man.Ejected);
  Add(p.Flagrants[2], p.Flagrants[3]);
  for (const ShotSplit& split : kShotSplits) Add((p.*split.man)[2], (p.*split.man)[3]);
  Add(p.OppFGA[2], p.OppFGA[3]);
  Add(p.OppFGM[2], p.OppFGM[3]);
  AddPlaceLine(side == 2 ? p.HomeStats : p.RoadStats, line);
  for (int period = 1; period <= 5; ++period) Add(p.QuarterPoints[period][2], p.QuarterPoints[period][3]);
  Add(p.PlusMinus, man.PlusMinus);
  Add(p.ShareShots, man.ShareShots);
  Add(p.ShareBlocks, man.ShareBlocks);
  Add(p.ShareAssists, man.ShareAssists);
  Add(p.ShareOffReb, man.ShareOffReb);
  Add(p.ShareDefReb, man.ShareDefReb);
  for (int position = 1; position <= kPositions; ++position) {
    if (man.PositionTime[position] == 0) continue;
    Add(p.GamesAtPosition[position], 1);
    Add(p.MinutesAtPosition[position], Int(man.PositionTime[position] / 600.0 + 0.5));
    Add(p.PointsAtPosition[position], man.PositionPoints[position]);
  }
}

void AddManToTeam(int side, TeamRecord& team, const PlayerRecord& p) {
  AddLine(team.TeamStats[1], p.Stats[3]);
  if (side == 2) AddLine(team.HomeStats[1], p.Stats[3]);
  for (const ShotSplit& split : kShotSplits) Add(team.*split.team, (p.*split.man)[3]);
}

/// Both teams' lines of the season: their own and their opponents'.
void AddTeamLines() {
  for (int s = 1; s <= 2; ++s) {
    TeamRecord& team = game.team[s];
    const int other = 3 - s;
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (OnTeam(s, slot)) AddManToTeam(s, team, PlayerAt(s, slot));
      if (OnTeam(other, slot)) AddLine(team.TeamStats[2], PlayerAt(other, slot).Stats[3]);
    }
    Add(team.TeamStats[1].G, 1);
    Add(team.TeamStats[2].G, 1);
    if (s == 2) Add(team.HomeStats[1].G, 1);
    Add(team.TeamRebounds[2], game.side[s].GameTeamRebounds);
    Add(team.OppTeamRebounds, game.side[other].GameTeamRebounds);
    Add(team.TeamTurnovers[1], game.side[s].GameTeamTurnovers);
    Add(team.TeamTurnovers[2], game.side[other].GameTeamTurnovers);
    Add(team.Possessions[2], team.Possessions[3]);
    Add(team.OppPossessions[2], team.OppPossessions[3]);
    for (int period = 1; period <= 10; ++period) {
      Add(team.PeriodPoints[period][1], game.side[s].PeriodScore[period]);
      Add(team.PeriodPoints[period][2], game.side[other].PeriodScore[period]);
    }
    if (Lead(s) > 0) Add(team.Wins, 1);
    if (Lead(s) < 0) Add(team.Losses, 1);
  }
}

/// Games that a man sat out since he last played.
void CountRest(int side, int slot) {
  u8& rest = PlayerAt(side, slot).RestGames;
  rest = HasPlayed(side, slot) ? u8{0} : static_cast<u8>(std::min(rest + 1, 255));
}

}  // namespace

void FinishGame() {
  const bool counts = program.GameKind == "L";
  for (int s = 1; s <= 2; ++s) {
    const int left = CountEligible(s);
    game.side[s].ShortHanded = left < kPositions ? left : 0;
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!OnTeam(s, slot)) continue;
      if (counts) {
        ServeSuspension(s, slot);
        CountRest(s, slot);
      }
      if (!HasPlayed(s, slot)) continue;
      CloseGameLine(s, slot);
      if (counts) AddToSeason(s, slot);
    }
  }
  if (counts) AddTeamLines();
}

}  // namespace tipline
