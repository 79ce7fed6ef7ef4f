// What precedes the draw, the draw among foul, turnover and shot, and what follows it at once.
#include <algorithm>

#include "engine/chances.h"
#include "engine/eligible.h"
#include "engine/execution.h"
#include "engine/outcome.h"
#include "engine/resolution.h"
#include "engine/resolution_steps.h"
#include "engine/shot_selection.h"
#include "engine/weights.h"
#include "engine/who.h"

namespace tipline {
namespace {

int RuleTenths() { return league.rules.ShotClockList * 10; }
bool ShotClockRule() { return league.rules.ShotClockList > 0; }

/// He gives the ball up instead of shooting: a drive cut off, or two men on him.
bool GivesUpTheBall() {
  if (game.GameClock <= 50 || (ShotClockRule() && game.ShotClock <= 50)) return false;
  if (game.PlayKind == "DRIVE") return Rnd(10) == 1;
  if (!IsSetShot(game.PlayKind) || !DoubledFor(game.PlayKind, game.BallPlayer)) return false;
  const int passing = BallHandler().RatePassing;
  const int odds = game.PlayKind == "INSIDE" ? 2 : 3;
  if (Rnd(odds) == 1 && passing >= Rnd(10)) return true;
  return Rnd(odds) == 1 && passing >= Rnd(7) + 3;
}

bool RunsOutOfShotClock() {
  const int clock = game.ShotClock;
  if (clock <= 0) return true;
  if (clock < 80) {
    const int first = Rnd(40);
    const int second = Rnd(40);
    if (clock < first + second && Rnd(100) == 1) return true;
  }
  if (game.call.LongPlay && Rnd(100) == 1 && clock < Rnd(50) + 50) return true;
  if (clock < 40 && clock < Rnd(40) && Rnd(10) == 1) return true;
  if (clock < 15 && clock < Rnd(10) + 5 && Rnd(10) < 10) return true;
  if (Offense().LastShot == 1 && game.GameClock < 1200 && Rnd(100) == 1) return true;
  const int position = game.BallSlot > 0 ? game.BallSlot : Rnd(kPositions);
  return Rnd(Offense().Option[position] + 1) == 1 && Rnd(75) == 1;
}

/// The shot clock beats them, sooner for a side that sits on a lead. False when there is no violation.
bool ShotClockViolation() {
  if (!ShotClockRule() || game.GameClock <= RuleTenths() || game.call.SetPlay) return false;
  bool violation = RunsOutOfShotClock();
  if (game.PlayKind == "FASTBREAK" || game.PlayKind == "OFFREB") violation = false;
  if (Rnd(3) == 1 || LastPeriod()) {
    const int lead = Lead(game.OffenseSide);
    if (lead > Rnd(10) + 7) {
      const int first = Rnd(100);
      const int second = Rnd(75);
      if (game.ShotClock < first + second && Rnd(2) == 1) violation = true;
    } else if (lead < -7 - Rnd(10) && violation && Rnd(10) <= 9) {
      violation = false;
    }
  }
  if (!violation) return false;
  game.PlayTime = game.ShotClock;
  game.PlayResult = game.GameClock <= game.ShotClock ? PlayResult("NOSHOT") : PlayResult("SHOTCLOCK");
  return true;
}

/// The horn comes before the shot.
bool NoShotLeft() {
  const int clock = game.GameClock;
  if (clock >= 40) return false;
  const bool breaking = game.PlayKind == "FASTBREAK";
  const bool putback = game.PlayKind == "OFFREB";
  const int lost = Defense().LastPossessionClock;
  bool none = (clock < Rnd(5) + 5 && Rnd(10) == 1) || (clock < Rnd(3) && Rnd(3) == 1);
  none = none || (Rnd(10) <= 9 && clock < Rnd(5) + 3 && !LastPeriod());
  none = none || (breaking && clock < Rnd(10) + 5);
  none = none || (!putback && clock <= 3);
  none = none || clock <= Rnd(2) + 2;
  none = none || (!breaking && !putback && clock < Rnd(10) + 10 && lost < Offense().LastPossessionClock &&
                  lost < Rnd(20) + 10);
  if (none && Offense().LastShot == 1 && clock > Rnd(30) + 10) none = false;
  if (none) game.PlayResult = "NOSHOT";
  return none;
}

bool ForcedTimeout() {
  const Side& offense = Offense();
  const Side& defense = Defense();
  if (Rnd(100) != 1 || game.GameClock <= 300) return false;
  if (!(game.GameClock < league.rules.MinuteList * 450 || game.Period >= 2 || Rnd(10) == 1)) return false;
  if (offense.TimeoutsLeft < 1 || offense.LastShot != 0) return false;
  if (game.PlayKind != "INSIDE" && game.PlayKind != "OUTSIDE" && game.PlayKind != "THREE") return false;
  if (defense.QuickFoul || defense.NoFoul || defense.StealFoul || Margin() > 12) return false;
  return !(LastPeriod() && game.GameClock < 1800 && Margin() > 8);
}

bool HeldBall() {
  if (game.GameClock >= FullPeriod()) return false;
  int odds = 250;
  if (IsCollegeOrInternational(game.team[game.OffenseSide])) Scale(odds, 0.35);
  if (Defense().LineupDefense >= Rnd(10) + 24) Scale(odds, 0.7);
  return Rnd(odds) == 1;
}

/// What stops a play before it comes to anything.
bool Stoppage() {
  if (game.AnalysisMode) return false;
  if (game.GameState == "OFFENSE" && Rnd(50) == 1) {
    game.PlayResult = "OB";
  } else if (ForcedTimeout()) {
    game.PlayResult = "FORCED-TIMEOUT";
  } else if (HeldBall()) {
    game.PlayResult = "JUMPBALL";
  }
  return !game.PlayResult.Empty();
}

template <class Counter>
void CountUp(Counter& counter) {
  if (counter < 32000) ++counter;
}

/// Number of a kind of play in the scouting counters, 0 when it is not scouted.
int ScoutedKind(PlayKind kind) {
  constexpr PlayKind kKinds[] = {"INSIDE", "OUTSIDE", "THREE", "FASTBREAK", "DRIVE", "HOLD BALL"};
  for (int k = 0; k < 6; ++k) {
    if (kKinds[k] == kind) return k + 1;
  }
  return 0;
}

void Scout() {
  const int kind = ScoutedKind(game.PlayKind);
  if (kind == 0) return;
  Side& offense = Offense();
  Side& defense = Defense();
  TeamRecord& attackers = game.team[game.OffenseSide];
  TeamRecord& defenders = game.team[game.DefenseSide];
  CountUp(attackers.ScoutOffense[kind]);
  CountUp(offense.ScoutOffense[kind]);
  CountUp(defenders.ScoutPressure[defense.Pressure]);
  CountUp(defense.ScoutPressure[defense.Pressure]);
  CountUp(defenders.ScoutHelp[defense.DefenseHelp]);
  CountUp(defense.ScoutHelp[defense.DefenseHelp]);
  CountUp(defenders.ScoutDefenseType[defense.DefenseType]);
  CountUp(defense.ScoutDefenseType[defense.DefenseType]);
  if (game.PlayKind == "FASTBREAK") return;
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = offense.Lineup[p];
    if (slot == 0) continue;
    Man& man = ManAt(game.OffenseSide, slot);
    const PlayerRecord& player = PlayerAt(game.OffenseSide, slot);
    const int zone = man.ShotPick == kInside || man.ShotPick == kThree ? man.ShotPick : kOutside;
    int& coverage = CoverageOf(man, zone);
    if (coverage == 0) coverage = 3;
    const int rating = zone == kInside  ? player.RateOffInside
                       : zone == kThree ? player.RateOffThree
                                        : player.RateOffOutside;
    CountUp(defenders.ScoutCoverage[zone][std::min(rating, 10)][coverage]);
    CountUp(defense.ScoutCoverage[zone][std::min(rating, 10)][coverage]);
  }
}

/// Whistles grow rare as a game is decided or its last seconds run.
void QuietWhistle() {
  int& foul = game.play.FoulChance;
  const int clock = game.GameClock;
  const int margin = Margin();
  const bool last = game.Period == league.rules.PeriodList;
  if (clock < 150) Scale(foul, 0.2);
  if (clock < 100) Scale(foul, 0.1);
  if (clock < 50) Scale(foul, 0.1);
  if ((last && clock < 1200 && margin >= Rnd(10) + 10) || margin >= Rnd(10) + 20) Scale(foul, 0.3);
  if ((last && clock < 300 && margin >= Rnd(7) + 8) || margin >= Rnd(10) + 15) Scale(foul, 0.3);
  if (last && clock < 200 && margin >= 15) Scale(foul, 0.01);
  if (last && clock < 100 && margin >= 7) Scale(foul, 0.01);
  Scale(foul, game.FoulTune);
}

bool FoulsNow() {
  const Side& defense = Defense();
  bool now = defense.StealFoul == 1 && Rnd(10) <= 7;
  if (defense.QuickFoul == 1) now = true;
  if (defense.QuickFoul == 2 && Rnd(100) <= 95) now = true;
  if (defense.QuickFoul == 3 && Rnd(100) <= 90) {
    if (!(LastPeriod() && game.GameClock <= 1200)) now = true;
    if (game.WorstFreeThrowShooter > 0 && game.BallPlayer == game.WorstFreeThrowShooter) now = true;
  }
  return now;
}

/// The bounds of the draw: foul first, turnover on top of it, the rest is the shot's.
void SetBounds() {
  Play& play = game.play;
  const Side& defense = Defense();
  if (defense.QuickFoul == 0) QuietWhistle();
  if ((defense.CoachMode == "C" || defense.BothDefenses) && defense.QuickFoul >= 1 &&
      play.FoulChance < 1000) {
    play.FoulChance = LastPeriod() && game.GameClock > Rnd(10) + 5 ? 1000 : 999;
  }
  Scale(play.TurnoverChance, game.TurnoverTune);
  if (game.PlayKind == "BURN") {
    play.ShotChance = 0;
    Scale(play.TurnoverChance, 0.1);
  }
  play.TurnoverBound = play.TurnoverChance + play.FoulChance;
  if (FoulsNow()) {
    play.FoulChance = LastPeriod() && game.GameClock > Rnd(5) + 5 ? 1000 : 999;
    if (Rnd(50) == 1 || (defense.StealFoul && Rnd(25) == 1)) {
      play.FoulChance = 0;
      play.TurnoverBound = 1000;
    }
  }
  if (defense.EligibleCount <= 3) Scale(play.FoulChance, 0.01);
  if (defense.EligibleCount == 1) play.FoulChance = 0;
  if (game.GameClock <= Rnd(3)) play.FoulChance = 0;
  if (game.call.SetPlay) {
    const double safe = BallHandler().RateOffInside >= Rnd(6) + 4 ? 0.5 : 1.0;
    for (int* bound : {&play.FoulChance, &play.TurnoverBound}) {
      Scale(*bound, 0.7);
      Scale(*bound, safe);
    }
  }
  if (game.GameClock < 15) play.FoulChance = 0;
  if (game.call.ForcedFoul) play.FoulChance = 1000;
  const GameState state = game.GameState;
  const bool dead =
      IsFreeThrow(state) || IsDeadBall(state) || IsTimeout(state) || IsQuarter(state) || IsJump(state);
  play.DelayChance =
      !dead || game.GameClock < 300 || game.PlayKind == "FASTBREAK" || game.ShotClock < 200 ? 0 : 2;
  play.DoubleFoulChance = game.GameClock < 300 || defense.QuickFoul != 0 ? 0 : 2;
  if (Margin() >= Rnd(10) + 15) Scale(play.DoubleFoulChance, 0.2);
}

void DrawBranch() {
  const Play& play = game.play;
  const int r = Rnd(1000);
  if (r <= play.DelayChance) {
    game.PlayResult = "DELAY";
  } else if (r <= play.DelayChance + play.DoubleFoulChance) {
    DoubleFoul();
  } else if (r <= play.FoulChance) {
    FoulBranch();
  } else if (r <= play.TurnoverBound) {
    TurnoverBranch();
  } else {
    ShotBranch();
  }
}

/// The result is another one now: no foul was called on the way.
void Replace(PlayResult result) {
  game.PlayResult = result;
  game.play.Fouler = game.play.FoulerSlot = game.play.FoulingSide = 0;
}

/// A side that holds the ball to the horn takes no shot.
void KeepHolding() {
  if (game.PlayKind != "HOLD BALL" || !(Defense().QuickFoul == 0 || Rnd(100) <= 99)) return;
  if (IsShot(game.PlayResult)) {
    Replace("HOLD BALL");
  } else if ((game.PlayResult == "TO" || game.PlayResult == "ST") && Rnd(20) < 20) {
    Replace("HOLD BALL");
  }
}

bool PressureOn() { return Defense().Pressure == 2 || Defense().Pressure == 4; }

/// The pass that brings the ball in, before anything else can happen.
void Inbound() {
  game.play.OffBallFoul = 0;
  Replace("IN-EZ");
  if (game.DeadBallKind > 2 && !PressureOn()) return;
  const bool poorPass = OnFloor(game.OffenseSide, game.InboundSlot).RatePassing < Rnd(10);
  const int defender = DrawPosition(game.DefenseSide);
  const bool pest = defender > 0 && OnFloor(game.DefenseSide, defender).RateDefForce >= Rnd(10);
  if (Rnd(10) != 1 || !(Rnd(10) == 1 || poorPass || pest)) return;
  game.PlayResult = "IN-OB";
  if (Rnd(5) == 1) game.PlayResult = "IN-5";
  if (pest && Rnd(5) == 1) game.PlayResult = "IN-ST";
}

/// Bringing the ball up the floor.
void MoveUp() {
  game.play.OffBallFoul = 0;
  Replace("MOVE-UP");
  bool broken = false;
  if (PressureOn()) {
    broken = Rnd(100) == 1;
    int position = Rnd(2);
    if (Rnd(10) == 1) position = Rnd(kPositions);
    if (Rnd(50) == 1 && OnFloor(game.DefenseSide, position).RateDefForce > Rnd(10)) broken = true;
    if (Rnd(50) == 1 && OnFloor(game.OffenseSide, 1).RatePassing < Rnd(10)) broken = true;
  }
  if (Rnd(300) == 1) broken = true;
  if (!broken) return;
  game.PlayResult = "MOVE-UP-OB";
  if (Rnd(3) == 1) game.PlayResult = "MOVE-UP-ST";
}

void AfterTheDraw() {
  KeepHolding();
  if (game.DeadBallKind == 0) game.NeedsInbound = 0;
  if (game.NeedsInbound) Inbound();
  if (game.NeedsMoveUp) MoveUp();
  if (game.PlayResult == "M" || game.PlayResult == "M3") {
    BlockTest();
  } else {
    game.play.Blocked = false;
    game.play.Blocker = 0;
  }
}

/// A clock that is being burned takes shots and turnovers away.
void BurnClock() {
  if (game.PlayKind != "BURN" || !(Defense().QuickFoul == 0 || Rnd(100) <= 9)) return;
  game.play.Blocked = false;
  game.play.Blocker = game.play.BlockerSlot = 0;
  const PlayResult result = game.PlayResult;
  if (IsShot(result)) {
    Replace("BURN");
  } else if (result != "F0" && result != "F1" && result != "F2" && Rnd(10) <= 9) {
    Replace("BURN");
  }
  if (game.PlayResult != "BURN") return;
  if (ShotClockRule() && game.ShotClock < Rnd(15) + 5) game.PlayResult = "SHOTCLOCK";
  if (game.GameClock < Rnd(10) + 10) game.PlayResult = "NOSHOT";
}

}  // namespace

void Resolve() {
  if (game.call.ForcedTurnover) {
    game.PlayResult = "TO";
    return;
  }
  if (GivesUpTheBall()) {
    game.PlayResult = "PASS";
    return;
  }
  if (ShotClockViolation() || NoShotLeft() || Stoppage()) return;
  Scout();
  SetBounds();
  DrawBranch();
  if (game.PlayResult == "DELAY") return;  // the ball is not put in play yet
  AfterTheDraw();
  BurnClock();
}

}  // namespace tipline
