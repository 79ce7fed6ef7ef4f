// The counters of a game: every point, shot, foul and rebound is posted here.
#include <algorithm>

#include "engine/execution.h"

namespace tipline {
namespace {

using ManCounter = int Man::*;

/// Adds one to a counter of the five of a side.
void ForFive(int side, ManCounter counter) {
  for (int p = 1; p <= kPositions; ++p) {
    if (const int slot = game.side[side].Lineup[p]; slot > 0) ++(ManAt(side, slot).*counter);
  }
}

void PlusMinus(int side, int points) {
  for (int s = 1; s <= 2; ++s) {
    for (int p = 1; p <= kPositions; ++p) {
      if (const int slot = game.side[s].Lineup[p]; slot > 0)
        ManAt(s, slot).PlusMinus += s == side ? points : -points;
    }
  }
}

void RunsAndLeads(int side, int points) {
  if (game.RunTeam != side) game.RunPoints = 0;
  game.RunTeam = side;
  game.RunPoints += points;
  const int lead = Lead(side);
  if (lead == 0) {
    ++game.Ties;
    return;
  }
  const int leader = lead > 0 ? side : 3 - side;
  if (game.LeadSide != 0 && leader != game.LeadSide) ++game.LeadChanges;
  game.LeadSide = leader;
  Side& ahead = game.side[leader];
  ahead.BiggestLead = std::max(ahead.BiggestLead, lead > 0 ? lead : -lead);
}

void LogScore(int side, int slot, char kind, int points) {
  if (game.ScoreLogCount == kScoreLogRows) {
    std::move(game.ScoreLog.begin() + 1, game.ScoreLog.end(), game.ScoreLog.begin());
    --game.ScoreLogCount;
    ++game.ScoreLogDropped;
  }
  ScoreLogRow& row = game.ScoreLog[++game.ScoreLogCount];
  row.Slot = static_cast<u8>(slot);
  row.Side = static_cast<u8>(side);
  row.VisitorScore = static_cast<i16>(game.side[1].Score);
  row.HomeScore = static_cast<i16>(game.side[2].Score);
  row.Period = static_cast<u8>(std::min(game.Period, 255));
  row.TimeLeft = static_cast<i16>(std::max(0, game.GameClock - game.PlayTime));
  row.Kind = kind;
  row.ScorerPoints = static_cast<u8>(std::min(points, 255));
}

void SplitShot(PlayerRecord& p, bool three, bool made) {
  constexpr auto kLine = 3;
  const auto count = [made](auto& tried, auto& in) {
    ++tried[kLine];
    if (made) ++in[kLine];
  };
  if (game.PlayKind == "FASTBREAK") {
    three ? count(p.ShotAttFastbreak3, p.ShotMadeFastbreak3)
          : count(p.ShotAttFastbreak2, p.ShotMadeFastbreak2);
  } else if (game.PlayKind == "OFFREB") {
    three ? count(p.ShotAttOffReb3, p.ShotMadeOffReb3) : count(p.ShotAttOffReb2, p.ShotMadeOffReb2);
  } else if (three) {
    count(p.ShotAttThree, p.ShotMadeThree);
  } else if (game.PlayKind == "INSIDE") {
    count(p.ShotAttInside, p.ShotMadeInside);
  } else if (game.PlayKind == "DRIVE") {
    count(p.ShotAttDrive, p.ShotMadeDrive);
  } else {
    count(p.ShotAttOutside, p.ShotMadeOutside);
  }
}

char LogKind(bool three, bool dunk) {
  if (game.PlayKind == "FASTBREAK") return three ? '+' : dunk ? 'K' : 'B';
  if (game.PlayKind == "OFFREB") return three ? '-' : dunk ? 'k' : 'R';
  if (three) return '3';
  if (dunk) return 'K';
  return game.PlayKind == "INSIDE" ? 'I' : game.PlayKind == "DRIVE" ? 'D' : 'O';
}

/// A made two close to the basket may be a dunk.
bool Dunked(PlayerRecord& p) {
  const PlayKind kind = game.PlayKind;
  if (kind != "INSIDE" && kind != "DRIVE" && kind != "FASTBREAK" && kind != "OFFREB") return false;
  if (Rnd(12) > p.RateDunk || Rnd(3) != 1) return false;
  ++p.Stats[3].Dunks;
  return true;
}

}  // namespace

StatLine& GameLine(int side, int slot) { return PlayerAt(side, slot).Stats[3]; }

void ContinueStreak(i16& streak, i16& longest, bool made) {
  if (made) {
    streak = static_cast<i16>(streak >= 0 ? std::min(streak + 1, 32000) : 1);
  } else {
    streak = static_cast<i16>(streak <= 0 ? std::max(streak - 1, -32000) : -1);
  }
  longest = std::max(longest, streak);
}

void PostPoints(int side, int slot, int points, char kind) {
  if (slot == 0) return;
  Side& s = game.side[side];
  PlayerRecord& p = PlayerAt(side, slot);
  Man& man = ManAt(side, slot);
  s.Score += points;
  s.PeriodScore[std::min(game.Period, 10)] += points;
  s.TimeSinceScore = 0;
  const int quarter = game.Period > league.rules.PeriodList ? 5 : std::min(game.Period, 4);
  p.QuarterPoints[quarter][3] = static_cast<i16>(p.QuarterPoints[quarter][3] + points);
  man.PeriodStatLine.Points += points;
  if (const int position = PositionOf(side, slot); position > 0) man.PositionPoints[position] += points;
  const bool starter = std::find(s.Starters.begin(), s.Starters.end(), slot) != s.Starters.end();
  if (!starter) s.BenchPoints += points;
  if (game.GameState == "FASTBREAK") s.FastbreakPoints += points;
  const bool ownBall = !game.TechnicalFreeThrow || side == game.TechnicalSide;
  if (game.SecondChance && ownBall && game.PlayKind != "OFFREB") s.ExtraSecondChancePoints += points;
  PlusMinus(side, points);
  RunsAndLeads(side, points);
  LogScore(side, slot, kind, PointsOf(p.Stats[3]));
}

void PostShot(int slot, bool three, bool made) {
  if (slot == 0) return;
  const int side = game.OffenseSide;
  PlayerRecord& p = PlayerAt(side, slot);
  StatLine& line = p.Stats[3];
  ++line.FGA;
  ++game.side[side].GameFGA;
  if (three) ++line.F3A;
  if (made) ++line.FGM;
  if (made && three) ++line.F3M;
  SplitShot(p, three, made);
  ContinueStreak(p.FieldGoalStreak, p.LongestFieldGoalStreak, made);
  if (game.BallDefender > 0) {
    PlayerRecord& defender = PlayerAt(game.DefenseSide, game.BallDefender);
    ++defender.OppFGA[3];
    if (made) ++defender.OppFGM[3];
  }
  ForFive(side, &Man::ShareShots);
  if (!three) ForFive(game.DefenseSide, &Man::ShareBlocks);
  if (!made) return;
  ForFive(side, &Man::ShareAssists);
  const bool dunk = !three && Dunked(p);
  if (!three && game.PlayKind == "FASTBREAK" && ManAt(side, slot).BreakSpot < 200)
    game.side[side].ExtraPaintPoints += 2;
  PostPoints(side, slot, three ? 3 : 2, LogKind(three, dunk));
}

void PostAssist() {
  const Play& play = game.play;
  if (!play.Assisted || play.Assister == 0 || play.Assister == game.BallPlayer) return;
  ++GameLine(game.OffenseSide, play.Assister).Ast;
  ++ManAt(game.OffenseSide, play.Assister).PeriodStatLine.Ast;
}

void PostTurnover(int side, int slot) {
  ++game.side[side].GameTo;
  if (slot == 0) {
    ++game.side[side].GameTeamTurnovers;
    return;
  }
  ++GameLine(side, slot).To;
  ++ManAt(side, slot).PeriodStatLine.To;
}

void PostFoul(int side, int slot, bool teamFoul) {
  if (slot > 0) {
    ++GameLine(side, slot).Pf;
    if (Rnd(25) == 1) ++game.Tension;
  }
  if (teamFoul && game.side[side].TeamFouls < 255) ++game.side[side].TeamFouls;
}

void PostRebound() {
  const Play& play = game.play;
  if (play.ReboundSide != 1 && play.ReboundSide != 2) return;
  ForFive(game.OffenseSide, &Man::ShareOffReb);
  ForFive(game.DefenseSide, &Man::ShareDefReb);
  if (play.DeadBallRebound || play.Rebounder == 0) {
    ++game.side[play.ReboundSide].GameTeamRebounds;
    return;
  }
  StatLine& line = GameLine(play.ReboundSide, play.Rebounder);
  ++line.Reb;
  if (play.ReboundSide == game.OffenseSide) ++line.Off;
  ++ManAt(play.ReboundSide, play.Rebounder).PeriodStatLine.Reb;
}

void CountPossession(int side) {
  ++game.team[side].Possessions[3];
  ++game.team[3 - side].OppPossessions[3];
}

void FaceAbout() {
  std::swap(game.OffenseSide, game.DefenseSide);
  game.possession = {};
  game.BallPlayer = game.BallSlot = 0;
}

void SwapSides() {
  CountPossession(game.OffenseSide);
  FaceAbout();
  game.fastBreak = {};
  game.SecondChance = 0;
}

void AddPlayLog(int clock, int side, int slot, PlayKind action, PlayResult outcome, PlayNote note,
                int otherSide, int otherSlot) {
  if (game.PlayLogCount == kPlayLogRows) return;
  PlayLogRow& row = game.PlayLog[++game.PlayLogCount];
  row = {};
  row.Period = static_cast<u8>(std::min(game.Period, 255));
  row.Clock = std::max(0, clock);
  row.Side = static_cast<u8>(side);
  row.Slot = static_cast<u8>(slot);
  row.Action = action;
  row.Outcome = outcome;
  row.Note = note;
  row.OtherSide = static_cast<u8>(otherSide);
  row.OtherSlot = static_cast<u8>(otherSlot);
  row.VisitorScore = static_cast<i16>(game.side[1].Score);
  row.HomeScore = static_cast<i16>(game.side[2].Score);
}

bool InPenalty(int side) {
  const int lowest = league.rules.FoulLimit[1];
  const int fouls = game.side[side].TeamFouls + (game.Period > league.rules.PeriodList ? 2 : 0);
  return lowest > 0 && fouls >= lowest;
}

PlayKind PenaltyTrip(int fouls) {
  const RulesRecord& rules = league.rules;
  const int counted = fouls + (game.Period > rules.PeriodList ? 2 : 0);
  for (int step = 3; step >= 1; --step) {
    if (counted < rules.FoulLimit[step] || rules.Penalty[step] == 0) continue;
    return rules.Penalty[step] == 1   ? PlayKind("SHOOT1")
           : rules.Penalty[step] == 2 ? PlayKind("SHOOT1-1")
                                      : PlayKind("SHOOT2");
  }
  return rules.OneShotPrePenaltyCheck ? PlayKind("SHOOT1") : PlayKind("");
}

}  // namespace tipline
