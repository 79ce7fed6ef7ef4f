// The cycle of stops: what happens between two plays, who is asked, and what a computer answers.
#include <algorithm>
#include <cstdlib>

#include "coach/computer_coach.h"
#include "coach/substitutions.h"
#include "engine/clock.h"
#include "engine/eligible.h"
#include "engine/engine.h"
#include "engine/execution.h"
#include "engine/game_state.h"
#include "engine/resolution.h"
#include "engine/shot_selection.h"
#include "league/program.h"
#include "league/setup.h"
#include "narration/narrator.h"

namespace tipline {
namespace {

bool Unattended() { return program.Autoplaying || Watching(); }
bool ComputerRuns(int side) { return game.side[side].CoachMode == "C"; }

/// How late in a period the ball is brought up, or in, as a play of its own; and always against pressure.
bool BringingUpIsAPlay() {
  const int minutes = setup.MoveUpList[LastPeriod() ? 1 : 0];
  const int pressure = Defense().Pressure;
  return (minutes != 0 && game.GameClock / kMinute < minutes) || pressure == 2 || pressure == 4;
}

void DeadBallBooks() {
  const GameState state = game.GameState;
  game.NeedsInbound = game.NeedsMoveUp = 0;
  if (state == "OFFREB" || state == "FASTBREAK") game.DeadBallKind = 0;
  if (IsTimeout(state) && (game.DeadBallKind == 0 || game.DeadBallKind == 4)) game.DeadBallKind = 2;
  if (IsQuarter(state)) game.DeadBallKind = 4;
  if (game.DeadBallKind > 0) game.NeedsInbound = game.DeadBallKind <= 2 || BringingUpIsAPlay() ? 1 : 0;
  if (game.TimeoutHandover > 0) {
    game.DeadBallKind = game.TimeoutHandover;
    game.TimeoutHandover = 0;
  }
  if (game.DeadBallKind > 0) game.NeedsBringUp = 0;
  if (game.NeedsBringUp) game.NeedsMoveUp = BringingUpIsAPlay() ? 1 : 0;
  if (state == "FASTBREAK" || state == "OFFREB") game.NeedsMoveUp = 0;
  if (IsFreeThrow(state)) game.DeadBallKind = game.NeedsInbound = 0;
}

void FindWorstShooter() {
  game.WorstFreeThrowShooter = 0;
  double lowest = 1.0;
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = Offense().Lineup[p];
    const StatLine& real = PlayerAt(game.OffenseSide, slot).Stats[1];
    if (slot == 0 || real.FTA < 10) continue;
    const double rate = static_cast<double>(real.FTM) / real.FTA;
    if (rate < lowest) {
      lowest = rate;
      game.WorstFreeThrowShooter = slot;
    }
  }
}

/// Somebody else shoots for a man who is gone.
void ReplaceShooter() {
  if (!IsFreeThrow(game.GameState)) return;
  const int side = game.OffenseSide;
  const bool there = game.BallPlayer > 0 && OnTeam(side, game.BallPlayer) &&
                     !LoadedAt(side, game.BallPlayer).PlayerOut && PositionOf(side, game.BallPlayer) > 0;
  if (!there) {
    const int position = DrawPosition(side);
    game.BallPlayer = position > 0 ? Offense().Lineup[position] : 0;
  }
  game.BallSlot = PositionOf(side, game.BallPlayer);
}

/// The match-ups of this stop. A man-to-man defense switches now and then.
void SetMatchups() {
  Side& defense = Defense();
  defense.Matchup = defense.StoredMatchup;
  game.Switched = 0;
  if (Rnd(3) != 1 || defense.DefenseType != 0) return;
  game.Switched = 1;
  const int times = Rnd(10) == 1 ? 2 : 1;
  for (int k = 0; k < times; ++k) {
    int a = Rnd(4);
    const int b = Rnd(kPositions);
    if (a == b) a = 5;
    std::swap(defense.Matchup[a], defense.Matchup[b]);
  }
}

bool DefenseActs(GameState s) {
  return s == "DEFENSE-CALL" || s == "DEFENSE" || s == "DEADBALL-DEFENSE" || s == "TIMEOUT-DEFENSE" ||
         s == "QUARTER-DEFENSE" || s == "FREETHROW-WAIT";
}

void SetActingSide() {
  const GameState s = game.GameState;
  game.ActingSide = s == "JUMPBALL-1"   ? 1
                    : s == "JUMPBALL-2" ? 2
                    : DefenseActs(s)    ? game.DefenseSide
                                        : game.OffenseSide;
  if (s == "FASTBREAK") SetFastbreakNumbers();
}

/// The computer acts at this stop.
bool Auto() {
  const GameState state = game.GameState;
  const Side& acting = game.side[game.ActingSide];
  const bool human = acting.CoachMode == "H";
  bool automatic = false;
  if (human && (state == "OFFENSE" || state == "FASTBREAK" || state == "OFFREB")) {
    const int band = game.GameClock >= 3600 ? 1 : game.GameClock >= 1200 ? 2 : 3;
    automatic = Rnd(10) > setup.PlayCallFrequency[band][std::min(game.Period, 5)];
  }
  if (game.possession.PassedThisPossession) automatic = false;
  if (!human) automatic = true;
  const bool live =
      state == "OFFENSE" || state == "OFFREB" || state == "FASTBREAK" || state == "DEFENSE-CALL";
  const bool onOffense = game.ActingSide == game.OffenseSide;
  if (live && ((acting.BothOffenses && onOffense) || (acting.BothDefenses && !onOffense))) automatic = true;
  if (!live && acting.BothDefenses && !onOffense) ComputerDefenseCall(game.DefenseSide);
  if (human && game.GameClock == FullPeriod()) automatic = false;
  return automatic || Unattended();
}

/// A side sets its man-to-man assignments at the stops where it acts.
void RenewMatchups() {
  const GameState s = game.GameState;
  const bool jump = s == "JUMPBALL-1" || s == "JUMPBALL-2";
  const bool stop = jump || IsDeadBall(s) || IsTimeout(s) || IsQuarter(s) || IsFreeThrow(s);
  if (!stop) return;
  const int side = game.ActingSide;
  if (!ComputerRuns(side) && !game.coach[side].ComputerMatchups) return;
  if (Rnd(3) == 1) {
    for (int p = 1; p <= kPositions; ++p) game.side[side].StoredMatchup[p] = p;
  } else {
    ComputerSetMatchups(side);
  }
}

/// A computer defense thinks again, one time in `odds`. What a human has set stays, in a watched stretch too.
void ComputerCalls(int side, int odds) {
  const bool computer = ComputerRuns(side) || game.side[side].BothDefenses;
  if (computer && Rnd(odds) == 1) ComputerDefenseCall(side);
}

/// How seldom a defense is thought over in bulk play; near the end of a half always.
int DefenseOdds(bool watchedCounts) {
  int odds = program.Autoplaying ? 5 : 1;
  if (watchedCounts && Watching()) odds = 1;
  if ((game.Period == 2 || game.Period == 4) && game.GameClock < 300 + Rnd(300)) odds = 1;
  return odds;
}

int DefenseCallOdds() {
  int odds = program.Autoplaying ? 5 : 1;
  if (Watching()) odds = 1;
  if (ComputerRuns(game.DefenseSide) && ((LastPeriod() && game.GameClock < 3000) || game.GameClock < 600))
    odds = 1;
  return odds;
}

int StopOdds() { return program.Autoplaying && !Watching() ? 3 : 1; }

/// A leader lets the clock run.
void SitOnLead() {
  const int side = game.OffenseSide;
  if (!LastPeriod() || Lead(side) <= 0) return;
  const int rule = league.rules.ShotClockList * 10;
  if (rule == 0 ? game.GameClock < 100 + Rnd(100)
                : game.GameClock < rule && game.ShotClock >= game.GameClock) {
    game.PlayKind = "HOLD BALL";
  }
  if (!ComputerRuns(side) || game.GameClock >= 300 || game.ShotClock < 0) return;
  if (game.ShotClock >= 30 || game.GameClock > 5) {
    game.PlayKind = game.GameClock <= game.ShotClock ? PlayKind("HOLD BALL") : PlayKind("BURN");
  }
}

/// Only a human defense of a watched game is asked before the play goes on.
bool WantDefenseCall() {
  if (ComputerRuns(game.DefenseSide) || Unattended()) return false;
  bool want = Rnd(3) == 1;
  if (Margin() < 10 && LastPeriod() && Rnd(3) < 3 && game.GameClock < 600 + Rnd(3000)) want = true;
  if (game.call.CallKind == 0 && game.call.CallPlayer == 0) want = false;
  if (LastPeriod() && game.GameClock <= 1200) want = true;
  return want;
}

void ComputerOffense() {
  SetOpenStatus();
  FindShooter();
  SitOnLead();
  const bool want = WantDefenseCall();
  if ((ComputerRuns(game.OffenseSide) || Offense().BothOffenses) && ComputerQuickPass()) return;
  if (want) {
    game.GameState = "DEFENSE-CALL";
  } else {
    FindResult();
  }
}

/// Up again at once, or back out for a new set.
void ComputerPutback() {
  if (Rnd(100) <= 90) {
    game.PlayKind = "OFFREB";
    if (PositionOf(game.OffenseSide, game.play.Rebounder) > 0) game.BallPlayer = game.play.Rebounder;
  } else {
    game.PlayResult = "";
    game.GameState = "OFFENSE";
    game.PutbackClass = 0;
    SetOpenStatus();
    FindShooter();
    game.PlayKind = KindOfPick(ManAt(game.OffenseSide, game.BallPlayer).ShotPick);
  }
  FindResult();
}

void ActForComputer() {
  const GameState state = game.GameState;
  const bool ballMatters = EndsInOffense(state) || state == "OFFREB" || state == "FREETHROW-SHOOT";
  if (ballMatters && PositionOf(game.OffenseSide, game.BallPlayer) == 0) FindShooter();
  if ((game.NeedsInbound || game.NeedsMoveUp) && EndsInOffense(state)) return FindResult();
  if (state == "DEFENSE-CALL") {
    if (Rnd(DefenseCallOdds()) == 1) ComputerDefenseCall(game.DefenseSide);  // nobody else answers the call
    FindResult();
  } else if (state == "TIMEOUT-DEFENSE") {
    ComputerCalls(game.DefenseSide, 1);
    game.GameState = "TIMEOUT-OFFENSE";
  } else if (state == "TIMEOUT-OFFENSE" || state == "QUARTER-OFFENSE") {
    game.GameState = "DEFENSE";
  } else if (state == "QUARTER-DEFENSE") {
    ComputerCalls(game.DefenseSide, program.Autoplaying ? 3 : 1);
    game.GameState = "QUARTER-OFFENSE";
  } else if (state == "DEADBALL-DEFENSE") {
    ComputerCalls(game.DefenseSide, StopOdds());
    game.GameState = "DEADBALL-OFFENSE";
  } else if (state == "DEADBALL-OFFENSE") {
    game.GameState = "OFFENSE";
  } else if (state == "JUMPBALL-1") {
    ComputerCalls(1, 1);
    game.GameState = "JUMPBALL-2";
  } else if (state == "JUMPBALL-2") {
    ComputerCalls(2, 1);
    game.GameState = "JUMPBALL";
    JumpBall();
  } else if (state == "JUMPBALL") {
    JumpBall();
  } else if (state == "OFFENSE") {
    ComputerOffense();
  } else if (state == "OFFREB") {
    ComputerPutback();
  } else if (state == "FASTBREAK") {
    FindShooter();
    FindResult();
  } else if (state == "DEFENSE") {
    ComputerCalls(game.DefenseSide, DefenseOdds(true));
    game.GameState = "OFFENSE";
  } else if (state == "FREETHROW-SHOOT") {
    FindResult();
  } else if (state == "FREETHROW-WAIT") {
    game.GameState = "FREETHROW-SHOOT";
    ComputerCalls(game.DefenseSide, DefenseOdds(false));
  }
}

/// One pass of the cycle. False when the game waits for a human, or is over.
bool NextStop() {
  if (game.GameState == "OFFENSE") ResetOffensePanel();
  if (game.OffenseSide == game.DefenseSide) game.DefenseSide = 3 - game.OffenseSide;
  DeadBallBooks();
  FindWorstShooter();
  RefreshCrunchTime();
  ReplaceShooter();
  SetMatchups();
  if (game.GameDone || game.GameOver || game.GameState.Empty()) return false;
  ComputerReviews();
  TakeTimeouts();
  SetActingSide();
  const bool automatic = Auto();
  RenewMatchups();
  if (!automatic) {
    if (game.GameState == "OFFENSE" && !game.NeedsInbound && !game.NeedsMoveUp) SetOpenStatus();
    return false;
  }
  ActForComputer();
  return true;
}

}  // namespace

