#include "aftermath/record_book.h"

#include <gtest/gtest.h>

#include "aftermath/record_names.h"
#include "aftermath/record_pages.h"
#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "platform/dialogs.h"
#include "support/small_disk.h"
#include "support/two_teams.h"

namespace tipline {
namespace {

constexpr int kPoints = 15, kSteals = 11;

RecordEntry Entry(int value, std::string_view holder, std::string_view team = "BOS") {
  return {value, holder, team, std::string_view("NYK"), std::string_view("12/1/1996")};
}

/// Places of a row as "30 Ray BOS, 28 ...".
std::string Told(const RecordRow& row) {
  std::string text;
  for (int place = 1; place <= kRecordPlaces && row.Value[place] != 0; ++place) {
    text += (place > 1 ? ", " : "") + std::to_string(row.Value[place]) + " " + row.Holder[place].Str() +
            (row.HolderTeam[place].Empty() ? "" : " " + row.HolderTeam[place].Str());
  }
  return text;
}

TEST(InsertRecord, TheOlderStaysAheadAndASeasonHasOneRowAMan) {
  const struct {
    const char* why;
    RecordBlock block;
    RecordEntry entry;
    bool entered;
    const char* left;
  } cases[] = {
      {"a man may have two games", RecordBlock::kGame, Entry(41, "Ash"), true,
       "50 Ash BOS, 41 Ash BOS, 40 Bay BOS, 30 Cole BOS, 20 Dunn BOS"},
      {"level with the fifth is not above it", RecordBlock::kGame, Entry(10, "Fox"), false,
       "50 Ash BOS, 40 Bay BOS, 30 Cole BOS, 20 Dunn BOS, 10 East BOS"},
      {"level with the third stands behind him", RecordBlock::kGame, Entry(30, "Fox"), true,
       "50 Ash BOS, 40 Bay BOS, 30 Cole BOS, 30 Fox BOS, 20 Dunn BOS"},
      {"the best of all", RecordBlock::kGame, Entry(40000, "Fox"), true,
       "32767 Fox BOS, 50 Ash BOS, 40 Bay BOS, 30 Cole BOS, 20 Dunn BOS"},
      {"his total grows in its place", RecordBlock::kSeason, Entry(22, "Dunn"), true,
       "50 Ash BOS, 40 Bay BOS, 30 Cole BOS, 22 Dunn BOS, 10 East BOS"},
      {"and passes others", RecordBlock::kSeason, Entry(40, "Dunn"), true,
       "50 Ash BOS, 40 Bay BOS, 40 Dunn BOS, 30 Cole BOS, 10 East BOS"},
      {"a poorer season leaves his better one", RecordBlock::kSeason, Entry(45, "Ash"), false,
       "50 Ash BOS, 40 Bay BOS, 30 Cole BOS, 20 Dunn BOS, 10 East BOS"},
      {"the same name with another team is another man", RecordBlock::kSeason, Entry(45, "Ash", "NYK"), true,
       "50 Ash BOS, 45 Ash NYK, 40 Bay BOS, 30 Cole BOS, 20 Dunn BOS"},
  };
  for (const auto& c : cases) {
    RecordRow row;
    int value = 60;
    for (const char* name : {"Ash", "Bay", "Cole", "Dunn", "East"}) {
      ASSERT_TRUE(InsertRecord(row, RecordBlock::kGame, Entry(value -= 10, name)));
    }
    EXPECT_EQ(InsertRecord(row, c.block, c.entry), c.entered) << c.why;
    EXPECT_EQ(Told(row), c.left) << c.why;
  }
}

/// A game in December 1996: the home side won 101 to 97; on it Ray had a night.
void PlayedGame() {
  TwoTeams();
  game.GameCalendarMonth = 12, game.GameDay = 5, game.GameYear = 1996;
  const char* const cities[] = {"Boston", "New York"};
  const char* const abbrevs[] = {"BOS", "NYK"};
  for (int side = 1; side <= 2; ++side) {
    game.team[side].City = cities[side - 1], game.team[side].Abbrev = abbrevs[side - 1];
    game.team[side].Year = 1996;
    game.side[side].PeriodScore = {{20, 30, 25, side == 1 ? 22 : 26}};
    game.side[side].Score = side == 1 ? 97 : 101;
  }
  PlayerRecord& ray = PlayerAt(2, 3);
  ray.LastName = "Ray";
  ManAt(2, 3).PlayerGameTime = 20000;
  ManAt(2, 3).BestPeriodLine.Points = 17, ManAt(2, 3).BestHalfLine.Reb = 9;
  ray.Stats[3].FGM = 12, ray.Stats[3].F3M = 4, ray.Stats[3].FTM = 5, ray.Stats[3].Min = 33;
  ray.Stats[3].Reb = 10, ray.Stats[3].Off = 3;
  ray.Stats[2].FGM = 100, ray.HomeStats[2].FGM = 60;
  ray.ShotAttFastbreak2[3] = 4, ray.ShotAttFastbreak3[3] = 2, ray.ShotMadeFastbreak3[2] = 8;
  PlayerAt(2, 4).LastName = "Sat";  // he was not in the game
  PlayerAt(2, 4).Stats[2].FGM = 900;
  PlayerAt(2, 5).LastName = "Brief";  // one free throw, no time on the clock
  PlayerAt(2, 5).Stats[3].FTA = PlayerAt(2, 5).Stats[3].FTM = 1;
  game.team[2].TeamStats[1].FGM = 2000, game.team[2].HomeStats[1].FGM = 1100;
  game.team[1].TeamStats[1].FGM = 1900, game.team[1].HomeStats[1].FGM = 800;
  game.team[2].ShotMadeDrive = 321;
}

TEST(UpdateRecords, EveryCategoryTakesItsOwnFigure) {
  league = {};
  PlayedGame();
  ASSERT_TRUE(LoadRecordBook());
  UpdatePlayerRecords();
  UpdateTeamRecords();
  const struct {
    const char* why;
    RecordBlock block;
    int id;
    const char* left;
  } cases[] = {
      {"points", RecordBlock::kGame, kPoints, "33 Ray NYK, 1 Brief NYK"},
      {"defensive rebounds", RecordBlock::kGame, 16, "7 Ray NYK"},
      {"at home", RecordBlock::kGame, kHomeRecords + kPoints - 1, "33 Ray NYK, 1 Brief NYK"},
      {"not on the road", RecordBlock::kGame, kRoadRecords + kPoints - 1, ""},
      {"the season", RecordBlock::kSeason, 2, "100 Ray NYK"},
      {"the season at home", RecordBlock::kSeason, kHomeRecords + 1, "60 Ray NYK"},
      {"fast breaks for two and three", RecordBlock::kGame, 36, "6 Ray NYK"},
      {"made ones, in the season", RecordBlock::kSeason, 37, "8 Ray NYK"},
      {"in a quarter", RecordBlock::kGame, kQuarterRecords, "17 Ray NYK"},
      {"in a half", RecordBlock::kGame, kHalfRecords + 1, "9 Ray NYK"},
      {"quarters are of a game", RecordBlock::kSeason, kQuarterRecords, ""},
      {"a margin is of teams", RecordBlock::kGame, kMarginRecord, ""},
      {"the winner's margin", RecordBlock::kGame, kTeamRecords + kMarginRecord, "4 1996 New York"},
      {"the fourth quarter", RecordBlock::kGame, kTeamRecords + 124, "26 1996 New York, 22 1996 Boston"},
      {"allowed", RecordBlock::kGame, kTeamRecords + 134, "26 1996 Boston, 22 1996 New York"},
      {"a team's half", RecordBlock::kGame, kTeamRecords + kHalfRecords, "51 1996 New York, 50 1996 Boston"},
      {"five men's minutes", RecordBlock::kGame, kTeamRecords + 1, "6 1996 New York"},
      {"a team's season", RecordBlock::kSeason, kTeamRecords + 2, "2000 1996 New York, 1900 1996 Boston"},
      {"what was not at home was on the road", RecordBlock::kSeason, kTeamRecords + kRoadRecords + 1,
       "1100 1996 Boston"},
      {"drives made", RecordBlock::kSeason, kTeamRecords + 35, "321 1996 New York"},
      {"steals: none", RecordBlock::kGame, kSteals, ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Told(league.RecordBook.Row[static_cast<std::size_t>(RecordSlot(c.block, c.id))]), c.left)
        << c.why;
  }
  const RecordRow& man = league.RecordBook.Row[400 + kPoints];
  EXPECT_EQ(man.Date[1].View(), "12/5/1996");
  EXPECT_EQ(man.Opponent[1].View(), "BOS");
  EXPECT_EQ(league.RecordBook.Row[600 + kPoints].Date[1].View(), "12/5/96");
  const std::string page = RecordBookPage(false);
  EXPECT_NE(page.find("Fastbreak Attempts              6  Ray                   NYK  BOS  12/5/1996"),
            page.npos)
      << page;
}

TEST(UpdateRecords, PlayoffGamesAreNoMatterForTheBook) {
  league = {};
  PlayedGame();
  program.PlayoffGame = true;
  ASSERT_TRUE(LoadRecordBook());
  UpdatePlayerRecords();
  UpdateTeamRecords();
  EXPECT_EQ(RecordBookPage(false) + RecordBookPage(true), "");
}

class RecordBooks : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = program.LeagueFolder;
    PlayedGame();
    program.LeagueFolder = folder_;
    program.Home = home.Home();
    std::filesystem::create_directories(AllTimeFolder());
  }
  static bool EnterGame(const std::filesystem::path& folder = {}) {
    if (!LoadRecordBook(folder)) return false;
    UpdatePlayerRecords();
    UpdateTeamRecords();
    return SaveRecordBook(folder);
  }
  static std::string Best(const std::filesystem::path& folder = {}) {
    EXPECT_TRUE(LoadRecordBook(folder));
    return Told(league.RecordBook.Row[400 + kPoints]);
  }
  TemporaryLeague home;
  platform::ScriptedDialogs dialogs;
  std::filesystem::path folder_;
};

