#include "aftermath/finish_game.h"

#include <gtest/gtest.h>

#include <set>

#include "aftermath/game_done.h"
#include "aftermath/game_results.h"
#include "base/calendar.h"
#include "base/random.h"
#include "base/record_file.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "frontoffice/league_maker.h"
#include "harness/temporary_home.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/office_files.h"
#include "league/rules.h"
#include "league/schedule.h"
#include "league/setup.h"
#include "league/startup.h"
#include "platform/dialogs.h"
#include "platform/mail.h"
#include "platform/zip.h"

namespace tipline {
namespace {

/// A league of four teams on disk, and its first scheduled game played by computers.
class Books : public testing::Test {
 protected:
  TemporaryHome home;
  platform::ScriptedDialogs dialogs;

  void SetUp() override {
    setup = {};
    game = {};
    ASSERT_TRUE(LoadEra() || MakeEraFile());
    LeagueRequest request;
    request.Name = "Books";
    request.Seed = 5;
    request.Divisions = 2, request.Teams = 4, request.Games = 10;
    std::string message;
    ASSERT_TRUE(MakeLeague(request, message)) << message;
    ASSERT_TRUE(OpenSeason("Books"));
    program.GameKind = "L";
    program.ReplayLocked = program.Autoplaying = true;
    random.Seed(3);
  }
  void TearDown() override {
    game = {};
    setup = {};
  }

