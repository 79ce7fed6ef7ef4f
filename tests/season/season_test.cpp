// The season: what is marked, in what order it is played, what ends a run, and what is left of it.
#include <gtest/gtest.h>

#include <numeric>

#include "base/csv.h"
#include "base/record_file.h"
#include "engine/game_state.h"
#include "frontoffice/league_maker.h"
#include "harness/temporary_home.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/program.h"
#include "league/rules.h"
#include "league/setup.h"
#include "platform/dialogs.h"
#include "season/autoplay_display.h"
#include "season/autoplay_screen.h"
#include "season/bulk_replay.h"
#include "support/schedule_league.h"

namespace tipline {
namespace {

struct NotedScreens : AutoplayScreens {
  std::string opened;
  std::function<void(HCGAMEsetup&)> choose = [](HCGAMEsetup&) {};
  std::function<void()> atPause = [] {};
  std::function<bool()> goesOn = [] { return true; };

  void GameSetupScreen(HCGAMEsetup& screen) override {
    opened += "setup ";
    choose(screen);
    screen.SaveChanges();
  }
  void OpenViewer() override { opened += "viewer "; }
  void OpenGame() override { opened += "game "; }
  void WaitAtPause() override { atPause(); }
  bool GoesOn() override { return goesOn(); }
};

std::string Marks() {
  std::string marks;
  for (int n = 1; n <= league.GameCount(); ++n) marks += league.Row(n)->Status.bytes[0];
  return marks;
}

TEST(SeasonSelection, ScopesFollowTheSeason) {
  const ScheduleLeague made;
  // Rows: October 30, December 5, January 5, January 10, January 20, and one without a date.
  const int dates[][2] = {{10, 30}, {12, 5}, {1, 5}, {1, 10}, {1, 20}, {0, 0}};
  for (const auto& date : dates) ScheduleLeague::Add(1, 2, date[0], date[1]);
  ScheduleLeague::Row(3).Team = {{3, 1}};
  ScheduleLeague::Row(4).Team = {{3, 4}};
  const struct {
    const char* why;
    Selection selection;
    const char* marks;
  } cases[] = {
      {"one day", {Scope::kDay, {1, 10}, 0}, "UUUNUU"},
      {"all of a month", {Scope::kMonth, {1, 10}, 0}, "UUNNNU"},
      {"through January takes the autumn", {Scope::kThrough, {1, 10}, 0}, "NNNNUU"},
      {"through October takes nothing of January", {Scope::kThrough, {10, 31}, 0}, "NUUUUU"},
      {"a row without a date is never played", {Scope::kAll, {}, 0}, "NNNNNU"},
      {"home or away", {Scope::kAll, {}, 1}, "NNNUNU"},
      {"of a team up to a day", {Scope::kThrough, {1, 5}, 1}, "NNNUUU"},
  };
  for (const auto& c : cases) {
    ChangeMarks(c.selection, 'U', 'N');
    EXPECT_EQ(Marks(), c.marks) << c.why;
    DropMarks();
    EXPECT_EQ(Marks(), "UUUUUU") << c.why;
  }
  MarkFirst({Scope::kAll, {}, 3}, 1);
  EXPECT_EQ(Marks(), "UUNUUU") << "the next of a team";
}

TEST(SeasonSelection, TheOrderOfPlay) {
  const struct {
    const char* why;
    std::vector<std::pair<int, const char*>> rows;  // November day, coaches
    std::vector<int> order;
  } cases[] = {
      {"by date", {{9, "CC"}, {2, "CC"}, {5, "CC"}}, {2, 3, 1}},
      {"a date by row", {{2, "CC"}, {2, "CC"}}, {1, 2}},
      {"a human game comes before what is later", {{9, "CC"}, {5, "HC"}}, {2, 1}},
      {"computers that play earlier come first", {{5, "CH"}, {2, "CC"}}, {2, 1}},
      {"and on the same date", {{5, "HC"}, {5, "CC"}}, {2, 1}},
      {"humans alone, the earliest", {{7, "HH"}, {6, "CH"}}, {2, 1}},
  };
  for (const auto& c : cases) {
    const ScheduleLeague made;
    for (const auto& [day, coaches] : c.rows) {
      ScheduleRecord& row = ScheduleLeague::Add(1, 2, 11, day);
      for (int side = 1; side <= 2; ++side) row.CoachKind[side] = std::string_view(coaches + side - 1, 1);
    }
    ChangeMarks({}, 'U', 'N');
    EXPECT_EQ(RowsInOrder('N'), c.order) << c.why;
  }
}

TEST(SeasonSelection, ASeasonOfTheCalendarYear) {
  const ScheduleLeague made;
  EXPECT_EQ(DateKey(GameDate{1, 10}), 510);
  league.HasAugustGames = league.HasSeptemberGames = true;
  EXPECT_EQ(DateKey(GameDate{1, 10}), 110);
  EXPECT_EQ(DateKey(GameDate{13, 1}), kNoDateKey);
}

TEST(SeasonRun, GamesPastAnUndecidedOneWait) {
  const struct {
    const char* why;
    int day;
    const char* status;
    bool stops;
  } cases[] = {
      {"later", 3, "U", false},  {"on that date", 2, "U", true}, {"before it, marked", 1, "N", true},
      {"played", 1, "P", false}, {"taken off", 1, "D", false},
  };
  for (const auto& c : cases) {
    ScheduleLeague made;
    ScheduleLeague::Add(1, 2, 11, 2).Status = "N";
    ScheduleLeague::Add(1, kFreeAgent, 11, c.day).Status = c.status;
    MarkedGames marked;
    marked.Gather();
    EXPECT_EQ(marked.UndecidedUpTo(ScheduleLeague::Row(1)), c.stops) << c.why;
    if (!c.stops) continue;
    NotedScreens screens;
    HCAUTOPLAY screen(screens);
    screen.GamesMarked = true;
    screen.PlayCommandChosen();
    EXPECT_TRUE(screen.StopRun) << c.why;
    EXPECT_EQ(Marks().find('N'), std::string::npos) << c.why;
    EXPECT_EQ(made.dialogs.told.size(), 1u) << c.why;
  }
}

TEST(SeasonRun, TheGridMarksAndTells) {
  ScheduleLeague made;
  ScheduleLeague::Add(1, 2);
  ScheduleLeague::Add(3, 4).Status = "P";
  NotedScreens screens;
  HCAUTOPLAY screen(screens);
  screen.PlayCommandChosen();
  screen.GridDoubleClick(1);
  EXPECT_EQ(Marks(), "NP");
  EXPECT_TRUE(screen.GamesMarked);
  screen.GridDoubleClick(1);
  screen.GridDoubleClick(2);
  screen.GridDoubleClick(3);
  EXPECT_EQ(Marks(), "UP");
  EXPECT_EQ(made.dialogs.told,
            (std::vector<std::string>{"No games are marked to play", "This game has been played"}));
  screen.CurrentDate = {1, 10};
  EXPECT_EQ(screen.SetSelectLists()[2], "Through January 10");
  EXPECT_EQ(screen.PlayDayCaption(0), "Play Jan 10");
}

/// A league on disk with a short season.
class SeasonOnDisk : public testing::Test {
 protected:
  SeasonOnDisk() {
    if (!UseShippedEras()) throw std::runtime_error("no eras");
    LeagueRequest request;
    request.Name = "Small";
    request.Divisions = 2, request.Teams = 6, request.Games = 10;
    std::string message;
    if (!MakeLeague(request, message)) throw std::runtime_error(message);
    program.LeagueFolder = LeaguesFolder() / "Small";
    setup = {};
    OpenAgain();
  }

