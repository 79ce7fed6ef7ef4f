#include <gtest/gtest.h>

#include <map>
#include <string>

#include "engine/eligible.h"
#include "engine/execution.h"
#include "engine/resolution.h"
#include "support/neutral_game.h"

namespace tipline {
namespace {

void SetUpPlay(const char* kind, const char* state = "OFFENSE") {
  SetUpNeutralGame();
  game.PutbackClass = 0;
  Rules().ShotClockList = 24;
  Rules().TimeoutList = 7;
  game.GameClock = 5000;
  game.ShotClock = 200;
  game.GameStarted = true;
  for (int s = 1; s <= 2; ++s) {
    game.side[s].Option = {{1, 1, 1, 1, 1}};
    for (int slot = 1; slot <= 12; ++slot) {
      game.player[s][slot] = MeanMan(s, (slot - 1) % 5 + 1);
      game.man[s][slot].ShotPick = kOutside;
      game.man[s][slot].CourtSpot = 200 + slot % 9 + 1;
      for (int k = 1; k <= 5; ++k) game.player[s][slot].ShotSelection[k] = 3;
    }
  }
  (void)game.PlayKind.Set(kind);
  (void)game.GameState.Set(state);
}

/// How often each result came out of many plays of one situation; the change acts on each fresh situation.
std::map<std::string, int> Results(const char* kind, void (*change)(), const char* state = "OFFENSE",
                                   int plays = 600) {
  std::map<std::string, int> seen;
  SetUpPlay(kind, state);
  change();
  const Game start = game;
  for (int k = 1; k <= plays; ++k) {
    game = start;
    random.Seed(static_cast<std::uint64_t>(k));
    FindResult();
    ++seen[std::string(game.PlayResult.Text())];
  }
  return seen;
}

int Sum(const std::map<std::string, int>& seen, std::initializer_list<const char*> results) {
  int sum = 0;
  for (const char* r : results) {
    if (const auto it = seen.find(r); it != seen.end()) sum += it->second;
  }
  return sum;
}

TEST(Resolution, ForcedOrdersWin) {
  EXPECT_EQ(Results("INSIDE", [] { game.call.ForcedTurnover = 1; })["TO"], 600);
  const auto fouled = Results("OUTSIDE", [] { game.call.ForcedFoul = 1; });
  EXPECT_GE(Sum(fouled, {"F0", "F1", "F2", "F1-1", "MF", "M3F"}), 500) << "stoppages before the draw aside";
}

TEST(Resolution, NoFoulFromTheDrawInTheLastSecondAndAHalf) {
  const auto seen = Results("INSIDE", [] { game.GameClock = 14; });
  EXPECT_EQ(Sum(seen, {"F0", "F1", "F2", "F1-1", "F3-2", "MF", "M3F"}), 0);
}

TEST(Resolution, AThreeWithoutTheLineIsAnOutsideShot) {
  const auto seen = Results("THREE", [] { Rules().ThreePointCheck = 0; });
  EXPECT_EQ(Sum(seen, {"G3", "M3", "G3F", "M3F"}), 0);
  SetUpPlay("THREE");
  Rules().ThreePointCheck = 0;
  OMan().ShotPick = kThree;
  FindResult();
  EXPECT_NE(OMan().ShotPick, kThree);
}

TEST(Resolution, ABurnedClockIsNeverAShot) {
  const auto seen = Results("BURN", [] {});
  EXPECT_EQ(Sum(seen, {"G", "G3", "M", "M3", "MF", "GF", "REB", "OFFREB", "DEFREB"}), 0);
  EXPECT_GT(Sum(seen, {"BURN"}), 500);
}

TEST(Resolution, TheShotClockHoldsOnlyWithTheRule) {
  EXPECT_GT(Results("OUTSIDE", [] { game.ShotClock = 3; })["SHOTCLOCK"], 500);
  EXPECT_EQ(Results("OUTSIDE",
                    [] {
                      Rules().ShotClockList = 0;
                      game.ShotClock = 3;
                    })["SHOTCLOCK"],
            0);
}

TEST(Resolution, ThreeTenthsAreTooFew) {
  SetUpPlay("OUTSIDE");
  game.GameClock = 3;
  FindResult();
  EXPECT_EQ(game.Period, 2) << "the period ran out without a shot";
  EXPECT_EQ(game.player[2][1].Stats[3].FGA, 0);
}

TEST(Resolution, ADefenseOnItsLastMenStopsFouling) {
  const auto seen = Results("INSIDE", [] {
    D().QuickFoul = 1;
    for (int slot = 4; slot <= 12; ++slot) game.loaded[1][slot].PlayerOut = 1;
    D().Lineup = {{1, 2, 3, 0, 0}};
  });
  EXPECT_LT(Sum(seen, {"F0", "F1", "F2", "F1-1", "MF"}), 60);
}

TEST(Resolution, AComputerThatFoulsMostlyGetsItsFoul) {
  const auto seen = Results("OUTSIDE", [] {
    D().QuickFoul = 1;
    game.Period = 4;
    game.GameClock = 400;
    D().Score = 90;
    O().Score = 94;
  });
  EXPECT_GT(Sum(seen, {"F0", "F1", "F2", "F1-1"}), 500);
}

TEST(Resolution, InboundsAndMoveUpsComeFirst) {
  const auto in = Results(
      "INSIDE", [] { game.DeadBallKind = 2, game.NeedsInbound = 1; }, "DEADBALL-OFFENSE");
  EXPECT_GT(Sum(in, {"IN-EZ"}), 500);
  EXPECT_EQ(Sum(in, {"G", "M", "DEFREB", "F2", "TO"}), 0);
  const auto up = Results("INSIDE", [] { game.NeedsMoveUp = 1, game.NeedsBringUp = 1; });
  EXPECT_GT(Sum(up, {"MOVE-UP"}), 500);
}

TEST(Resolution, AnAnalysisLeavesTheGameAlone) {
  SetUpPlay("INSIDE");
  game.AnalysisMode = true;
  const auto clock = game.GameClock;
  FindResult();
  EXPECT_EQ(game.GameClock, clock);
  EXPECT_EQ(game.play.ShotChance + game.play.TurnoverChance + game.play.FoulChance, 1000);
  EXPECT_EQ(game.PlayLogCount, 0);
}

TEST(Resolution, EligibleMen) {
  const struct {
    const char* why;
    void (*change)();
    int count;
  } cases[] = {{"twelve men", [] {}, 12},
               {"fouled out", [] { Rules().DqList = 6, Shooter().Stats[3].Pf = 6; }, 11},
               {"no limit", [] { Rules().DqList = 0, Shooter().Stats[3].Pf = 9; }, 12},
               {"inactive", [] { Shooter().Status = 99; }, 11},
               {"out", [] { game.loaded[2][1].PlayerOut = 1; }, 11},
               {"shaken up", [] { OMan().TemporaryInjury = 2; }, 11},
               {"hurt", [] { OMan().GameInjury = 1; }, 11},
               {"another team's man", [] { Shooter().TeamNo = 7; }, 11}};
  for (const auto& c : cases) {
    SetUpPlay("INSIDE");
    Rules().DqList = 6;
    c.change();
    EXPECT_EQ(CountEligible(2), c.count) << c.why;
  }
}

TEST(FreeThrow, TheLastShotIsMissedOnPurpose) {
  const struct {
    const char* why;
    int lead, clock, period;
    bool missed;
  } cases[] = {{"two behind, four seconds", -2, 40, 4, true},
               {"one behind", -1, 40, 4, false},
               {"five seconds and more", -2, 50, 4, false},
               {"first period", -2, 40, 1, false}};
  for (const auto& c : cases) {
    int made = 0;
    SetUpPlay("SHOOT1", "FREETHROW-SHOOT");
    O().Score = 80 + c.lead;
    D().Score = 80;
    game.GameClock = c.clock;
    game.Period = c.period;
    const Game start = game;
    for (int k = 0; k < 200; ++k) {
      game = start;
      random.Seed(static_cast<std::uint64_t>(k));
      FindResult();
      made += Shooter().Stats[3].FTM;
    }
    EXPECT_EQ(made < 60, c.missed) << c.why << ": " << made;
  }
}

}  // namespace
}  // namespace tipline
