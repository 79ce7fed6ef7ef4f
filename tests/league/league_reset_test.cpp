#include "league/league_reset.h"

#include <gtest/gtest.h>

#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/combo_players.h"
#include "league/files.h"
#include "league/office_files.h"
#include "league/program.h"
#include "league/rules.h"
#include "league/schedule.h"
#include "league/startup.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

using Texts = std::vector<std::string>;

/// Two teams with a man each, and a free agent; rows 4 and 5 are nobody's.
class Resets : public testing::Test {
 protected:
  TemporaryLeague folder;
  platform::ScriptedDialogs dialogs;

  void SetUp() override {
    for (int team = 1; team <= 2; ++team) {
      TeamRecord& t = league.team[team];
      t.TeamActive = 1, t.City = team == 1 ? "Aston" : "Bend", t.Year = 2022;
      t.Roster[1] = static_cast<i16>(team);
      t.Wins = 5;
      PutMan(team, team, "Man");
    }
    PutMan(3, kFreeAgent, "Free");
    PutMan(4, 3, "Stray");
    PutMan(5, 1005, "Former");
    ASSERT_TRUE(SaveAllTeams());
    LoadRules();
    SaveRules();
    LoadRules();
  }

  static void PutMan(int recNo, int team, const char* name, int replayGames = 3) {
    PlayerRecord man;
    man.RecNo = static_cast<i16>(recNo), man.TeamNo = static_cast<i16>(team), man.LastName = name;
    man.PrimaryPosition = 1;
    man.Stats[1].G = 70, man.Stats[2].G = static_cast<i16>(replayGames);
    ASSERT_TRUE(WritePlayer(man));
  }

  static PlayerRecord Man(int row) {
    PlayerRecord man;
    ReadPlayer(row, man);
    return man;
  }
};

TEST_F(Resets, ASeasonBeginsAnew) {
  league.ScheduleGame.resize(3);
  league.ScheduleGame[1] = NewScheduleGame(1, 2, 11, 5);
  league.ScheduleGame[1].Status = "P", league.ScheduleGame[1].BoxFile = "BOX1.BOX";
  league.ScheduleGame[1].PlayoffFlag = "Y", league.ScheduleGame[1].Score[1] = 99;
  league.ScheduleGame[2] = NewScheduleGame(2, 1, 11, 6);
  TournamentPools pools;
  pools.PoolMark = TournamentPools::kSetMark, pools.PoolWins[1] = 2, pools.PoolOfTeam[1] = 4;
  pools.DateType[6][11] = "Q";
  WriteRecord(pools, league.tournamentPools.data());
  ASSERT_TRUE(SaveSchedule() && SaveRules());
  for (const char* name : {"HCRECORDS", "SCORES", "HcTop40", "BOX1.BOX", "box2.box", "GAMELOGS"}) {
    ASSERT_TRUE(WriteWholeFile(LeagueFile(name), "something"));
  }
  Texts labels;
  ASSERT_TRUE(ResetLeague(false, [&labels](const std::string& text) { labels.push_back(text); }));
  EXPECT_EQ(labels, (Texts{"Deleting player stats..", "Deleting game scores..", "Deleting box 1 of 2...",
                           "Deleting box 2 of 2...", "Deleting team stats.."}));
  EXPECT_EQ(dialogs.told, Texts{"League Reset Complete!"});
  for (const char* name : {"HCRECORDS", "SCORES", "HcTop40"})
    EXPECT_EQ(ReadWholeFile(LeagueFile(name)), "") << name;
  EXPECT_FALSE(std::filesystem::exists(LeagueFile("BOX1.BOX")) ||
               std::filesystem::exists(LeagueFile("HCTICKER")));
  EXPECT_EQ(ReadWholeFile(LeagueFile("GAMELOGS")), "something");
  EXPECT_EQ(Man(1).Stats[2].G, 0);
  EXPECT_EQ(Man(3).Stats[1].G, 70) << "real life stays";
  ReadTeam(1);
  EXPECT_EQ(league.team[1].Wins, 0);
  LoadSchedule();
  ASSERT_EQ(league.GameCount(), 1) << "a cup game goes";
  const ScheduleRecord& game = league.ScheduleGame[1];
  EXPECT_TRUE(game.Status == 'U' && game.BoxFile.Empty() && game.PlayoffFlag == 'N' && game.Score[1] == 0);
  EXPECT_EQ(ReadPools().PoolWins[1], 0);
  EXPECT_EQ(ReadPools().PoolOfTeam[1], 4) << "who plays in which pool stays";
}