  static void OpenAgain() {
    LoadRules();
    LoadAllTeams();
    LoadLeaguePlayers();
  }

  /// Opens league and screen as a new start of the program would, and plays so many games.
  void Play(int games, std::uint64_t seed = 3) {
    OpenAgain();
    HCAUTOPLAY screen(screens);
    screen.NoCompleteBox = true;
    screen.SeasonSeed = seed;
    ASSERT_TRUE(screen.Open());
    screen.ChooseFirst({}, games);
    screen.PlayCommandChosen();
    while (screen.AutoRunning) screen.Timer1();
    ASSERT_FALSE(screen.GameLost);
  }
  static std::string Bytes() {
    std::string all;
    for (const char* name : {"HCTEAMS", "HCPLAYER", "HCgameplan", "Sked.skd"}) {
      all += ReadWholeFile(LeagueFile(name));
    }
    return all;
  }
  static int Played() {
    const std::string marks = Marks();
    return static_cast<int>(std::count(marks.begin(), marks.end(), 'P'));
  }

  TemporaryHome home;
  platform::ScriptedDialogs dialogs;
  NotedScreens screens;
};

TEST_F(SeasonOnDisk, ASeasonStoppedAndTakenUpAgainIsTheSameSeason) {
  const auto folder = program.LeagueFolder, other = LeaguesFolder() / "Other";
  std::filesystem::copy(folder, other);
  Play(100);
  EXPECT_EQ(Played(), 30);
  const std::string straight = Bytes();
  program.LeagueFolder = other;
  for (const int games : {7, 1, 100}) Play(games);
  EXPECT_TRUE(Bytes() == straight) << "no game lost, none twice, and each from its own seed";
  int results = 0;
  for (const int team : {1, 2, 3}) results += league.team[team].Wins + league.team[team].Losses;
  EXPECT_EQ(results, 30) << "ten games each";
  Play(100);
  EXPECT_TRUE(Bytes() == straight) << "a played row is never played again";
}

TEST_F(SeasonOnDisk, ShownGamesAndHumanGamesEndTheRun) {
  HCAUTOPLAY screen(screens);
  ASSERT_TRUE(screen.Open());
  setup.ComputerCheck = 1;
  screen.ChooseFirst({}, 10);
  screen.PlayCommandChosen();
  EXPECT_EQ(screens.opened, "viewer ");
  EXPECT_EQ(Played(), 1);
  EXPECT_FALSE(AnyMarked()) << "the other nine are unplayed again";
  setup.ComputerCheck = 0;

  const int next = RowsInOrder('U').front();
  screens.opened.clear();
  screen.GamePlayCommand(next);
  EXPECT_EQ(screens.opened, "setup game ");
  EXPECT_EQ(league.Row(next)->Status, "U") << "left unfinished";
  EXPECT_EQ(Played(), 1);
  screens.choose = [](HCGAMEsetup& s) { s.ComputerOption.Fill(true); };
  screen.GameAutoCommand(next);
  EXPECT_EQ(league.Row(next)->Status, "P") << "the preference screen left it to the computers";
}

TEST_F(SeasonOnDisk, AGameBrokenOffIsNotCounted) {
  league.rules.PauseTeamList.Fill(255);
  HCAUTOPLAY screen(screens);
  ASSERT_TRUE(screen.Open());
  const std::string before = Bytes();
  screen.OpenLiveTab(true);
  screen.Live->NextPlayRequested = true;
  int pauses = 0;
  screens.atPause = [&] { ++pauses < 3 ? screen.NextPlayCommand() : screen.ExitCommand(); };
  screen.ChooseFirst({}, 5);
  league.rules.KeyPlayPauseTimeList = 0;
  league.rules.PlayerReachesList[0] = 2;
  screen.PlayCommandChosen();
  EXPECT_EQ(pauses, 3);
  EXPECT_EQ(Played(), 0);
  EXPECT_FALSE(AnyMarked() || screen.AutoRunning);
  EXPECT_TRUE(Bytes() == before);
}

TEST_F(SeasonOnDisk, ReplaysDoNotHangOnWhoPlaysThem) {
  std::string csv[2];
  Play(5);
  for (const int jobs : {1, 2}) {
    OpenAgain();
    HCAUTOPLAY screen(screens);
    screen.SeasonSeed = 9;
    ASSERT_TRUE(screen.Open());
    dialogs.answers = {true};
    ASSERT_TRUE(screen.BulkRunCommand(3, jobs));
    EXPECT_EQ(screen.BulkCompletedLabel, "Bulk Completed: 3");
    csv[jobs - 1] = ReadWholeFile(LeagueFile("BulkReplay.csv"));
  }
  EXPECT_EQ(csv[0], csv[1]);
  const auto lines = Lines(csv[0]);
  ASSERT_EQ(lines.size(), 7u);
  double wins = 0;
  for (std::size_t k = 1; k < lines.size(); ++k) {
    const auto cells = CsvFields(lines[k]);
    ASSERT_EQ(cells.size(), CsvFields(lines[0]).size());
    EXPECT_EQ(cells[1], "3");
    wins += std::stod(cells[2]);
  }
  EXPECT_NEAR(wins, 30, 0.31) << "each of thirty games has a winner";
  EXPECT_EQ(Played(), 30) << "the league holds the last replay";
}

TEST_F(SeasonOnDisk, ReplaysThatAreStoppedLeaveTheLeague) {
  Play(5);
  const std::string before = Bytes();
  for (const auto& [replays, stop] : {std::pair(4, 40), std::pair(1, 20)}) {
    HCAUTOPLAY screen(screens);
    ASSERT_TRUE(screen.Open());
    int asked = 0;
    screens.goesOn = [&asked, most = stop] { return ++asked < most; };
    dialogs.answers = {true};
    EXPECT_FALSE(screen.BulkRunCommand(replays));
    EXPECT_TRUE(Bytes() == before) << replays;
    EXPECT_EQ(CsvFields(Lines(ReadWholeFile(LeagueFile("BulkReplay.csv")))[1])[1], "1") << "one was done";
  }
}

TEST(NowPlaying, PausesWhereTheSettingsSaySo) {
  const auto play = [](void (*change)(PlayMoment&)) {
    game = {};
    league.rules = {};
    league.rules.PeriodList = 4;
    league.rules.PauseTeamList[7] = 255;
    game.GameTeam = {{7, 8}};
    game.Period = 4, game.ShotClock = 240;
    StatLine& line = PlayerAt(1, 3).Stats[3];
    line.FGM = 8, line.F3M = 5;  // 21 points, the last three just now
    PlayMoment moment;
    moment.Side = 1, moment.Slot = 3, moment.PlayResult = "G3", moment.Period = 4, moment.Clock = 2000;
    NowPlaying live;
    change(moment);
    return live.CheckNowPlayingPause(moment);
  };
  const struct {
    const char* why;
    void (*change)(PlayMoment&);
    bool pauses;
  } cases[] = {
      {"nothing is set", [](PlayMoment&) {}, false},
      {"points crossed from 18 to 21", [](PlayMoment&) { league.rules.PlayerReachesList[0] = 20; }, true},
      {"they were past it before", [](PlayMoment&) { league.rules.PlayerReachesList[0] = 18; }, false},
      {"a double-double",
       [](PlayMoment&) {
         league.rules.DoubleDoubleAchievedCheck = 1;
         game.play.Rebounder = 3, game.play.ReboundSide = 1, PlayerAt(1, 3).Stats[3].Reb = 10;
       },
       true},
      {"a triple-double is none",
       [](PlayMoment&) {
         league.rules.DoubleDoubleAchievedCheck = 1;
         game.play.Rebounder = 3, game.play.ReboundSide = 1, PlayerAt(1, 3).Stats[3].Reb = 10;
         PlayerAt(1, 3).Stats[3].Ast = 12;
       },
       false},
      {"a steal",
       [](PlayMoment& m) {
         league.rules.PlayerReachesList[4] = 2;
         m.PlayResult = "ST", game.play.Stealer = 5, PlayerAt(2, 5).Stats[3].St = 2;
       },
       true},
      {"an injury",
       [](PlayMoment&) { league.rules.InjuryCheck = 1, game.incident.Kind = IncidentKind::kInjury; }, true},
      {"last minutes, close",
       [](PlayMoment&) {
         league.rules.Pause4thQuarterTimeList = 3, league.rules.Pause4thQuarterScoreList = 0;
       },
       true},
      {"four minutes left", [](PlayMoment& m) { league.rules.Pause4thQuarterTimeList = 3, m.Clock = 2400; },
       false},
      {"not in a blowout",
       [](PlayMoment&) {
         league.rules.PlayerReachesList[0] = 20, league.rules.BlowoutSkipPauseCheck = 1, game.Blowout = 1;
       },
       false},
      {"a close finish, no more shot clock",
       [](PlayMoment& m) { league.rules.endOfGameCheck = 1, game.side[1].Score = 1, m.Clock = 200; }, true},
      {"tied", [](PlayMoment& m) { league.rules.endOfGameCheck = 1, m.Clock = 200; }, false},
      {"end of a period",
       [](PlayMoment& m) { league.rules.PauseEndOfQuarterCheck = 1, m.PeriodEnded = true, m.Clock = 0; },
       true},
      {"end of an overtime",
       [](PlayMoment& m) {
         league.rules.PauseEndOfQuarterCheck = 1, m.PeriodEnded = true, m.Clock = 0, m.Period = 5;
       },
       false},
      {"neither team is looked at",
       [](PlayMoment& m) {
         league.rules.PauseEndOfQuarterCheck = league.rules.endOfGameCheck = 1, m.PeriodEnded = true;
         game.GameTeam = {{8, 9}};
       },
       false},
  };
  for (const auto& c : cases) EXPECT_EQ(play(c.change), c.pauses) << c.why;
  game = {};
  league = {};
}

TEST(SeasonDisplay, StandingsAndLines) {
  const ScheduleLeague made;
  const int first = TeamsOfDivision(1)[1], second = TeamsOfDivision(1)[2];
  league.team[first].Wins = 5, league.team[first].Losses = 5;
  league.team[second].Wins = 7, league.team[second].Losses = 3;
  league.team[first].PowerRating = 2, league.team[second].PowerRating = 4;
  const auto lines = DisplayStandings({1});
  EXPECT_EQ(lines[0].Team, second);
  EXPECT_EQ(lines[1].GB, "2.0");
  ScheduleRecord& row = ScheduleLeague::Add(first, second);
  EXPECT_EQ(EnterPointSPread(row), ScheduleTeamName(second) + " by 5");
  row.NeutralSite = 1;
  EXPECT_EQ(EnterPointSPread(row), ScheduleTeamName(second) + " by 2");
}

}  // namespace
}  // namespace tipline
