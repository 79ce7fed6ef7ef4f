#pragma once
// Shots from the post, and put-backs under the basket: the moves, the shot, and what is added to a basket.
#include "narration/shot_conditions.h"

namespace tipline {

// clang-format off
inline constexpr Saying kInsideMoves[] = {
    {"pump fakes"},
    {"double pumps"},
    {"spin move"},
    {"drop step to the basket"},
    {"with the up and under move"},
    {"backs in"},
    {"backs in on {def}"},
    {"bumps {def}"},
    {"turns on {def}"},
    {"fakes left, goes right"},
    {"fakes right, goes left"},
    {"posts up {def}"},
    {"calls for the ball down low"},
    {"has position on {def}"},
    {"seals off {def}"},
    {"gives {def} the shoulder"},
    {"head fake on {def}"},
    {"on the left block", LeftBlock, 30},
    {"on the right block", RightBlock, 30},
    {"has the height on {def}", MismatchTall, 30},
    {"dribbles twice and turns"},
    {"drop steps on {def}"},
    {"#063"}, {"#064 {def}"}, {"#067"}, {"#068"}, {"#149"}, {"#150"},
};
inline constexpr Saying kInsideShots[] = {
    {"turnaround jump shot", nullptr, 6},
    {"shoots from inside", nullptr, 20},
    {"shoots the short jumper", nullptr, 15},
    {"with the turnaround", nullptr, 15},
    {"with the hook", BigMan, 20},
    {"shoots the hook", BigMan, 20},
    {"with the short hook", BigMan},
    {"goes up strong", nullptr, 15},
    {"goes up over {def}"},
    {"shoots over {def}"},
    {"from close in"},
    {"from point blank range"},
    {"turns and shoots"},
    {"turns and fires"},
    {"fades away and shoots"},
    {"shoots in traffic"},
    {"puts it up in a crowd"},
    {"uses the glass"},
    {"leans in and shoots"},
    {"puts up a soft one"},
    {"with the half hook", BigMan, 5},
    {"goes up with two hands", BigMan, 5},
    {"from the left block", LeftBlock, 25},
    {"from the right block", RightBlock, 25},
    {"shoots over the smaller defender", MismatchTall, 25},
    {"reaches back and shoots", nullptr, 4},
    {"has to hurry it", ShotClockLow, 30},
    {"forces one up inside", ShotClockLow, 30},
    {"#051"}, {"#052"}, {"#053"}, {"#054"}, {"#055", nullptr, 4}, {"#056"}, {"#057"}, {"#058"}, {"#065"},
    {"#066"}, {"#069"}, {"#070"}, {"#071"}, {"#072"},
};
inline constexpr Saying kPutbacks[] = {
    {"goes right back up"},
    {"puts it back up"},
    {"goes back up with it"},
    {"with the follow"},
    {"with the follow shot"},
    {"tries to put it back"},
    {"goes up again"},
    {"back up in traffic"},
    {"puts up the stickback"},
};
inline constexpr Saying kInsideFinishes[] = {
    {"in the face of {def}!", Guarded},
    {"{def} had no answer", Guarded},
    {"right over {def}", Guarded},
    {"too much {ball} inside"},
    {"easy as you please"},
    {"what a move by {ball}!"},
    {"a big basket inside"},
};
inline constexpr Saying kInsideLetdowns[] = {
    {"{def} bothered that one", Guarded},
    {"good defense by {def}", Guarded},
    {"{def} made him work for it", Guarded},
    {"tough shot in there"},
};
// clang-format on

inline constexpr Family kInsideMove{"DescribeInsideShot", kInsideMoves};
inline constexpr Family kInsideShot{"DescribeInsideShot", kInsideShots};
inline constexpr Family kPutbackShot{"DescribeInsideShot", kPutbacks};
inline constexpr Family kInsideFinish{"DescribeInsideShot", kInsideFinishes};
inline constexpr Family kInsideLetdown{"DescribeInsideShot", kInsideLetdowns};

}  // namespace tipline
