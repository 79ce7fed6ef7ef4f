#include <gtest/gtest.h>

#include "base/random.h"
#include "base/record_file.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "harness/temporary_home.h"
#include "league/daily.h"
#include "league/files.h"
#include "league/program.h"

namespace tipline {
namespace {

/// A team of one man and a former member, loaded for a game.
class LoadedTeam : public testing::Test {
 protected:
  TemporaryLeague folder;

  void SetUp() override {
    game = {};
    TeamRecord& team = league.team[3];
    team.TeamActive = 1, team.City = "Salem", team.Year = 2022, team.TeamType = "P";
    team.Roster[2] = 1, team.Roster[9] = 2;
    ASSERT_TRUE(WriteTeam(3));
    for (const int row : {1, 2}) {
      PlayerRecord man;
      man.RecNo = static_cast<i16>(row), man.TeamNo = row == 1 ? 3 : 1003;
      man.LastName = "Man", man.PrimaryPosition = 1, man.Year = 2022;
      man.Stats[1].G = 80, man.Stats[1].Min = 2400;
      man.AltForm1 = 5, man.AltForm2 = 20, man.AltForm3 = man.AltForm4 = 9, man.AltForm5 = 1;
      ASSERT_TRUE(WritePlayer(man));
    }
    program.ReplayLocked = true;
  }
  void TearDown() override {
    random.Script({});
    game = {};
  }

  PlayerRecord& Man() { return game.player[1][2]; }
  static std::string Files() {
    return ReadWholeFile(TeamsFile()) + ReadWholeFile(PlayersFile()) + ReadWholeFile(CoachesFile());
  }
};

TEST_F(LoadedTeam, VariesHisSeasonInItsOrder) {
  // No form of the day, then of each figure: two draws, and whether he goes on from where he stood.
  const std::vector<double> draws{2, 2,                    //
                                  3, 1, 2, 2,              // second: 10 + 3 - 1
                                  1, 3, 1, 1, 3, 2,        // fifth: from 1, held at 0
                                  1, 1, 2, 1, 3, 1,        // first: from 5
                                  2, 2, 1, 1, 1, 1, 2, 1,  // third: both, the later stands
                                  3, 1, 2, 2};             // fourth
  random.Script(draws);
  ASSERT_TRUE(LoadTeam(3, 1));
  EXPECT_EQ(random.ScriptLeft(), 0u);
  EXPECT_EQ(Man().AltForm2, 12);
  EXPECT_EQ(Man().AltForm5, 0);
  EXPECT_EQ(Man().AltForm1, 7);
  EXPECT_EQ(Man().AltForm3, 10);
  EXPECT_EQ(Man().AltForm4, 12);
}

TEST_F(LoadedTeam, KeepsTheVariationOnceHeHasPlayed) {
  // clang-format off
  const struct { const char* why; i16 games; u8 fourth, module; bool locked, drawn; } cases[] = {
      {"his first game", 0, 9, 0, true, true},
      {"he has played", 1, 9, 0, true, false},
      {"never drawn", 1, 26, 0, true, true},
      {"a playoff module", 0, 9, 1, true, false},
      {"no game", 0, 9, 0, false, false},
  };
  // clang-format on
  for (const auto& c : cases) {
    program.ReplayLocked = c.locked;
    league.rules.IsPlayoffModule = c.module;
    PlayerRecord man;
    ReadPlayer(1, man);
    man.Stats[2].G = c.games, man.AltForm4 = c.fourth;
    WritePlayer(man);
    random.Script(std::vector<double>(22, 2));
    ASSERT_TRUE(LoadTeam(3, 1));
    random.Script({});
    EXPECT_EQ(Man().AltForm2, c.drawn ? 10 : 20) << c.why;
  }
}

TEST_F(LoadedTeam, NothingIsLoadedFromWhereNoTeamIs) {
  for (const int team : {0, 4, 721, -1}) {
    EXPECT_FALSE(LoadTeam(team, 1)) << team;
    EXPECT_EQ(game.GameTeam[1], 0) << team;
    EXPECT_FALSE(SaveTeam(team, 1)) << team;
  }
}

TEST_F(LoadedTeam, GoesBackToItsFiles) {
  ASSERT_TRUE(LoadTeam(3, 1));
  EXPECT_FALSE(SaveTeam(4, 1)) << "another team sits there";
  Man().Stats[2].G = 1;
  game.team[1].Wins = 1;
  ASSERT_TRUE(SaveTeam(3, 1));
  PlayerRecord man;
  ReadPlayer(1, man);
  EXPECT_EQ(man.Stats[2].G, 1);
  ASSERT_TRUE(ReadTeam(3));
  EXPECT_EQ(league.team[3].Wins, 1);
  EXPECT_EQ(league.team[3].Roster[9], 2) << "a former member keeps his slot";
  DailyRecord daily;
  RecordFile(DailyFile(), kDailySlotBytes).Read(1, daily);
  EXPECT_EQ(daily.DailyMark, 99);
}

TEST_F(LoadedTeam, TheFinalOfTheCupWritesNothing) {
  for (const char* type : {"C", "R"}) {
    ASSERT_TRUE(LoadTeam(3, 1));
    const std::string before = Files();
    league.ScheduleGame.assign(2, {});
    league.ScheduleGame[1].GameType = type;
    game.ScheduleRow = 1;
    game.team[1].Wins = static_cast<i16>(game.team[1].Wins + 1);
    EXPECT_TRUE(SaveTeam(3, 1));
    EXPECT_TRUE((Files() == before) == (type[0] == 'C')) << type;
  }
}

}  // namespace
}  // namespace tipline