TEST_F(RecordBooks, BothBooksAreKeptApartAndFollowTheirFiles) {
  ASSERT_TRUE(EnterGame());
  EXPECT_EQ(ReadWholeFile(LeagueFile("HCRECORDS")).size(), 240000u);
  PlayerAt(2, 3).Stats[3].FGM = 20;
  ASSERT_TRUE(EnterGame(AllTimeFolder()));
  EXPECT_EQ(Best(), "33 Ray NYK, 1 Brief NYK");
  EXPECT_EQ(Best(AllTimeFolder()), "49 Ray NYK, 1 Brief NYK");
  ASSERT_TRUE(LoadRecordBook());
  UpdatePlayerRecords();  // and not saved: forgotten by the next load
  EXPECT_EQ(Best(), "33 Ray NYK, 1 Brief NYK");
  RecordRow other;
  ASSERT_TRUE(InsertRecord(other, RecordBlock::kGame, Entry(70, "Else")));
  ASSERT_TRUE(RecordFile(LeagueFile("HCRECORDS"), 300).Write(400 + kPoints, other));
  EXPECT_EQ(Best(), "70 Else BOS") << "another program has written";
  ASSERT_TRUE(WriteWholeFile(LeagueFile("HCRECORDS"), ""));
  EXPECT_EQ(Best(), "") << "the league was reset";
  EXPECT_EQ(Best(AllTimeFolder()), "49 Ray NYK, 1 Brief NYK");
}

TEST_F(RecordBooks, WhatCanNotBeWrittenIsForgotten) {
  ASSERT_TRUE(EnterGame());
  PlayerAt(2, 3).Stats[3].FGM = 20;
  {
    ASSERT_TRUE(LoadRecordBook());
    UpdatePlayerRecords();
    const SmallDisk full(0);
    EXPECT_FALSE(SaveRecordBook());
  }
  EXPECT_EQ(Best(), "33 Ray NYK, 1 Brief NYK");
  TemporaryLeague::Block(LeagueFile("HCRECORDS"));
  EXPECT_FALSE(LoadRecordBook());
  EXPECT_FALSE(SaveRecordBook());
  EXPECT_EQ(dialogs.told.size(), 2u);
}

}  // namespace
}  // namespace tipline
