#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "engine/execution.h"
#include "engine/resolution.h"
#include "support/neutral_game.h"

namespace tipline {
namespace {

/// In how many of 600 plays of one situation, changed as told, one of the results came out.
int CountResults(PlayKind kind, GameState state, void (*change)(), const std::vector<PlayResult>& results) {
  SetUpPlay(kind, state);
  change();
  int seen = 0;
  EachSeed(600, [&] {
    FindResult();
    seen += std::count(results.begin(), results.end(), game.PlayResult) > 0 ? 1 : 0;
  });
  return seen;
}

// clang-format off
TEST(Resolution, SituationsDecideTheResult) {
  const struct {
    const char* why;
    PlayKind kind;
    GameState state;
    void (*change)();
    std::vector<PlayResult> results;
    int least, most;
  } cases[] = {
      {"turnover ordered", "INSIDE", "OFFENSE", [] { game.call.ForcedTurnover = 1; }, {"TO"}, 600, 600},
      {"foul ordered, stoppages aside", "OUTSIDE", "OFFENSE", [] { game.call.ForcedFoul = 1; },
       {"F0", "F1", "F2", "F1-1", "MF", "M3F"}, 500, 600},
      {"no drawn foul in the last second and a half", "INSIDE", "OFFENSE", [] { game.GameClock = 14; },
       {"F0", "F1", "F2", "F1-1", "F3-2", "MF", "M3F"}, 0, 0},
      {"no line", "THREE", "OFFENSE", [] { Rules().ThreePointCheck = 0; }, {"G3", "M3", "G3F", "M3F"}, 0, 0},
      {"burned", "BURN", "OFFENSE", [] {}, {"BURN"}, 501, 600},
      {"shot clock", "OUTSIDE", "OFFENSE", [] { game.ShotClock = 3; }, {"SHOTCLOCK"}, 501, 600},
      {"no shot clock", "OUTSIDE", "OFFENSE", [] { Rules().ShotClockList = 0, game.ShotClock = 3; },
       {"SHOTCLOCK"}, 0, 0},
      {"a defense on its last men stops fouling", "INSIDE", "OFFENSE", [] {
        D().QuickFoul = 1, D().Lineup = {{1, 2, 3, 0, 0}};
        for (int slot = 4; slot <= 12; ++slot) game.loaded[1][slot].PlayerOut = 1; },
       {"F0", "F1", "F2", "F1-1", "MF"}, 0, 59},
      {"a computer that fouls gets its foul", "OUTSIDE", "OFFENSE", [] {
        D().QuickFoul = 1, game.Period = 4, game.GameClock = 400, D().Score = 90, O().Score = 94; },
       {"F0", "F1", "F2", "F1-1"}, 501, 600},
      {"inbounds first", "INSIDE", "DEADBALL-OFFENSE", [] { game.DeadBallKind = 2, game.NeedsInbound = 1; },
       {"IN-EZ"}, 501, 600},
      {"the move up first", "INSIDE", "OFFENSE", [] { game.NeedsMoveUp = game.NeedsBringUp = 1; },
       {"MOVE-UP"}, 501, 600},
  };
  for (const auto& c : cases) {
    const int seen = CountResults(c.kind, c.state, c.change, c.results);
    EXPECT_GE(seen, c.least) << c.why;
    EXPECT_LE(seen, c.most) << c.why;
  }
}
// clang-format on

TEST(Resolution, ThreeTenthsAreTooFew) {
  SetUpPlay("OUTSIDE");
  game.GameClock = 3;
  FindResult();
  EXPECT_EQ(game.Period, 2) << "the period ran out without a shot";
  EXPECT_EQ(game.player[2][1].Stats[3].FGA, 0);
}

TEST(Resolution, AnAnalysisLeavesTheGameAlone) {
  SetUpPlay("OUTSIDE");
  game.AnalysisMode = true;
  FindResult();
  EXPECT_EQ(game.GameClock, 5000);
  EXPECT_EQ(game.play.ShotChance + game.play.TurnoverChance + game.play.FoulChance, 1000);
  EXPECT_EQ(game.PlayLogCount, 0);
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
    EachSeed(200, [&] {
      FindResult();
      made += Shooter().Stats[3].FTM;
    });
    EXPECT_EQ(made < 60, c.missed) << c.why << ": " << made;
  }
}

}  // namespace
}  // namespace tipline
