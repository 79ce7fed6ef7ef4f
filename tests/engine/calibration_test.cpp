#include <gtest/gtest.h>

#include <array>

#include "base/record_file.h"
#include "engine/weights.h"
#include "harness/temporary_home.h"
#include "support/neutral_game.h"
#include "support/rows.h"

namespace tipline {

namespace {

/// A man of team 1 whose replay is half a point low on twos, and steals and blocks too much.
PlayerRecord ReplayMan() {
  PlayerRecord man = MeanMan(1, 1);
  StatLine& replay = man.Stats[2];
  replay.FGA = 218, replay.FGM = 105, replay.F3A = 18, replay.F3M = 6;
  replay.St = 20, replay.Bk = 20, replay.To = 39, replay.Pf = 62;
  return man;
}

void SetUpLeague(int rows) {
  SetUpNeutralGame();
  league.team[1].TeamActive = 1;
  league.player.assign(static_cast<std::size_t>(rows) + 1, ReplayMan());
  OTeam().Wins = 9, OTeam().Losses = 3, DTeam().Losses = 10;
}

void ExpectTuned(const char* why) {
  EXPECT_NEAR(game.TwoTune, 25, 1e-3) << why;            // (0.500 - 0.495) x 5000
  EXPECT_NEAR(game.ThreeTune, 3.125, 1e-3) << why;       // (0.334375 - 0.333333) x 3000
  EXPECT_NEAR(game.TurnoverTune, 0.94974, 1e-4) << why;  // (0.175850 / 0.178899)^3
  EXPECT_NEAR(game.FoulTune, 0.99881, 1e-4) << why;      // (0.284291 / 0.284404)^3
  EXPECT_NEAR(game.StealTune, 1.03360, 1e-4) << why;     // (0.093787 / 0.091743)^1.5
  EXPECT_EQ(game.BlockTune, 0.7) << why;
}

}  // namespace

TEST(CalibrateLeague, PullsADriftedReplayBack) {
  const TemporaryHome home;
  SetUpLeague(200);
  CalibrateLeague();
  ExpectTuned("from memory");
  league.player.clear();
  program.LeagueFolder = home.Home();
  const RecordFile file(program.LeagueFolder / "HCPLAYER", kPlayerSlotBytes);
  for (int row = 1; row <= 60; ++row) ASSERT_TRUE(file.Write(row, ReplayMan()));
  CalibrateLeague();
  ExpectTuned("from the file");
}

TEST(CalibrateLeague, LeavesAloneWhatItCannotMeasure) {
  constexpr std::array kNeutral{0.0, 0.0, 1.0, 1.0, 1.0, 1.0};
  const auto setUp = [] { SetUpLeague(200), game.TwoTune = game.BlockTune = 9; };
  const auto tunes = [] {
    CalibrateLeague();
    return std::array<double, 6>{game.TwoTune,  game.ThreeTune, game.TurnoverTune,
                                 game.FoulTune, game.StealTune, game.BlockTune};
  };
  // clang-format off
  ExpectRows(setUp, tunes, {
      {"draft team", [] { DTeam().RosterKind = "D"; }, kNeutral},
      {"exhibition", [] { program.GameKind = "E"; }, kNeutral},
      {"two seasons", [] { DTeam().Year = 2001; }, kNeutral},
      {"five games", [] { OTeam().Wins = 2; }, kNeutral},
      {"49 men", [] { league.player.resize(50); }, kNeutral},
      {"men of a closed team", [] { league.team[1].TeamActive = 0; }, kNeutral},
      {"hardly played", [] { for (auto& man : league.player) man.Stats[2].FGA = 28; }, kNeutral},
      {"no league at all", [] { league.player.clear(); }, kNeutral},
      {"no era table", [] { league.EraPro.Fill({}); }, kNeutral},
  });
  // clang-format on
}

TEST(CalibrateLeague, MeasuresBothTeams) {
  SetUpLeague(0);
  Shooter().RatePassing = 9;  // 5 on average
  for (int p = 1; p <= 5; ++p) game.player[1][p].Stats[1].Min = 0;
  game.player[2][6] = MeanMan(3, 1), game.player[2][6].Year = 1990;  // not of this team
  CalibrateLeague();
  EXPECT_NEAR(O().TeamPassing, 25, 1e-9);
  EXPECT_EQ(D().TeamPassing, 18);
  EXPECT_EQ(O().WinShare, 0.75);
  EXPECT_EQ(D().WinShare, 0);
  EXPECT_EQ(game.MixedEras, 0);
  game.player[1][5].Year = 1990;
  CalibrateLeague();
  EXPECT_EQ(game.MixedEras, 1);
  game.player[1][5].Year = 2000, league.MixedYears = true;
  CalibrateLeague();
  EXPECT_EQ(game.MixedEras, 1);
}

}  // namespace tipline
