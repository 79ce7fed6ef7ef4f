#pragma once
// Balls thrown away, violations, balls out of bounds. {who} is a teammate the pass was meant for.
#include "narration/whistle_moments.h"

namespace tipline::whistles {

// clang-format off
inline constexpr Saying kBriefTurnoverSayings[] = {{"{ball} with a turnover"}};
/// Brings the man with the ball into it when the lines before have not named him.
inline constexpr Saying kHasItSayings[] = {
    {"{ball} with it"},
    {"{ball} looks around",               SetOffense},
    {"{ball} on the dribble",             Guard},
    {"{ball} against {def}",              SetOffense},
    {"{ball} drives",                     OnDrive, 40},
    {"{ball} on the run",                 OnBreak, 40},
    {"{ball} with his back to the basket", FromPost, 20},
    {"{ball} has the rebound",            Putback, 200},
    {"{ball} holds it",                   Holding, 60},
};
inline constexpr Saying kBadPassSayings[] = {
    {"#116 by {ball}"},
    {"{ball} #073"},
    {"{ball} tried to find {who}, #116"},
    {"{ball} threw it over the head of {who}"},
    {"{ball} threw it into the seats"},
    {"{ball} threw it behind {who}"},
    {"the pass by {ball} sails out of bounds"},
    {"nobody there for the pass by {ball}"},
    {"{ball} and {who} got mixed up"},
    {"{ball} throws it long, too long for {who}", OnBreak, 40},
    {"{ball} forces one inside to {who}",         [] { return SetOffense() && !FromPost(); }},
};
inline constexpr Saying kBehindHimSayings[] = {{"he threw it behind him"}, {"he threw it a mile over"}};
inline constexpr Saying kLookSayings[] = {{"{ball} looks for {who}"}, {"{ball} passes to {who}"}};
inline constexpr Saying kHotDogSayings[] = {{"he threw a hot dog pass.."}};
inline constexpr Saying kMustardSayings[] = {{"and the mustard came off.."}};
inline constexpr Saying kLobLostSayings[] = {
    {"the lob for {ball} is over the top"}, {"{ball} can't handle the lob"}, {"the lob sails over {ball}"},
};
inline constexpr Saying kLostOutSayings[] = {
    {"{ball} lost it OB"},
    {"{ball} #110"},
    {"he stepped on the line",   BallManMeant},
    {"he stepped out of bounds", BallManMeant},
    {"{ball} lost the handle"},
    {"it's off the foot of {ball} and out", nullptr, 5},
};
inline constexpr Saying kAfterReboundSayings[] = {
    {"{ball} came down with it and traveled"}, {"{ball} came down with it and double dribbled"},
};
inline constexpr Saying kTravelActSayings[] = {{"{ball} shuffles his feet"}, {"up and down", BallManMeant}};
inline constexpr Saying kTravelSayings[] = {
    {"that's a travel"}, {"traveling violation"}, {"he traveled"}, {"he's called for a travel"}, {"he walked"}, {"he walked with it"},
    {"{ball} took an extra step", OnDrive}, {"{ball} dragged the pivot foot", BigMan},
};
inline constexpr Saying kDoubleDribbleSayings[] = {{"he double dribbled", BallManMeant}, {"{ball} #092"}};
inline constexpr Saying kOverLineSayings[] = {
    {"over and back"}, {"over and back violation"}, {"backcourt violation"}, {"{ball} went back over the line"},
};
inline constexpr Saying kThreeSecondsSayings[] = {
    {"three seconds on {ball}"}, {"{ball} camped in the lane"}, {"three second violation"},
};
inline constexpr Saying kFiveSecondsSayings[] = {{"five second violation"}, {"{ball} held it too long"}};
inline constexpr Saying kLostShotSayings[] = {{"{ball} shoots"}, {"{ball} #037"}};
inline constexpr Saying kLostShotEndSayings[] = {
    {"off the side of the backboard!"}, {"off the top of the backboard!"}, {"over the backboard!"},
};
inline constexpr Saying kOutOfBoundsSayings[] = {{"and out of bounds"}};
inline constexpr Saying kTurnoverCountSayings[] = {
    {"that's {n} turnovers for {ball}"}, {"turnover number {n} for {ball}"}, {"#146 {ball}, the {ord}"},
};
inline constexpr Saying kSloppySayings[] = {{"#130"}};
inline constexpr Saying kShotClockSayings[] = {{"{n} second violation"}, {"shot clock violation"}};
inline constexpr Saying kBriefShotClockSayings[] = {{"shot clock violation"}};
inline constexpr Saying kNoSetSayings[] = {{"they tried to call a play"}};
inline constexpr Saying kNoSetEndSayings[] = {{"and couldn't get it set"}};
// Out of bounds; the offense keeps it.
inline constexpr Saying kBriefKeptSayings[] = {{"out of bounds off {def}"}};
inline constexpr Saying kDeflectionSayings[] = {
    {"{def} tipped it"}, {"{def} deflected it"}, {"{def} got a hand on it"}, {"{def} pokes it loose"},
};
inline constexpr Saying kOffHimSayings[] = {
    {"off the knee of {def}"}, {"off the leg of {def}"}, {"off the foot of {def}"}, {"kicked out by {def}"},
};
inline constexpr Saying kKickedSayings[] = {{"kicked ball"}};
inline constexpr Saying kOutSayings[] = {{"out of bounds"}};
inline constexpr Saying kKeepsSayings[] = {{"{team} ball"}, {"still {team} ball"}, {"they'll keep it"}};
inline constexpr Saying kBriefLostSayings[] = {{"{ball} loses it out of bounds"}};
// clang-format on

inline constexpr Family kBriefTurnover{"DescribeTurnover", kBriefTurnoverSayings};
inline constexpr Family kHasIt{"DescribeTurnover", kHasItSayings};
inline constexpr Family kBadPass{"DescribeTurnover", kBadPassSayings};
inline constexpr Family kBehindHim{"DescribeTurnover", kBehindHimSayings};
inline constexpr Family kLook{"DescribeTurnover", kLookSayings};
inline constexpr Family kHotDog{"DescribeTurnover", kHotDogSayings};
inline constexpr Family kMustard{"DescribeTurnover", kMustardSayings};
inline constexpr Family kLobLost{"DescribeTurnover", kLobLostSayings};
inline constexpr Family kLostOut{"DescribeTurnover", kLostOutSayings};
inline constexpr Family kAfterRebound{"DescribeTurnover", kAfterReboundSayings};
inline constexpr Family kTravelAct{"DescribeTravel", kTravelActSayings};
inline constexpr Family kTravel{"DescribeTravel", kTravelSayings};
inline constexpr Family kDribbles{"DescribeTurnover", kDoubleDribbleSayings};
inline constexpr Family kOverLine{"DescribeTurnover", kOverLineSayings};
inline constexpr Family kLane{"DescribeTurnover", kThreeSecondsSayings};
inline constexpr Family kHeldTooLong{"DescribeTurnover", kFiveSecondsSayings};
inline constexpr Family kLostShot{"DescribeTurnover", kLostShotSayings};
inline constexpr Family kLostShotEnd{"DescribeTurnover", kLostShotEndSayings};
inline constexpr Family kOutOfBounds{"DescribeTurnover", kOutOfBoundsSayings};
inline constexpr Family kTurnoverCount{"DescribeTurnover", kTurnoverCountSayings};
inline constexpr Family kSloppy{"DescribeTurnover", kSloppySayings};
inline constexpr Family kShotClock{"DescribeShotClockViolation", kShotClockSayings};
inline constexpr Family kBriefShotClock{"DescribeShotClockViolation", kBriefShotClockSayings};
inline constexpr Family kNoSet{"DescribeShotClockViolation", kNoSetSayings};
inline constexpr Family kNoSetEnd{"DescribeShotClockViolation", kNoSetEndSayings};
inline constexpr Family kBriefKept{"DescribeDeflection", kBriefKeptSayings};
inline constexpr Family kDeflection{"DescribeDeflection", kDeflectionSayings};
inline constexpr Family kOffHim{"DescribeDeflection", kOffHimSayings};
inline constexpr Family kKicked{"DescribeDeflection", kKickedSayings};
inline constexpr Family kOut{"DescribeDeflection", kOutSayings};
inline constexpr Family kKeeps{"DescribeDeflection", kKeepsSayings};
inline constexpr Family kBriefLost{"DescribeOutOfBounds", kBriefLostSayings};

}  // namespace tipline::whistles
