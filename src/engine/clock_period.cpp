// The end of a play, of a period and of the game.
#include <algorithm>

#include "aftermath/finish_game.h"
#include "aftermath/ticker.h"
#include "base/numbers.h"
#include "coach/substitutions.h"
#include "engine/clock.h"
#include "engine/execution.h"
#include "engine/fatigue.h"
#include "engine/game_state.h"
#include "narration/narrator.h"

namespace tipline {
namespace {

constexpr int kMostPeriods = 40;  // two sides that can't score, men left or not, end in a tie

constexpr int ShortLine::*kCounters[] = {&ShortLine::Points, &ShortLine::Reb, &ShortLine::Ast,
                                         &ShortLine::St,     &ShortLine::Bk,  &ShortLine::To};

void Raise(ShortLine& best, const ShortLine& line) {
  for (const auto counter : kCounters) best.*counter = std::max(best.*counter, line.*counter);
}

// In the last two minutes the bonus is at most one foul away.
void PenaltyUnderTwoMinutes() {
  if (league.rules.PenaltyUnderTwoMinutesCheck == 0 || game.GameClock > 1200) return;
  for (Side& side : game.side) side.TeamFouls = std::max(side.TeamFouls, league.rules.FoulLimit[1] - 2);
}

void CutTimeouts(int most) {
  if (most == 0) return;
  for (Side& side : game.side) side.TimeoutsLeft = std::min(side.TimeoutsLeft, most);
}

void RunTheClocks() {
  game.GameClock = std::max(game.GameClock - game.PlayTime, 0);
  game.ShotClock = std::max(game.ShotClock - game.PlayTime, 10);
  if (game.PlayKind == "OFFREB" && game.play.AirBall == 0 && !game.play.Blocked) {
    game.ShotClock = ReboundShotClock();
  }
}

/// The watched stretch ends at its mark, or with the game.
void StopWatching() {
  if (!Watching()) return;
  const WatchMark mark = MarkOf(game.WatchUntil);
  if (game.Period == mark.period && game.GameClock < mark.below) game.WatchUntil = "NONE";
}

/// The time of a play for a man on the floor. A press wears out those who play it.
void ChargeMan(Man& man, int position, double pressWork) {
  man.PlayerGameTime += game.PlayTime;
  man.PositionTime[position] += game.PlayTime;
  man.FatigueLoad += game.PlayTime + Round(pressWork * game.PlayTime);
  man.RestTime = 0;
}

double PressWork(int side) {
  if (side != game.DefenseSide) return 0;
  const int pressure = game.side[side].Pressure;
  return pressure == 1 || pressure == 3 ? 0.25 : pressure == 2 || pressure == 4 ? 0.5 : 0;
}

void ChargeFatigue() {
  for (int side = 1; side <= 2; ++side) {
    const double pressWork = PressWork(side);
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!OnTeam(side, slot) || LoadedAt(side, slot).PlayerOut != 0) continue;
      Man& man = ManAt(side, slot);
      if (const int position = PositionOf(side, slot)) {
        ChargeMan(man, position, pressWork);
      } else {
        man.RestTime += game.PlayTime;
      }
      UpdateEnergy(side, slot);
    }
  }
}

/// The result sends somebody to the line.
bool SendsToLine() {
  const PlayResult& r = game.PlayResult;
  return game.play.FlagrantLevel > 0 || r == "F1" || r == "F2" || r == "F1-1" || r == "F3-2" || r == "MF" ||
         r == "M3F" || r == "GF" || r == "G3F";
}

/// The clock is out, and no free throws keep the period alive: a foul at the buzzer does, as they take no
/// time.
bool PeriodIsOver() {
  if (game.GameClock > 0) return false;
  if (game.PlayResult == "NOSHOT" || game.play.NoShotEnd == 1 || game.PlayKind == "ENDPERIOD") return true;
  if (SendsToLine() || IsFreeThrow(game.PlayKind)) return false;
  return !(IsFreeThrow(game.GameState) && game.PlayKind.Text().size() >= 6);
}

void FoldPeriodLine(Man& man) {
  switch (game.Period) {
    case 1:
    case 3:
    case 5:
      Raise(man.BestPeriodLine, man.PeriodStatLine);
      man.HalfStatLine = man.PeriodStatLine;
      break;
    case 2:
    case 4:
      for (const auto counter : kCounters) man.HalfStatLine.*counter += man.PeriodStatLine.*counter;
      Raise(man.BestHalfLine, man.HalfStatLine);
      man.HalfStatLine = {};
      break;
    default:
      break;
  }
  man.PeriodStatLine = {};
}

void ClosePeriod() {
  if (game.Period == (league.rules.PeriodList == 2 ? 1 : 2)) {
    for (Side& side : game.side) side.HalfScore = side.Score;
  }
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) FoldPeriodLine(ManAt(side, slot));
  }
  game.ShotClock = FullShotClock();
}

