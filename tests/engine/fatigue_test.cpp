#include "engine/fatigue.h"

#include <gtest/gtest.h>

#include "support/rows.h"
#include "support/two_teams.h"

namespace tipline {
namespace {

constexpr int kOnFloor = 3, kOnBench = 8;  // both with a stint of 5000 and a rest of 1200

TEST(UpdateEnergy, FallsWithTheLoad) {
  const struct {
    const char* why;
    int slot, load, rest, energy, loadThen, restThen;
  } cases[] = {
      {"the first tenth of a stint is free", kOnFloor, 499, 0, 100, 499, 0},
      {"tiring begins", kOnFloor, 500, 0, 99, 500, 0},
      {"overworked", kOnFloor, 5030, 0, 79, 5030, 0},
      {"nothing left", kOnFloor, 90000, 0, 0, 90000, 0},
      {"rest on the floor does not count", kOnFloor, 5030, 4000, 79, 5030, 4000},
      {"late in it the load falls", kOnBench, 5030, 300, 79, 4730, 300},
      {"never below nothing", kOnBench, 200, 1199, 100, 0, 1199},
      {"rested: all is back at once", kOnBench, 5030, 1200, 100, 0, 0},
      {"rest is held to eight minutes", kOnFloor, 0, 9000, 100, 0, 4800},
  };
  for (const auto& c : cases) {
    TwoTeams();
    Man& man = ManAt(1, c.slot);
    man.FatigueLoad = c.load;
    man.RestTime = c.rest;
    UpdateEnergy(1, c.slot);
    EXPECT_EQ(man.Energy, c.energy) << c.why;
    EXPECT_EQ(man.FatigueLoad, c.loadThen) << c.why;
    EXPECT_EQ(man.RestTime, c.restThen) << c.why;
  }
}

TEST(SetStints, StaysInBoundsAndRunsWithTheMinutes) {
  const struct {
    const char* why;
    int periods, minutes, target;
    bool playoff;
    int length, rest;
  } cases[] = {
      {"no target: 30.5 real minutes round to 31", 4, 12, 0, false, 4480, 1780},
      {"everything for this game", 4, 12, 40, true, 7000, 1360},
      {"no end to it", 4, 12, 200, false, 14000, 300},
      {"25 of 40 minutes are 30 of 48", 2, 20, 25, false, 4500, 2400},
      {"but no shorter than five minutes", 4, 10, 10, false, 3000, 1933},
      {"no periods at all", 0, 0, 30, false, 3000, 300},
  };
  for (const auto& c : cases) {
    TwoTeams();
    PlayerAt(1, 1).TargetMinutes = static_cast<u8>(c.target);
    PlayerAt(1, 1).Stats[1].G = 10;
    PlayerAt(1, 1).Stats[1].Min = 305;
    league.rules.PeriodList = static_cast<u8>(c.periods);
    league.rules.MinuteList = static_cast<u8>(c.minutes);
    program.PlayoffGame = c.playoff;
    SetStints(1);
    program.PlayoffGame = false;
    EXPECT_EQ(LoadedAt(1, 1).PlayLength, c.length) << c.why;
    EXPECT_EQ(LoadedAt(1, 1).RestLength, c.rest) << c.why;
  }
}

TEST(LineupCheck, LooksOnlyWithAReason) {
  const auto setUp = [] {
    TwoTeams();
    game.side[1].Lineup[4] = 3;  // a man who stands twice tells whether anybody looked
    PlayerAt(1, 3).DepthRank[4] = 6;
    for (auto& side : game.loaded) side.Fill({.PlayLength = 14000});
  };
  const auto looks = [] {
    LineupCheck();
    return game.side[1].Lineup[4] != 3;
  };
  // clang-format off
  ExpectRows(setUp, looks, {
      {"nothing has happened", [] {}, false},
      {"a tired man", [] { ManAt(2, 5).Energy = 99; }, true},
      {"a fouler has more fouls than periods", [] {
        game.play.Fouler = 9, game.play.FoulingSide = 2, PlayerAt(2, 9).Stats[3].Pf = 2; }, true},
  });
  // clang-format on
}

}  // namespace
}  // namespace tipline
