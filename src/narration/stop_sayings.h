#pragma once
// The ball comes in, men are tied up, a side calls time, a period ends.
#include "narration/floor_talk.h"
#include "narration/whistle_moments.h"

namespace tipline::floor_talk {

inline bool ByArrow() { return league.rules.JumpBallList == 1; }

// clang-format off
inline constexpr Saying kInboundSayings[] = {
    {"{who} inbounds to {other}", nullptr, 20}, {"{who} inbounds it for {other}"}, {"{who} gets it in to {other}", nullptr, 20},
    {"{who} #205 {other}", nullptr, 20}};
inline constexpr Saying kInboundTroubleSayings[] = {
    {"{who} struggling to get it in"}, {"{who} looking for an open man"}, {"{who} needs help"}, {"{who} can't find anyone"},
    {"{who} can't find an open man"}};
inline constexpr Saying kGetsItInSayings[] = {{"gets it in to {other}"}, {"finally gets it in to {other}", nullptr, 20}};
inline constexpr Saying kInboundStealSayings[] = {
    {"{stealer} stole the inbounds!"}, {"{stealer} stole the ball!"}, {"{stealer} stole the inbounds pass!", nullptr, 20}};
inline constexpr Saying kDeflectedSayings[] = {{"knocked out of bounds"}, {"deflected out of bounds"}};
inline constexpr Saying kWhoseBallSayings[] = {{"{who} ball", nullptr, 20}, {"it stays with {who}", [] { return game.OffenseSide == scene().OffenseSide; }},
    {"it goes over to {who}", [] { return game.OffenseSide != scene().OffenseSide; }}};

inline constexpr Saying kTiedUpSayings[] = {
    {"{ball} and {def} both have the ball"}, {"{ball} and {def} are tied up"}, {"{def} tied him up", whistles::BallManMeant},
    {"he's tied up by {def}", whistles::BallManMeant}, {"{ball} with the ball, tied up by {def}"}};
inline constexpr Saying kWantsTimeoutSayings[] = {{"{ball} is trying to call a time out"}};
inline constexpr Saying kNoTimeoutSayings[] = {{"but he won't get one", ForMen}, {"too late for that"}};
inline constexpr Saying kJumpCallSayings[] = {{"jump ball"}, {"they'll jump"}, {"{ball} will jump against {def}"}};
inline constexpr Saying kArrowSayings[] = {{"#094 {who}", nullptr, 20}, {"the arrow gives it to {who}"}, {"the arrow is with {who}"}};

inline constexpr Saying kCallsTimeSayings[] = {{"{who} calls time"}};
inline constexpr Saying kTimeoutRemarkSayings[] = {
    {"{who} #093", nullptr, 15}, {"{word} left for {who}", nullptr, 20}};
inline constexpr Saying kForcedTimeoutSayings[] = {
    {"{ball} is in trouble and calls time"}, {"{ball} is trapped and calls a time out"}, {"{ball} had to burn a time out"}};

inline constexpr Saying kGameWinnerSayings[] = {
    {"game winner!", nullptr, 30}, {"{team} wins!", nullptr, 20}, {"{ball} wins it for {team}!"}, {"for the win!", nullptr, 40}};
inline constexpr Saying kEndRemarkSayings[] = {{"#099", nullptr, 30}, {"what a game!", nullptr, 70}};
inline constexpr Saying kLeadersSayings[] = {
    {"{who} leads {other} with {n} points", nullptr, 20}, {"{n} points so far for {who}"}, {"{who} has {n} for {other}"}};
inline constexpr Saying kRoutSayings[] = {
    {"{who} by {n}, and it's not that close"}, {"{who} is running away with it, up {n}"}, {"{who} in command, up {n}", nullptr, 20}};
// clang-format on

inline constexpr Family kInbound{"DescribeInbound", kInboundSayings};
inline constexpr Family kInboundTrouble{"DescribeInboundTrouble", kInboundTroubleSayings};
inline constexpr Family kGetsItIn{"DescribeInboundTrouble in", kGetsItInSayings};
inline constexpr Family kInboundSteal{"DescribeInbound steal", kInboundStealSayings};
inline constexpr Family kDeflected{"DescribeInbound out", kDeflectedSayings};
inline constexpr Family kWhoseBall{"DescribeInbound ball", kWhoseBallSayings};
inline constexpr Family kTiedUp{"DescribeTieUp", kTiedUpSayings};
inline constexpr Family kWantsTimeout{"DescribeTieUp timeout", kWantsTimeoutSayings};
inline constexpr Family kNoTimeout{"DescribeTieUp no timeout", kNoTimeoutSayings};
inline constexpr Family kJumpCall{"DescribeTieUp jump", kJumpCallSayings};
inline constexpr Family kArrow{"DescribeTieUp arrow", kArrowSayings};
inline constexpr Family kCallsTime{"DescribeTimeout coach", kCallsTimeSayings};
inline constexpr Family kTimeoutRemark{"DescribeTimeout remark", kTimeoutRemarkSayings};
inline constexpr Family kForcedTimeout{"DescribeTimeout forced", kForcedTimeoutSayings};
inline constexpr Family kGameWinner{"DescribePeriodEnd winner", kGameWinnerSayings};
inline constexpr Family kEndRemark{"DescribePeriodEnd remark", kEndRemarkSayings};
inline constexpr Family kLeaders{"DescribePeriodEnd leaders", kLeadersSayings};
inline constexpr Family kRout{"DescribePeriodEnd margin", kRoutSayings};

}  // namespace tipline::floor_talk
