#pragma once
// Steals. {who} is the man who lost the ball.
#include "narration/whistle_moments.h"

namespace tipline::whistles {

// clang-format off
/// The pass was taken, not the dribble: nobody strips a man whom he does not guard.
inline bool FromThePass() {
  const Play& play = game.play;
  return play.Stealer != scene().BallDefender || play.TrapPass ||
         play.ExtraPass || scene().Possession.PassFirst || Lobbed();
}
inline bool OffTheDribble() { return !FromThePass(); }
inline bool FewMinutesLeft() { return LastPeriod() && scene().GameClock < 1200 && Margin() <= 5; }

inline constexpr Saying kBriefStealSayings[] = {{"{stealer} steals it from {who}"}};
inline constexpr Saying kPassSayings[] = {
    {"{who} passes.."},
    {"the pass from {who}.."},
    {"{who} looks inside..",        SetOffense},
    {"{who} throws it up court..",  OnBreak, 30},
    {"{who} goes up top with it..", Lobbed, 30},
};
inline constexpr Saying kPassTippedSayings[] = {{"{stealer} tipped it"}, {"{stealer} deflected it"}};
inline constexpr Saying kStealSayings[] = {
    {"{stealer} steals it from {who}"},
    {"picked off by {stealer}",                FromThePass},
    {"stolen by {stealer}"},
    {"intercepted by {stealer}",               FromThePass},
    {"the pass is stolen by {stealer}",        FromThePass},
    {"{stealer} steals the pass",              FromThePass},
    {"bad pass stolen by {stealer}",           FromThePass},
    {"{stealer} reads it all the way",         FromThePass, 6},
    {"{stealer} stepped in front of it",       FromThePass},
    {"great steal by {stealer}",               nullptr, 5},
    {"the steal by {stealer}"},
    {"tipped and stolen by {stealer}"},
    {"the ball is taken away by {stealer}",    OffTheDribble},
    {"stripped by {stealer}",                  OffTheDribble},
    {"ripped away by {stealer}",               OffTheDribble},
    {"swiped steal by {stealer}",              OffTheDribble},
    {"swiped by {stealer}",                    OffTheDribble},
    {"{stealer} #145 {who}",                   OffTheDribble},
    {"{stealer} reached in and took it",       OffTheDribble},
    {"{stealer} takes it right from {who}",    OffTheDribble},
    {"a big steal by {stealer}!",              FewMinutesLeft, 20},
};
inline constexpr Saying kDiveSayings[] = {{"{stealer} dives for it"}, {"{stealer} dives"}, {"{stealer} dives into the seats"}};
inline constexpr Saying kDiveEndSayings[] = {{"and steals it!"}, {"and saves it!"}};
inline constexpr Saying kPileSayings[] = {
    {"there's a pile on the floor"}, {"bodies on the floor"}, {"there's a scramble on the floor"},
};
inline constexpr Saying kStealCountSayings[] = {{"that's {n} steals for {stealer}"}, {"the {ord} steal for {stealer}"}};
// clang-format on

inline constexpr Family kBriefSteal{"DescribeSteal", kBriefStealSayings};
inline constexpr Family kPass{"DescribeSteal", kPassSayings};
inline constexpr Family kPassTipped{"DescribeDeflection", kPassTippedSayings};
inline constexpr Family kSteal{"DescribeSteal", kStealSayings};
inline constexpr Family kDive{"DescribeDive", kDiveSayings};
inline constexpr Family kDiveEnd{"DescribeDive", kDiveEndSayings};
inline constexpr Family kPile{"DescribePile", kPileSayings};
inline constexpr Family kStealCount{"DescribeSteal", kStealCountSayings};

}  // namespace tipline::whistles
