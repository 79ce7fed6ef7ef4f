#pragma once
// The ball goes the other way in a hurry.
#include "narration/floor_talk.h"

namespace tipline::floor_talk {

inline int RunMore() { return scene().FastBreak.BreakAttackers - scene().FastBreak.BreakDefenders; }
/// Nobody is near the man who takes the long pass.
inline bool LeftAlone() { return scene().FastBreak.BreakDefenders == 0 || RunMore() >= 2; }
inline bool HasNumbers() { return RunMore() > 0; }

// clang-format off
inline constexpr Saying kOutletSayings[] = {
    {"quick outlet pass"}, {"outlet pass"}, {"{who} with the quick outlet pass"}, {"{who} with the outlet pass"},
    {"{who} gets it out quickly"}};
inline constexpr Saying kFastbreakStartSayings[] = {
    {"{team} on the fastbreak"}, {"{who} on the run"}, {"{who} on the break"},
    {"{team} with a {word} break", nullptr, 15}, {"{who} with a {word} break"},
    {"{team} with numbers", HasNumbers}, {"gold rush", HasNumbers, 3}, {"bust out", nullptr, 3}, {"break out", nullptr, 4},
    {"{who} #041"}, {"{who} #042"}};
inline constexpr Saying kLongPassSayings[] = {
    {"{who} down court to {other}"}, {"{who} fires down court to {other}"}, {"{who} deep to {other}"},
    {"{who} deep down court to {other}"}, {"long pass to {other}"}, {"ahead to {other}"}, {"{who} ahead to {other}", nullptr, 20}};
inline constexpr Saying kAllAloneSayings[] = {
    {"{other} next to the hoop!"}, {"all alone!"}, {"basket hanging!"}, {"to a basket hanging {other}"},
    {"{other} cherry picking down court!", nullptr, 5}, {"all alone down court!"}};
inline constexpr Saying kGetsBackSayings[] = {
    {"{def} is back"}, {"{def} hustles back"}, {"{def} is back on defense"}, {"{def} slows the break"},
    {"{def} slows them down"}, {"{def} is back to defend"}};
// clang-format on

inline constexpr Family kOutlet{"DescribeOutlet", kOutletSayings};
inline constexpr Family kFastbreakStart{"DescribeFastbreakStart", kFastbreakStartSayings};
inline constexpr Family kLongPass{"DescribePass break", kLongPassSayings};
inline constexpr Family kAllAlone{"DescribePass alone", kAllAloneSayings};
inline constexpr Family kGetsBack{"DescribeFastbreakStart defense", kGetsBackSayings};

}  // namespace tipline::floor_talk
