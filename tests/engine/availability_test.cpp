#include "engine/availability.h"

#include <gtest/gtest.h>

#include "aftermath/finish_game.h"
#include "engine/eligible.h"
#include "support/neutral_game.h"
#include "support/rows.h"

namespace tipline {
namespace {

PlayerRecord& P() { return game.player[1][1]; }

/// A league game on season month 4, day 10.
void SetUpLoad() {
  SetUpNeutralGame();
  program.GameKind = "L";
  program.ReplayLocked = true;
  league.rules.InjuryOption = 1;
  league.rules.DqList = 6;
  league.rules.TransactionDatesCheck = 1;
  game.GameMonth = 4;
  game.GameDay = 10;
}

void Hurt(u8 month, u8 day) { P().InjuryReturnMonth = month, P().InjuryReturnDay = day; }
void Gone() { P().StartMonth = 1, P().EndMonth = 4, P().EndDay = 9; }
void InactiveSpan(u8 from, u8 to) {
  P().InactiveStartMonth[5] = P().InactiveStopMonth[5] = 4;
  P().InactiveStartDay[5] = from, P().InactiveStopDay[5] = to;
}

// clang-format off
TEST(Availability, WhoMayPlay) {
  const auto plays = [] {
    SetAvailability(1);
    EXPECT_TRUE(IsEligible(1, 2));
    return IsEligible(1, 1);
  };
  ExpectRows(SetUpLoad, plays, {
      {"one foul left", [] { P().Stats[3].Pf = 5; }, true},
      {"fouled out", [] { P().Stats[3].Pf = 6; }, false},
      {"no limit of fouls", [] { league.rules.DqList = 0, P().Stats[3].Pf = 9; }, true},
      {"another team's man", [] { P().TeamNo = 7; }, false},
      {"inactive", [] { P().Status = 99; }, false},
      {"suspended", [] { P().SuspensionGames = 1; }, false},
      {"suspended, but no league game", [] { P().SuspensionGames = 1, program.GameKind = "E"; }, true},
      {"hurt", [] { Hurt(4, 10); }, false},
      {"back since yesterday", [] { Hurt(4, 9); }, true},
      {"back, and active again", [] { Hurt(3, 30), P().Status = 99; }, true},
      {"hurt, without injuries in the rules", [] { Hurt(5, 0), league.rules.InjuryOption = 0; }, true},
      {"an August return is none", [] { Hurt(12, 20); }, true},
      {"not there yet", [] { P().StartMonth = 4, P().StartDay = 11; }, false},
      {"his first day", [] { P().StartMonth = 4, P().StartDay = 10, P().EndMonth = 12; }, true},
      {"gone", [] { Gone(); }, false},
      {"gone, but dates don't count", [] { Gone(), league.rules.TransactionDatesCheck = 0; }, true},
      {"in a span", [] { InactiveSpan(1, 10); }, false},
      {"a span that ends before it starts", [] { InactiveSpan(10, 9); }, true},
  });
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
    Hurt(4, 17), P().InjurySeverity = 1, P().RateDurability = 9;
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
