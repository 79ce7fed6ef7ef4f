#include <gtest/gtest.h>

#include "league/program.h"
#include "narration/describe.h"
#include "support/neutral_game.h"

namespace tipline {
namespace {

void ReadyToTell() {
  SetUpNeutralGame();
  game.team[1].City = "Utah", game.team[2].City = "Denver";
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= 10; ++slot)
      game.player[side][slot].LastName =
          (side == 1 ? "Away" : "Home") + std::string(1, static_cast<char>('@' + slot));
  }
  Scene& s = game.scene;
  s.BallPlayer = s.BallSlot = s.BallDefender = 1;
  s.PlayKind = "OUTSIDE", s.PlayResult = "G", s.GameState = "OFFENSE";
  s.PlayTime = 150, s.GameClock = 7000;
  game.play.Posted = "G";
}

/// The lines that a describer adds, joined by bars.
std::string Told(void (*describe)()) {
  game.commentary.PbpLineCount = 0;
  describe();
  std::string all;
  for (int n = 1; n <= game.commentary.PbpLineCount; ++n) all += game.commentary.Line[n].Text + "|";
  return all;
}
bool EverTold(void (*describe)(), const std::string& words) {
  for (int n = 0; n < 400; ++n) {
    if (Told(describe).find(words) != std::string::npos) return true;
  }
  return false;
}

// clang-format off
TEST(FloorLines, FollowTheMoment) {
  const auto timeout = [] { DescribeTimeout(1, false); };
  const auto media = [] { DescribeTimeout(1, true); };
  const auto opening = +[] { DescribeOpening(); };
  const struct { const char* why; void (*change)(); void (*describe)(); const char* words; bool told; } cases[] = {
      {"halves", [] { Rules().PeriodList = 2, game.Period = 2, game.GameClock = 7200, setup.PbpStartingLineupsList = 1; }, opening, "the second half..", true},
      {"halves have no quarter", [] { Rules().PeriodList = 2, game.Period = 2, game.GameClock = 7200, setup.PbpStartingLineupsList = 1; }, opening, "quarter", false},
      {"third quarter", [] { game.Period = 3, game.GameClock = 7200, setup.PbpStartingLineupsList = 1; }, opening, "the third quarter..", true},
      {"overtime", [] { game.Period = 5, Rules().OverTimeList = 5, game.GameClock = 3000; }, opening, "we're ready for overtime", true},
      {"a record", [] { program.GameKind = "L", game.GameClock = 7200, game.team[1].Wins = 3; }, opening, "Utah (3 - 0) and Denver|", true},
      {"none in the playoffs", [] { program.GameKind = "L", program.PlayoffGame = true, game.GameClock = 7200, game.team[1].Wins = 3; }, opening, "(3 - 0)", false},
      {"an eight", [] { program.GameKind = "L", game.GameClock = 7200, game.team[1].Streak = 8; }, opening, "an 8 game winning streak", true},
      {"one inch", [] { game.GameClock = 7200, setup.PbpStartingLineupsList = 2, game.player[2][1].HeightFeet = 6, game.player[2][1].HeightInches = 1; }, opening, "at guard HomeA, 6 foot 1 inch|", true},
      {"two inches", [] { game.GameClock = 7200, setup.PbpStartingLineupsList = 2, game.player[2][1].HeightFeet = 6, game.player[2][1].HeightInches = 2; }, opening, "6 foot 2 inches|", true},
      {"the coach calls", [] { game.team[1].CoachName = "Cole Grant"; }, timeout, "Timeout Utah|Cole Grant calls time|", true},
      {"charged in quarters", [] {}, media, "Media Timeout|Charged to Utah|", true},
      {"not in halves", [] { Rules().PeriodList = 2; }, media, "Charged", false},
      {"the half", [] { game.Period = 2; }, DescribePeriodEnd, "the end of the first half|we're tied at 0|", true},
      {"a decided game", [] { game.Period = 4, game.side[1].Score = 90; }, DescribePeriodEnd, "Game Over|Utah 90 Denver 0|", true},
      {"a winner at the horn", [] { game.Period = 4, game.scene.GameClock = game.scene.PlayTime = game.PlayTime = 20, game.side[2].Score = 2; }, DescribePeriodEnd, "game winner!", true},
      {"he was ahead before", [] { game.Period = 4, game.scene.GameClock = game.scene.PlayTime = game.PlayTime = 20, game.scene.Score[2] = 1, game.side[2].Score = 3; }, DescribePeriodEnd, "for the win!", false},
      {"the men jump", [] { game.OffenseSide = 2; }, DescribeTieUp, "they'll jump", true},
      {"the arrow tells", [] { Rules().JumpBallList = 1, game.OffenseSide = 1; }, DescribeTieUp, "the possession arrow favors Utah|", true},
      {"his own miss", [] { game.play.ReboundSide = 2, game.play.Rebounder = 1; }, DescribeRebound, "HomeA gets his own rebound|", true},
      {"a mate's miss is not his own", [] { game.play.ReboundSide = 2, game.play.Rebounder = 2; }, DescribeRebound, "own rebound", false},
      {"out of bounds", [] { game.play.ReboundSide = 1, game.play.DeadBallRebound = 1; }, DescribeRebound, "Utah ball|", true},
      {"an air ball touched nothing", [] { game.play.ReboundSide = 1, game.play.DeadBallRebound = game.play.AirBall = 1; }, DescribeRebound, "board", false},
      {"short", [] { setup.PBPOption = 1, game.play.ReboundSide = 1, game.play.Rebounder = 4; }, DescribeRebound, "rebounded by AwayD|", true},
      {"short has no way of the ball", [] { setup.PBPOption = 1; }, DescribeMovement, "|", false},
      {"five seconds", [] { game.play.Posted = "IN-5"; }, DescribeInbound, "5 second violation!|", true},
  };
  for (const auto& c : cases) {
    ReadyToTell();
    c.change();
    EXPECT_EQ(EverTold(c.describe, c.words), c.told) << c.why << ": " << Told(c.describe);
  }
}

