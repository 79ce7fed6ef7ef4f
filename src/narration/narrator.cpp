// Which routines tell a play, and in which order.
#include "narration/narrator.h"

#include "narration/describe.h"
#include "narration/film.h"
#include "narration/incident_lines.h"
#include "narration/lines.h"
#include "narration/show.h"
#include "narration/speech.h"
#include "narration/whistle_moments.h"

namespace tipline {
namespace {

/// A shot was let go, or its taker was fouled in the act.
bool ShotWasTaken() { return IsShot(game.play.Posted); }

bool NeverCameToAShot() {
  const PlayResult r = game.play.Posted;
  return r == "NOSHOT" || r == "HOLD BALL" || r == "BURN";
}

void TellEnd() { game.play.Posted == "NOSHOT" ? DescribeNoShot() : DescribeHoldBall(); }

bool IsInbound(PlayResult r) {
  return r.Index() >= PlayResult("IN-EZ").Index() && r.Index() <= PlayResult("IN-ST").Index();
}
bool IsMoveUp(PlayResult r) {
  return r.Index() >= PlayResult("MOVE-UP").Index() && r.Index() <= PlayResult("MOVE-UP-ST").Index();
}

/// The board, a tip, and who fouled under it.
void TellWhatFollowsAMiss() {
  if (game.play.TipIn) DescribeTip();
  if (game.PlayResult == "LOOSE-OFF" || game.PlayResult == "LOOSE-DEF") return DescribeLooseBallFoul();
  if (game.play.TipIn != 2) DescribeRebound();
}

void TellShot() {
  DescribeMovement();
  DescribeShot();
  const PlayResult r = game.play.Posted;
  if (r == "M" || r == "M3") {
    DescribeBegForCall();
    TellWhatFollowsAMiss();
  }
}

void TellFreeThrow() {
  DescribeFreeThrow();
  const bool last = scene().PlayKind == "SHOOT1" || scene().PlayKind == "SHOOT1-1";
  if (game.play.Posted == "FTM" && last && game.play.ReboundSide > 0) DescribeRebound();
}

/// What is said from here on tells the result of the play; the score is told only behind a short one.
void ResultBegins() { game.commentary.ResultLine = game.commentary.PbpLineCount + 1; }

void TellLoss() {
  DescribeMovement();
  const PlayResult r = game.play.Posted;
  DescribeSpin();
  ResultBegins();
  if (r == "ST") {
    DescribeSteal();
  } else if (r == "SHOTCLOCK") {
    DescribeShotClockViolation();
  } else if (r == "OB") {
    DescribeOutOfBounds();
  } else {
    DescribeTurnover();
  }
  if (r == "ST" || r == "TO") DescribePressTrouble();
}

/// The whistle came before the ball got to him: as it was brought up, or on a screen of his.
bool CaughtWithoutBall() {
  if (game.play.Posted == "OF") return game.play.OffBallFoul;
  return IsFloorFoul(game.play.Posted) && whistles::InBackcourt();
}

void TellWhistle() {
  const PlayResult r = game.play.Posted;
  if (r == "2XPF") return DescribeDoubleFoul();
  if (r == "DELAY") return DescribeDelay();
  if (!CaughtWithoutBall()) DescribeMovement();
  ResultBegins();
  if (r == "OF") return DescribeOffensiveFoul();
  if (r == "JUMPBALL") return DescribeTieUp();
  DescribeFoul();
}

void TellPlay() {
  const PlayResult posted = game.play.Posted, decided = scene().PlayResult;
  if (IsFreeThrow(scene().PlayKind)) {
    TellFreeThrow();
  } else if (IsInbound(decided) || IsMoveUp(decided)) {
    IsInbound(decided) ? DescribeInbound() : DescribeMoveUp();
    if (game.OffenseSide != scene().OffenseSide) DescribePressTrouble();
  } else if (NeverCameToAShot()) {
    TellEnd();
  } else if (ShotWasTaken()) {
    TellShot();
  } else if (posted == "TO" || posted == "ST" || posted == "OB" || posted == "SHOTCLOCK") {
    TellLoss();
  } else if (posted == "FORCED-TIMEOUT") {
    DescribeTimeout(scene().OffenseSide, false);
  } else {
    TellWhistle();
  }
  if (game.play.FlagrantLevel > 0 || game.incident.Reviewed) DescribeFlagrant();
}

void TellIncident() {
  for (std::string& line : IncidentLines()) NewLine(std::move(line), kSituationRemark);
}

}  // namespace

void BeginFilm() { game.FilmOn = FilmIsKept(); }

void NoteScene() {
  if (!Listening()) return;
  Scene& s = game.scene;
  s.OffenseSide = game.OffenseSide;
  s.DefenseSide = game.DefenseSide;
  s.BallPlayer = game.BallPlayer;
  s.BallSlot = game.BallSlot;
  s.BallDefender = game.BallDefender;
  s.PlayKind = game.PlayKind;
  s.PlayResult = game.PlayResult;
  s.GameState = game.GameState;
  s.GameClock = game.GameClock;
  s.ShotClock = game.ShotClock;
  s.PlayTime = game.PlayTime;
  s.DeadBallKind = game.DeadBallKind;
  s.InboundSlot = game.InboundSlot;
  s.NeedsBringUp = game.NeedsBringUp;
  s.PutbackClass = game.PutbackClass;
  s.Tension = game.Tension;
  for (int side = 1; side <= 2; ++side) {
    s.Score[side] = game.side[side].Score;
    s.Five[side] = game.side[side].Lineup;
  }
  s.QuickFoul = Defense().QuickFoul;
  s.StealFoul = Defense().StealFoul;
  s.Call = game.call;
  s.Possession = game.possession;
  s.FastBreak = game.fastBreak;
}

void NarratePlay() {
  if (!Listening()) return;
  game.commentary.TellsPlay = true;
  TellPlay();
  DescribeScoreSituation();
  ShowPlayByPlay();
  game.commentary.TellsPlay = false;
}

void NarrateIncident() {
  if (!Listening()) return;
  TellIncident();
  ShowPlayByPlay();
}

void NarrateOpening() {
  if (!Listening()) return;
  NoteScene();
  if (!OnlyFilmed()) SpeakLineups();
  DescribeOpening();
  ShowPlayByPlay();
}

void NarrateQuickPass() {
  if (!Listening()) return;
  NoteScene();
  DescribeQuickPass();
  ShowPlayByPlay();
}

void NarrateTimeout(int side, bool media) {
  if (!Listening()) return;
  DescribeTimeout(side, media);
  ShowPlayByPlay();
}

void NarrateLineups() {
  if (!Listening()) return;
  DescribeLineupChanges();
  ShowPlayByPlay();
}

void NarratePeriodEnd() {
  if (!Listening()) return;
  DescribePeriodEnd();
  ShowPlayByPlay();
  if (!OnlyFilmed()) SpeakPeriodEnd();
}

}  // namespace tipline
