#include <gtest/gtest.h>

#include <algorithm>

#include "engine/engine.h"
#include "engine/shot_selection.h"
#include "platform/dialogs.h"
#include "support/neutral_game.h"
#include "support/rows.h"

namespace tipline {
namespace {

/// Two human coaches; side 2, slot 1, has the ball in the first period.
void SetUpCommands() {
  SetUpPlay("");
  Rules().OverTimeList = 5;
  game.GameClock = 7000;
  game.ShotClock = 240;
  game.ActingSide = 2;
  for (int s = 1; s <= 2; ++s) {
    game.team[s].City = s == 1 ? "Boston" : "Denver";
    game.side[s].CoachMode = "H";
    game.side[s].TimeoutsLeft = 3;
  }
}
void Late() { game.Period = 4, game.GameClock = 1000; }
void Acts(int side) { game.ActingSide = side; }
void Limit(u8 men) { game.GameStarted = false, Rules().RosterLimitList = men; }
void FourLeft() {
  D().Lineup[5] = 0;
  for (int slot = 5; slot <= 12; ++slot) LoadedAt(1, slot).PlayerOut = 1;
}

/// What the dialogs said first, "" when nothing.
std::string Said(const platform::ScriptedDialogs& d) {
  return !d.told.empty() ? d.told[0] : !d.asked.empty() ? d.asked[0] : "";
}

/// Share of 400 seeds at which `holds` after the command.
double Share(void (*change)(), void (*command)(), bool (*holds)()) {
  int count = 0;
  SetUpCommands();
  change();
  EachSeed(400, [&] {
    command();
    count += holds() ? 1 : 0;
  });
  return count / 400.0;
}

TEST(Continue, RefusesAndKeepsTheStateOrGoesToTheNextStop) {
  // clang-format off
  const struct {
    const char* why; GameState state; void (*change)(); bool agrees;
    Refusal refusal; std::string said; GameState next;
  } cases[] = {
      {"a play has to be chosen", "OFFENSE", [] {}, true, Refusal::kNotNow, "", "OFFENSE"},
      {"one man too many", "JUMPBALL-1", [] { Limit(11); }, false, Refusal::kRosterLimit,
       "Denver is 1 player over the roster limit! Allow?", "JUMPBALL-1"},
      {"two of them", "JUMPBALL-1", [] { Limit(10); }, false, Refusal::kRosterLimit,
       "Denver is 2 players over the roster limit! Allow?", "JUMPBALL-1"},
      {"allowed", "JUMPBALL-1", [] { Limit(11), Acts(1); }, true, Refusal::kNone,
       "Boston is 1 player over the roster limit! Allow?", "JUMPBALL-2"},
      {"a position is empty", "DEADBALL-OFFENSE", [] { O().Lineup[3] = 0; }, true, Refusal::kLineup,
       "Invalid Lineup!", "DEADBALL-OFFENSE"},
      {"one man twice", "DEADBALL-OFFENSE", [] { O().Lineup[3] = 2; }, true, Refusal::kLineup,
       "Invalid Lineup!", "DEADBALL-OFFENSE"},
      {"four men are all that is left", "DEADBALL-DEFENSE", [] { Acts(1), FourLeft(); }, true, Refusal::kNone,
       "", "DEADBALL-OFFENSE"},
      {"the shooter sits", "FREETHROW-WAIT", [] { game.BallPlayer = 7; }, true, Refusal::kShooterGone,
       "Sub must be in the game!", "FREETHROW-WAIT"},
      {"the jumper of a held ball sits", "JUMPBALL-2", [] { O().JumperOf = 7; }, true, Refusal::kJumperGone,
       "Sub must be in the game for the jump ball!", "JUMPBALL-2"},
      {"an old jumper at a period's start", "JUMPBALL-1",
       [] { game.GameClock = 7200, Acts(1), D().JumperOf = 7; }, true, Refusal::kNone, "", "JUMPBALL-2"},
      {"the quarter begins", "QUARTER-OFFENSE", [] {}, true, Refusal::kNone, "", "DEFENSE"},
  };
  // clang-format on
  for (const auto& c : cases) {
    platform::ScriptedDialogs dialogs;
    dialogs.answers = {c.agrees};
    SetUpCommands();
    game.player[2][7].ShortName = "Sub";
    game.GameState = c.state;
    c.change();
    EXPECT_EQ(ContinueChosen(), c.refusal) << c.why;
    EXPECT_TRUE(game.GameState == c.next) << c.why << ": " << game.GameState.Text();
    EXPECT_EQ(Said(dialogs), c.said) << c.why;
  }
}

TEST(Commands, DoNothingAtAStopThatDoesNotAskForThem) {
  for (auto* command : {+[] { PlayGridChosen(2); }, &ShootChosen, &DriveChosen, &FastBreakChosen,
                        &FreeThrowChosen, &BurnChosen, &PassChosen, &QuickPassChosen, &UsePlayNowRoutine,
                        &ComputerChosen, &DefensePlayCallChosen}) {
    SetUpCommands();
    game.GameState = "DEADBALL-DEFENSE";
    command();
    EXPECT_TRUE(game.GameState == "DEADBALL-DEFENSE");
    EXPECT_EQ(game.GameClock, 7000);
  }
}

TEST(Timeout, TakesOneAndStopsPlay) {
  // clang-format off
  struct Case { const char* why; GameState state, next; int left, deadBall; void (*change)() = [] {}; };
  const Case cases[] = {
      {"in a possession", "OFFENSE", "TIMEOUT-DEFENSE", 2, 3, [] { game.DeadBallKind = 3; }},
      {"late, the ball is advanced", "OFFENSE", "TIMEOUT-DEFENSE", 2, 2,
       [] { Late(), game.DeadBallKind = 3; }},
      {"the ball is dead already", "DEADBALL-OFFENSE", "DEADBALL-OFFENSE", 2, 0},
      {"none left", "OFFENSE", "OFFENSE", 0, 0, [] { O().TimeoutsLeft = 0; }},
      {"one was just taken", "OFFENSE", "OFFENSE", 3, 0, [] { game.TimeoutTaken = 1; }},
      {"not before the jump", "JUMPBALL-2", "JUMPBALL-2", 3, 0},
  };
  // clang-format on
  for (const Case& c : cases) {
    SetUpCommands();
    game.GameState = c.state;
    game.PlayTime = 30;
    c.change();
    const int clock = game.GameClock;
    TimeoutChosen();
    const bool taken = c.left == 2;
    EXPECT_TRUE(game.GameState == c.next) << c.why;
    EXPECT_EQ(O().TimeoutsLeft, c.left) << c.why;
    EXPECT_EQ(game.DeadBallKind, c.deadBall) << c.why;
    EXPECT_EQ(game.PlayLog[1].Clock, taken ? clock : 0) << c.why;
  }
}

void PassNumber(int n) { game.possession.PassCount = n - 1; }

TEST(Pass, IsMadeOrNot) {
  const auto made = [] { return game.possession.PassedThisPossession == 1; };
  const auto fouled = [] { return D().TeamFouls == 1; };
  const auto lost = [] { return O().GameTo == 1; };
  // clang-format off
  const struct { const char* why; void (*change)(); bool (*holds)(); double share; } cases[] = {
      {"first", [] { PassNumber(1); }, made, 0.9},
      {"third", [] { PassNumber(3); }, made, 0.1},
      {"third of three, no shot clock", [] { PassNumber(3), Rules().ShotClockList = 0; }, made, 0.7},
      {"on a break always", [] { PassNumber(3), game.GameState = "FASTBREAK"; }, made, 1},
      {"it runs out the clock",
       [] { game.GameClock = 3; }, [] { return game.Period == 2 && O().GameFGA == 0; }, 1},
      {"the defense fouls", [] { PassNumber(10), D().QuickFoul = 1; }, fouled, 0.7},
      {"or the tenth pass is thrown away", [] { PassNumber(10), D().QuickFoul = 1; }, lost, 0.3},
  };
  // clang-format on
  for (const auto& c : cases)
    EXPECT_NEAR(Share(c.change, PassChosen, c.holds), c.share, c.share == 1 ? 0 : 0.07) << c.why;
}

TEST(QuickPass, TheComputerPassesQuicklyOnlyWithAFreshClock) {
  const auto tried = [] {
    const int before = O().QuickPassesGame;
    random.Script({1});
    const bool passes = ComputerQuickPass();
    random.Script({});
    EXPECT_EQ(O().QuickPassesGame - before, passes ? 1 : 0);
    return passes;
  };
  // clang-format off
  ExpectRows(SetUpCommands, tried, {
      {"fresh", [] {}, true}, {"running", [] { game.ShotClock = 239; }, false},
      {"once a possession", [] { game.possession.QuickPassCount = 1; }, false},
      {"one play in five", [] { O().QuickPassesGame = 3, O().GameFGA = 14; }, true},
      {"and no more", [] { O().QuickPassesGame = 3, O().GameFGA = 13; }, false},
      {"nobody is open", [] { O().Option = {}; }, false},
  });
  // clang-format on
}

TEST(DefenseCall, HoldsForOnePlay) {
  constexpr int kCoverage[7] = {0, 1, 2, 3, 4, 6, 3};
  for (int call = 1; call <= 6; ++call) {
    SetUpCommands();
    OMan().CoverageOutside = 5;
    OMan().DoubleTeamOutside = call == 6 ? 0 : 1;
    D().DefenseHelp = 2;
    game.GameState = "DEFENSE-CALL";
    game.PlayKind = "OUTSIDE";
    game.call.DefenseCall = call;
    int seen = 0;
    EachSeed(20, [&] {
      DefensePlayCallChosen();
      seen += D().ScoutCoverage[kOutside][6][kCoverage[call]];
      EXPECT_EQ(OMan().CoverageOutside, 5) << call;
      EXPECT_EQ(OMan().DoubleTeamOutside, call == 6 ? 0 : 1) << call;
      EXPECT_EQ(D().DefenseHelp, 2) << call;
    });
    // The four others are covered as usual: 3.
    EXPECT_GT(seen, kCoverage[call] == 3 ? 4 * 15 + 10 : 10) << call;
  }
}

TEST(DefenseCall, LeavesABurnedClockBurningAndNobodyBlocksIt) {
  const auto burn = [] { BurnChosen(), DefensePlayCallChosen(); };
  const auto blocked = [] {
    return std::any_of(game.PlayLog.begin(), game.PlayLog.end(),
                       [](const PlayLogRow& row) { return row.Outcome == "BURN" && row.Note == kBlockedBy; });
  };
  EXPECT_GT(Share([] {}, burn, [] { return game.PlayResult == "BURN"; }), 0.75);
  EXPECT_EQ(Share([] {}, burn, [] { return O().GameFGA > 0; }) + Share([] {}, burn, blocked), 0);
}

/// The rebounder stands beyond the arc with a minute to go; in the set before he had a shot outside.
void LateLongRebound() {
  game.GameState = "OFFREB", game.PlayKind = "OFFREB";
  game.PutbackClass = 3, game.GameClock = 500;
}

TEST(DefenseCall, LeavesALatePutbackWhereItIs) {
  const auto three = [] { return Shooter().ShotAttOffReb3[3] > 0; };
  const auto closer = [] { return Shooter().ShotAttOffReb2[3] + Shooter().ShotAttOutside[3] > 0; };
  const auto computer = [] { LateLongRebound(), D().CoachMode = "C"; };
  const auto answered = [] { ShootChosen(), DefensePlayCallChosen(); };
  EXPECT_GT(Share(computer, ShootChosen, three), 0.5);
  EXPECT_EQ(Share(computer, ShootChosen, closer), 0);
  EXPECT_GT(Share(LateLongRebound, answered, three), 0.4);
  EXPECT_LT(Share(LateLongRebound, answered, closer), 0.02) << "only when the ball comes back to him";
}

void CoveredTightly() {
  game.call.CallKind = 2;
  for (int slot = 1; slot <= kPositions; ++slot) {
    OMan(slot).CoverageOutside = 4;
    game.player[2][slot].RatePassing = 9;
  }
}

TEST(UsePlay, AManWhoWasLeftAloneBeginsThePlayHimself) {
  const auto passes = [] { return game.possession.PassFirst == 1; };
  const auto answeredLooseBefore = [] {
    game.GameState = "DEFENSE-CALL";
    game.call.DefenseCall = 2;
    DefensePlayCallChosen();
    const int last = D().DefenseList;
    SetUpCommands();
    D().DefenseList = last;
    CoveredTightly();
  };
  EXPECT_GT(Share(CoveredTightly, UsePlayNowRoutine, passes), 0.35);
  EXPECT_LT(Share(answeredLooseBefore, UsePlayNowRoutine, passes), 0.15);
}

TEST(UsePlay, NeedsTime) {
  const std::string none = "You don't have enough time to call a play!";
  const std::string little = "You May Need A Timeout To Complete This Play. Continue?";
  // clang-format off
  struct Case { const char* why; int clock, shotClock; bool answer; std::string message; bool done; };
  const Case cases[] = {
      {"no shot clock left", 5000, 9, true, none, false}, {"no clock left", 9, 9, true, none, false},
      {"three seconds, given up", 30, 30, false, little, false},
      {"three seconds, tried", 30, 30, true, little, true}, {"five seconds", 50, 50, true, "", true},
  };
  // clang-format on
  for (const auto& c : cases) {
    platform::ScriptedDialogs dialogs;
    dialogs.answers = {c.answer};
    SetUpCommands();
    game.GameClock = c.clock;
    game.ShotClock = c.shotClock;
    game.call.CallKind = 2;
    UsePlayNowRoutine();
    EXPECT_EQ(game.GameState == "DEFENSE-CALL", c.done) << c.why;
    EXPECT_EQ(game.call.LongPlay, c.done ? 1 : 0) << c.why;
    EXPECT_EQ(Said(dialogs), c.message) << c.why;
  }
}

TEST(UsePlay, RunsWhatWasCalled) {
  const auto threes = [] {
    bool any = game.PlayKind == "THREE";
    for (int slot = 1; slot <= kPositions; ++slot) any = any || OMan(slot).ShotPick == kThree;
    return any;
  };
  // clang-format off
  const struct { const char* why; int kind, man; bool line, (*holds)(); double atLeast, atMost; } cases[] = {
      {"pick", 6, 5, true, [] { return game.call.PickBall == 1 && game.call.PickScreener == 5; }, 0.6, 1},
      {"force a three", 7, 5, true, [] {
        return game.BallPlayer == 5 && game.PlayKind == "THREE" && game.call.ForcedThree; }, 0.6, 1},
      {"hold, anybody: a guard does", 8, 6, true, [] {
        return game.BallPlayer <= 2 && game.PlayKind == "HOLD BALL"; }, 1, 1},
      {"three without a line", 3, 2, false, threes, 0, 0},
      {"force one without a line", 7, 2, false, threes, 0, 0},
  };
  // clang-format on
  for (const auto& c : cases) {
    int count = 0;
    SetUpCommands();
    game.call.CallKind = c.kind, game.call.CallPlayer = c.man;
    Rules().ThreePointCheck = c.line;
    EachSeed(400, [&] {
      UsePlayNowRoutine();
      count += c.holds() ? 1 : 0;
    });
    EXPECT_GE(count, 400 * c.atLeast) << c.why;
    EXPECT_LE(count, 400 * c.atMost) << c.why;
  }
}

}  // namespace
}  // namespace tipline
