// The ball changes hands without a whistle, or goes out of bounds.
#include "narration/describe.h"
#include "narration/steal_sayings.h"
#include "narration/turnover_sayings.h"

namespace tipline {
namespace {

using namespace whistles;

/// A man goes to the floor for the ball, and comes up with it.
void DescribeDive() {
  Say(kPassTipped);
  Say(kDive);
  Say(kDiveEnd, {}, kStealLine);
}

void TellSteal(const std::string& loser) {
  if (!MeansHim(loser)) Say(FromThePass() ? kPass : kHasIt, {.who = loser});
  if (OneIn(30)) return DescribeDive();
  if (OneIn(8)) Say(kPassTipped);
  if (OneIn(40)) Say(kPile);
  Say(kSteal, {.who = loser}, kStealLine);
}

bool TheyKeptIt() { return game.OffenseSide == scene().OffenseSide; }

/// It went off the defender: the offense keeps it.
void DescribeDeflection() {
  if (OneIn(6)) {
    Say(kKicked);
    Say(kOffHim);
  } else if (OneIn(3)) {
    Say(kOffHim);
    Say(kOut);
  } else {
    Say(kDeflection);
    Say(kOut);
  }
  if (OneIn(2)) Say(kKeeps);
}

}  // namespace

void DescribeSteal() {
  if (game.play.Stealer == 0) return;
  const std::string loser = BallName();
  if (Brief()) {
    Say(kBriefSteal, {.who = loser}, kStealLine);
    return;
  }
  TellSteal(loser);
  const int steals = PlayerAt(scene().DefenseSide, game.play.Stealer).Stats[3].St;
  if (steals >= 4 && OneIn(3)) Say(kStealCount, {.number = steals}, kSituationRemark);
}

void DescribeOutOfBounds() {
  const bool kept = TheyKeptIt();
  if (Brief()) {
    kept ? Say(kBriefKept) : Say(kBriefLost, {}, kLostOutOfBounds);
    return;
  }
  if (kept) return DescribeDeflection();
  if (!BallManMeant()) Say(kHasIt);
  Say(kLostOut, {}, kLostOutOfBounds);
}

}  // namespace tipline
