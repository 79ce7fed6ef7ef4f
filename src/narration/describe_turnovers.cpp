// The ball is lost with a whistle. How is drawn for show: the books know only that it was lost, so the loss
// must fit the man, the play and the press.
#include "narration/describe.h"
#include "narration/foul_remarks.h"
#include "narration/turnover_sayings.h"

namespace tipline {
namespace {

using namespace whistles;

enum class Loss { kBadPass, kOut, kRebound, kTravel, kDoubleDribble, kOverLine, kThreeSec, kFiveSec, kShot };

struct LossOdds {
  Loss loss;
  int (*weight)();
};
// clang-format off
constexpr LossOdds kLosses[] = {
    {Loss::kBadPass,       [] { return Putback() ? 0 : Lobbed() ? 1000 : OnBreak() ? 60 : 40; }},
    {Loss::kOut,           [] { return Holding() ? 10 : OnDrive() || FullCourtPressure() ? 30 : 18; }},
    {Loss::kRebound,       [] { return Putback() ? 100 : 0; }},
    {Loss::kTravel,        [] { return Putback() ? 0 : FromPost() || OnDrive() ? 35 : 18; }},
    {Loss::kDoubleDribble, [] { return Putback() ? 0 : BigMan() ? 3 : 5; }},
    {Loss::kOverLine,      [] { return !SetOffense() || FromPost() ? 0 : FullCourtPressure() || Holding() ? 15 : Guard() ? 4 : 0; }},
    {Loss::kThreeSec,      [] { return SetOffense() && !Holding() && BigMan() ? 8 : 0; }},
    {Loss::kFiveSec,       [] { return Holding() ? 25 : 0; }},
    {Loss::kShot,          [] { return SetOffense() && !Holding() ? 1 : 0; }},
};
// clang-format on

Loss DrawLoss() {
  int sum = 0;
  for (const LossOdds& l : kLosses) sum += l.weight();
  int left = ShowRnd(sum);
  for (const LossOdds& l : kLosses) {
    left -= l.weight();
    if (left <= 0) return l.loss;
  }
  return Loss::kBadPass;
}

void NameTheBallMan() {
  if (!BallManMeant()) Say(kHasIt);
}

/// Anybody else of the five: a pass is meant for somebody.
std::string Teammate() {
  const int position = ShowRnd(kPositions);
  const int slot = OffenseThen().Lineup[position];
  return slot == scene().BallPlayer ? "" : NameOf(scene().OffenseSide, slot);
}

void TellBadPass() {
  const std::string mate = Teammate();
  if (Lobbed() && Say(kLobLost, {}, kLostOutOfBounds)) return;
  if (OneIn(60)) {
    NameTheBallMan();
    Say(kHotDog);
    Say(kMustard);
  } else if (OneIn(5) && Say(kLook, {.who = mate})) {
    Say(kBehindHim, {}, kLostOutOfBounds);
  } else {
    Say(kBadPass, {.who = mate}, kLostOutOfBounds);
  }
}

void DescribeTravel() {
  NameTheBallMan();
  if (OneIn(3)) Say(kTravelAct);
  Say(kTravel, {}, kTraveling);
}

void TellAfterRebound() {
  const std::string words = Pick(kAfterRebound);
  NewLine(words, words.ends_with("traveled") ? kTraveling : kDoubleDribble);
}

void TellLostShot() {
  Say(kLostShot);
  Say(kLostShotEnd);
  Say(kOutOfBounds, {}, kLostOutOfBounds);
}

void TellNamed(const Family& family, int spokenKind) {
  NameTheBallMan();
  Say(family, {}, spokenKind);
}

/// A call of the officials, and no pass that went astray: somebody may not like it.
bool TellLoss(Loss loss) {
  switch (loss) {
    case Loss::kBadPass:
      TellBadPass();
      return false;
    case Loss::kOut:
      TellNamed(kLostOut, kLostOutOfBounds);
      return false;
    case Loss::kRebound:
      TellAfterRebound();
      return true;
    case Loss::kTravel:
      DescribeTravel();
      return true;
    case Loss::kDoubleDribble:
      TellNamed(kDribbles, kDoubleDribble);
      return true;
    case Loss::kOverLine:
      TellNamed(kOverLine, kBackcourtViolation);
      return true;
    case Loss::kThreeSec:
      TellNamed(kLane, kThreeSeconds);
      return true;
    case Loss::kFiveSec:
      TellNamed(kHeldTooLong, kFiveSeconds);
      return true;
    case Loss::kShot:
      TellLostShot();
      return false;
  }
  return false;
}

/// A careless side is told so: the count climbs from loss to loss, and comes down once it has been said.
void TellSloppiness() {
  int& sloppy = game.commentary.SloppyCount;
  if (sloppy >= 4) {
    if (!Brief() && OneIn(2)) Say(kSloppy, {}, kSituationRemark);
    sloppy -= ShowRnd(2);
  } else if (OneIn(4)) {
    sloppy = sloppy < 2 ? 2 : sloppy + 1;
  }
}

void TellTurnoverCount() {
  const int lost = BallMan().Stats[3].To;
  if (lost >= 4 && OneIn(3)) Say(kTurnoverCount, {.number = lost}, kSituationRemark);
}

}  // namespace

void DescribeTurnover() {
  if (BallName().empty()) return;
  if (Brief()) {
    Say(kBriefTurnover, {}, kLostOutOfBounds);
  } else {
    if (TellLoss(DrawLoss())) DescribeComplaint();
    TellTurnoverCount();
  }
  TellSloppiness();
}

void DescribeShotClockViolation() {
  if (Brief()) {
    Say(kBriefShotClock, {}, kShotClockViolation);
    return;
  }
  if (OneIn(4)) {
    Say(kNoSet);
    Say(kNoSetEnd);
  }
  Say(kShotClock, {.number = league.rules.ShotClockList}, kShotClockViolation);
}

}  // namespace tipline
