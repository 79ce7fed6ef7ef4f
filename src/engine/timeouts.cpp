// Timeouts between two stops: the wishes of the coaches, and those of the broadcast.
#include <algorithm>

#include "base/numbers.h"
#include "engine/clock.h"
#include "engine/execution.h"
#include "engine/fatigue.h"
#include "engine/game_state.h"
#include "narration/narrator.h"

namespace tipline {
namespace {

void LogTimeout(int side, PlayNote note) { AddPlayLog(game.GameClock, side, 0, "", "TIMEOUT", note); }

void CountInPeriod(int side) { ++game.side[side].TimeoutsByPeriod[Clamp(game.Period, 1, 20)]; }

void StopPlay(int side, PlayNote note) {
  game.MomentumMark = 1;
  game.AfterTimeout = 1;
  game.GameState = "TIMEOUT-DEFENSE";
  game.possession = {};
  game.PlayResult = "";
  LogTimeout(side, note);
  NarrateTimeout(side, note == kMediaTimeout);
}

void HonourWish(int side, int& wish) {
  AdvanceBallOnTimeout();
  TimeoutRest();
  ChargeTimeout(side);
  StopPlay(side, kTimeoutNote);
  wish = 0;
}

/// The side that has just scored stops the clock behind its basket: the ball is already the other side's.
void WishAfterScore() {
  Side& scorer = Defense();
  const PlayResult& r = game.PlayResult;
  if (scorer.TimeoutOffense != 1 || scorer.TimeoutsLeft <= 0) return;
  if (r == "G" || r == "G3") HonourWish(game.DefenseSide, scorer.TimeoutOffense);
}

void WishAfterWinningTheBall() {
  Side& winner = Offense();
  const PlayResult& r = game.PlayResult;
  if (winner.TimeoutDefense != 1 || winner.TimeoutsLeft <= 0) return;
  if (r == "ST" || r == "TO" || r == "M" || r == "G" || r == "M3" || r == "G3" || r == "DEFREB") {
    HonourWish(game.OffenseSide, winner.TimeoutDefense);
  }
}

/// A media timeout that is due: its row of MediaDone and the side it falls to, 0 for none.
struct MediaTimeout {
  int band = 0, side = 0;
};

// With quarters each side owes one a period, the visitors the later one.
MediaTimeout MediaOfQuarter() {
  const int clock = game.GameClock;
  const int side = clock >= 1200 && clock <= 1800 ? 1 : clock > 1800 && clock <= 3600 ? 2 : 0;
  if (side == 0 || game.side[side].TimeoutsByPeriod[game.Period] >= 1) return {};
  return {side, side};
}

// With halves there are four stops a half, at about every fourth minute.
MediaTimeout MediaOfHalf() {
  // clang-format off
  static constexpr struct { int from, to, band, side; } kBands[] = {{1200, 2400,  4, 1},
                                                                    {2401, 4800,  8, 2},
                                                                    {4801, 7200, 12, 1},
                                                                    {7201, 9600, 16, 2}};
  // clang-format on
  const int clock = game.GameClock - game.PlayTime;
  for (const auto& b : kBands) {
    if (clock >= b.from && clock <= b.to && game.MediaDone[b.band][game.Period] == 0) return {b.band, b.side};
  }
  return {};
}

void TakeMediaTimeout() {
  if (league.rules.AutomaticTimeoutsCheck == 0 || game.Period < 1 || game.Period > 4) return;
  const PlayResult& r = game.PlayResult;
  if (r != "TO" && r != "OF" && r != "OB" && r != "SHOTCLOCK" && r != "FTG") return;
  if (IsFreeThrow(game.GameState) || game.GameState == "DEFENSE") return;
  const bool quarters = league.rules.PeriodList == 4;
  const MediaTimeout due = quarters                       ? MediaOfQuarter()
                           : league.rules.PeriodList == 2 ? MediaOfHalf()
                                                          : MediaTimeout{};
  if (due.side == 0 || (quarters && game.side[due.side].TimeoutsLeft <= 0)) return;
  game.MediaDone[due.band][game.Period] = 1;
  if (quarters) {
    AdvanceBallOnTimeout();
    --game.side[due.side].TimeoutsLeft;
  }
  CountInPeriod(due.side);
  StopPlay(due.side, kMediaTimeout);
}

}  // namespace

void TakeTimeouts() {
  WishAfterScore();
  WishAfterWinningTheBall();
  TakeMediaTimeout();
}

void AdvanceBallOnTimeout() {
  const int periods = league.rules.PeriodList;
  const bool endOfHalf = periods == 2 || (periods == 4 && (game.Period == 2 || game.Period >= 4));
  if (game.GameClock > 1200 || !endOfHalf) return;
  game.DeadBallKind = std::min(game.DeadBallKind, 2);
  game.TimeoutHandover = 2;
}

void ChargeTimeout(int side) {
  Side& s = game.side[side];
  s.TimeoutsLeft = std::max(s.TimeoutsLeft - 1, 0);
  CountInPeriod(side);
  ++s.TimeoutsByMinute[Clamp(Int(game.GameClock / 60.0), 0, 20)];
}

}  // namespace tipline
