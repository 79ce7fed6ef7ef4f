// Whistles and lost balls.
#include "narration/describe.h"
#include "narration/phrases.h"

namespace tipline {
namespace {
constexpr Saying kFoulSayings[] = {{"{fouler} fouls {ball}"}};
constexpr Family kFoul{"DescribeFoul", kFoulSayings};
constexpr Family kAll[] = {kFoul};
constexpr PhraseRole kPhrases[] = {{116, "bad pass", "PLAYER throws a bad pass"}};
}  // namespace

void DescribeFouledOnShot() { Say(kFoul); }
void DescribeFoul() { Say(kFoul); }
void DescribeOffensiveFoul() {}
void DescribeDoubleFoul() {}
void DescribeLooseBallFoul() {}
void DescribeFlagrant() {}
void DescribeFreeThrow() {}
void DescribeTurnover() {}
void DescribeSteal() {}
void DescribeShotClockViolation() {}
void DescribeOutOfBounds() {}
void DescribeDelay() {}
void DescribeBegForCall() {}
std::span<const Family> WhistleFamilies() { return kAll; }
std::span<const PhraseRole> WhistlePhrases() { return kPhrases; }

}  // namespace tipline
