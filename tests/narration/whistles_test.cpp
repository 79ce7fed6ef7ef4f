#include <gtest/gtest.h>

#include "narration/describe.h"
#include "support/whistle_scene.h"

namespace tipline {
namespace {

using Telltale = void (*)();
constexpr int kAll = kTellings;
constexpr auto kNothing = [] {};

// clang-format off
TEST(Whistles, SayWhatHappened) {
  const struct {
    const char* why; PlayKind kind; PlayResult posted; Telltale routine, change; const char* words; int least, most;
  } cases[] = {
      {"a woman hit hard",        "INSIDE", "MF",  DescribeFouledOnShot, [] { DTeam().TeamSex = "W", game.Tension = 1; }, "got her with the body!", 40, 200},
      {"a made three and a foul", "THREE",  "G3F", DescribeFouledOnShot, kNothing, "chance for a four point play!", kAll, kAll},
      {"his points",              "INSIDE", "GF",  DescribeFouledOnShot, [] { setup.DisplayStatsInPbpCheck = 1, Books().FGM = 5, Books().F3M = 1, Books().FTM = 2; }, " (13)/", kAll, kAll},
      {"and no sixth complained of", "DRIVE", "F1", DescribeFoul, [] { Defender().Stats[3].Pf = 6; }, "glares", 0, 0},
      {"a weak call",             "DRIVE",  "F0",  DescribeFoul, kNothing, "weak call", 1, 30},
      {"none when they foul",     "DRIVE",  "F0",  DescribeFoul, [] { game.scene.QuickFoul = 1; }, "weak call", 0, 0},
      {"a bad man at the line",   "HOLD BALL", "F2", DescribeFoul, [] { game.scene.QuickFoul = 3, Real().FTA = 100, Real().FTM = 40; }, "a little hack-a-Smith", 100, 300},
      {"a good one",              "HOLD BALL", "F2", DescribeFoul, [] { game.scene.QuickFoul = 3; }, "hack-a", 0, 0},
      {"away from the ball another was fouled", "INSIDE", "F0", DescribeFoul, [] { game.play.OffBallFoul = 1, game.BallPlayer = 3; }, "Smith", 0, 30},
      {"team fouls of each side", "", "2XPF", DescribeDoubleFoul, [] { game.play.OffenseFouler = 2, Defender().Stats[3].Pf = 3, D().TeamFouls = 4; }, "3rd F:4/", kAll, kAll},
      {"off the defense",         "", "OB", DescribeOutOfBounds, [] { game.OffenseSide = 2; }, "Jones", 300, kAll},
      {"the man who guards him strips him", "OUTSIDE", "ST", DescribeSteal, kNothing, "stripped by Jones", 5, 120},
      {"another does not",        "OUTSIDE", "ST", DescribeSteal, [] { game.play.Stealer = 2; }, "stripped", 0, 0},
      {"off the board",           "OFFREB", "TO", DescribeTurnover, kNothing, "Smith came down with it and", 300, kAll},
      {"no guard stands in the lane", "OUTSIDE", "TO", DescribeTurnover, kNothing, "hree second", 0, 0},
      {"a lob",                   "INSIDE", "TO", DescribeTurnover, [] { game.scene.Call.LobFrom = 2; }, "lob", 300, kAll},
      {"the rule's seconds",      "OUTSIDE", "SHOTCLOCK", DescribeShotClockViolation, kNothing, "24 second violation", 100, 300},
      {"all of them missed",      "SHOOT1", "FTM", DescribeFreeThrow, [] { Books().FTA = 5; }, "finally", 0, 0},
      {"one at last",             "SHOOT1", "FTG", DescribeFreeThrow, [] { Books().FTA = 5, Books().FTM = 1; }, "(1 of 5)", kAll, kAll},
      {"a big night",             "SHOOT2", "FTG", DescribeFreeThrow, [] { Books().FTA = Books().FTM = 1, Books().FGM = 10; }, "20 points and his first trip to the line", kAll, kAll},
      {"a rookie",                "SHOOT2", "FTG", DescribeFreeThrow, [] { Books().FTA = 1, Shooter().DebutYear = 2000; }, ", the rookie", 50, 200},
      {"told already",            "SHOOT2", "FTG", DescribeFreeThrow, [] { Books().FTA = 1, Shooter().DebutYear = 2000, game.commentary.BioSaid[2][1] = 1; }, "rookie", 0, 0},
      {"before they kept count",  "SHOOT2", "FTG", DescribeFreeThrow, [] { Books().FTA = 1, Shooter().DebutYear = Shooter().Year = 1929; }, "rookie", 0, 0},
      {"eight years",             "SHOOT2", "FTG", DescribeFreeThrow, [] { Books().FTA = 1, Shooter().DebutYear = 1992; }, " a 8", 0, 0},
      {"never missed",            "SHOOT2", "FTG", DescribeFreeThrow, [] { Real().FTM = 400; }, "shooting 1.000 from the line", 20, 100},
      {"flagrant shots are no technical", "SHOOT2", "FTG", DescribeFreeThrow, [] { game.TechnicalFreeThrow = 1, game.PlayLogCount = 1, game.PlayLog[1].Clock = 3000, game.PlayLog[1].Period = 1, game.PlayLog[1].Outcome = "FLAGRANT"; }, "technical", 0, 0},
  };
  for (const auto& c : cases) {
    SetUpWhistle();
    SetScene(c.kind, c.posted);
    c.change();
    const int told = Told(c.routine, c.words);
    EXPECT_GE(told, c.least) << c.why;
    EXPECT_LE(told, c.most) << c.why;
  }
}
TEST(Whistles, AreShortInTheShortStyle) {
  const struct { PlayKind kind; PlayResult posted; Telltale routine, change; const char* lines; int sound; } cases[] = {
      {"DRIVE", "F0", DescribeFoul, kNothing, "Jones fouls Smith/", 0},
      {"DRIVE", "F2", DescribeFoul, [] { Rules().BackcourtTwoShotsCheck = 1, game.play.IntentionalFoul = 1; }, "Jones fouls Smith/backcourt foul/", 0},
      {"INSIDE", "GF", DescribeFouledOnShot, kNothing, "and he's fouled by Jones/", 2},
      {"INSIDE", "M3F", DescribeFouledOnShot, kNothing, "but he's fouled by Jones/", 0},
      {"SHOOT1", "FTG", DescribeFreeThrow, kNothing, "Smith makes the free throw/", 7},
      {"SHOOT1", "FTM", DescribeFreeThrow, kNothing, "Smith misses the free throw/", 7},
      {"OUTSIDE", "TO", DescribeTurnover, kNothing, "Smith with a turnover/", 0},
  };
  for (const auto& c : cases) {
    SetUpWhistle();
    SetScene(c.kind, c.posted);
    setup.PBPOption = 1;
    c.change();
    EXPECT_EQ(Telling(c.routine), c.lines);
    c.routine();
    EXPECT_EQ(game.commentary.Line[1].Sound, c.sound) << c.lines;
  }
}
/// Each trip: its kinds and the results, G or M.
TEST(Whistles, CountTheShotsOfATrip) {
  const struct { std::vector<PlayKind> kinds; const char* made; } trips[] = {
      {{"SHOOT1"}, "G"},             {{"SHOOT2", "SHOOT1"}, "MG"},  {{"SHOOT3", "SHOOT2", "SHOOT1"}, "GMM"},
      {{"SHOOT1-1", "SHOOT1"}, "GM"}, {{"SHOOT1-1"}, "M"},          {{"SHOOT3-2", "SHOOT2-2", "SHOOT1"}, "MGG"},
      {{"SHOOT2-1"}, "G"},           {{"SHOOT2", "SHOOT1"}, "GG"},  {{"SHOOT3-2", "SHOOT2-1"}, "GG"},
  };
  constexpr const char* kWords[] = {"first", "second", "third"};
  SetUpWhistle();
  for (const auto& trip : trips) {
    for (std::size_t n = 0; n < trip.kinds.size(); ++n) {
      SetScene(trip.kinds[n], trip.made[n] == 'G' ? PlayResult("FTG") : PlayResult("FTM"));
      for (std::size_t word = 0; word < 3; ++word) {
        const bool told = Told(DescribeFreeThrow, kWords[word]) > 0;
        EXPECT_EQ(told, word == n && trip.kinds[0] != "SHOOT1") << trip.kinds[0].Text() << n << kWords[word];
      }
      DescribeFreeThrow();
      game.commentary.PbpLineCount = 0;
    }
  }
}
// clang-format on

}  // namespace
}  // namespace tipline
