#include "aftermath/leader_boards.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "aftermath/record_book.h"
#include "aftermath/record_pages.h"
#include "base/random.h"
#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "platform/dialogs.h"
#include "reports/leaders_screen.h"
#include "support/men.h"
#include "support/two_teams.h"

namespace tipline {
namespace {

TEST(BoardValue, TakesEnoughGamesOrEnoughShots) {
  const struct {
    const char *why, *type;
    int board;
    LineOf season;
    int teamGames, want;
  } cases[] = {
      {"seven games of ten", "P", 1, {.G = 7, .FGM = 50, .F3M = 3, .FTM = 10}, 10, 1614},
      {"six", "P", 1, {.G = 6, .FGM = 50}, 10, kNotQualified},
      {"a half goes to the even one", "P", 2, {.G = 8, .Reb = 1}, 8, 12},
      {"no game at all", "P", 3, {}, 0, kNotQualified},
      {"blocks", "P", 5, {.G = 10, .Bk = 31}, 10, 310},
      {"five shots a game", "P", 6, {.FGA = 50, .FGM = 25}, 10, 500},
      {"49 shots, 36 made", "P", 6, {.FGA = 49, .FGM = 36}, 10, kNotQualified},
      {"49 shots, 37 made", "P", 6, {.FGA = 49, .FGM = 37}, 10, 755},
      {"half as many will do in college", "C", 6, {.FGA = 30, .FGM = 19}, 10, 633},
      {"but not 18", "C", 6, {.FGA = 30, .FGM = 18}, 10, kNotQualified},
      {"college attempts are as many", "C", 6, {.FGA = 49, .FGM = 10}, 10, kNotQualified},
      {"free throws: 1.52 made", "P", 7, {.FTA = 20, .FTM = 16}, 10, 800},
      {"15 are not enough", "P", 7, {.FTA = 20, .FTM = 15}, 10, kNotQualified},
      {"nor are 7 of a college man", "C", 7, {.FTA = 9, .FTM = 7}, 10, kNotQualified},
      {"8 are", "C", 7, {.FTA = 9, .FTM = 8}, 10, 889},
      {"threes: one tried a game", "P", 8, {.F3A = 10, .F3M = 1}, 10, 100},
      {"in college half of it made", "C", 8, {.F3A = 9, .F3M = 5}, 10, 556},
      {"nobody shoots a percentage of nothing", "P", 8, {}, 0, kNotQualified},
      {"a damaged line is held", "P", 1, {.G = 1, .FGM = 30000}, 1, 32767},
  };
  for (const auto& c : cases) {
    PlayerRecord man;
    man.PlayerType = c.type;
    man.Stats[2] = MakeMan({}, c.season).Stats[1];
    EXPECT_EQ(BoardValue(c.board, man, c.teamGames), c.want) << c.why;
  }
}

std::string Told(const LeaderTable& table, int board) {
  std::string text;
  for (int place = 1; place <= kBoardPlaces; ++place) {
    text += table.LeaderName[place][board].Str() + std::to_string(table.LeaderValue[place][board]) + " ";
  }
  return text;
}

BoardEntry Entry(std::string_view name, std::string_view team, int value, int recNo) {
  return {name, team, value, recNo};
}

TEST(EnterBoard, WhoeverIsNotOnItMustBeatTheTenth) {
  const struct {
    const char* why;
    BoardEntry entry;
    bool changed;
    const char* left;
  } cases[] = {
      {"level with the tenth", Entry("Z", "BOS", 10, 9), false, "A100 B90 C80 D70 E60 F50 G40 H30 I20 J10 "},
      {"above him", Entry("Z", "BOS", 11, 9), true, "A100 B90 C80 D70 E60 F50 G40 H30 I20 Z11 "},
      {"above many", Entry("Z", "BOS", 75, 9), true, "A100 B90 C80 Z75 D70 E60 F50 G40 H30 I20 "},
      {"who is on it may fall", Entry("A", "BOS", 45, 1), true, "B90 C80 D70 E60 F50 A45 G40 H30 I20 J10 "},
      {"to the end, when he plays too little", Entry("A", "BOS", -99, 1), true,
       "B90 C80 D70 E60 F50 G40 H30 I20 J10 A-99 "},
      {"his namesake elsewhere is another man", Entry("A", "NYK", 5, 9), false,
       "A100 B90 C80 D70 E60 F50 G40 H30 I20 J10 "},
      {"nothing new", Entry("A", "BOS", 100, 1), false, "A100 B90 C80 D70 E60 F50 G40 H30 I20 J10 "},
  };
  for (const auto& c : cases) {
    LeaderTable table;
    for (int k = 0; k < 10; ++k) {
      EnterBoard(table, 4, Entry(std::string(1, static_cast<char>('A' + k)), "BOS", 100 - 10 * k, k + 1));
    }
    EXPECT_EQ(EnterBoard(table, 4, c.entry), c.changed) << c.why;
    EXPECT_EQ(Told(table, 4), c.left) << c.why;
  }
}

TEST(InsertTop40, ATieGoesAheadAndTheFortiethFallsOut) {
  for (const int category : {1, 12, 13}) {
    const auto insert = [category](Top40Table& t, f32 value, const char* name) {
      return InsertTop40(t, category, {value, std::string_view(name), std::string_view("BOS vs NYK 12/96")});
    };
    const struct {
      const char* why;
      f32 value;
      int place;  ///< 0 not entered
    } cases[] = {{"the best", 99, 1},
                 {"level with the third", 38, 3},
                 {"level with the last", 1, 40},
                 {"below it", 0.5, 0},
                 {"between", 37.5f, 4}};
    for (const auto& c : cases) {
      Top40Table t;
      EXPECT_TRUE(insert(t, 0, "Nothing")) << "level with an empty place";
      for (int k = 40; k >= 1; --k) ASSERT_TRUE(insert(t, static_cast<f32>(k), "Old"));
      if (category != 13) t.TopExtra[3][category] = "third";
      EXPECT_EQ(insert(t, c.value, "New"), c.place > 0) << c.why;
      for (int place = 1; place <= kTopPlaces; ++place) {
        EXPECT_EQ(TopRowOf(t, place, category).Name == "New", place == c.place) << c.why << place;
        if (place > 1) {
          EXPECT_GE(TopRowOf(t, place - 1, category).Value, TopRowOf(t, place, category).Value);
        }
      }
      const int third = c.place >= 1 && c.place <= 3 ? 4 : 3;
      if (category != 13) {
        EXPECT_EQ(t.TopExtra[third][category].View(), "third") << c.why;
      }
    }
  }
}

TEST(TopCategory, GameScoreWeighsEveryCounter) {
  const LineOf line{.FGA = 20,
                    .FGM = 10,
                    .F3M = 2,
                    .FTA = 8,
                    .FTM = 6,
                    .Reb = 9,
                    .Off = 4,
                    .Ast = 5,
                    .St = 3,
                    .Bk = 2,
                    .To = 4,
                    .Pf = 5};
  // 28 + 4 - 14 - 0.8 + 2.8 + 1.5 + 3 + 3.5 + 1.4 - 2 - 4
  EXPECT_NEAR(TopCategoryValue(6, MakeMan({}, line).Stats[1]), 23.4, 1e-9);
}

/// All books of a game whose files hold noise, and the screens over them.
TEST(DamagedBooks, AreReadUpdatedAndShown) {
  const TemporaryLeague home;
  const platform::ScriptedDialogs dialogs;
  const auto folder = program.LeagueFolder;
  TwoTeams();
  program.LeagueFolder = folder;
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kMen; ++slot) {
      ManAt(side, slot).PlayerGameTime = 9000;
      PlayerAt(side, slot).Stats[3].FGM = static_cast<i16>(slot);
      PlayerAt(side, slot).Stats[2].FGM = static_cast<i16>(slot);
    }
  }
  random.Seed(5);
  for (int run = 0; run < 60; ++run) {
    for (const char* name : {"HCRECORDS", "HcLeaders", "HcTop40"}) {
      std::string noise(static_cast<std::size_t>(Rnd(name[2] == 'R' ? 250000 : 31000)), '\0');
      for (char& c : noise) c = static_cast<char>(run % 3 == 0 ? 0xFF : Rnd(256) - 1);
      noise[0] = kLeaderMark;
      ASSERT_TRUE(WriteWholeFile(LeagueFile(name), noise));
    }
    ASSERT_TRUE(LoadRecordBook());
    UpdatePlayerRecords();
    UpdateTeamRecords();
    ASSERT_TRUE(SaveRecordBook() && UpdateLeaders() && UpdateTop40());
    HcLeaders2023 screen;
    screen.TopList = 40;
    ASSERT_TRUE(screen.Open());
    std::vector<LeaderList> lists;
    for (int board = 1; board <= kBoards; ++board) lists.push_back(screen.Board(board));
    for (int category = 1; category <= kTopCategories; ++category) lists.push_back(screen.TopGames(category));
    EXPECT_FALSE(PageOf(lists).empty());
    EXPECT_FALSE((RecordBookPage(false) + RecordBookPage(true)).empty());
  }
  EXPECT_TRUE(dialogs.told.empty());
}

}  // namespace
}  // namespace tipline
