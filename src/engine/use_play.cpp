// A coach's call is carried out: who ends up with the ball, and with what shot.
#include "coach/computer_coach.h"
#include "engine/commands.h"
#include "engine/eligible.h"
#include "engine/engine.h"
#include "engine/resolution.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

enum CallKinds : int {
  kCallNone,
  kCallInside,
  kCallOutside,
  kCallThree,
  kCallDrive,
  kCallGoTo,
  kCallPickRoll,
  kCallForceThree,
  kCallHold
};
constexpr int kAnybodyHolds = 6;  // CallPlayer of a hold that names nobody
constexpr int kLooseCall = 2;

int Option(int position) { return Offense().Option[position]; }
int& ShotPick(int position) { return ManAt(game.OffenseSide, Offense().Lineup[position]).ShotPick; }
const PlayerRecord& At(int position) { return OnFloor(game.OffenseSide, position); }
bool IsShotCall(int kind) { return kind >= kCallInside && kind <= kCallThree; }

bool Open(int position) { return Option(position) >= Rnd(3); }
bool OpenEnough(int position) { return Open(position) || (Rnd(3) == 1 && Option(position) >= Rnd(4) - 1); }

int RatingFor(int kind, const PlayerRecord& p) {
  return kind == kCallInside ? p.RateOffInside : kind == kCallThree ? p.RateOffThree : p.RateOffOutside;
}

void LookForThree(int position) {
  if (league.rules.ThreePointCheck) ShotPick(position) = kThree;
}

/// A call as it is worked out on the floor.
struct Search {
  int kind = game.call.CallKind;
  int called = Filled(game.call.CallPlayer);      // position, 0 anybody
  int alley = Filled(game.call.CallAlleyPlayer);  // position that a lob is meant for, 0 nobody
  int handler = Filled(game.BallSlot);            // position that has the ball when the call is made
  bool anybodyHolds = kind == kCallHold && game.call.CallPlayer == kAnybodyHolds;

  static int Filled(int position) {
    return position >= 1 && position <= kPositions && Offense().Lineup[position] > 0 ? position : 0;
  }
};

/// This man, in this moment, can run what was called.
bool KindFits(const Search& s, int p) {
  switch (s.kind) {
    case kCallInside:
    case kCallOutside:
    case kCallThree:
      return ShotPick(p) == s.kind && Open(p);
    case kCallDrive:
      if (ShotPick(p) == 0 || !Open(p)) return false;
      game.call.CallDrive = 1;
      return true;
    case kCallGoTo:
      return ShotPick(p) >= Rnd(2) && Open(p);
    case kCallPickRoll:
      return Open(p);
    case kCallForceThree:
      return ShotPick(p) == kThree && Open(p);
    case kCallHold:
      return Open(p) || (Rnd(2) == 1 && p <= Rnd(kPositions));
    default:
      return false;
  }
}

/// The man for the lob gets free.
bool AlleyFits(const Search& s) {
  if (s.alley == 0 || Rnd(10) > 9) return false;
  if (s.kind == kCallNone) return false;
  if (s.kind == kCallDrive) return KindFits(s, s.alley);
  if (IsShotCall(s.kind) && ShotPick(s.alley) != s.kind) return false;
  if (s.kind == kCallForceThree && ShotPick(s.alley) != kThree) return false;
  return OpenEnough(s.alley);
}

/// The team looks for the man who was called.
int TowardsCalled(const Search& s, int p) {
  if (s.called == 0) return p;
  if (s.kind != kCallPickRoll) {
    if (Rnd(10) == 1 && Open(s.called) && ShotPick(s.called) == s.kind) p = s.called;
    if (Rnd(50) == 1) p = s.called;
    if (game.call.CallAlleyOop && s.kind == kCallInside && (Open(s.called) || Rnd(5) == 1) &&
        ShotPick(p) == kInside) {
      p = s.called;
    }
  } else if (s.called != s.handler && (ShotPick(p) == kInside || (ShotPick(p) == kOutside && Rnd(2) == 1))) {
    if (Rnd(3) == 1 && Open(s.called)) p = s.called;
    if (Rnd(10) == 1) p = s.called;
  }
  return p;
}

