// Passes, quick passes, the play grid, and the defense's answer to a call.
#include <algorithm>
#include <array>

#include "coach/computer_coach.h"
#include "engine/clock.h"
#include "engine/commands.h"
#include "engine/eligible.h"
#include "engine/engine.h"
#include "engine/play_watch.h"
#include "engine/resolution.h"
#include "engine/shot_selection.h"
#include "league/program.h"
#include "narration/narrator.h"

namespace tipline {
namespace {

constexpr int kMostTries = 1000;  // of a search that tells no other end

/// A defense that the computer calls may answer a pass with a foul.
void DefenseReacts() {
  if (Defense().CoachMode == "C" || Defense().BothDefenses) ComputerFoulDecision(game.DefenseSide);
}

/// The pass stands: it takes its time, and the clock may run out on it.
void ChargePass(bool ballStays) {
  game.call.ShotConfirmed = 1;
  game.PlayResult = "";
  ChargeTime();
  game.possession.PassedThisPossession = 1;
  if (game.GameClock - game.PlayTime <= 1) {
    game.PlayTime = game.GameClock;
    const int period = game.Period;
    EndPeriodNotice();
    EndPlay();
    if (game.Watcher) ShowToWatcher(game.OffenseSide, period, false);
    return;
  }
  EndPlay();
  game.GameState = "OFFENSE";
  game.PlayKind = "";
  if (!ballStays) game.BallPlayer = game.BallSlot = 0;
}

/// After so many passes somebody has to shoot: he does it himself.
bool KeepsTheBall(int passes) {
  const int rule = league.rules.ShotClockList;
  bool keeps = false;
  if (rule == 0) {
    keeps = Rnd(10) <= (passes <= 5 ? passes : 9);
  } else {
    keeps = Rnd(10) <= (passes == 1 ? 1 : passes == 2 ? 5 : 9);
    if (rule >= 25 + Rnd(10) && Rnd(3) <= passes && Rnd(2) == 1) keeps = false;
  }
  const int clock = game.GameClock;
  if (game.GameState == "FASTBREAK" || clock <= rule * 10 || clock <= kMinute || clock < 150 + Rnd(120))
    return false;
  return keeps && !(LastPeriod() && clock < 1200 && Lead(game.OffenseSide) >= 0);
}

/// A defense that wants to foul does not let the pass go.
bool FouledBeforeThePass(int passes) {
  if (Defense().QuickFoul < 1) return false;
  bool stopped = false;
  if (Rnd(1000) <= 999) {
    stopped = true;
    game.call.ForcedFoul = 1;
  }
  return stopped || (passes >= Rnd(2) && Rnd(10) <= 9) || (passes >= 1 + Rnd(2) && Rnd(10) <= 9);
}

// A quick pass.

enum class QuickPass { kPass, kNoPass, kShoot, kFoul, kTurnover };

struct Target {
  int position;
  int option = Offense().Option[position];
  int slot = Offense().Lineup[position];
};

/// He has shot more in this game than he does in real life: it is known that he will.
void Overused(const Target& target, int& chance) {
  const PlayerRecord& p = PlayerAt(game.OffenseSide, target.slot);
  const int time = ManAt(game.OffenseSide, target.slot).PlayerGameTime;
  if (time <= 1800 || p.Stats[3].FGA < 3) return;
  const double real = p.Stats[1].FGA / (p.Stats[1].Min + 1.0);
  const double now = p.Stats[3].FGA / (time / 600.0);
  for (const double times : {1.05, 1.1, 1.2, 1.4, 1.6}) {
    if (now > real * times) Scale(chance, 0.9);
  }
}

int QuickPassChance(const Target& target) {
  int chance = target.option == 0 ? 20 : Round((100 + 2.5 * target.option) / 3.5);
  if (Rnd(3) == 1 && target.option >= Rnd(4) - 1) Scale(chance, 1.3);
  Overused(target, chance);
  return chance;
}

/// Quick passes for each play of the side so far.
double QuickPassShare() {
  const Side& offense = Offense();
  return offense.QuickPassesGame / (offense.GameFGA + offense.GameTo + 1.0);
}

/// A refused pass that is thrown all the same; a coach who passes quickly all the time is found out.
int TurnoverChance(const Target& target) {
  int chance = (4 - target.option) * 5;
  if (Offense().CoachMode != "H" || Offense().QuickPassesGame < 5) return chance;
  const double share = QuickPassShare();
  if (share >= 0.5) return Round(chance * 1.5) + 9;
  if (share >= 0.35) return Round(chance * 1.3) + 6;
  if (share >= 0.2) return Round(chance * 1.1) + 3;
  return chance;
}

QuickPass DrawQuickPass(const Target& target) {
  QuickPass outcome;
  const int chance = QuickPassChance(target);
  if (Rnd(100) <= chance) {
    outcome = Rnd(50) == 1 ? QuickPass::kShoot : QuickPass::kPass;
  } else {
    outcome = Rnd(20) == 1 ? QuickPass::kShoot : QuickPass::kNoPass;
    if (Rnd(100) <= TurnoverChance(target)) outcome = QuickPass::kTurnover;
  }
  DefenseReacts();
  if (Defense().QuickFoul >= 1 && Rnd(1000) <= 999) outcome = QuickPass::kFoul;
  return outcome;
}

/// The pass was not there, and in looking for it the ball went to another man.
void MoveBallOn() {
  for (;;) {
    const int position = Rnd(kPositions);
    const int option = Offense().Option[position];
    if (option >= Rnd(3) || (option >= Rnd(2) && Rnd(10) == 1) || Rnd(100) == 1) return GiveBall(position);
  }
}

void TryQuickPass() {
  Possession& possession = game.possession;
  int position = possession.QuickPassTarget;
  if (position < 1 || position > kPositions) position = Rnd(kPositions);
  if (Offense().Lineup[position] == 0) position = std::max(1, DrawPosition(game.OffenseSide));
  ++possession.QuickPassCount;
  ++Offense().QuickPassesGame;
  game.AfterPassNoLook = 0;
  possession.JustQuickPassed = 0;
  const QuickPass outcome = DrawQuickPass(Target{position});
  if (outcome == QuickPass::kTurnover || outcome == QuickPass::kNoPass || outcome == QuickPass::kShoot)
    MoveBallOn();
  if (outcome == QuickPass::kFoul) game.call.ForcedFoul = 1;
  if (outcome == QuickPass::kTurnover) game.call.ForcedTurnover = 1;
  if (outcome != QuickPass::kPass && outcome != QuickPass::kNoPass) return Shoot();
  possession.PreviousSlot = game.BallSlot;
  if (outcome == QuickPass::kPass) {
    possession.LastPasserSlot = game.BallSlot;
    game.play.Assister = game.BallPlayer;
    GiveBall(position);
    possession.QuickPassReceiver = game.BallPlayer;
  }
  possession.JustQuickPassed = 1;
  if (outcome == QuickPass::kPass) NarrateQuickPass();
  ChargePass(true);
}

// The play grid.

/// The coach's man gets the ball when he is open enough, else whoever is found.
void PlayFor(int position) {
  constexpr std::array<int, 4> kOdds{10, 30, 60, 90};  // in hundredths, by his option
  const int option = Clamp(Offense().Option[position], 0, 3);
  if (Rnd(100) <= kOdds[static_cast<std::size_t>(option)]) {
    game.call.PlayGridShot = 1;
    GiveBall(position);
  } else {
    game.call.PlayGridShot = 0;
    FindShooter();
  }
  game.PlayKind = KindOfPick(ManAt(game.OffenseSide, game.BallPlayer).ShotPick);
  ComputerDriveDecision();
}

// The defense's answer to a call.

enum DefenseCalls : int { kOffCall = 1, kLooseCall, kNormalCall, kTightCall, kFoulCall, kDoubleTeamCall };

/// How the ball handler is covered in this play.
struct Guard {
  int coverage = 3;
  bool doubled = false;
};

Guard CoverBall(int call) {
  constexpr int kCoverage[7] = {3, 1, 2, 3, 4, 6, 3};  // by call
  const Guard guard{kCoverage[call], call == kDoubleTeamCall};
  if (game.BallPlayer == 0) return guard;
  Man& man = ManAt(game.OffenseSide, game.BallPlayer);
  CoverageOf(man, man.ShotPick) = guard.coverage;
  DoubleOf(man, man.ShotPick) = guard.doubled ? 1 : 0;
  return guard;
}

bool PickIsOn() { return game.call.PickBall > 0 && game.call.PickScreener > 0; }

/// A man who is covered closely passes before the play begins.
bool PassesFirst(const Guard& guard, int call) {
  const int passing = BallHandler().RatePassing;
  bool passes = guard.coverage == 4 && Rnd(2) == 1 && passing > Rnd(9);
  if (guard.doubled && Rnd(10) < 10 && (passing >= Rnd(10) || Rnd(3) == 1)) passes = true;
  if (game.BallPlayer > 0 && guard.coverage > Rnd(2) && (Rnd(20) == 1 || (passing > Rnd(9) && Rnd(5) == 1)))
    passes = true;
  if (call == kLooseCall && Rnd(10) < 10) {
    passes = false;
    game.call.ExtraPassCall = 0;
  }
  return passes && !PickIsOn() && !game.call.SetPlay && !game.call.ExtraPassCall;
}

/// Somebody else takes over the play. False, with the ball where it was, when nobody is found.
bool PassToAnother() {
  const int passer = game.BallPlayer;
  const int position = PositionOf(game.OffenseSide, passer);
  for (int tries = 0; tries < kMostTries; ++tries) {
    FindShooter();
    if (game.BallPlayer != passer && game.BallPlayer > 0) {
      game.possession.PassFirst = 1;
      game.possession.PassFirstFrom = passer;
      game.call.ShotConfirmed = 0;
      return true;
    }
  }
  GiveBall(position);
  return false;
}

void MaybeDrives(int call) {
  if (game.PlayKind != "OUTSIDE") return;
  const bool always = call == kNormalCall;
  const bool seldom = call == kOffCall || call == kLooseCall;
  if (always || (seldom && Rnd(10) == 1)) ComputerDriveDecision();
}

}  // namespace

std::string QuickPassLabel() {
  std::string label = "Q-Pass";
  if (Offense().QuickPassesGame < 5) return label;
  for (const double step : {0.2, 0.35, 0.5}) {
    if (QuickPassShare() >= step) label += '!';
  }
  return label;
}

void GiveBall(int position) {
  if (position < 1 || Offense().Lineup[position] == 0) position = DrawPosition(game.OffenseSide);
  game.BallSlot = position;
  game.BallPlayer = position > 0 ? Offense().Lineup[position] : 0;
  game.BallDefender = GuardOf(position);
}

void Pass() {
  Possession& possession = game.possession;
  const int passes = ++possession.PassCount;
  game.AfterPassNoLook = 0;
  game.call.PassMade = 1;
  possession.JustQuickPassed = 0;
  bool keeps = KeepsTheBall(passes);
  DefenseReacts();
  if (FouledBeforeThePass(passes)) keeps = true;
  if (!keeps) {
    possession.PreviousSlot = game.BallSlot;
    return ChargePass(false);
  }
  const bool time = game.GameClock > 200 + Rnd(200) || Rnd(100) <= 95;
  if (time && Rnd(100) <= std::min(5 * passes, 30)) {
    game.call.ForcedFoul = 0;
    game.call.ForcedTurnover = 1;
  }
  Shoot();
}

void PassChosen() {
  if (!AttackIsAsked()) return;
  Pass();
  SetPlayBox();
}

void QuickPassChosen() {
  if (!AttackIsAsked()) return;
  TryQuickPass();
  SetPlayBox();
}

bool ComputerQuickPass() {
  const Side& offense = Offense();
  Possession& possession = game.possession;
  if (Rnd(5) != 1 || possession.QuickPassCount > 0 || QuickPassShare() > 0.2) return false;
  const bool fresh =
      league.rules.ShotClockList > 0 ? game.ShotClock == FullShotClock() : game.ShotClock >= 100 + Rnd(100);
  if (!fresh) return false;
  for (int tries = 0; tries < kMostTries; ++tries) {
    const int position = Rnd(kPositions);
    if (offense.Option[position] < Rnd(3) || offense.Lineup[position] == 0) continue;
    possession.QuickPassTarget = position;
    TryQuickPass();
    return true;
  }
  return false;
}

void PlayGridChosen(int position) {
  if (!AttackIsAsked() || position < 1 || position > kPositions || Offense().Lineup[position] == 0) return;
  ForgetCall();
  if (Offense().QuickShot == 1 && game.GameClock < 100 + Rnd(600)) {
    FindShooter();
    return SetPlayBox();
  }
  if (Offense().Lineup[position] == game.BallPlayer) {
    game.PlayKind = KindOfPick(ManAt(game.OffenseSide, game.BallPlayer).ShotPick);
    game.call.ShotConfirmed = 1;
  } else {
    PlayFor(position);
  }
  if (LastPeriod() && game.GameClock <= 1200) {
    game.GameState = "DEFENSE-CALL";
  } else {
    FindResult();
  }
  SetPlayBox();
}

void DefensePlayCallChosen() {
  if (game.GameOver || game.GameState != "DEFENSE-CALL") return;
  const int asked = game.call.DefenseCall;
  const bool answered = asked >= kOffCall && asked <= kDoubleTeamCall;
  const int call = answered ? asked : kNormalCall;
  if (answered) Defense().DefenseList = call;
  game.possession.PassFirst = 0;
  game.call.ShotConfirmed = 1;
  if (!program.Autoplaying) KeepCoverage();
  const PlayKind ordered = game.PlayKind;
  const Guard guard = CoverBall(call);
  const bool passes = PassesFirst(guard, call) && PassToAnother();
  // A putback that is passed out of the crowd is a putback no more.
  const bool keepsKind = ordered == "HOLD BALL" || ordered == "BURN" || (ordered == "OFFREB" && !passes);
  game.PlayKind = keepsKind ? ordered : KindOfPick(ManAt(game.OffenseSide, game.BallPlayer).ShotPick);
  if (!guard.doubled && !passes && !PickIsOn()) MaybeDrives(call);
  if (game.call.PickBall > 0) {
    GiveBall(game.call.PickBall);
    game.PlayKind = "DRIVE";
  }
  FindResult();
  SetPlayBox();
}

void ComputerDefenseChosen() {
  if (game.GameOver || game.GameState != "DEFENSE-CALL") return;
  ComputerDefenseCall(game.DefenseSide);
  FindResult();
  SetPlayBox();
}

void ComputerChosen() {
  if (!AttackIsAsked()) return;
  ComputerPlayCall();
  SetPlayBox();
}

void KeepCoverage() {
  CoverageCopy& copy = game.coverageCopy;
  copy.Taken = true;
  for (int s = 1; s <= 2; ++s) {
    copy.DefenseHelp[s] = game.side[s].DefenseHelp;
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      const Man& man = ManAt(s, slot);
      copy.man[s][slot] = {man.CoverageInside,   man.CoverageOutside,   man.CoverageThree,
                           man.DoubleTeamInside, man.DoubleTeamOutside, man.DoubleTeamThree};
    }
  }
}

void RestoreCoverage() {
  CoverageCopy& copy = game.coverageCopy;
  if (!copy.Taken) return;
  copy.Taken = false;
  for (int s = 1; s <= 2; ++s) {
    game.side[s].DefenseHelp = copy.DefenseHelp[s];
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      Man& man = ManAt(s, slot);
      const auto& kept = copy.man[s][slot];
      man.CoverageInside = kept.Inside;
      man.CoverageOutside = kept.Outside;
      man.CoverageThree = kept.Three;
      man.DoubleTeamInside = kept.DoubleInside;
      man.DoubleTeamOutside = kept.DoubleOutside;
      man.DoubleTeamThree = kept.DoubleThree;
    }
  }
}

}  // namespace tipline
