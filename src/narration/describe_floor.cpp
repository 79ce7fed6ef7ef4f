// The ball and the floor.
#include "narration/describe.h"
#include "narration/phrases.h"

namespace tipline {
namespace {
constexpr Saying kReboundSayings[] = {{"rebounded by {rebounder}"}};
constexpr Family kRebound{"DescribeRebound", kReboundSayings};
constexpr Family kAll[] = {kRebound};
constexpr PhraseRole kPhrases[] = {{6, "rebounded by", "rebounded by PLAYER"}};
}  // namespace

void DescribeMovement() {}
void DescribeInbound() {}
void DescribeMoveUp() {}
void DescribeRebound() { Say(kRebound, {}, kReboundLine); }
void DescribeTieUp() {}
void DescribeQuickPass() {}
void DescribeOpening() {}
void DescribeTimeout(int, bool) {}
void DescribeLineupChanges() {}
void DescribePeriodEnd() {}
std::span<const Family> FloorFamilies() { return kAll; }
std::span<const PhraseRole> FloorPhrases() { return kPhrases; }

}  // namespace tipline
