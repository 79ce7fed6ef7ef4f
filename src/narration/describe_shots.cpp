// Shots and the score.
#include "narration/describe.h"
#include "narration/phrases.h"

namespace tipline {
namespace {
constexpr Saying kMade[] = {{"{ball} scores"}, {"{ball} hits it"}};
constexpr Saying kMissed[] = {{"{ball} misses"}, {"{ball}'s shot won't go"}};
constexpr Family kShotMade{"DescribeShotMade", kMade};
constexpr Family kShotMissed{"DescribeShotMissed", kMissed};
constexpr Family kAll[] = {kShotMade, kShotMissed};
constexpr PhraseRole kPhrases[] = {{122, "tie game", "the score is tied"}};
}  // namespace

void DescribeShot() {
  Say(Scored() ? kShotMade : kShotMissed, {}, Scored() ? kMadeTwo : kMissedShot);
  if (game.play.Fouler > 0) DescribeFouledOnShot();
}
void DescribeTip() {}
void DescribeScoreSituation() {}
void DescribeHoldBall() {}
void DescribeNoShot() {}
std::span<const Family> ShotFamilies() { return kAll; }
std::span<const PhraseRole> ShotPhrases() { return kPhrases; }

}  // namespace tipline
