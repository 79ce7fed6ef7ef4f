#include "aftermath/standings.h"

#include <gtest/gtest.h>

#include "aftermath/power_rating.h"
#include "aftermath/team_books.h"
#include "support/finished_game.h"

namespace tipline {
namespace {

using Counter = u8 TeamRecord::*;
using T = TeamRecord;

/// Counters that must stand at 1 in a team; all others of the splits at 0.
struct Expected {
  std::vector<Counter> visitor, home;
};

constexpr Counter kSplits[] = {
    &T::HomeWins,           &T::HomeLosses,           &T::NeutralWins,       &T::NeutralLosses,
    &T::OvertimeWins,       &T::OvertimeLosses,       &T::WinsVsWinning,     &T::LossesVsWinning,
    &T::WinsVsLosing,       &T::LossesVsLosing,       &T::CloseWins,         &T::CloseLosses,
    &T::BlowoutWins,        &T::BlowoutLosses,        &T::WinsLeadingAtHalf, &T::LossesLeadingAtHalf,
    &T::WinsTrailingAtHalf, &T::LossesTrailingAtHalf, &T::WinsScoring100,    &T::LossesScoring100,
    &T::WinsAllowing100,    &T::LossesAllowing100,    &T::DivisionWins,      &T::DivisionLosses,
    &T::ConferenceWins,     &T::ConferenceLosses};

struct Case {
  const char* why;
  void (*play)();
  Expected counted;
};

// clang-format off
const Case kCases[] = {
    {"a plain home win; both stood level, and count as winning teams",
     [] { Score(80, 85, 40, 45); },
     {{&T::LossesVsWinning, &T::LossesTrailingAtHalf, &T::DivisionLosses, &T::ConferenceLosses},
      {&T::WinsVsWinning, &T::WinsLeadingAtHalf, &T::HomeWins, &T::DivisionWins, &T::ConferenceWins}}},
    {"a road win is a loss at home, nothing more; three points are close",
     [] { Score(83, 80, 39, 40); },
     {{&T::WinsVsWinning, &T::WinsTrailingAtHalf, &T::CloseWins, &T::DivisionWins, &T::ConferenceWins},
      {&T::LossesVsWinning, &T::LossesLeadingAtHalf, &T::CloseLosses, &T::HomeLosses, &T::DivisionLosses, &T::ConferenceLosses}}},
    {"level at the half counts as trailing; ten are a blowout, nine are not",
     [] { Score(90, 80, 40, 40); },
     {{&T::WinsVsWinning, &T::WinsTrailingAtHalf, &T::BlowoutWins, &T::DivisionWins, &T::ConferenceWins},
      {&T::LossesVsWinning, &T::LossesLeadingAtHalf, &T::BlowoutLosses, &T::HomeLosses, &T::DivisionLosses, &T::ConferenceLosses}}},
    {"without a point at the half it is neither; another division of the conference",
     [] { Score(40, 49); game.GameTeam[2] = 21; league.Conference[21] = 1; },
     {{&T::LossesVsWinning, &T::ConferenceLosses},
      {&T::WinsVsWinning, &T::HomeWins, &T::ConferenceWins}}},
    {"overtime on a neutral court, both with 100; other conference, losing teams",
     [] {
       Score(104, 100, 50, 40);
       game.Period = 5, game.NeutralGame = true;
       game.GameTeam[2] = 21, league.Conference[21] = 2;
       for (TeamRecord& team : game.team) team.Losses = 1;
     },
     {{&T::WinsVsLosing, &T::WinsLeadingAtHalf, &T::OvertimeWins, &T::NeutralWins, &T::WinsScoring100, &T::WinsAllowing100},
      {&T::LossesVsLosing, &T::LossesTrailingAtHalf, &T::OvertimeLosses, &T::NeutralLosses, &T::LossesAllowing100, &T::LossesScoring100}}},
    {"teams of no used conference, and of none at all, share neither",
     [] { Score(80, 85, 45, 40); league.Conference[1] = league.Conference[2] = 0; game.GameTeam[1] = 999; },
     {{&T::LossesVsWinning, &T::LossesLeadingAtHalf},
      {&T::WinsVsWinning, &T::WinsTrailingAtHalf, &T::HomeWins}}},
};
// clang-format on

TEST(Standings, EachSplitCountsItsGames) {
  for (const Case& c : kCases) {
    FinishedGame();
    c.play();
    AddToStandings();
    for (int side = 1; side <= 2; ++side) {
      const auto& ones = side == 1 ? c.counted.visitor : c.counted.home;
      for (std::size_t k = 0; k < std::size(kSplits); ++k) {
        const bool one = std::find(ones.begin(), ones.end(), kSplits[k]) != ones.end();
        EXPECT_EQ(game.team[side].*kSplits[k], one) << c.why << ", side " << side << ", split " << k;
      }
    }
    const int winner = WinnerSide();
    EXPECT_EQ(game.team[winner].Wins, 1) << c.why;
    EXPECT_EQ(game.team[winner].LastTen[1], 'W');
    EXPECT_EQ(game.team[3 - winner].LastTen[1], 'L');
    EXPECT_TRUE(game.BoxRebuild);
  }
}

TEST(Standings, StreaksGoOnOrBegin) {
  const struct { int before, won, lost; } cases[] = {{0, 1, -1}, {3, 4, -1}, {-3, 1, -4}};
  for (const auto& c : cases) {
    FinishedGame();
    Score(90, 80);
    for (TeamRecord& team : game.team) team.Streak = static_cast<i16>(c.before);
    AddToStandings();
    EXPECT_EQ(game.team[1].Streak, c.won);
    EXPECT_EQ(game.team[2].Streak, c.lost);
  }
}

TEST(Standings, TheOldestOfTenResultsFallsOut) {
  FinishedGame();
  Score(90, 80);
  for (int k = 1; k <= 10; ++k) game.team[1].LastTen[k] = k == 9 ? "L" : "W";
  AddToStandings();
  for (int k = 1; k <= 10; ++k) EXPECT_EQ(game.team[1].LastTen[k], k == 10 ? 'L' : 'W') << k;
}

TEST(PowerRating, MovesByMarginSpreadAndGames) {
  const struct {
    const char* why;
    int visitor, home, spread, games;
    double up, down;
  } cases[] = {
      {"one more than the spread: margin 5 counts 6", 85, 80, 5, 0, 0.3, -0.3},
      {"just the spread is no more than it", 84, 80, 5, 0, -0.3, -0.3},
      {"four beyond", 88, 80, 5, 0, 0.5, -0.5},
      {"more than six", 89, 80, 3, 0, 0.7, -0.7},
      {"ten count nine: 10 is nine more than 1", 90, 80, 1, 0, 0.7, -0.7},
      {"thirty count half", 110, 80, 7, 0, 0.7, -0.7},
      {"twenty-nine count six tenths", 109, 80, 9, 0, 0.9, -0.9},
      {"far below the spread, after thirty games", 70, 95, 5, 30, -0.63, 0.63},
      {"after ten", 85, 80, 5, 10, 0.27, -0.27},
      {"after twenty", 85, 80, 5, 29, 0.24, -0.24},
  };
  for (const auto& c : cases) {
    FinishedGame();
    Score(c.visitor, c.home);
    game.SpreadPoints = c.spread;
    for (TeamRecord& team : game.team) team.Losses = static_cast<i16>(c.games);
    UpdatePowerRatings();
    EXPECT_NEAR(game.team[1].PowerRating, c.up, 1e-9) << c.why;
    EXPECT_NEAR(game.team[2].PowerRating, c.down, 1e-9) << c.why;
    EXPECT_EQ(game.SpreadPoints, -c.spread);
  }
}

TEST(PowerRating, BigMarginsCountLess) {
  const std::pair<int, double> cases[] = {{9, 10},  {10, 10}, {-10, -8},  {14, 13.6}, {15, 13},
                                          {20, 15}, {25, 16}, {29, 18.4}, {30, 16},   {-40, -19}};
  for (const auto& [margin, counts] : cases) EXPECT_NEAR(DampedMargin(margin), counts, 1e-9) << margin;
}

TEST(TeamBooks, HighsAndLowsOfBothColumns) {
  FinishedGame();
  TeamRecord& team = game.team[1];
  const auto play = [](int own, int other, int fouls, int steals) {
    Score(own, other);
    game.side[1].TeamLine.Pf = static_cast<i16>(fouls);
    game.side[2].TeamLine.St = static_cast<i16>(steals);
    AddTeamBooks();
  };
  team.HighPoints[1] = 0, team.LowPf[1] = 99;
  play(100, 90, 20, 9);
  EXPECT_EQ(team.LowPf[1], 20) << "a first game is high and low";
  play(80, 300, 25, 4);
  EXPECT_EQ(team.HighPoints[1], 100);
  EXPECT_EQ(team.LowPoints[1], 80);
  EXPECT_EQ(team.HighPoints[2], 255) << "held at what a byte holds";
  EXPECT_EQ(team.LowPoints[2], 90);
  EXPECT_EQ(team.HighPf[1], 25);
  EXPECT_EQ(team.LowPf[1], 20);
  EXPECT_EQ(team.HighSt[2], 9);
  EXPECT_EQ(team.LowSt[2], 4);
}

TEST(TeamBooks, ShotTableByKindAndWhatIsNobodys) {
  FinishedGame();
  Line(1, 3, 6);
  PlayerAt(1, 3).ShotAttThree[3] = 4, PlayerAt(1, 3).ShotAttDrive[3] = 2;
  game.side[1].GameTeamTurnovers = 1, game.side[2].GameTeamTurnovers = 2;
  game.side[1].GameTeamRebounds = 7, game.side[2].GameTeamRebounds = 9;
  game.side[1].PeriodScore[4] = 21, game.side[2].PeriodScore[4] = 22;
  AddTeamBooks();
  const TeamRecord& team = game.team[1];
  EXPECT_EQ(team.ShotAttThree, 4);
  EXPECT_EQ(team.ShotAttDrive, 2);
  EXPECT_EQ(team.ShotAttSpare1, 0);
  EXPECT_EQ(team.TeamTurnovers[1], 1);
  EXPECT_EQ(team.TeamTurnovers[2], 2);
  EXPECT_EQ(team.TeamRebounds[2], 7);
  EXPECT_EQ(team.OppTeamRebounds, 9);
  EXPECT_EQ(team.PeriodPoints[4][1], 21);
  EXPECT_EQ(team.PeriodPoints[4][2], 22);
}

}  // namespace
}  // namespace tipline
