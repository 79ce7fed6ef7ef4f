#pragma once
// Shots on the fast break, dunks wherever they come from.
#include "narration/shot_conditions.h"

namespace tipline {

// clang-format off
inline constexpr Saying kBreakShots[] = {
    {"goes in for the shot", nullptr, 20},
    {"takes it to the basket", nullptr, 20},
    {"takes it to the rim"},
    {"goes hard to the basket"},
    {"shoots on the break", nullptr, 15},
    {"puts it up on the run"},
    {"goes all the way"},
    {"goes up over {def}", BreakGuarded},
    {"takes on {def}", BreakGuarded},
    {"gives {def} a fake", BreakGuarded},
    {"has only {def} to beat", BreakGuarded},
    {"goes in alone", AloneOnBreak, 40},
    {"has nobody in front", AloneOnBreak, 40},
    {"finds a clear lane", AloneOnBreak},
    {"leads the break"},
    {"coasts in", AloneOnBreak},
    {"takes the feed from {passer}", GoodPasser},
    {"on the give and go with {passer}", GoodPasser, 5},
    {"pulls up short"},
    {"stops at the foul line and shoots"},
    {"#051"}, {"#052"}, {"#053"}, {"#056"}, {"#057"}, {"#058"}, {"#164"}, {"#165"}, {"#166"}, {"#168"},
    {"#169"}, {"#170", AloneOnBreak}, {"#171", BreakGuarded}, {"#172"},
};
inline constexpr Saying kBreakThrees[] = {
    {"with the pull-up three"},
    {"pulls up for three"},
    {"stops behind the arc and fires"},
    {"takes the three on the break"},
    {"shoots a three on the run"},
    {"#174"}, {"#175"}, {"#177"},
};
inline constexpr Saying kBreakThreesMade[] = {
    {"pulls up and drains it"},
    {"what a shot on the run!"},
    {"nobody picked him up"},
};
inline constexpr Saying kBreakFinishes[] = {
    {"easy basket on the break"},
    {"they couldn't get back"},
    {"that's how you run it"},
    {"{opp} was slow getting back"},
    {"{nick} on the run!"},
};
// In place of the run to the basket when it ends in a dunk off a pass.
inline constexpr Saying kLobs[] = {
    {"{passer} with the alley-oop to {ball}", ModernDays},
    {"{passer} lobs it to {ball}"},
    {"{passer} throws it up to {ball}"},
    {"lob pass from {passer} to {ball}"},
};

inline constexpr Saying kDunks[] = {
    {"with the grand slam!"},
    {"slams it home!"},
    {"with a rim rattler!"},
    {"with the slam!"},
    {"dunks it!", nullptr, 20},
    {"with the dunk!", nullptr, 20},
    {"slam dunk!"},
    {"with the big dunk!"},
    {"with the stuff!"},
    {"stuffs it!"},
    {"jams it!"},
    {"jams it home!"},
    {"with a two hand slam!"},
    {"with a one hand slam!"},
    {"with the reverse dunk!", ModernDays, 4},
    {"with the windmill!", AloneOnBreak, 15},
    {"with a tomahawk dunk!", ModernDays, 4},
    {"rocks the rim!"},
    {"shakes the backboard!", BigMan},
    {"drops it in with two hands!"},
    {"rams it through!"},
    {"thunder dunk!", nullptr, 3},
    {"#191"}, {"#192"}, {"#193"}, {"#194"},
};
inline constexpr Saying kFollowDunks[] = {
    {"slams home the rebound!"},
    {"with the follow slam!"},
};
inline constexpr Saying kDunkTries[] = {
    {"goes up for the dunk.."},
    {"goes up to slam it.."},
    {"wants to dunk it.."},
};
inline constexpr Saying kBlownDunks[] = {
    {"he blew the dunk!"},
    {"he stoned it!"},
    {"wow, missed it!"},
    {"he missed the dunk!"},
    {"off the back of the rim, no dunk!"},
    {"the rim stuffed him!"},
};
// clang-format on

inline constexpr Family kBreakShot{"DescribeFastbreakShot", kBreakShots};
inline constexpr Family kBreakThree{"DescribeFastbreakShot", kBreakThrees};
inline constexpr Family kBreakThreeMade{"DescribeFastbreakShot", kBreakThreesMade};
inline constexpr Family kBreakFinish{"DescribeFastbreakShot", kBreakFinishes};
inline constexpr Family kLob{"DescribeFastbreakShot", kLobs};
inline constexpr Family kDunk{"DescribeDunk", kDunks};
inline constexpr Family kFollowDunk{"DescribeDunk", kFollowDunks};
inline constexpr Family kDunkTry{"DescribeBlownDunk", kDunkTries};
inline constexpr Family kBlownDunk{"DescribeBlownDunk", kBlownDunks};

}  // namespace tipline
