#pragma once
// What interrupts a game: {who} is the man it is about, {other} his opponent.
#include "narration/whistle_moments.h"

namespace tipline::whistles {

// clang-format off
inline constexpr Saying kInjuryTimeoutSayings[] = {{"Injury timeout"}, {"Injury timeout on the court"}};
inline constexpr Saying kHurtManSayings[] = {{"{who}"}};
inline constexpr Saying kShakenUpSayings[] = {{"he's shaken-up"}};
inline constexpr Saying kStaysSayings[] = {
    {"he'll stay on the court",      ForMen}, {"she'll stay on the court",      ForWomen},
    {"but he'll be okay",            ForMen}, {"but she'll be okay",            ForWomen},
    {"but he'll be fine",            ForMen}, {"but she'll be fine",            ForWomen},
    {"but he'll remain in the game", ForMen}, {"but she'll remain in the game", ForWomen},
};
inline constexpr Saying kLeavesCourtSayings[] = {{"he's leaving the court"}};
inline constexpr Saying kLeavesGameSayings[] = {{"he's leaving the game"}};
inline constexpr Saying kBackSoonSayings[] = {{"he'll be back", ForMen}, {"she'll be back", ForWomen}};
inline constexpr Saying kShouldReturnSayings[] = {
    {"he should return"}, {"he should be back"}, {"he'll return", ForMen}, {"she'll return", ForWomen},
};
inline constexpr Saying kVeryBadSayings[] = {
    {"looks pretty bad"}, {"doesn't look good at all"}, {"looks to be a significant injury"}, {"looks pretty serious"},
};
inline constexpr Saying kBadSayings[] = {{"looks bad"}, {"doesn't look good"}, {"could be serious"}, {"looks serious"}};
inline constexpr Saying kWalksOffSayings[] = {
    {"he's leaving the court"}, {"he's walking off the court"}, {"he's leaving the game"},
};
inline constexpr Saying kTakenOffSayings[] = {
    {"he's being taken to the locker room"}, {"he's heading to the locker room"}, {"he's being helped from the court"},
};
inline constexpr Saying kOutForGameSayings[] = {{"out for the game"}};
inline constexpr Saying kMaybeMoreSayings[] = {{"maybe more"}};
inline constexpr Saying kMonthsSayings[] = {
    {"he'll miss a few months!", ForMen}, {"she'll miss a few months!", ForWomen},
};
inline constexpr Saying kWeeksSayings[] = {
    {"he'll miss a few weeks",       ForMen}, {"she'll miss a few weeks",       ForWomen},
    {"he'll miss quite a few games", ForMen}, {"she'll miss quite a few games", ForWomen},
};
inline constexpr Saying kWeekSayings[] = {
    {"he'll miss about a week",      ForMen}, {"she'll miss about a week",      ForWomen},
    {"he'll miss a few games",       ForMen}, {"she'll miss a few games",       ForWomen},
    {"he'll miss quite a few games", ForMen}, {"she'll miss quite a few games", ForWomen},
};
inline constexpr Saying kFewGamesSayings[] = {{"he'll miss a few games", ForMen}, {"she'll miss a few games", ForWomen}};
inline constexpr Saying kIllegalDefenseSayings[] = {
    {"illegal defense"}, {"illegal defense is called"}, {"there's an illegal defense"},
};
inline constexpr Saying kWarningSayings[] = {{"that's the warning"}};
inline constexpr Saying kOneTechnicalShotSayings[] = {{"{who} will shoot the technical"}};
inline constexpr Saying kTwoTechnicalShotsSayings[] = {{"{who} will shoot two"}};
inline constexpr Saying kFightSayings[] = {{"Fight!"}};
inline constexpr Saying kFightersSayings[] = {{"{who} and {other}"}};
inline constexpr Saying kEjectedSayings[] = {{"{who} has been ejected!"}};
inline constexpr Saying kSuspensionSayings[] = {{"(Suspension?) {who}"}};
inline constexpr Saying kTemperSayings[] = {
    {"{who} is screaming at the ref"}, {"{who} must have said something to the ref"}, {"{who} is giving the ref an earful"},
    {"{who} won't let it go"},
};
inline constexpr Saying kTechnicalSayings[] = {{"technical foul!"}, {"he gets a technical"}};
inline constexpr Saying kDelaySayings[] = {{"we have a delay"}};
inline constexpr Saying kDelayWhySayings[] = {
    {"the ball boys are cleaning a wet spot"}, {"the refs want a wet spot cleaned"}, {"we have a courtside disturbance"},
    {"a ref got tangled up with {who}"},
};
inline constexpr Saying kReadySayings[] = {{"we're ready"}, {"now we're ready to roll"}, {"now we're ready to continue"}};
inline constexpr Saying kShouldBeFlagrantSayings[] = {{"should be a flagrant on {who}"}, {"should be called a flagrant on {who}"}};
inline constexpr Saying kMustBeFlagrantSayings[] = {{"that one has to be a flagrant foul"}};
inline constexpr Saying kReviewSayings[] = {
    {"they're taking a long look at this one"}, {"taking their time"}, {"they're taking a close look"},
};
inline constexpr Saying kCommonSayings[] = {{"#241 {who}"}};
inline constexpr Saying kFlagrantOneSayings[] = {{"{who} is called for a flagrant 1!"}};
inline constexpr Saying kFlagrantTwoSayings[] = {{"{who} is called for a flagrant 2!"}};
inline constexpr Saying kSentOffSayings[] = {{"he'll be ejected!", ForMen}, {"she'll be ejected!", ForWomen}};
// clang-format on

inline constexpr Family kInjuryTimeout{"InjuryTimeoutLines", kInjuryTimeoutSayings};
inline constexpr Family kHurtMan{"InjuryTimeoutLines", kHurtManSayings};
inline constexpr Family kShakenUp{"ShakenUp", kShakenUpSayings};
inline constexpr Family kStays{"ShakenUp", kStaysSayings};
inline constexpr Family kLeavesCourt{"TemporaryInjury", kLeavesCourtSayings};
inline constexpr Family kLeavesGame{"TemporaryInjury", kLeavesGameSayings};
inline constexpr Family kBackSoon{"TemporaryInjury", kBackSoonSayings};
inline constexpr Family kShouldReturn{"TemporaryInjury", kShouldReturnSayings};
inline constexpr Family kVeryBad{"Injury", kVeryBadSayings};
inline constexpr Family kBad{"Injury", kBadSayings};
inline constexpr Family kWalksOff{"Injury", kWalksOffSayings};
inline constexpr Family kTakenOff{"Injury", kTakenOffSayings};
inline constexpr Family kOutForGame{"Injury", kOutForGameSayings};
inline constexpr Family kMaybeMore{"Injury", kMaybeMoreSayings};
inline constexpr Family kMonths{"Injury", kMonthsSayings};
inline constexpr Family kWeeks{"Injury", kWeeksSayings};
inline constexpr Family kWeek{"Injury", kWeekSayings};
inline constexpr Family kFewGames{"Injury", kFewGamesSayings};
inline constexpr Family kIllegalDefense{"IllegalDefense", kIllegalDefenseSayings};
inline constexpr Family kWarning{"IllegalDefense", kWarningSayings};
inline constexpr Family kOneTechnicalShot{"Technical", kOneTechnicalShotSayings};
inline constexpr Family kTwoTechnicalShots{"Technical", kTwoTechnicalShotsSayings};
inline constexpr Family kFight{"Fight", kFightSayings};
inline constexpr Family kFighters{"Fight", kFightersSayings};
inline constexpr Family kEjected{"Fight", kEjectedSayings};
inline constexpr Family kSuspension{"Fight", kSuspensionSayings};
inline constexpr Family kTemper{"Technical", kTemperSayings};
inline constexpr Family kTechnical{"Technical", kTechnicalSayings};
inline constexpr Family kDelay{"DescribeDelay", kDelaySayings};
inline constexpr Family kDelayWhy{"DescribeDelay", kDelayWhySayings};
inline constexpr Family kReady{"DescribeDelay", kReadySayings};
inline constexpr Family kShouldBeFlagrant{"DescribeFlagrant", kShouldBeFlagrantSayings};
inline constexpr Family kMustBeFlagrant{"DescribeFlagrant", kMustBeFlagrantSayings};
inline constexpr Family kReview{"DescribeReview", kReviewSayings};
inline constexpr Family kCommon{"DescribeFlagrant", kCommonSayings};
inline constexpr Family kFlagrantOne{"DescribeFlagrant", kFlagrantOneSayings};
inline constexpr Family kFlagrantTwo{"DescribeFlagrant", kFlagrantTwoSayings};
inline constexpr Family kSentOff{"DescribeFlagrant", kSentOffSayings};

}  // namespace tipline::whistles
