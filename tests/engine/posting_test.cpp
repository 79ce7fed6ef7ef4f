#include <gtest/gtest.h>

#include "engine/execution.h"
#include "support/neutral_game.h"

namespace tipline {
namespace {

TEST(Points, OfABenchManOnTheBreak) {
  SetUpNeutralGame();
  game.GameState = "FASTBREAK";
  O().Starters = {{2, 3, 4, 5, 6}};
  PostPoints(2, 1, 2, 'B');
  EXPECT_EQ(O().BenchPoints, 2);
  EXPECT_EQ(O().FastbreakPoints, 2);
  EXPECT_EQ(OMan(1).PositionPoints[1], 2);
  EXPECT_EQ(game.ScoreLog[1].Kind, 'B');
}

TEST(Points, OvertimeIsTheFifthColumnOfTheMan) {
  const struct { int periods, period, column; } cases[] = {{4, 3, 3}, {4, 5, 5}, {2, 3, 5}, {4, 7, 5}};
  for (const auto& c : cases) {
    SetUpNeutralGame();
    Rules().PeriodList = static_cast<u8>(c.periods);
    game.Period = c.period;
    PostPoints(2, 1, 3, '3');
    EXPECT_EQ(Shooter().QuarterPoints[c.column][3], 3) << c.period << " of " << c.periods;
    EXPECT_EQ(O().PeriodScore[c.period], 3) << c.period << " of " << c.periods;
  }
}

TEST(Points, RunsTiesAndLeadChanges) {
  SetUpNeutralGame();
  const struct {
    int side, points, runTeam, runPoints, ties, changes;
  } steps[] = {{2, 2, 2, 2, 0, 0}, {1, 2, 1, 2, 1, 0}, {1, 3, 1, 5, 1, 1},
               {2, 3, 2, 3, 2, 1}, {1, 1, 1, 1, 2, 1}, {2, 2, 2, 2, 2, 2}};
  for (const auto& s : steps) {
    PostPoints(s.side, 1, s.points, 'O');
    EXPECT_EQ(game.RunTeam, s.runTeam);
    EXPECT_EQ(game.RunPoints, s.runPoints);
    EXPECT_EQ(game.Ties, s.ties);
    EXPECT_EQ(game.LeadChanges, s.changes);
  }
  EXPECT_EQ(game.side[1].BiggestLead, 3);
  EXPECT_EQ(game.side[2].BiggestLead, 2);
}

TEST(Points, AFullLogKeepsTheEndOfTheGame) {
  SetUpNeutralGame();
  for (int k = 1; k <= kScoreLogRows + 30; ++k) PostPoints(2, 1, 1, 'F');
  EXPECT_EQ(game.ScoreLogCount, kScoreLogRows);
  EXPECT_EQ(game.ScoreLogDropped, 30);
  EXPECT_EQ(game.ScoreLog[1].HomeScore, 31);
  EXPECT_EQ(game.ScoreLog[kScoreLogRows].HomeScore, kScoreLogRows + 30);
}

TEST(Shots, StreaksTurnOnTheFirstShotOfTheOtherKind) {
  SetUpNeutralGame();
  const struct {
    bool made;
    int streak, longest;
  } shots[] = {{true, 1, 1}, {true, 2, 2}, {false, -1, 2}, {false, -2, 2}, {true, 1, 2}};
  for (const auto& s : shots) {
    PostShot(1, false, s.made);
    EXPECT_EQ(Shooter().FieldGoalStreak, s.streak);
    EXPECT_EQ(Shooter().LongestFieldGoalStreak, s.longest);
  }
}

TEST(Penalty, LadderOfFreeThrows) {
  // Steps at 5, 7 and 10 fouls: none, one and one, two shots.
  // clang-format off
  const struct { const char* why; int fouls, period; bool prePenalty; const char* trip; } cases[] = {
      {"below the first step", 4, 1, false, ""}, {"below it, by the old rule", 4, 1, true, "SHOOT1"},
      {"a step without shots", 5, 1, false, ""}, {"second step", 7, 1, false, "SHOOT1-1"},
      {"last step", 10, 4, false, "SHOOT2"},     {"two more count in overtime", 5, 5, false, "SHOOT1-1"},
  };
  // clang-format on
  for (const auto& c : cases) {
    SetUpNeutralGame();
    Rules().FoulLimit = {{5, 7, 10}};
    Rules().Penalty = {{0, 2, 3}};
    Rules().OneShotPrePenaltyCheck = c.prePenalty;
    game.Period = c.period;
    EXPECT_EQ(PenaltyTrip(c.fouls).Text(), c.trip) << c.why;
  }
}

TEST(Rebounds, AreAChanceForTheTenAndADeadBallIsTheTeams) {
  SetUpNeutralGame();
  game.play.ReboundSide = 1;
  game.play.Rebounder = 4;
  PostRebound();
  EXPECT_EQ(OMan(1).ShareOffReb, 1) << "his side shot";
  EXPECT_EQ(DMan(1).ShareDefReb, 1);
  game.play.DeadBallRebound = 1;
  PostRebound();
  EXPECT_EQ(D().GameTeamRebounds, 1);
  EXPECT_EQ(GameLine(1, 4).Reb, 1);
}

TEST(Shots, AreSplitByKind) {
  const struct {
    PlayKind kind;
    bool three;
    Table<i16, 2, 3> PlayerRecord::*tried;
    char log;
  } cases[] = {{"INSIDE", false, &PlayerRecord::ShotAttInside, 'I'},
               {"OUTSIDE", false, &PlayerRecord::ShotAttOutside, 'O'},
               {"DRIVE", false, &PlayerRecord::ShotAttDrive, 'D'},
               {"THREE", true, &PlayerRecord::ShotAttThree, '3'},
               {"FASTBREAK", false, &PlayerRecord::ShotAttFastbreak2, 'B'},
               {"FASTBREAK", true, &PlayerRecord::ShotAttFastbreak3, '+'},
               {"OFFREB", false, &PlayerRecord::ShotAttOffReb2, 'R'},
               {"OFFREB", true, &PlayerRecord::ShotAttOffReb3, '-'}};
  for (const auto& c : cases) {
    SetUpNeutralGame();
    game.PlayKind = c.kind;
    Shooter().RateDunk = 0;
    PostShot(1, c.three, true);
    EXPECT_EQ((Shooter().*c.tried)[3], 1) << c.kind.Text();
    EXPECT_EQ(game.ScoreLog[1].Kind, c.log) << c.kind.Text();
    EXPECT_EQ(DMan(3).ShareBlocks, c.three ? 0 : 1) << c.kind.Text();
  }
}

}  // namespace
}  // namespace tipline
