// What a computer coach sets at every stop: pace, last shot, timeout wishes.
#include "coach/computer_coach.h"
#include "engine/game_state.h"

namespace tipline {
namespace {

/// The stop as one coach sees it.
struct Bench {
  int side;
  int other = 3 - side;
  int lead = Lead(side);
  int margin = Margin();
  int clock = game.GameClock;
  int rule = league.rules.ShotClockList * 10;  // shot clock, tenths; 0 without the rule
  bool late = LastPeriod();
  Side& own = game.side[side];

  void Wish(bool wanted) const {
    if (wanted) own.TimeoutOffense = own.TimeoutDefense = 1;
  }
  void WishWhenWeWinTheBall(bool wanted) const {
    if (wanted) own.TimeoutDefense = 1;
  }
  void WishBehindOurBasket(bool wanted) const {
    if (wanted) own.TimeoutOffense = 1;
  }
  void NoWish() const { own.TimeoutOffense = own.TimeoutDefense = 0; }
};

void LatePace(const Bench& b, int& pace) {
  const int lead = b.lead;
  if (b.clock < 60 + Rnd(90)) {
    if (lead < -6 - Rnd(5)) pace = 3;
    if (lead < -9 - Rnd(5)) pace = 4;
    if (lead < 0) pace = 4;
    if (lead > 0) pace = 0;
  } else if (b.clock < 180 + Rnd(180)) {
    if (lead < -9 - Rnd(5)) pace = 3;
    if (lead < -12 - Rnd(5)) pace = 4;
    if (lead > 10 + Rnd(3)) pace = 1;
    if (lead > 16 + Rnd(3)) pace = 0;
  } else if (b.clock < 600 + Rnd(300)) {
    if (lead > 17 + Rnd(4)) pace = 1;
    if (lead > 22 + Rnd(5)) pace = 0;
    if (lead < -12 - Rnd(5)) pace = 3;
    if (lead < -18 - Rnd(5)) pace = 4;
  }
}

/// The pace wavers, towards what the coach on defense likes.
int Wavering(int pace) {
  if (pace == 0 || pace == 4) return pace;
  const int calm = Rnd(10);
  const int nerve = Rnd(pace == 2 ? 9 : 6);
  if (pace == 2 ? calm >= nerve : calm > nerve) return pace;
  const int likes = game.coach[game.DefenseSide].OverallPace;
  if (likes >= 2 + Rnd(2)) ++pace;
  if (likes < Rnd(2)) --pace;
  return Clamp(pace, 0, 4);
}

void SetPace(const Bench& b) {
  int pace = b.lead >= 30 ? 0 : b.lead >= 25 ? 1 : 2;
  if (b.late) LatePace(b, pace);
  b.own.OffensePace = Wavering(pace);
}

/// Plays for the last shot of the period, at its end only when that can help.
void SetLastShot(const Bench& b) {
  if ((b.rule > 0 && b.clock < b.rule) || b.clock < 200) b.own.LastShot = !b.late || b.lead >= -2 ? 1 : 0;
}

void WishAtTheEnd(const Bench& b) {
  if (!b.late || IsFreeThrow(game.GameState) || game.GameState == "DEFENSE") return;
  if (b.clock <= (b.rule > 0 ? b.rule : 200)) {
    b.Wish(b.lead < 0);
  } else if (b.clock < 300) {
    b.WishBehindOurBasket(b.lead < -5);
    b.WishWhenWeWinTheBall(b.lead <= 0);
  } else if (b.clock < 600) {
    b.Wish(b.lead < -5);
  }
  if (b.lead < -12 || (b.clock < 100 && b.lead < -8) || (b.clock < 50 && b.lead < -6)) b.NoWish();
}

/// Only threes can help now.
void OrderThrees(const Bench& b) {
  if (!league.rules.ThreePointCheck || !b.late || b.clock >= 200 || (b.lead != -3 && b.lead >= -6)) return;
  for (int slot = 1; slot <= kRosterSlots; ++slot) ManAt(b.side, slot).GlobalOffense = kThree;
}

/// Stops a run of the other side; each game's coach gets nervous a little sooner or later.
void WishAgainstRun(const Bench& b) {
  if (game.RunTeam != b.other || b.margin > 20 || b.clock <= 1800 + Rnd(600)) return;
  if (b.late && b.clock <= 6000) return;
  const int run = game.RunPoints + game.RunOffset;
  b.WishBehindOurBasket(run == 8 || run == 12 || run == 16 || run == 20);
}

/// A bad start to one of the first three periods, while hardly a timeout has been used.
void WishAfterSlowStart(const Bench& b) {
  constexpr int kBehind[4] = {0, 7, 9, 11};  // by period
  if (game.Period < 1 || game.Period > 3) return;
  if (b.clock >= 0.7 * FullPeriod() || b.clock <= 1800 || b.clock >= 10000 || Rnd(3) != 1) return;
  const bool unused = b.own.TimeoutsLeft >= league.rules.TimeoutList - (game.Period - 1);
  b.WishWhenWeWinTheBall(unused && b.lead < -kBehind[game.Period] - Rnd(4));
}

void WishForTiredMen(const Bench& b) {
  if (b.clock <= 1800) return;
  int tired = 0;
  for (const int slot : b.own.Lineup) {
    const int energy = ManAt(b.side, slot).Energy;
    if (slot > 0 && energy < 80 && energy < 70 + Rnd(10)) ++tired;
  }
  b.WishWhenWeWinTheBall(tired >= 2);
}

/// The men for the finish are not the five on the floor.
void WishForCrunchMen(const Bench& b) {
  if (game.CrunchTime != 1) return;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(b.side, slot)) continue;
    const PlayerRecord& p = PlayerAt(b.side, slot);
    const bool onFloor = PositionOf(b.side, slot) > 0;
    b.WishWhenWeWinTheBall(onFloor ? p.DontPlayCrunchTime != 0 : p.PlayAtCrunchTime != 0);
  }
}

/// Reasons to keep the timeout, whatever the wish.
bool KeepsTimeout(const Bench& b) {
  const int periods = league.rules.PeriodList;
  if (b.margin > game.Period * 4 + 5 || b.margin > 12 + Rnd(15)) return true;
  if (b.lead >= 10 && game.Period >= 3) return true;
  if (b.late && b.lead > 0 && b.clock < 3600 + Rnd(3600)) return true;
  if (game.Period > periods ? b.clock > 120 : b.clock > league.rules.MinuteList * 60 - 120) return true;
  return b.clock > 90 && b.own.TimeoutsByMinute[Clamp(b.clock / 60, 0, 20)] >= 1;
}

}  // namespace

void ComputerSideReview(int side) {
  const Bench b{side};
  b.own.QuickShot = b.own.LastShot = b.own.QuickFoul = b.own.StealFoul = 0;
  b.NoWish();
  SetPace(b);
  SetLastShot(b);
  WishAtTheEnd(b);
  OrderThrees(b);
  WishAgainstRun(b);
  WishAfterSlowStart(b);
  WishForTiredMen(b);
  WishForCrunchMen(b);
  if ((b.own.TimeoutOffense || b.own.TimeoutDefense) && KeepsTimeout(b)) b.NoWish();
  ComputerFoulDecision(side);
}

}  // namespace tipline
