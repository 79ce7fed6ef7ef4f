#include <gtest/gtest.h>

#include "narration/describe.h"
#include "support/shot_scene.h"

namespace tipline {
namespace {

// clang-format off
TEST(ShotLines, BriefLinesAreTheseAndNoOthers) {
  const struct { PlayKind kind; PlayResult posted; void (*change)(); Lines lines; } cases[] = {
      {"OUTSIDE", "G", [] {}, {"Ball scores from outside"}},
      {"HOLD BALL", "M", [] {}, {"Ball misses from outside"}},
      {"INSIDE", "M", [] { game.play.Blocked = true, game.play.Blocker = 1; },
       {"Ball misses from inside", "Guard blocks inside shot by Ball"}},
      {"DRIVE", "MF", [] { game.play.Fouler = 1; }, {"Ball misses on a drive", "but he's fouled by Guard"}},
      {"THREE", "G3F", [] { game.play.Fouler = 1; }, {"Ball scores a three", "and he's fouled by Guard"}},
      {"THREE", "G", [] {}, {"Ball scores from outside"}},  // a foot on the line
      {"FASTBREAK", "G", [] {}, {"Ball scores on a fastbreak"}},
      {"FASTBREAK", "M3", [] { game.scene.FastBreak.BreakThree = 1; }, {"Ball misses on a fastbreak 3"}},
      {"OFFREB", "G", [] { game.scene.PutbackClass = 1; }, {"Ball scores from inside"}},
      {"OFFREB", "G3", [] { game.scene.PutbackClass = 3; }, {"Ball scores a three"}},
  };
  for (const auto& c : cases) {
    SetUpShot(c.kind, c.posted);
    setup.PBPOption = 1;
    c.change();
    DescribeShot();
    DescribeScoreSituation();
    EXPECT_EQ(LinesNow(), c.lines) << c.kind.Text();
    EXPECT_EQ(game.commentary.Line[1].Sound, IsMadeShot(c.posted) ? 2 : 0) << c.kind.Text();
  }
}

TEST(ShotLines, SayOnlyWhatThePlayAllows) {
  const struct { const char* why; PlayKind kind; PlayResult posted; void (*change)(); const char* words; int least, most; } cases[] = {
      {"a passer", "OUTSIDE", "G", [] { game.play.Assisted = true, game.play.Assister = 2; }, "Mate", 400, 400},
      {"no pass", "OUTSIDE", "G", [] { game.play.Assister = 2; }, "Mate", 0, 0},
      {"a put-back has no passer", "OFFREB", "G", [] { game.play.Assisted = true, game.play.Assister = 2; }, "Mate", 0, 0},
      {"they foul on purpose", "OUTSIDE", "G", [] { game.play.Assisted = true, game.play.Assister = 2, game.scene.QuickFoul = 3; }, "Mate", 0, 0},
      {"the first basket is no lead", "OUTSIDE", "G", [] { O().Score = 2; }, "for the lead", 0, 0},
      {"it takes the lead", "OUTSIDE", "G", [] { game.scene.Score = {{10, 9}}; D().Score = 10, O().Score = 11; }, "for the lead", 400, 400},
      {"it was theirs before", "OUTSIDE", "G", [] { game.scene.Score = {{8, 9}}; D().Score = 8, O().Score = 11; }, "for the lead", 0, 0},
      {"it ties", "THREE", "G3", [] { game.scene.Score = {{10, 7}}; D().Score = 10, O().Score = 10; }, " tie", 400, 400},
      {"no win in the first period", "OUTSIDE", "G", [] { game.scene.Score = {{10, 9}}; D().Score = 10, O().Score = 11, game.scene.GameClock = 60; }, "the win", 0, 0},
      {"the win", "OUTSIDE", "G", [] { game.scene.Score = {{10, 9}}; D().Score = 10, O().Score = 11, game.scene.GameClock = 60, game.Period = 4; }, "for the win!", 200, 340},
      {"a dunk of the books", "INSIDE", "G", [] { game.ScoreLog[++game.ScoreLogCount].Kind = 'K'; }, "jumper", 0, 0},
      {"no dunk in the books", "FASTBREAK", "G", [] { Shooter().RateDunk = 12; }, "dunk", 0, 0},
      {"blocked", "OUTSIDE", "M", [] { game.play.Blocked = true, game.play.Blocker = 1; }, "Guard", 400, 400},
      {"a nickname is for the home side", "OUTSIDE", "M", [] { game.play.Blocked = true, game.play.Blocker = 1; game.player[1][1].Nickname = "Wall"; }, "Wall", 0, 0},
      {"an air ball", "THREE", "M3", [] { game.play.AirBall = 1; }, "rim", 0, 0},
      {"set shots of 1950", "OUTSIDE", "M", [] { Shooter().Year = 1950; }, "set shot", 120, 280},
      {"none of 1959", "OUTSIDE", "M", [] { Shooter().Year = 1959; }, "set shot", 0, 0},
      {"no three with a foot on the line", "THREE", "G", [] { Rules().ThreePointCheck = 1; }, "hits the three", 0, 0},
      {"old and good", "THREE", "G3", [] { Shooter().RateOffThree = 9, Shooter().Age = 38; }, "the old man", 400, 400},
      {"not of a woman", "THREE", "G3", [] { Shooter().RateOffThree = 9, Shooter().Age = 38; game.team[1].TeamSex = "W"; }, "the old man", 0, 0},
      {"double teamed", "OUTSIDE", "M", [] { OMan().DoubleTeamOutside = 1; }, "double", 40, 200},
      {"too late to tell it", "OUTSIDE", "M", [] { OMan().DoubleTeamOutside = 1, game.scene.GameClock = 119; }, "double", 0, 0},
      {"goaltending", "DRIVE", "G", [] { game.play.GoaltendMark = 1; }, "goaltending", 400, 400},
      {"stuck", "DRIVE", "M", [] { game.play.ShotStuck = 1; }, "rim", 200, 400},
      {"nobody shoots", "DRIVE", "G", [] { game.scene.BallPlayer = 0; }, "", 0, 0},
  };
  for (const auto& c : cases) {
    SetUpShot(c.kind, c.posted);
    c.change();
    const int told = Told(Tellings(DescribeShot), c.words);
    EXPECT_GE(told, c.least) << c.why;
    EXPECT_LE(told, c.most) << c.why;
  }
}
// clang-format on

TEST(ShotLines, ADoubleDoubleIsToldOnce) {
  SetUpShot("OUTSIDE", "G");
  Shooter().Stats[3].FGM = 5, Shooter().Stats[3].FGA = 9, Shooter().Stats[3].Reb = 10;
  DescribeShot();
  DescribeShot();
  const Lines lines = LinesNow();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "a double-double for Ball"), 1);
}

}  // namespace
}  // namespace tipline
