#include "league/league_reset.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

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

/// Two teams with a man each, a free agent and two men on no roster.
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
    PutMan(4, 3, "Stray");  // of a team that is not there
    PutMan(5, 1002, "Former");
    LoadRules();
    ASSERT_TRUE(SaveAllTeams() && SaveRules());
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
  league.ScheduleGame = {{}, NewScheduleGame(1, 2, 11, 5), NewScheduleGame(2, 1, 11, 6)};
  ScheduleRecord& played = league.ScheduleGame[1];
  played.Status = "P", played.BoxFile = "BOX1.BOX", played.PlayoffFlag = "Y", played.Score[1] = 99;
  TournamentPools pools;
  pools.PoolMark = TournamentPools::kSetMark, pools.PoolWins[1] = 2, pools.PoolOfTeam[1] = 4;
  pools.DateType[6][11] = "Q";
  WriteRecord(pools, league.tournamentPools.data());
  ASSERT_TRUE(SaveSchedule() && SaveRules());
  for (const char* name :
       {"HCRECORDS", "SCORES", "HcTop40", "HcTicker", "BOX1.BOX", "BOX1.PLY", "box2.box", "GAMELOGS"})
    ASSERT_TRUE(WriteWholeFile(LeagueFile(name), "something"));
  Texts labels;
  ASSERT_TRUE(ResetLeague(false, [&labels](const std::string& text) { labels.push_back(text); }));
  ASSERT_EQ(labels.size(), 5u);
  EXPECT_EQ(labels[3], "Deleting box 2 of 2...");
  EXPECT_EQ(dialogs.told, Texts{"League Reset Complete!"});
  for (const char* name : {"HCRECORDS", "SCORES", "HcTop40", "HcTicker"})
    EXPECT_EQ(ReadWholeFile(LeagueFile(name)), "") << name;
  EXPECT_FALSE(std::filesystem::exists(LeagueFile("BOX1.BOX")) ||
               std::filesystem::exists(LeagueFile("BOX1.PLY")) ||
               std::filesystem::exists(LeagueFile("HcHighlights.txt")));
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

TEST_F(Resets, AFileThatCantBeWrittenStopsIt) {
  TemporaryLeague::Block(LeagueFile("HcLeaders"));
  EXPECT_FALSE(ResetLeague());
  EXPECT_EQ(dialogs.told, Texts{"HcLeaders could not be written!"});
  EXPECT_EQ(Man(1).Stats[2].G, 3);
  std::filesystem::remove(LeagueFile("HcLeaders"));
  EXPECT_TRUE(ZeroStats(true));
  EXPECT_EQ(Man(1).Stats[1].G, 0) << "real life goes when that is asked";
}