void SetPlayBox() {
  while (!game.ExitRequested && NextStop()) {
  }
}

void NoteStarters() {
  for (int s = 1; s <= 2; ++s) {
    game.side[s].Starters = game.side[s].Lineup;
    for (const int slot : game.side[s].Lineup) {
      if (slot > 0) PlayerAt(s, slot).Stats[3].GS = 1;
    }
  }
}

void JumpBall() {
  const bool opening = !game.GameStarted;
  const int had = game.OffenseSide;
  game.PeriodStart = PeriodOpens() ? 1 : 0;
  int height[3] = {};
  for (int s = 1; s <= 2; ++s) {
    Side& side = game.side[s];
    if (game.PeriodStart || PositionOf(s, side.JumperOf) == 0) side.JumperOf = side.Lineup[kPositions];
    height[s] = HeightOf(PlayerAt(s, side.JumperOf));
  }
  const int gap = height[1] - height[2];
  game.OffenseSide = Rnd(2);
  bool byHeight = Rnd(2) == 1;
  if (!byHeight && Rnd(2) == 1) byHeight = std::abs(gap) > Rnd(10) + 3;
  if (byHeight) {
    if (gap >= Rnd(9)) {
      game.OffenseSide = 1;
    } else if (gap <= -Rnd(9)) {
      game.OffenseSide = 2;
    }
  }
  // Nobody has had the ball yet when a game is taken up in mid-period with a jump.
  const bool changed = !game.PeriodStart && game.PlayLogCount > 0 && game.OffenseSide != had;
  if (changed) {
    CountPossession(had);
    game.SecondChance = 0;
    game.ShotClock = FullShotClock();
  }
  game.DefenseSide = 3 - game.OffenseSide;
  game.PossessionArrow = game.DefenseSide;
  if (opening) {  // who won the opening tip is kept: later jumps leave it
    game.OpeningTipWinner = game.OffenseSide;
    NoteStarters();
  }
  game.GameStarted = true;
  NarrateOpening();
  game.possession = {};
  game.BallPlayer = game.BallSlot = 0;
  game.PlayKind = "";
  game.PlayResult = "";
  game.play.NoShotEnd = 0;
  const int first = Rnd(20);
  const int second = Rnd(20);
  game.PlayTime = std::min(first + second, static_cast<int>(game.GameClock));
  const int period = game.Period;
  EndPlay();
  if (game.GameOver || game.Period != period) return;
  if (!game.PeriodStart && league.rules.ShotClockList > 0) {
    game.ShotClock = changed ? FullShotClock() : std::min(std::max(game.ShotClock, 50), FullShotClock());
  }
  game.DeadBallKind = game.NeedsBringUp = 0;
  game.GameState = "OFFENSE";
}

}  // namespace tipline
