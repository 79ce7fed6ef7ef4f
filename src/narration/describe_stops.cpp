// The ball is brought in, men are tied up, a side calls time, a period ends.
#include "narration/describe.h"
#include "narration/pass_sayings.h"
#include "narration/stop_sayings.h"

namespace tipline {

using namespace floor_talk;

namespace {

// Bringing it in, and up.

int Inbounder() {
  const int position = scene().InboundSlot;
  return position >= 1 && position <= kPositions ? OffenseThen().Lineup[position] : 0;
}

/// A man who takes the inbound: in the backcourt it is a guard.
int Taker(int inbounder) {
  for (int tries = 0; tries < 20; ++tries) {
    const int slot = OffenseThen().Lineup[scene().DeadBallKind >= 3 ? ShowRnd(2) : ShowRnd(kPositions)];
    if (slot > 0 && slot != inbounder) return slot;
  }
  return 0;
}

void Trouble(const std::string& who) { Say(kInboundTrouble, {.who = who}); }

void BallIsIn(const std::string& who) {
  const int taker = Taker(Inbounder());
  const std::string other = NameOf(scene().OffenseSide, taker);
  if (other.empty()) return;
  if (OneIn(25)) {
    Trouble(who);
    Say(kGetsItIn, {.other = other});
  } else {
    Say(kInbound, {.who = who, .other = other});
  }
  TellHolder(scene().OffenseSide, taker);
}

/// The ball went out, and whose it is now.
void TellWhoseBall() {
  const std::string side = PbpTeamName(game.OffenseSide);
  Say(kWhoseBall, {.who = side});
}

/// The guard who brings the ball over midcourt when the play names none.
int Carrier() {
  if (const int told = ToldHolder(); told > 0 && PositionOf(scene().OffenseSide, told) <= 2) return told;
  const int ball = scene().BallPlayer;
  if (ball > 0 && PositionOf(scene().OffenseSide, ball) <= 2) return ball;
  return OffenseThen().Lineup[ShowRnd(kPositions) == kPositions ? 2 : 1];
}

void BroughtUp() {
  const int carrier = Carrier();
  const std::string who = NameOf(scene().OffenseSide, carrier);
  if (who.empty()) return;
  const bool pressed = PressOn() || TrapOn();
  Say(pressed ? kBeatPress : kBringUp, {.who = who, .word = PressOn() ? "press" : "trap"});
  TellHolder(scene().OffenseSide, carrier);
}

// Tied up.

/// A man in trouble calls for time one time in six, when his side has one.
void TellTie() {
  if (OffenseThen().TimeoutsLeft > 0 && OneIn(6)) {
    Say(kWantsTimeout);
    if (!Say(kNoTimeout)) return;
  } else if (OneIn(5)) {
    NewLine(BallName() + " with the ball");
  }
  Say(kTiedUp);
}

void TellWhoGetsIt() {
  const std::string who = PbpTeamName(game.OffenseSide);
  if (ByArrow()) {
    Say(kArrow, {.who = who});
  } else {
    Say(kJumpCall);
  }
}

bool TheyLostIt() { return game.OffenseSide != scene().OffenseSide; }

// Timeouts.

std::string CoachOf(int side) { return game.team[side].CoachName.Str(); }

std::string TimeoutsLeftText(int count) {
  return count == 0 ? "no timeouts" : count == 1 ? "one timeout" : std::to_string(count) + " timeouts";
}

void TellWhoCalls(int side) {
  const std::string coach = CoachOf(side), who = PbpTeamName(side);
  if (ShowRnd(3) == 1 && coach.size() >= 3) Say(kCallsTime, {.who = coach});
  if (Brief() || !OneIn(3)) return;
  const std::string left = TimeoutsLeftText(game.side[side].TimeoutsLeft);
  Say(kTimeoutRemark, {.who = who, .word = left});
}

}  // namespace

void DescribeInbound() {
  const PlayResult r = game.play.Posted;
  const std::string who = NameOf(scene().OffenseSide, Inbounder());
  if (r == "IN-EZ") {
    if (!Brief() && !who.empty()) BallIsIn(who);
  } else if (r == "IN-5") {
    if (!Brief() && !who.empty()) Trouble(who);
    NewLine("5 second violation!", kFiveSeconds);
  } else if (r == "ST") {
    const std::string thief = NameOf(scene().DefenseSide, game.play.Stealer);
    if (Brief() && !thief.empty()) return NewLine("stolen by " + thief, kStealLine);
    Say(kInboundSteal, {}, kStealLine);
  } else {
    if (!Brief() && !who.empty() && OneIn(2)) Trouble(who);
    Say(kDeflected, {}, TheyLostIt() ? kLostOutOfBounds : kUnspoken);
    if (!Brief()) TellWhoseBall();
  }
}

void DescribeMoveUp() {
  const PlayResult r = game.play.Posted;
  if (r == "MOVE-UP") {
    if (!Brief()) BroughtUp();
    return;
  }
  const std::string thief = NameOf(scene().DefenseSide, game.play.Stealer);
  if (!Brief() && !BallName().empty()) NewLine(BallName() + " bringing it up");
  if (r == "ST") {
    if (!Brief() && OneIn(2)) NewLine("he threw it away!");
    if (!thief.empty()) NewLine("stolen by " + thief, kStealLine);
  } else if (TheyLostIt() && !Brief()) {
    NewLine("he threw it away!", kLostOutOfBounds);
    TellWhoseBall();
  } else {
    Say(kDeflected, {}, TheyLostIt() ? kLostOutOfBounds : kUnspoken);
    if (!Brief()) TellWhoseBall();
  }
  TellHolder(0, 0);
}

void DescribeTieUp() {
  if (BallName().empty() || scene().BallDefender == 0) return;
  if (Brief()) return NewLine("jump ball");
  TellTie();
  TellWhoGetsIt();
}

void DescribeTimeout(int side, bool media) {
  TellHolder(0, 0);
  if (media) {
    NewLine("Media Timeout");
    if (league.rules.PeriodList == 4) NewLine("Charged to " + PbpTeamName(side), kUnspoken, side);
    return;
  }
  const bool forced = game.commentary.TellsPlay;  // the man with the ball had no other way out
  if (forced && !Brief() && !BallName().empty()) Say(kForcedTimeout);
  NewLine("Timeout " + PbpTeamName(side), kUnspoken, side);
  if (!forced) TellWhoCalls(side);
}

}  // namespace tipline
