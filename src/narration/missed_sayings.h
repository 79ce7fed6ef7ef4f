#pragma once
// Shots that did not go in, blocks, and the ball on the rim.
#include "narration/shot_conditions.h"

namespace tipline {

inline bool MissedFar() { return !FromClose(); }
inline bool MissedClose() { return FromClose(); }
inline bool FromBehind() { return OnBreak() || OnDrive(); }

// clang-format off
inline constexpr Saying kMissedAny[] = {
    {"the shot is off the rim", nullptr, 15},
    {"the shot is no good", nullptr, 15},
    {"the shot missed"},
    {"the shot doesn't fall"},
    {"no good", nullptr, 25},
    {"he missed it"},
    {"won't go", nullptr, 15},
    {"it won't go"},
    {"can't get it to fall"},
    {"too strong", nullptr, 15},
    {"hard off the rim"},
    {"hoop didn't want it", nullptr, 3},
    {"and off", nullptr, 12},
    {"and out", nullptr, 12},
    {"in and out", nullptr, 8},
    {"off the rim", nullptr, 20},
    {"off the back of the rim", nullptr, 12},
    {"off the front of the rim", nullptr, 12},
    {"too long", MissedFar, 12},
    {"leaves it short", MissedFar, 12},
    {"off the heel", MissedFar, 6},
    {"wide left", MissedFar, 3},
    {"wide right", MissedFar, 3},
    {"way off", MissedFar, 3},
    {"not even close", MissedFar, 2},
    {"long off the iron", MissedFar, 3},
    {"{ball}'s shot is off"},
    {"{ball} misses"},
    {"{ball} misses from outside", MissedFar, 6},
    {"{ball} misses inside", MissedClose, 6},
    {"off the glass, no good", MissedClose, 8},
    {"rolls off", MissedClose},
    {"rolls around and out", MissedClose, 5},
    {"can't get the roll", MissedClose, 6},
    {"too hard off the glass", MissedClose, 6},
    {"{ball} misses from close in", MissedClose, 5},
    {"couldn't convert on the break", OnBreak, 15},
    {"{ball} misses on the break", OnBreak},
    {"the three is off", CountsThree, 15},
    {"the three is no good", CountsThree, 15},
    {"{ball} misses from long range", CountsThree, 6},
    {"the long one won't go", CountsThree, 6},
    {"#224", nullptr, 15}, {"#225"}, {"#226"}, {"{ball} #227"}, {"{ball} #228"}, {"#229", MissedClose},
    {"{ball} #231"}, {"#233", MissedFar}, {"#234", CountsThree}, {"{ball} #235", CountsThree}, {"#237"},
    {"#238", MissedFar}, {"#240"},
};
inline constexpr Saying kAirBalls[] = {
    {"he missed everything!"},
    {"nothing but air"},
    {"it never got there"},
    {"#236", nullptr, 20},
};
// {word} is his line in this game; the misses are his last ones.
inline constexpr Saying kHuman[] = {{"he's human after all!"}};
inline constexpr Saying kCold[] = {
    {"he's ice cold"},
    {"he's off again"},
    {"he can't buy a basket"},
    {"{ball} is {word}"},
    {"#230", nullptr, 20},
};

// {who} blocked it.
inline constexpr Saying kBlocks[] = {
    {"{who} blocks it!", nullptr, 25},
    {"blocked by {who}", nullptr, 25},
    {"{who} blocks the shot", nullptr, 15},
    {"{who} blocks it from behind", FromBehind, 15},
    {"chase down block by {who}", OnBreak, 40},
    {"{who} got a piece of it"},
    {"{who} got a finger on it!"},
    {"{who} knocks it away"},
    {"{who} slaps it away"},
    {"stuffed by {who}", MissedClose},
    {"{who} stuffs it back", MissedClose},
    {"denied by {who}!"},
    {"{who} says no!", nullptr, 5},
    {"{who} was waiting for it", MissedClose, 5},
    {"big block by {who}"},
    {"{who} turns it away"},
    {"{who} pins it on the glass", MissedClose, 3},
    {"{who} #198"}, {"{who} #200"}, {"{who} #201"}, {"#202 {who}"},
};
// {n} is how many he has.
inline constexpr Saying kBlockRemarks[] = {
    {"he's an intimidator!"},
    {"that's {n} blocks for {who}"},
    {"{n} blocks now for {who}"},
    {"they'd better look for him in there"},
    {"nothing comes easy around {who}"},
};

// On the rim: what happens first, and how it ends.
inline constexpr Saying kHangs[] = {
    {"it hangs on the rim.."},
    {"it's up on the rim.."},
    {"around and around.."},
    {"#204"}, {"#206"},
};
inline constexpr Saying kHangsIn[] = {{"and in"}, {"and it falls in"}, {"and it drops through!"}};
inline constexpr Saying kHangsOut[] = {{"off the rim"}, {"and off"}, {"and it rolls out"}};
inline constexpr Saying kInterference[] = {
    {"basket interference is called on {team}"},
    {"{team} touched it on the rim, interference"},
};
inline constexpr Saying kNoPoints[] = {{"take the points off the board"}};
inline constexpr Saying kStucks[] = {
    {"that one is stuck on the rim!"},
    {"it's pinned between the rim and backboard!"},
    {"the ball won't come down!"},
    {"it's wedged behind the rim!"},
};
// clang-format on

inline constexpr Family kMissed{"DescribeShotMissed", kMissedAny};
inline constexpr Family kAirBall{"DescribeShotMissed", kAirBalls};
inline constexpr Family kHumanAfterAll{"DescribeShotMissed", kHuman};
inline constexpr Family kColdShooter{"DescribeShotMissed", kCold};
inline constexpr Family kBlock{"DescribeBlock", kBlocks};
inline constexpr Family kBlockRemark{"DescribeBlock", kBlockRemarks};
inline constexpr Family kHang{"DescribeRimResult", kHangs};
inline constexpr Family kHangIn{"DescribeRimResult", kHangsIn};
inline constexpr Family kHangOut{"DescribeRimResult", kHangsOut};
inline constexpr Family kInterferenceCall{"DescribeRimResult", kInterference};
inline constexpr Family kPointsOff{"DescribeRimResult", kNoPoints};
inline constexpr Family kStuck{"DescribeStuckOnRim", kStucks};

}  // namespace tipline
