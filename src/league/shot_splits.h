#pragma once
// The shot table: attempts and makes by kind of shot, a man's counters beside his team's.
#include "league/player_record.h"
#include "league/team_record.h"

namespace tipline {

struct ShotSplit {
  Table<i16, 2, 3> PlayerRecord::*man;  ///< 2 this season, 3 this game
  i16 TeamRecord::*team;                ///< this season
};
// clang-format off
inline constexpr ShotSplit kShotSplits[] = {
    {&PlayerRecord::ShotAttInside,      &TeamRecord::ShotAttInside},
    {&PlayerRecord::ShotAttOutside,     &TeamRecord::ShotAttOutside},
    {&PlayerRecord::ShotAttThree,       &TeamRecord::ShotAttThree},
    {&PlayerRecord::ShotAttDrive,       &TeamRecord::ShotAttDrive},
    {&PlayerRecord::ShotAttFastbreak2,  &TeamRecord::ShotAttFastbreak2},
    {&PlayerRecord::ShotAttOffReb2,     &TeamRecord::ShotAttOffReb2},
    {&PlayerRecord::ShotAttFastbreak3,  &TeamRecord::ShotAttFastbreak3},
    {&PlayerRecord::ShotAttOffReb3,     &TeamRecord::ShotAttOffReb3},
    {&PlayerRecord::ShotMadeInside,     &TeamRecord::ShotMadeInside},
    {&PlayerRecord::ShotMadeOutside,    &TeamRecord::ShotMadeOutside},
    {&PlayerRecord::ShotMadeThree,      &TeamRecord::ShotMadeThree},
    {&PlayerRecord::ShotMadeDrive,      &TeamRecord::ShotMadeDrive},
    {&PlayerRecord::ShotMadeFastbreak2, &TeamRecord::ShotMadeFastbreak2},
    {&PlayerRecord::ShotMadeOffReb2,    &TeamRecord::ShotMadeOffReb2},
    {&PlayerRecord::ShotMadeFastbreak3, &TeamRecord::ShotMadeFastbreak3},
    {&PlayerRecord::ShotMadeOffReb3,    &TeamRecord::ShotMadeOffReb3},
};
// clang-format on

}  // namespace tipline
