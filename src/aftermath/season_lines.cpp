#include "aftermath/season_lines.h"

#include "aftermath/standings.h"
#include "engine/game_state.h"
#include "league/markers.h"
#include "league/program.h"
#include "league/shot_splits.h"

namespace tipline {
namespace {

// clang-format off
constexpr i16 StatLine::*kCounters[] = {
    &StatLine::FGA, &StatLine::FGM, &StatLine::F3A, &StatLine::F3M, &StatLine::FTA, &StatLine::FTM, &StatLine::Reb,
    &StatLine::Off, &StatLine::Ast, &StatLine::St,  &StatLine::Bk,  &StatLine::To,  &StatLine::Pf,  &StatLine::Dq,
    &StatLine::Dunks};
constexpr i16 StatLine::*kHighs[] = {
    &StatLine::Min, &StatLine::FGA, &StatLine::FGM, &StatLine::F3A, &StatLine::F3M, &StatLine::FTA, &StatLine::FTM,
    &StatLine::Ast, &StatLine::Off, &StatLine::Reb, &StatLine::St,  &StatLine::Bk,  &StatLine::To};
struct SeriesCounter {
  u8 SeriesLine::*series;
  i16 StatLine::*game;
};
constexpr SeriesCounter kSeriesCounters[] = {
    {&SeriesLine::FGM, &StatLine::FGM}, {&SeriesLine::F3A, &StatLine::F3A}, {&SeriesLine::F3M, &StatLine::F3M},
    {&SeriesLine::FTA, &StatLine::FTA}, {&SeriesLine::FTM, &StatLine::FTM}, {&SeriesLine::Reb, &StatLine::Reb},
    {&SeriesLine::Off, &StatLine::Off}, {&SeriesLine::Ast, &StatLine::Ast}, {&SeriesLine::St,  &StatLine::St},
    {&SeriesLine::Bk,  &StatLine::Bk},  {&SeriesLine::To,  &StatLine::To},  {&SeriesLine::Pf,  &StatLine::Pf},
    {&SeriesLine::Dq,  &StatLine::Dq}};
// clang-format on

void AddLine(StatLine& to, const StatLine& from) {
  for (const auto counter : kCounters) Add(to.*counter, from.*counter);
  Add(to.Technicals, from.Technicals);
  Add(to.Flagrant2, from.Flagrant2);
}

/// One game more, with its minutes.
void AddGame(StatLine& to, const StatLine& line) {
  if (line.GS == 1) Add(to.GS, 1);
  Add(to.G, 1);
  Add(to.Min, line.Min);
  AddLine(to, line);
}

/// The line of the games at home or on the road: index 3 the last such game, 2 all of them.
void AddPlaceLine(Table<StatLine, 1, 3>& lines, const StatLine& line) {
  lines[3] = line;
  AddGame(lines[2], line);
}

void CountResult(PlayerRecord& p, bool won) {
  if (TakeMark(p.WinLossMark, 99)) {
    p.TeamWinsPlayed = p.TeamLossesPlayed = 0;
    p.TeamWinsByPosition = p.TeamLossesByPosition = {};
  }
  Add(won ? p.TeamWinsPlayed : p.TeamLossesPlayed, 1);
}

void CountPositions(PlayerRecord& p, const Man& man, bool won) {
  for (int position = 1; position <= kPositions; ++position) {
    if (man.PositionTime[position] <= 0) continue;
    Add(p.GamesAtPosition[position], 1);
    Add(p.MinutesAtPosition[position], Int(man.PositionTime[position] / 600.0 + 0.5));
    Add(p.PointsAtPosition[position], man.PositionPoints[position]);
    Add((won ? p.TeamWinsByPosition : p.TeamLossesByPosition)[position], 1);
  }
}

/// What the replay counts beside the line.
void AddCounters(PlayerRecord& p, const Man& man) {
  Add(p.Stats[2].Ejections, man.Ejected);
  Add(p.Flagrants[2], p.Flagrants[3]);
  for (const ShotSplit& split : kShotSplits) Add((p.*split.man)[2], (p.*split.man)[3]);
  Add(p.OppFGA[2], p.OppFGA[3]);
  Add(p.OppFGM[2], p.OppFGM[3]);
  for (int period = 1; period <= 5; ++period) Add(p.QuarterPoints[period][2], p.QuarterPoints[period][3]);
  Add(p.PlusMinus, man.PlusMinus);
  Add(p.ShareShots, man.ShareShots);
  Add(p.ShareBlocks, man.ShareBlocks);
  Add(p.ShareAssists, man.ShareAssists);
  Add(p.ShareOffReb, man.ShareOffReb);
  Add(p.ShareDefReb, man.ShareDefReb);
}

void RaiseHighs(PlayerRecord& p) {
  const StatLine& line = p.Stats[3];
  for (const auto high : kHighs) p.GameHighs[2].*high = std::max(p.GameHighs[2].*high, line.*high);
  p.AwardCounts[2] = std::max(p.AwardCounts[2], Held<u8>(PointsOf(line)));
}

/// Ten or more in two, three or four of points, rebounds, assists, steals and blocks; five have no name.
void CountDoubles(PlayerRecord& p) {
  const StatLine& line = p.Stats[3];
  int tens = 0;
  for (const int count : {PointsOf(line), +line.Reb, +line.Ast, +line.St, +line.Bk}) tens += count >= 10;
  if (tens == 2) Add(p.DoubleDoubles, 1);
  if (tens == 3) Add(p.TripleDoubles, 1);
  if (tens == 4) Add(p.QuadDoubles, 1);
}

void AddToSeries(SeriesLine& series, const StatLine& line) {
  if (TakeMark(series.SeriesMark, 99)) series.FGA = series.OldFGA;
  Add(series.G, 1);
  if (line.GS == 1) Add(series.GS, 1);
  Add(series.Min, line.Min);
  Add(series.FGA, line.FGA);
  for (const SeriesCounter& counter : kSeriesCounters) Add(series.*counter.series, line.*counter.game);
}

}  // namespace

bool HasPlayed(int side, int slot) {
  if (!OnTeam(side, slot)) return false;
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

void ServeSuspension(int side, int slot) {
  u8& games = PlayerAt(side, slot).SuspensionGames;
  if (LoadedAt(side, slot).Suspended && games > 0) --games;
}

void CountRest(int side, int slot) {
  u8& rest = PlayerAt(side, slot).RestGames;
  if (HasPlayed(side, slot)) {
    rest = 0;
  } else {
    Add(rest, 1);
  }
}

void NoteLastGame(int side, int slot) {
  PlayerRecord& p = PlayerAt(side, slot);
  p.LastGamePoints = Held<u8>(PointsOf(p.Stats[3]));
  p.LastGameRebounds = Held<u8>(p.Stats[3].Reb);
  p.LastGameAssists = Held<u8>(p.Stats[3].Ast);
  p.LastGameOpponent = game.team[3 - side].City.View();
}

void AddToSeason(int side, int slot) {
  PlayerRecord& p = PlayerAt(side, slot);
  const Man& man = ManAt(side, slot);
  const bool won = side == WinnerSide();
  AddGame(p.Stats[2], p.Stats[3]);
  CountResult(p, won);
  CountPositions(p, man, won);
  AddCounters(p, man);
  RaiseHighs(p);
  CountDoubles(p);
  AddPlaceLine(side == 2 ? p.HomeStats : p.RoadStats, p.Stats[3]);
  if (program.PlayoffGame) AddToSeries(p.SeriesStats, p.Stats[3]);
}

}  // namespace tipline
