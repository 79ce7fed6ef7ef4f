#include "frontoffice/league_kinds.h"

#include "frontoffice/rating_math.h"

namespace tipline {
namespace {

// clang-format off
constexpr LeaguePreset kPresets[] = {
    {"pro",      GameLevel::kPro,     2022, 6, 30, 15, 82},
    {"college",  GameLevel::kCollege, 2022, 6, 48, 12, 28},
    {"women",    GameLevel::kWomen,   2022, 2, 12, 12, 40},
    {"historic", GameLevel::kPro,     1965, 2, 10, 12, 80},
};
// clang-format on

/// A rule book, in force from the season that begins in `from` until the next row of its level.
struct RuleStep {
  GameLevel level;
  int from;
  int periods, minutes;
  bool three;
  int shotClock;           // seconds, 0 none
  int fouls;               // personal fouls that disqualify
  int limit[3], shots[3];  // team fouls of the three penalty steps; 1 one shot, 2 one and one, 3 two shots
  bool prePenaltyShot;     // a common foul costs a shot before the penalty too
  bool backcourtTwo;       // a foul in the backcourt costs two shots
  bool threeToMakeTwo;     // in the penalty: three tries for two, two for one after a basket
  bool periodJump;         // every period begins with a jump
  bool alternating;        // a tied ball goes by turns instead of to a jump
  bool zone;               // zone defense is legal
  bool lastTwoMinutes;     // one foul before the penalty under two minutes
};

constexpr auto P = GameLevel::kPro, C = GameLevel::kCollege, W = GameLevel::kWomen;
// clang-format off
constexpr RuleStep kSteps[] = {
    // level, from, per, min, 3pt, clock, out, limits        shots      pre bc 3-2 jmp alt zone u2
    {P, 1946, 4, 12, 0,  0, 5, { 5,  5,  5}, {0, 0, 0}, 1, 0, 0, 1, 0, 0, 0},
    {P, 1947, 4, 12, 0,  0, 6, { 5,  5,  5}, {0, 0, 0}, 1, 0, 0, 1, 0, 0, 0},  // a sixth personal foul
    {P, 1954, 4, 12, 0, 24, 6, { 7,  7,  7}, {3, 3, 3}, 1, 1, 1, 1, 0, 0, 1},  // shot clock, team fouls
    {P, 1966, 4, 12, 0, 24, 6, { 6,  6,  6}, {3, 3, 3}, 1, 1, 1, 1, 0, 0, 1},
    {P, 1967, 4, 12, 0, 24, 6, { 5,  5,  5}, {3, 3, 3}, 1, 1, 1, 1, 0, 0, 1},
    {P, 1972, 4, 12, 0, 24, 6, { 5,  5,  5}, {3, 3, 3}, 0, 1, 1, 1, 0, 0, 1},  // no shot before the penalty
    {P, 1975, 4, 12, 0, 24, 6, { 5,  5,  5}, {3, 3, 3}, 0, 1, 1, 0, 0, 0, 1},  // one jump a game
    {P, 1979, 4, 12, 1, 24, 6, { 5,  5,  5}, {3, 3, 3}, 0, 1, 1, 0, 0, 0, 1},  // three-point line
    {P, 1981, 4, 12, 1, 24, 6, { 5,  5,  5}, {3, 3, 3}, 0, 0, 0, 0, 0, 0, 1},  // no extra tries
    {P, 2001, 4, 12, 1, 24, 6, { 5,  5,  5}, {3, 3, 3}, 0, 0, 0, 0, 0, 1, 1},  // zones legal

    {C, 1946, 2, 20, 0,  0, 5, { 7,  7,  7}, {0, 0, 0}, 1, 0, 0, 1, 0, 1, 0},
    {C, 1951, 4, 10, 0,  0, 5, { 7,  7,  7}, {0, 0, 0}, 1, 0, 0, 1, 0, 1, 0},  // three seasons of quarters
    {C, 1954, 2, 20, 0,  0, 5, { 7,  7,  7}, {2, 2, 2}, 1, 0, 0, 1, 0, 1, 0},  // one and one
    {C, 1972, 2, 20, 0,  0, 5, { 7,  7,  7}, {2, 2, 2}, 0, 0, 0, 1, 0, 1, 0},  // no shot before the penalty
    {C, 1981, 2, 20, 0,  0, 5, { 7,  7,  7}, {2, 2, 2}, 0, 0, 0, 0, 1, 1, 0},  // possession arrow
    {C, 1985, 2, 20, 0, 45, 5, { 7,  7,  7}, {2, 2, 2}, 0, 0, 0, 0, 1, 1, 0},  // shot clock
    {C, 1986, 2, 20, 1, 45, 5, { 7,  7,  7}, {2, 2, 2}, 0, 0, 0, 0, 1, 1, 0},  // three-point line
    {C, 1990, 2, 20, 1, 45, 5, { 7, 10, 10}, {2, 3, 3}, 0, 0, 0, 0, 1, 1, 0},  // two shots from the tenth foul
    {C, 1993, 2, 20, 1, 35, 5, { 7, 10, 10}, {2, 3, 3}, 0, 0, 0, 0, 1, 1, 0},
    {C, 2015, 2, 20, 1, 30, 5, { 7, 10, 10}, {2, 3, 3}, 0, 0, 0, 0, 1, 1, 0},

    // A women's professional game before there was one takes the halves that it began with in 1997.
    {W, 1946, 2, 20, 0,  0, 6, { 7, 10, 10}, {2, 3, 3}, 0, 0, 0, 0, 0, 1, 0},
    {W, 1970, 2, 20, 0, 30, 6, { 7, 10, 10}, {2, 3, 3}, 0, 0, 0, 0, 0, 1, 0},
    {W, 1979, 2, 20, 1, 30, 6, { 7, 10, 10}, {2, 3, 3}, 0, 0, 0, 0, 0, 1, 0},
    {W, 2006, 4, 10, 1, 24, 6, { 5,  5,  5}, {3, 3, 3}, 0, 0, 0, 0, 0, 1, 1},  // quarters
};
// clang-format on

const RuleStep& StepOf(GameLevel level, int year) {
  const RuleStep* found = nullptr;
  for (const RuleStep& step : kSteps) {
    if (step.level == level && (!found || step.from <= year)) found = &step;
  }
  return *found;
}

void SetLevelRules(RulesRecord& r, GameLevel level, int year) {
  const bool college = level == GameLevel::kCollege;
  r.TechList = 2;
  r.TechnicalFTslist = college ? 2 : 1;
  r.TechnicalPFCheck = college ? 2 : 1;
  if (level == GameLevel::kPro) return;
  // The extra tries were the men's professional game's alone.
  r.BackcourtMark = 99;
  r.TwoToMakeOneMark = 22;
  if (level != GameLevel::kWomen) return;
  r.TimeoutMark = 99;
  r.AutomaticTimeoutsCheck = year >= 1985;
  r.TimeoutList = 5;
  r.LastPeriodTimeoutList = 3;
  r.Last3MinTimeoutList = 2;
  r.OvertimeTimeoutList = 2;
}

}  // namespace

const LeaguePreset* FindPreset(std::string_view name) {
  for (const LeaguePreset& preset : kPresets) {
    if (preset.name == name) return &preset;
  }
  return nullptr;
}

int RosterSize(const LeaguePreset& preset, int year) {
  return std::min(preset.men, year >= 2020 ? 15 : year >= 2018 ? 13 : 12);
}

int SeasonGames(const LeaguePreset& preset, int year) {
  if (year == preset.year) return preset.games;
  if (preset.level == GameLevel::kWomen)
    return year >= 2025 ? 44 : year >= 2023 ? 40 : year >= 2022 ? 36 : 34;
  const int games = SeasonRow(year, preset.level == GameLevel::kCollege).Games;
  return games > 0 ? Clamp(games / 2 * 2, 10, 98) : 82;
}

RulesRecord RulesOf(GameLevel level, int year) {
  const RuleStep& step = StepOf(level, year);
  RulesRecord r;
  r.PeriodList = static_cast<u8>(step.periods);
  r.MinuteList = static_cast<u8>(step.minutes);
  r.OverTimeList = 5;
  r.ThreePointCheck = step.three;
  for (int i = 0; i < 3; ++i) {
    r.FoulLimit[i + 1] = static_cast<u8>(step.limit[i]);
    r.Penalty[i + 1] = static_cast<u8>(step.shots[i]);
  }
  r.DqList = static_cast<u8>(step.fouls);
  r.ShotClockList = static_cast<u8>(step.shotClock);
  r.OneShotPrePenaltyCheck = step.prePenaltyShot;
  r.BackcourtTwoShotsCheck = step.backcourtTwo;
  r.ThreeToMakeTwoCheck = step.threeToMakeTwo;
  r.QuarterJumpCheck = step.periodJump;
  r.ZoneLegalCheck = step.zone;
  r.PenaltyUnderTwoMinutesCheck = step.lastTwoMinutes;
  r.JumpBallMark = 99;
  r.JumpBallList = step.alternating;
  r.InjuryOption = 1;
  r.TransactionDatesCheck = 1;
  SetLevelRules(r, level, year);
  return r;
}

}  // namespace tipline