TEST_F(Resets, RealLifeGoesOnlyWhenAsked) {
  ASSERT_TRUE(ZeroStats(true));
  EXPECT_EQ(Man(1).Stats[1].G, 0);
}

TEST_F(Resets, AFileThatCantBeWrittenStopsIt) {
  TemporaryLeague::Block(LeagueFile("HcLeaders"));
  EXPECT_FALSE(ResetLeague());
  EXPECT_EQ(dialogs.told, Texts{"HcLeaders could not be written!"});
  EXPECT_EQ(Man(1).Stats[2].G, 3);
}

TEST_F(Resets, TheFolderIsRidOfRowsNobodyNeeds) {
  league.team[2].Roster[7] = 6, league.team[2].Roster[9] = 7, league.team[2].Roster[11] = 5;
  PutMan(6, 2, "Man", 0);   // a twin who never played here
  PutMan(7, 2, "Mann", 0);  // not the same man
  PutMan(5, 1002, "Former");
  ASSERT_TRUE(WriteTeam(2));
  dialogs.answers = {false, true};
  EXPECT_FALSE(CleanLeagueFolder());
  EXPECT_EQ(Man(4).TeamNo, 3);
  EXPECT_TRUE(CleanLeagueFolder());
  EXPECT_EQ(dialogs.told, Texts{"League Folder Cleaned!"});
  const struct {
    const char* why;
    int row;
    bool stays;
  } cases[] = {{"on a roster", 1, true}, {"free agent", 3, true}, {"a team that is not there", 4, false},
               {"twin", 6, false},       {"no twin", 7, true},    {"former member", 5, true}};
  for (const auto& c : cases) {
    EXPECT_EQ(Man(c.row).TeamNo != 0, c.stays) << c.why;
    EXPECT_EQ(!Man(c.row).LastName.Empty(), c.stays) << c.why;
  }
  ReadTeam(2);
  EXPECT_EQ(league.team[2].Roster[7], 0);
}

TEST_F(Resets, AnOpeningCleansTheFolderOnce) {
  ASSERT_TRUE(OpenLeague());
  EXPECT_EQ(Man(4).TeamNo, 0);
  EXPECT_EQ(league.player[4].TeamNo, 0) << "in memory as well";
  PutMan(4, 3, "Stray");
  ASSERT_TRUE(OpenLeague());
  EXPECT_EQ(Man(4).TeamNo, 3) << "not again";
  EXPECT_TRUE(dialogs.asked.empty());
}

TEST_F(Resets, TheSeasonOf2019MayBeAFullOne) {
  PlayerRecord man;
  man.RecNo = 3, man.Year = 2019, man.Stats[1].G = 75;
  for (const int team : {kFreeAgent, 720}) {
    man.TeamNo = static_cast<i16>(team);
    ASSERT_TRUE(WritePlayer(man));
    LoadLeaguePlayers();
    EXPECT_EQ(league.FullSeasonScale > 1, team == 720) << team;
  }
}

struct Part {
  int team, games, minutes;
  int onRoster = 0;  ///< of this team
  const char* name = "Al";
  int comboDone = 0, age = 25;
};

/// Rows 1, 2, 3 ..; teams 1 to 3 have played 40, 50 and 60 games.
void OpenParts(const std::vector<Part>& parts) {
  league = {};
  constexpr const char* kNames[] = {"", "bos", "atl", "mia"};
  for (int team = 1; team <= 3; ++team) {
    league.team[team].TeamActive = 1, league.team[team].Wins = static_cast<i16>(30 + 10 * team);
    league.team[team].Abbrev = kNames[team];
  }
  league.player.resize(parts.size() + 1);
  for (std::size_t k = 0; k < parts.size(); ++k) {
    PlayerRecord& man = league.player[k + 1];
    man.FirstName = parts[k].name, man.LastName = "Ames", man.Age = static_cast<u8>(parts[k].age);
    man.TeamNo = static_cast<i16>(parts[k].team), man.ComboDone = static_cast<u8>(parts[k].comboDone);
    man.Stats[2].G = static_cast<i16>(parts[k].games), man.Stats[2].Min = static_cast<i16>(parts[k].minutes);
    if (parts[k].onRoster) league.team[parts[k].onRoster].Roster[k + 1] = static_cast<i16>(k + 1);
  }
}

