#include "harness/laws.h"

#include <algorithm>
#include <cstdlib>

#include "engine/eligible.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "harness/bench_coach.h"
#include "harness/memory_league.h"

namespace tipline {
namespace {

/// Tenths played so far, by periods and clock.
int TimePlayed() {
  const int regulation = std::min(game.Period - 1, static_cast<int>(league.rules.PeriodList));
  const int overtimes = game.Period - 1 - regulation;
  return regulation * FullPeriod() + overtimes * FullOvertime() + PeriodLength() - game.GameClock;
}

/// Keeps the first law that does not hold.
class Judge {
 public:
  void Law(bool kept, const char* law, int side, long found = 0, long bound = 0) {
    if (kept || !broken_.empty()) return;
    broken_ = std::string(law) + ": side " + std::to_string(side) + ", " + std::to_string(found) +
              " against " + std::to_string(bound) + "; period " + std::to_string(game.Period) + ", clock " +
              std::to_string(game.GameClock) + ", " + std::string(game.GameState.Text()) + " after " +
              std::string(game.PlayResult.Text());
  }
  void Equal(long found, long expected, const char* law, int side) {
    Law(found == expected, law, side, found, expected);
  }
  void AtMost(long found, long most, const char* law, int side) {
    Law(found <= most, law, side, found, most);
  }

  const std::string& Broken() const { return broken_; }

 private:
  std::string broken_;
};

/// Sums over the men of a side.
struct Sums {
  int points = 0, time = 0, plusMinus = 0;
  int FGA = 0, FGM = 0, F3A = 0, FTA = 0, FTM = 0, Reb = 0, Off = 0, Ast = 0, St = 0, Bk = 0, To = 0, Pf = 0;
  int facedTried = 0, facedMade = 0;
  int neverOut = 0;  ///< men who could have played all the time
  int starters = 0;

