#pragma once
// Fouls of the defense: {who} is the man who was fouled, {n} and {ord} count the fouler's fouls.
#include "narration/whistle_moments.h"

namespace tipline::whistles {

// clang-format off
inline constexpr Saying kBriefFoulSayings[] = {{"{fouler} fouls {who}"}};
inline constexpr Saying kFoulSayings[] = {
    {"{fouler} fouled {who}"},
    {"{who} is fouled by {fouler}"},
    {"{fouler} is called for a reach",                 ByHisDefender},
    {"{fouler} is called for a hold"},
    {"{fouler} is called for a push"},
    {"#135 {fouler}",                                  ByHisDefender},
    {"{fouler} grabs him for the foul",                FouledManMeant},
    {"{fouler} grabs {who}'s jersey for the foul", nullptr, 4},
    {"the foul is called on {fouler}"},
    {"{fouler} is called for the foul"},
    {"{fouler} #074",                                  ByHisDefender},
    {"#075 {fouler}"},
    {"{fouler} #077 {who}"},
    {"#078 {fouler}"},
    {"#079 {fouler}"},
    {"{fouler} caught {who} #080",                     TowardsTheBasket},
    {"{fouler} hacks {who} #081"},
    {"{fouler} #082 {who}",                            OnDrive},
    {"#086 {fouler}"},
    {"{who} draws the foul on {fouler}"},
    {"{fouler} comes over and fouls {who}",            ByHelp},
    {"{fouler} got there late and fouled {who}",       ByHelp},
    {"{fouler} is up too close and fouls {who}",       ByHisDefender},
    {"{fouler} stops the break with a foul",           OnBreak, 30},
};
inline constexpr Saying kFoulActSayings[] = {  // a plain whistle is told behind them
    {"#085"},
    {"there's some contact"},
    {"{who} is bumped"},
    {"{who} is held up",      SetOffense},
    {"{who} gets tangled up", nullptr, 5},
    {"there's a bump inside", FromPost},
};
inline constexpr Saying kFoulCalledSayings[] = {
    {"{fouler} is called for the foul"},
    {"{fouler} is called for a foul"},
    {"a foul is whistled on {fouler}"},
    {"{fouler} is whistled for a foul"},
    {"a foul is called on {fouler}"},
    {"#088 {fouler}"},
    {"{fouler} #089"},
};
inline constexpr Saying kAwaySayings[] = {
    {"there's a whistle away from the ball"},
    {"there's a whistle away from the play"},
    {"{fouler} grabbed {who} away from the play"},
    {"{fouler} fouled {who} #167"},
    {"{fouler} held {who} #167"},
};
inline constexpr Saying kWorstShooterSayings[] = {
    {"#085"},
    {"{fouler} grabbed {who}"},
    {"{fouler} #101 {who}"},
    {"there's a whistle away from the ball",       [] { return game.play.OffBallFoul == 1; }},
    {"there's a whistle away from the play",       [] { return game.play.OffBallFoul == 1; }},
    {"{fouler} grabbed {who} away from the play",  [] { return game.play.OffBallFoul == 1; }},
    {"{fouler} grabbed {who} #167",                [] { return game.play.OffBallFoul == 1; }},
};
inline constexpr Saying kHackSayings[] = {{"a little hack-a-{who}"}};
inline constexpr Saying kStopClockSayings[] = {
    {"{fouler} #083"},
    {"{fouler} #084"},
    {"{fouler} fouls {who} right away"},
    {"they foul {who} right away"},
    {"{fouler} grabs {who} to stop the clock"},
    {"{fouler} #101 {who}"},
    {"they have to foul, and it's {fouler}"},
};
inline constexpr Saying kBringsItUpSayings[] = {
    {"{who} brings it up"}, {"here comes {who} with it"}, {"{who} against the press", [] { return DefenseThen().Pressure == 4; }, 40},
};
inline constexpr Saying kBackcourtFoulSayings[] = {
    {"backcourt foul on {fouler}"},
    {"{who} is fouled in the backcourt by {fouler}", ShortNames},
    {"he's fouled in the backcourt by {fouler}", FouledManMeant},
    {"{who} is #102 {fouler}"},
};
inline constexpr Saying kHardFoulSayings[] = {
    {"he's hammered by {fouler}", FouledManMeant},
    {"{fouler} hit him hard!",    FouledManMeant},
    {"{fouler} hammered him!",    FouledManMeant},
    {"{fouler} hit {who} hard!"},
    {"{fouler} hammered {who}!"},
    {"#090 {fouler}"},
};
inline constexpr Saying kWeakCallSayings[] = {
    {"questionable call"}, {"very weak call"}, {"weak call"}, {"let them play ref!"},
};
inline constexpr Saying kFoulCountSayings[] = {
    {"that's his {ord}",                [] { return MayFoulOn() && FoulerMeant(); }},
    {"his {ord} foul",                  [] { return MayFoulOn() && FoulerMeant(); }},
    {"the {ord} on {fouler}",           MayFoulOn},
    {"that's {n} on {fouler}",          MayFoulOn},
    {"{fouler} has {n} now",            MayFoulOn},
    {"#106 {n} on {fouler}",            MayFoulOn},
    {"{fouler} with {n}, #107",         [] { return FoulTrouble() && MayFoulOn(); }, 30},
    {"#108 for {fouler}",               OneFoulLeft, 20},
    {"{fouler} is one foul away",       OneFoulLeft, 20},
    {"#109 {fouler}",                   FouledOut},
    {"foul number {n}, and {fouler} is done", FouledOut},
    {"that's {n} on {fouler}, and that will do it", FouledOut},
};
inline constexpr Saying kPenaltySayings[] = {{"#111"}, {"that puts {word} in the bonus"}, {"{word} in the bonus now"}};
inline constexpr Saying kPenaltyNextSayings[] = {{"#112"}, {"no more fouls to give"}};
inline constexpr Saying kDoubleFoulSayings[] = {
    {"we have a double foul"}, {"double fouls have been called"}, {"a double foul has been called"},
};
inline constexpr Saying kBriefDoubleFoulSayings[] = {{"double foul on {who} and {other}"}};
inline constexpr Saying kDoubleFoulManSayings[] = {{"{who} gets his {ord}"}, {"{who} with his {ord}"}};
inline constexpr Saying kDoubleFoulWhySayings[] = {
    {"{who} and {other} were pushing and shoving"},
    {"{who} and {other} got locked up"},
    {"{who} and {other} are after each other"},
};
inline constexpr Saying kBriefLooseBallSayings[] = {{"loose ball foul on {fouler}"}};
inline constexpr Saying kLooseBallSayings[] = {
    {"loose ball foul on {fouler}"},
    {"{fouler} went over the back"},
    {"{fouler} came over the back of {who}"},
    {"{fouler} is called for a push on the boards"},
    {"{fouler} pushed {who} under the boards"},
    {"{fouler} fouled {who} going for the ball"},
    {"a foul on the rebound, and it's on {fouler}"},
    {"{fouler} hooked {who} on the rebound"},
};
// clang-format on

inline constexpr Family kBriefFoul{"DescribeFoul", kBriefFoulSayings};
inline constexpr Family kFoul{"DescribeFoul", kFoulSayings};
inline constexpr Family kFoulAct{"DescribeFoul", kFoulActSayings};
inline constexpr Family kFoulCalled{"DescribeFoulCalled", kFoulCalledSayings};
inline constexpr Family kAway{"DescribeFoul", kAwaySayings};
inline constexpr Family kWorstShooter{"DescribeFoul", kWorstShooterSayings};
inline constexpr Family kHack{"DescribeFoul", kHackSayings};
inline constexpr Family kStopClock{"DescribeFoul", kStopClockSayings};
inline constexpr Family kBringsItUp{"DescribeFoul", kBringsItUpSayings};
inline constexpr Family kBackcourtFoul{"DescribeFoul", kBackcourtFoulSayings};
inline constexpr Family kHardFoul{"DescribeFoul", kHardFoulSayings};
inline constexpr Family kWeakCall{"DescribeWeakCall", kWeakCallSayings};
inline constexpr Family kFoulCount{"DescribeFoul", kFoulCountSayings};
inline constexpr Family kPenalty{"DescribeFoul", kPenaltySayings};
inline constexpr Family kPenaltyNext{"DescribeFoul", kPenaltyNextSayings};
inline constexpr Family kDoubleFoul{"DescribeDoubleFoul", kDoubleFoulSayings};
inline constexpr Family kBriefDoubleFoul{"DescribeDoubleFoul", kBriefDoubleFoulSayings};
inline constexpr Family kDoubleFoulMan{"DescribeDoubleFoul", kDoubleFoulManSayings};
inline constexpr Family kDoubleFoulWhy{"DescribeDoubleFoul", kDoubleFoulWhySayings};
inline constexpr Family kBriefLooseBall{"DescribeLooseBallFoul", kBriefLooseBallSayings};
inline constexpr Family kLooseBall{"DescribeLooseBallFoul", kLooseBallSayings};

}  // namespace tipline::whistles
