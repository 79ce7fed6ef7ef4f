// The way of the ball up to the man of the play. The play itself is one event: the way is told so that it
// agrees with who shot, off whose pass, and how long it took.
#include <algorithm>

#include "narration/describe.h"
#include "narration/pass_sayings.h"
#include "narration/running_sayings.h"

namespace tipline {

using namespace floor_talk;

namespace {

constexpr std::size_t kMostLength = 60;

int Ball() { return scene().BallPlayer; }
bool OnOffense(int slot) { return slot > 0 && PositionOf(scene().OffenseSide, slot) > 0; }
std::string OffenseName(int slot) { return NameOf(scene().OffenseSide, slot); }
int OffenseAt(int position) { return position >= 1 ? OffenseThen().Lineup[position] : 0; }

/// Men in the order in which they have the ball, and whom the last line has named with it.
struct Way {
  int man[8] = {};
  int count = 0;
  int named = 0;
  int lines = 0;  ///< that may still be told

  void To(int slot) {
    if (slot > 0 && count < 8 && (count == 0 || man[count - 1] != slot)) man[count++] = slot;
  }
  int Passes() const { return std::max(0, count - 1); }
};

/// Who gave the ball to the man of the play; 0 when he made it himself or nobody is known.
int LastPasser() {
  const Play& play = game.play;
  const auto fits = [](int slot) { return slot != Ball() && OnOffense(slot); };
  if (play.Assisted && fits(play.Assister)) return play.Assister;
  if (play.ExtraPass && fits(play.ExtraPassFrom)) return play.ExtraPassFrom;
  if (scene().Possession.PassFirst && fits(scene().Possession.PassFirstFrom))
    return scene().Possession.PassFirstFrom;
  if (fits(OffenseAt(scene().Call.LobFrom))) return OffenseAt(scene().Call.LobFrom);
  if (Scored() || OneIn(2)) return 0;
  const int mate = OffenseAt(ShowRnd(kPositions));
  return fits(mate) ? mate : 0;
}

/// One of the guards: mostly the man at the point.
int GuardOfFive() {
  const int drawn = ShowRnd(kPositions) == kPositions ? OffenseAt(2) : OffenseAt(1);
  return OnOffense(drawn) ? drawn : OffenseAt(1);
}

void Cue(int slot) {
  if (!NoLineYet()) LastLine().Display = PositionOf(scene().OffenseSide, slot);
}

// The last pass.

int Screener() {
  return scene().Call.PickBall > 0 && scene().Call.PickScreener > 0 ? OffenseAt(scene().Call.PickScreener)
                                                                    : 0;
}
bool IsLob() {
  const int target = OffenseAt(scene().Call.LobTarget);
  return scene().Call.LobFrom > 0 && target == Ball();
}

const Family& LastPassFamily(int from) {
  const PlayKind k = scene().PlayKind;
  if (IsLob() && from == OffenseAt(scene().Call.LobFrom)) return kLob;
  if (Screener() == Ball() && from == OffenseAt(scene().Call.PickBall)) return kRoll;
  if (game.play.ExtraPass && from == game.play.ExtraPassFrom) return kExtraPass;
  if (scene().Possession.PassFirst && from == scene().Possession.PassFirstFrom) return kPassFirst;
  if (k == "INSIDE" && !OneIn(4)) return kFeedInside;
  if ((k == "THREE" || k == "OUTSIDE") && OneIn(3)) return kFeedOutside;
  return kPass;
}

/// Where he took it, when the line has room for that.
void AddPlace(int slot) {
  if (!IsSetShot(scene().PlayKind) || IsLob()) return;
  const int spot = ManAt(scene().OffenseSide, slot).CourtSpot;
  const std::string place = spot > 200 && OneIn(6) ? Pick(kPerimeter) : PlaceOf(slot);
  std::string& line = LastLine().Text;
  if (place.empty() || !line.ends_with(OffenseName(slot)) || line.size() + 1 + place.size() > kMostLength)
    return;
  line += " " + place;
}

void TellPass(Way& way, int from, int to, bool last) {
  const std::string who = OffenseName(from), other = OffenseName(to), word = Pick(kPassWord);
  const bool gaveIt =
      way.count > 2 && std::find(way.man, way.man + way.count - 2, to) != way.man + way.count - 2;
  const Family* family = last ? &LastPassFamily(from) : &kPass;
  if (family == &kPass && way.named == from)
    family = gaveIt && OneIn(2) ? &kPassBack : OneIn(4) ? &kPass : &kPassOn;
  Say(*family, {.who = who, .other = other, .word = word});
  if (last && OneIn(3)) AddPlace(to);
  Cue(to);
  way.named = to;
  --way.lines;
}

void TellScreen(Way& way) {
  const int screener = Screener();
  if (screener == 0 || screener == Ball() || !OnOffense(screener) || way.lines <= 0) return;
  const std::string who = OffenseName(screener), other = BallName();
  Say(kScreen, {.who = who, .other = other});
  way.named = Ball();
  --way.lines;
}

// What a man does with the ball in his hands.

void TellDribble(Way& way) {
  const std::string who = BallName();
  Say(way.named == Ball() ? kMoreDribble : kDribbleMove, {.who = who});
  way.named = Ball();
  --way.lines;
}

void TellLooseBall() {
  if (!OneIn(80) || scene().PlayTime < 100) return;
  const std::string who = BallName();
  if (game.commentary.PbpLineCount == 0) NewLine(who + " with the ball");
  Say(kLooseBall);
  Say(kRecovered, {.who = who});
}

// The half court.

bool FromBackcourt() { return scene().NeedsBringUp || scene().DeadBallKind >= 3; }

void TellBringUp(Way& way, int slot) {
  const std::string who = OffenseName(slot);
  const bool pressed = PressOn() || TrapOn();
  Say(pressed && !OneIn(3) ? kBeatPress : kBringUp, {.who = who, .word = PressOn() ? "press" : "trap"});
  way.named = LastLine().Text.starts_with(who) ? slot : 0;
  Cue(slot);
  --way.lines;
}

/// Lines for the way: a quick play is told in one breath.
int RoomByTime() {
  const int time = scene().PlayTime;
  if (time < 40) return OneIn(3) ? 1 : 0;
  if (OneIn(4)) return 0;
  if (time < 130) return 1;
  if (time < 170) return OneIn(4) ? 2 : 1;
  return OneIn(8) ? 3 : OneIn(3) ? 2 : 1;
}

/// The man from whom the story of this play starts; 0 when the man of the play has had the ball all along.
int FirstHolder(int passer) {
  if (const int told = ToldHolder(); told > 0 && scene().DeadBallKind == 0 && !scene().NeedsBringUp)
    return told;
  if (scene().Possession.QuickPassReceiver == Ball()) return Ball();
  if (FromBackcourt())
    return passer > 0 && PositionOf(scene().OffenseSide, passer) <= 2 ? passer : GuardOfFive();
  return passer > 0 ? passer : OneIn(2) ? GuardOfFive() : Ball();
}

Way HalfCourtWay(int passer) {
  Way way;
  way.lines = RoomByTime();
  way.To(FirstHolder(passer));
  if (way.lines > 2) {
    const int mate = OffenseAt(ShowRnd(kPositions));
    if (OnOffense(mate) && mate != passer && mate != Ball()) way.To(mate);
  }
  way.To(passer);
  way.To(Ball());
  return way;
}

void HalfCourt() {
  const int passer = LastPasser();
  Way way = HalfCourtWay(passer);
  if (way.lines == 0) return;
  if (FromBackcourt() && (way.lines > 1 || way.Passes() == 0 || OneIn(3))) TellBringUp(way, way.man[0]);
  const int told = std::min(way.Passes(), way.lines);
  for (int leg = way.Passes() - told; leg < way.Passes(); ++leg)
    TellPass(way, way.man[leg], way.man[leg + 1], leg + 1 == way.Passes());
  TellScreen(way);
  const bool himself = passer == 0 && Scored();
  if (way.lines > 0 && way.count == 1 && way.named == 0 && OneIn(2)) {
    const std::string who = BallName();
    Say(kBallHolder, {.who = who});
    way.named = Ball();
    --way.lines;
  }
  if (way.lines > 0 || (himself && told > 0)) TellDribble(way);
  TellLooseBall();
}

void PlainPass() {
  const int holder = ToldHolder() > 0 ? ToldHolder() : GuardOfFive();
  if (holder == Ball() || !OnOffense(holder)) return;
  NewLine(OffenseName(holder) + " " + Pick(kPassWord) + " " + BallName());
}

// Off the offensive board.

void KickedOut() {
  const std::string who = OffenseName(game.play.Assister), other = BallName();
  if (game.play.Assister != Ball()) Say(kKickOut, {.who = who, .other = other});
  Cue(Ball());
}

/// An offensive rebound that became a new set.
bool ResetFromBoard() {
  return game.commentary.HolderOffBoard && ToldHolder() > 0 && scene().GameState == "OFFENSE";
}

void Reset() {
  const int guard = GuardOfFive();
  const std::string who = OffenseName(ToldHolder()), other = OffenseName(guard);
  if (guard != ToldHolder() && OnOffense(guard)) {
    Say(kKickOut, {.who = who, .other = other});
    TellHolder(scene().OffenseSide, guard);
  }
  if (OneIn(2)) {
    const std::string now = OffenseName(ToldHolder());
    Say(kReset, {.who = now});
  }
}

// The break.

std::string Numbers() {
  return std::to_string(scene().FastBreak.BreakAttackers) + " on " +
         std::to_string(scene().FastBreak.BreakDefenders);
}

void TellOutlet(int from) {
  if (from == 0 || from == Ball() || !OneIn(4)) return;
  const std::string who = OffenseName(from);
  Say(kOutlet, {.who = who});
}

void TellNumbers(int runner) {
  if (OneIn(2)) return;
  const std::string who = OffenseName(runner), word = Numbers();
  Say(kFastbreakStart, {.who = who, .word = word});
}

void TellLongPass(int from) {
  const std::string who = OffenseName(from), other = BallName();
  Say(kLongPass, {.who = who, .other = other});
  Cue(Ball());
  if (LeftAlone() && OneIn(3)) Say(kAllAlone, {.other = other});
}

void TellDefense() {
  const Man& defender = ManAt(scene().DefenseSide, scene().BallDefender);
  if (defender.DefendsBreak == 1 && !LeftAlone() && OneIn(4)) Say(kGetsBack);
}

void Break() {
  const int thief = scene().FastBreak.BreakStealer;
  const int passer = LastPasser();
  if (!OnOffense(thief)) TellOutlet(ToldHolder());
  const bool pass = passer > 0 && OneIn(2);
  TellNumbers(pass ? passer : Ball());
  if (pass) TellLongPass(passer);
  TellDefense();
}

}  // namespace

void DescribeMovement() {
  const Scene& s = scene();
  const bool told = !Brief() && !BallName().empty();
  if (told && s.PlayKind == "FASTBREAK") {
    Break();
  } else if (told && (s.PlayKind == "HOLD BALL" || s.PlayKind == "BURN")) {
    PlainPass();
  } else if (told && s.PlayKind != "OFFREB" && s.GameState == "OFFREB") {
    KickedOut();
  } else if (told && s.PlayKind != "OFFREB") {
    if (ResetFromBoard()) Reset();
    HalfCourt();
  }
  TellHolder(0, 0);
}

void DescribeQuickPass() {
  const Scene& s = scene();
  const int from = OffenseAt(s.Possession.PreviousSlot);
  if (Brief() || from == 0 || from == s.BallPlayer || BallName().empty()) return;
  const std::string who = OffenseName(from), other = BallName(), word = Pick(kPassWord);
  if (ToldHolder() == s.BallPlayer && OneIn(3)) {
    NewLine("back to " + other);
  } else {
    Say(kQuickPass, {.who = who, .other = other, .word = word});
  }
  Cue(s.BallPlayer);
  TellHolder(s.OffenseSide, s.BallPlayer);
}

void DescribePressTrouble() {
  const bool theirPoint = game.play.Posted == "ST" && game.play.StealerSlot == 1;
  if (Brief() || (!PressOn() && !TrapOn()) || !(OneIn(15) || (theirPoint && OneIn(3)))) return;
  Say(kPressTrouble);
}

}  // namespace tipline
