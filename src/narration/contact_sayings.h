#pragma once
// Contact on a shot or a drive, and what men say to the officials about it. {who} is the man who complains.
#include "narration/whistle_moments.h"

namespace tipline::whistles {

// clang-format off
// Fouled on the shot; it went in.
inline constexpr Saying kAndOneSayings[] = {
    {"good and he's fouled by {fouler}",      ForMen},
    {"good and she's fouled by {fouler}",     ForWomen},
    {"count it and he's fouled by {fouler}",  ForMen},
    {"count it and she's fouled by {fouler}", ForWomen},
    {"good, and the foul on {fouler}"},
    {"count it, with the foul on {fouler}"},
    {"#113, #114 {fouler}"},
};
inline constexpr Saying kCountedSayings[] = {{"it's good!"}, {"count it!"}, {"and in!"}, {"#113"}};
inline constexpr Saying kHardAndOneSayings[] = {{"and he's hammered by {fouler}"}, {"and he's fouled hard by {fouler}"}};
inline constexpr Saying kBriefAndOneSayings[] = {{"and he's fouled by {fouler}"}};
inline constexpr Saying kFourPointSayings[] = {{"#221"}};
inline constexpr Saying kThreePointSayings[] = {{"#115"}};
// Fouled on the shot; it did not.
inline constexpr Saying kBriefShotFoulSayings[] = {{"but he's fouled by {fouler}"}};
inline constexpr Saying kShotFoulSayings[] = {
    {"but he's fouled by {fouler}", nullptr, 25},
    {"{ball} draws the foul on {fouler}", nullptr, 15},
    {"{fouler} hit his arm!"},
    {"{fouler} got him on the arm!"},
    {"{fouler} got him on the hand!"},
    {"{fouler} fouled him!"},
    {"{fouler} #199"},
    {"{fouler} fouled {ball} on the shot"},
    {"{fouler} comes over and fouls him!", ByHelp},
    {"{fouler} got all arm on that one",   ByHisDefender},
    {"{fouler} is late and fouls {ball}",  ByHelp},
};
inline constexpr Saying kHardShotFoulSayings[] = {
    {"{fouler} hit him hard on the shot!"},
    {"{fouler} hammered him!"},
    {"{fouler} got him with the body!", ForMen},
    {"{fouler} got her with the body!", ForWomen},
};
// The man with the ball runs into somebody.
inline constexpr Saying kDriveInSayings[] = {
    {"{ball} drives"},
    {"{ball} puts it on the floor"},
    {"{ball} goes to the basket"},
    {"{ball} backs in",          FromPost, 20},
    {"{ball} on the run",        OnBreak, 20},
    {"{ball} #117"},
    {"{ball} #118 {def}"},
};
inline constexpr Saying kChargeSayings[] = {
    {"he barrelled into {def}"}, {"he ran over {def}"}, {"{def} blocked his path"},
    {"he collided with {def}"},  {"he ran into {def}"}, {"{def} stood in there"}, {"{def} beat him to the spot"},
};
inline constexpr Saying kFallSayings[] = {
    {"{def} slipped and fell", nullptr, 5}, {"{ball} tripped and fell", nullptr, 5}, {"{def} fell to the floor"}, {"{def} fell down"},
    {"{ball} fell to the floor"},
};
inline constexpr Saying kFlopSayings[] = {
    {"nice flop by {def}"}, {"maybe some acting there by {def}"}, {"with a little flop"}, {"with a bit of acting"}, {"#232 {def}"},
};
inline constexpr Saying kChargeShotSayings[] = {{"{ball} shoots"}, {"{ball} lets it go"}, {"the shot is up.."}};
inline constexpr Saying kChargeShotEndSayings[] = {{"no good"}, {"off the rim"}, {"missed"}, {"and in"}, {"good"}};
inline constexpr Saying kOffensiveFoulSayings[] = {
    {"{ball} is called for the foul!"}, {"{ball} gets the foul!"}, {"offensive foul on {ball}"},
    {"{ball} is called for an offensive foul"}, {"it's a charge on {ball}", [] { return game.play.OffBallFoul == 0; }},
};
inline constexpr Saying kScreenSayings[] = {
    {"#119 {ball}"},
    {"{ball} #120"},
    {"{ball} was pushing off",   [] { return scene().BallSlot <= 3; }},
    {"{ball} hooked {def}"},
    {"{ball} threw a nice block", nullptr, 1},
};
inline constexpr Saying kBriefOffensiveFoulSayings[] = {{"offensive foul on {ball}"}};
// Words with the officials.
inline constexpr Saying kComplaintSayings[] = {
    {"{who} #147"}, {"{who} glares at the ref"}, {"{who} throws his arm up in disgust"},
};
inline constexpr Saying kHotHeadSayings[] = {
    {"{who} won't let it go"}, {"{who} is still giving it to the ref"}, {"careful now, {who}"},
};
inline constexpr Saying kNoSurpriseSayings[] = {{"alert the media!"}, {"big surprise there!"}};
inline constexpr Saying kBegSayings[] = {
    {"{ball} wants a call"}, {"{ball} is looking for a call"}, {"{ball} wants a whistle"}, {"{ball} wants a foul called"},
    {"{ball} is begging for a call"}, {"{ball} is whining for a call"}, {"{ball} is pleading for a call"},
    {"{ball} is screaming for a call!", nullptr, 5},
};
inline constexpr Saying kBegAnswerSayings[] = {{"big surprise there"}, {"the ref told him to zip it!"}};
// clang-format on

inline constexpr Family kAndOne{"DescribeFouledOnShot", kAndOneSayings};
inline constexpr Family kCounted{"DescribeFouledOnShot", kCountedSayings};
inline constexpr Family kHardAndOne{"DescribeFouledOnShot", kHardAndOneSayings};
inline constexpr Family kBriefAndOne{"DescribeFouledOnShot", kBriefAndOneSayings};
inline constexpr Family kFourPoint{"DescribeFouledOnShot", kFourPointSayings};
inline constexpr Family kThreePoint{"DescribeFouledOnShot", kThreePointSayings};
inline constexpr Family kBriefShotFoul{"DescribeFouledOnShot", kBriefShotFoulSayings};
inline constexpr Family kShotFoul{"DescribeFouledOnShot", kShotFoulSayings};
inline constexpr Family kHardShotFoul{"DescribeFouledOnShot", kHardShotFoulSayings};
inline constexpr Family kDriveIn{"DescribeCharge", kDriveInSayings};
inline constexpr Family kCharge{"DescribeCharge", kChargeSayings};
inline constexpr Family kFall{"DescribeCharge", kFallSayings};
inline constexpr Family kFlop{"DescribeCharge", kFlopSayings};
inline constexpr Family kChargeShot{"DescribeCharge", kChargeShotSayings};
inline constexpr Family kChargeShotEnd{"DescribeCharge", kChargeShotEndSayings};
inline constexpr Family kOffensiveFoul{"DescribeOffensiveFoul", kOffensiveFoulSayings};
inline constexpr Family kScreen{"DescribeOffensiveFoul", kScreenSayings};
inline constexpr Family kBriefOffensiveFoul{"DescribeOffensiveFoul", kBriefOffensiveFoulSayings};
inline constexpr Family kComplaint{"DescribeComplaint", kComplaintSayings};
inline constexpr Family kHotHead{"DescribeComplaint", kHotHeadSayings};
inline constexpr Family kNoSurprise{"DescribeComplaint", kNoSurpriseSayings};
inline constexpr Family kBeg{"DescribeBegForCall", kBegSayings};
inline constexpr Family kBegAnswer{"DescribeBegForCall", kBegAnswerSayings};

}  // namespace tipline::whistles
