#pragma once
// Counters of the game and where the box keeps them: one list for what writes a box and what reads it. A byte
// that the game can't have, out of an old file or a damaged one, reads as the value given for it.
#include "engine/game_state.h"
#include "league/box_record.h"

namespace tipline {

struct BoxSideField {
  BoxSides<u8> BoxRecord::*box;
  int Side::*side;
  int low, high, otherwise;
};
// clang-format off
inline constexpr BoxSideField kBoxSideFields[] = {
    {&BoxRecord::Score,                  &Side::Score,                  0, 255, 0},
    {&BoxRecord::HalfScore,              &Side::HalfScore,              0, 255, 0},
    {&BoxRecord::OffensePace,            &Side::OffensePace,            0,   4, 2},
    {&BoxRecord::DefenseType,            &Side::DefenseType,            0,   3, 0},
    {&BoxRecord::InsideOffense,          &Side::InsideOffense,          0,   5, 3},
    {&BoxRecord::DefenseHelp,            &Side::DefenseHelp,            0,   4, 0},
    {&BoxRecord::Pressure,               &Side::Pressure,               0,   4, 0},
    {&BoxRecord::CrashBoardsOffense,     &Side::CrashBoardsOffense,     0,   2, 0},
    {&BoxRecord::CrashBoardsDefense,     &Side::CrashBoardsDefense,     0,   2, 0},
    {&BoxRecord::LastShot,               &Side::LastShot,               0,   1, 0},
    {&BoxRecord::QuickShot,              &Side::QuickShot,              0,   1, 0},
    {&BoxRecord::StealFoul,              &Side::StealFoul,              0,   1, 0},
    {&BoxRecord::NoFoul,                 &Side::NoFoul,                 0,   1, 0},
    {&BoxRecord::TimeoutOffense,         &Side::TimeoutOffense,         0,   1, 0},
    {&BoxRecord::TimeoutDefense,         &Side::TimeoutDefense,         0,   1, 0},
    {&BoxRecord::TimeoutsLeft,           &Side::TimeoutsLeft,           0, 255, 0},
    {&BoxRecord::TeamFouls,              &Side::TeamFouls,              0, 255, 0},
    {&BoxRecord::AutoSubWhenTired,       &Side::AutoSubWhenTired,       0,   1, 0},
    {&BoxRecord::AutoSubWhenFoulTrouble, &Side::AutoSubWhenFoulTrouble, 0,   1, 0},
    {&BoxRecord::UseRotationGrid,        &Side::UseRotationGrid,        0,   1, 0},
    {&BoxRecord::FastbreakPoints,        &Side::FastbreakPoints,        0, 255, 0},
    {&BoxRecord::BenchPoints,            &Side::BenchPoints,            0, 255, 0},
    {&BoxRecord::BiggestLead,            &Side::BiggestLead,            0, 255, 0},
    {&BoxRecord::GameTeamRebounds,       &Side::GameTeamRebounds,       0, 255, 0},
};

/// The same behind a marker; without it they are 0.
struct BoxMarkedField {
  u8 BoxRecord::*mark;
  BoxSides<u8> BoxRecord::*box;
  int Side::*side;
};
inline constexpr BoxMarkedField kBoxMarkedFields[] = {
    {&BoxRecord::TurnoversMark,    &BoxRecord::GameTeamTurnovers,       &Side::GameTeamTurnovers},
    {&BoxRecord::PaintMark,        &BoxRecord::ExtraPaintPoints,        &Side::ExtraPaintPoints},
    {&BoxRecord::SecondChanceMark, &BoxRecord::ExtraSecondChancePoints, &Side::ExtraSecondChancePoints},
};

struct BoxManField {
  BoxMen<u8> BoxRecord::*box;
  int Man::*man;
  int low, high, otherwise;
};
inline constexpr BoxManField kBoxManFields[] = {
    {&BoxRecord::CoverageInside,    &Man::CoverageInside,    1,   6, 3},
    {&BoxRecord::CoverageOutside,   &Man::CoverageOutside,   1,   6, 3},
    {&BoxRecord::CoverageThree,     &Man::CoverageThree,     1,   6, 3},
    {&BoxRecord::DoubleTeamInside,  &Man::DoubleTeamInside,  0,   1, 0},
    {&BoxRecord::DoubleTeamOutside, &Man::DoubleTeamOutside, 0,   1, 0},
    {&BoxRecord::DoubleTeamThree,   &Man::DoubleTeamThree,   0,   1, 0},
    {&BoxRecord::Ejected,           &Man::Ejected,           0,   1, 0},
    {&BoxRecord::GlobalOffense,     &Man::GlobalOffense,     0,   3, 0},
    {&BoxRecord::SafeStyle,         &Man::SafeStyle,         0,   1, 0},
    {&BoxRecord::ShareShots,        &Man::ShareShots,        0, 255, 0},
    {&BoxRecord::ShareBlocks,       &Man::ShareBlocks,       0, 255, 0},
    {&BoxRecord::ShareAssists,      &Man::ShareAssists,      0, 255, 0},
    {&BoxRecord::ShareOffReb,       &Man::ShareOffReb,       0, 255, 0},
    {&BoxRecord::ShareDefReb,       &Man::ShareDefReb,       0, 255, 0},
};

struct BoxClock {
  BoxMen<i32> BoxRecord::*box;
  i32 Man::*man;
};
inline constexpr BoxClock kBoxClocks[] = {{&BoxRecord::PlayerGameTime, &Man::PlayerGameTime},
                                          {&BoxRecord::RestTime,       &Man::RestTime},
                                          {&BoxRecord::FatigueLoad,    &Man::FatigueLoad}};

/// Counters of the player record, there at index 3. The first sixteen are the shots by kind.
struct BoxCounter {
  BoxMen<u8> BoxRecord::*box;
  Table<i16, 2, 3> PlayerRecord::*player;
};
inline constexpr int kBoxShotCounters = 16;
inline constexpr BoxCounter kBoxCounters[] = {
    {&BoxRecord::ShotAttInside,      &PlayerRecord::ShotAttInside},
    {&BoxRecord::ShotAttOutside,     &PlayerRecord::ShotAttOutside},
    {&BoxRecord::ShotAttThree,       &PlayerRecord::ShotAttThree},
    {&BoxRecord::ShotAttDrive,       &PlayerRecord::ShotAttDrive},
    {&BoxRecord::ShotAttFastbreak2,  &PlayerRecord::ShotAttFastbreak2},
    {&BoxRecord::ShotAttOffReb2,     &PlayerRecord::ShotAttOffReb2},
    {&BoxRecord::ShotAttFastbreak3,  &PlayerRecord::ShotAttFastbreak3},
    {&BoxRecord::ShotAttOffReb3,     &PlayerRecord::ShotAttOffReb3},
    {&BoxRecord::ShotMadeInside,     &PlayerRecord::ShotMadeInside},
    {&BoxRecord::ShotMadeOutside,    &PlayerRecord::ShotMadeOutside},
    {&BoxRecord::ShotMadeThree,      &PlayerRecord::ShotMadeThree},
    {&BoxRecord::ShotMadeDrive,      &PlayerRecord::ShotMadeDrive},
    {&BoxRecord::ShotMadeFastbreak2, &PlayerRecord::ShotMadeFastbreak2},
    {&BoxRecord::ShotMadeOffReb2,    &PlayerRecord::ShotMadeOffReb2},
    {&BoxRecord::ShotMadeFastbreak3, &PlayerRecord::ShotMadeFastbreak3},
    {&BoxRecord::ShotMadeOffReb3,    &PlayerRecord::ShotMadeOffReb3},
    {&BoxRecord::OppFGA,             &PlayerRecord::OppFGA},
    {&BoxRecord::OppFGM,             &PlayerRecord::OppFGM},
};

struct BoxCarried {
  BoxMen<i16> BoxRecord::*box;
  Table<i16, 2, 3> PlayerRecord::*player;
  int most;  ///< of the season
};
inline constexpr BoxCarried kBoxCarried[] = {
    {&BoxRecord::CarriedTotal1, &PlayerRecord::CarriedTotal1, 32767},
    {&BoxRecord::CarriedTotal2, &PlayerRecord::CarriedTotal2, 32767},
    {&BoxRecord::CarriedTotal3, &PlayerRecord::CarriedTotal3, 25000},
    {&BoxRecord::CarriedTotal4, &PlayerRecord::CarriedTotal4, 32767},
};

/// A list of names is "Ray, Oakes, " while the game is on and "Ray, Oakes" in the file.
struct BoxNameList {
  Text<60> BoxRecord::*box;
  std::string GameRun::*list;
};
inline constexpr BoxNameList kBoxNameLists[] = {{&BoxRecord::InjuryNames,    &GameRun::InjuryNames},
                                                {&BoxRecord::TechnicalNames, &GameRun::TechnicalNames},
                                                {&BoxRecord::EjectionNames,  &GameRun::EjectionNames},
                                                {&BoxRecord::FlagrantNames,  &GameRun::FlagrantNames}};

// What a game needs to go on from a snapshot.
struct BoxResumeSide {
  BoxSides<u8> BoxResume::*box;
  int Side::*side;
  int high;  ///< above it 0
};
inline constexpr BoxResumeSide kBoxResumeSides[] = {
    {&BoxResume::QuickFoul,       &Side::QuickFoul,         3},
    {&BoxResume::WaitingSub,      &Side::WaitingSub,       30},
    {&BoxResume::FreeThrowMan,    &Side::FreeThrowMan,     30},
    {&BoxResume::IllegalDefenses, &Side::IllegalDefenses, 255},
    {&BoxResume::LooseBalls,      &Side::LooseBalls,      255},
    {&BoxResume::DefenseList,     &Side::DefenseList,       6},
    {&BoxResume::QuickPassesGame, &Side::QuickPassesGame, 255},
};

struct BoxResumeGame {
  u8 BoxResume::*box;
  int GameRun::*game;
  int high;
};
inline constexpr BoxResumeGame kBoxResumeGame[] = {
    {&BoxResume::BallSlot,           &GameRun::BallSlot,             5},
    {&BoxResume::BallDefender,       &GameRun::BallDefender,        30},
    {&BoxResume::PossessionArrow,    &GameRun::PossessionArrow,      2},
    {&BoxResume::InboundSlot,        &GameRun::InboundSlot,          5},
    {&BoxResume::AfterTimeout,       &GameRun::AfterTimeout,         1},
    {&BoxResume::TimeoutTaken,       &GameRun::TimeoutTaken,         1},
    {&BoxResume::TimeoutHandover,    &GameRun::TimeoutHandover,      4},
    {&BoxResume::AfterPassNoLook,    &GameRun::AfterPassNoLook,      1},
    {&BoxResume::TechnicalFreeThrow, &GameRun::TechnicalFreeThrow,   1},
    {&BoxResume::TechnicalSide,      &GameRun::TechnicalSide,        2},
    {&BoxResume::PutbackClass,       &GameRun::PutbackClass,         3},
    {&BoxResume::SecondChance,       &GameRun::SecondChance,         1},
    {&BoxResume::LeadSide,           &GameRun::LeadSide,             2},
    {&BoxResume::Tension,            &GameRun::Tension,            255},
};

struct BoxResumePossession {
  u8 BoxResume::*box;
  int Possession::*possession;
  int high;
};
inline constexpr BoxResumePossession kBoxResumePossession[] = {
    {&BoxResume::PassCount,            &Possession::PassCount,            255},
    {&BoxResume::QuickPassCount,       &Possession::QuickPassCount,       255},
    {&BoxResume::LastPasserSlot,       &Possession::LastPasserSlot,         5},
    {&BoxResume::PassedThisPossession, &Possession::PassedThisPossession,   1},
};
// clang-format on

}  // namespace tipline
