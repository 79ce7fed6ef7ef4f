#include "aftermath/season_lines.h"

#include <gtest/gtest.h>

#include "support/finished_game.h"

namespace tipline {
namespace {

void Book(int side, int slot) {
  CloseGameLine(side, slot);
  AddToSeason(side, slot);
}

TEST(SeasonLines, AGameIsBookedWhereItWasPlayed) {
  FinishedGame();
  Score(80, 90);
  StatLine& line = Line(2, 1, 25, 31);
  line.GS = 1, line.Reb = 11, line.Off = 4, line.Pf = 6, line.Dunks = 2, line.Flagrant2 = 1;
  ManAt(2, 1).PlayerGameTime += 599;
  ManAt(2, 1).PositionTime[3] = 330, ManAt(2, 1).PositionPoints[3] = 5;
  ManAt(2, 1).PlusMinus = -4, ManAt(2, 1).Ejected = 1;
  PlayerRecord& p = PlayerAt(2, 1);
  p.Flagrants[3] = 2, p.ShotMadeOffReb3[3] = 1, p.QuarterPoints[5][3] = 3, p.WinLossMark = 0,
  p.TeamLossesPlayed = 77;
  Book(2, 1);
  const StatLine& season = p.Stats[2];
  EXPECT_EQ(season.G, 1);
  EXPECT_EQ(season.GS, 1);
  EXPECT_EQ(season.Min, 31) << "whole minutes";
  EXPECT_EQ(season.Reb, 11);
  EXPECT_EQ(season.Dunks, 2);
  EXPECT_EQ(season.Dq, 1);
  EXPECT_EQ(season.Flagrant2, 1);
  EXPECT_EQ(season.Ejections, 1);
  EXPECT_EQ(p.Flagrants[2], 2);
  EXPECT_EQ(p.ShotMadeOffReb3[2], 1);
  EXPECT_EQ(p.QuarterPoints[5][2], 3);
  EXPECT_EQ(p.PlusMinus, -4);
  EXPECT_EQ(p.TeamWinsPlayed, 1);
  EXPECT_EQ(p.TeamLossesPlayed, 0) << "cleared where it was never marked";
  EXPECT_EQ(p.GamesAtPosition[3], 1);
  EXPECT_EQ(p.MinutesAtPosition[3], 1) << "rounded";
  EXPECT_EQ(p.TeamWinsByPosition[3], 1);
  EXPECT_EQ(p.GamesAtPosition[1], 0);
  EXPECT_EQ(p.HomeStats[2].G, 1);
  EXPECT_EQ(p.HomeStats[2].Dq, 1) << "once";
  EXPECT_EQ(p.HomeStats[3].Reb, 11);
  EXPECT_EQ(p.RoadStats[2].G, 0);
  Book(2, 1);
  EXPECT_EQ(p.HomeStats[2].GS, 2);
  EXPECT_EQ(p.HomeStats[3].Reb, 11) << "the last such game alone";
}

TEST(SeasonLines, WhoWasInForAFreeThrowHasPlayed) {
  FinishedGame();
  EXPECT_FALSE(HasPlayed(1, 7));
  PlayerAt(1, 7).Stats[3].GS = 1;
  EXPECT_FALSE(HasPlayed(1, 7)) << "named, and never on the floor";
  PlayerAt(1, 7).Stats[3].FTA = 1;
  EXPECT_TRUE(HasPlayed(1, 7));
  CountRest(1, 7);
  PlayerAt(1, 8).RestGames = 255;
  CountRest(1, 8);
  EXPECT_EQ(PlayerAt(1, 7).RestGames, 0);
  EXPECT_EQ(PlayerAt(1, 8).RestGames, 255);
}

TEST(SeasonLines, TensMakeDoublesUpToFour) {
  const struct {
    int points, reb, ast, st, bk, to;
    int doubles, triples, quads;
  } cases[] = {{10, 10, 9, 0, 0, 12, 1, 0, 0},   {10, 10, 10, 0, 0, 0, 0, 1, 0},
               {9, 10, 10, 10, 0, 0, 0, 1, 0},   {10, 10, 10, 10, 9, 0, 0, 0, 1},
               {10, 10, 10, 10, 10, 0, 0, 0, 0}, {40, 9, 9, 9, 9, 20, 0, 0, 0}};
  for (const auto& c : cases) {
    FinishedGame();
    StatLine& line = Line(1, 1, c.points);
    line.Reb = static_cast<i16>(c.reb), line.Ast = static_cast<i16>(c.ast), line.St = static_cast<i16>(c.st);
    line.Bk = static_cast<i16>(c.bk), line.To = static_cast<i16>(c.to);
    Book(1, 1);
    const PlayerRecord& p = PlayerAt(1, 1);
    EXPECT_EQ(p.DoubleDoubles, c.doubles) << c.points << c.reb << c.ast << c.st << c.bk;
    EXPECT_EQ(p.TripleDoubles, c.triples);
    EXPECT_EQ(p.QuadDoubles, c.quads);
  }
}

TEST(SeasonLines, HighsOnlyRise) {
  FinishedGame();
  PlayerRecord& p = PlayerAt(1, 1);
  p.GameHighs[2].Off = 3, p.GameHighs[2].Ast = 9;
  StatLine& line = Line(1, 1, 30);
  line.Off = 4, line.Ast = 8;
  Book(1, 1);
  EXPECT_EQ(p.GameHighs[2].Off, 4);
  EXPECT_EQ(p.GameHighs[2].Ast, 9);
  EXPECT_EQ(p.GameHighs[2].Min, 20);
  EXPECT_EQ(p.AwardCounts[2], 30);
  line.FGM = 200;
  Book(1, 1);
  EXPECT_EQ(p.AwardCounts[2], 255);
}

TEST(SeasonLines, ASeriesCountsPlayoffGamesAlone) {
  FinishedGame();
  PlayerRecord& p = PlayerAt(1, 1);
  Line(1, 1, 21).Reb = 5;
  Book(1, 1);
  EXPECT_EQ(p.SeriesStats.G, 0);
  program.PlayoffGame = true;
  p.SeriesStats.SeriesMark = 0, p.SeriesStats.OldFGA = 7;
  Book(1, 1);
  EXPECT_EQ(p.SeriesStats.G, 1);
  EXPECT_EQ(p.SeriesStats.FGA, 17) << "on top of what the old layout had";
  EXPECT_EQ(p.SeriesStats.Reb, 5);
  EXPECT_EQ(p.SeriesStats.Min, 20);
}

}  // namespace
}  // namespace tipline
