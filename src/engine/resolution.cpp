// What a play comes to: the weights of shot, turnover and foul, the draw among them, and the results that
// precede it.
#include "engine/resolution.h"

#include <algorithm>

#include "aftermath/ticker.h"
#include "engine/chances.h"
#include "engine/clock.h"
#include "engine/eligible.h"
#include "engine/execution.h"
#include "engine/fatigue.h"
#include "engine/incidents.h"
#include "engine/outcome.h"
#include "engine/play_watch.h"
#include "engine/resolution_steps.h"
#include "engine/shot_selection.h"
#include "engine/weights.h"
#include "narration/narrator.h"

namespace tipline {
namespace {

bool ShotClockRule() { return league.rules.ShotClockList > 0; }

void ClearPlay() {
  game.play = {};
  if (!game.AnalysisMode) game.incident = {};
  game.TimeoutTaken = 0;
  game.MomentumMark = 0;
  game.possession.JustQuickPassed = 0;  // the play that follows a quick pass takes its own time
  // Late in a period the defense is asked first: the shot at the offensive board stays what it is.
  if (game.GameState != "OFFREB" && game.PlayKind != "OFFREB") game.PutbackClass = 0;
  const int passer = game.possession.LastPasserSlot;
  if (passer > 0) game.play.Assister = Offense().Lineup[passer];
}

/// A lob or a pick may be on; a pick that was called before is run now.
void SetPlays() {
  bool pickMade = false;
  const int clock = game.ShotClock;
  if (game.GameState == "OFFENSE" && game.GameClock > 100 && clock > Rnd(30) + 30) {
    const bool room = ShotClockRule() ? clock < FullShotClock() || Rnd(2) == 1 : clock > 100;
    if (room && (Offense().CoachMode == "C" || Rnd(4) == 1)) {
      FindLob();
      if (!game.call.SetPlay) {
        const bool before = game.call.PickBall > 0 && game.call.PickScreener > 0;
        FindPick();
        pickMade = !before && game.call.PickBall > 0;
      }
    }
  }
  if (game.call.PickBall > 0 && game.call.PickScreener > 0 && !pickMade) {
    ResolvePick();
    if (game.BallSlot == game.call.PickBall) game.PlayKind = "DRIVE";
  }
}

void SeasonForm() {
  for (int s = 1; s <= 2; ++s) {
    if (game.GameClock > kMinute) game.side[s].LastPossessionClock = 999;
    const TeamRecord& team = game.team[s];
    const int games = team.Wins + team.Losses;
    const int margin = PointsOf(team.TeamStats[1]) - PointsOf(team.TeamStats[2]);
    game.side[s].TeamPointDiff = games > 0 ? static_cast<double>(margin) / games : 0;
  }
}

/// How many points the attempt is worth. A break can end in a three by a man who takes them.
void ValueOfShot() {
  game.play.ShotValue = "TWO";
  const bool arc = league.rules.ThreePointCheck;
  if (game.PlayKind == "THREE" || (game.PlayKind == "OFFREB" && game.PutbackClass == 3 && arc)) {
    game.play.ShotValue = "THREE";
  }
  game.fastBreak.BreakThree = 0;
  if (game.PlayKind != "FASTBREAK" || !arc || game.AnalysisMode) return;
  if (ManAt(game.OffenseSide, game.BallPlayer).BreakSpot < 300) return;
  const StatLine& real = BallHandler().Stats[1];
  int share = Round(1000.0 * real.F3A / (real.FGA + 1));
  const FastBreak& run = game.fastBreak;
  if (run.BreakAttackers >= run.BreakDefenders + 2) Scale(share, 0.3);
  if (run.BreakAttackers <= run.BreakDefenders) Scale(share, 1.2);
  if (Rnd(1000) <= share) {
    game.play.ShotValue = "THREE";
    game.fastBreak.BreakThree = 1;
  }
}

/// College and international teams carry the strength of their schedules into the game.
int StrengthOf(PlayerRecord& player, const TeamRecord& team) {
  if (player.ScheduleStrength == 0) player.ScheduleStrength = team.ScheduleStrength;
  return Round((player.ScheduleStrength * 1.5 + 7) / 3);
}

void ChooseInbounder() {
  if (game.DeadBallKind == 0) return;
  if (game.DeadBallKind > 2) {
    game.InboundSlot = 2;
  } else {
    const int o = game.OffenseSide;
    game.InboundSlot = OnFloor(o, 3).RateOffense > OnFloor(o, 4).RateOffense ? 4 : 3;
  }
}

/// Men left to both sides. A defense that is down to three, or a computer's that is too far behind, stops
/// fouling.
void CountTheEligible() {
  for (int s = 1; s <= 2; ++s) game.side[s].EligibleCount = CountEligible(s);
  Side& defense = Defense();
  if (defense.EligibleCount <= 3) defense.QuickFoul = defense.StealFoul = 0;
  if (defense.CoachMode == "C" && LastPeriod()) {
    const int margin = Margin();
    const int clock = game.GameClock;
    if ((margin > 9 && clock < 600) || (margin > 8 && clock < 450) || (margin > 7 && clock < 350) ||
        (margin > 6 && clock < 200)) {
      defense.QuickFoul = defense.StealFoul = 0;
    }
  }
}

/// Kinds of play that this moment or the rules do not allow become an outside shot.
void FitKind() {
  if (game.PlayKind == "FASTBREAK" && Offense().EligibleCount <= 3) game.PlayKind = "OUTSIDE";
  if (game.PlayKind == "DRIVE" && game.GameClock < 20 && !game.AnalysisMode) game.PlayKind = "OUTSIDE";
  if (game.PlayKind == "THREE" && !league.rules.ThreePointCheck) {
    game.PlayKind = "OUTSIDE";
    game.play.ShotValue = "TWO";
    ManAt(game.OffenseSide, game.BallPlayer).ShotPick = kOutside;
  }
}

/// Doubled men on the floor, each on the shot he has now.
void CountDoubleTeams() {
  game.DoubleTeamCount = 0;
  for (int p = 1; p <= kPositions; ++p) {
    const Man& man = ManAt(game.OffenseSide, Offense().Lineup[p]);
    game.DoubleTeamCount += DoubleOf(man, man.ShotPick);
  }
}

void PrepareWeights() {
  CountTheEligible();
  EraMeans();
  game.GameStarted = true;
  FitKind();
  LineupValues();
  CountDoubleTeams();
  game.PlayTime = 0;
  game.PreviousResult = game.PlayResult;
  game.PlayResult = "";
}

/// What the play's orders leave behind: nothing. They were for this play alone.
void ClearOrders() {
  game.call = {};
  game.possession.LastPasserSlot = 0;
  game.possession.PassFirst = 0;
  game.possession.PassFirstFrom = 0;
  game.AfterTimeout = 0;
}

}  // namespace

void HoldBall() {
  if (game.BallPlayer > 0 && PositionOf(game.OffenseSide, game.BallPlayer) == 0) game.BallPlayer = 0;
  if (game.BallPlayer == 0) {
    const int position = DrawPosition(game.OffenseSide);
    if (position > 0) game.BallPlayer = Offense().Lineup[position];
  }
  game.BallSlot = PositionOf(game.OffenseSide, game.BallPlayer);
}

void FaceDefender() {
  game.BallDefender = GuardOf(game.BallSlot);
  if (IsCollegeOrInternational(game.team[1]) && IsCollegeOrInternational(game.team[2]) &&
      game.BallDefender > 0 && game.BallPlayer > 0) {
    Offense().CollegeStrength = StrengthOf(BallHandler(), game.team[game.OffenseSide]);
    Defense().CollegeStrength =
        StrengthOf(PlayerAt(game.DefenseSide, game.BallDefender), game.team[game.DefenseSide]);
  }
}

void FindResult() {
  ClearPlay();
  HoldBall();
  SetPlays();
  TickNowAndThen();
  SeasonForm();
  ValueOfShot();
  FaceDefender();
  ChooseInbounder();
  game.PeriodStart = game.GameClock == FullPeriod() ? 1 : 0;
  PrepareWeights();
  if (game.GameOver) return;
  if (PlayIsInterrupted()) {
    NarrateIncident();
    if (game.Watcher) ShowToWatcher(game.OffenseSide, game.Period);
    RestoreCoverage();
    ClearOrders();
    game.AfterTimeout = IsTimeout(game.GameState) ? 1 : 0;
    return;
  }
  ExtraPass();
  const int hadBall = game.OffenseSide;
  const bool technical = IsFreeThrow(game.PlayKind) && game.TechnicalFreeThrow;
  if (IsFreeThrow(game.PlayKind)) {
    ShootFreeThrow();
  } else {
    Weigh();
    if (game.AnalysisMode) return;
    Resolve();
    game.TechnicalFreeThrow = 0;
    game.PlayTime = 0;
    if (game.PlayResult != "DELAY") ChargeTime();
  }
  PostPlay();
  const bool lost = hadBall != game.OffenseSide && !technical;
  if (!game.GameOver && lost) game.side[hadBall].LastPossessionClock = game.GameClock;
  RestoreCoverage();
  ClearOrders();
}

}  // namespace tipline