/// The play goes to the man who was called, although another one was drawn; unless that one is the better
/// choice, or the man can't do what was called.
bool ForcesCall(const Search& s, int p) {
  if (s.kind == kCallPickRoll && s.called == s.handler) return false;
  bool lookOn = false;
  if (Rnd(2) == 1 && s.kind != kCallNone) {
    lookOn = p != game.call.PickScreener && Open(p) && Rnd(100) <= 90 && At(p).RateOffense > Rnd(100);
    if (IsShotCall(s.kind) && RatingFor(s.kind, At(s.called)) < Rnd(4) + 3) lookOn = true;
  }
  if (Rnd(1000) == 1) lookOn = true;
  if (lookOn) return false;
  const int shot = s.kind == kCallForceThree ? kCallThree : s.kind;
  if (shot == kCallThree && At(s.called).RateOffThree > 0) LookForThree(s.called);
  if ((shot == kCallInside || shot == kCallOutside) && RatingFor(shot, At(s.called)) > 0)
    ShotPick(s.called) = shot;
  if (s.kind == kCallDrive) game.call.CallDrive = 1;
  return true;
}

/// Three or nothing: the next man with a look takes it.
bool FindsThree(int p) {
  if (ShotPick(p) == kThree) return true;
  if (!((ShotPick(p) == kOutside && Rnd(3) == 1) || (ShotPick(p) > 0 && Rnd(10) == 1))) return false;
  LookForThree(p);
  return true;
}

/// The call comes to nothing, and the man who is open takes the play.
bool GivesUpCall(int p) {
  const int periods = league.rules.PeriodList;
  const int odds = game.Period < periods ? 30 : game.Period == periods ? 20 : 10;
  return Rnd(100) <= odds && Open(p);
}

/// One look at the floor: whether the play is found, and for whom.
bool Settles(const Search& s, int& p) {
  if (AlleyFits(s)) {
    p = s.alley;
    return true;
  }
  p = TowardsCalled(s, p);
  if (s.anybodyHolds) {
    const int guard = Rnd(3) == 1 ? 1 : 2;
    if (Offense().Lineup[guard] > 0) p = guard;
  }
  if (s.called > 0 && p != s.called) {
    if (ForcesCall(s, p)) {
      p = s.called;
      return true;
    }
  } else if (s.kind != kCallNone) {
    if (KindFits(s, p)) return true;
  } else if (s.called > 0 ? Open(p) && Rnd(100) <= 90 : Open(p) || Rnd(1000) == 1) {
    return true;
  }
  return s.kind == kCallForceThree ? FindsThree(p) : GivesUpCall(p);
}

/// The position that the play is for; 0 when the floor is empty.
int FindPlay(const Search& s) {
  for (;;) {
    int p = DrawPosition(game.OffenseSide);
    if (p == 0) return 0;
    const bool own = s.kind == kCallPickRoll && p == s.handler;
    if (!own && Settles(s, p)) return p;
    if (Rnd(10000) == 1) return p;
  }
}

/// The go-to man passes up his shot, less often when he has passed more than in his real season.
int PassesUpShot() {
  const PlayerRecord& p = BallHandler();
  if (p.RatePassing <= Rnd(9) || Rnd(10) > 9 || game.GameClock <= 50) return 0;
  const StatLine& real = p.Stats[1];
  const StatLine& replay = p.Stats[2];
  if (real.Ast <= 0) return 1;
  const double drift = (replay.Ast / (replay.FGA + 1.0)) / (real.Ast / (real.FGA + 1.0));
  if (drift > 1.05) return Rnd(10) <= 6 ? 0 : 1;
  if (drift > 1.01) return Rnd(10) <= 8 ? 0 : 1;
  return 1;
}

