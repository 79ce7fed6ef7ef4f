#include <gtest/gtest.h>

#include <set>

#include "engine/shot_selection.h"
#include "support/neutral_game.h"

namespace tipline {
namespace {

/// Men of 72 to 80 inches who are no options yet.
void SetUpSet() {
  SetUpPlay("");
  for (int s = 1; s <= 2; ++s) {
    game.side[s].Option = {};
    game.coach[s].Coverage3[0] = game.coach[s].Coverage4[0] = game.coach[s].Coverage5[0] = 2;
    for (int p = 1; p <= 5; ++p) game.player[s][p].HeightInches = static_cast<u8>(p * 2);
  }
}

struct Picks {
  int count[4] = {};
};
Picks Draw(void (*change)(), int times = 400) {
  Picks picks;
  SetUpSet();
  change();
  EachSeed(times, [&] {
    SetOpenStatus();
    for (int p = 1; p <= 5; ++p) ++picks.count[game.man[2][p].ShotPick];
  });
  return picks;
}

TEST(OpenStatus, PicksFollowTheRealMix) {
  const Picks plain = Draw([] {});
  EXPECT_EQ(plain.count[0], 0);
  // 121 threes against 1315 plays less the breaks' six per cent.
  EXPECT_NEAR(plain.count[kThree], 2000 * 121 / 1236.0, 60);
  EXPECT_EQ(Draw([] { Rules().ThreePointCheck = 0; }).count[kThree], 0) << "no line, no threes";
  EXPECT_GT(Draw([] { game.coach[2].Coverage5[0] = 4; }).count[kThree], plain.count[kThree]);
  EXPECT_GT(Draw([] {
              for (int p = 1; p <= 5; ++p) game.player[2][p].ShotSelection[3] = 5;
            }).count[kThree],
            plain.count[kThree] * 4 / 3);
  EXPECT_LT(Draw([] { D().DefenseType = 2; }).count[kInside], plain.count[kInside])
      << "a zone keeps them out";
}

TEST(OpenStatus, WishesAndStandingOrders) {
  const int none = Draw([] { O().InsideOffense = 0; }).count[kInside];
  const int two = Draw([] { O().InsideOffense = 5; }).count[kInside];
  EXPECT_LT(none, two * 19 / 20);
  EXPECT_GT(none, two / 2) << "a wish, heard half of the time";
  for (const int order : {kInside, kOutside, kThree}) {
    SetUpSet();
    for (int p = 1; p <= 5; ++p) OMan(p).GlobalOffense = order;
    O().InsideOffense = 9;
    int same = 0;
    EachSeed(300, [&] {
      SetOpenStatus();
      same += OMan(2).ShotPick == order ? 1 : 0;
    });
    EXPECT_GT(same, order == kInside ? 120 : 150) << order;
  }
}

TEST(OpenStatus, NoTwoMenOnOneSpot) {
  SetUpSet();
  EachSeed(300, [&] {
    SetOpenStatus();
    std::set<int> spots;
    for (int p = 1; p <= 5; ++p) {
      const Man& man = game.man[2][p];
      spots.insert(man.CourtSpot);
      EXPECT_EQ(man.CourtSpot / 100, man.ShotPick);
      EXPECT_EQ(man.NaturalZone, man.ShotPick);
    }
    EXPECT_EQ(spots.size(), 5u);
  });
}

TEST(OpenStatus, AQuickPassOnlyShiftsTheOrder) {
  SetUpSet();
  game.possession.JustQuickPassed = 1;
  game.possession.PreviousSlot = 2;
  game.BallSlot = 4;
  game.man[2][3].ShotPick = kThree;
  SetOpenStatus();
  EXPECT_EQ(O().Option[4], 3);
  EXPECT_GE(O().Option[2], 2);
  EXPECT_EQ(game.man[2][3].ShotPick, kThree);
}

int WithBall(int position, void (*change)(), int times = 1000) {
  int count = 0;
  SetUpSet();
  for (int p = 1; p <= 5; ++p) game.man[2][p].ShotPick = kInside;
  change();
  EachSeed(times, [&] {
    FindShooter();
    count += game.BallSlot == position ? 1 : 0;
  });
  return count;
}

TEST(Shooter, OptionsRatingsAndOrders) {
  EXPECT_NEAR(WithBall(3, [] {}), 200, 60) << "all alike";
  EXPECT_GT(WithBall(3, [] { O().Option[3] = 3; }), 500) << "the drawn place may have a first option too";
  EXPECT_LT(WithBall(3, [] { game.player[2][3].ShotSelection[1] = 1; }), 5);
  EXPECT_EQ(WithBall(3, [] { O().Lineup[3] = 0; }), 0);
  EXPECT_LT(WithBall(3, [] { game.player[2][3].PrimaryPosition = 0; }), 5)
      << "a man without a position of his own";
  EXPECT_GT(WithBall(4, [] { D().QuickFoul = 2, game.player[2][4].Stats[1].FTM = 100; }), 800)
      << "a fouling defense finds the poorest shooter";
}

TEST(FastBreak, NumbersAndPlaces) {
  for (const int thief : {0, 3}) {
    SetUpSet();
    game.GameState = "FASTBREAK";
    game.PlayResult = thief ? PlayResult("ST") : PlayResult("DEFREB");
    game.fastBreak.BreakStealer = thief;
    EachSeed(250, [&] {
      SetFastbreakNumbers();
      int back = 0;
      std::set<int> runners, spots;
      for (int p = 1; p <= 5; ++p) {
        back += DMan(p).DefendsBreak;
        if (OMan(p).InBreak) runners.insert(p), spots.insert(OMan(p).BreakSpot);
      }
      EXPECT_EQ(std::ssize(runners), game.fastBreak.BreakAttackers);
      EXPECT_EQ(back, game.fastBreak.BreakDefenders);
      EXPECT_GE(runners.size(), 2u);
      EXPECT_EQ(spots.size(), runners.size());
      EXPECT_TRUE(*spots.begin() >= 101 && *spots.rbegin() <= 309);
      EXPECT_TRUE(thief == 0 || runners.contains(thief)) << "the thief runs";
      FindShooter();
      EXPECT_TRUE(runners.contains(game.BallPlayer));
    });
  }
}

TEST(KickOut, NeedsRoom) {
  // clang-format off
  const struct { const char* why; int clock, time, lead; PlayKind kind; bool done; } cases[] = {
      {"time enough", 3000, 50, 0, "DRIVE", true},
      {"five seconds", 49, 0, 0, "DRIVE", false},
      {"five seconds, three ahead", 49, 0, 3, "DRIVE", true},
      {"no time behind the first move", 79, 50, 0, "DRIVE", false},
      {"a three by a side three ahead", 500, 50, 3, "THREE", false},
  };
  // clang-format on
  for (const auto& c : cases) {
    SetUpSet();
    game.Period = 4;
    game.GameClock = c.clock;
    game.PlayTime = c.time;
    O().Score = c.lead;
    game.PlayKind = c.kind;
    game.BallPlayer = game.BallSlot = 2;
    EXPECT_EQ(KickOut(), c.done) << c.why;
    EXPECT_EQ(game.BallPlayer != 2, c.done) << c.why;
  }
}

}  // namespace
}  // namespace tipline
