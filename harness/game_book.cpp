#include "harness/game_book.h"

#include "base/record.h"
#include "engine/game_state.h"

namespace tipline {
namespace {

using Row = std::vector<std::int64_t>;

template <class... Numbers>
void Put(Row& row, Numbers... numbers) {
  (row.push_back(static_cast<std::int64_t>(numbers)), ...);
}

template <class Record>
void PutRecord(Row& row, const Record& record) {
  for (const u8 byte : RecordBytes(record)) row.push_back(byte);
}

void PutLine(Row& row, const ShortLine& s) { Put(row, s.Points, s.Reb, s.Ast, s.St, s.Bk, s.To); }

void PutMan(Row& row, const Man& m, const LoadedMan& loaded) {
  Put(row, m.Energy, m.FatigueLoad, m.RestTime, m.PlayerGameTime, m.GameInjury, m.TemporaryInjury, m.Ejected,
      m.PlusMinus, m.ShotPick, m.NaturalZone, m.CourtSpot, m.GlobalOffense, m.CoverageInside,
      m.CoverageOutside, m.CoverageThree, m.DoubleTeamInside, m.DoubleTeamOutside, m.DoubleTeamThree,
      m.UsageLevel, m.ShareShots, m.ShareBlocks, m.ShareAssists, m.ShareOffReb, m.ShareDefReb);
  for (int p = 1; p <= kPositions; ++p) Put(row, m.PositionTime[p], m.PositionPoints[p]);
  for (const ShortLine* line : {&m.PeriodStatLine, &m.HalfStatLine, &m.BestPeriodLine, &m.BestHalfLine}) {
    PutLine(row, *line);
  }
  Put(row, loaded.PlayerOut, loaded.PlayLength, loaded.RestLength, loaded.HotHand * 1e9);
}

void PutSide(Row& row, int side) {
  const Side& s = game.side[side];
  Put(row, s.Score, s.HalfScore, s.TeamFouls, s.TimeoutsLeft, s.EligibleCount, s.ShortHanded, s.OffensePace,
      s.DefenseType, s.Pressure, s.DefenseHelp, s.GameFGA, s.GameTo, s.GameTeamTurnovers, s.GameTeamRebounds,
      s.LooseBalls, s.FastbreakPoints, s.BenchPoints, s.BiggestLead, s.ExtraPaintPoints,
      s.ExtraSecondChancePoints, s.TimeSinceScore);
  for (const int points : s.PeriodScore) Put(row, points);
  for (int p = 1; p <= kPositions; ++p) Put(row, s.Lineup[p], s.Starters[p], s.StoredMatchup[p]);
  for (const int count : s.TimeoutsByPeriod) Put(row, count);
  PutRecord(row, game.team[side]);
  for (int slot = 0; slot <= kRosterSlots; ++slot) {
    PutRecord(row, PlayerAt(side, slot));
    PutMan(row, ManAt(side, slot), LoadedAt(side, slot));
  }
}

void PutLogs(Row& row) {
  Put(row, game.ScoreLogCount, game.ScoreLogDropped, game.PlayLogCount);
  for (int n = 1; n <= game.ScoreLogCount; ++n) {
    const ScoreLogRow& r = game.ScoreLog[n];
    Put(row, r.Slot, r.Side, r.VisitorScore, r.HomeScore, r.Period, r.TimeLeft, r.Kind, r.ScorerPoints);
  }
  for (int n = 1; n <= game.PlayLogCount; ++n) {
    const PlayLogRow& r = game.PlayLog[n];
    Put(row, r.Period, r.Clock, r.Side, r.Slot, r.Action.Index(), r.Outcome.Index(), r.OtherSide, r.OtherSlot,
        r.Note, r.VisitorScore, r.HomeScore);
  }
}

}  // namespace

std::vector<std::int64_t> GameBook() {
  Row row;
  Put(row, game.Period, game.GameClock, game.ShotClock, game.GameState.Index(), game.OffenseSide,
      game.OpeningTipWinner, game.PossessionArrow, game.LeadChanges, game.Ties, game.RunTeam, game.RunPoints,
      game.RunOffset, game.Tension, game.Blowout);
  for (int side = 1; side <= 2; ++side) PutSide(row, side);
  PutLogs(row);
  return row;
}

std::uint64_t Digest(std::uint64_t digest, const std::vector<std::int64_t>& row) {
  for (const std::int64_t number : row) {
    digest = (digest ^ static_cast<std::uint64_t>(number)) * 0x9e3779b97f4a7c15;
    digest ^= digest >> 29;
  }
  return digest;
}

}  // namespace tipline
