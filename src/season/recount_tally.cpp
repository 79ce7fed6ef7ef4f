#include "season/recount_tally.h"

#include <algorithm>

#include "base/numbers.h"
#include "league/shot_splits.h"

namespace tipline {
namespace {

constexpr int kCutTime = 32000;  // the longest time at a position that a box holds

// clang-format off
constexpr i16 StatLine::*kCounts[] = {
    &StatLine::FGA, &StatLine::FGM, &StatLine::F3A, &StatLine::F3M, &StatLine::FTA, &StatLine::FTM,
    &StatLine::Reb, &StatLine::Off, &StatLine::Ast, &StatLine::St,  &StatLine::Bk,  &StatLine::To,
    &StatLine::Pf,  &StatLine::Dunks};
/// The shots of a box, in the order of kShotSplits.
constexpr BoxMen<u8> BoxRecord::*kBoxShots[] = {
    &BoxRecord::ShotAttInside,      &BoxRecord::ShotAttOutside,      &BoxRecord::ShotAttThree,
    &BoxRecord::ShotAttDrive,       &BoxRecord::ShotAttFastbreak2,   &BoxRecord::ShotAttOffReb2,
    &BoxRecord::ShotAttFastbreak3,  &BoxRecord::ShotAttOffReb3,      &BoxRecord::ShotMadeInside,
    &BoxRecord::ShotMadeOutside,    &BoxRecord::ShotMadeThree,       &BoxRecord::ShotMadeDrive,
    &BoxRecord::ShotMadeFastbreak2, &BoxRecord::ShotMadeOffReb2,     &BoxRecord::ShotMadeFastbreak3,
    &BoxRecord::ShotMadeOffReb3};
struct HighLow {
  Table<u8, 1, 2> TeamRecord::*high;
  Table<u8, 1, 2> TeamRecord::*low;
  i16 StatLine::*count;  // nullptr: points
};
constexpr HighLow kHighLows[] = {
    {&TeamRecord::HighPoints, &TeamRecord::LowPoints, nullptr},
    {&TeamRecord::HighFGA, &TeamRecord::LowFGA, &StatLine::FGA}, {&TeamRecord::HighFGM, &TeamRecord::LowFGM, &StatLine::FGM},
    {&TeamRecord::HighF3A, &TeamRecord::LowF3A, &StatLine::F3A}, {&TeamRecord::HighF3M, &TeamRecord::LowF3M, &StatLine::F3M},
    {&TeamRecord::HighFTA, &TeamRecord::LowFTA, &StatLine::FTA}, {&TeamRecord::HighFTM, &TeamRecord::LowFTM, &StatLine::FTM},
    {&TeamRecord::HighReb, &TeamRecord::LowReb, &StatLine::Reb}, {&TeamRecord::HighOff, &TeamRecord::LowOff, &StatLine::Off},
    {&TeamRecord::HighAst, &TeamRecord::LowAst, &StatLine::Ast}, {&TeamRecord::HighBk, &TeamRecord::LowBk, &StatLine::Bk},
    {&TeamRecord::HighTo, &TeamRecord::LowTo, &StatLine::To},    {&TeamRecord::HighSt, &TeamRecord::LowSt, &StatLine::St},
    {&TeamRecord::HighPf, &TeamRecord::LowPf, &StatLine::Pf}};
// clang-format on

template <class Counter>
void Plus(Counter& counter, int value) {
  counter = static_cast<Counter>(counter + value);
}

template <class Field>
void Most(Field& field, int value) {
  if (value > field) field = static_cast<Field>(value);
}

void ClearLine(StatLine& line) {
  const StatLine old = line;
  line = {};
  line.DunkMark = old.DunkMark;
  line.EjectionMark = old.EjectionMark;
  line.Spare = old.Spare;
}

void AddLine(StatLine& to, const StatLine& from) {
  for (const auto count : kCounts) Plus(to.*count, from.*count);
  Plus(to.Technicals, from.Technicals);
  Plus(to.Flagrant2, from.Flagrant2);
}

bool FouledOut(const StatLine& line) { return league.rules.DqList > 0 && line.Pf >= league.rules.DqList; }

// A man's season -----------------------------------------------------------------------------------------

void ClearMan(PlayerRecord& p) {
  ClearLine(p.Stats[2]);
  ClearLine(p.HomeStats[2]);
  ClearLine(p.RoadStats[2]);
  ClearLine(p.GameHighs[2]);
  for (const ShotSplit& split : kShotSplits) (p.*split.man)[2] = 0;
  p.OppFGA[2] = p.OppFGM[2] = 0;
  p.Flagrants[2] = 0;
  for (int period = 1; period <= 5; ++period) p.QuarterPoints[period][2] = 0;
  p.DoubleDoubles = p.TripleDoubles = p.QuadDoubles = 0;
  p.PlusMinus = p.ShareShots = p.ShareBlocks = p.ShareAssists = p.ShareOffReb = p.ShareDefReb = 0;
  p.GamesAtPosition.Fill(0);
  p.MinutesAtPosition.Fill(0);
  p.PointsAtPosition.Fill(0);
  p.TeamWinsPlayed = p.TeamLossesPlayed = 0;
  p.TeamWinsByPosition.Fill(0);
  p.TeamLossesByPosition.Fill(0);
}

/// One game more in a season's line, whole or of its place.
void AddGame(StatLine& season, const BoxMan& man) {
  AddLine(season, *man.line);
  Plus(season.G, 1);
  if (man.line->GS == 1) Plus(season.GS, 1);
  Plus(season.Min, Int(man.time / 600.0));
  if (FouledOut(*man.line)) Plus(season.Dq, 1);
}

void CountDoubles(PlayerRecord& p, const StatLine& line) {
  int tens = 0;
  for (const int count : {PointsOf(line), int{line.Reb}, int{line.Ast}, int{line.St}, int{line.Bk}}) {
    if (count >= 10) ++tens;
  }
  if (tens == 2) Plus(p.DoubleDoubles, 1);
  if (tens == 3) Plus(p.TripleDoubles, 1);
  if (tens == 4) Plus(p.QuadDoubles, 1);
}

void RaiseHighs(PlayerRecord& p, const BoxMan& man) {
  StatLine& high = p.GameHighs[2];
  Most(high.Min, Int(man.time / 600.0));
  for (const auto count :
       {&StatLine::FGA, &StatLine::FGM, &StatLine::F3A, &StatLine::F3M, &StatLine::FTA, &StatLine::FTM,
        &StatLine::Ast, &StatLine::Off, &StatLine::Reb, &StatLine::St, &StatLine::Bk, &StatLine::To}) {
    Most(high.*count, man.line->*count);
  }
}

void CountPositions(PlayerRecord& p, const BoxRecord& box, const BoxMan& man, bool won, SeasonTally& tally) {
  Plus(won ? p.TeamWinsPlayed : p.TeamLossesPlayed, 1);
  for (int position = 1; position <= 5; ++position) {
    const int time = box.PositionTime[man.slot][man.side][position];
    if (time <= 0) continue;
    if (time >= kCutTime) tally.uncertain.insert({man.recNo, position});
    Plus(p.GamesAtPosition[position], 1);
    Plus(p.MinutesAtPosition[position], Int(time / 600.0 + 0.5));
    Plus(p.PointsAtPosition[position], box.PositionPoints[man.slot][man.side][position]);
    Plus(won ? p.TeamWinsByPosition[position] : p.TeamLossesByPosition[position], 1);
  }
}

void CountMan(PlayerRecord& p, const BoxRecord& box, const BoxMan& man, bool won, SeasonTally& tally) {
  const int slot = man.slot, side = man.side;
  AddGame(p.Stats[2], man);
  Plus(p.Stats[2].Ejections, box.Ejected[slot][side]);
  AddGame(side == 2 ? p.HomeStats[2] : p.RoadStats[2], man);
  for (std::size_t k = 0; k < std::size(kBoxShots); ++k) {
    Plus((p.*kShotSplits[k].man)[2], (box.*kBoxShots[k])[slot][side]);
  }
  Plus(p.OppFGA[2], box.OppFGA[slot][side]);
  Plus(p.OppFGM[2], box.OppFGM[slot][side]);
  Plus(p.Flagrants[2], box.Flagrants[slot][side]);
  for (int period = 1; period <= 5; ++period) {
    Plus(p.QuarterPoints[period][2], box.QuarterPoints[slot][side][period]);
  }
  Plus(p.PlusMinus, box.PlusMinus[slot][side]);
  Plus(p.ShareShots, box.ShareShots[slot][side]);
  Plus(p.ShareBlocks, box.ShareBlocks[slot][side]);
  Plus(p.ShareAssists, box.ShareAssists[slot][side]);
  Plus(p.ShareOffReb, box.ShareOffReb[slot][side]);
  Plus(p.ShareDefReb, box.ShareDefReb[slot][side]);
  RaiseHighs(p, man);
  CountDoubles(p, *man.line);
  CountPositions(p, box, man, won, tally);
}

// A team's season ----------------------------------------------------------------------------------------

void ClearRecord(TeamRecord& t) {
  t.Wins = t.Losses = t.Streak = 0;
  for (u8* counter :
       {&t.HomeWins,           &t.HomeLosses,           &t.NeutralWins,       &t.NeutralLosses,
        &t.DivisionWins,       &t.DivisionLosses,       &t.ConferenceWins,    &t.ConferenceLosses,
        &t.OvertimeWins,       &t.OvertimeLosses,       &t.WinsVsWinning,     &t.LossesVsWinning,
        &t.WinsVsLosing,       &t.LossesVsLosing,       &t.CloseWins,         &t.CloseLosses,
        &t.BlowoutWins,        &t.BlowoutLosses,        &t.WinsLeadingAtHalf, &t.LossesLeadingAtHalf,
        &t.WinsTrailingAtHalf, &t.LossesTrailingAtHalf, &t.WinsScoring100,    &t.LossesScoring100,
        &t.WinsAllowing100,    &t.LossesAllowing100}) {
    *counter = 0;
  }
  t.LastTen.Fill(Text<1>(" "));
}

void ClearTeam(TeamRecord& t) {
  ClearRecord(t);
  ClearLine(t.TeamStats[1]);
  ClearLine(t.TeamStats[2]);
  ClearLine(t.HomeStats[1]);
  t.TeamRebounds[2] = t.OppTeamRebounds = 0;
  t.TeamTurnovers.Fill(0);
  t.Possessions[2] = t.OppPossessions[2] = 0;
  for (int period = 1; period <= 10; ++period) t.PeriodPoints[period][1] = t.PeriodPoints[period][2] = 0;
  for (const ShotSplit& split : kShotSplits) t.*split.team = 0;
  for (const HighLow& one : kHighLows) {
    (t.*one.high).Fill(0);
    (t.*one.low).Fill(0);
  }
}

/// Sums of a side; `played` of those alone who were on the floor.
StatLine SideLine(const std::vector<BoxMan>& men, bool played) {
  StatLine sum;
  for (const BoxMan& man : men) {
    if (played && !man.Played()) continue;
    AddLine(sum, *man.line);
    Plus(sum.Min, Int(man.time / 600.0));
    if (FouledOut(*man.line)) Plus(sum.Dq, 1);
  }
  sum.G = 1;
  return sum;
}

void AddTotals(StatLine& to, const StatLine& side) {
  AddLine(to, side);
  Plus(to.G, 1);
  Plus(to.Min, side.Min);
  Plus(to.Dq, side.Dq);
}

void RaiseHighsAndLows(TeamRecord& t, int column, const StatLine& side, bool first) {
  for (const HighLow& one : kHighLows) {
    const int value = one.count ? side.*one.count : PointsOf(side);
    Most((t.*one.high)[column], value);
    u8& low = (t.*one.low)[column];
    if (first || value < low) low = static_cast<u8>(value);
  }
}

void CountTotals(TeamRecord& t, const BoxRecord& box, int side) {
  const int other = 3 - side;
  const auto men = MenOfBox(box, side), opponents = MenOfBox(box, other);
  const StatLine own = SideLine(men, false), theirs = SideLine(opponents, false);
  AddTotals(t.TeamStats[1], own);
  AddTotals(t.TeamStats[2], theirs);
  if (side == 2) AddTotals(t.HomeStats[1], own);
  Plus(t.TeamRebounds[2], box.GameTeamRebounds[side]);
  Plus(t.OppTeamRebounds, box.GameTeamRebounds[other]);
  Plus(t.TeamTurnovers[1], box.GameTeamTurnovers[side]);
  Plus(t.TeamTurnovers[2], box.GameTeamTurnovers[other]);
  Plus(t.Possessions[2], box.Possessions[side]);
  Plus(t.OppPossessions[2], box.OppPossessions[side]);
  for (int period = 1; period <= 10; ++period) {
    Plus(t.PeriodPoints[period][1], box.PeriodScore[period][side]);
    Plus(t.PeriodPoints[period][2], box.PeriodScore[period][other]);
  }
  for (const BoxMan& man : men) {
    if (!man.Played()) continue;
    for (std::size_t k = 0; k < std::size(kBoxShots); ++k) {
      Plus(t.*kShotSplits[k].team, (box.*kBoxShots[k])[man.slot][side]);
    }
  }
  RaiseHighsAndLows(t, 1, SideLine(men, true), t.LowPoints[1] == 0);
  RaiseHighsAndLows(t, 2, SideLine(opponents, true), t.LowPoints[2] == 0);
}

void Enter(TeamRecord& t, bool won) {
  for (int k = 10; k > 1; --k) t.LastTen[k] = t.LastTen[k - 1];
  t.LastTen[1] = Text<1>(won ? "W" : "L");
  Plus(won ? t.Wins : t.Losses, 1);
  const int run = won ? std::max<int>(t.Streak, 0) + 1 : std::min<int>(t.Streak, 0) - 1;
  t.Streak = static_cast<i16>(run);
}

struct Result {
  const BoxRecord& box;
  int winnerSide;
  TeamRecord &winner, &loser;
  int Points(bool ofWinner) const { return box.Score[ofWinner ? winnerSide : 3 - winnerSide]; }
  int Half(bool ofWinner) const { return box.HalfScore[ofWinner ? winnerSide : 3 - winnerSide]; }
};

void CountSplits(const Result& r) {
  const auto both = [&r](u8 TeamRecord::*won, u8 TeamRecord::*lost) {
    Plus(r.winner.*won, 1);
    Plus(r.loser.*lost, 1);
  };
  if (r.box.Period > league.rules.PeriodList) both(&TeamRecord::OvertimeWins, &TeamRecord::OvertimeLosses);
  const int half = r.Half(true) - r.Half(false);
  if (half > 0) both(&TeamRecord::WinsLeadingAtHalf, &TeamRecord::LossesTrailingAtHalf);
  if (half <= 0 && r.Half(false) > 0) both(&TeamRecord::WinsTrailingAtHalf, &TeamRecord::LossesLeadingAtHalf);
  if (r.Points(true) >= 100) both(&TeamRecord::WinsScoring100, &TeamRecord::LossesAllowing100);
  if (r.Points(false) >= 100) both(&TeamRecord::WinsAllowing100, &TeamRecord::LossesScoring100);
  const int margin = r.Points(true) - r.Points(false);
  if (margin <= 3) both(&TeamRecord::CloseWins, &TeamRecord::CloseLosses);
  if (margin >= 10) both(&TeamRecord::BlowoutWins, &TeamRecord::BlowoutLosses);
  Plus(r.loser.Wins >= r.loser.Losses ? r.winner.WinsVsWinning : r.winner.WinsVsLosing, 1);
  Plus(r.winner.Wins >= r.winner.Losses ? r.loser.LossesVsWinning : r.loser.LossesVsLosing, 1);
}

void CountStandings(const Result& r, const ScheduleRecord& row, TeamRecord& home) {
  CountSplits(r);
  Enter(r.winner, true);
  Enter(r.loser, false);
  if (row.NeutralSite == 1) {
    Plus(r.winner.NeutralWins, 1);
    Plus(r.loser.NeutralLosses, 1);
  } else {
    Plus(r.winnerSide == 2 ? home.HomeWins : home.HomeLosses, 1);
  }
  const int won = row.Team[r.winnerSide], lost = row.Team[3 - r.winnerSide];
  if (DivisionOf(won) == DivisionOf(lost)) {
    Plus(r.winner.DivisionWins, 1);
    Plus(r.loser.DivisionLosses, 1);
  }
  if (ConferenceOf(won) == ConferenceOf(lost)) {
    Plus(r.winner.ConferenceWins, 1);
    Plus(r.loser.ConferenceLosses, 1);
  }
}

}  // namespace

bool BoxMan::Played() const {
  return time > 0 ||
         std::any_of(std::begin(kCounts), std::end(kCounts), [this](auto c) { return line->*c > 0; });
}

std::vector<BoxMan> MenOfBox(const BoxRecord& box, int side) {
  std::vector<BoxMan> men;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (box.PlayerRecNo[slot][side] < 1) continue;
    men.push_back(
        {box.PlayerRecNo[slot][side], side, slot, &box.Line[slot][side], box.PlayerGameTime[slot][side]});
  }
  return men;
}