TEST_F(Resets, TheFolderIsRidOfRowsNobodyNeeds) {
  league.team[2].Roster[7] = 6, league.team[2].Roster[9] = 7, league.team[2].Roster[11] = 5;
  PutMan(6, 2, "Man", 0);   // a twin who never played here
  PutMan(7, 2, "Mann", 0);  // not the same man
  ASSERT_TRUE(WriteTeam(2));
  dialogs.answers = {false, true};
  EXPECT_FALSE(CleanLeagueFolder());
  EXPECT_EQ(Man(4).TeamNo, 3);
  EXPECT_TRUE(CleanLeagueFolder());
  EXPECT_EQ(dialogs.told, Texts{"League Folder Cleaned!"});
  for (const int row : {1, 3, 5, 7}) EXPECT_TRUE(Man(row).TeamNo != 0 && !Man(row).LastName.Empty()) << row;
  for (const int row : {4, 6}) EXPECT_TRUE(Man(row).TeamNo == 0 && Man(row).LastName.Empty()) << row;
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

/// A man's row in his team, with games and minutes; `roster` is the team that has him.
struct Part {
  i16 team, games, minutes;
  int roster = 0;
  const char* name = "Al";
  u8 done = 0, age = 25;
};

/// Rows 1, 2, 3 ..; teams 1 to 3 have played 40, 50 and 60 games.
void OpenParts(const std::vector<Part>& parts) {
  league = {};
  constexpr const char* kNames[] = {"", "bos", "atl", "mia"};
  for (int team = 1; team <= 3; ++team) {
    league.team[team].TeamActive = 1, league.team[team].Abbrev = kNames[team];
    league.team[team].Wins = static_cast<i16>(30 + 10 * team);
  }
  for (const Part& part : parts) {
    const std::size_t row = std::max<std::size_t>(league.player.size(), 1);
    league.player.resize(row + 1);
    PlayerRecord& man = league.player[row];
    man.FirstName = part.name, man.LastName = "Ames", man.Age = part.age, man.TeamNo = part.team;
    man.ComboDone = part.done, man.Stats[2].G = part.games, man.Stats[2].Min = part.minutes;
    if (part.roster) league.team[part.roster].Roster[1] = static_cast<i16>(row);
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
      {"three teams", {{1, 10, 300, 1}, {1002, 12, 500}, {1003, 15, 100}}, "BOS-ATL-MIA", 37, 900},
      {"as many games as the team", {{1, 15, 300, 1}, {1002, 25, 500}}, "BOS-ATL", 40, 800},
      {"more than one team has played", {{1, 16, 300, 1}, {1002, 25, 500}}, "", 0, 0},
      {"written twice", {{1, 10, 300, 1}, {1002, 10, 300}}, "BOS-ATL", 10, 300},
      {"removed row, no games", {{1, 0, 0, 1}, {0, 0, 7}}, "BOS-FA", 0, 7},
      {"another man", {{1, 10, 300, 1}, {1002, 20, 500, 0, "Bo"}}, "", 0, 0},
      {"a son", {{1, 10, 300, 1}, {1002, 20, 500, 0, "Al", 0, 20}}, "", 0, 0},
      {"one team", {{1, 10, 300, 1}, {1001, 20, 500}}, "", 0, 0},
      {"done already", {{1, 10, 300, 1, "Al", 1}, {1002, 20, 500}}, "", 0, 0},
      {"on no roster", {{1, 10, 300}, {1002, 20, 500}}, "", 0, 0},
      {"the other is done", {{1, 10, 300, 1}, {1002, 20, 500, 0, "Al", 1}}, "BOS-ATL", 10, 300},
      {"a free agent is nobody's part", {{1, 10, 300, 1}, {999, 20, 500}}, "", 0, 0},
      {"too many games: the longest", {{1, 70, 300, 1}, {1002, -30, 500, 0, "Al", 1}}, "BOS-ATL", -30, 500},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.why);
    OpenParts(c.parts);
    for (int scan = 1; scan <= 2; ++scan) {
      ComboPlayerScan();
      ASSERT_EQ(league.player.size(), c.parts.size() + (*c.text ? 2 : 1));
      if (!*c.text) continue;
      const PlayerRecord& whole = league.player.back();
      EXPECT_EQ(whole.TeamNo, kCombined);
      EXPECT_EQ(whole.Stats[2].G, c.games);
      EXPECT_EQ(whole.Stats[2].Min, c.minutes);
      EXPECT_EQ(league.ComboTeams[static_cast<int>(league.player.size()) - 1], c.text);
    }
  }
  league = {};
}

TEST_F(Resets, OfficeFilesAreKeptWhole) {
  AddressBook book;
  book.MemberEmail[50] = "a@b.c";
  ASSERT_TRUE(SaveAddressBook(book));
  const std::string bytes = ReadWholeFile(LeagueFile("HCADDRESSBOOK"));
  EXPECT_EQ(bytes.size(), 30000u);
  EXPECT_EQ(bytes.substr(7334 + 3621 + 50 * 70, 5), "a@b.c");
  book = {};
  LoadAddressBook(book);
  EXPECT_EQ(book.MemberEmail[50], "a@b.c");

  DraftLog log;
  LoadDraftLog(log);
  log.settings.PrefDefense[720] = 9, log.selections.LogPlayer[8000] = 7;
  ASSERT_TRUE(SaveDraftLog(log));
  const std::string draft = ReadWholeFile(LeagueFile("DraftLog"));
  EXPECT_EQ(draft.size(), 64000u);
  EXPECT_EQ(draft[3610], 9);
  EXPECT_EQ(draft[63998], 7);
}

