#include "frontoffice/schedule_editor.h"

#include <gtest/gtest.h>

#include "base/random.h"
#include "base/record_file.h"
#include "frontoffice/schedule_csv.h"
#include "frontoffice/schedule_files.h"
#include "league/rules.h"
#include "support/schedule_league.h"

namespace tipline {
namespace {

// Divisions 1 (teams 1 to 4) and 2 (teams 13 to 16) are the two conferences.
class ScheduleEditor : public testing::Test, public ScheduleLeague {
 protected:
  /// A pool for every team of a division, and a date of every type: day n of December for type n.
  static TournamentPools Cup() {
    TournamentPools pools = Pools();
    for (int team = 1; team <= 4; ++team) pools.PoolOfTeam[team] = static_cast<u8>((team + 1) / 2);
    for (int team = 13; team <= 16; ++team) pools.PoolOfTeam[team] = 4;
    for (int n = 1; n <= 7; ++n) pools.DateType[n][12] = std::string_view(&kGameTypes[n - 1].letter, 1);
    pools.DateType[20][12] = "P";
    return pools;
  }
  std::string LastTold() const { return dialogs.told.empty() ? "" : dialogs.told.back(); }

  HCSCHEDULE screen;
};

TEST_F(ScheduleEditor, AGameMustMakeSense) {
  SetPools(Cup());
  const std::string twoTeams = "You must select two teams for a game!";
  const std::string noDate = "You must specify a Month and Day for this game!";
  const std::string conference = " games must include teams in the same conference.";
  const std::string busy = " is already schedule for at least one tournament game this day!";
  const struct {
    const char* why;
    ScheduleChoice choice;
    std::string message;  ///< empty: the game is added
  } cases[] = {
      {"no such team", {1, 5, 11, 1}, twoTeams},
      {"far off", {1, 31000, 11, 1}, twoTeams},
      {"itself", {1, 1, 0, 0}, "You must select two different teams for a game!"},
      {"no date", {1, 2, 0, 0}, noDate},
      {"no day", {1, 2, 11, 31}, noDate},
      {"a leap day", {1, 2, 2, 29}, ""},
      {"two pools", {1, 3, 12, 2}, "Pool play games must include teams in the same pool."},
      {"one pool", {1, 2, 12, 2}, ""},
      {"anybody of two conferences", {3, 13, 12, 3}, ""},
      {"quarter final of two", {1, 13, 12, 4}, "Quarter Final" + conference},
      {"losers of two", {1, 13, 12, 5}, "Quarter Final(Loser)" + conference},
      {"semi final of one", {1, 3, 12, 6}, ""},
      {"final", {1, 3, 12, 7}, "Championship games must include teams from the opposite conferences."},
      {"not decided yet", {999, 3, 12, 4}, ""},
      {"twice in the cup", {3, 4, 12, 4}, "Team 3" + busy},
      {"home side twice", {16, 13, 12, 3}, "Team 13" + busy},
      {"met before", {2, 1, 12, 20}, "Selected teams are already scheduled for a Pool Play game!"},
  };
  for (const auto& c : cases) {
    dialogs.told.clear();
    const int games = league.GameCount();
    EXPECT_EQ(screen.AddGameCommand(c.choice), c.message.empty()) << c.why;
    EXPECT_EQ(LastTold(), c.message) << c.why;
    EXPECT_EQ(league.GameCount(), games + c.message.empty()) << c.why;
  }
  EXPECT_TRUE(dialogs.asked.empty());
  TournamentPools pools = Cup();
  pools.PoolOfTeam[14] = 0;
  SetPools(pools);
  EXPECT_FALSE(screen.AddGameCommand({1, 2, 12, 20}));
  EXPECT_EQ(
      LastTold(),
      "All teams in this league must be assigned to a pool before scheduling in-season tournament games.");
}

TEST_F(ScheduleEditor, ASecondGameOfTheDayIsTheUsersToAllow) {
  ASSERT_TRUE(screen.AddGameCommand({1, 2, 11, 5}));
  dialogs.answers = {false, true, false, true, true};
  EXPECT_FALSE(screen.AddGameCommand({3, 1, 11, 5}));
  EXPECT_EQ(
      dialogs.asked.back(),
      "Team 1 is already schedule for at least one game this day!\nAllow more than one game this day for "
      "Team 1?");
  EXPECT_FALSE(screen.AddGameCommand({1, 2, 11, 5})) << "each team is asked for";
  EXPECT_TRUE(screen.AddGameCommand({1, 2, 11, 5}));
  EXPECT_TRUE(dialogs.unexpected.empty());
  EXPECT_EQ(league.GameCount(), 2);
}

TEST_F(ScheduleEditor, GamesAreMovedDeletedAndToggled) {
  ASSERT_TRUE(screen.AddGameCommand({1, 2, 11, 5}));
  HcScheduleEditGame editor;
  ASSERT_TRUE(editor.Open(1));
  EXPECT_EQ(editor.DayList(), 30);
  EXPECT_TRUE(editor.SaveCommand(screen)) << "a game does not stand in its own way";
  editor.choice.home = 1;
  EXPECT_FALSE(editor.SaveCommand(screen));
  EXPECT_EQ(LastTold(), "Visitor and Home must be different teams!");
  editor.choice = {3, 1, 2, 30};
  EXPECT_FALSE(editor.SaveCommand(screen));
  EXPECT_EQ(LastTold(), "Invalid Day!");
  editor.choice.day = 28;
  EXPECT_TRUE(editor.SaveCommand(screen));
  EXPECT_EQ(screen.PRINTSCHEDULE(), (std::vector<std::string>{"February 28", "  Team 3 @ Team 1"}));
  EXPECT_TRUE(screen.ToggleNeutral(1) && screen.ToggleCoach(1, 2));
  EXPECT_EQ(Row(1).CoachKind[2], "H");
  EXPECT_EQ(screen.Grid(2, 28)[0].location, "neutral");
  dialogs.answers = {true};
  EXPECT_TRUE(screen.DeleteGame(1));
  EXPECT_EQ(dialogs.asked.back(), "Delete Game Team 3 @ Team 1?");
  for (const int row : {-1, 0, 1, 2, 99999}) {
    EXPECT_FALSE(screen.DeleteGame(row) || screen.ToggleNeutral(row) || editor.Open(row)) << row;
  }
}

TEST_F(ScheduleEditor, APlayedSeasonIsWarnedOfOnce) {
  ScheduleRecord& played = Add(1, 2, 11, 5);
  played.Status = "P";
  played.Score = {{101, 99}};
  played.Overtime = 1;
  Add(3, 4, 11, 6).Status = "N";
  ASSERT_TRUE(SaveSchedule());
  EXPECT_FALSE(screen.Open()) << "the answer was no";
  dialogs.answers = {true};
  ASSERT_TRUE(screen.Open());
  EXPECT_EQ(screen.Grid(11, 5)[0].status, "101-99 (ot)");
  EXPECT_FALSE(screen.DeleteGame(1));
  EXPECT_EQ(LastTold(), "This game has been played");
  EXPECT_TRUE(screen.ToggleNeutral(2));
  screen.SETALLHUMAN();
  EXPECT_EQ(dialogs.told.size(), 2u) << "one warning for both";
  EXPECT_EQ(Row(1).CoachKind[1], "H");
}

TEST_F(ScheduleEditor, SavesInOrderOfDatesAndErasesForGood) {
  ASSERT_TRUE(screen.Open());
  ASSERT_TRUE(screen.AddGameCommand({1, 2, 1, 5}) && screen.AddGameCommand({3, 4, 11, 5}));
  EXPECT_FALSE(screen.CancelCommand());
  league.ScheduleYear = 1985;
  ASSERT_TRUE(screen.SaveCommand());
  EXPECT_TRUE(screen.Closed);
  ASSERT_TRUE(screen.Open());
  EXPECT_EQ(league.ScheduleYear, 1985) << "an added game is of the schedule's season";
  EXPECT_EQ(Row(1).Team[1], 3);
  const auto summary = screen.Summary();
  ASSERT_EQ(summary.size(), 8u);
  EXPECT_EQ(summary[0].visitor + summary[0].divisionVisitor, 2);
  EXPECT_EQ(summary[1].home, 1);
  dialogs.answers = {true, false, true, true};
  EXPECT_FALSE(screen.ERASESCHEDULE());
  EXPECT_EQ(league.GameCount(), 2);
  EXPECT_TRUE(screen.ERASESCHEDULE());
  ASSERT_TRUE(LoadSchedule());
  EXPECT_EQ(league.GameCount(), 0) << "the spare copy brings nothing back";
  folder.Block(ScheduleFile());
  EXPECT_FALSE(screen.SaveCommand() || screen.Open());
}

TEST_F(ScheduleEditor, OpensTheGenerator) {
  ASSERT_TRUE(screen.Open() && screen.AddGameCommand({1, 2, 1, 5}));
  HCCOMPUTERSCHEDULE generator{"10", "2", "1"};
  EXPECT_FALSE(screen.OpenComputerSchedule(generator));
  EXPECT_EQ(league.GameCount(), 1) << "saved before, loaded afterwards";
  dialogs.answers = {true};
  EXPECT_TRUE(screen.OpenComputerSchedule(generator));
  EXPECT_EQ(league.GameCount(), 40);
}

TEST_F(ScheduleEditor, CsvGoesOutAndComesBack) {
  league.team[2].City = "Sao, \"P\"";
  Add(1, 2, 9, 30), Add(999, 1), Add(2, 13, 2, 29).Status = "P", Add(3, 4).Status = "D", Add(3, 4, 0, 1);
  const auto file = folder.Home() / "out.csv";
  ASSERT_TRUE(ExportCsvSchedule(file));
  std::string text = ReadWholeFile(file);
  const std::string undecided = "November,1,TBD,Team 1\n";
  EXPECT_EQ(text, "September,30,Team 1,\"Sao, \"\"P\"\"\"\n" + undecided +
                      "February,29,\"Sao, \"\"P\"\"\",Team 13\n");
  text.replace(text.find(undecided), undecided.size(), "");
  ASSERT_TRUE(WriteWholeFile(file, text));
  dialogs.answers = {true};
  ASSERT_TRUE(HcImportCSVSchedule(file));
  EXPECT_EQ(LastTold(), "Imported 2 games!");
  EXPECT_EQ(Row(2).Team, (Table<i16, 1, 2>{{2, 13}}));
  EXPECT_EQ(Row(2).Status, "U");
  EXPECT_EQ(Row(2).Year, 1985);
  EXPECT_FALSE(ExportCsvSchedule(folder.Home() / "no" / "such" / "folder"));
}

TEST_F(ScheduleEditor, CsvNamesWhatItRefuses) {
  Add(1, 2);
  ASSERT_TRUE(SaveSchedule());
  const struct {
    const char* why;
    std::string text, message;
  } cases[] = {
      {"a number counts from September", "5,2,Team 1,Team 2", "Imported 1 games!"},
      {"short and long names", "Octobre,2,Team 1,team 2\r\n JAN ,31, Team 1 ,TEAM 2\n", "Imported 2 games!"},
      {"a leading mark", "\xEF\xBB\xBFOctober,2,Team 1,Team 2\n\n", "Imported 1 games!"},
      {"all on one line", "10,2,Team 1,Team 2,11,3,Team 2,Team 1", "Imported 2 games!"},
      {"April has 31 days here", "April,31,Team 1,Team 2", "Imported 1 games!"},
      {"a field too few", "10,2,Team 1", "This file is not in the proper format!"},
      {"no month 13", "13,2,Team 1,Team 2", "Invalid month: 13 Game:1"},
      {"two letters", "May,2,Team 1,Team 2\nSe,2,Team 1,Team 2", "Invalid month: Se Game:2"},
      {"day 32", "5,32,Team 1,Team 2", "Invalid Day For January : 32"},
      {"February 30", "feb,30,Team 1,Team 2", "Invalid Day For February : 30"},
      {"no day", "feb,x1,Team 1,Team 2", "Invalid Day For February : x1"},
      {"a team that is out", "feb,1,Team 1,Team 5", "Invalid Team: Team 5"},
      {"nameless", "feb,1,,Team 1", "Invalid Team: "},
      {"itself", "feb,1,Team 1,Team 1", "Visitor and Home must be different teams!"},
  };
  const auto file = folder.Home() / "in.csv";
  for (const auto& c : cases) {
    const std::string before = ReadWholeFile(ScheduleFile());
    ASSERT_TRUE(WriteWholeFile(file, c.text));
    dialogs.answers = {true};
    const bool imported = HcImportCSVSchedule(file);
    EXPECT_EQ(LastTold(), c.message) << c.why;
    EXPECT_EQ(imported, c.message.starts_with("Imported")) << c.why;
    EXPECT_EQ(ReadWholeFile(ScheduleFile()) == before, !imported) << c.why;
  }
  dialogs.answers = {true};
  EXPECT_FALSE(HcImportCSVSchedule(folder.Home() / "none.csv"));
  std::string many;
  for (int n = 0; n <= 10000; ++n) many += "1,1,Team 1,Team 2\n";
  ASSERT_TRUE(WriteWholeFile(file, many));
  dialogs.answers = {true};
  EXPECT_FALSE(HcImportCSVSchedule(file));
  EXPECT_EQ(LastTold(), "At most 10000 games can be imported!");
}

TEST_F(ScheduleEditor, ALeagueKeepsSeveralSchedules) {
  ASSERT_TRUE(WriteWholeFile(RulesFile(), std::string(20000, '\0')));
  Add(1, 2);
  ASSERT_TRUE(SaveSchedule());
  for (const char* name : {"", " ", ".x", "a/b", "sked", "123456789012345678901234567"}) {
    EXPECT_FALSE(HCNEWSCHEDULE{name}.CreateCommand()) << name;
    EXPECT_FALSE(HCNEWSCHEDULE{name}.RenameCommand()) << name;
  }
  ASSERT_TRUE(HCNEWSCHEDULE{" Short season "}.CreateCommand());
  EXPECT_EQ(league.GameCount(), 0);
  EXPECT_EQ(ScheduleFileList(), (std::vector<std::string>{"Short season.skd", "Sked.skd"}));
  ASSERT_TRUE(HCNEWSCHEDULE{"Cup"}.RenameCommand());
  EXPECT_FALSE(ChooseSchedule("Short season.skd"));
  ASSERT_TRUE(ChooseSchedule("Sked.skd"));
  EXPECT_EQ(league.GameCount(), 1);
  EXPECT_EQ(ScheduleFileList(), (std::vector<std::string>{"Cup.skd", "Sked.skd"}));
  ASSERT_TRUE(HCNEWSCHEDULE{"Old"}.RenameCommand() && HCNEWSCHEDULE{"Sked"}.CreateCommand());
  EXPECT_EQ(league.GameCount(), 0) << "the spare copy is of another schedule";
  std::filesystem::remove(LeagueFile("Sked.skd"));
  ASSERT_TRUE(ChooseSchedule("Old.skd") && HCNEWSCHEDULE{"Sked"}.RenameCommand());
  EXPECT_EQ(league.GameCount(), 1);
  folder.Block(RulesFile());
  EXPECT_FALSE(ChooseSchedule("Cup.skd") || HCNEWSCHEDULE{"New"}.CreateCommand() ||
               HCNEWSCHEDULE{"New"}.RenameCommand());
  EXPECT_EQ(ScheduleFile(), LeagueFile("Sked.skd"));
  EXPECT_EQ(ScheduleFileList().size(), 2u);
}

}  // namespace
}  // namespace tipline