  int Misses() const { return FGA - FGM + FTA - FTM; }
};

bool NeverOut(int side, int slot) {
  return MayAppear(side, slot) && league.rules.TemporaryGameInjuriesCheck == 0 && !ManAt(side, slot).Ejected;
}

Sums SumUp(int side) {
  Sums sum;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    const PlayerRecord& p = PlayerAt(side, slot);
    const StatLine& s = p.Stats[3];
    sum.points += PointsOf(s);
    sum.time += ManAt(side, slot).PlayerGameTime;
    sum.plusMinus += ManAt(side, slot).PlusMinus;
    sum.FGA += s.FGA, sum.FGM += s.FGM, sum.F3A += s.F3A, sum.FTA += s.FTA, sum.FTM += s.FTM;
    sum.Reb += s.Reb, sum.Off += s.Off, sum.Ast += s.Ast, sum.St += s.St, sum.Bk += s.Bk;
    sum.To += s.To, sum.Pf += s.Pf;
    sum.facedTried += p.OppFGA[3], sum.facedMade += p.OppFGM[3];
    sum.neverOut += NeverOut(side, slot) ? 1 : 0;
    sum.starters += s.GS;
  }
  return sum;
}

int Filled(int side) {
  int men = 0;
  for (int p = 1; p <= kPositions; ++p) men += game.side[side].Lineup[p] > 0 ? 1 : 0;
  return men;
}

bool PlayedHistoryOfFive(const Sums (&sums)[3]) { return sums[1].neverOut >= 5 && sums[2].neverOut >= 5; }

void JudgeScore(Judge& judge, int side, const Sums& sum) {
  const Side& s = game.side[side];
  judge.Equal(s.Score, sum.points, "the score is the points of the lines", side);
  int periods = 0;
  for (const int points : s.PeriodScore) periods += points;
  judge.Equal(s.Score, periods, "the score is the sum of its periods", side);
  judge.AtMost(s.BenchPoints, s.Score, "bench points are points", side);
  judge.AtMost(s.FastbreakPoints, s.Score, "fast-break points are points", side);
  judge.AtMost(Lead(side), s.BiggestLead, "no lead is bigger than the biggest", side);
  judge.AtMost(s.HalfScore, s.Score, "half-time score", side);
}

int MadePoints(char kind) { return kind == 'F' ? 1 : kind == '3' || kind == '+' || kind == '-' ? 3 : 2; }

void JudgeScoreLog(Judge& judge) {
  int score[3] = {0, 0, 0}, last = 0, lastPeriod = 0;
  const bool whole = game.ScoreLogDropped == 0;
  for (int n = 1; n <= game.ScoreLogCount; ++n) {
    const ScoreLogRow& row = game.ScoreLog[n];
    const int side = row.Side;
    judge.Law(side == 1 || side == 2, "a row of the scoring log has a side", side);
    const int now[3] = {0, row.VisitorScore, row.HomeScore};
    if (n > 1 || whole) {
      judge.Equal(now[side], score[side] + MadePoints(row.Kind), "the scoring log adds up", side);
      judge.Equal(now[3 - side], score[3 - side], "only one side scores at a time", 3 - side);
      judge.Law(row.Period > lastPeriod || row.TimeLeft <= last, "the scoring log runs with the clock", side,
                row.TimeLeft, last);
    }
    score[1] = now[1], score[2] = now[2];
    last = row.TimeLeft, lastPeriod = row.Period;
  }
  for (int side = 1; side <= 2 && game.ScoreLogCount > 0; ++side) {
    judge.Equal(score[side], game.side[side].Score, "the scoring log ends at the score", side);
  }
}

void JudgeShotTable(Judge& judge, int side, const PlayerRecord& p) {
  const auto& s = p.Stats[3];
  const int twos = p.ShotAttInside[3] + p.ShotAttOutside[3] + p.ShotAttDrive[3] + p.ShotAttFastbreak2[3] +
                   p.ShotAttOffReb2[3];
  const int twosMade = p.ShotMadeInside[3] + p.ShotMadeOutside[3] + p.ShotMadeDrive[3] +
                       p.ShotMadeFastbreak2[3] + p.ShotMadeOffReb2[3];
  const int threes = p.ShotAttThree[3] + p.ShotAttFastbreak3[3] + p.ShotAttOffReb3[3];
  const int threesMade = p.ShotMadeThree[3] + p.ShotMadeFastbreak3[3] + p.ShotMadeOffReb3[3];
  judge.Equal(twos, s.FGA - s.F3A, "the shot table holds all twos", side);
  judge.Equal(twosMade, s.FGM - s.F3M, "the shot table holds all twos made", side);
  judge.Equal(threes, s.F3A, "the shot table holds all threes", side);
  judge.Equal(threesMade, s.F3M, "the shot table holds all threes made", side);
}

void JudgeLine(Judge& judge, int side, int slot) {
  const PlayerRecord& p = PlayerAt(side, slot);
  const StatLine& s = p.Stats[3];
  judge.AtMost(s.FGM, s.FGA, "makes are attempts", side);
  judge.AtMost(s.F3M, s.F3A, "threes made are threes tried", side);
  judge.AtMost(s.F3A - s.F3M, s.FGA - s.FGM, "missed threes are misses", side);
  judge.AtMost(s.FTM, s.FTA, "free throws made are tried", side);
  judge.AtMost(s.Off, s.Reb, "offensive rebounds are rebounds", side);
  judge.AtMost(s.Dunks, s.FGM - s.F3M, "dunks are twos made", side);
  if (league.rules.ThreePointCheck == 0) judge.Equal(s.F3A, 0, "no three without the line", side);
  if (const int limit = league.rules.DqList) judge.AtMost(s.Pf, limit, "fouls end at the limit", side);
  int points = 0;
  for (int period = 1; period <= 5; ++period) points += p.QuarterPoints[period][3];
  judge.Equal(points, PointsOf(s), "points by period", side);
  JudgeShotTable(judge, side, p);
}

void JudgeMan(Judge& judge, int side, int slot) {
  const Man& man = ManAt(side, slot);
  int time = 0, points = 0;
  for (int p = 1; p <= kPositions; ++p) time += man.PositionTime[p], points += man.PositionPoints[p];
  judge.Equal(time, man.PlayerGameTime, "time by position is the time played", side);
  judge.AtMost(points, PointsOf(PlayerAt(side, slot).Stats[3]), "points by position are points", side);
  judge.AtMost(man.PlayerGameTime, TimePlayed(), "nobody plays longer than the game", side);
  judge.Law(man.Energy >= 0 && man.Energy <= 100, "energy is 0 to 100", side, man.Energy, 100);
  judge.Law(man.FatigueLoad >= 0, "no load below zero", side, man.FatigueLoad);
  if (!OnTeam(side, slot)) {
    judge.Equal(man.PlayerGameTime, 0, "an empty roster place does not play", side);
  }
}

void JudgeTeamSums(Judge& judge, int side, const Sums& own, const Sums& other) {
  const Side& s = game.side[side];
  judge.AtMost(own.Ast, own.FGM, "an assist needs a basket", side);
  judge.AtMost(own.St, other.To + game.side[3 - side].GameTeamTurnovers, "a steal is a turnover", side);
  judge.AtMost(own.Off, own.Misses(), "an offensive rebound is an own miss", side);
  judge.Equal(s.GameFGA, own.FGA, "the side's attempts", side);
  judge.Equal(s.GameTo, own.To + s.GameTeamTurnovers, "the side's turnovers", side);
  judge.AtMost(own.facedTried, other.FGA, "shots faced are shots", side);
  judge.AtMost(own.facedMade, other.FGM, "baskets faced are baskets", side);
  if (other.neverOut == 0) return;  // nobody's misses stand in no line
  judge.AtMost(own.Bk, other.FGA - other.FGM, "a block is a miss", side);
  judge.AtMost(own.Reb - own.Off, other.Misses(), "a defensive rebound is the other side's miss", side);
}

void JudgeFloor(Judge& judge, int side) {
  const Side& s = game.side[side];
  for (int a = 1; a <= kPositions; ++a) {
    const int slot = s.Lineup[a];
    judge.Law(slot >= 0 && slot <= kRosterSlots, "a man on the floor has a roster place", side, slot);
    if (slot == 0) continue;
    judge.Law(OnTeam(side, slot), "a man on the floor belongs to the team", side, slot);
    judge.Law(IsEligible(side, slot), "nobody on the floor is out, hurt or at the foul limit", side, slot);
    for (int b = a + 1; b <= kPositions; ++b) {
      judge.Law(s.Lineup[b] != slot, "nobody stands in two positions", side, slot, a);
    }
  }
  int eligible = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) eligible += MayAppear(side, slot) ? 1 : 0;
  if (game.GameClock == 0) return;  // the last shots are taken with whoever is left on the floor
  judge.Equal(Filled(side), std::min(eligible, kPositions), "all who can play fill the floor", side);
}

