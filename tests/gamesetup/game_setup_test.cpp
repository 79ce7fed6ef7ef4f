#include <gtest/gtest.h>

#include <functional>

#include "base/record_file.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "frontoffice/league_maker.h"
#include "gamesetup/team_pick_screen.h"
#include "gamesetup/upcoming_games.h"
#include "harness/temporary_home.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/program.h"
#include "league/rules.h"
#include "league/schedule.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

/// Notes which screens open; the preference screen is left by Ok after `choose`.
struct NotedScreens : GameScreens {
  std::function<void(HCGAMEsetup&)> choose = [](HCGAMEsetup&) {};
  bool starts = true;
  std::string opened;
  tipline::GameState stop;

  bool Preview(const ScheduleRecord&) override { return opened += "preview ", starts; }
  void GameSetupScreen(HCGAMEsetup& screen) override {
    opened += "setup ";
    stop = game.GameState;
    choose(screen);
    EXPECT_TRUE(screen.Ok());
  }
  void OpenViewer() override { opened += "viewer "; }
  void OpenGame() override { opened += "game "; }
};

void BothComputers(HCGAMEsetup& screen) { screen.ComputerOption.Fill(true); }

class GameSetup : public testing::Test {
 protected:
  void SetUp() override {
    game = {};
    setup = {};
    ASSERT_TRUE(UseShippedEras());
    for (const char* name : {"Here", "There"}) {
      LeagueRequest request;
      request.Name = name, request.Divisions = 2, request.Teams = 4, request.Games = 10;
      std::string message;
      ASSERT_TRUE(MakeLeague(request, message)) << message;
    }
    program.LeagueFolder = FindLeague("Here");
    ASSERT_TRUE(LoadRules());
    LoadAllTeams();
    ASSERT_TRUE(LoadSchedule());
    LoadLeaguePlayers();
    program.GameKind = "E";
  }
  void TearDown() override {
    game = {};
    setup = {};
  }

  TemporaryHome home;
  platform::ScriptedDialogs dialogs;
  static constexpr int kFirst = 1, kSecond = 2;  ///< teams of either league
  NotedScreens screens;

  void PickTeams(HCGameTeams2008& screen) const {
    screen.PickTeam(1, kFirst);
    screen.PickTeam(2, kSecond);
  }
};

TEST_F(GameSetup, PlayNeedsADateInALeagueGameAndTwoTeams) {
  const std::string noDate = "You must select a month, day, and year for this game!";
  const std::string noTeams = "You must select two teams!";
  const struct {
    const char *why, *kind;
    int visitor, home;
    bool dated;
    std::string message;
  } cases[] = {
      {"league game without a date", "L", 1, 2, false, noDate},
      {"the date is asked for first", "L", 0, 0, false, noDate},
      {"the visitor isn't there", "E", 0, 2, true, noTeams},
      {"no home team", "L", 1, 0, true, noTeams},
      {"league game against itself", "L", 1, 1, true,
       "You must select two different teams for a league game!"},
      {"exhibition against itself", "E", 1, 1, true, ""},
      {"exhibition without a date", "E", 1, 2, false, ""},
      {"league game", "L", 1, 2, true, ""},
  };
  screens.choose = BothComputers;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.why);
    game = {};
    dialogs.told.clear();
    screens.opened.clear();
    program.GameKind.Set(c.kind);
    program.Autoplaying = false;
    HCGameTeams2008 screen;
    if (c.dated) screen.PickDate(9, 30, 2001);
    screen.PickTeam(1, 1);
    screen.PickTeam(1, c.visitor ? c.visitor : kTeams);
    if (c.home) screen.PickTeam(2, c.home);
    const bool plays = c.message.empty();
    EXPECT_EQ(screen.PlayCommand(screens), plays);
    EXPECT_EQ(dialogs.told, plays ? std::vector<std::string>{} : std::vector{c.message});
    EXPECT_EQ(screens.opened, plays ? "setup " : "");
    EXPECT_EQ(game.GameOver, plays);
    EXPECT_EQ(program.Autoplaying, plays);
    if (!plays) continue;
    EXPECT_EQ(game.GameMonth, c.dated ? 1 : 2);
    EXPECT_EQ(game.GameCalendarMonth, c.dated ? 9 : 10);
    EXPECT_EQ(game.GameDay, c.dated ? 30 : 1);
    EXPECT_EQ(game.GameYear, c.dated ? 2001 : league.team[1].Year);
  }
}

