#include "coach/computer_coach.h"

#include <gtest/gtest.h>

#include <functional>

#include "engine/shot_selection.h"
#include "support/neutral_game.h"

namespace tipline {
namespace {

using Step = std::function<void()>;
using Test = std::function<bool()>;

/// Side 2 attacks, side 1 is the coach's; plans and sliders are neutral.
void SetUpCoaches() {
  SetUpNeutralGame();
  Rules().ShotClockList = 24;
  game.GameState = "OFFENSE";
  game.PlayKind = "OUTSIDE";
  for (int s = 1; s <= 2; ++s) {
    CoachRecord& c = game.coach[s];
    for (auto* slider :
         {&c.OffAdjust1, &c.OffAdjust2, &c.OffAdjust3, &c.OffAdjust4, &c.OffAdjust6, &c.DefAdjust1,
          &c.DefAdjust2, &c.DefAdjust3, &c.DefAdjust4, &c.DefAdjust5, &c.DefAdjust6}) {
      slider->Fill(2);
    }
    c.OverallPace = 2;
    for (int p = 1; p <= kPositions; ++p) {
      for (int k = 1; k <= 5; ++k) game.player[s][p].ShotSelection[k] = 3;
      game.player[s][p].HeightFeet = 6;
    }
  }
}

void Moment(int period, int clock, int lead) {
  game.Period = period;
  game.GameClock = clock;
  game.side[1].Score = 100 + lead;
  game.side[2].Score = 100;
}

/// How often `holds` when `run` is repeated in one situation; `run` must not change it.
double Share(int times, const Step& change, const Step& run, const Test& holds) {
  SetUpCoaches();
  change();
  int count = 0;
  for (int k = 0; k < times; ++k) {
    run();
    count += holds() ? 1 : 0;
  }
  return static_cast<double>(count) / times;
}
void CallDefense() { ComputerDefenseCall(1); }
void DecideOnFouls() { ComputerFoulDecision(1); }
double DefenseShare(const Step& change, const Test& holds) { return Share(2000, change, CallDefense, holds); }

TEST(ComputerFouls, WhoFoulsAndWhoDoesNot) {
  // clang-format off
  const struct { const char* why; int period, clock, lead, rule; double share; } cases[] = {
      {"one behind, one possession, 20 seconds", 4, 200, -1, 24, 1},
      {"eleven behind may still be won", 4, 700, -11, 24, 1},
      {"twelve behind is lost", 4, 700, -12, 24, 0},
      {"four behind with one second", 4, 14, -4, 24, 0},
      {"three behind with one second", 4, 14, -3, 24, 1},
      {"three behind, 90 seconds: no need yet", 4, 900, -3, 24, 0},
      {"before the last period", 3, 200, -1, 24, 0},
      {"level", 4, 200, 0, 24, 0},
      {"ten behind with 15 seconds", 4, 150, -10, 24, 0},
      {"without a shot clock earlier", 4, 1100, -11, 0, 1},
      {"but not before three minutes", 4, 1801, -11, 0, 0},
  };
  // clang-format on
  for (const auto& c : cases) {
    const auto change = [&c] {
      Moment(c.period, c.clock, c.lead);
      Rules().ShotClockList = static_cast<u8>(c.rule);
    };
    const auto fouls = [] { return D().QuickFoul != 0; };
    EXPECT_EQ(Share(300, change, DecideOnFouls, fouls), c.share) << c.why;
  }
}

TEST(ComputerFouls, SharpLimits) {
  // clang-format off
  struct Case { const char* why; int clock, lead, arc, poorMakes; std::vector<double> draws; int foul; };
  const Case cases[] = {
      {"40 seconds against 41", 350, -2, 1, 0, {5, 11, 2, 2, 1}, 1},
      {"40 seconds against 40", 350, -2, 1, 0, {5, 10}, 0},
      {"one time in two a poor shooter is looked for", 350, -2, 1, 0, {5, 11, 1}, 2},
      {"or when far enough behind", 350, -2, 1, 0, {5, 11, 2, 1}, 2},
      {"six behind is two threes: 61 against 61", 600, -6, 1, 0, {1, 11}, 0},
      {"and three twos: 61 against 71", 600, -6, 0, 0, {1, 1, 2, 7, 1}, 1},
      {"100 of 400: he is sent to the line", 250, -5, 1, 100, {1, 1, 0.0, 1, 1, 10}, 3},
      {"300 of 400: he is not", 250, -5, 1, 300, {1, 1, 0.999, 10, 20, 2, 7, 1}, 1},
  };
  // clang-format on
  for (const auto& c : cases) {
    SetUpCoaches();
    Moment(4, c.clock, c.lead);
    Rules().ThreePointCheck = static_cast<u8>(c.arc);
    game.WorstFreeThrowShooter = c.poorMakes > 0 ? 3 : 0;
    game.player[2][3].Stats[1].FTM = static_cast<i16>(c.poorMakes);
    random.Script(c.draws);
    ComputerFoulDecision(1);
    EXPECT_EQ(D().QuickFoul, c.foul) << c.why;
    EXPECT_EQ(random.ScriptLeft(), 0u) << c.why;
    random.Script({});
  }
}

void Zone(u8 slider, const char* type, u8 legal = 1) {
  game.coach[1].DefAdjust3.Fill(slider);
  game.team[1].TeamType = type;
  Rules().ZoneLegalCheck = legal;
}
void Press(u8 slider, int period, int lead) {
  Moment(period, 3000, lead);
  game.coach[1].OffAdjust6.Fill(slider);
}
void Crash(u8 slider) { game.coach[1].DefAdjust5.Fill(slider); }
void Close(u8 tight, u8 deny) {
  game.coach[1].OffAdjust3.Fill(tight);
  game.coach[1].OffAdjust4.Fill(deny);
  Shooter().RateOffInside = 9;
}
void Leave(u8 off, const char* type) {
  game.coach[1].OffAdjust1.Fill(off);
  game.coach[1].OffAdjust2.Fill(0);
  game.team[1].TeamType = type;
  Shooter().RateOffThree = 0;
}
bool InZone() { return D().DefenseType != 0; }
bool Pressing() { return D().Pressure != 0; }

TEST(ComputerDefense, CallsByTheSliders) {
  // clang-format off
  const struct { const char* why; void (*change)(); bool (*holds)(); double share; } cases[] = {
      {"a college keeps what it drew", [] { Zone(2, "C"); }, InZone, 0.5},
      {"pros go back to man", [] { Zone(2, "P"); }, InZone, 0.05},
      {"but for a few who love it", [] { Zone(4, "P"); }, InZone, 0.25},
      {"zones are not legal", [] { Zone(4, "C", 0); }, InZone, 0},
      {"eight behind: 2.5 x 40 at least, when the last play does not forbid it",
       [] { Press(2, 4, -8); }, Pressing, 0.25},
      {"after a basket it always may", [] { Press(2, 4, -8); game.PreviousResult = "G"; }, Pressing, 1},
      {"'most' always crashes when it comes up",
       [] { Crash(4); }, [] { return D().CrashBoardsOffense == 1; }, 0.25},
      {"'least' lets off", [] { Crash(0); }, [] { return D().CrashBoardsOffense == 2; }, 0.075},
      {"denied", [] { Close(0, 2); }, [] { return OMan().CoverageInside == 5; }, 0.25},
      {"a slider of 1 never holds", [] { Close(1, 1); }, [] { return OMan().CoverageInside > 3; }, 0},
      {"off a man who has no three", [] { Leave(4, "P"); }, [] { return OMan().CoverageThree == 1; }, 0.75},
      {"colleges half as often", [] { Leave(4, "C"); }, [] { return OMan().CoverageThree == 1; }, 0.375},
  };
  // clang-format on
  for (const auto& c : cases)
    EXPECT_NEAR(DefenseShare(c.change, c.holds), c.share, c.share == 0 || c.share == 1 ? 0 : 0.035) << c.why;
}

TEST(ComputerDefense, TheLowerPlanAgainstThisOpponentCounts) {
  SetUpCoaches();
  CoachRecord& coach = game.coach[1];
  for (auto* slider : {&coach.OffAdjust1, &coach.OffAdjust2, &coach.OffAdjust3, &coach.OffAdjust4})
    slider->Fill(4);
  coach.PlanOpponent[2] = 9;
  coach.PlanOpponent[3] = coach.PlanOpponent[7] = 2;
  coach.DefendUsage[3].Fill(3);
  coach.DefendInside[3].Fill(5);
  coach.DefendInside[7].Fill(1);
  coach.DoubleThree[3][2] = 1;
  for (int k = 0; k < 100; ++k) {
    ComputerDefenseCall(1);
    ASSERT_EQ(D().GamePlanIndex, 3);
    ASSERT_EQ(OMan(2).CoverageInside, 5);
    ASSERT_EQ(OMan(2).CoverageOutside, 3) << "an entry of 0 is normal, the sliders are not read";
    ASSERT_EQ(OMan(2).DoubleTeamThree, 1);
    ASSERT_EQ(OMan(1).DoubleTeamThree, 0);
  }
}

TEST(ComputerDefense, PlanEntriesApplyByTheirUsage) {
  for (int usage = 0; usage <= 3; ++usage) {
    const auto change = [usage] {
      CoachRecord& coach = game.coach[1];
      coach.PlanOpponent[1] = 2;
      coach.DefendOutside[1][4] = 4;
      coach.DoubleInside[1][4] = 1;
      coach.DefendUsage[1][4] = static_cast<u8>(usage);
    };
    const double p = (usage + 1) * 0.25;
    const auto both = [] { return OMan(4).CoverageOutside == 4 && OMan(4).DoubleTeamInside == 1; };
    EXPECT_NEAR(DefenseShare(change, [] { return OMan(4).CoverageOutside == 4; }), p, 0.04) << usage;
    EXPECT_NEAR(DefenseShare(change, both), p * p, 0.04) << "each on its own draw, " << usage;
  }
}

TEST(ComputerReview, WishesAtTheEnd) {
  // clang-format off
  struct Case { const char* why; int clock, lead, offense, defense; void (*change)() = [] {}; };
  const Case cases[] = {
      {"behind within a shot clock", 200, -1, 1, 1},     {"level", 200, 0, 0, 0},
      {"level 28 seconds before the end", 280, 0, 0, 1}, 
      {"six behind within a minute", 500, -6, 1, 1},     {"five behind there", 500, -5, 0, 0},
      {"before the last period", 200, -1, 0, 0, [] { game.Period = 3; }},
      {"at the line", 200, -1, 0, 0, [] { game.GameState = "FREETHROW-WAIT"; }},
      {"one was taken just before", 200, -1, 0, 0, [] { D().TimeoutsByMinute[3] = 1; }},
      {"which no longer counts at the end", 80, -1, 1, 1, [] { D().TimeoutsByMinute[1] = 1; }},
      {"overtime: not before twelve seconds", 200, -1, 0, 0, [] { game.Period = 5; }},
      {"a run, but too long before the end of the period", 5000, -8, 0, 0,
       [] { game.Period = 1, game.RunTeam = 2, game.RunPoints = 8; }},
      {"a run of eight where periods are long", 3000, -8, 1, 0,
       [] { game.Period = 1, game.RunTeam = 2, game.RunPoints = 8, Rules().MinuteList = 60; }},
      {"twelve is, to a nervous coach at ten", 3000, -8, 1, 0,
       [] { game.Period = 1, game.RunTeam = 2, game.RunPoints = 10, game.RunOffset = 2,
             Rules().MinuteList = 60; }},
      {"the man for the finish sits", 500, -1, 0, 1,
       [] { game.CrunchTime = 1, game.player[1][8].TeamNo = 1, game.player[1][8].PlayAtCrunchTime = 1; }},
  };
  // clang-format on
  for (const Case& c : cases) {
    SetUpCoaches();
    Moment(4, c.clock, c.lead);
    c.change();
    ComputerSideReview(1);
    EXPECT_EQ(D().TimeoutOffense, c.offense) << c.why;
    EXPECT_EQ(D().TimeoutDefense, c.defense) << c.why;
  }
}

TEST(ComputerReview, LastShotsAndDesperateThrees) {
  // clang-format off
  const struct { const char* why; int clock, lead; u8 arc; int lastShot, order; } cases[] = {
      {"a whole shot clock away", 240, 0, 1, 0, 0},
      {"two behind", 150, -2, 1, 1, 0}, {"three behind", 150, -3, 1, 0, 3},
      {"six behind", 150, -6, 1, 0, 0}, {"seven behind", 150, -7, 1, 0, 3},
      {"seven behind, no line", 150, -7, 0, 0, 0},
  };
  // clang-format on
  for (const auto& c : cases) {
    SetUpCoaches();
    Moment(4, c.clock, c.lead);
    Rules().ThreePointCheck = c.arc;
    ComputerSideReview(1);
    EXPECT_EQ(D().LastShot, c.lastShot) << c.why;
    EXPECT_EQ(DMan(30).GlobalOffense, c.order) << c.why;
  }
}

TEST(ComputerReview, ThinksTheDefenseOverAfterSomeResults) {
  const auto share = [](PlayResult result, int clock, CoachMode mode) {
    const auto change = [=] {
      Moment(4, clock, 0);
      game.coach[1].OffAdjust6.Fill(0);
      D().CoachMode = mode;
      game.PlayResult = result;
    };
    const auto review = [] { D().Pressure = 4, ComputerReviews(); };
    return Share(1000, change, review, [] { return D().Pressure == 0; });
  };
  EXPECT_NEAR(share("G", 5000, "C"), 0.2, 0.04);
  EXPECT_EQ(share("M", 250, "C"), 0);
  EXPECT_EQ(share("TO", 250, "C"), 1);
  EXPECT_EQ(share("TO", 250, "H"), 0);
}

TEST(ComputerDrive, OddsByManSeasonAndRim) {
  // clang-format off
  struct Case { const char* why; void (*change)(); int odds; std::vector<double> draws; };
  const Case cases[] = {
      {"not told otherwise", [] {}, 39, {2, 2, 1, 1}},
      {"can't shoot: 25 at most",
       [] { Shooter().RateOffDrive = 10, Shooter().RateOffOutside = 0; }, 64, {2, 2, 1, 1}},
      {"nobody at the rim: 58.5 to the even", [] { game.player[1][5].RateDefInside = 0; }, 58, {2, 2, 1, 1}},
      {"too many drives this season",
       [] { Shooter().ShotAttDrive[2] = 40, Shooter().ShotAttOutside[2] = 20,
             LoadedAt(2, 1).ShareDrive = LoadedAt(2, 1).ShareOutside = 0.4; },
       29, {0.9, 2, 2, 1, 1}},
  };
  // clang-format on
  for (const Case& c : cases) {
    for (const int above : {0, 1}) {
      SetUpCoaches();
      c.change();
      std::vector<double> draws = c.draws;
      draws.push_back(c.odds + above);
      random.Script(draws);
      ComputerDriveDecision();
      EXPECT_EQ(game.PlayKind == "DRIVE", above == 0) << c.why;
      EXPECT_EQ(random.ScriptLeft(), 0u) << c.why;
      random.Script({});
    }
  }
}

TEST(ComputerPlay, PullsBreaksAndPutbacksBackWhenFarAhead) {
  // clang-format off
  const struct { const char* why; GameState state; int lead, defenders; double share; } cases[] = {
      {"a break with an extra man", "FASTBREAK", 0, 2, 0}, {"an even one", "FASTBREAK", 0, 3, 0.1},
      {"far ahead", "FASTBREAK", 40, 2, 0.5},
      {"a putback far ahead: one pass in ten he keeps", "OFFREB", 40, 0, (1 / 3.0 + 2 / 90.0) * 0.9},
  };
  // clang-format on
  std::uint64_t seed = 0;
  for (const auto& c : cases) {
    const auto play = [&] {
      SetUpCoaches();
      game.GameState = c.state;
      O().Score = c.lead;
      game.fastBreak.BreakAttackers = 3;
      game.fastBreak.BreakDefenders = c.defenders;
      for (int p = 1; p <= 3; ++p) OMan(p).InBreak = 1;
      game.PutbackClass = 1;
      random.Seed(++seed);
      ComputerPlayCall();
    };
    const auto passed = [] { return game.possession.PassedThisPossession == 1; };
    EXPECT_NEAR(Share(500, SetUpCoaches, play, passed), c.share, c.share == 0 ? 0 : 0.07) << c.why;
  }
}

}  // namespace
}  // namespace tipline