/// The most timeouts that a side can hold: an overtime grants some.
int MostTimeouts() {
  const RulesRecord& rules = league.rules;
  const int overtimes = std::max(0, game.Period - rules.PeriodList) + 1;
  const bool grants = LastPeriod() && rules.OvertimeTimeoutList > 0;
  return rules.TimeoutList + (grants ? overtimes * std::max<int>(3, rules.OvertimeTimeoutList) : 0);
}

void JudgeSettings(Judge& judge, int side) {
  const Side& s = game.side[side];
  judge.Law(s.TimeoutsLeft >= 0, "no timeouts below zero", side, s.TimeoutsLeft);
  judge.AtMost(s.TimeoutsLeft, MostTimeouts(), "timeouts within the rule", side);
  judge.Law(s.TeamFouls >= 0, "team fouls", side, s.TeamFouls);
  judge.Law(s.OffensePace >= 0 && s.OffensePace <= 4, "pace is 0 to 4", side, s.OffensePace);
  judge.Law(s.DefenseType >= 0 && s.DefenseType <= 3, "defense is 0 to 3", side, s.DefenseType);
  judge.Law(s.Pressure >= 0 && s.Pressure <= 4, "pressure is 0 to 4", side, s.Pressure);
  judge.Law(s.DefenseHelp >= 0 && s.DefenseHelp <= 4, "help is 0 to 4", side, s.DefenseHelp);
  judge.Law(s.QuickFoul >= 0 && s.QuickFoul <= 3, "quick foul is 0 to 3", side, s.QuickFoul);
  bool taken[kPositions + 1] = {};
  for (const int own : s.StoredMatchup) {
    judge.Law(own >= 1 && own <= kPositions && !taken[own], "every defender has one man", side, own);
    if (own >= 1 && own <= kPositions) taken[own] = true;
  }
}

void JudgeClocks(Judge& judge) {
  judge.Law(game.GameClock >= 0 && game.GameClock <= PeriodLength(), "the clock is within the period", 0,
            game.GameClock, PeriodLength());
  judge.Law(game.ShotClock >= 0 && game.ShotClock <= FullShotClock() + 9, "the shot clock is within the rule",
            0, game.ShotClock, FullShotClock());  // nearly equal clocks are set equal
  judge.Law(game.OffenseSide + game.DefenseSide == 3, "one side has the ball", game.OffenseSide);
  judge.Law(game.DeadBallKind >= 0 && game.DeadBallKind <= 4, "dead ball is 0 to 4", 0, game.DeadBallKind);
  for (int side = 1; side <= 2; ++side) {
    const auto none = RecordBytes(PlayerRecord{});
    judge.Law(RecordBytes(PlayerAt(side, 0)) == none, "the empty man does nothing", side);
  }
}

/// What holds while both sides had five men all the time.
void JudgeFives(Judge& judge, const Sums (&sums)[3]) {
  if (!PlayedHistoryOfFive(sums)) return;
  for (int side = 1; side <= 2; ++side) {
    judge.Equal(sums[side].time, 5 * TimePlayed(), "five men play all the time", side);
    judge.Equal(sums[side].plusMinus, 5 * Lead(side), "plus and minus of five men", side);
  }
}

}  // namespace

