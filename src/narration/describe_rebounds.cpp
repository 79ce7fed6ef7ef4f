// The fight for the ball after a miss, and out of whose hands it comes.
#include "narration/describe.h"
#include "narration/rebound_sayings.h"

namespace tipline {

using namespace floor_talk;

namespace {

const PlayerRecord& Rebounder() { return PlayerAt(game.play.ReboundSide, game.play.Rebounder); }

int CrashSetting() {
  const Side& side = game.side[game.play.ReboundSide];
  return OffTheOffense() ? side.CrashBoardsOffense : side.CrashBoardsDefense;
}

/// Nobody came down with it.
void DeadBall() {
  const std::string who = PbpTeamName(game.play.ReboundSide);
  if (Brief()) return NewLine("out of bounds, " + who + " ball");
  Say(kBoardOut);
  if (!OneIn(4)) Say(kTeamRebound, {.who = who});
}

/// The ball sticks between rim and board: the men jump, or the arrow tells.
void StuckBall() {
  if (game.GameState == "JUMPBALL-1" && !Brief()) Say(kStuckBall);
  if (game.GameState != "JUMPBALL-1") NewLine(PbpTeamName(game.OffenseSide) + " ball");
}

/// Seldom, and only where the line of the miss did not say whose it was.
void RecallTheMiss() {
  if (game.commentary.PbpLineCount < 2 || LastLine().SpokenKind != kMissedShot || game.play.TipIn != 0)
    return;
  const std::string shooter = BallName();
  if (shooter.empty() || NamesHim(LastLine().Text, shooter) || !OneIn(25)) return;
  Say(kMissRecap);
}

const Family& FamilyOfBoard() {
  const bool own = OffTheOffense() && OwnMiss();
  if (own && !OneIn(4)) return kOwnRebound;
  if (OffTheOffense()) return kOffensiveRebound;
  const int strength = game.side[scene().OffenseSide].CrashBoardsOffense;  // men at the boards against him
  const bool easy =
      FreeBall() && PositionOf(game.play.ReboundSide, game.play.Rebounder) >= 3 && strength != 1;
  return easy && OneIn(strength == 2 ? 8 : 20) ? kEasyRebound : kRebound;
}

void AddCount() {
  if (setup.DisplayStatsInPbpCheck == 0) return;
  AddToLine(" (" + std::to_string(Rebounder().Stats[3].Reb) + ")");
}

void RemarkOnCount() {
  const int count = Rebounder().Stats[3].Reb;
  if (count >= 10 && (count == 10 || count % 5 == 0 || OneIn(8)) && OneIn(2))
    Say(kReboundCount, {.number = count});
}

void ColorBefore() {
  if (game.play.TipIn == 0) RecallTheMiss();
  if (OneIn(CrashSetting() == 1 ? 12 : 60)) {
    Say(kCrash);
  } else if (FreeBall() && OneIn(18)) {
    Say(kBoardFight);
  }
}

}  // namespace

void DescribeRebound() {
  const Play& play = game.play;
  if (play.ShotStuck) return StuckBall();
  if (play.ReboundSide != 1 && play.ReboundSide != 2) return;
  if (play.DeadBallRebound || play.Rebounder == 0) return DeadBall();
  if (Brief()) return NewLine("rebounded by " + NameOf(play.ReboundSide, play.Rebounder), kReboundLine);
  ColorBefore();
  Say(FamilyOfBoard(), {}, kReboundLine);
  AddCount();
  RemarkOnCount();
  TellHolder(play.ReboundSide, play.Rebounder, OffTheOffense());
}

}  // namespace tipline