/// A record with the byte 1 everywhere.
template <class Record>
Record Full() {
  Record record;
  ReadRecord(std::vector<u8>(Record::kRecordSize, 1).data(), record);
  return record;
}

/// Names of the fields of which something is cleared.
template <class Record>
std::set<std::string> Cleared(const Record& record) {
  const auto bytes = RecordBytes(record);
  std::set<std::string> names;
  Describe(record, [&](int offset, const char* name, const auto& member, const char*) {
    const auto first = bytes.begin() + offset;
    const auto last = first + DiskSize<std::remove_cvref_t<decltype(member)>>();
    if (std::count(first, last, 1) < last - first) names.insert(name);
  });
  return names;
}

template <class Record>
void ExpectKept(const Record& record, std::size_t cleared, const std::vector<const char*>& kept) {
  EXPECT_EQ(Cleared(record).size(), cleared);
  for (const char* name : kept) EXPECT_FALSE(Cleared(record).contains(name)) << name;
}

TEST(SeasonReset, ATeamKeepsWhatIsNotOfTheSeason) {
  TemporaryLeague folder;
  league.team[720] = Full<TeamRecord>();
  ZeroTeam(720);
  const TeamRecord& team = league.team[720];
  ExpectKept(
      team, 94,
      {"TeamActive",     "City",         "Abbrev",       "Year",       "TeamType",         "RealTotals",
       "Roster",         "LogoFile",     "PlanMark",     "SplitsMark", "ScheduleStrength", "HighLowMark",
       "LastTenMark",    "SavedWins",    "ArenaAge",     "RealWins",   "SavedPowerRating", "RealLosses",
       "TeamTotalsMark", "ReservedText", "ReservedFlagA"});
  EXPECT_EQ(team.TeamRebounds[1], 257) << "real life stays";
  EXPECT_EQ(team.TeamRebounds[2], 0);
  EXPECT_EQ(team.LastTen[10], " ");
}

TEST(SeasonReset, APlayerLosesOneBlock) {
  TemporaryLeague folder;
  auto real = Full<PlayerRecord>();
  ZeroPlayer(real, 1);
  EXPECT_EQ(Cleared(real), (std::set<std::string>{"Stats", "HomeStats", "RoadStats", "QuarterPoints"}));
  EXPECT_EQ(real.Stats[1].FGA + real.QuarterPoints[5][1], 0);
  EXPECT_EQ(real.Stats[2].FGA, 257);

  auto replay = Full<PlayerRecord>();
  ZeroPlayer(replay, 2);
  EXPECT_EQ(replay.Stats[1].FGA, 257) << "real life stays";
  EXPECT_EQ(replay.Stats[2].DunkMark, 1) << "else the next load would clear the real dunks";
  EXPECT_EQ(replay.Stats[3].FGA, 257) << "so does the last game";
  EXPECT_EQ(replay.Flagrants[3], 1);
  EXPECT_EQ(replay.SeriesStats.FGA, 0);
  ExpectKept(replay, 54,
             {"FirstName", "Status", "SuspensionGames", "InjuryType", "InjuryReturnMonth", "RatePassing",
              "RotationGrid", "ShareMark", "RecNo", "TeamNo", "AltForm1", "Salary"});

  auto inGame = Full<PlayerRecord>();
  program.ReplayLocked = true;
  ZeroPlayer(inGame, 2);
  EXPECT_EQ(inGame.SeriesStats.FGA, 257) << "the series goes on while a game holds the data";
  auto other = Full<PlayerRecord>();
  ZeroPlayer(other, 3);
  EXPECT_TRUE(Cleared(other).empty());
}

}  // namespace
}  // namespace tipline
