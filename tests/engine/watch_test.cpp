// Watched stretches: both sides run unattended up to a mark.
#include <gtest/gtest.h>

#include "base/random.h"
#include "engine/clock.h"
#include "engine/engine.h"
#include "harness/bench_coach.h"
#include "harness/memory_league.h"
#include "league/setup.h"
#include "support/two_teams.h"

namespace tipline {
namespace {

TEST(WatchUntil, EndsAtItsMark) {
  // clang-format off
  const struct { const char* why; WatchUntil mark; int period, clock; bool reached; } cases[] = {
      {"a tenth before six minutes", "1st Period - Six Minutes", 1, 3600, false},
      {"below them", "1st Period - Six Minutes", 1, 3599, true},
      {"in another period", "1st Period - Six Minutes", 2, 3599, false},
      {"two minutes", "2nd Period - Two Minutes", 2, 1199, true},
      {"not yet", "3rd Period - One Minute", 3, 600, false},
      {"half a minute", "4th Period - 30 Seconds", 4, 299, true},
      {"the last tenth runs", "End 4th Period", 4, 1, false},
      {"the period is over", "End 1st Period", 1, 0, true},
  };
  // clang-format on
  for (const auto& c : cases) {
    TwoTeams();
    game.Period = c.period;
    game.PlayTime = 50;
    game.GameClock = c.clock + game.PlayTime;
    game.WatchUntil = c.mark;
    EndPlay();
    EXPECT_EQ(Watching(), !c.reached) << c.mark.Text() << ": " << c.why;
  }
}

/// A game between humans who are not asked before the mark.
void Watch(const char* preset, std::uint64_t seed, std::string_view mark) {
  OpenSmallLeague(preset, seed);
  random.Seed(seed);
  SetUpMatch(MemoryTeams()[0], MemoryTeams()[1]);
  SeatHumans();
  NewGame();
  game.WatchUntil.Set(mark);
}

TEST(WatchUntil, HumansAreNotAskedBeforeTheMarkAndAreBehindIt) {
  for (std::size_t i = 1; i < std::size(WatchUntilWords::kTexts); ++i) {
    Watch("pro", i, WatchUntilWords::kTexts[i]);
    const WatchMark mark = MarkOf(game.WatchUntil);
    SetPlayBox();
    if (game.GameOver) continue;  // the end of the last period is the end of most games
    EXPECT_FALSE(Watching()) << WatchUntilWords::kTexts[i];
    const bool inPeriod = game.Period == mark.period && game.GameClock < mark.below;
    EXPECT_TRUE(inPeriod || game.Period == mark.period + 1) << WatchUntilWords::kTexts[i];
  }
}

TEST(WatchUntil, WhatAHumanDefendsWithStaysUnlessHeLeavesItToTheComputer) {
  Watch("pro", 1, "End 1st Period");
  for (Side& side : game.side) side.Pressure = 4, side.DefenseHelp = 3;
  game.side[2].BothDefenses = 1;
  SetPlayBox();
  EXPECT_TRUE(game.side[1].Pressure == 4 && game.side[1].DefenseHelp == 3);
  EXPECT_FALSE(game.side[2].Pressure == 4 && game.side[2].DefenseHelp == 3);
}

TEST(WatchUntil, AMarkThatNeverComesEndsWithTheGame) {
  Watch("college", 1, "4th Period - One Minute");  // two halves
  SetPlayBox();
  EXPECT_TRUE(game.GameOver);
  EXPECT_FALSE(Watching());
}

/// Stops at which the offense was asked for a play in one game.
int Asked(void (*calls)(SetupRecord&)) {
  Watch("pro", 3, "NONE");
  calls(setup);
  int asked = 0;
  while (!game.GameOver) {
    if (game.GameState == "OFFENSE" && !BallIsDue()) ++asked;
    LeaveItToTheComputer();
  }
  return asked;
}

TEST(PlayCalls, AreAskedForAsOftenAsTheGridSays) {
  const int none = Asked(CallNoPlays), some = Asked(UseDefaultCalls), all = Asked(CallAllPlays);
  EXPECT_LT(none, 10);  // only at a full clock, and behind a pass
  EXPECT_GT(all, 120);
  EXPECT_NEAR(some, 0.35 * all, 0.15 * all);
}

}  // namespace
}  // namespace tipline
