#include <gtest/gtest.h>

#include <functional>

#include "engine/clock.h"
#include "support/two_teams.h"

namespace tipline {
namespace {

using Change = std::function<void()>;

/// Side 1 has scored and both wish a timeout; the ball is side 2's.
void BothWish() {
  TwoTeams();
  for (Side& side : game.side) side.TimeoutOffense = side.TimeoutDefense = 1, side.TimeoutsLeft = 3;
}

TEST(TakeTimeouts, HonoursWishesAfterTheirResults) {
  // clang-format off
  const struct {
    const char* why;
    PlayResult result;
    int scorersLeft, winnersLeft;
  } cases[] = {
      {"the scorer comes first", "G", 2, 3}, {"after a three too", "G3", 2, 3},
      {"a miss: who won the ball", "M", 3, 2}, {"a rebound", "DEFREB", 3, 2}, {"a steal", "ST", 3, 2},
      {"out of bounds", "OB", 3, 3}, {"with free throws to come", "GF", 3, 3},
  };
  // clang-format on
  for (const auto& c : cases) {
    BothWish();
    game.PlayResult = c.result;
    TakeTimeouts();
    EXPECT_EQ(game.side[1].TimeoutsLeft, c.scorersLeft) << c.why;
    EXPECT_EQ(game.side[2].TimeoutsLeft, c.winnersLeft) << c.why;
    const bool taken = c.scorersLeft + c.winnersLeft < 6;
    EXPECT_EQ(game.GameState == "TIMEOUT-DEFENSE", taken) << c.why;
  }
}

TEST(TakeTimeouts, SpendsTheWishAndRestsEverybody) {
  BothWish();
  game.PlayResult = "G";
  for (const int slot : {3, 4}) ManAt(2, slot).FatigueLoad = 1000;
  LoadedAt(2, 4).PlayerOut = 1;
  TakeTimeouts();
  EXPECT_EQ(game.side[1].TimeoutOffense, 0);
  EXPECT_EQ(game.side[2].TimeoutDefense, 1) << "still wished";
  EXPECT_EQ(ManAt(2, 3).FatigueLoad, 850);
  EXPECT_EQ(ManAt(2, 4).FatigueLoad, 1000) << "he is out";
  EXPECT_EQ(ManAt(2, 8).RestTime, 350) << "on the bench";
  BothWish();
  game.side[1].TimeoutsLeft = game.side[2].TimeoutsLeft = 0;
  game.PlayResult = "G";
  TakeTimeouts();
  EXPECT_TRUE(game.GameState == "OFFENSE") << "none left";
}

TEST(AdvanceBallOnTimeout, OnlyLateInAHalf) {
  const struct {
    const char* why;
    int periods, period, clock, kind, then, handover;
  } cases[] = {
      {"end of the half", 4, 2, 1200, 4, 2, 2}, {"a tenth too early", 4, 2, 1201, 4, 4, 0},
      {"first quarter", 4, 1, 600, 4, 4, 0},    {"third quarter", 4, 3, 600, 3, 3, 0},
      {"overtime", 4, 6, 600, 3, 2, 2},         {"any half of two", 2, 1, 600, 3, 2, 2},
      {"already in front", 4, 4, 600, 1, 1, 2}, {"three periods", 3, 3, 600, 4, 4, 0},
  };
  for (const auto& c : cases) {
    TwoTeams();
    league.rules.PeriodList = static_cast<u8>(c.periods);
    game.Period = c.period;
    game.GameClock = c.clock;
    game.DeadBallKind = c.kind;
    AdvanceBallOnTimeout();
    EXPECT_EQ(game.DeadBallKind, c.then) << c.why;
    EXPECT_EQ(game.TimeoutHandover, c.handover) << c.why;
  }
}

TEST(TakeTimeouts, CallsMediaTimeouts) {
  // clang-format off
  const struct {
    const char* why;
    int periods, clock;
    Change change;
    int side;  // 0 none is due
  } cases[] = {
      {"quarter: the visitors' band", 4, 1800, [] {}, 1}, {"its end", 4, 1200, [] {}, 1},
      {"after it", 4, 1199, [] {}, 0}, {"the home side's band", 4, 1801, [] {}, 2},
      {"its start", 4, 3600, [] {}, 2}, {"before it", 4, 3601, [] {}, 0},
      {"they have taken one", 4, 1800, [] { game.side[1].TimeoutsByPeriod[1] = 1; }, 0},
      {"they have none", 4, 1800, [] { game.side[1].TimeoutsLeft = 0; }, 0},
      {"half: under four minutes", 2, 2400, [] {}, 1}, {"under eight", 2, 2401, [] {}, 2},
      {"under sixteen", 2, 9600, [] {}, 2}, {"too early", 2, 9601, [] {}, 0},
      {"not charged, so none need be left", 2, 5000, [] { game.side[1].TimeoutsLeft = 0; }, 1},
      {"done in this half", 2, 5000, [] { game.MediaDone[12][1] = 1; }, 0},
      {"a live ball", 2, 5000, [] { game.PlayResult = "M"; }, 0},
      {"at the line", 2, 5000, [] { game.GameState = "FREETHROW-WAIT"; }, 0},
      {"overtime", 4, 1800, [] { game.Period = 5; }, 0}, {"three periods", 3, 1800, [] {}, 0},
      {"rule off", 4, 1800, [] { league.rules.AutomaticTimeoutsCheck = 0; }, 0},
  };
  // clang-format on
  for (const auto& c : cases) {
    TwoTeams();
    league.rules.AutomaticTimeoutsCheck = 1;
    league.rules.PeriodList = static_cast<u8>(c.periods);
    for (Side& side : game.side) side.TimeoutsLeft = 3;
    game.GameClock = c.clock;
    game.PlayResult = "TO";
    c.change();
    const int left = game.side[Clamp(c.side, 1, 2)].TimeoutsLeft;
    TakeTimeouts();
    EXPECT_EQ(game.GameState == "TIMEOUT-DEFENSE", c.side != 0) << c.why;
    if (c.side == 0) continue;
    EXPECT_EQ(game.side[c.side].TimeoutsByPeriod[1], 1) << c.why;
    EXPECT_EQ(game.side[c.side].TimeoutsLeft, c.periods == 4 ? 2 : left) << c.why;
  }
}

}  // namespace
}  // namespace tipline
