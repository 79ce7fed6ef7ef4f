#include "coach/substitutions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>

#include "coach/sub_screens.h"
#include "platform/dialogs.h"
#include "support/neutral_game.h"
#include "support/two_teams.h"

namespace tipline {
namespace {

using Change = std::function<void()>;

/// Side 1 leaves its substitutions to the computer; its man at position 2 is looked at.
void Watched() {
  TwoTeams();
  random.Seed(5);
  game.side[1].AutoSubWhenTired = game.side[1].AutoSubWhenFoulTrouble = 1;
  PlayerAt(1, 7).TargetMinutes = 34;  // ranked behind him, but used as much
}

PlayerRecord& P() { return PlayerAt(1, 2); }
Man& M() { return ManAt(1, 2); }
void LastQuarter(int clock, int lead) {
  game.Period = 4;
  game.GameClock = clock;
  game.side[1].Score = 60 + lead;
  game.side[2].Score = 60;
}

TEST(LoadLineups, TakesOffWhoHasToGo) {
  // clang-format off
  const struct {
    const char* why;
    Change change;
    bool stays;
  } cases[] = {
      {"tired at 83", [] { M().Energy = 83; }, false},
      {"not at 84", [] { M().Energy = 84; }, true},
      {"plays on when tired", [] { M().Energy = 83, P().DontPlayWhenTired = 0; }, true},
      {"just after a change", [] { game.LastSubClock = 5089, M().Energy = 70; }, true},
      {"nine seconds after one", [] { game.LastSubClock = 5090, M().Energy = 70; }, false},
      {"named for the free throws", [] { game.side[1].FreeThrowMan = 2, M().Energy = 82; }, true},
      {"a better man is ready", [] { PlayerAt(1, 7).DepthRank[2] = 6, P().DepthRank[2] = 5; }, false},
      {"a better man is not fresh",
       [] { PlayerAt(1, 7).DepthRank[2] = 6, P().DepthRank[2] = 5, ManAt(1, 7).Energy = 99; }, true},
      {"close game: tired crunch man",
       [] { LastQuarter(1000, 2), M().Energy = 30, P().PlayAtCrunchTime = 1; }, true},
      {"no blowouts for him", [] { LastQuarter(1199, 16), P().NeverPlayInBlowouts = 1; }, false},
      {"not yet a blowout", [] { LastQuarter(1200, 16), P().NeverPlayInBlowouts = 1; }, true},
      {"two fouls in the first", [] { P().Stats[3].Pf = 2; }, false},
      {"five in the last, too early", [] { LastQuarter(3601, 0), P().Stats[3].Pf = 5; }, false},
      {"five in the last, for the end", [] { LastQuarter(3600, 0), P().Stats[3].Pf = 5; }, true},
      {"two fouls, unchecked", [] { game.side[1].AutoSubWhenFoulTrouble = 0, P().Stats[3].Pf = 2; }, true},
      {"out of position",
       [] { P().PrimaryPosition = 5, P().DepthRank = {}, P().PositionAllowed = {}; }, false},
      {"fouled out", [] { P().Stats[3].Pf = 6; }, false},
      {"named twice: he stays at one",
       [] { game.side[1].Lineup[3] = 2, P().PositionAllowed[3] = 1, P().DepthRank[3] = 6; }, true},
      {"in a trip of three", [] { game.PlayKind = "SHOOT3", M().Energy = 10; }, true},
      {"the last of a trip, on defense",
       [] { game.PlayKind = "SHOOT1", game.GameState = "FREETHROW-WAIT", M().Energy = 10; }, false},
      {"the period dies with this play", [] { game.PlayTime = 5000, M().Energy = 10; }, true},
      {"the grid has another man",
       [] { game.side[1].UseRotationGrid = 1, PlayerAt(1, 7).RotationGrid[1][4] = 2; }, false},
      {"nobody made a grid", [] { game.side[1].UseRotationGrid = 1; }, true},
  };
  // clang-format on
  for (const auto& c : cases) {
    Watched();
    c.change();
    LoadLineups();
    EXPECT_EQ(game.side[1].Lineup[2] == 2, c.stays) << c.why;
    std::set<int> five(game.side[1].Lineup.begin(), game.side[1].Lineup.end());
    EXPECT_EQ(five.size(), 5u) << c.why;
    EXPECT_EQ(five.count(0), 0u) << c.why;
  }
}

TEST(LoadLineups, LeavesAHumanAloneButForFouls) {
  TwoTeams();
  for (int slot = 1; slot <= 5; ++slot) ManAt(1, slot).Energy = 5, PlayerAt(1, slot).Stats[3].Pf = 5;
  PlayerAt(1, 4).Stats[3].Pf = 6;
  game.PlayResult = "TO";
  LoadLineups();
  for (const int slot : {1, 2, 3, 5}) EXPECT_EQ(PositionOf(1, slot), slot);
  EXPECT_EQ(game.side[1].Lineup[4], 9) << "the next on the depth chart";
  EXPECT_EQ(ManAt(1, 4).FouledOutFlag, 1);
  EXPECT_TRUE(game.PlayResult == "") << "the change ends what hangs on the result";
  EXPECT_EQ(game.LastSubClock, 5000);
}

TEST(LoadLineups, BuildsAFreshFiveAtAPeriodStart) {
  for (const int periods : {4, 2}) {
    Watched();
    league.rules.PeriodList = static_cast<u8>(periods);
    game.Period = 2;
    game.GameClock = 7200;
    for (int slot = 1; slot <= 5; ++slot) {
      game.side[1].Lineup[slot] = slot + 5;
      ManAt(1, slot + 5).FatigueLoad = 8000;
    }
    LoadLineups();
    EXPECT_EQ(ManAt(1, 6).FatigueLoad, periods == 4 ? 800 : 8000);
    EXPECT_EQ(game.BallPlayer, periods == 4 ? 0 : 1);
    EXPECT_EQ(PositionOf(1, 1), periods == 4 ? 1 : 0) << "the starters are back";
  }
}

TEST(LoadLineups, FillsAHole) {
  Watched();
  game.side[1].Lineup[5] = 0;
  for (const int slot : {5, 10}) LoadedAt(1, slot).PlayerOut = 1;
  PlayerAt(1, 9).PositionAllowed[5] = 1;
  ManAt(1, 9).Energy = 80;
  LoadLineups();
  EXPECT_EQ(PositionOf(1, 9), 5) << "nobody plays there, but his coach allows it";
  Watched();
  LastQuarter(1100, 30);
  game.side[1].CoachMode = "C";
  game.side[1].Lineup[3] = 0;
  PlayerAt(1, 8).NeverPlayInBlowouts = 1;
  LoadLineups();
  EXPECT_NE(game.side[1].Lineup[3], 8) << "no blowouts for him";
}

TEST(RefreshCrunchTime, NeedsACloseEnd) {
  const struct {
    int period, clock, margin, crunch;
  } cases[] = {{4, 1199, 10, 1}, {4, 1200, 12, 1}, {4, 2999, 12, 1}, {4, 3000, 0, 0}, {4, 1000, 13, 0},
               {4, 299, 10, 0},  {4, 300, 10, 1},  {4, 99, 7, 0},    {4, 99, 6, 1},   {3, 500, 0, 0}};
  for (const auto& c : cases) {
    TwoTeams();
    game.Period = c.period;
    game.GameClock = c.clock;
    game.side[2].Score = c.margin;
    RefreshCrunchTime();
    EXPECT_EQ(game.CrunchTime, c.crunch) << c.clock << " " << c.margin;
  }
}

TEST(SubScreens, RefuseWithTheirMessages) {
  TwoTeams();
  platform::ScriptedDialogs dialogs;
  Side& side = game.side[2];
  PlayerAt(2, 7).FirstName = "Al", PlayerAt(2, 7).LastName = "Reed";
  ManAt(2, 7).Energy = 79;
  side.AutoSubWhenTired = 1;
  HCQUICKSUB panel(2);
  EXPECT_FALSE(panel.PutIn(2, 0) || panel.PutIn(2, 7));
  side.AutoSubWhenTired = 0, side.AutoSubWhenFoulTrouble = 1;
  PlayerAt(2, 7).Stats[3].Pf = 2;
  EXPECT_FALSE(panel.PutIn(2, 7));
  side.AutoSubWhenFoulTrouble = 0;
  EXPECT_TRUE(panel.PutIn(1, 7));
  panel.lineup[3] = 0;
  EXPECT_FALSE(panel.Ok());
  panel.lineup[3] = 8;
  game.GameState = "FREETHROW-WAIT";
  EXPECT_FALSE(panel.Ok()) << "the shooter is missing";
  EXPECT_EQ(side.Lineup[1], 1);
  EXPECT_TRUE(panel.PutIn(2, 1) && panel.Ok());
  EXPECT_EQ(side.Lineup[2], 1);
  const char* told[] = {"You must select a player!", "Al Reed is tired!. U", "Al Reed is in foul trouble!.",
                        "You must fill all 5 lineup spots!", " is at the line..he must be in the game!"};
  ASSERT_EQ(dialogs.told.size(), std::size(told));
  for (std::size_t i = 0; i < std::size(told); ++i) {
    EXPECT_NE(dialogs.told[i].find(told[i]), std::string::npos) << dialogs.told[i];
  }
}

TEST(SubScreens, AskBeforeUsingAManOutOfPosition) {
  TwoTeams();
  platform::ScriptedDialogs dialogs;
  dialogs.answers = {false, true};
  HCquickOnePlayerSub list{1, 4};
  EXPECT_FALSE(list.Choose(8));
  EXPECT_EQ(game.side[1].Lineup[4], 4);
  EXPECT_TRUE(list.Choose(8));
  EXPECT_TRUE(list.Choose(9)) << "no question for a man who plays there";
  EXPECT_EQ(game.side[1].Lineup[4], 9);
  EXPECT_EQ(dialogs.asked.size(), 2u);
}

TEST(LoadLineups, ThinksOfTheFinishAndOfTheBench) {
  // clang-format off
  const struct { const char* why; int clock, lead; Change change; double regulars; } cases[] = {
      {"close at the end: the first five", 1000, 2, [] { game.side[1].Lineup.Fill(0); }, 5},
      {"his man for the finish replaces a first choice", 1000, 2,
       [] { PlayerAt(1, 7).PlayAtCrunchTime = 1, PlayerAt(1, 2).DontPlayCrunchTime = 1; }, 4},
      {"a lead of 30 is the bench's", 1000, 30, [] { game.side[1].Lineup.Fill(0); }, 0},
      {"and so is a deficit of 30", 1000, -30, [] { game.side[1].Lineup.Fill(0); }, 0},
      {"16 with more than two minutes to go is not yet", 1300, 16, [] { game.side[1].Lineup.Fill(0); }, 5},
  };
  // clang-format on
  for (const auto& c : cases) {
    Watched();
    c.change();
    LastQuarter(c.clock, c.lead);
    game.side[1].CoachMode = "C";
    int regulars = 0;
    EachSeed(100, [&] {
      LoadLineups();
      for (int slot = 1; slot <= kPositions; ++slot) regulars += PositionOf(1, slot) > 0 ? 1 : 0;
    });
    EXPECT_NEAR(regulars / 100.0, c.regulars, 0.3) << c.why;
  }
}

}  // namespace
}  // namespace tipline
