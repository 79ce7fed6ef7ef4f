#include <gtest/gtest.h>

#include "engine/chances.h"
#include "support/neutral_game.h"
#include "support/rows.h"

namespace tipline {

namespace {

using Rows = std::initializer_list<Row<int>>;

/// Draws: season form (not this time), real makes, replay makes.
void SetUpShot(PlayKind kind) {
  SetUpNeutralGame();
  game.PlayKind = kind;
  random.Script({2, 1, 1});
}
void Twos(PlayKind kind, Rows rows) {
  const auto chance = [] { return EraMeans(), TwoChance(), game.play.TwoPointChance; };
  ExpectRows([kind] { SetUpShot(kind); }, chance, rows);
}
void Threes(PlayKind kind, Rows rows) {
  const auto chance = [] { return EraMeans(), ThreeChance(), game.play.ThreePointChance; };
  ExpectRows([kind] { SetUpShot(kind), game.play.ShotValue = "THREE"; }, chance, rows);
}

/// A man of a season before the line, in a game of that season.
void OldMan(int year, int outside) {
  for (int y = 1946; y <= 1979; ++y) league.EraPro[y].F3A = league.EraPro[y].F3M = 0;
  SeasonOfAll(year);
  Real().F3A = Real().F3M = 0, Shooter().RateOffOutside = static_cast<u8>(outside);
}

}  // namespace

// clang-format off
TEST(TwoChance, TermsOfEveryKind) {
  Twos("OFFREB", {
      {"a mean man keeps his own", [] {}, 500},
      {"never shot in real life", [] { Real() = {}; }, 200},
      {"more threes than shots", [] { Real().FGA = 50; }, 0},
      {"form above everything", [] { LoadedAt(2, 1).HotHand = 0.6; }, 300},
      {"his era shot .600, the ten .510", [] {
        EraRecord& era = league.EraPro[1990];
        era.FGA = 100, era.FGM = 60, era.F3A = era.F3M = 0, Shooter().Year = 1990; }, 425},
      {"year 0 is 2017; 5 off for a season of .400", [] {
        EraRecord& era = league.EraPro[2017];
        era.FGA = 80, era.FGM = 32, era.F3A = era.F3M = 0, SeasonOfAll(0); }, 495},
      {"leads in the last period", [] { random.Script({1, 1, 6}), game.Period = 4, O().Score = 10; }, 470},
      {"replay too low: up by 75 at most", [] { Replay().FGA = 250, Replay().FGM = 100; }, 575},
      {"a draft team is left alone", [] {
        OTeam().RosterKind = "D", Replay().FGA = 250, Replay().FGM = 100; }, 500},
      {"defender one foul from the bench", [] { Rules().DqList = 6, Defender().Stats[3].Pf = 5; }, 510},
      {"nobody to bring it up", [] { O().OutOfPosition = 1; }, 250},
      {"guarded by one away from home", [] { game.BallDefender = 2; }, 504},
      {"by one who plays there too", [] { game.BallDefender = 2, game.player[1][2].SpotPosition = 1; }, 500},
      {"defense terms, factor held at 1.7", [] {
        Play& play = game.play;
        play.DefenseFactor = 2, play.DefenseNorm[1] = 6, play.DefenseRating[1] = 5, play.DefenseUse[1] = 2; },
       495},
      {"alternate reality: 14, -7, 1 for each of the five", [] {
        Rules().AlternateRealityCheck = 1, Shooter().AltForm1 = 12, Shooter().AltForm2 = 9;
        for (int p = 1; p <= 5; ++p) game.player[2][p].AltForm3 = 11; }, 512},
      {"half of 64 is the average of his kinds", [] { LoadedAt(2, 1).ShareInside = 0.5; }, 468},
      {"never below 0", [] { game.play.TeamDefense = 200; }, 0},
      {"no lid above", [] { game.possession.PassFirst = 1, LoadedAt(2, 1).HotHand = 0.45; }, 1150},
      {"schedules of two international teams", [] {
        Level(1, "O", 2000), Level(2, "O", 2000), O().CollegeStrength = 7, D().CollegeStrength = 5; }, 516},
      {"women: .475 and a fifth off", [] { OTeam().TeamSex = "W"; }, 380},
      {"other seasons tell nothing", [] {
        Level(1, "P", 1996), Level(2, "P", 1997), league.Conference[2] = 1, league.Conference[1] = 2; }, 500},
      {"game 84 of the season", [] { OTeam().Wins = 83; }, 486},
      {"visitor in two halves", [] { VisitorAttacks(), Rules().PeriodList = 2; }, 486},
      {"not clutch yet", [] {
        random.Script({10, 10, 6, 6, 1, 1, 1});
        game.Period = 4, game.GameClock = 601, Shooter().RateClutch = 7; }, 500},
  });
}

TEST(TwoChance, TheOtherKinds) {
  Twos("OFFREB", {{"62.5 is 62", [] { game.PutbackClass = 1; }, 562}});
  Twos("FASTBREAK", {  // 500 + 132, then the numbers
      {"even", [] {}, 651},
      {"one more", [] { game.fastBreak.BreakAttackers = 1; }, 708},
      {"alone", [] { game.fastBreak.Breakaway = 1; }, 1172},
  });
  Twos("DRIVE", {  // 500 - 33, first option 10, talent 2
      {"laid off", [] { game.play.PlayCoverage = 1; }, 409},
      {"fullcourt press", [] { D().Pressure = 4; }, 529},
      {"double teams elsewhere are no help", [] {
        game.DoubleTeamCount = 1, OMan(2).ShotPick = 1, OMan(2).DoubleTeamInside = 1; }, 479},
  });
  Twos("INSIDE", {  // 500 + 64, first option 10, talent 1
      {"plain", [] {}, 575},
      {"never looks for it", [] { O().Option[1] = 0; }, 505},
      {"found open outside: 475", [] { OMan().NaturalZone = 2; }, 550},
      {"2-3 zone", [] { D().DefenseType = 2; }, 545},
      {"doubled: 90 and 0.4 x 60", [] { OMan().DoubleTeamInside = 1; }, 461},
      {"but they have switched", [] { OMan().DoubleTeamInside = 1, game.Switched = 1; }, 575},
      {"two others doubled where they stand, one elsewhere", [] {
        game.DoubleTeamCount = 2;
        OMan(2).ShotPick = 1, OMan(2).DoubleTeamInside = 1;
        OMan(3).ShotPick = 3, OMan(3).DoubleTeamThree = OMan(4).DoubleTeamThree = 1; }, 655},
      {"great: 124, 20 for his share, 10, talent 12 and 35", [] {
        Shooter().RateOffInside = 10, Shooter().RateOffense = 100, Shooter().RealInsidePct = 90; }, 701},
  });
  Twos("OUTSIDE", {  // 500 - 90, first option 10, talent 1
      {"plain", [] {}, 421},
      {"shoots better than he drives: talent 4", [] { Shooter().RateOffDrive = 3; }, 425},
  });
}
// clang-format on

TEST(TwoChance, AnAnalysisDrawsNothingAndFeelsNoPressure) {
  SetUpNeutralGame();
  game.AnalysisMode = true, game.Period = 4, game.GameClock = 100, Shooter().RateClutch = 7;
  random.Script({1, 1});
  TwoChance();
  EXPECT_EQ(game.play.TwoPointChance, 500);
  EXPECT_EQ(random.ScriptLeft(), 2u);
}

// clang-format off
TEST(ThreeChance, SeasonsOfTheLineKindsAndCorrections) {
  Threes("THREE", {  // (350 + 10) x 0.97 = 349, + 5 + 10, x 1.05 + 15
      {"a mean man", [] {}, 397},
      {"hot in a blowout", [] { LoadedAt(2, 1).HotHand = 0.02, O().Score = 11; }, 397},
      {"average historical era, at most 550", [] {
        Rules().GameEraList = 1, league.EraPro[2000].F3M = 1.61f; }, 591},
      {"the eighties at .166: 175", [] { Rules().GameEraList = 5, league.EraPro[1985].F3M = 2.675f; }, 219},
      {"the eighties of college: 1986", [] {
        Rules().GameEraList = 5, Shooter().PlayerType = "C", league.EraCollege[1986].F3M = 2.675f; }, 208},
      {"1950: 261, 271, 263, 268, 278", [] { OldMan(1950, 7); }, 307},
      {"1960, a shooter: 291, 301, 292, 297, 307", [] { OldMan(1960, 9); }, 337},
      {"1978, the line of 1985 at .200", [] { OldMan(1978, 7), league.EraPro[1985].F3M = 3.22f; }, 245},
      {"no line in the rules: nothing to show", [] { OldMan(1950, 9), Rules().ThreePointCheck = 0; }, 41},
      {"never tried it", [] { Real().F3A = Real().F3M = 0; }, 0},
      {"3 of 9: 340, halved, a fifth off", [] { Real().F3A = 9, Real().F3M = 3; }, 169},
  });
  Threes("FASTBREAK", {
      {"on the break: 367, 372", [] {}, 406},
      {"a fast man is in a hurry: 352, 357", [] { Shooter().RateOffFastbreak = 10; }, 390},
  });
  Threes("OFFREB", {{"second chance: 356, 361", [] {}, 394}});
  Threes("THREE", {
      {"replay: up by 50 at most", [] { Replay().F3A = 100, Replay().F3M = 20; }, 449},
      {"defense terms with the plain factor: - 8", [] {
        Play& play = game.play;
        play.DefenseFactor = 2, play.DefenseNorm[1] = 6, play.DefenseRating[1] = 5, play.DefenseUse[1] = 2; },
       389},
      {"great draft five: + 30", [] { OTeam().RosterKind = "D", O().LineupOffense = 400; }, 429},
      {"two men left, going for the ball: + 115", [] { D().EligibleCount = 2, D().StealFoul = 1; }, 518},
      {"two college teams: + 2, schedules 14", [] {
        Level(1, "C", 2000), Level(2, "C", 2000), O().CollegeStrength = 7, D().CollegeStrength = 5; }, 414},
      {"forced on him: 364 x 0.8 x 0.9", [] { game.call.ForcedThree = 1; }, 290},
  });
}
void AtTheLine(i16 tried, i16 made) { Real().FTA = tried, Real().FTM = made; }

TEST(FreeThrowChance, FromTheRealPercentage) {
  ExpectRows(SetUpNeutralGame, [] { return EraMeans(), FreeThrowChance(); }, {
      {"his own", [] { AtTheLine(400, 300); }, 750},
      {"no attempts: the floor of the few", [] { AtTheLine(0, 0); }, 500},
      {"nine of nine", [] { AtTheLine(9, 9); }, 700},
      {"29 of 29", [] { AtTheLine(29, 29); }, 800},
      {"none of 29", [] { AtTheLine(29, 0); }, 300},
      {"30 of 30", [] { AtTheLine(30, 30); }, 1000},
  });
}
// clang-format on

}  // namespace tipline