  static void Prepare(int rowNo) {
    const ScheduleRecord& row = *league.Row(rowNo);
    game.ScheduleRow = rowNo;
    game.GameMonth = SeasonMonth(row.Month), game.GameCalendarMonth = row.Month, game.GameDay = row.Day;
    game.GameYear = league.ScheduleYear;
    for (int s = 1; s <= 2; ++s) {
      ASSERT_TRUE(LoadTeam(row.Team[s], s));
      game.side[s].CoachMode = "C";
    }
    PrepareGame();
  }
  static void Play(int rowNo) {
    Prepare(rowNo);
    NewGame();
    ASSERT_TRUE(game.GameOver);
  }
  static std::map<std::string, std::string> Files() {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(program.LeagueFolder))
      files[entry.path().filename().string()] = ReadWholeFile(entry.path());
    return files;
  }
  /// Names of the files that differ from `before`.
  static std::set<std::string> Changed(const std::map<std::string, std::string>& before) {
    std::set<std::string> names;
    const auto after = Files();
    for (const auto& [name, bytes] : after) {
      const auto found = before.find(name);
      if (found == before.end() || found->second != bytes) names.insert(name);
    }
    return names;
  }
};

TEST_F(Books, AGameStandsInAllOfThem) {
  league.rules.TickerCheck = 1;
  Play(1);
  ASSERT_TRUE(game.InTheBooks);
  const ScheduleRecord& row = *league.Row(1);
  EXPECT_EQ(row.Status, 'P');
  EXPECT_EQ(row.Score[1], game.side[1].Score);
  EXPECT_EQ(row.BoxFile, "BOX1.BOX");
  EXPECT_EQ(row.CoachKind[2], 'C');
  EXPECT_EQ(row.RecordAfter[game.side[1].Score > game.side[2].Score ? 1 : 2], "1-0");
  for (const auto& file : {ScheduleFile(), SpareSchedule()}) {
    ScheduleRecord there;
    ASSERT_TRUE(RecordFile(file, kScheduleSlotBytes).Read(1, there));
    EXPECT_EQ(RecordBytes(there), RecordBytes(row)) << file;
  }
  LoadScores();
  ASSERT_EQ(league.Scores.size(), 2u);
  const ScheduleRecord& score = league.Scores[1];
  EXPECT_EQ(score.Month, row.Month) << "a calendar month";
  EXPECT_EQ(score.Team[2], row.Team[2]);
  EXPECT_EQ(score.ScoringLeader, row.ScoringLeader.View());
  EXPECT_EQ(score.GameStats[1][1], game.side[1].TeamLine.FGA);
  EXPECT_EQ(score.GameStats[2][7], game.side[2].TeamLine.Reb + game.side[2].GameTeamRebounds);
  EXPECT_FALSE(score.Reserved12.Empty());
  EXPECT_TRUE(std::filesystem::exists(LeagueFile("BOX1.BOX")));
  EXPECT_FALSE(ReadWholeFile(LeagueFile("HcTicker")).empty());
  for (int s = 1; s <= 2; ++s) {
    TeamRecord kept = league.team[row.Team[s]];
    EXPECT_EQ(kept.Wins + kept.Losses, 1);
    ASSERT_TRUE(ReadTeam(row.Team[s]));
    EXPECT_EQ(RecordBytes(kept), RecordBytes(league.team[row.Team[s]]));
    const PlayerRecord& man = PlayerAt(s, game.side[s].Starters[1]);
    PlayerRecord there;
    ASSERT_TRUE(ReadPlayer(man.RecNo, there));
    EXPECT_EQ(there.Stats[2].G, 1);
    EXPECT_EQ(there.LastInjuryDay, row.Day);
    EXPECT_EQ(there.LastGameOpponent, game.team[3 - s].City.View());
    EXPECT_EQ(RecordBytes(there), RecordBytes(league.player[static_cast<std::size_t>(man.RecNo)]));
  }
  Play(2);
  EXPECT_EQ(league.Row(2)->BoxFile, "BOX2.BOX");
  EXPECT_EQ(league.Scores.size(), 3u);
  EXPECT_TRUE(dialogs.told.empty());
}

TEST_F(Books, AnExhibitionLeavesItsPageAlone) {
  program.GameKind = "E";
  game.ScheduleRow = 1;
  const auto before = Files();
  Prepare(1);
  PlayerAt(1, 1).SuspensionGames = 3;
  NewGame();
  EXPECT_EQ(Changed(before), std::set<std::string>{"VTX.txt"});
  EXPECT_EQ(league.Row(1)->Status, 'U');
  EXPECT_EQ(game.team[1].Wins + game.team[1].Losses, 0);
  EXPECT_EQ(PlayerAt(1, 1).SuspensionGames, 3);
  EXPECT_FALSE(game.InTheBooks);
}

TEST_F(Books, TheFinalOfACupIsSavedForNoTeam) {
  Prepare(1);
  league.ScheduleGame[1].GameType = "C";
  const auto before = Files();
  NewGame();
  EXPECT_TRUE(game.InTheBooks);
  EXPECT_FALSE(Changed(before).count("HCTEAMS") + Changed(before).count("HCPLAYER"));
  EXPECT_EQ(league.Row(1)->Status, 'P');
  EXPECT_EQ(league.player[static_cast<std::size_t>(PlayerAt(1, 1).RecNo)].Stats[2].G, 0);
}

TEST_F(Books, WhatCantBeKeptChangesNothing) {
  Prepare(1);
  TemporaryLeague::Block(LeagueFile("HCgameplan"));
  const auto before = Files();
  const auto team = RecordBytes(league.team[game.GameTeam[1]]);
  NewGame();
  EXPECT_FALSE(game.InTheBooks);
  EXPECT_EQ(Changed(before), std::set<std::string>{"VTX.txt"}) << "the page of the box is no book";
  ASSERT_FALSE(dialogs.told.empty());
  EXPECT_TRUE(dialogs.told.back().starts_with("The game could not be kept: "));
  EXPECT_EQ(RecordBytes(league.team[game.GameTeam[1]]), team);
  EXPECT_EQ(league.Row(1)->Status, 'U');
  EXPECT_EQ(league.Scores.size(), 1u);
  EXPECT_TRUE(program.HighlightList.empty());
  std::filesystem::remove(LeagueFile("HCgameplan"));
}

TEST_F(Books, ARunEndsBehindAGameThatWasWatched) {
  const struct {
    const char* why;
    bool human;
    u8 shown;
    char others;
  } cases[] = {
      {"computers in bulk", false, 0, 'N'}, {"computers, watched", false, 1, 'U'}, {"a human", true, 0, 'U'}};
  for (const auto& c : cases) {
    for (int n = 1; n <= 4; ++n) league.ScheduleGame[static_cast<std::size_t>(n)].Status = n < 4 ? "N" : "P";
    ASSERT_TRUE(SaveSchedule());
    setup.ComputerCheck = c.shown;
    Prepare(2);
    if (c.human) game.side[1].CoachMode = "H";
    game.GameOver = true;
    FinishGame();
    ASSERT_TRUE(LoadSchedule());
    EXPECT_EQ(league.Row(1)->Status, c.others) << c.why;
    EXPECT_EQ(league.Row(2)->Status, 'P') << c.why;
    EXPECT_EQ(league.Row(3)->Status, c.others) << c.why;
    EXPECT_EQ(league.Row(4)->Status, 'P') << c.why;
  }
}

TEST_F(Books, AScheduleWithDroppedRowsIsWrittenWhole) {
  league.ScheduleGame[1].Status = "D";
  ASSERT_TRUE(SaveSchedule());
  const int games = league.GameCount();
  Play(3);
  ASSERT_TRUE(game.InTheBooks && LoadSchedule());
  EXPECT_EQ(league.GameCount(), games - 1);
  EXPECT_EQ(league.Row(1)->Status, 'U');
  EXPECT_EQ(league.Row(2)->Status, 'P') << "the third is the second now";
}

TEST_F(Books, FilmsAreKeptByTheirRules) {
  const struct {
    u8 computer, human;
    bool kept;
  } cases[] = {{0, 1, false}, {1, 0, true}};
  for (const auto& c : cases) {
    league.rules.GameFilmsComputer = c.computer, league.rules.GameFilmsHuman = c.human;
    Play(1);
    EXPECT_EQ(!program.LastFilmFile.empty(), c.kept);
  }
  const std::string name = program.LastFilmFile;
  EXPECT_TRUE(name.ends_with(".flm")) << name;
  EXPECT_GT(std::filesystem::file_size(LeagueFile(name)), 100000u);
  EXPECT_EQ(HCGAMEDONE().GameFilmCommand(), LeagueFile(name));
}

class TestZip : public platform::Zip {
 public:
  TestZip() { platform::UseZip(this); }
  ~TestZip() override { platform::UseZip(nullptr); }
  bool Pack(const std::filesystem::path& file, const std::filesystem::path& archive) override {
    return WriteWholeFile(archive, "zip of " + file.filename().string());
  }
};

TEST_F(Books, TheScreenBehindTheGameMailsItsFiles) {
  Play(1);
  EXPECT_FALSE(HCGAMEDONE().MailFrame);
  EXPECT_FALSE(HCGAMEDONE().StatisticianCommand());
  EXPECT_EQ(dialogs.told.back(), "You must specify a statistician in your league address book!");
  AddressBook book;
  book.MemberName[1] = "Ann", book.MemberEmail[1] = "ann@example.org", book.MemberAutoReport[1] = 1;
  book.MemberName[2] = "Bob", book.MemberEmail[2] = "bob@example.org", book.MemberStatistician[2] = 1;
  book.MemberName[3] = "Cy", book.MemberAutoReport[3] = book.MemberStatistician[3] = 1;
  ASSERT_TRUE(SaveAddressBook(book));
  const HCGAMEDONE screen;
  EXPECT_TRUE(screen.MailFrame && screen.StatisticianFrame && screen.MailCommands);
  EXPECT_EQ(screen.Teams[2].Score, game.side[2].Score);
  EXPECT_FALSE(screen.SendBoxScoreCommand()) << "no mail program";
  EXPECT_EQ(dialogs.told.back(), "Unable to send boxscore!");
  platform::ScriptedMail mail;
  ASSERT_TRUE(screen.SendBoxScoreCommand());
  EXPECT_EQ(mail.sent[0].To, std::vector<std::string>{"ann@example.org"});
  EXPECT_EQ(mail.sent[0].Body, ReadWholeFile(LeagueFile("VTX.txt")));
  const TestZip zip;
  ASSERT_TRUE(screen.StatisticianCommand());
  const platform::Letter& letter = mail.sent[1];
  EXPECT_EQ(letter.To, std::vector<std::string>{"bob@example.org"});
  EXPECT_TRUE(letter.Subject.ends_with(" .hcx game file")) << letter.Subject;
  EXPECT_EQ(letter.Body, "Attached please find the following .hcx file in zipped format:");
  const std::string stem = letter.Attachment.stem().string();
  EXPECT_EQ(ReadWholeFile(letter.Attachment), "zip of " + stem + ".hcx");
  EXPECT_EQ(ReadWholeFile(LeagueFile(stem + ".hcx")), ReadWholeFile(LeagueFile("BOX1.BOX")));
}

TEST(LibraryZip, PacksAFile) {
  const auto zip = platform::LibraryZip();
  if (!zip) GTEST_SKIP() << "built without the zip library";
  const TemporaryHome home;
  ASSERT_TRUE(WriteWholeFile(home.Home() / "a.hcx", "the game"));
  ASSERT_TRUE(zip->Pack(home.Home() / "a.hcx", home.Home() / "a.zip"));
  EXPECT_EQ(ReadWholeFile(home.Home() / "a.zip").substr(0, 2), "PK");
  EXPECT_FALSE(zip->Pack(home.Home() / "b.hcx", home.Home() / "b.zip"));
  EXPECT_FALSE(std::filesystem::exists(home.Home() / "b.zip"));
}

}  // namespace
}  // namespace tipline