TEST_F(GameSetup, WhoCoachesDecidesWhatOpens) {
  HCGameTeams2008 screen;
  PickTeams(screen);
  screens.choose = [](HCGAMEsetup& s) { s.ComputerOption[1] = true, s.Controls.BothDefensesCheck = 1; };
  ASSERT_TRUE(screen.PlayCommand(screens));
  EXPECT_EQ(screens.opened, "setup game ") << "one human";
  EXPECT_FALSE(game.GameOver || program.Autoplaying);
  EXPECT_TRUE(game.side[2].BothDefenses && !game.side[1].BothDefenses) << "a human's preference";
  screens.choose = [](HCGAMEsetup& s) { BothComputers(s), s.Controls.ComputerCheck = 1; };
  ASSERT_TRUE(screen.PlayCommand(screens));
  EXPECT_EQ(screens.opened, "setup game setup viewer ") << "computers shown";
  EXPECT_TRUE(game.GameOver && !program.Autoplaying);
}

TEST_F(GameSetup, TeamsOfTwoFoldersLeaveBothLeaguesAsTheyWere) {
  const auto here = program.LeagueFolder, there = FindLeague("There");
  const struct {
    std::filesystem::path visitor, home;
    bool two;
  } cases[] = {{here, here, false}, {here / "", here, false}, {there, here, true}, {there, there, false}};
  const auto before = RecordBytes(league.team[kFirst]);
  for (const auto& c : cases) {
    SCOPED_TRACE(c.visitor);
    HCGameTeams2008 screen;
    screen.PickTeam(1, kFirst);
    screen.PickFolder(1, c.visitor);
    EXPECT_EQ(game.GameTeam[1], 0) << "another folder takes the pick back";
    screen.PickFolder(2, c.home);
    PickTeams(screen);
    TeamRecord visitor;
    RecordFile(c.visitor / "HCTEAMS", kTeamSlotBytes).Read(kFirst, visitor);
    EXPECT_EQ(game.team[1].City, visitor.City);
    screens.choose = BothComputers;
    ASSERT_TRUE(screen.PlayCommand(screens));
    EXPECT_EQ(program.TwoFolderGame, c.two);
    EXPECT_EQ(program.LeagueFolder, here);
    EXPECT_EQ(RecordBytes(league.team[kFirst]), before);
  }
  program.GameKind = "L";
  HCGameTeams2008 screen;
  screen.PickFolder(1, there);
  EXPECT_EQ(screen.TeamDir[1], here) << "both teams of a league game are from this league";
}

TEST_F(GameSetup, ScenarioBoxesStayInsideAPeriod) {
  program.ScenarioGame = true;
  HCGameTeams2008 screen;
  const int full = league.rules.MinuteList;
  using Time = std::pair<int, int>;
  const std::pair<Time, Time> cases[] = {{{full, 59}, {full, 0}},
                                         {{full + 1, 10}, {full, 0}},
                                         {{-1, -1}, {0, 0}},
                                         {{full - 1, 60}, {full - 1, 59}}};
  for (const auto& [given, kept] : cases) {
    screen.SetScenarioMinutes(given.first);
    screen.SetScenarioSeconds(given.second);
    EXPECT_EQ(Time(screen.ScenarioMinutes, screen.ScenarioSeconds), kept);
  }
  screen.SetScenarioSeconds(30);
  screen.SetScenarioMinutes(full);
  EXPECT_EQ(screen.ScenarioSeconds, 0) << "the minutes came last";
  screen.SetScenarioPoints(1, -5);
  EXPECT_EQ(screen.ScenarioPoints[1], 0);
}

int Started(int side) {
  int men = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) men += PlayerAt(side, slot).Stats[3].GS;
  return men;
}

TEST_F(GameSetup, AScenarioBeginsWhereItSays) {
  program.ScenarioGame = true;
  for (int situation = 0; situation <= 2; ++situation) {
    HCGameTeams2008 screen;
    PickTeams(screen);
    screen.ScenarioPeriod = 2, screen.ScenarioSituation = situation;
    screen.ScenarioMinutes = 7, screen.ScenarioSeconds = 30;
    screen.ScenarioPoints = {{100, 98}};
    setup.PlayCallFrequency = {};
    screens.choose = [](HCGAMEsetup& s) { s.Command3(); };  // now he wants to be asked
    ASSERT_TRUE(screen.PlayCommand(screens));
    EXPECT_EQ(screens.stop == "JUMPBALL-1", situation == 0);
    EXPECT_TRUE(situation == 0 || game.OffenseSide == situation);
    EXPECT_EQ(game.Period, 3);
    EXPECT_EQ(game.GameClock, 4500);
    EXPECT_TRUE(game.side[1].Score == 100 && game.side[2].Score == 98 && game.LeadSide == 1);
    EXPECT_TRUE(game.side[1].Starters == game.side[1].Lineup && Started(1) == 5 && Started(2) == 5);
    for (int jumps = 0; situation == 0 && jumps < 8; ++jumps) JumpBall();
    EXPECT_EQ(game.team[1].Possessions[3] + game.team[2].Possessions[3], 0) << "nobody has had the ball yet";
    screens.choose = BothComputers;
    ASSERT_TRUE(screen.PlayCommand(screens));
    EXPECT_TRUE(game.GameOver) << "computers play the rest";
    EXPECT_GE(game.side[1].Score, 100);
  }
}

