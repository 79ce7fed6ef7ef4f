// Whether a side that trails at the end stops the clock with fouls.
#include "coach/computer_coach.h"
#include "engine/game_state.h"

namespace tipline {
namespace {

enum QuickFouls : int { kNoFouls, kAnyShooter, kPoorShooter, kWorstShooter };

/// The rest of a game, as the side behind sees it.
struct LateGame {
  int lead = 0;        // own score less the other's: below 0
  int clock = 0;       // tenths
  double seconds = 0;  // the clock as the bench reads it, up to ten seconds too much
  int rule = 0;        // shot clock, seconds; 0 without the rule
};

/// Sends a man who shoots free throws badly to the line, with a minute or less to play.
bool HacksPoorShooter(const LateGame& g) {
  if (game.WorstFreeThrowShooter == 0) return false;
  const StatLine& real = PlayerAt(game.OffenseSide, game.WorstFreeThrowShooter).Stats[1];
  return real.FTA > 0 && real.FTA >= 5 + Rnd(100) && -g.lead < 9 + Rnd(5) &&
         static_cast<double>(real.FTM) / real.FTA < 0.551 + 0.101 * Rnd() && g.clock > 100 + Rnd(100) &&
         g.clock < 300 + Rnd(180);
}

/// Fouls once the possessions needed no longer fit into the time left.
void WhenTrailing(const LateGame& g, int& foul) {
  constexpr int kSeconds[6] = {30, 30, 50, 70, 90, 110};  // by possessions needed
  if (g.lead < -12 || g.clock > 1800) return;
  const int possessions = Int(-g.lead / (league.rules.ThreePointCheck ? 3.0 : 2.0) + 0.5);
  int extra = 0;
  if (foul == kNoFouls) {
    if (g.rule == 0) extra = 30 + -g.lead * 5;
    if (possessions <= 5 && g.seconds < kSeconds[possessions] + Rnd(20) + extra) foul = kAnyShooter;
    if (possessions >= 2 && possessions <= 3 && g.seconds <= g.rule * 1.5 + extra * 1.5) foul = kAnyShooter;
  }
  if (foul != kAnyShooter && g.rule > 0 && g.seconds <= g.rule) foul = kAnyShooter;
  if (foul != kAnyShooter && g.rule == 0 && g.seconds <= extra + 19.2) foul = kAnyShooter;
}

/// Too far behind for the time left.
bool GivesUp(const LateGame& g) {
  return (g.seconds < 60 && g.lead <= -10) || (g.seconds < 40 && g.lead <= -9) ||
         (g.seconds < 20 && g.lead <= -7) || (g.seconds < 5 && g.lead <= -6);
}

bool LostCause(const LateGame& g) {
  const int behind = -g.lead;
  return behind >= 12 || (behind >= 10 && g.clock < 200) || (behind >= 8 && g.clock < 100) ||
         (behind >= 7 && g.clock < 35) || (behind >= 4 && g.clock < 15);
}

}  // namespace

void ComputerFoulDecision(int side) {
  int& foul = game.side[side].QuickFoul;
  foul = kNoFouls;
  LateGame g;
  g.lead = Lead(side);
  if (!LastPeriod() || g.lead > -1) return;
  g.clock = game.GameClock;
  g.rule = league.rules.ShotClockList;
  if (HacksPoorShooter(g)) foul = kWorstShooter;
  g.seconds = g.clock / 10.0 + Rnd(10);
  WhenTrailing(g, foul);
  if (GivesUp(g)) foul = kNoFouls;
  if (foul == kAnyShooter && (Rnd(2) == 1 || g.lead < -Rnd(7) || g.clock < 100 + Rnd(100)))
    foul = kPoorShooter;
  if (LostCause(g)) foul = kNoFouls;
}

}  // namespace tipline