/// The man with the ball is covered too closely to begin the play himself.
bool PassesFirst() {
  const Man& man = ManAt(game.OffenseSide, game.BallPlayer);
  const int coverage = CoverageOf(man, man.ShotPick);
  const int doubled = DoubleOf(man, man.ShotPick);
  const int passing = BallHandler().RatePassing;
  bool passes = coverage == 4 && Rnd(2) == 1 && passing > Rnd(9);
  if (doubled == 1 && Rnd(10) < 10 && passing > Rnd(9)) passes = true;
  if (coverage > Rnd(2) && (Rnd(20) == 1 || (passing > Rnd(9) && Rnd(7) == 1))) passes = true;
  // A defense that stood off him at its last call is expected to do so again.
  if (Defense().DefenseList == kLooseCall && Rnd(10) <= 9) passes = false;
  return passes && game.call.CallKind != kCallPickRoll && !game.call.ExtraPassCall;
}

/// A lob that is not tried after all: he is no scorer, or has shot too much already.
bool LobFails() {
  const PlayerRecord& p = BallHandler();
  if (Rnd(3) == 1 && p.RateOffense < Rnd(60)) return true;
  if (Rnd(20) == 1 && p.RateOffense < Rnd(100)) return true;
  const int time = ManAt(game.OffenseSide, game.BallPlayer).PlayerGameTime;
  if (time < kMinute || p.Stats[3].FGA < 3 || Rnd(2) != 1) return false;
  const double now = p.Stats[3].FGA / (time / 600.0);
  return now > (1 + 0.3 * Rnd()) * (p.Stats[1].FGA / (p.Stats[1].Min + 1.0));
}

/// The play belongs to position p: what it is, and what goes with it.
void RunFor(const Search& s, int p) {
  Call& call = game.call;
  GiveBall(p);
  if (s.kind == kCallForceThree && Rnd(10) <= 9) LookForThree(p);
  game.PlayKind = KindOfPick(ShotPick(p));
  if (game.PlayKind == "THREE" && !league.rules.ThreePointCheck) game.PlayKind = "OUTSIDE";
  call.ForcedThree = s.kind == kCallForceThree && game.PlayKind == "THREE" ? 1 : 0;
  if (call.CallDrive || s.kind == kCallDrive) game.PlayKind = "DRIVE";
  if (s.kind == kCallGoTo) call.ExtraPassCall = PassesUpShot();
  game.possession.PassFirst = PassesFirst() ? 1 : 0;
  game.possession.PassFirstFrom = game.possession.PassFirst ? game.BallPlayer : 0;
  if (s.kind == kCallPickRoll && p != s.handler && (s.called == 0 || p == s.called)) call.PickScreener = p;
  if (call.CallForce && game.PlayKind == "INSIDE" && p == s.called) call.LobTarget = LobFails() ? 0 : p;
  if (s.kind == kCallHold) game.PlayKind = "HOLD BALL";
}

bool TimeForPlay() {
  const bool shotClockOut = league.rules.ShotClockList > 0 && game.ShotClock < 10;
  if (shotClockOut || game.GameClock < 10) {
    return platform::RefusedWith("You don't have enough time to call a play!");
  }
  return game.GameClock >= 50 ||
         platform::dialogs().Ask("You May Need A Timeout To Complete This Play. Continue?",
                                 "Confirm Choice.");
}

}  // namespace

void UsePlayNowRoutine() {
  if (!AttackIsAsked() || !TimeForPlay()) return;
  Call& call = game.call;
  call.LongPlay = 1;
  call.ExtraPassCall = call.CallDrive = 0;
  if (!call.CallAlleyOop) call.CallAlleyPlayer = 0;
  call.PickScreener = 0;
  const Search search;
  if (search.kind == kCallPickRoll) call.PickBall = search.handler;
  const int position = FindPlay(search);
  if (position > 0) RunFor(search, position);
  game.GameState = "DEFENSE-CALL";
  if (call.LobTarget > 0) return DefensePlayCallChosen();
  SetPlayBox();
}

}  // namespace tipline