TEST_F(GameSetup, ControlsShowWhatTheyCan) {
  setup.OpeningFontList = 16;
  setup.FullCourtIconList = {{5, 4}};
  setup.SoundHornScroll = 101;
  setup.SoundAmbientScroll = -1;
  const SetupRecord shown = HCGAMEsetup().Controls;
  EXPECT_TRUE(shown.OpeningFontList == 0 && shown.FullCourtIconList[0] == 0);
  EXPECT_TRUE(shown.FullCourtIconList[1] == 4 && shown.SoundHornScroll == 100 &&
              shown.SoundAmbientScroll == 0);
}

TEST_F(GameSetup, SpreadAndCourt) {
  const struct {
    double visitor, home;
    bool box, rule;
    const char* label;
  } cases[] = {{0, 9, false, false, "No Line"}, {9, 0, false, false, "No Line"},
               {8, 4, false, false, "V by 1"},  {7.9, 4, false, false, "No Line"},
               {7, 4, false, false, "No Line"}, {6.9, 4, false, false, "H by 1"},
               {7, 4, true, false, "V by 3"},   {7, 4, false, true, "V by 3"}};
  game.team[1].City = "V", game.team[2].City = "H";
  program.ReplayLocked = true;
  for (const auto& c : cases) {
    game.team[1].PowerRating = c.visitor, game.team[2].PowerRating = c.home;
    league.rules.NeutralCheck = c.rule;
    ASSERT_TRUE(SaveRules());
    HCGAMEsetup screen;
    EXPECT_EQ(screen.NeutralBox, c.rule);
    if (c.box) screen.ClickNeutral(true);
    EXPECT_EQ(game.NeutralGame, c.box || c.rule);
    EXPECT_EQ(screen.PointSpreadLabel, c.label) << c.visitor << " " << c.home;
    screen.ClickNeutral(false);
    EXPECT_EQ(game.NeutralGame, c.rule) << "the rule is stronger than the box";
  }
}

TEST_F(GameSetup, AGameOfTheScheduleTakesItsRow) {
  ASSERT_GT(league.GameCount(), 4);
  league.ScheduleGame[1].Year = 2004;
  league.ScheduleGame[2].Month = 1, league.ScheduleGame[2].NeutralSite = 1;
  league.ScheduleGame[3].Team[2] = kFreeAgent;
  EXPECT_FALSE(PlayUpcomingGame(0, screens) || PlayUpcomingGame(league.GameCount() + 1, screens));
  league.ScheduleGame[4].Team[1] = kTeams;  // he was removed
  EXPECT_FALSE(PlayUpcomingGame(3, screens) || PlayUpcomingGame(4, screens));
  const std::string message = "Teams not selected for this game! Use Organize\\Schedule to select teams.";
  EXPECT_EQ(dialogs.told, (std::vector{message, message}));
  EXPECT_EQ(screens.opened, "");
  EXPECT_TRUE(program.GameKind == "E") << "nothing is changed";
  screens.starts = false;
  EXPECT_FALSE(PlayUpcomingGame(2, screens));
  EXPECT_EQ(screens.opened, "preview ");
  screens.starts = true;
  const int day = league.ScheduleGame[2].Day;
  EXPECT_TRUE(PlayUpcomingGame(2, screens));
  EXPECT_EQ(screens.opened, "preview preview setup game ");
  EXPECT_EQ(game.GameYear, 2005) << "January lies in the year after the season's first";
  EXPECT_EQ(game.GameMonth, 5);
  EXPECT_EQ(game.GameDay, day);
  EXPECT_TRUE(game.NeutralGame);
  EXPECT_TRUE(program.GameKind == "L" && !program.ReplayLocked);
  EXPECT_EQ(game.ScheduleRow, 0);
}

}  // namespace
}  // namespace tipline
