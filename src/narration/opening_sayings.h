#pragma once
// Before the ball goes up, the jump, and who comes in for whom.
#include "narration/floor_talk.h"

namespace tipline::floor_talk {

// clang-format off
inline constexpr Saying kWonStreakSayings[] = {
    {"{who} has won {n} in a row", nullptr, 30}, {"{who} has won {n} straight", nullptr, 30},
    {"{who} is riding {a} {n} game winning streak", nullptr, 20}, {"{who} is on {a} {n} game winning streak", nullptr, 20}};
inline constexpr Saying kLostStreakSayings[] = {
    {"{who} has lost {n} in a row", nullptr, 40}, {"{who} has lost {n} straight", nullptr, 30},
    {"{who} is on {a} {n} game losing streak", nullptr, 30}};

inline constexpr Saying kTossSayings[] = {{"#096"}};
inline constexpr Saying kMismatchSayings[] = {{"quite a mismatch here"}, {"quite a mismatch"}};
inline constexpr Saying kBadTossSayings[] = {{"bad toss"}};
inline constexpr Saying kTossAgainSayings[] = {{"he'll try that again", ForMen}, {"they'll do that one over"}};
inline constexpr Saying kTipSayings[] = {
    {"{who} has no problem with the tip"}, {"{who} has no problem with that one"}, {"{who} easily controls the tip"},
    {"{other} has it, and will get things started", PeriodOpens},
    {"{other} comes up with the tip", [] { return !PeriodOpens(); }}, {"{who} #095", nullptr, 40}};
inline constexpr Saying kStartsSayings[] = {
    {"{who} will bring it in"}, {"{who} has the ball to start"}, {"{who} will inbound to start things"}};

inline constexpr Saying kSubSayings[] = {
    {"{who} subs for {other}", nullptr, 20}, {"{who} enters for {other}", nullptr, 20}, {"{who} in for {other}", nullptr, 20},
    {"{who} replaces {other}", nullptr, 20}, {"{who} for {other}", nullptr, 20}};
inline constexpr Saying kFirstActionSayings[] = {
    {"{who} steps on the court for the first time"}, {"{who} will see his first action"}};
inline constexpr Saying kTokenSayings[] = {{"{who} will make a token appearance"}};
inline constexpr Saying kSeasonDebutSayings[] = {{"{who} making his season debut"}};
inline constexpr Saying kSlideSayings[] = {{"{who} slides to {word}"}, {"{who} moves to {word}"}, {"{who} switches to {word}"}};
inline constexpr Saying kEntersAtSayings[] = {{"{who} enters at {word}"}, {"{who} in at {word}"}};
inline constexpr Saying kLeavesWithFoulsSayings[] = {
    {"{who} leaves with {word}", nullptr, 20}, {"{who} will sit with {word}", nullptr, 20},
    {"{who} heads to the bench with {word}", nullptr, 20}, {"{who} leaves in foul trouble"},
    {"{who} heads to the bench in foul trouble"}};
inline constexpr Saying kGetsRestSayings[] = {
    {"{who} gets a rest"}, {"{who} will take a break"}, {"{who} gets a much needed rest"}, {"{who} gets a breather"},
    {"{who} will finally get a break", nullptr, 5}};
inline constexpr Saying kExitsSayings[] = {{"calls it a day with"}, {"exits with"}, {"leaves with"}};
inline constexpr Saying kFreshSideSayings[] = {{"for {who}"}, {"enter for {who}"}, {"on the court for {who}"}};
// clang-format on

inline constexpr Family kWonStreak{"DescribeOpening won", kWonStreakSayings};
inline constexpr Family kLostStreak{"DescribeOpening lost", kLostStreakSayings};
inline constexpr Family kToss{"DescribeOpening toss", kTossSayings};
inline constexpr Family kMismatch{"DescribeOpening mismatch", kMismatchSayings};
inline constexpr Family kBadToss{"DescribeOpening bad toss", kBadTossSayings};
inline constexpr Family kTossAgain{"DescribeOpening again", kTossAgainSayings};
inline constexpr Family kTip{"DescribeOpening tip", kTipSayings};
inline constexpr Family kStarts{"DescribeOpening start", kStartsSayings};
inline constexpr Family kSub{"DescribeLineupChanges", kSubSayings};
inline constexpr Family kFirstAction{"DescribeLineupChanges first", kFirstActionSayings};
inline constexpr Family kToken{"DescribeLineupChanges token", kTokenSayings};
inline constexpr Family kSeasonDebut{"DescribeLineupChanges debut", kSeasonDebutSayings};
inline constexpr Family kSlide{"DescribeLineupChanges slide", kSlideSayings};
inline constexpr Family kEntersAt{"DescribeLineupChanges enters", kEntersAtSayings};
inline constexpr Family kLeavesWithFouls{"DescribeLineupChanges fouls", kLeavesWithFoulsSayings};
inline constexpr Family kGetsRest{"DescribeLineupChanges rest", kGetsRestSayings};
inline constexpr Family kExits{"DescribeLineupChanges exits", kExitsSayings};
inline constexpr Family kFreshSide{"DescribeLineupChanges fresh", kFreshSideSayings};

}  // namespace tipline::floor_talk
