#include "reports/leader_reports.h"

#include <gtest/gtest.h>

#include "harness/temporary_home.h"
#include "league/league.h"
#include "league/program.h"
#include "league/setup.h"
#include "platform/dialogs.h"
#include "reports/leaders_screen.h"

namespace tipline {
namespace {

class LeaderReports : public testing::Test {
 protected:
  void SetUp() override {
    setup = {};
    RepairSetup();
  }
  void TearDown() override { setup = {}; }
  static LeaderReport Sound() {
    LeaderReport report;
    report.Name = "Mine";
    report.Sections = {{49, {1, 33}}, {131, {}}};
    report.Rows = 25;
    report.Team = 700;
    report.Season = SeasonLine::kReal;
    return report;
  }
  TemporaryHome home;
  platform::ScriptedDialogs dialogs;
};

TEST_F(LeaderReports, TheUsersAreKeptInTheSetupFile) {
  ASSERT_TRUE(SaveLeaderReport(50, Sound()));
  setup = {};
  LoadSetup();
  const LeaderReport report = LeaderReportOf(50);
  EXPECT_EQ(report.Name, "Mine");
  ASSERT_EQ(report.Sections.size(), 2u);
  EXPECT_EQ(report.Sections[0].Key, 49);
  EXPECT_EQ(report.Sections[0].Columns, (std::vector<int>{1, 33}));
  EXPECT_EQ(report.Sections[1].Key, 131);
  EXPECT_EQ(report.Rows, 25);
  EXPECT_EQ(report.Team, 700);
  EXPECT_EQ(report.Season, SeasonLine::kReal);
  dialogs.answers = {false, true};
  EXPECT_FALSE(ClearLeaderReport(50));
  EXPECT_EQ(LeaderReportOf(50).Sections.size(), 2u);
  EXPECT_TRUE(ClearLeaderReport(50));
  LoadSetup();
  EXPECT_TRUE(LeaderReportOf(50).Sections.empty());
  EXPECT_EQ(LeaderReportOf(50).Name, "Custom");
  EXPECT_EQ(dialogs.asked, (std::vector<std::string>(2, "Clear this leader report?")));
}

TEST_F(LeaderReports, RefusesWhatCanNotBeKept) {
  const struct {
    const char* why;
    int number;
    void (*change)(LeaderReport&);
    const char* told;
  } cases[] = {
      {"the program's own", 7, [](LeaderReport&) {}, "You may not change default reports 1 thru 7"},
      {"beyond the last", 51, [](LeaderReport&) {}, "Leader reports are numbered 1 to 50."},
      {"no section", 8, [](LeaderReport& r) { r.Sections.clear(); }, "A leader report needs a key column."},
      {"a column that is none", 8, [](LeaderReport& r) { r.Sections[0].Columns[0] = 30; },
       "A column of this leader report does not exist."},
      {"47 columns", 8,
       [](LeaderReport& r) {
         r.Sections[0].Columns.assign(41, 1);
         r.Sections.push_back({1, {}});
       },
       "A leader report has room for 46 columns; each section takes one more."},
      {"rows not by fives", 8, [](LeaderReport& r) { r.Rows = 12; },
       "A leader report shows the top 5 to the top 50, by steps of five."},
      {"double-doubles of real life", 8, [](LeaderReport& r) { r.Sections[1].Columns = {140}; },
       "This report is not available for real statistics"},
  };
  const auto before = RecordBytes(setup);
  for (const auto& c : cases) {
    LeaderReport report = Sound();
    c.change(report);
    dialogs.told.clear();
    EXPECT_FALSE(SaveLeaderReport(c.number, report)) << c.why;
    EXPECT_EQ(dialogs.told, (std::vector<std::string>{c.told})) << c.why;
  }
  EXPECT_FALSE(ClearLeaderReport(8));
  EXPECT_EQ(dialogs.told.back(), "You may not change default reports 1 thru 8");
  std::filesystem::remove_all(program.ProgramFolder);
  EXPECT_FALSE(SaveLeaderReport(9, Sound())) << "the setup can't be written";
  EXPECT_EQ(RecordBytes(setup), before);
}

TEST_F(LeaderReports, OfADamagedSetupWhatMakesSenseIsLeft) {
  const i16 cells[] = {5, 300, 299, 49, 300, 300, 131, 30, 1};
  for (int k = 0; k < 9; ++k) setup.LeaderBoardColumns[k][20] = cells[k];
  setup.LeaderBoardMain[20] = 200;
  setup.LeaderBoardSub[20] = setup.LeaderBoardDisplay[20] = 255;
  const LeaderReport report = LeaderReportOf(20);
  ASSERT_EQ(report.Sections.size(), 2u);
  EXPECT_EQ(report.Sections[0].Key, 49);
  EXPECT_EQ(report.Sections[1].Columns, std::vector<int>{1});
  EXPECT_EQ(report.Rows, 50);
  EXPECT_EQ(report.Team, 0);
}

/// Two teams of ten games; Ash leads in points, Bay plays for the other team.
void SeatMen() {
  league = {};
  league.player.assign(4, {});
  const char* const names[] = {"Ash", "Bay", "Cole"};
  for (int k = 1; k <= 3; ++k) {
    PlayerRecord& man = league.player[static_cast<std::size_t>(k)];
    man.FirstName = "Al", man.LastName = names[k - 1];
    man.RecNo = static_cast<i16>(k), man.TeamNo = static_cast<i16>(k % 2 + 1);
    man.Stats[2].G = k == 3 ? 6 : 10;
    man.Stats[2].Min = 300, man.Stats[2].FGA = 100, man.Stats[2].FTM = 1;
    man.Stats[2].FGM = static_cast<i16>(60 - 10 * k);
    man.HomeStats[2].G = 4, man.HomeStats[2].FGM = static_cast<i16>(10 * k);
    man.ShotAttDrive[2] = 20, man.ShotMadeDrive[2] = static_cast<i16>(5 + k);
    man.AwardCounts[2] = static_cast<u8>(20 + k);
    man.Stats[1].G = 80, man.Stats[1].FGM = static_cast<i16>(100 * k);
  }
  for (int team = 1; team <= 2; ++team) {
    league.team[team].TeamActive = 1;
    league.team[team].Abbrev = team == 1 ? "BOS" : "NYK";
    league.team[team].Wins = 6, league.team[team].Losses = 4;
  }
}

TEST(LeadersScreen, RanksThoseWhoQualify) {
  SeatMen();
  const struct {
    const char *why, *column;
    SeasonLine season;
    int team;
    const char* left;
  } cases[] = {
      {"averages take seven games", "Scoring", SeasonLine::kReplay, 0, "Al Ash 10.10, Al Bay 8.10"},
      {"totals take none", "STAT:Pts", SeasonLine::kReplay, 0, "Al Ash 101, Al Bay 81, Al Cole 61"},
      {"of one team", "STAT:Scoring", SeasonLine::kReplay, 1, "Al Bay 81"},
      {"shares", "FG%", SeasonLine::kReplay, 0, "Al Ash .500, Al Bay .400, Al Cole .300"},
      {"at home", "Scoring at Home", SeasonLine::kReplay, 0, "Al Cole 15.00, Al Bay 10.00, Al Ash 5.00"},
      {"a kind of shot", "Drive%", SeasonLine::kReplay, 0, "Al Cole .400, Al Bay .350, Al Ash .300"},
      {"most in a game", "High Points", SeasonLine::kReplay, 0, "Al Cole 23, Al Bay 22, Al Ash 21"},
      {"real life", "Scoring", SeasonLine::kReal, 0, "Al Cole 7.50, Al Bay 5.00, Al Ash 2.50"},
      {"who has none is no leader", "Blocks", SeasonLine::kReplay, 0, ""},
  };
  for (const auto& c : cases) {
    HcLeaders2023 screen;
    screen.StatsList = c.season, screen.TeamList = c.team;
    LeaderReport report;
    report.Sections = {{FindLeaderColumn(c.column), {}}};
    const auto lists = screen.Sections(report);
    ASSERT_EQ(lists.size(), 1u) << c.why;
    std::string told;
    for (const auto& line : lists[0].Lines) {
      told += (told.empty() ? "" : ", ") + line.Name + " " + line.Cells[0];
    }
    EXPECT_EQ(told, c.left) << c.why;
  }
  league = {};
}

TEST(LeadersScreen, ItsPagesAndRefusals) {
  SeatMen();
  setup = {};
  RepairSetup();
  platform::ScriptedDialogs dialogs;
  HcLeaders2023 screen;
  const std::string page = screen.BuildSubs(2);
  EXPECT_TRUE(page.starts_with("League Leaders: Scoring a Game\n      Player ")) << page;
  EXPECT_NE(page.find("\n   1  Al Ash                    NYK   10.10     10"), page.npos) << page;
  screen.TeamList = 1;
  for (int report = 1; report <= kDefaultLeaderReports; ++report) {
    EXPECT_NE(screen.BuildSubs(report), "") << report;
  }
  screen.StatsList = SeasonLine::kReal;
  EXPECT_EQ(screen.BuildSubs(4), "");
  EXPECT_EQ(dialogs.told, std::vector<std::string>{"This report is not available for real statistics"});
  setup = {};
  league = {};
}

TEST(LeaderColumns, EveryOneIsFoundByItsNumberAndItsName) {
  const auto columns = LeaderColumns();
  EXPECT_GT(columns.size(), 100u);
  for (const LeaderColumn& column : columns) {
    EXPECT_LT(column.Number, 300);
    EXPECT_EQ(FindLeaderColumn(std::to_string(column.Number)), column.Number);
    EXPECT_EQ(FindLeaderColumn(std::string(column.Group) + ":" + column.Name), column.Number);
  }
  for (const char* none : {"", "0", "30", "300", "-1", "SHOT:Scoring", "Ages"}) {
    EXPECT_EQ(FindLeaderColumn(none), 0) << none;
  }
}

}  // namespace
}  // namespace tipline
