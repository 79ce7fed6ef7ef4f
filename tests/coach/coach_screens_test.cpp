// The screens in which a coach lays down how his side plays.
#include <gtest/gtest.h>

#include <algorithm>

#include "base/random.h"
#include "base/record_file.h"
#include "coach/daily_lineups.h"
#include "coach/plan_load.h"
#include "coach/plan_screen.h"
#include "coach/strategy_screens.h"
#include "coach/sub_screens.h"
#include "engine/engine.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "platform/dialogs.h"
#include "support/two_teams.h"

namespace tipline {
namespace {

using Told = std::vector<std::string>;

TEST(QuickStrategy, TakesOnlyWhatItsListsShow) {
  TwoTeams();
  league.rules.ZoneLegalCheck = 1;
  EXPECT_TRUE(SetStrategy(1, StrategyList::kType, 3));
  EXPECT_FALSE(SetStrategy(1, StrategyList::kType, 4) || SetStrategy(1, StrategyList::kCrashOffense, -1));
  league.rules.ZoneLegalCheck = 0;
  EXPECT_FALSE(SetStrategy(1, StrategyList::kType, 1));
  EXPECT_EQ(StrategyValue(1, StrategyList::kType), 3);
  EXPECT_TRUE(SetStrategy(1, StrategyList::kType, 0) && SetStrategy(1, StrategyList::kCrashDefense, 2));
  EXPECT_EQ(game.side[1].CrashBoardsDefense * 10 + game.side[1].CrashBoardsOffense, 20);
}

TEST(DefenseScreen, EachPositionMustBeDefended) {
  TwoTeams();
  platform::ScriptedDialogs dialogs;
  DefenseScreen screen(1);
  screen.StoredMatchup = {{2, 1, 3, 4, 4}};
  screen.LastShotCheck = true;
  EXPECT_FALSE(screen.SaveDefenseScreen());
  EXPECT_EQ(game.side[1].LastShot, 0);
  screen.StoredMatchup[5] = 5;
  screen.ComputerMatchups = screen.TimeoutDefenseCheck = screen.UseRotationGridCheck = true;
  EXPECT_TRUE(screen.SaveDefenseScreen());
  const Side& s = game.side[1];
  EXPECT_EQ(s.StoredMatchup[1] * 10 + s.StoredMatchup[2], 21);
  EXPECT_EQ(s.LastShot + s.TimeoutDefense + s.UseRotationGrid + game.coach[1].ComputerMatchups, 4);
  EXPECT_EQ(s.QuickShot + s.NoFoul + s.StealFoul + s.TimeoutOffense + s.AutoSubWhenTired, 0);
}

TEST(DefenseScreen, AFoulOrderOfTheComputerStaysUnlessItIsChanged) {
  const struct {
    int before, chosen, after;
  } cases[] = {{3, 2, 3}, {3, 0, 0}, {1, 1, 1}, {0, 2, 2}, {0, 9, 2}};
  for (const auto& c : cases) {
    TwoTeams();
    game.side[1].QuickFoul = c.before;
    DefenseScreen screen(1);
    EXPECT_EQ(screen.QuickFoulList, std::min(c.before, 2));
    screen.QuickFoulList = c.chosen;
    ASSERT_TRUE(screen.SaveDefenseScreen());
    EXPECT_EQ(game.side[1].QuickFoul, c.after) << c.before << " " << c.chosen;
  }
}

TEST(DefenseScreen, GridsWriteAtOnce) {
  TwoTeams();
  DefenseScreen screen(1);
  EXPECT_TRUE(screen.SetCoverage(3, Zone::kThree, 6) && screen.SetDoubleTeam(3, Zone::kInside, true));
  EXPECT_EQ(ManAt(2, 3).CoverageThree + ManAt(2, 3).DoubleTeamInside, 7) << "the other side's man";
  EXPECT_FALSE(screen.SetCoverage(3, Zone::kThree, 7) || screen.SetCoverage(3, Zone::kThree, 0));
  EXPECT_FALSE(screen.SetCoverage(11, Zone::kThree, 3) || screen.SetDoubleTeam(31, Zone::kThree, true));
  std::string orders;
  for (int k = 0; k < 8; ++k) {
    league.rules.ThreePointCheck = k < 4;
    screen.StepGlobalOffense(2);
    orders += std::to_string(ManAt(1, 2).GlobalOffense);
  }
  EXPECT_EQ(orders, "12301201");
  EXPECT_FALSE(screen.StepGlobalOffense(0) || screen.StepSafeStyle(12));
}

TEST(DefenseScreen, TheStopperTakesTheScorerOnceItIsSaved) {
  for (const int zone : {0, 1}) {
    TwoTeams();
    league.rules.AllowComputerManMatchupsCheck = 1;
    game.side[1].DefenseType = zone;
    PlayerAt(2, 2).RateOffense = 90;
    PlayerAt(1, 4).RateDefOutside = PlayerAt(1, 4).RateDefInside = 10;
    DefenseScreen screen(1);
    EXPECT_EQ(screen.ComputerSuggestMatchupsCommand(), zone == 0);
    EXPECT_EQ(screen.StoredMatchup[2], zone == 0 ? 4 : 2);
    EXPECT_EQ(game.side[1].StoredMatchup[2], 2);
    std::sort(screen.StoredMatchup.begin(), screen.StoredMatchup.end());
    EXPECT_EQ(screen.StoredMatchup, (Table<int, 1, 5>{{1, 2, 3, 4, 5}}));
  }
}

TEST(QuickLineup, EntersWhoMayAppear) {
  TwoTeams();
  game.side[1].Lineup = {{6, 7, 8, 9, 10}};
  LoadedAt(1, 3).PlayerOut = 1;
  PlayerAt(1, 9).DepthRank[5] = 4;
  LoadedAt(1, 5).PlayerOut = LoadedAt(1, 10).PlayerOut = 1;
  HCQUICKSUB panel(1);
  ASSERT_TRUE(panel.QuickLineup(0));
  EXPECT_EQ(panel.lineup, (Table<int, 1, 5>{{1, 2, 8, 4, 9}}))
      << "the next of the depth chart where one is out";
  EXPECT_EQ(game.side[1].Lineup[1], 6) << "before Ok";
  panel.lineup = {{6, 7, 8, 4, 9}};
  PlayerAt(1, 7).RotationOrder[6] = 1;
  PlayerAt(1, 3).RotationOrder[6] = 2;
  ASSERT_TRUE(panel.QuickLineup(6));
  EXPECT_EQ(panel.lineup, (Table<int, 1, 5>{{7, 0, 8, 4, 9}})) << "his old place is left to the coach";
  EXPECT_FALSE(panel.QuickLineup(5)) << "nobody named";
  EXPECT_FALSE(panel.QuickLineup(8) || panel.QuickLineup(-1));
}

/// A league with teams 5 and 6 of three men each.
class TeamScreens : public testing::Test {
 protected:
  TemporaryLeague folder;
  platform::ScriptedDialogs dialogs;
  Roster own, other;