TEST(FloorLines, TellLineUpChanges) {
  const struct { const char* why; void (*change)(); const char* words; bool told; } cases[] = {
      {"man for man", [] { O().Lineup[2] = 7; }, "HomeG for HomeB at shooting guard|", true},
      {"no room for the position", [] { O().Lineup[2] = 7; }, "subs for HomeB at", false},
      {"he moves over", [] { O().Lineup[2] = 7, O().Lineup[3] = 2; }, "HomeB slides to small forward|", true},
      {"fouled out", [] { O().Lineup[2] = 7, O().PreviousLineup[2] = 0, game.scene.Five[2][2] = 2, Rules().DqList = 6, game.player[2][2].Stats[3].Pf = 6, game.player[2][2].Stats[3].FGM = 1, game.player[2][2].Stats[3].Reb = 1; }, "HomeB exits with 2 points, 1 rebound|", true},
      {"four fresh men of a close game", [] { for (int p = 1; p <= 4; ++p) O().Lineup[p] = 5 + p, OMan(5 + p).FatigueLoad = 0; }, "line change", false},
      {"four of a rout", [] { D().Score = 25; for (int p = 1; p <= 4; ++p) O().Lineup[p] = 5 + p, OMan(5 + p).FatigueLoad = 0; }, "line change for Denver|HomeF, HomeG, HomeH, and HomeI|", true},
  };
  for (const auto& c : cases) {
    ReadyToTell();
    for (auto& side : game.man) for (Man& man : side) man.FatigueLoad = man.PlayerGameTime = 100;
    for (Side& side : game.side) side.PreviousLineup = side.Lineup;
    c.change();
    EXPECT_EQ(EverTold(DescribeLineupChanges, c.words), c.told) << c.why << ": " << Told(DescribeLineupChanges);
  }
}
// clang-format on

// The last man named before a shooter who was assisted is his passer, and nobody passes to himself.
TEST(FloorLines, BringTheBallToTheShooter) {
  for (const PlayKind kind : {PlayKind("INSIDE"), PlayKind("OUTSIDE"), PlayKind("FASTBREAK")}) {
    ReadyToTell();
    game.scene.PlayKind = kind;
    game.scene.NeedsBringUp = 1;
    game.play.Assisted = true, game.play.Assister = 3;
    for (int n = 0; n < 500; ++n) {
      const std::string told = Told(DescribeMovement);
      EXPECT_EQ(told.find("HomeA passes to"), std::string::npos) << told;
      EXPECT_EQ(told.find("HomeB passes to HomeA"), std::string::npos) << told;
    }
    EXPECT_TRUE(EverTold(DescribeMovement, "HomeC")) << kind.Text();
  }
}

}  // namespace
}  // namespace tipline