TEST(ComboPlayers, PartsOfASeasonAreJoined) {
  const struct {
    const char* why;
    std::vector<Part> parts;
    const char* text;  // "" no combined row
    int games, minutes;
  } cases[] = {
      {"two teams", {{1, 10, 300, 1}, {1002, 20, 500}}, "BOS-ATL", 30, 800},
      {"the former row stands first", {{1002, 20, 500}, {1, 10, 300, 1}}, "BOS-ATL", 30, 800},
      {"three teams", {{1, 10, 300, 1}, {1002, 12, 500}, {1003, 15, 100}}, "BOS-ATL-MIA", 37, 900},
      {"a third part too many", {{1, 20, 300, 1}, {1002, 20, 500}, {1003, 20, 700}}, "BOS-ATL-MIA", 60, 1500},
      {"as many games as the team", {{1, 15, 300, 1}, {1002, 25, 500}}, "BOS-ATL", 40, 800},
      {"more than one team has played", {{1, 16, 300, 1}, {1002, 25, 500}}, "", 0, 0},
      {"written twice", {{1, 10, 300, 1}, {1002, 10, 300}}, "BOS-ATL", 10, 300},
      {"removed row, no games", {{1, 0, 0, 1}, {0, 0, 7}}, "BOS-FA", 0, 7},
      {"another man", {{1, 10, 300, 1}, {1002, 20, 500, 0, "Bo"}}, "", 0, 0},
      {"a son", {{1, 10, 300, 1}, {1002, 20, 500, 0, "Al", 0, 20}}, "", 0, 0},
      {"one team", {{1, 10, 300, 1}, {1001, 20, 500}}, "", 0, 0},
      {"on no roster", {{1, 10, 300}, {1002, 20, 500}}, "", 0, 0},
      {"done already", {{1, 10, 300, 1, "Al", 1}, {1002, 20, 500}}, "", 0, 0},
      {"the other is done", {{1, 10, 300, 1}, {1002, 20, 500, 0, "Al", 1}}, "BOS-ATL", 10, 300},
      {"a free agent is nobody's part", {{1, 10, 300, 1}, {999, 20, 500}}, "", 0, 0},
  };
  for (const auto& c : cases) {
    OpenParts(c.parts);
    for (int scan = 1; scan <= 2; ++scan) {
      ComboPlayerScan();
      ASSERT_EQ(league.player.size(), c.parts.size() + (*c.text ? 2 : 1)) << c.why;
      if (!*c.text) continue;
      const PlayerRecord& whole = league.player.back();
      EXPECT_EQ(whole.TeamNo, kCombined) << c.why;
      EXPECT_EQ(whole.Stats[2].G, c.games) << c.why;
      EXPECT_EQ(whole.Stats[2].Min, c.minutes) << c.why;
      EXPECT_EQ(league.ComboTeams[static_cast<int>(league.player.size()) - 1], c.text) << c.why;
    }
  }
  OpenParts({{1, 70, 300, 1}, {1002, -30, 500, 0, "Al", 1}});
  ComboPlayerScan();
  EXPECT_EQ(league.player.back().Stats[2].Min, 500) << "a wrong join: the longest part stands for him";
  league = {};
}

TEST_F(Resets, OfficeFilesAreKeptWhole) {
  AddressBook book;
  LoadAddressBook(book);
  EXPECT_EQ(book.MemberUsed[1], 0);
  book.MemberUsed[50] = 1, book.MemberEmail[50] = "a@b.c", book.LeagueName = "Demo";
  ASSERT_TRUE(SaveAddressBook(book));
  const std::string bytes = ReadWholeFile(LeagueFile("HCADDRESSBOOK"));
  EXPECT_EQ(bytes.size(), 30000u);
  EXPECT_EQ(bytes[7334 + 50], 1);
  EXPECT_EQ(bytes.substr(7334 + 3621 + 50 * 70, 5), "a@b.c");
  AddressBook again;
  LoadAddressBook(again);
  EXPECT_EQ(RecordBytes(again), RecordBytes(book));

  DraftLog log;
  LoadDraftLog(log);
  log.settings.PrefDefense[720] = 9, log.selections.LogPlayer[8000] = 7;
  ASSERT_TRUE(SaveDraftLog(log));
  const std::string draft = ReadWholeFile(LeagueFile("DraftLog"));
  EXPECT_EQ(draft.size(), 64000u);
  EXPECT_EQ(draft[3610], 9);
  EXPECT_EQ(draft[63998], 7);

  LoadScores();
  EXPECT_EQ(league.Scores.size(), 1u);
  league.Scores.push_back(NewScheduleGame(1, 2, 12, 3));
  ASSERT_TRUE(SaveScores());
  league.Scores.clear();
  LoadScores();
  ASSERT_EQ(league.Scores.size(), 2u);
  EXPECT_EQ(league.Scores[1].Team[2], 2);
}

}  // namespace
}  // namespace tipline