BoxMan MvpOfBox(const BoxRecord& box) {
  BoxMan best;
  double most = 0;
  for (const BoxMan& man : MenOfBox(box, box.Score[2] > box.Score[1] ? 2 : 1)) {
    const StatLine& l = *man.line;
    const double score = PointsOf(l) + 0.4 * l.FGM - 0.4 * l.FGA - 0.4 * (l.FTA - l.FTM) + 0.7 * l.Off +
                         0.3 * (l.Reb - l.Off) + l.St + 0.7 * l.Ast + 0.7 * l.Bk - 0.4 * l.Pf - l.To;
    if (score <= most) continue;
    most = score;
    best = man;
  }
  return best;
}

void SeasonTally::Begin() {
  for (int t = 1; t <= kTeams; ++t) {
    if (league.team[t].TeamActive == 1) ClearTeam(team[t] = league.team[t]);
  }
  for (std::size_t row = 1; row < league.player.size(); ++row) {
    const PlayerRecord& stored = league.player[row];
    if (stored.RecNo > 0 && stored.TeamNo > 0) ClearMan(man[static_cast<int>(row)] = stored);
  }
}

void SeasonTally::Add(const BoxRecord& box, const ScheduleRecord& row) {
  const auto visitor = team.find(row.Team[1]), home = team.find(row.Team[2]);
  if (visitor == team.end() || home == team.end()) return;
  TeamRecord* side[] = {nullptr, &visitor->second, &home->second};
  const int winner = box.Score[2] > box.Score[1] ? 2 : 1;
  const int mvp = MvpOfBox(box).recNo;
  for (int s = 1; s <= 2; ++s) {
    CountTotals(*side[s], box, s);
    for (const BoxMan& one : MenOfBox(box, s)) {
      const auto found = man.find(one.recNo);
      if (found == man.end()) continue;
      if (one.Played()) CountMan(found->second, box, one, s == winner, *this);
      if (one.recNo == mvp) Plus(found->second.Stats[2].GameMvps, 1);
    }
  }
  CountStandings({box, winner, *side[winner], *side[3 - winner]}, row, *side[2]);
}

}  // namespace tipline