  void SetUp() override {
    random.Script({});
    game = {};
    Team(5, "Salem", 1);
    Team(6, "Aston", 11);
    ASSERT_TRUE(ReadRoster(5, own) && ReadRoster(6, other));
  }
  static void Team(int teamNo, const char* city, int firstRow) {
    TeamRecord& team = league.team[teamNo];
    team.TeamActive = 1, team.Year = 2019, team.City = city, team.Nickname = "Five", team.PlanMark = 9;
    league.coach[teamNo].PlanVersion = 123;
    for (int slot = 1; slot <= 3; ++slot) {
      PlayerRecord man;
      man.RecNo = static_cast<i16>(firstRow + slot), man.TeamNo = static_cast<i16>(teamNo);
      man.FirstName = "Al", man.LastName = "Ray", man.PrimaryPosition = 1;
      man.Stats[1].G = 50, man.Stats[1].Min = 1500;
      team.Roster[slot] = man.RecNo;
      ASSERT_TRUE(WritePlayer(man));
    }
    ASSERT_TRUE(WriteTeam(teamNo) && WriteCoach(teamNo));
  }
};

TEST_F(TeamScreens, APlanIsChosenAndItsGridSteps) {
  PlanScreen screen(own);
  EXPECT_FALSE(screen.ChooseOpponent(6));
  EXPECT_EQ(dialogs.told, Told{"You can't change the team for this gameplan!"});
  screen.plan = 10;
  screen.opponent = &other;
  EXPECT_FALSE(screen.StepCell(1, PlanColumn::kThree)) << "the plan is against nobody yet";
  EXPECT_FALSE(screen.ChooseOpponent(7) || screen.ChooseOpponent(721));
  EXPECT_TRUE(screen.ChooseOpponent(6));
  EXPECT_EQ(screen.Title(), "Game Plan vs Aston Five");
  const struct {
    PlanColumn column;
    u8& cell;
    int from, to;
  } steps[] = {
      {PlanColumn::kInside, own.coach.DefendInside[10][2], 6, 1},
      {PlanColumn::kInside, own.coach.DefendInside[10][2], 0, 4},  // never set: it was "Normal"
      {PlanColumn::kOutside, own.coach.DefendOutside[10][2], 3, 4},
      {PlanColumn::kThree, own.coach.DefendThree[10][2], 200, 1},
      {PlanColumn::kDoubleInside, own.coach.DoubleInside[10][2], 0, 1},
      {PlanColumn::kDoubleOutside, own.coach.DoubleOutside[10][2], 1, 0},
      {PlanColumn::kDoubleThree, own.coach.DoubleThree[10][2], 0, 1},
      {PlanColumn::kUsage, own.coach.DefendUsage[10][2], 3, 0},
  };
  for (const auto& step : steps) {
    step.cell = static_cast<u8>(step.from);
    EXPECT_TRUE(screen.StepCell(2, step.column));
    EXPECT_EQ(step.cell, step.to) << kPlanColumns[static_cast<std::size_t>(step.column)];
  }
  for (const int slot : {0, 4, 31}) EXPECT_FALSE(screen.StepCell(slot, PlanColumn::kUsage)) << slot;
  own.coach.DefendUsage[10][2] = 2;
  screen.ClearPlayerDefense();
  EXPECT_EQ(own.coach.DefendOutside[10][2] * 10 + own.coach.DoubleThree[10][2], 30);
  EXPECT_EQ(own.coach.DefendUsage[10][2], 2) << "usage is left";
  EXPECT_TRUE(screen.SetSlider(15, 4));
  EXPECT_EQ(own.coach.DefAdjust5[10], 4);
  EXPECT_FALSE(screen.SetSlider(17, 0) || screen.SetSlider(-1, 0) || screen.SetSlider(0, 5));
}

TEST_F(TeamScreens, TheComputerCoversEachManByHisShots) {
  PlanScreen screen(own);
  screen.opponent = &other;
  screen.plan = 3;
  ASSERT_TRUE(screen.ChooseOpponent(6));
  screen.DefaultUsageList = 2;
  own.coach.DefendThree[4][1] = 5;
  PlayerRecord& p = other.player[1];
  p.RateOffInside = 5, p.RateOffOutside = 0, p.RateOffThree = 4;
  // Sliders stand at 2: 2 of ten does, 3 does not. Slot 1: doubled inside (rating 5 against 4 + 1), not
  // outside (0 against 4 + 1), nor behind the line. Tight, then deny; loose, then off.
  random.Script({2, 1, 2, 1, 3,  // double
                 1, 2, 1, 3, 3,  // tight inside
                 3, 3, 2, 1,     // deny the three (rating 4 against 4 + 1: no)
                 2, 3, 3, 3,     // off first: nowhere
                 3, 2, 1, 3});   // then loose outside
  screen.ComputerGamePlan();
  random.Script({});
  const CoachRecord& c = own.coach;
  EXPECT_EQ(c.DoubleInside[3][1] * 100 + c.DoubleOutside[3][1] * 10 + c.DoubleThree[3][1], 100);
  EXPECT_EQ(c.DefendInside[3][1], 4);
  EXPECT_EQ(c.DefendOutside[3][1], 2);
  EXPECT_EQ(c.DefendThree[3][1], 3);
  EXPECT_EQ(c.DefendUsage[3][30], 2);
  EXPECT_EQ(c.DefendThree[4][1], 5) << "other plans keep their coverage";
}

TEST_F(TeamScreens, APlanCarriesTheRotationAlong) {
  own.player[2].DepthRank[3] = 6, own.player[2].RotationGrid[5][20] = 3, own.player[2].RotationOrder[7] = 3;
  own.player[2].TargetMinutes = 31, own.player[2].NeverPlayInBlowouts = 1,
  own.daily[2].InactiveDates[100] = 412;
  PlanScreen screen(own);
  screen.SetSlider(4, 4);
  ASSERT_TRUE(screen.ExportPlan());
  Roster fresh;
  ASSERT_TRUE(ReadRoster(5, fresh));
  EXPECT_EQ(fresh.coach.RotationByRank[3][20][5], 2);
  fresh.player[1].DepthRank[3] = 6;
  fresh.player[2] = other.player[2];
  fresh.player[2].TeamNo = 5;
  fresh.daily[2] = {};
  PlanScreen again(fresh);
  ASSERT_TRUE(again.ImportPlan());
  const PlayerRecord& p = fresh.player[2];
  EXPECT_EQ(p.DepthRank[3] * 100 + p.RotationGrid[5][20] * 10 + p.RotationOrder[7], 633);
  EXPECT_EQ(p.TargetMinutes + p.NeverPlayInBlowouts, 32);
  EXPECT_EQ(fresh.player[1].DepthRank[3], 0) << "the plan names another";
  EXPECT_EQ(fresh.daily[2].InactiveDates[100], 412);
  EXPECT_EQ(again.Slider(4), 4);
  PlanScreen stranger(other);
  EXPECT_FALSE(stranger.ImportPlan());
  std::filesystem::rename(program.LeagueFolder / "Salem Coach.coa", program.LeagueFolder / "Aston Coach.coa");
  EXPECT_FALSE(stranger.ImportPlan());
  const Told told{"Aston Coach.coa is not there!", "You may only import a game plan for Aston Five!"};
  EXPECT_EQ(dialogs.told, told);
}

TEST_F(TeamScreens, PlansOfAnotherVersionAreMadeAnewOnce) {
  const struct {
    const char* why;
    int year, version, slider, mark;
    bool changed, anew;
  } cases[] = {
      {"right", 2019, 123, 4, 9, false, false},
      {"right, later", 2020, 120, 4, 9, false, false},
      {"of a later year", 2019, 120, 4, 9, true, true},
      {"of an earlier", 2020, 123, 4, 9, true, true},
      {"never made", 2019, 123, 4, 0, true, false},
      {"never made, of a later year", 2019, 120, 4, 0, true, true},
  };
  for (const auto& c : cases) {
    Roster roster = own;
    roster.team.Year = static_cast<i16>(c.year), roster.team.PlanMark = static_cast<u8>(c.mark);
    roster.coach.PlanVersion = static_cast<i16>(c.version);
    roster.coach.OffAdjust1[0] = static_cast<u8>(c.slider);
    roster.player[1].RotationGrid[1][1] = 1;
    for (auto& man : roster.player) man.DepthRank = {};
    EXPECT_EQ(ReadyPlan(roster), c.changed) << c.why;
    EXPECT_EQ(roster.player[1].RotationGrid[1][1], c.anew ? 0 : 1) << c.why;
    EXPECT_EQ(roster.player[1].DepthRank[1] > 0, c.anew) << c.why;
    EXPECT_EQ(roster.coach.OffAdjust1[0], c.changed ? 2 : 4) << c.why;
    EXPECT_FALSE(ReadyPlan(roster)) << c.why << ", twice";
  }
}

TEST_F(TeamScreens, DaysOff) {
  HcDailyLineups screen(own);
  own.player[1].InactiveStartMonth[2] = 4, own.player[1].InactiveStartDay[2] = 10;
  own.player[1].InactiveStopMonth[2] = 4, own.player[1].InactiveStopDay[2] = 12;
  for (const int date : {409, 410, 412, 413}) {
    const bool there = date < 410 || date > 412;
    EXPECT_EQ(screen.Toggle(1, date), there) << date;
    EXPECT_EQ(screen.Cell(1, date), there ? "X" : "") << date;
  }
  EXPECT_EQ(dialogs.told, Told(2, "Al Ray is not available for this day!"));
  EXPECT_TRUE(screen.Toggle(1, 413));
  EXPECT_EQ(screen.Cell(1, 413), "") << "back in";
  EXPECT_FALSE(screen.Toggle(9, 413) || screen.Toggle(1, 0) || screen.Toggle(1, 1301) ||
               screen.Toggle(1, 432));

  const std::vector<int> dates{301, 302, 415};
  own.daily[3].InactiveDates[1] = 1015;  // of another schedule
  for (int entry = 1; entry <= 99; ++entry) own.daily[2].InactiveDates[entry] = 1015;
  dialogs.told.clear();
  dialogs.answers = {false, true};
  EXPECT_FALSE(screen.InactivateAll(dates));
  EXPECT_EQ(screen.Cell(3, 301), "");
  EXPECT_TRUE(screen.InactivateAll(dates));
  EXPECT_EQ(screen.Cell(1, 415) + screen.Cell(3, 301), "XX");
  EXPECT_EQ(screen.Cell(3, 1015), "X") << "what the coach has entered stays";
  EXPECT_EQ(screen.Cell(2, 301) + screen.Cell(2, 302), "X") << "his hundredth day";
  EXPECT_EQ(dialogs.told, Told{"Al Ray sits out on 100 days already!"});
}

TEST_F(TeamScreens, AManIsOutOnHisDaysOffInALeagueGame) {
  own.daily[2].InactiveDates[1] = 305;
  const struct {
    const char* why;
    int use, day;
    bool league, out;
  } cases[] = {
      {"listed", 1, 5, true, true},
      {"another day", 1, 6, true, false},
      {"the team goes by no list", 0, 5, true, false},
      {"an exhibition", 1, 5, false, false},
  };
  for (const auto& c : cases) {
    own.coach.UseDailyInactive = static_cast<u8>(c.use);
    ASSERT_TRUE(WriteRoster(own));
    program.ReplayLocked = true;
    program.GameKind = c.league ? GameKind("L") : GameKind("E");
    game.GameMonth = 3, game.GameDay = c.day;
    ASSERT_TRUE(LoadTeam(5, 1));
    EXPECT_EQ(LoadedAt(1, 2).PlayerUnavailable == 1 && LoadedAt(1, 2).PlayerOut == 1, c.out) << c.why;
    EXPECT_EQ(LoadedAt(1, 1).PlayerOut, 0) << c.why;
  }
}

TEST_F(TeamScreens, ADamagedListOfDaysReadsAsNone) {
  own.daily[1].InactiveDates[1] = 305;
  ASSERT_TRUE(WriteRoster(own));
  DailyRecord daily;
  std::filesystem::resize_file(DailyFile(), static_cast<std::uintmax_t>(own.player[1].RecNo - 1) * 500);
  ReadDaily(own.player[1].RecNo, daily);
  EXPECT_FALSE(SitsOut(daily, 305)) << "cut off";
  daily.DailyMark = 98;
  daily.InactiveDates[1] = 305;
  ASSERT_TRUE(WriteDaily(7, daily));
  ReadDaily(7, daily);
  EXPECT_FALSE(SitsOut(daily, 305)) << "never cleared";
  TemporaryLeague::Block(DailyFile());
  EXPECT_FALSE(WriteRoster(own));
  EXPECT_EQ(dialogs.told, Told{"HcDaily could not be written!"});
}

}  // namespace
}  // namespace tipline
