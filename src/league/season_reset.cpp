// A new season for a team or a player: what the season counted goes, who they are stays.
#include "league/season_reset.h"

#include "league/files.h"
#include "league/program.h"
#include "league/shot_splits.h"

namespace tipline {
namespace {

/// The counts of a line; its markers and spare bytes are no counts.
void ClearLine(StatLine& line) {
  StatLine clear;
  clear.DunkMark = line.DunkMark;
  clear.EjectionMark = line.EjectionMark;
  clear.Spare = line.Spare;
  line = clear;
}

void ClearLine(SeriesLine& line) {
  SeriesLine clear;
  clear.SeriesMark = line.SeriesMark;
  clear.Spare = line.Spare;
  line = clear;
}

template <class... Fields>
void Clear(Fields&... fields) {
  ((fields = {}), ...);
}

}  // namespace

void ClearSplits(TeamRecord& t) {
  Clear(t.OvertimeWins, t.OvertimeLosses, t.WinsVsWinning, t.LossesVsWinning, t.WinsVsLosing,
        t.LossesVsLosing);
  Clear(t.CloseWins, t.CloseLosses, t.BlowoutWins, t.BlowoutLosses);
  Clear(t.WinsLeadingAtHalf, t.LossesLeadingAtHalf, t.WinsTrailingAtHalf, t.LossesTrailingAtHalf);
  Clear(t.WinsScoring100, t.LossesScoring100, t.WinsAllowing100, t.LossesAllowing100);
}

void ClearShotTable(TeamRecord& t) {
  for (const ShotSplit& split : kShotSplits) t.*split.team = 0;
  Clear(t.ShotAttSpare1, t.ShotMadeSpare1);
}

void ClearHighsAndLows(TeamRecord& t) {
  Clear(t.HighPoints, t.HighFGA, t.HighFGM, t.HighF3A, t.HighF3M, t.HighFTA, t.HighFTM);
  Clear(t.HighReb, t.HighOff, t.HighAst, t.HighBk, t.HighTo, t.HighSt, t.HighPf);
  Clear(t.LowPoints, t.LowFGA, t.LowFGM, t.LowF3A, t.LowF3M, t.LowFTA, t.LowFTM);
  Clear(t.LowReb, t.LowOff, t.LowAst, t.LowBk, t.LowTo, t.LowSt, t.LowPf);
}

void ClearStreakFields(PlayerRecord& p) {
  Clear(p.LastGamePoints, p.LastGameRebounds, p.LastGameAssists);
  p.LastGameOpponent = "";
}

void ClearPositionGames(PlayerRecord& p) {
  Clear(p.GamesAtPosition, p.MinutesAtPosition, p.PointsAtPosition);
}

void ClearWinLoss(PlayerRecord& p) {
  Clear(p.TeamWinsPlayed, p.TeamLossesPlayed, p.TeamWinsByPosition, p.TeamLossesByPosition);
}

namespace {

void ClearResults(TeamRecord& t) {
  t.LastTen.Fill(Text<1>(" "));
  Clear(t.Wins, t.Losses, t.Streak, t.HomeWins, t.HomeLosses, t.NeutralWins, t.NeutralLosses);
  Clear(t.DivisionWins, t.DivisionLosses, t.ConferenceWins, t.ConferenceLosses);
  ClearSplits(t);
  Clear(t.PowerRating, t.ReservedWord, t.ReservedFlagB);
}

void ClearTotals(TeamRecord& t) {
  for (auto& line : t.TeamStats) ClearLine(line);
  for (auto& line : t.HomeStats) ClearLine(line);
  ClearLine(t.ReservedLine);
  Clear(t.TeamTurnovers, t.OppTeamRebounds, t.PeriodPoints);
  Clear(t.TeamRebounds[2], t.TeamRebounds[3]);  // index 1 is real life
  Clear(t.Possessions, t.OppPossessions, t.PossessionMark);
  Clear(t.ScoutOffense, t.ScoutHelp, t.ScoutPressure, t.ScoutDefenseType, t.ScoutCoverage);
}

void ClearSeasonCounters(PlayerRecord& p) {
  ClearWinLoss(p);
  ClearPositionGames(p);
  ClearStreakFields(p);
  Clear(p.PlusMinus, p.LastInjuryMonth, p.LastInjuryDay, p.RestGames);
  Clear(p.ShareShots, p.ShareBlocks, p.ShareAssists, p.ShareOffReb, p.ShareDefReb);
  Clear(p.DoubleDoubles, p.TripleDoubles, p.QuadDoubles);
  Clear(p.FreeThrowStreak, p.LongestFreeThrowStreak, p.FieldGoalStreak, p.LongestFieldGoalStreak);
  Clear(p.OppFGA, p.OppFGM, p.ReservedK, p.ReservedL);
}

}  // namespace

void ZeroTeam(int team) {
  if (team < 1 || team > kTeams) return;
  TeamRecord& t = league.team[team];
  ClearResults(t);
  ClearTotals(t);
  ClearShotTable(t);
  ClearHighsAndLows(t);
}

void ZeroPlayer(PlayerRecord& player, int block) {
  if (block != 1 && block != 2) return;
  ClearLine(player.Stats[block]);
  ClearLine(player.HomeStats[block]);
  ClearLine(player.RoadStats[block]);
  for (auto& period : player.QuarterPoints) period[block] = 0;
  if (block == 1) return;
  player.Flagrants[2] = 0;
  ClearLine(player.GameHighs[2]);
  for (const ShotSplit& split : kShotSplits) player.*split.man = {};
  ClearSeasonCounters(player);
  if (!program.ReplayLocked) ClearLine(player.SeriesStats);
}

}  // namespace tipline
