// A result is carried out: posted to the lines, with what only matters once it is known.
#include "engine/execution.h"
#include "engine/eligible.h"

#include <algorithm>

#include "engine/chances.h"
#include "engine/clock.h"
#include "engine/incidents.h"
#include "engine/resolution.h"
#include "engine/shot_selection.h"
#include "engine/who.h"
#include "league/program.h"
#include "narration/narrator.h"

namespace tipline {
namespace {

bool TimeLeft() { return game.GameClock - game.PlayTime > 0; }
bool CloseShot() {
  const PlayKind k = game.PlayKind;
  return k == "INSIDE" || k == "DRIVE" || k == "FASTBREAK" || k == "OFFREB";
}

/// What the play log will tell.
void NotePosted() {
  game.play.Posted = game.PlayResult;
  game.play.PostedSlot = game.BallPlayer;
}

/// Form comes and goes within a game.
void NewHands() {
  if (Rnd(30) != 1) return;
  for (int s = 1; s <= 2; ++s) {
    for (int p = 1; p <= kPositions; ++p) {
      if (const int slot = game.side[s].Lineup[p]; slot > 0) LoadedAt(s, slot).HotHand = DrawHotHand();
    }
  }
}

/// A stolen lob is often just thrown away, and sometimes a lazy pass.
void StolenLob() {
  if (game.PlayResult != "ST" || game.call.LobFrom == 0) return;
  if (Rnd(10) <= 7) {
    game.PlayResult = "TO";
    return;
  }
  const int passing = OnFloor(game.OffenseSide, game.call.LobFrom).RatePassing;
  if (Rnd(5) == 1 || (Rnd(3) == 1 && passing <= Rnd(9))) game.play.TrapPass = 1;
}

void NoHolder() {
  game.AfterPassNoLook = 1;
  game.GameState = "OFFENSE";
  game.BallPlayer = game.BallSlot = 0;
}

/// The ball is in play again.
void BallIsIn() {
  game.PlayResult = "IN-EZ";
  NoHolder();
  game.DeadBallKind = game.NeedsInbound = game.NeedsMoveUp = game.NeedsBringUp = 0;
}

/// The other side takes the ball out, at the other end of the floor.
void LoseInbound(int slot) {
  PostTurnover(game.OffenseSide, slot);
  SwapSides();
  game.GameState = "DEADBALL-DEFENSE";
  const bool frontcourt = game.DeadBallKind <= 2;
  game.DeadBallKind = frontcourt ? 4 : 2;
  game.NeedsBringUp = frontcourt ? 1 : 0;
}

void Steal(int loser) {
  FindStealer();
  PostTurnover(game.OffenseSide, loser);
  if (const int thief = game.play.Stealer; thief > 0) {
    ++GameLine(game.DefenseSide, thief).St;
    ++ManAt(game.DefenseSide, thief).PeriodStatLine.St;
  }
}

void PostInbound() {
  const int inbounder = Offense().Lineup[game.InboundSlot];
  if (game.PlayResult != "IN-EZ" && game.DeadBallKind >= 3 && Rnd(2) == 1) game.PlayResult = "IN-EZ";
  if (game.PlayResult == "IN-EZ") {
    BallIsIn();
  } else if (game.PlayResult == "IN-ST") {
    game.play.StolenInbound = game.DeadBallKind >= 3 ? 1 : 0;
    game.BallPlayer = inbounder;
    Steal(inbounder);
    game.PlayResult = "ST";
  } else if (game.PlayResult == "IN-OB" && Rnd(10) <= 3) {
    game.PlayResult = "IN-OB-OFF";
    game.GameState = "DEADBALL-DEFENSE";
  } else {
    if (game.PlayResult == "IN-OB") game.PlayResult = "IN-OB-DEF";
    LoseInbound(inbounder);
  }
}

void PostMoveUp() {
  if (game.PlayResult == "MOVE-UP-OB" && Rnd(10) <= 3) {  // they keep it, and have to bring it up again
    game.PlayResult = "MOVE-UP-OB-OFF";
    game.GameState = "DEADBALL-DEFENSE";
    return;
  }
  game.NeedsBringUp = 0;
  if (game.PlayResult == "MOVE-UP") {
    NoHolder();
  } else if (game.PlayResult == "MOVE-UP-ST") {
    Steal(game.BallPlayer);
    game.PlayResult = "ST";
  } else {
    PostTurnover(game.OffenseSide, game.BallPlayer);
    SwapSides();
    game.ShotClock = FullShotClock();
    game.GameState = "DEADBALL-DEFENSE";
    game.DeadBallKind = 2;
  }
}

/// Assists for each hundred baskets in the passer's league, bent by his own hand.
int AssistOdds() {
  const PlayerRecord& p = BallHandler();
  const EraRecord& era = EraRow(p.Year, IsCollege(p), 2013, 1940);
  int odds = era.FGM > 0 ? Round(era.Ast / era.FGM * 100) : 60;
  odds -= Round(p.RatePassing - odds / 14.5);
  odds += game.PlayKind == "FASTBREAK" ? 22 : -3;
  const int position = DrawPosition(game.OffenseSide);
  const PlayerRecord& mate = position > 0 ? OnFloor(game.OffenseSide, position) : p;
  const StatLine& real = mate.Stats[1];
  const StatLine& replay = mate.Stats[2];
  if (program.GameKind != "E" && replay.Min > 100 && replay.Ast > 10 && real.Min > 0 && real.Ast > 0) {
    const double drift =
        (static_cast<double>(replay.Ast) / replay.Min) / (static_cast<double>(real.Ast) / real.Min);
    odds += drift >= 1.1 ? -10 : drift >= 1.01 ? -5 : drift <= 0.89 ? 10 : drift <= 0.99 ? 5 : 0;
  }
  return odds;
}

/// Whether a basket came off a pass, and whose.
void DrawAssist() {
  if (game.PlayKind == "OFFREB" || IsFreeThrow(game.GameState)) {
    game.play.Assisted = false;
    return;
  }
  Play& play = game.play;
  const bool known = play.Assisted && play.Assister > 0 && play.Assister != game.BallPlayer;
  if (Rnd(100) <= AssistOdds()) play.Assisted = true;
  if (game.call.PickBall > 0 && game.call.PickScreener > 0) play.Assisted = true;
  if (game.fastBreak.Breakaway && game.GameState == "FASTBREAK") play.Assisted = false;
  if (game.GameClock < 15) play.Assisted = false;
  if (play.ExtraPass || game.call.ExtraPassCall || game.possession.PassFirst) play.Assisted = true;
  if (play.Assisted && !known) FindAssister();
}

void MadeShot() {
  Play& play = game.play;
  bool three = game.PlayResult == "G3" || game.PlayResult == "G3F";
  if (game.PlayResult == "G3" && Rnd(200) == 1) {  // his foot was on the line
    three = false;
    game.PlayResult = play.Posted = "G";
    play.ShotValue = "TWO";
    if (game.PlayKind == "THREE") game.PlayKind = "OUTSIDE";
  }
  if (game.PlayResult == "G" && CloseShot() && Rnd(120) == 1) play.GoaltendMark = 1;
  DrawAssist();
  PostShot(game.BallPlayer, three, true);
  PostAssist();
  if (game.PlayResult == "GF" || game.PlayResult == "G3F") PostFoul(game.DefenseSide, play.Fouler);
}

/// The ball stays on the rim, or a man of the offense touches it there: once in a thousand shots each.
void StuckOrTouched() {
  Play& play = game.play;
  if (play.Blocked) return;
  const auto exposed = [] {
    const PlayKind k = game.PlayKind;
    return k == "OUTSIDE" || k == "INSIDE" || k == "DRIVE" || (k == "THREE" && Rnd(20) == 1);
  };
  if (exposed() && Rnd(1000) == 1) play.ShotStuck = 1;
  if (!play.ShotStuck && exposed() && Rnd(1000) == 1) play.BasketInterference = 1;
}

void DrawMissMarks() {
  Play& play = game.play;
  if (play.Blocked) {
    play.BlockKept = Rnd(4) == 1 ? 1 : 0;
  } else if (game.PlayResult == "M3") {
    play.AirBall = Rnd(60) == 1 ? 1 : 0;
  } else if (game.PlayKind == "OUTSIDE") {
    play.AirBall = Rnd(150) == 1 ? 1 : 0;
  }
  const int spot = ManAt(game.OffenseSide, game.BallPlayer).CourtSpot;
  play.CloseMiss = spot >= 101 && spot <= 104 ? 1 : 0;
}

/// A foul in the fight for the rebound. The side that had the ball may lose it, or shoot for it.
void LooseBall() {
  const auto fouling = [](const Side& s) { return s.QuickFoul == 1 || s.StealFoul == 1; };
  int odds = 7;
  if (game.GameClock < 1200 || fouling(game.side[1]) || fouling(game.side[2])) odds = 0;
  if (game.play.DeadBallRebound || game.play.ShotStuck || game.play.Rebounder == 0) odds = 0;
  if (odds == 0 || Rnd(100) > odds) return;
  Play& play = game.play;
  const bool byDefense = Rnd(2) == 1;
  game.PlayResult = byDefense ? PlayResult("LOOSE-DEF") : PlayResult("LOOSE-OFF");
  play.FoulingSide = byDefense ? game.DefenseSide : game.OffenseSide;
  ++Offense().LooseBalls;
  FindFouler();
  PostFoul(play.FoulingSide, play.Fouler);
  if (play.ReboundSide == play.FoulingSide) PostTurnover(play.FoulingSide, 0);
  play.TripOwed = PenaltyTrip(game.side[play.FoulingSide].TeamFouls);
  const int held = play.ReboundSide == play.FoulingSide ? 0 : play.Rebounder;
  if (!byDefense) SwapSides();
  game.DeadBallKind = byDefense ? 2 : 4;
  game.BallPlayer = held;
  game.BallSlot = PositionOf(game.OffenseSide, held);
}

/// A tip at the rim by the man who came down with it: half of them drop. A missed one is rebounded again.
void TipIn(int classMissed) {
  Play& play = game.play;
  if (play.ReboundSide != game.OffenseSide || play.Rebounder == 0 || game.call.SetPlay) return;
  if (ManAt(game.OffenseSide, play.Rebounder).ShotPick != kInside || Rnd(6) != 1) return;
  if (play.Rebounder == game.BallPlayer && classMissed > 1) return;
  const bool scored = Rnd(10) > 5;
  play.TipIn = scored ? 2 : 1;
  play.Tipper = game.BallPlayer = play.Rebounder;
  game.BallSlot = PositionOf(game.OffenseSide, game.BallPlayer);
  game.PlayKind = "OFFREB";
  play.Blocked = play.Assisted = false;
  play.AirBall = play.BlockKept = 0;
  PostShot(game.BallPlayer, false, scored);
  if (scored) {
    game.PlayResult = "G";
    return;
  }
  FindRebounder();
  PostRebound();
}

/// The board, or what becomes of a ball that nobody gets.
void FightForRebound() {
  Play& play = game.play;
  const int classMissed = game.PutbackClass;
  FindRebounder();
  if (game.PlayResult == "OFFENSE-BASKET-INTERFERENCE" || game.PlayResult == "SHOTSTUCK") return;
  PostRebound();
  if (IsFreeThrow(game.PlayKind)) {
    game.PlayResult = "REB";
    return;
  }
  if (TimeLeft()) {  // behind the horn nothing more can happen
    TipIn(classMissed);
    if (play.TipIn == 0) LooseBall();
  }
  if (game.PlayResult == "M" || game.PlayResult == "M3") game.PlayResult = "REB";
}

void MissedShot() {
  PostShot(game.BallPlayer, game.PlayResult == "M3", false);
  if (game.play.Blocked && game.play.Blocker > 0 && game.BallPlayer > 0) {
    ++GameLine(game.DefenseSide, game.play.Blocker).Bk;
    ++ManAt(game.DefenseSide, game.play.Blocker).PeriodStatLine.Bk;
  }
  DrawMissMarks();
  StuckOrTouched();
  FightForRebound();
}

/// Nobody has the ball: the men jump, or the arrow gives it to a side. True when the arrow gave it to the
/// other side.
bool JumpOrArrow(int deadBallKind) {
  if (league.rules.JumpBallList != 1) {
    game.GameState = "JUMPBALL-1";
    return false;
  }
  game.GameState = "DEADBALL-DEFENSE";
  game.DeadBallKind = deadBallKind;
  const int arrow =
      game.PossessionArrow == 1 || game.PossessionArrow == 2 ? game.PossessionArrow : game.DefenseSide;
  game.PossessionArrow = 3 - arrow;
  if (arrow == game.OffenseSide) return false;
  SwapSides();
  game.ShotClock = FullShotClock();
  return true;
}

void TieUp() {
  const int side = game.OffenseSide;
  Offense().JumperOf = game.BallPlayer;
  Defense().JumperOf = game.BallDefender;
  if (JumpOrArrow(2)) PostTurnover(side, 0);
}

void StuckBall() {
  game.side[1].JumperOf = game.side[2].JumperOf = 0;
  JumpOrArrow(3);
}

void OffBallVictim() {
  const Play& play = game.play;
  if (!play.OffBallFoul || play.FoulerSlot == 0 || Defense().QuickFoul == 3) return;
  for (int p = 1; p <= kPositions; ++p) {
    if (Defense().Matchup[p] != play.FoulerSlot || Offense().Lineup[p] == 0) continue;
    game.BallPlayer = Offense().Lineup[p];
    game.BallSlot = p;
    return;
  }
}

/// The side that charged loses the ball, and by some rule books the other side shoots.
void PostOffensiveFoul() {
  const RulesRecord& rules = league.rules;
  const int side = game.OffenseSide;
  const int victim = game.BallDefender;
  PostTurnover(side, game.BallPlayer);
  PostFoul(side, game.play.Fouler, rules.OffensiveFoulTeamFoulCheck == 1);
  const bool over = InPenalty(side);
  SwapSides();
  if (!rules.OffensiveFoulTeamFoulCheck) return;
  if (over && rules.OnePlusOneAfterPenaltyONOffensiveFouls) game.play.TripOwed = "SHOOT1-1";
  if (!over && rules.OneShotOnOffensiveFoulBeforePenalty) game.play.TripOwed = "SHOOT1";
  game.BallPlayer = victim;
  game.BallSlot = PositionOf(game.OffenseSide, victim);
}

/// Out of bounds: mostly off a hand of the defense; one time in four the other side gets it.
void PostOutOfBounds() {
  game.GameState = "DEADBALL-DEFENSE";
  if (Rnd(4) != 1) return;
  PostTurnover(game.OffenseSide, game.BallPlayer);
  SwapSides();
  game.ShotClock = FullShotClock();
}

void PostForcedTimeout() {
  game.GameState = "TIMEOUT-DEFENSE";
  game.MomentumMark = 1;
  game.TimeoutTaken = 1;
  Side& offense = Offense();
  --offense.TimeoutsLeft;
  ++offense.TimeoutsByMinute[Clamp(game.GameClock / 60, 0, 20)];
  const bool half = league.rules.PeriodList == 2 || game.Period == 2 || game.Period >= 4;
  if (half && game.GameClock <= 1200) game.DeadBallKind = std::min(game.DeadBallKind, 2);
}

void PostFreeThrow() {
  StatLine& line = GameLine(game.OffenseSide, game.BallPlayer);
  const bool lastShot = game.PlayKind == "SHOOT1" || game.PlayKind == "SHOOT1-1";
  if (game.BallPlayer > 0) {
    ++line.FTA;
    if (game.PlayResult == "FTG") ++line.FTM;
  }
  if (game.PlayResult == "FTG") {
    PostPoints(game.OffenseSide, game.BallPlayer, 1, 'F');
    if (!TimeLeft() && (game.PlayKind == "SHOOT1" || game.PlayKind == "SHOOT2-1"))
      game.PlayKind = "ENDPERIOD";
  } else if (lastShot && !TimeLeft()) {
    game.PlayKind = "ENDPERIOD";
  } else if (lastShot && !game.TechnicalFreeThrow) {
    FightForRebound();
  }
  if (game.PlayKind == "ENDPERIOD") game.GameState = "DEADBALL-DEFENSE";
}

void PostBurn() {
  NoHolder();
  game.DeadBallKind = game.NeedsBringUp = 0;
}

void PostDoubleFoul() {
  PostFoul(game.OffenseSide, game.play.OffenseFouler);
  PostFoul(game.DefenseSide, game.play.Fouler);
}

/// One posting a result.
void Post() {
  const PlayResult r = game.PlayResult;
  if (IsMadeShot(r)) {
    MadeShot();
  } else if (r == "M" || r == "M3") {
    MissedShot();
  } else if (r == "MF" || r == "M3F") {
    PostFoul(game.DefenseSide, game.play.Fouler);
    FlagrantFoul();
  } else if (IsFloorFoul(r)) {
    PostFoul(game.DefenseSide, game.play.Fouler);
    OffBallVictim();
    FlagrantFoul();
  } else if (r == "FTG" || r == "FTM") {
    PostFreeThrow();
  } else if (r == "ST") {
    Steal(game.BallPlayer);
  } else if (r == "TO" || r == "SHOTCLOCK") {
    PostTurnover(game.OffenseSide, game.BallPlayer);
  } else if (r == "OF") {
    PostOffensiveFoul();
  } else if (r == "OB") {
    PostOutOfBounds();
  } else if (r == "2XPF") {
    PostDoubleFoul();
  } else if (r == "BURN") {
    PostBurn();
  } else if (r == "FORCED-TIMEOUT") {
    PostForcedTimeout();
  } else if (r == "JUMPBALL") {
    TieUp();
  } else if (r == "IN-EZ" || r == "IN-5" || r == "IN-OB" || r == "IN-ST") {
    PostInbound();
  } else if (r == "MOVE-UP" || r == "MOVE-UP-OB" || r == "MOVE-UP-ST") {
    PostMoveUp();
  }
}

/// Who takes the ball out next, and whether it must be brought up.
void SetDeadBall() {
  const PlayResult r = game.PlayResult;
  if (r == "G" || r == "G3" || r == "SHOTCLOCK" || r == "OF") game.DeadBallKind = 4;
  if (r == "G3F") game.NeedsBringUp = 1;
  if (r == "REB" && game.play.ReboundSide == game.DefenseSide) game.NeedsBringUp = 1;
  if (r == "MF") game.NeedsBringUp = 0;
}

}  // namespace

void PlayByPlay() {
  if (game.PlayResult == "NOSHOT") {
    game.play.NoShotEnd = 1;
    NotePosted();
    NoteScene();
    if (game.GameClock == 0 && LastPeriod() && Margin() > 0) game.GameOver = true;
    if (!TimeLeft()) EndPeriodNotice();
    return;
  }
  StolenLob();
  NewHands();
  if (game.PlayResult == "PASS" && !KickOut()) ShotBranch();
  if (IsShot(game.PlayResult)) game.LastShotKind = game.PlayKind;
  NotePosted();
  NoteScene();
  Post();
  if (game.play.Posted.Index() >= PlayResult("MOVE-UP").Index()) game.play.Posted = game.PlayResult;
  if (game.PlayResult == "OFFENSE-BASKET-INTERFERENCE") {
    game.ShotClock = FullShotClock();
    game.GameState = "DEADBALL-DEFENSE";
    SwapSides();
  } else if (game.PlayResult == "SHOTSTUCK") {
    StuckBall();
  }
  SetDeadBall();
  if (!TimeLeft()) EndPeriodNotice();
}

}  // namespace tipline