std::string BrokenLaw() {
  Judge judge;
  const Sums sums[3] = {{}, SumUp(1), SumUp(2)};
  for (int side = 1; side <= 2; ++side) {
    JudgeScore(judge, side, sums[side]);
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      JudgeLine(judge, side, slot);
      JudgeMan(judge, side, slot);
    }
    JudgeTeamSums(judge, side, sums[side], sums[3 - side]);
    JudgeSettings(judge, side);
    if (!game.GameOver) JudgeFloor(judge, side);
    judge.AtMost(sums[side].time, 5 * TimePlayed(), "at most five men play", side);
  }
  if (sums[1].neverOut > 0 && sums[2].neverOut > 0) {
    const int teamRebounds = game.side[1].GameTeamRebounds + game.side[2].GameTeamRebounds;
    judge.AtMost(sums[1].Reb + sums[2].Reb + teamRebounds, sums[1].Misses() + sums[2].Misses(),
                 "a rebound needs a miss", 0);
  }
  JudgeFives(judge, sums);
  JudgeScoreLog(judge);
  JudgeClocks(judge);
  return judge.Broken();
}

namespace {

void JudgePlayLog(Judge& judge) {
  for (int n = 2; n <= game.PlayLogCount; ++n) {
    const PlayLogRow& a = game.PlayLog[n - 1];
    const PlayLogRow& b = game.PlayLog[n];
    const bool later = b.Period > a.Period || (b.Period == a.Period && b.Clock <= a.Clock);
    judge.Law(later, "the play log runs with the clock", b.Side, b.Clock, a.Clock);
    judge.Law(b.VisitorScore >= a.VisitorScore && b.HomeScore >= a.HomeScore, "no point is taken back",
              b.Side, n);
  }
}

void JudgeClosedLines(Judge& judge, int side) {
  const int limit = league.rules.DqList;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    const StatLine& s = PlayerAt(side, slot).Stats[3];
    const Man& man = ManAt(side, slot);
    judge.Equal(s.Min, man.PlayerGameTime / kMinute, "whole minutes", side);
    judge.Equal(s.G, man.PlayerGameTime >= kMinute ? 1 : 0, "a game is a minute on the floor", side);
    judge.Equal(s.Dq, limit > 0 && s.Pf >= limit ? 1 : 0, "fouled out", side);
    judge.AtMost(s.GS, 1, "starts once", side);
  }
}

}  // namespace

std::string BrokenFinalLaw() {
  Judge judge;
  judge.Law(game.GameOver && game.GameDone, "the game is over", 0);
  const bool endless = game.Period >= 40;  // neither side can score
  judge.Law(endless || game.side[1].Score != game.side[2].Score, "somebody has won", 0, game.side[1].Score,
            game.side[2].Score);
  judge.Equal(game.GameClock, 0, "the clock has run out", 0);
  judge.Law(game.Period >= league.rules.PeriodList, "all periods were played", 0, game.Period,
            league.rules.PeriodList);
  for (int side = 1; side <= 2; ++side) JudgeClosedLines(judge, side);
  const int gap = game.team[1].Possessions[3] - game.team[2].Possessions[3];
  judge.AtMost(std::abs(gap), game.Period, "the sides take turns", 0);
  JudgePlayLog(judge);
  return judge.Broken();
}

namespace {

/// Holds the clocks of a stop against those of the stop before.
class ClockWatch {
 public:
  /// Empty, or what went wrong since the last call.
  std::string Broken() {
    std::string broken;
    if (game.Period == period_ && game.GameClock > clock_) {
      broken = "the clock rose from " + std::to_string(clock_) + " to " + std::to_string(game.GameClock);
    }
    if (game.Period < period_) broken = "a period came back";
    const bool moved = game.Period != period_ || game.GameClock != clock_ || game.PlayLogCount != plays_;
    stuck_ = moved ? 0 : stuck_ + 1;
    if (stuck_ > 500) broken = "the game stands still in " + std::string(game.GameState.Text());
    period_ = game.Period;
    clock_ = game.GameClock;
    plays_ = game.PlayLogCount;
    return broken;
  }

 private:
  int period_ = 0, clock_ = 0, plays_ = 0, stuck_ = 0;
};

}  // namespace

std::string WatchGame(void (*goOn)(), int every) {
  SeatHumans();
  NewGame();
  ClockWatch watch;
  for (int stop = 1; !game.GameOver; ++stop) {
    goOn();
    const std::string broken = watch.Broken() + (stop % every == 0 ? BrokenLaw() : "");
    if (!broken.empty()) return "stop " + std::to_string(stop) + ": " + broken;
  }
  return BrokenFinalLaw();
}

std::string JudgeMatch(int visitor, int home) {
  PlayMatch(visitor, home);
  const std::string broken = BrokenLaw() + BrokenFinalLaw();
  KeepBooks();
  return broken;
}

}  // namespace tipline
