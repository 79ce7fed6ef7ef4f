#pragma once
// Baskets: the result, who passed, what is remarked on the scorer. {word} is his line in this game, "5 for
// 7".
#include "narration/shot_conditions.h"

namespace tipline {

inline bool MadeTwo() { return !CountsThree(); }
inline bool MadeJumper() { return MadeTwo() && FromOutside(); }
inline bool MadeClose() { return MadeTwo() && FromClose(); }
inline bool MadeInside() { return FromPost() && MadeTwo(); }
inline bool MadeBreakTwo() { return OnBreak() && MadeClose(); }
inline bool MadePutback() { return Putback() && scene().PutbackClass == 1; }
inline bool JumperBaseline() { return MadeJumper() && FromBaseline(); }
inline bool JumperFoulLine() { return MadeJumper() && FromFoulLine(); }
inline bool JumperBanked() { return MadeJumper() && (FromLeft() || FromRight()); }
inline bool JumperNow() { return MadeJumper() && ModernDays(); }

// clang-format off
inline constexpr Saying kMadeAny[] = {
    {"good", nullptr, 25},
    {"and in", nullptr, 20},
    {"and in!", nullptr, 10},
    {"hits it", nullptr, 20},
    {"gets the roll", nullptr, 5},
    {"it's good", nullptr, 15},
    {"it goes", nullptr, 8},
    {"it's in"},
    {"it falls", nullptr, 8},
    {"he got it", nullptr, 6},
    {"{ball} hits it"},
    {"{ball} makes it", nullptr, 6},
    {"no doubt about it", nullptr, 3},
    {"#050", nullptr, 20}, {"#208"}, {"#212"}, {"#214"}, {"{ball} #216", MadeTwo}, {"#217", MadeClose},
    {"all net", MadeJumper, 15},
    {"swish", MadeJumper, 15},
    {"nothing but net", MadeJumper, 8},
    {"right on the mark", MadeJumper, 6},
    {"buries it", MadeJumper, 8},
    {"cans it", MadeJumper, 6},
    {"dead center", MadeJumper, 4},
    {"tickles the twine", MadeJumper, 2},
    {"splash!", JumperNow, 3},
    {"hits the jumper", MadeJumper, 15},
    {"knocks down the jumper", MadeJumper, 8},
    {"{ball} hits the jumper", MadeJumper},
    {"{ball} scores from outside", MadeJumper, 6},
    {"good from the baseline", JumperBaseline, 15},
    {"good from the foul line", JumperFoulLine, 15},
    {"banks it in", JumperBanked, 5},
    {"banks it home", MadeInside, 8},
    {"#209", MadeJumper}, {"#213", MadeJumper}, {"#218", MadeJumper}, {"#215", MadeClose},
    {"scores inside", MadeInside, 12},
    {"{ball} scores inside", MadeInside},
    {"gets it to go", MadeClose},
    {"and it rolls in", MadeClose, 5},
    {"gets the bounce", MadeClose, 4},
    {"gets it to drop", MadeClose, 8},
    {"drops it in", MadeClose, 6},
    {"makes it look easy", MadeClose, 3},
    {"off the glass, good", MadeClose, 8},
    {"{ball} scores on the drive", OnDrive, 15},
    {"gets it to fall", OnDrive, 8},
    {"{ball} scores on the break", MadeBreakTwo, 15},
    {"two more on the break", MadeBreakTwo, 6},
    {"puts it back in", MadePutback, 20},
    {"good on the follow", MadePutback, 15},
    {"{ball} gets a second chance basket", MadePutback, 6},
    {"second effort, and it's good", MadePutback, 4},
};
inline constexpr Saying kMadeThrees[] = {
    {"hits the three", nullptr, 20},
    {"{ball} hits the three", nullptr, 15},
    {"buries the three"},
    {"{ball} buries the three"},
    {"drains the three"},
    {"nails the three"},
    {"{ball} nails it"},
    {"good for three"},
    {"it's a three"},
    {"{ball} for three, good!"},
    {"hits it from downtown", nullptr, 6},
    {"from long range, good"},
    {"swish"},
    {"all net"},
    {"good", nullptr, 15},
    {"and in!"},
    {"good from the corner", FromCorner, 20},
    {"right down Main Street", FromTheTop, 5},
    {"#219"}, {"#220"}, {"#050"}, {"#209"}, {"#218"},
};
inline constexpr Saying kMadeLayups[] = {
    {"lays it in", nullptr, 20},
    {"{ball} lays it in"},
    {"good", nullptr, 20},
    {"and in", nullptr, 20},
    {"it's good"},
    {"off the glass and down"},
    {"kisses it in off the glass", nullptr, 4},
    {"{ball} scores"},
    {"#050"}, {"#215"}, {"#217"},
};
inline constexpr Saying kMadeHeaves[] = {
    {"he threw it to the heavens.."},
};
inline constexpr Saying kMadeHeaveEnds[] = {
    {"and the gods kissed it!"},
};
inline constexpr Saying kFootOnLine[] = {
    {"his foot was on the line"},
    {"it's only a two, a foot was on the line"},
    {"that will count for two"},
};

inline constexpr Saying kOldThrees[] = {
    {"the old man can still see from there!"},
    {"the old man can still drain the three!"},
    {"the old man can still hit from downtown!"},
};
// {n} his threes; {word} his tries.
inline constexpr Saying kManyThrees[] = {
    {"{n} threes for {ball}"},
    {"{word} on three attempts"},
    {"that's {n} threes for {ball}"},
};
inline constexpr Saying kFinally[] = {
    {"finally gets one to go ({word})"},
    {"finally made a shot ({word})"},
    {"finally hit one"},
    {"{ball} finally has one"},
};
// {n} baskets in a row.
inline constexpr Saying kHot[] = {
    {"#105", nullptr, 30},
    {"{n} in a row for {ball}"},
    {"{ball} has made {n} straight"},
    {"{ball} is on fire", nullptr, 5},
    {"{ball} #222"}, {"{ball} #223", nullptr, 5},
};
// {n} points.
inline constexpr Saying kPointMarks[] = {
    {"{n} points for {ball}"},
    {"{ball} has {n} points"},
    {"that's {n} for {ball}"},
};
inline constexpr Saying kDoubles[] = {{"#103 {who}"}};
inline constexpr Saying kTriples[] = {{"#104 {who}"}};

// {who} passed, for the {n}th time.
inline constexpr Saying kAssists[] = {
    {"#026 {who}", nullptr, 40},
    {"{who} #025", nullptr, 40},
    {"{who} #207"},
};
inline constexpr Saying kGreatPassers[] = {
    {"{who} made that play happen"},
    {"he's amazing!"},
    {"{who} finds everybody"},
    {"{n} assists for {who}"},
    {"what a night of passing by {who}"},
};

// The tip at the rim: {who} tipped it.
inline constexpr Saying kTipsMade[] = {
    {"tipped in by {who}", nullptr, 15},
    {"{who} tips it in!", nullptr, 15},
    {"{who} with the tip-in"},
    {"{who} taps it in"},
    {"{who} is there to tip it in"},
};
inline constexpr Saying kTipDunks[] = {
    {"{who} slams home the rebound!"},
    {"{who} with the tip slam!"},
};
inline constexpr Saying kTipsMissed[] = {
    {"{who} can't tip it in", nullptr, 15},
    {"tip by {who} won't go", nullptr, 15},
    {"{who} tries to tip it, no good"},
    {"{who}'s tip is off"},
};

inline constexpr Saying kGoaltends[] = {
    {"goaltending called on {who}"},
    {"{who} is called for goaltending"},
};
inline constexpr Saying kGoaltendCounts[] = {{"#203"}};
// clang-format on

inline constexpr Family kMade{"DescribeShotMade", kMadeAny};
inline constexpr Family kThreeMade{"DescribeShotMade", kMadeThrees};
inline constexpr Family kLayupMade{"DescribeShotMade", kMadeLayups};
inline constexpr Family kHeaveMade{"DescribeThreeShot", kMadeHeaves};
inline constexpr Family kHeaveEnd{"DescribeThreeShot", kMadeHeaveEnds};
inline constexpr Family kLineTouched{"DescribeShotMade", kFootOnLine};
inline constexpr Family kOldThree{"DescribeThreeShot", kOldThrees};
inline constexpr Family kThreesSoFar{"DescribeShotMade", kManyThrees};
inline constexpr Family kFinallyOne{"DescribeShotMade", kFinally};
inline constexpr Family kHotShooter{"DescribeShotMade", kHot};
inline constexpr Family kPointMark{"DescribeShotMade", kPointMarks};
inline constexpr Family kDoubleDouble{"DescribeShotMade", kDoubles};
inline constexpr Family kTripleDouble{"DescribeShotMade", kTriples};
inline constexpr Family kAssist{"DescribeAssist", kAssists};
inline constexpr Family kGreatPasser{"DescribeAssist", kGreatPassers};
inline constexpr Family kTipMade{"DescribeTip", kTipsMade};
inline constexpr Family kTipDunk{"DescribeTip", kTipDunks};
inline constexpr Family kTipMissed{"DescribeTip", kTipsMissed};
inline constexpr Family kGoaltend{"DescribeGoaltending", kGoaltends};
inline constexpr Family kGoaltendCount{"DescribeGoaltending", kGoaltendCounts};

}  // namespace tipline
