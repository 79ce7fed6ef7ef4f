#include "aftermath/box_text.h"

#include <algorithm>

#include "aftermath/box_sums.h"
#include "engine/game_state.h"
#include "league/program.h"
#include "league/report_file.h"

namespace tipline {
namespace {

// clang-format off
constexpr i16 StatLine::*kTeamCounters[] = {
    &StatLine::FGA, &StatLine::FGM, &StatLine::F3A, &StatLine::F3M, &StatLine::FTA, &StatLine::FTM,
    &StatLine::Reb, &StatLine::Off, &StatLine::To,  &StatLine::Ast, &StatLine::St,  &StatLine::Bk,
    &StatLine::Pf,  &StatLine::Dunks};
// clang-format on

void AddToSeason(StatLine& season, const StatLine& game) {
  constexpr u8 kMostTechnicals = 240;
  for (const auto counter : kTeamCounters) AddHeld(season.*counter, game.*counter);
  for (const auto counter : {&StatLine::G, &StatLine::Min, &StatLine::Dq})
    AddHeld(season.*counter, game.*counter);
  season.Technicals = std::min(season.Technicals, kMostTechnicals);
  AddHeld(season.Technicals, game.Technicals);
  AddHeld(season.Flagrant2, game.Flagrant2);
}

void AddTeamsToSeason() {
  for (int s = 1; s <= 2; ++s) {
    const StatLine& line = game.side[s].TeamLine;
    AddToSeason(game.team[s].TeamStats[1], line);
    AddToSeason(game.team[3 - s].TeamStats[2], line);
    if (s == 2) AddToSeason(game.team[s].HomeStats[1], line);
  }
}

void CreditMvp() {
  PlayerRecord& best = PlayerAt(game.MvpSide, game.MvpSlot);
  AddHeld(best.Stats[3].GameMvps, 1);
  if (program.GameKind == "L") AddHeld(best.Stats[2].GameMvps, 1);
}

}  // namespace

StatLine TotalsOf(int side) {
  StatLine sum;
  sum.G = 1;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(side, slot)) continue;
    const StatLine& line = PlayerAt(side, slot).Stats[3];
    for (const auto counter : kTeamCounters) AddHeld(sum.*counter, line.*counter);
    AddHeld(sum.Min, ManAt(side, slot).PlayerGameTime / kMinute);
    AddHeld(sum.Dq, FouledOut(line) ? 1 : 0);
    AddHeld(sum.Technicals, line.Technicals);
    AddHeld(sum.Flagrant2, line.Flagrant2);
  }
  return sum;
}

bool Started(int side, int slot) {
  const auto& starters = game.side[side].Starters;
  return std::find(starters.begin(), starters.end(), slot) != starters.end();
}

BoxPoints PointsBy(int side) {
  BoxPoints points;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(side, slot)) continue;
    const PlayerRecord& p = PlayerAt(side, slot);
    const int putbacks = p.ShotMadeOffReb2[3];
    if (!Started(side, slot)) points.Bench += PointsOf(p.Stats[3]);
    points.Paint += 2 * (p.ShotMadeInside[3] + putbacks + p.ShotMadeDrive[3]);
    points.SecondChance += 2 * putbacks + 3 * p.ShotMadeOffReb3[3];
  }
  return points;
}

std::string RecordText(int side) {
  const TeamRecord& team = game.team[side];
  const bool today = game.GameOver && program.GameKind == "L" && !game.BoxRebuild;
  const int wins = team.Wins + (today && Lead(side) > 0 ? 1 : 0);
  const int losses = team.Losses + (today && Lead(side) < 0 ? 1 : 0);
  return std::to_string(wins) + "-" + std::to_string(losses);
}

void SumTeamTotals() {
  if (game.GameOver) game.TeamTotalsAdded = true;
  for (int s = 1; s <= 2; ++s) game.side[s].TeamLine = TotalsOf(s);
  if (game.GameOver && program.GameKind == "L") AddTeamsToSeason();
}

double GameScore(const StatLine& line, double shotCost) {
  return PointsOf(line) + 0.4 * line.FGM - shotCost * line.FGA - 0.4 * (line.FTA - line.FTM) +
         0.7 * line.Off + 0.3 * (line.Reb - line.Off) + line.St + 0.7 * line.Ast + 0.7 * line.Bk -
         0.4 * line.Pf - line.To;
}

GameMvp PickGameMvp() {
  GameMvp best;
  best.Side = Lead(2) > 0 ? 2 : 1;
  double most = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(best.Side, slot)) continue;
    const double score = GameScore(PlayerAt(best.Side, slot).Stats[3], 0.4);
    if (score <= most) continue;
    most = score;
    best.Slot = slot;
  }
  return best;
}

bool WriteBoxText() {
  const bool first = !game.TeamTotalsAdded;
  if (first) SumTeamTotals();
  for (int s = 1; s <= 2; ++s) {
    const BoxPoints points = PointsBy(s);
    game.side[s].BenchPoints = points.Bench;
    game.side[s].PaintPoints = points.Paint;
    game.side[s].SecondChancePoints = points.SecondChance;
  }
  program.ReportName = "BOXSCORE";
  game.BoxPageText = BoxPage();
  const GameMvp best = PickGameMvp();
  game.MvpSide = best.Slot > 0 ? best.Side : 0;
  game.MvpSlot = best.Slot;
  if (first && game.GameOver && best.Slot > 0) CreditMvp();
  return WriteReportFile(game.BoxPageText);
}

bool WritePlayLogText() { return WriteReport("PLAY-BY-PLAY", PlayLogPage()); }

}  // namespace tipline
