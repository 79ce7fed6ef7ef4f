#include "engine/availability.h"

#include <gtest/gtest.h>

#include "aftermath/finish_game.h"
#include "support/neutral_game.h"

namespace tipline {
namespace {

PlayerRecord& P() { return game.player[1][1]; }

/// A league game on season month 4, day 10.
void SetUpLoad() {
  SetUpNeutralGame();
  program.GameKind = "L";
  program.ReplayLocked = true;
  league.rules.InjuryOption = 1;
  league.rules.TransactionDatesCheck = 1;
  game.GameMonth = 4;
  game.GameDay = 10;
}

// clang-format off
TEST(Availability, WhoMayPlay) {
  const struct { const char* why; void (*change)(); bool out; } cases[] = {
      {"nothing against him", [] {}, false},
      {"inactive", [] { P().Status = 99; }, true},
      {"suspended", [] { P().SuspensionGames = 1; }, true},
      {"suspended, but no league game", [] { P().SuspensionGames = 1, program.GameKind = "E"; }, false},
      {"hurt", [] { P().InjuryReturnMonth = 4, P().InjuryReturnDay = 10; }, true},
      {"back since yesterday", [] { P().InjuryReturnMonth = 4, P().InjuryReturnDay = 9; }, false},
      {"back, and active again", [] { P().InjuryReturnMonth = 3, P().InjuryReturnDay = 30, P().Status = 99; }, false},
      {"hurt, without injuries in the rules", [] { P().InjuryReturnMonth = 5, league.rules.InjuryOption = 0; }, false},
      {"an August return is none", [] { P().InjuryReturnMonth = 12, P().InjuryReturnDay = 20; }, false},
      {"not there yet", [] { P().StartMonth = 4, P().StartDay = 11; }, true},
      {"his first day", [] { P().StartMonth = 4, P().StartDay = 10, P().EndMonth = 12; }, false},
      {"gone", [] { P().StartMonth = 1, P().EndMonth = 4, P().EndDay = 9; }, true},
      {"gone, but dates don't count", [] { P().EndMonth = 4, P().EndDay = 9, league.rules.TransactionDatesCheck = 0; }, false},
      {"in a span", [] { P().InactiveStartMonth[5] = 4, P().InactiveStartDay[5] = 1, P().InactiveStopMonth[5] = 4, P().InactiveStopDay[5] = 10; }, true},
      {"a span that ends before it starts", [] { P().InactiveStartMonth[5] = 4, P().InactiveStartDay[5] = 10, P().InactiveStopMonth[5] = 4, P().InactiveStopDay[5] = 9; }, false},
  };
  for (const auto& c : cases) {
    SetUpLoad();
    c.change();
    SetAvailability(1);
    EXPECT_EQ(LoadedAt(1, 1).PlayerOut, c.out) << c.why;
    EXPECT_EQ(LoadedAt(1, 2).PlayerOut, 0) << c.why;
  }
}

TEST(Availability, ALightInjuryEndsEarlyOrDragsOn) {
  const struct { const char* why; int day; std::vector<double> draws; int month, returns; } cases[] = {
      {"over a week early",       10, {1, 7},       0, 0},
      {"eight days are too many", 10, {1, 6, 2},    4, 17},
      {"not tried",               10, {2, 2},       4, 17},
      {"three days more",         17, {2, 1, 3, 3}, 4, 20},
      {"into the next month",     26, {2, 1, 3, 2}, 5, 2},
      {"too tough for that",      17, {2, 1, 1},    4, 17},
  };
  for (const auto& c : cases) {
    SetUpLoad();
    game.GameDay = c.day;
    P().InjurySeverity = 1, P().InjuryReturnMonth = 4, P().InjuryReturnDay = 17, P().RateDurability = 9;
    random.Script(c.draws);
    DrawLightInjury(P());
    random.Script({});
    SetAvailability(1);
    EXPECT_EQ(P().InjuryReturnMonth, c.month) << c.why;
    EXPECT_EQ(P().InjuryReturnDay, c.returns) << c.why;
  }
}
// clang-format on

TEST(Availability, PreGameInjuriesByDurability) {
  const struct {
    int durability, forAll, draw;
    bool out;
  } cases[] = {{10, 0, 1, true}, {10, 0, 2, false}, {1, 0, 10, true}, {1, 10, 2, false}};
  for (const auto& c : cases) {
    SetUpLoad();
    league.rules.InjuryOption = 2;
    league.rules.UniversalDurabilityList = static_cast<u8>(c.forAll);
    P().RateDurability = static_cast<u8>(c.durability);
    random.Script({static_cast<double>(c.draw), 250, 250, 250, 250});
    SetAvailability(1);
    random.Script({});
    EXPECT_EQ(LoadedAt(1, 1).PlayerOut, c.out) << c.durability << " " << c.draw;
    EXPECT_EQ(P().InjuryReturnMonth, 0) << "for this game alone";
  }
}

TEST(Availability, ASuspensionIsServedFromTheNextGameOn) {
  SetUpLoad();
  P().SuspensionGames = 2;
  SetAvailability(1);
  game.player[1][2].SuspensionGames = 2;  // earned in this game
  FinishGame();
  EXPECT_EQ(P().SuspensionGames, 1);
  EXPECT_EQ(game.player[1][2].SuspensionGames, 2);
}

}  // namespace
}  // namespace tipline
