#include "season/standings.h"

#include <gtest/gtest.h>

#include "base/page.h"
#include "base/record_file.h"
#include "league/office_files.h"
#include "league/program.h"
#include "league/report_file.h"
#include "league/setup.h"
#include "season/power_rankings.h"
#include "support/schedule_league.h"

namespace tipline {
namespace {

class StandingsTest : public testing::Test, public ScheduleLeague {
 protected:
  StandingsTest() : ScheduleLeague(3, 2) {
    league.rules.PeriodList = 4;
    for (int d = 1; d <= 3; ++d) league.rules.DivisionName[d] = "Division " + std::to_string(d);
  }

  static void Give(int team, int wins, int losses, int divisionWins = 0, int divisionLosses = 0) {
    league.team[team].Wins = static_cast<i16>(wins);
    league.team[team].Losses = static_cast<i16>(losses);
    league.team[team].DivisionWins = static_cast<u8>(divisionWins);
    league.team[team].DivisionLosses = static_cast<u8>(divisionLosses);
  }

  static void Result(int visitor, int home, int visitorPoints, int homePoints, int month, int day,
                     char type = 'R', bool neutral = false) {
    ScheduleRecord row = NewScheduleGame(visitor, home, month, day);
    row.Score[1] = static_cast<i16>(visitorPoints);
    row.Score[2] = static_cast<i16>(homePoints);
    row.GameType = Text<1>(std::string_view(&type, 1));
    row.NeutralSite = neutral;
    league.Scores.push_back(row);
  }
};

TEST_F(StandingsTest, OrderByShareThenWinsThenFewerLosses) {
  struct Case {
    const char* what;
    std::vector<std::pair<int, int>> records;  // of teams 1, 2, 13, 14, 25, 26
    std::vector<int> order;
  };
  const Case cases[] = {
      {"the higher share leads",
       {{39, 19}, {40, 20}, {40, 20}, {1, 0}, {0, 1}, {0, 0}},
       {14, 1, 13, 2, 26, 25}},
      {"more wins at one share", {{2, 2}, {10, 10}, {1, 1}, {3, 3}, {5, 5}, {4, 4}}, {2, 25, 26, 14, 1, 13}},
      {"fewer losses without a win",
       {{0, 3}, {0, 1}, {0, 0}, {0, 2}, {0, 9}, {0, 4}},
       {13, 2, 14, 1, 26, 25}}};
  const int teams[] = {1, 2, 13, 14, 25, 26};
  for (const Case& c : cases) {
    for (std::size_t k = 0; k < 6; ++k) Give(teams[k], c.records[k].first, c.records[k].second);
    EXPECT_EQ(OrderStandings().StandingsOrder, c.order) << c.what;
  }
}

TEST_F(StandingsTest, GroupByDivisionOrConference) {
  const int teams[] = {1, 2, 13, 14, 25, 26};
  for (int k = 0; k < 6; ++k) Give(teams[k], 10 - k, k, k, 6 - k);
  auto groups = OrderStandings().groups;
  ASSERT_EQ(groups.size(), 3u);
  EXPECT_EQ(groups[1].heading, "Division 2");
  EXPECT_EQ(groups[1].teams, (std::vector<int>{13, 14}));

  league.rules.StandingsOption = 1;
  groups = OrderStandings().groups;
  ASSERT_EQ(groups.size(), 2u) << "the first two of three divisions are a conference";
  EXPECT_EQ(groups[0].teams, (std::vector<int>{1, 2, 13, 14}));

  league.rules.PeriodList = 2;
  const Standings college = OrderStandings();
  ASSERT_EQ(college.groups.size(), 3u);
  EXPECT_EQ(college.groups[1].teams, (std::vector<int>{14, 13})) << "by the games of the conference";
  EXPECT_EQ(GamesBehind(college, college.groups[1], 13), "1.0");

  program.SilentReport = true;
  league.rules.PeriodList = 4;
  EXPECT_EQ(OrderStandings().StandingsOrder.front(), 26) << "asked in silence, by the bare conference share";
}

TEST_F(StandingsTest, PrintTheColumnsAsTheHeadingsStand) {
  Give(1, 41, 20, 8, 4);
  Give(2, 38, 22, 4, 8);
  TeamRecord& team = league.team[2];
  team.HomeWins = 20;
  team.HomeLosses = 9;
  team.NeutralWins = 1;
  team.Streak = -3;
  for (int k = 1; k <= 9; ++k) team.LastTen[k] = Text<1>(k <= 3 ? "L" : "W");
  team.OvertimeWins = 2;
  team.BlowoutLosses = 11;
  team.TeamStats[1].FGM = 2400;
  team.TeamStats[1].F3M = 300;
  team.TeamStats[1].FTM = 900;
  team.TeamStats[2].FGM = 2415;
  const std::string page = StandingsPage(OrderStandings(), false);
  const auto lines = page.substr(0, page.find("\n\n"));
  EXPECT_NE(
      lines.find("Division 1             W  L   Pct    GB  Stk  L10   Home  Road   OT   3Pt   10Pt   100+  "
                 "Half Lead Trail  vs .500+ .500-     Pts   Opp  Diff "),
      std::string::npos)
      << page;
  const std::string row =
      "Team 2                38 22  .633   2.5   L3  6-3   20-9 17-13  2-0   0-0   0-11    0-0 "
      "       0-0   0-0       0-0   0-0   100.0  80.5  19.5 ";
  EXPECT_NE(lines.find(row), std::string::npos) << page;
  setup.DivisionCheck[0] = 1;
  EXPECT_NE(StandingsPage(OrderStandings(), true).find("  L10   Div   Home  Road \n"), std::string::npos);
  setup.DivisionCheck[0] = 0;
}

TEST_F(StandingsTest, OfADateAreReplayedFromTheResults) {
  Give(1, 5, 5);
  Result(1, 2, 90, 80, 11, 1);
  Result(2, 1, 90, 80, 12, 5);
  Result(13, 1, 70, 80, 12, 6, 'R', true);
  Result(1, 25, 99, 98, 12, 7, 'C');  // the final of the cup counts for nobody
  Result(14, 13, 99, 98, 1, 3);
  Result(99, 13, 99, 98, 1, 3);  // no such team
  ASSERT_TRUE(SaveScores());
  struct Case {
    int month, day;
    const char* team1;
    const char* team13;
  };
  const Case cases[] = {{10, 31, "0  0", "0  0"}, {11, 30, "1  0", "0  0"}, {12, 5, "1  1", "0  0"},
                        {12, 31, "2  1", "0  1"}, {1, 31, "2  1", "0  2"},  {12, 0, "1  1", "0  1"}};
  for (const Case& c : cases) {
    HcStandingsByDate screen;
    screen.Month = c.month;
    screen.Day = c.day;
    ASSERT_TRUE(screen.BuildStandingsByDate());
    const auto has = [&](const char* name, const char* record) {
      return screen.page.find(AtLeft(name, 20) + "   " + record) != std::string::npos;
    };
    EXPECT_TRUE(has("Team 1", c.team1) && has("Team 13", c.team13)) << c.month << "-" << c.day << screen.page;
  }
  EXPECT_EQ(league.team[1].Wins, 5) << "nothing of the replay remains";
  HcStandingsByDate none;
  none.Month = 2;
  none.Day = 30;
  EXPECT_FALSE(none.BuildStandingsByDate());
  EXPECT_EQ(dialogs.told.back(), "Please select a date to view!");
}

TEST_F(StandingsTest, PowerWeighsMarginsOpponentsAndHomeCourt) {
  struct Case {
    const char* what;
    int own, other;  // of one game, team 1 at home
    double power;
  };
  // B = 0.5 x (margin - 3), less the trim, plus 0.5 x the opponent's 0.5 x (-margin + 3).
  const Case cases[] = {{"by 26", 126, 100, 80 + 11.5 - 1.8 - 5.75},
                        {"lost by 26", 100, 126, 80 - 14.5 + 2.4 + 7.25},
                        {"by 3", 103, 100, 80}};
  for (const Case& c : cases) {
    league.Scores.resize(1);
    const bool won = c.own > c.other;
    Give(1, won, !won);
    Give(2, !won, won);
    league.team[1].HomeWins = won;
    league.team[1].HomeLosses = !won;
    for (const auto& [team, own, other] : {std::tuple(1, c.own, c.other), std::tuple(2, c.other, c.own)}) {
      league.team[team].TeamStats[1].FTM = static_cast<i16>(own);
      league.team[team].TeamStats[2].FTM = static_cast<i16>(other);
    }
    Result(2, 1, c.other, c.own, 11, 1);
    EXPECT_NEAR(ComputePowerRating(1).PowerRating, c.power, 1e-9) << c.what;
  }
  EXPECT_EQ(ComputePowerRating(13).PowerRating, 0) << "has not played";
  EXPECT_EQ(ComputePowerRating(900).PowerRating, 0);

  for (const auto& [own, other, power] : {std::tuple(0, 200, 0), std::tuple(200, 0, 160)}) {
    Give(14, 10, 10);
    league.team[14].HomeWins = 10;
    league.team[14].TeamStats[1].FTM = static_cast<i16>(20 * own);
    league.team[14].TeamStats[2].FTM = static_cast<i16>(20 * other);
    EXPECT_EQ(ComputePowerRating(14).PowerRating, power) << "the ends of the scale";
  }
  for (const int team : {1, 2}) league.team[team].TeamType = "C";
  league.team[2].ScheduleStrength = 9;
  const double before = ComputePowerRating(1).PowerRating;
  league.team[2].ScheduleStrength = 10;
  EXPECT_NEAR(ComputePowerRating(1).PowerRating, before + 3, 1e-9) << "a stronger schedule of a college";
}

TEST_F(StandingsTest, ReportsAreWrittenButInSilence) {
  ASSERT_TRUE(SaveAllTeams());
  ASSERT_TRUE(DisplayPowerRankings());
  const std::string power = ReadWholeFile(ReportFile());
  EXPECT_NE(power.find(" Power Rankings"), std::string::npos);
  program.SilentReport = true;
  ASSERT_TRUE(DisplayStandings());
  EXPECT_EQ(ReadWholeFile(ReportFile()), power);
  program.SilentReport = false;
  ASSERT_TRUE(DisplayStandings());
  EXPECT_EQ(program.ReportName, "STANDINGS");
  EXPECT_NE(ReadWholeFile(ReportFile()), power);
}

}  // namespace
}  // namespace tipline
