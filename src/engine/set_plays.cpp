// Lobs, picks, and the pass out of a crowd.
#include <algorithm>
#include <cstdlib>

#include "engine/chances.h"
#include "engine/commands.h"
#include "engine/game_state.h"
#include "engine/resolution.h"
#include "engine/shot_selection.h"
#include "engine/who.h"

namespace tipline {
namespace {

int ShotPickAt(int position) { return ManAt(game.OffenseSide, Offense().Lineup[position]).ShotPick; }

/// Nothing else is on: a set play may begin.
bool FreeToSet() {
  const Call& call = game.call;
  return !call.SetPlay && !call.LobTarget && !(call.PickBall > 0 && call.PickScreener > 0) &&
         !game.NeedsInbound && !game.NeedsMoveUp && !call.ForcedTurnover && !call.ForcedFoul;
}

/// Position of a team-mate who has just passed to the man with the ball, 0 none.
int LastPasser() {
  const int passer = game.possession.LastPasserSlot;
  if (passer == 0 || passer == game.BallSlot || Offense().Lineup[passer] == 0) return 0;
  return game.play.Assister == Offense().Lineup[passer] ? passer : 0;
}

bool GoodScreener(int k) {
  const int pick = ShotPickAt(k);
  const int option = Offense().Option[k];
  const bool willing = pick == kInside || (pick == kOutside && Rnd(3) == 1) ||
                       (k >= Rnd(2) + 2 && Rnd(3) == 1 && option >= Rnd(2)) || option >= Rnd(3);
  return willing && OnFloor(game.OffenseSide, k).RateOffInside >= Rnd(8) + 2;
}

void ScreenForDriver() {
  const int passing = BallHandler().RatePassing;
  if (!(passing >= Rnd(10) || (Rnd(2) == 1 && passing >= Rnd(3) + 3) ||
        (passing >= Rnd(5) + 5 && Rnd(2) == 1))) {
    return;
  }
  for (int tries = 0; tries < 200; ++tries) {
    const int k = Rnd(kPositions);
    if (k == game.BallSlot || Offense().Lineup[k] == 0) continue;
    if (GoodScreener(k)) {
      game.call.PickBall = game.BallSlot;
      game.call.PickScreener = k;
      return;
    }
    if (Rnd(10) > 8) return;
  }
}

/// The man who gave the ball comes off a screen of the man who has it.
void ScreenForPasser() {
  if (game.PlayKind != "INSIDE" && !(game.PlayKind == "OUTSIDE" && Rnd(3) == 1)) return;
  const int passer = LastPasser();
  if (passer == 0 || ShotPickAt(passer) < 1 || OnFloor(game.OffenseSide, passer).RateOffDrive < Rnd(8) + 2)
    return;
  if (Rnd(2) != 1) return;
  game.play.Assisted = true;
  game.call.PickBall = passer;
  game.call.PickScreener = game.BallSlot;
}

/// The clock and the score leave room for a second shot within the play.
bool RoomToKickOut() {
  const int lead = Lead(game.OffenseSide);
  if (game.AnalysisMode) return false;
  if (game.GameClock < 50 && lead != 3) return false;
  if (game.GameClock - game.PlayTime < 30) return false;
  return !(game.PlayKind == "THREE" && lead == 3 && game.GameClock < kMinute && league.rules.ThreePointCheck);
}

int DrawReceiver() {
  const bool wantThree =
      Lead(game.OffenseSide) == 3 && league.rules.ThreePointCheck && game.GameClock < kMinute;
  for (int tries = 0; tries < 500; ++tries) {
    int position = Rnd(4);
    if (position == game.BallSlot) position = 5;
    if (Offense().Lineup[position] == 0 || position == game.BallSlot) continue;
    if (wantThree && ShotPickAt(position) != kThree && Rnd(100) < 99) continue;
    if (OnFloor(game.OffenseSide, position).RateOffense >= Rnd(100) || Rnd(100) == 1) return position;
  }
  return 0;
}

/// The receiver loses it, shoots, or is fouled on the shot.
void ReceiverShoots(int passing) {
  const StatLine& real = BallHandler().Stats[1];
  const double trips = real.FTA * 0.9;
  double lost = real.To / (trips + real.FGA + real.To + 1);
  if (Rnd(3) == 1) lost *= 7.0 / (passing + 1);
  if (Rnd(1000) <= lost * 1000) {
    game.PlayResult = "TO";
    return;
  }
  Play& play = game.play;
  const bool three = play.ShotValue == "THREE";
  DefenseRatings();
  three ? ThreeChance() : TwoChance();
  const bool made = Rnd(1000) <= (three ? play.ThreePointChance : play.TwoPointChance);
  const double fouled = trips / (real.FGA + 1.0);
  if (made && three) {
    game.PlayResult = Rnd(100) <= 1 ? PlayResult("G3F") : PlayResult("G3");
  } else if (made) {
    game.PlayResult = Rnd(100) <= 7 ? PlayResult("GF") : PlayResult("G");
  } else if (three) {
    game.PlayResult = 2.5 * Rnd() < fouled ? PlayResult("M3F") : PlayResult("M3");
  } else {
    game.PlayResult = Rnd() < fouled ? PlayResult("MF") : PlayResult("M");
  }
}

}  // namespace

void FindLob() {
  if (!FreeToSet() || game.PlayKind != "INSIDE" || ShotPickAt(game.BallSlot) != kInside) return;
  const int passer = LastPasser();
  if (passer == 0 || ShotPickAt(passer) < 2) return;
  const int passing = OnFloor(game.OffenseSide, passer).RatePassing;
  const int dunk = BallHandler().RateDunk;
  const bool seen = passing >= Rnd(5) + 3 || (Rnd(2) == 1 && passing >= Rnd(4) + 3 && dunk >= Rnd(3) + 7);
  if (!seen || dunk < Rnd(5) + 5) return;
  game.call.LobFrom = passer;
  game.call.SetPlay = 1;
  game.call.LobTarget = game.BallSlot;
  game.play.Assisted = true;
  game.play.Assister = Offense().Lineup[passer];
}

void FindPick() {
  if (!FreeToSet() || game.BallSlot == 0) return;
  if (game.PlayKind == "DRIVE") ScreenForDriver();
  if (game.call.PickBall == 0) ScreenForPasser();
}

void ResolvePick() {
  const int driver = game.call.PickBall;
  const int screener = game.call.PickScreener;
  int position = Rnd(2) == 1 ? screener : driver;
  game.PlayKind = "DRIVE";
  if (Rnd(3) == 1) {
    const PlayerRecord& s = OnFloor(game.OffenseSide, screener);
    const int drive = OnFloor(game.OffenseSide, position).RateOffDrive;
    const int shot = ShotPickAt(screener) == kInside ? s.RateOffInside : s.RateOffOutside;
    if (position == screener) {
      if (drive >= Rnd(3) + shot) position = driver;
    } else {
      const int first = drive + Rnd(3);
      if (first <= shot + Rnd(3)) position = screener;
    }
  }
  GiveBall(position);
  game.possession.LastPasserSlot = driver;
  game.play.Assister = Offense().Lineup[driver];
  if (position == screener) game.PlayKind = KindOfPick(ShotPickAt(screener));
}

bool KickOut() {
  if (!RoomToKickOut()) return false;
  const int passer = game.BallPlayer;
  const int passing = BallHandler().RatePassing;
  const int receiver = DrawReceiver();
  if (receiver == 0) return false;
  Play& play = game.play;
  play.Blocked = false;
  play.Blocker = 0;
  game.call.ShotConfirmed = 0;
  play.Assister = passer;
  play.Assisted = true;
  GiveBall(receiver);
  game.PlayKind = KindOfPick(ShotPickAt(receiver));
  if (game.PlayKind == "THREE" && !league.rules.ThreePointCheck) game.PlayKind = "OUTSIDE";
  play.ShotValue = game.PlayKind == "THREE" ? ShotValue("THREE") : ShotValue("TWO");
  ReceiverShoots(passing);
  const PlayResult r = game.PlayResult;
  if (r == "GF" || r == "G3F" || r == "MF" || r == "M3F") {
    play.FoulingSide = game.DefenseSide;
    FindFouler();
  }
  return true;
}

void ResetOffensePanel() {
  Call& call = game.call;
  call.ForcedTurnover = call.ForcedFoul = 0;
  call.CallAlleyOop = call.CallForce = 0;
  call.LobFrom = 0;
  game.possession.QuickPassTarget = 0;
  if (!game.possession.PassedThisPossession && game.possession.QuickPassCount == 0) Offense().Option = {};
}

}  // namespace tipline
