#pragma once
// What is said of a shot up to the moment it leaves the hand: nothing here tells whether it goes in. A text
// that begins with a verb gets the shooter's name in front when the line before has not named him.
#include "narration/shot_conditions.h"

namespace tipline {

// clang-format off
inline constexpr Saying kOutsideShots[] = {
    {"shoots the jumper", nullptr, 20},
    {"with the jumper", nullptr, 15},
    {"takes the jumper", nullptr, 15},
    {"shoots the jump shot", nullptr, 15},
    {"fires from outside"},
    {"shoots from outside"},
    {"lets the jumper go"},
    {"from mid-range"},
    {"with the fallaway"},
    {"shoots off the dribble"},
    {"catches and shoots", OffThePass},
    {"shoots on the catch", OffThePass},
    {"from the baseline", FromBaseline, 25},
    {"shoots from the baseline", FromBaseline, 25},
    {"from the foul line", FromFoulLine, 25},
    {"shoots from the elbow", FromFoulLine, 25},
    {"from the left side", FromLeft, 25},
    {"shoots from the left wing", FromLeft, 25},
    {"from the right side", FromRight, 25},
    {"shoots from the right wing", FromRight, 25},
    {"shoots over {def}", Guarded},
    {"with a hand in the face", Guarded, 5},
    {"hurries the shot", ShotClockLow, 30},
    {"shoots with the clock running down", ShotClockLow, 30},
    {"#051"}, {"#052"}, {"#053"}, {"#054"}, {"#055"}, {"#057"}, {"#058"}, {"#059"}, {"#060"}, {"#061"},
};
inline constexpr Saying kOutsideMoves[] = {
    {"sets his feet"},
    {"squares up"},
    {"is open"},
    {"has a look"},
    {"has room", Guarded},
    {"gives {def} a fake", Guarded},
    {"fakes the drive and steps back", Guarded, 5},
    {"jab steps on {def}", Guarded, 5},
    {"comes off a screen", OffThePass},
};
inline constexpr Saying kSetShots[] = {
    {"shoots the set shot"},
    {"with the set shot"},
    {"with the two hand set shot"},
    {"takes the set shot", nullptr, 5},
};

inline constexpr Saying kThreeShots[] = {
    {"shoots a three", nullptr, 20},
    {"takes the three", nullptr, 20},
    {"fires a three", nullptr, 15},
    {"shoots from beyond the arc"},
    {"with a rainbow three", nullptr, 5},
    {"with a high arcing three", nullptr, 5},
    {"with a long three"},
    {"lets the three go"},
    {"puts up a three"},
    {"pulls up for three"},
    {"catches and fires a three", OffThePass},
    {"for three over {def}", Guarded},
    {"with a contested three", Guarded, 5},
    {"from the corner", FromCorner, 40},
    {"shoots a three from the corner", FromCorner, 40},
    {"from straight away", FromTheTop, 40},
    {"for three from the top", FromTheTop, 40},
    {"for three from the wing", FromTheWing, 20},
    {"shoots a three from the wing", FromTheWing, 20},
    {"hoists a three", ShotClockLow, 30},
    {"has to force up a three", ShotClockLow, 30},
    {"tries yet another three", ManyThreesTried, 20},
    {"#173"}, {"#174"}, {"#175"}, {"#177"}, {"#178"}, {"#190"}, {"#051", nullptr, 4}, {"#052", nullptr, 4},
    {"#053", nullptr, 4}, {"#054", nullptr, 4}, {"#055", nullptr, 4}, {"#061"},
};
inline constexpr Saying kDeepThrees[] = {
    {"with a very deep three"},
    {"fires from well beyond the arc"},
    {"with a deep three"},
    {"#239"}, {"#210"},
};
inline constexpr Saying kHeaves[] = {
    {"if that goes in.."},
    {"I'm walking home!"},
    {"you gotta be kidding!"},
    {"that's a prayer!"},
    {"heaves it from way out!"},
};
inline constexpr Saying kHeaveShots[] = {
    {"throws it up from long range"},
    {"heaves it"},
    {"flings one toward the basket"},
};
inline constexpr Saying kWild[] = {{"#211"}};

inline constexpr Saying kSameSpot[] = {
    {"from the same spot again"},
    {"goes back to that same spot"},
};

// {word} is the shot, {other} its article.
inline constexpr Saying kFavorites[] = {
    {"with {other} {word}"},
    {"with the {word}"},
    {"shoots {other} {word}"},
};

inline constexpr Saying kLayups[] = {
    {"with the layup", nullptr, 20},
    {"lays it up", nullptr, 20},
    {"goes up for the layup"},
    {"scoops it"},
    {"underhands it"},
    {"with the reverse layup", nullptr, 5},
    {"#195"}, {"#196"},
};

inline constexpr Saying kSpins[] = {
    {"spins", Guarded},
    {"pivots"},
    {"spin move"},
    {"spins on {def}", Guarded},
    {"spins the other way"},
};

// Before the shot: how he is guarded.
inline constexpr Saying kDoubled[] = {
    {"{ball} is double teamed"},
    {"{opp} is collapsing on him"},
    {"they're collapsing on him"},
    {"{ball} is doubled, someone must be open"},
    {"the double team comes at {ball}"},
    {"{ball} draws a crowd"},
    {"{ball} #179"}, {"#186"},
};
inline constexpr Saying kWayOff[] = {
    {"{def} is way off {ball}"},
    {"he's way off him"},
    {"{def} dares {ball} to shoot"},
    {"{def} #181 {ball}"},
};
inline constexpr Saying kLoose[] = {
    {"defended by {def} pretty loosely"},
    {"loosely defended by {def}"},
    {"loosely guarded by {def}"},
    {"{ball} has a cushion from {def}"},
    {"{def} lays back a little"},
    {"{def} #180 {ball}"},
};
inline constexpr Saying kTight[] = {
    {"{def} is on him pretty tight"},
    {"{def} is up in his grill", ModernDays},
    {"tightly defended by {def}"},
    {"tightly guarded by {def}"},
    {"{def} won't give {ball} any room"},
    {"{def} is all over {ball}"},
    {"{def} #182 {ball}"},
    {"{def} #183 {ball}"},
    {"{def} #184 {ball}"},
};
inline constexpr Saying kFoulIntent[] = {
    {"{def} is trying to foul him"},
    {"{def} is trying to hack him"},
    {"{def} #185 {ball}"},
};
// clang-format on

inline constexpr Family kOutsideShot{"DescribeOutsideShot", kOutsideShots};
inline constexpr Family kOutsideMove{"DescribeOutsideShot", kOutsideMoves};
inline constexpr Family kSetShot{"DescribeOutsideShot", kSetShots};
inline constexpr Family kThreeShot{"DescribeThreeShot", kThreeShots};
inline constexpr Family kDeepThree{"DescribeThreeShot", kDeepThrees};
inline constexpr Family kHeave{"DescribeThreeShot", kHeaves};
inline constexpr Family kHeaveShot{"DescribeThreeShot", kHeaveShots};
inline constexpr Family kWildShot{"DescribeThreeShot", kWild};
inline constexpr Family kSameSpotShot{"DescribeOutsideShot", kSameSpot};
inline constexpr Family kFavorite{"FavoriteShot", kFavorites};
inline constexpr Family kLayup{"DescribeLayup", kLayups};
inline constexpr Family kSpin{"DescribeSpin", kSpins};
inline constexpr Family kDoubledSetup{"DescribeShotSetup", kDoubled};
inline constexpr Family kWayOffSetup{"DescribeShotSetup", kWayOff};
inline constexpr Family kLooseSetup{"DescribeShotSetup", kLoose};
inline constexpr Family kTightSetup{"DescribeShotSetup", kTight};
inline constexpr Family kFoulSetup{"DescribeShotSetup", kFoulIntent};

}  // namespace tipline
