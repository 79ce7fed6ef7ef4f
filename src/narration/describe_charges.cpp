// Fouls of the man with the ball, and of those who screen for him.
#include "narration/contact_sayings.h"
#include "narration/describe.h"
#include "narration/foul_remarks.h"

namespace tipline {
namespace {

using namespace whistles;

/// Some see a man act in it: the words hang on the line of the collision.
void TellFlop() {
  const std::string words = Pick(kFlop);
  words.starts_with("with") ? AddToLine(" " + words) : NewLine(words);
}

void DescribeCharge() {
  if (!BallManMeant()) Say(kDriveIn);
  if (TowardsTheBasket() && OneIn(8)) {  // let go as they collide: it does not count
    Say(kChargeShot);
    Say(kChargeShotEnd);
  }
  Say(kCharge);
  if (OneIn(10)) {
    TellFlop();
  } else if (OneIn(6)) {
    Say(kFall);
  }
}

}  // namespace

void DescribeOffensiveFoul() {
  if (game.play.Fouler == 0) return;
  if (Brief()) {
    Say(kBriefOffensiveFoul, {}, kOffensiveFoulLine);
    return;
  }
  if (game.play.OffBallFoul) {
    Say(kScreen);
  } else {
    DescribeCharge();
  }
  Say(kOffensiveFoul, {}, kOffensiveFoulLine);
  TellFoulCounts();
  DescribeComplaint();
}

}  // namespace tipline
