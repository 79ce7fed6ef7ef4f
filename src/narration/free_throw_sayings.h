#pragma once
// At the line. {word} is which shot of the trip it is; {n} what the caller counts.
#include "narration/whistle_moments.h"

namespace tipline::whistles {

// clang-format off
inline bool Misfires() { return GameOfShooter().FTA >= 3 && GameOfShooter().FTM == 0; }
inline bool Flawless() { return GameOfShooter().FTA >= 6 && GameOfShooter().FTM == GameOfShooter().FTA; }
inline bool TiesIt() { return LateAndClose() && Margin() == 0; }
inline bool TakesTheLead() { return LateAndClose() && Lead(scene().OffenseSide) == 1; }

inline constexpr Saying kBriefMakeSayings[] = {{"{ball} makes the free throw"}};
inline constexpr Saying kBriefMissSayings[] = {{"{ball} misses the free throw"}};
inline constexpr Saying kToTheLineSayings[] = {
    {"{ball} #140"},
    {"{ball} #141", nullptr, 5},
    {"{ball}"},
    {"{ball} #121"},
    {"{ball} #123"},
    {"{ball} #129", Technical, 60},
};
inline constexpr Saying kFirstTripSayings[] = {{"{n} points and his first trip to the line"}};
inline constexpr Saying kRookieSayings[] = {{", the rookie"}};
inline constexpr Saying kVeteranSayings[] = {{", the {n} year veteran"}, {", {a} {n} year veteran", nullptr, 5}};
inline constexpr Saying kCollegeSayings[] = {{", from {word}"}, {", {other} {word} product", nullptr, 4}};
inline constexpr Saying kLineRateSayings[] = {{"shooting {word} from the line on the season"}};
inline constexpr Saying kTripSayings[] = {
    {"#124", [] { return scene().PlayKind == "SHOOT2"; }},
    {"#126", [] { return scene().PlayKind == "SHOOT3"; }},
    {"#125", [] { return scene().PlayKind == "SHOOT1-1"; }},
    {"#127", [] { return scene().PlayKind == "SHOOT3-2"; }},
    {"#128", [] { return scene().PlayKind == "SHOOT2-1"; }},
};
inline constexpr Saying kFreeThrowShotSayings[] = {
    {"the {word} from {ball}",     MoreShots},
    {"{ball} with the {word}",     MoreShots},
    {"{ball} shoots the {word}",   MoreShots},
    {"the shot from {ball}",       OneShot},
    {"{ball} shoots",              OneShot},
    {"{ball} with the free throw", OneShot},
};
inline constexpr Saying kFreeThrowMadeSayings[] = {  // the whole of it
    {"{ball} made the free throw"},
    {"{ball} hit the {word}",     MoreShots},
    {"{ball} made the {word}",    MoreShots},
    {"{ball} hit the free throw", OneShot},
};
inline constexpr Saying kFreeThrowMissedSayings[] = {
    {"{ball} missed the free throw"},
    {"{ball} missed the {word}", MoreShots},
};
inline constexpr Saying kFreeThrowInSayings[] = {  // behind the line of the shot
    {"good"}, {"hits it"}, {"makes it"}, {"#131"}, {"#132", nullptr, 4}, {"#133"}, {"got it"},
};
inline constexpr Saying kFreeThrowOutSayings[] = {
    {"no good"}, {"off the rim"}, {"won't go"}, {"#134"}, {"#136"}, {"#137"}, {"he missed it"},
};
inline constexpr Saying kFinallySayings[] = {{"finally makes one (1 of {n})"}, {"{ball} finally gets one to go (1 of {n})"}};
inline constexpr Saying kLineStreakSayings[] = {{"that's {n} straight at the line"}, {"{n} #142 for {ball}"}};
inline constexpr Saying kLineFormSayings[] = {
    {"{ball} is 0 for {n} #143",     Misfires},
    {"0 for {n} at the line so far", Misfires},
    {"{ball} is #144, {n} for {n}",  Flawless},
    {"{n} for {n} from the line",    Flawless},
};
inline constexpr Saying kLineScoreSayings[] = {{"#138", TiesIt}, {"#139", TakesTheLead}};
// clang-format on

inline constexpr Family kBriefMake{"DescribeFreeThrow", kBriefMakeSayings};
inline constexpr Family kBriefMiss{"DescribeFreeThrow", kBriefMissSayings};
inline constexpr Family kToTheLine{"DescribeFreeThrow", kToTheLineSayings};
inline constexpr Family kFirstTrip{"DescribeFreeThrow", kFirstTripSayings};
inline constexpr Family kRookie{"DescribeFreeThrow", kRookieSayings};
inline constexpr Family kVeteran{"DescribeFreeThrow", kVeteranSayings};
inline constexpr Family kCollege{"DescribeFreeThrow", kCollegeSayings};
inline constexpr Family kLineRate{"DescribeFreeThrow", kLineRateSayings};
inline constexpr Family kTrip{"DescribeFreeThrow", kTripSayings};
inline constexpr Family kFreeThrowShot{"DescribeFreeThrow", kFreeThrowShotSayings};
inline constexpr Family kFreeThrowMade{"DescribeFreeThrow", kFreeThrowMadeSayings};
inline constexpr Family kFreeThrowMissed{"DescribeFreeThrow", kFreeThrowMissedSayings};
inline constexpr Family kFreeThrowIn{"DescribeFreeThrow", kFreeThrowInSayings};
inline constexpr Family kFreeThrowOut{"DescribeFreeThrow", kFreeThrowOutSayings};
inline constexpr Family kFinally{"DescribeFreeThrow", kFinallySayings};
inline constexpr Family kLineStreak{"DescribeFreeThrow", kLineStreakSayings};
inline constexpr Family kLineForm{"DescribeFreeThrow", kLineFormSayings};
inline constexpr Family kLineScore{"DescribeFreeThrow", kLineScoreSayings};

}  // namespace tipline::whistles
