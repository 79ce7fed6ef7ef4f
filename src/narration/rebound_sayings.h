#pragma once
// The ball comes off the board.
#include "narration/floor_talk.h"

namespace tipline::floor_talk {

inline bool OffTheOffense() { return game.play.ReboundSide == scene().OffenseSide; }
inline bool OwnMiss() { return game.play.Rebounder == scene().BallPlayer && game.play.TipIn == 0; }
inline bool FreeBall() { return !game.play.Blocked && !game.play.AirBall; }
inline bool HitTheBoard() { return FreeBall() && scene().PlayResult != "FTM"; }
inline bool Swatted() { return game.play.Blocked; }
inline bool Zone1() { return ReboundZone() == 1; }
inline bool Zone2() { return ReboundZone() == 2; }
inline bool Zone3() { return ReboundZone() == 3; }

// clang-format off
inline constexpr Saying kReboundSayings[] = {
    {"#006 {rebounder}", nullptr, 40}, {"{rebounder} #007", nullptr, 25}, {"{rebounder} pulls it down", nullptr, 15},
    {"{rebounder} #187", Zone1}, {"{rebounder} #188", Zone2}, {"{rebounder} #189", Zone3, 15},
    {"{rebounder} clears the boards", FreeBall, 5}, {"{rebounder} has it", nullptr, 5}, {"{rebounder} comes up with it", nullptr, 6},
    {"{rebounder} grabs it", nullptr, 8}, {"{rebounder} goes up and gets it", FreeBall, 4}, {"taken down by {rebounder}", FreeBall, 6},
    {"{rebounder} picks up the loose ball", Swatted, 15}};
inline constexpr Saying kOffensiveReboundSayings[] = {
    {"{rebounder} #152", nullptr, 40}, {"offensive rebound by {rebounder}", nullptr, 15}, {"{rebounder} keeps it alive"},
    {"{rebounder} gets inside for the rebound", Zone1, 6}, {"{rebounder} chases it down for {team}", Zone3},
    {"#006 {rebounder}, {team} keeps it", nullptr, 6}, {"{rebounder} beats everybody to it", nullptr, 4}};
inline constexpr Saying kOwnReboundSayings[] = {
    {"{rebounder} #076", nullptr, 20}, {"{rebounder} #087", nullptr, 20}, {"{rebounder} follows up the miss"}};
inline constexpr Saying kEasyReboundSayings[] = {{"#148 {rebounder}"}};
inline constexpr Saying kCrashSayings[] = {
    {"{rebounder} is attacking the boards!"}, {"{rebounder} is hitting the boards hard!"}, {"{rebounder} is crashing the boards!"}};
inline constexpr Saying kBoardFightSayings[] = {
    {"#033", nullptr, 20}, {"it's batted back", OffTheOffense}, {"it's batted around"}, {"it's tipped back", OffTheOffense}};
inline constexpr Saying kMissRecapSayings[] = {{"{ball} missed the shot"}};
inline constexpr Saying kBoardOutSayings[] = {
    {"it goes off the side of the board", HitTheBoard}, {"it's long off the rim and out", HitTheBoard},
    {"it goes off the top of the board", HitTheBoard}, {"it's off the shot clock", [] { return HitTheBoard() && league.rules.ShotClockList > 0; }, 4},
    {"batted out of bounds"}, {"knocked out of bounds"}, {"it #008"},
    {"and it's into the stands!", nullptr, 3}, {"into the seats!", Swatted}, {"and it's into the crowd!!", Swatted}, {"and it's into the seats!", nullptr, 3}};
inline constexpr Saying kTeamReboundSayings[] = {
    {"{who} ball", nullptr, 20}, {"team rebound {who}", nullptr, 8}, {"it belongs to {who}"}, {"{who} will have it"}};
inline constexpr Saying kReboundCountSayings[] = {
    {"{n} rebounds for {rebounder}"}, {"that's {n} boards for {rebounder}"}, {"{rebounder} has {n} rebounds"}};
inline constexpr Saying kStuckBallSayings[] = {{"they'll jump"}, {"jump ball"}};
// clang-format on

inline constexpr Family kRebound{"DescribeRebound", kReboundSayings};
inline constexpr Family kOffensiveRebound{"DescribeRebound offense", kOffensiveReboundSayings};
inline constexpr Family kOwnRebound{"DescribeRebound own", kOwnReboundSayings};
inline constexpr Family kEasyRebound{"DescribeRebound easy", kEasyReboundSayings};
inline constexpr Family kCrash{"DescribeRebound crash", kCrashSayings};
inline constexpr Family kBoardFight{"DescribeRebound fight", kBoardFightSayings};
inline constexpr Family kMissRecap{"DescribeRebound miss", kMissRecapSayings};
inline constexpr Family kBoardOut{"DescribeRebound out", kBoardOutSayings};
inline constexpr Family kTeamRebound{"DescribeRebound team", kTeamReboundSayings};
inline constexpr Family kReboundCount{"DescribeRebound count", kReboundCountSayings};
inline constexpr Family kStuckBall{"DescribeRebound stuck", kStuckBallSayings};

}  // namespace tipline::floor_talk
