#include "coach/substitutions.h"

#include <algorithm>
#include <utility>

#include "base/numbers.h"
#include "coach/substitutions_pass.h"
#include "league/program.h"
#include "narration/narrator.h"

namespace tipline {
namespace {

constexpr int kMostTries = 100;

/// The margin at which a game counts as decided with less than `clock` left.
struct BlowoutRow {
  int margin, clock;
};
// clang-format off
constexpr BlowoutRow kBlowout[] = {{ 7,  100}, {10,  300}, {16, 1200}, {20, 2400}, {26, 3000}, {30, 6000}};
// clang-format on

void RefreshBlowout() {
  const int margin = Margin();
  const int clock = game.GameClock;
  bool blowout = false;
  if (game.Period == 3) blowout = (margin >= 30 && clock < 6000) || margin >= 35;
  if (LastPeriod()) {
    blowout = margin >= 35;
    for (const BlowoutRow& row : kBlowout) blowout = blowout || (margin >= row.margin && clock < row.clock);
  }
  game.Blowout = blowout ? 1 : 0;
}

bool BetweenFreeThrows() {
  return game.PlayKind == "SHOOT2" || game.PlayKind == "SHOOT3" || game.PlayKind == "SHOOT3-2" ||
         game.PlayKind == "SHOOT2-2";
}

bool HasHole(const Side& side) {
  return std::any_of(side.Lineup.begin(), side.Lineup.end(), [](int slot) { return slot == 0; });
}

bool AnyHole() { return HasHole(game.side[1]) || HasHole(game.side[2]); }

void DrawOrder(Table<int, 1, kPositions>& order) {
  for (int p = 1; p <= kPositions; ++p) order[p] = p;
  for (int i = 0; i < 3; ++i) {
    const int a = Rnd(kPositions);
    const int b = Rnd(kPositions);
    std::swap(order[a], order[b]);
  }
}

/// A side that named nobody for this minute, or never made a grid, follows its depth chart instead.
bool GridNamesSomebody(const SubPass& pass, int side) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(side, slot) && GridCell(pass, PlayerAt(side, slot)) != 0) return true;
  }
  return false;
}

void ComputerHandsOverAll(Side& side) {
  if (side.CoachMode != "C") return;
  side.UseRotationGrid = side.AutoSubWhenTired = side.AutoSubWhenFoulTrouble = 1;
}

void ClearReasons() {
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      Man& man = ManAt(side, slot);
      man.FouledOutFlag = man.TiredFlag = man.FoulTroubleFlag = 0;
    }
  }
}

/// No change in quick succession, nor in the last moments of a decided game.
bool NoMoreRemovals() {
  const int clock = game.GameClock;
  if (game.LastSubClock - clock < 90) return true;
  if (!LastPeriod()) return false;
  const int margin = Margin();
  return (game.Blowout == 1 && clock < 900) || (margin >= 5 && clock < 100) || (margin >= 10 && clock < 300);
}

SubPass ReadStop() {
  SubPass pass;
  const bool overtime = game.Period > league.rules.PeriodList;
  const int minutes = Clamp<int>(overtime ? league.rules.OverTimeList : league.rules.MinuteList, 1, 20);
  const int full = FullPeriod();
  pass.period = overtime ? 5 : Clamp(game.Period, 1, 4);
  pass.minute = Clamp(minutes - game.GameClock / kMinute, 1, minutes);
  pass.foulLimit = FoulTroubleLimit();
  if (LastPeriod()) pass.subTimeLeft = game.GameClock;
  pass.early = game.GameClock + 1800 > full && game.GameClock < full;
  pass.fullClock = game.GameClock == full;
  pass.freeThrow = IsFreeThrow(game.GameState);
  pass.unattended = program.Autoplaying || Watching();
  for (int side = 1; side <= 2; ++side) {
    ComputerHandsOverAll(game.side[side]);
    DrawOrder(pass.order[side]);
    pass.hasGrid[side] = game.side[side].UseRotationGrid == 1 && GridNamesSomebody(pass, side);
  }
  return pass;
}

/// Every period but the second half of two begins with a fresh look at all ten and a long rest behind them.
void EmptyForPeriodStart(const SubPass& pass) {
  if (!pass.fullClock || pass.freeThrow || (league.rules.PeriodList == 2 && game.Period == 2)) return;
  for (int side = 1; side <= 2; ++side) {
    game.side[side].Lineup.Fill(0);
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!OnTeam(side, slot)) continue;
      Man& man = ManAt(side, slot);
      man.FatigueLoad = std::max(man.FatigueLoad - 7200, 0);
      man.RestTime += 7200;
    }
  }
  game.BallPlayer = 0;
}

/// One pass over both sides. False when a position is empty and the bench can't fill it.
bool RunPass(SubPass& pass) {
  ++pass.tries;
  RefreshBlowout();
  RefreshCrunchTime();
  TakeOffUnfit(pass);
  if (pass.tries == 1) EmptyForPeriodStart(pass);
  pass.settled = NoMoreRemovals();
  if (!pass.settled) {
    TakeOffTired(pass);
    TakeOffForBlowout();
    TakeOffFoulTrouble(pass);
  }
  EnterByGrid(pass);
  RepairPositions(pass);
  if (!pass.settled) MakeRoomForFreshMen(pass);
  return FillPositions(pass);
}

/// After a change the stop's result is spent, and the next removals wait a little.
void NoteChange() {
  if (game.side[1].Lineup == game.side[1].PreviousLineup &&
      game.side[2].Lineup == game.side[2].PreviousLineup)
    return;
  if (!PeriodOpens()) NarrateLineups();
  if (Watching()) return;
  if (game.GameClock != FullPeriod()) {
    game.PlayResult = "";
    game.LineupAnnounced = 1;
  }
  game.LastSubClock = game.GameClock;
}

}  // namespace

void RefreshCrunchTime() {
  const int clock = game.GameClock;
  const int margin = Margin();
  game.CrunchTime = 0;
  if (!LastPeriod() || clock >= 3600) return;
  const bool close = (margin <= 10 && clock < 1200) || (margin <= 12 && clock < 3000);
  const bool decided = (margin >= 7 && clock < 100) || (margin >= 10 && clock < 300);
  game.CrunchTime = close && !decided ? 1 : 0;
}

int FoulTroubleLimit() {
  const int periods = league.rules.PeriodList;
  const bool longWay = game.GameClock > 3600;
  if (periods == 4) {
    if (game.Period >= 1 && game.Period <= 3) return game.Period + 1;
    if (game.Period == 4 && longWay) return 5;
  }
  if (periods == 2) {
    if (game.Period == 1) return 2;
    if (game.Period == 2 && longWay) return 4;
  }
  return 99;
}

int GridCell(const SubPass& pass, PlayerRecord& p) {
  u8& cell = p.RotationGrid[pass.period][pass.minute];
  if (cell > kPositions) cell = 0;
  return cell;
}

void LoadLineups() {
  // No change in the dying second, but for a man who has to go.
  if (game.GameClock - game.PlayTime <= 0 && !AnyHole()) return;
  for (Side& side : game.side) side.PreviousLineup = side.Lineup;
  ClearReasons();
  if (BetweenFreeThrows() && !AnyHole()) return;
  SubPass pass = ReadStop();
  if (pass.fullClock) game.PeriodStart = 1;
  bool more = RunPass(pass);
  while (more && AnyHole() && pass.tries < kMostTries) more = RunPass(pass);
  GuardAndCenter(pass);
  if (const int position = PositionOf(game.OffenseSide, game.BallPlayer)) game.BallSlot = position;
  NoteChange();
}

}  // namespace tipline
