#pragma once
// The score, the lead, runs and droughts, and the end of the clock.
#include "narration/shot_conditions.h"

namespace tipline {

// clang-format off
// {who} has scored {n} points in a row; {a} goes with them.
inline constexpr Saying kStraights[] = {{"{who} has scored {n} straight"}};
inline constexpr Saying kRuns[]      = {{"{who} on {a} {n}-0 run"}};

// {who} is the side with the ball, ahead or behind by {n}. A city leads; the Rockets lead.
inline constexpr Saying kAhead[] = {
    {"{who} with {a} {n} point lead"},
    {"{who} ahead by {n}"},
    {"{n} point lead for {who}"},
};
inline constexpr Saying kAheadCity[]   = {{"{who} leads by {n}"}};
inline constexpr Saying kAheadPlural[] = {{"{who} lead by {n}"}};
inline constexpr Saying kAheadNick[]   = {{"{n} point lead for the {nick}"}};
inline constexpr Saying kBehind[] = {
    {"{who} behind by {n}"},
    {"{who} down {n}"},
    {"{who} trailing by {n}"},
};
inline constexpr Saying kBehindCity[]   = {{"{who} trails by {n}"}};
inline constexpr Saying kBehindPlural[] = {{"{who} trail by {n}"}};
// {n} is what both have.
inline constexpr Saying kTied[] = {
    {"#122"},
    {"#122 at {n}"},
};
inline constexpr Saying kLeadChanges[] = {{"{n} lead changes in the game"}, {"{n} lead changes today"}};
// {word} is the defense.
inline constexpr Saying kSchemes[]    = {{"{opp} in a {word}"}};
inline constexpr Saying kSchemesFor[] = {{"{opp} in a {word} for #062"}, {"{opp} in a {word} for this one", nullptr, 5}};
// {word} is the time.
inline constexpr Saying kDroughts[] = {
    {"{who} hasn't scored in {word}"},
    {"{who} scoreless the last {word}"},
    {"the last {word} scoreless for {who}"},
    {"{word} scoring drought for {who}"},
};

inline constexpr Saying kHolds[] = {{"{ball} #176"}};
inline constexpr Saying kKills[] = {
    {"{team} is killing some clock"},
    {"{team} is killing clock"},
    {"{team} will just hold the ball"},
};
inline constexpr Saying kCantFouls[] = {{"{opp} can't foul", nullptr, 3}, {"#197", nullptr, 7}};
inline constexpr Saying kNoShots[] = {
    {"they won't get a shot off"},
    {"they can't get a shot off"},
    {"#091"},
};
inline constexpr Saying kNoShotsBeaten[] = {{"{team} won't get a shot off"}, {"{team} won't take a shot"}};
inline constexpr Saying kTooLateShots[] = {{"{ball} shoots"}};
inline constexpr Saying kHorns[] = {{"#100", nullptr, 4}, {"at the horn", nullptr, 3}, {"at the buzzer", nullptr, 3}};
inline constexpr Saying kWavedOff[] = {
    {"this one will be reviewed"},
    {"and it will be waved off"},
    {"but it's being waved off"},
};

// {word} is what is at stake: the lead, or the game.
inline constexpr Saying kGoAhead[] = {{"for the {word}"}};
inline constexpr Saying kTieIt[] = {{"to tie it up"}, {"for the tie"}};
// clang-format on

inline constexpr Family kStraight{"DescribeScoreSituation", kStraights};
inline constexpr Family kRun{"DescribeScoreSituation", kRuns};
inline constexpr Family kAheadBy{"DescribeScoreSituation", kAhead};
inline constexpr Family kLeadsBy{"DescribeScoreSituation", kAheadCity};
inline constexpr Family kLeadBy{"DescribeScoreSituation", kAheadPlural};
inline constexpr Family kLeadForThe{"DescribeScoreSituation", kAheadNick};
inline constexpr Family kBehindBy{"DescribeScoreSituation", kBehind};
inline constexpr Family kTrailsBy{"DescribeScoreSituation", kBehindCity};
inline constexpr Family kTrailBy{"DescribeScoreSituation", kBehindPlural};
inline constexpr Family kTieGame{"DescribeScoreSituation", kTied};
inline constexpr Family kLeadChange{"DescribeScoreSituation", kLeadChanges};
inline constexpr Family kScheme{"DescribeScoreSituation", kSchemes};
inline constexpr Family kSchemeFor{"DescribeScoreSituation", kSchemesFor};
inline constexpr Family kDrought{"DescribeScoreSituation", kDroughts};
inline constexpr Family kHold{"DescribeHoldBall", kHolds};
inline constexpr Family kKill{"DescribeHoldBall", kKills};
inline constexpr Family kCantFoul{"DescribeCantFoul", kCantFouls};
inline constexpr Family kNoShot{"DescribeNoShot", kNoShots};
inline constexpr Family kNoShotBeaten{"DescribeNoShot", kNoShotsBeaten};
inline constexpr Family kTooLateShot{"DescribeNoShot", kTooLateShots};
inline constexpr Family kHorn{"DescribeBuzzerBeater", kHorns};
inline constexpr Family kWaved{"DescribeNoShot", kWavedOff};
inline constexpr Family kForTheLead{"DescribeGoAhead", kGoAhead};
inline constexpr Family kToTie{"DescribeTieIt", kTieIt};

}  // namespace tipline
