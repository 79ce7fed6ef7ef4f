#include <gtest/gtest.h>

#include "narration/describe.h"
#include "support/shot_scene.h"

namespace tipline {
namespace {

/// A plain basket of Denver, at home, has just been told in one line.
void SetUpScore(int boston, int denver) {
  SetUpShot("OUTSIDE", "G");
  D().Score = boston, O().Score = denver;
  NewLine("Ball hits it");
  game.commentary.ResultLine = 1;
}
void Straight(int points) { game.RunTeam = 2, game.RunPoints = points; }
void TimeLeft(int tenths) { game.Period = 4, game.scene.GameClock = tenths, game.scene.PlayTime = 0; }

// clang-format off
TEST(ScoreLines, AreMadeWhereTheyAreTrueAndDue) {
  const struct { const char* why; int boston, denver; void (*change)(); const char* words; int least, most; } cases[] = {
      {"five", 10, 15, [] {}, "with a 5 point lead", 1, 100},
      {"a city leads", 10, 15, [] {}, "Denver leads by 5", 1, 200},
      {"they lead", 10, 15, [] {}, "Rockets lead by 5", 1, 200},
      {"the exact score", 10, 15, [] {}, "Denver 15 Boston 10", 20, 200},
      {"behind, the leader still first", 15, 10, [] {}, "Boston 15 Denver 10", 20, 200},
      {"behind is not ahead", 15, 10, [] {}, "lead", 0, 0},
      {"a tie has no leader", 15, 15, [] {}, "lead", 0, 0},
      {"nor one who trails", 15, 15, [] {}, "trail", 0, 0},
      {"tie", 15, 15, [] {}, "tie", 20, 300},
      {"too early", 5, 4, [] {}, "Denver", 0, 0},
      {"eight", 10, 18, [] { Straight(8); }, "on an 8-0 run", 20, 200},
      {"ten", 10, 18, [] { Straight(10); }, "on a 10-0 run", 20, 250},
      {"eleven", 10, 21, [] { Straight(11); }, "on an 11-0 run", 20, 250},
      {"eighteen", 10, 28, [] { Straight(18); }, "on an 18-0 run", 20, 250},
      {"five are no run", 10, 15, [] { Straight(5); }, "straight", 0, 0},
      {"the other side's run", 15, 10, [] { game.RunTeam = 1, game.RunPoints = 12; }, "12", 0, 0},
      {"nothing more is said", 90, 100, [] { TimeLeft(599), game.commentary.ForceScoreRemark = 1; }, "Denver", 0, 0},
      {"ten behind the last three minutes", 90, 100, [] { TimeLeft(1800), game.commentary.ForceScoreRemark = 1; }, "10", 100, 400},
      {"not in them", 90, 100, [] { TimeLeft(1799), game.commentary.ForceScoreRemark = 1; }, "10", 0, 0},
      {"free throws come first", 10, 15, [] { game.play.Posted = "GF"; }, "Denver", 0, 0},
      {"enough was said", 10, 15, [] { NewLine("assisted by Mate"); }, "Denver", 0, 0},
      {"a result of three lines that nothing led up to", 10, 15, [] { game.commentary.ResultLine = 0, NewLine("one"), NewLine("two"); }, "Denver", 0, 0},
      {"behind a break", 10, 15, [] { game.commentary.KindBefore = "FASTBREAK"; }, "Denver", 0, 0},
      {"a zone", 10, 15, [] { D().DefenseType = 2; }, "Boston in a 2-3 zone", 40, 130},
      {"man where nothing else is allowed", 10, 15, [] {}, "man defense", 0, 0},
      {"a drought", 10, 15, [] { O().TimeSinceScore = 6059; }, "10:05", 100, 400},
      {"no drought", 10, 15, [] { O().TimeSinceScore = 1199; }, "1:5", 0, 0},
      {"lead changes", 10, 15, [] { game.LeadChanges = 25; }, "25 lead changes", 80, 200},
      {"told before", 10, 15, [] { game.LeadChanges = game.commentary.LeadChangesSaid = 25; }, "25 lead changes", 0, 0},
  };
  for (const auto& c : cases) {
    SetUpScore(c.boston, c.denver);
    c.change();
    const int told = Told(Tellings(DescribeScoreSituation), c.words);
    EXPECT_GE(told, c.least) << c.why;
    EXPECT_LE(told, c.most) << c.why;
  }
}

TEST(ScoreLines, ThePossessionDies) {
  const struct { const char* why; void (*change)(); const char* words; int least, most; } cases[] = {
      {"a heave does not count", [] { game.scene.PlayTime = 3000; }, "Ball shoots", 400, 400},
      {"none with time left", [] {}, "Ball shoots", 0, 0},
      {"none by who leads at the end", [] { game.Period = 4, O().Score = 2, game.scene.PlayTime = 3000; }, "Ball shoots", 0, 0},
      {"he lets it run", [] { game.Period = 4, O().Score = 2, game.scene.PlayTime = 3000; }, "Ball is dribbling out the clock", 400, 400},
      {"close", [] { game.Period = 4, D().Score = 3; }, "shot off!", 300, 400},
      {"not close", [] { game.Period = 4, D().Score = 4; }, "!", 0, 0},
      {"they wanted to foul", [] { game.scene.StealFoul = 1; }, "Boston can't foul!", 80, 160},
      {"said once a game at the end", [] { game.Period = 4, game.scene.QuickFoul = 1, game.commentary.CantFoulSaid = 1; }, "foul", 0, 0},
      {"said once", [] { game.commentary.NoShotSaid = 12; }, "shot", 0, 0},
  };
  for (const auto& c : cases) {
    SetUpShot("OUTSIDE", "NOSHOT");
    c.change();
    const int told = Told(Tellings(DescribeNoShot), c.words);
    EXPECT_GE(told, c.least) << c.why;
    EXPECT_LE(told, c.most) << c.why;
  }
}
// clang-format on

}  // namespace
}  // namespace tipline