/// What every new period begins with, overtime too.
void OpenPeriod(int clock) {
  ++game.Period;
  game.GameClock = clock;
  game.PlayKind = "";
  game.PlayResult = "";
  game.possession = {};
  game.SecondChance = 0;
  game.TechnicalFreeThrow = 0;
  game.LastSubClock = 99999;  // of the period before
  for (Side& side : game.side) side.TeamFouls = 0;
}

void RestBetweenPeriods() {
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!OnTeam(side, slot)) continue;
      Man& man = ManAt(side, slot);
      man.FatigueLoad = std::max(man.FatigueLoad - 900, 0);
      man.RestTime += 600;
      UpdateEnergy(side, slot);
    }
  }
}

void RestBeforeOvertime() {
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!OnTeam(side, slot)) continue;
      Man& man = ManAt(side, slot);
      man.Energy = 100;
      man.FatigueLoad = 0;
      man.RestTime = 0;
    }
  }
}

/// Who lost the opening tip begins the second period and the third, the winner the fourth. With other counts
/// of periods the ball stays where it was.
void GivePossession() {
  if (game.OpeningTipWinner == 0) game.OpeningTipWinner = 1;
  const int loser = 3 - game.OpeningTipWinner;
  if (league.rules.PeriodList == 2 && game.Period == 2) game.OffenseSide = loser;
  if (league.rules.PeriodList == 4) game.OffenseSide = game.Period == 4 ? game.OpeningTipWinner : loser;
  game.DefenseSide = 3 - game.OffenseSide;
  game.PossessionArrow = game.DefenseSide;
  game.GameState = "QUARTER-DEFENSE";
}

void NextPeriod() {
  RestBetweenPeriods();
  OpenPeriod(FullPeriod());
  TickPeriod();
  if (league.rules.QuarterJumpCheck != 0) {
    game.GameState = "JUMPBALL-1";
  } else {
    GivePossession();
  }
  LoadLineups();
  if (!league.rules.QuarterJumpCheck) NarrateOpening();
}

void Overtime() {
  RestBeforeOvertime();
  OpenPeriod(FullOvertime());
  game.GameState = "JUMPBALL-1";
  LoadLineups();
}

void EndPeriod() {
  EndPeriodNotice();  // a tip or a held ball at the horn has had none
  const bool last = LastPeriod();
  if (last && IsFreeThrow(game.GameState) && game.PlayKind != "ENDPERIOD") return;
  CountPossession(game.OffenseSide);
  ClosePeriod();
  NarratePeriodEnd();
  if (!last) {
    NextPeriod();
  } else if (game.side[1].Score == game.side[2].Score && game.Period < kMostPeriods) {
    Overtime();
  } else {
    game.GameOver = true;
  }
}

/// Free throws are still to be shot when the clock is out.
bool FreeThrowsRemain() {
  return SendsToLine() || IsFreeThrow(game.PlayKind) || IsFreeThrow(game.GameState) ||
         game.PlayResult == "FTM" || game.PlayResult == "FTG";
}

void ClearOrders(Side& side) {
  side.OffensePace = 2;
  side.LastShot = side.QuickFoul = side.StealFoul = side.NoFoul = 0;
  side.TimeoutOffense = side.TimeoutDefense = 0;
}

void HurtMenRecover() {
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      int& counts = ManAt(side, slot).TemporaryInjury;
      counts = counts > 3 ? counts - 2 : 0;
    }
  }
}

// The overtime's timeouts: so many, or one or two more than are left.
void GrantOvertimeTimeouts() {
  const int list = league.rules.OvertimeTimeoutList;
  if (list == 0) return;
  for (Side& side : game.side) side.TimeoutsLeft = list >= 4 ? side.TimeoutsLeft + list - 3 : list;
}

}  // namespace

int ReboundShotClock() {
  const int reset = league.rules.ShotClockResetList * 10;
  const int full = FullShotClock();
  return std::min<int>(reset == 0 || league.rules.ShotClockList == 0 ? full : std::min(reset, full),
                       game.GameClock);
}

void EndPlay() {
  PenaltyUnderTwoMinutes();
  if (LastPeriod() && game.GameClock < 1800) CutTimeouts(league.rules.Last3MinTimeoutList);
  RunTheClocks();
  StopWatching();
  ChargeFatigue();
  if (PeriodIsOver()) EndPeriod();
  if (game.GameOver && !game.GameDone) {
    game.WatchUntil = "NONE";
    FinishGame();
    game.GameDone = true;
  }
}

void EndPeriodNotice() {
  for (Side& side : game.side) ClearOrders(side);
  if (game.PlayKind != "ENDPERIOD" && FreeThrowsRemain()) return;
  int& done = game.PeriodNoticeDone[std::min(game.Period, game.PeriodNoticeDone.kLast)];
  if (game.GameOver || done == 1) return;
  done = 1;
  game.PlayKind = "ENDPERIOD";
  HurtMenRecover();
  if (game.Period == league.rules.PeriodList - 1) CutTimeouts(league.rules.LastPeriodTimeoutList);
  if (LastPeriod() && game.side[1].Score == game.side[2].Score) GrantOvertimeTimeouts();
}

}  // namespace tipline
