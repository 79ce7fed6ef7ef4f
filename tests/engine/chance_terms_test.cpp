#include <gtest/gtest.h>

#include <cmath>

#include "engine/chances.h"
#include "support/neutral_game.h"
#include "support/rows.h"

namespace tipline {

TEST(EraMeans, SkipEmptyPositionsAndReadCollegeRows) {
  SetUpNeutralGame();
  league.EraCollege[2000].TO = 18, league.EraPro[1990].PF = 20;
  game.player[2][3].PlayerType = "C", game.player[2][4].Year = 1990;
  O().Lineup[5] = 0;
  EraMeans();
  EXPECT_NEAR(O().EraTO, 15.75, 1e-6);
  EXPECT_NEAR(O().EraPF, 23.1875, 1e-6);
  EXPECT_NEAR(D().Era3Pct, 5.35 / 16.1, 1e-6);
}

TEST(DefenseWorth, OfTheFive) {
  const auto expectWorth = [](double worth) {
    DefenseRatings();
    EXPECT_NEAR(game.play.TeamDefense, worth, 1e-4);
  };
  SetUpNeutralGame();
  const int picks[] = {1, 2, 3, 1, 1}, coverage[] = {3, 1, 5, 3, 4};
  for (int p = 1; p <= 5; ++p) {
    OMan(p).ShotPick = picks[p - 1];
    OMan(p).CoverageInside = OMan(p).CoverageOutside = OMan(p).CoverageThree = coverage[p - 1];
  }
  D().LineupDefense = 24;
  game.PlayKind = "OUTSIDE";
  expectWorth(22.35024);  // five times 4 + 0.470048
  EXPECT_NEAR(game.play.DefenseFactor, 23.1 / 22.35024, 1e-6);
  D().DefenseType = 1;
  expectWorth((2 * 24 + 22.35024) / 3);
  D().DefenseType = 0;
  game.player[2][1].RealInsidePct = 20;  // counts 0.92 of 5.32, and 0.644558 of the outside rating
  Defender().RateDefOutside = 10, Defender().RateDefInside = 0;
  expectWorth(24.0584);
  D().Matchup = {{2, 1, 3, 4, 5}};  // the other way round: 4.470048 x 0.92 and 4.70048 x 1.1
  D().Lineup = {{1, 2, 3, 4, 5}};
  expectWorth((4.644558 * 0.92 + 4.70048 * 1.1 + 3 * 4.470048 * 1.1) / 5.32 * 5);
  game.PlayKind = "FASTBREAK";
  expectWorth(22.8);
  game = {};
  expectWorth(0);
  EXPECT_EQ(game.play.DefenseFactor, 1.0);
}

TEST(ShotMix, SharesOfTheKindsOfTwo) {
  SetUpNeutralGame();
  Shooter().RateOffDrive = 5, Real().Off = 100;
  game.player[2][2].Stats[1].F3A = 1100;  // more threes than shots: nothing known
  game.player[2][3].Stats[1].Off = 32000;
  LoadedAt(2, 2).ShareDrive = 0.4;
  ShotMix(2);
  const LoadedMan& man = LoadedAt(2, 1);
  EXPECT_NEAR(man.SharePutback, 0.0580378, 1e-6);  // 0.85 x 0.46767 x 0.1 x 1.46
  EXPECT_NEAR(man.ShareBreak, 0.1452863, 1e-6);    // 0.1713754 x 0.9419622 x 0.9
  EXPECT_NEAR(man.ShareInside / man.ShareOutside, 0.5700448 / 0.3946165, 1e-5);
  EXPECT_NEAR(man.ShareDrive / man.ShareOutside, 0.1484237 / 0.3946165, 1e-5);
  EXPECT_NEAR(man.SharePutback + man.ShareBreak + man.ShareInside + man.ShareOutside + man.ShareDrive, 1,
              1e-12);
  EXPECT_EQ(LoadedAt(2, 2).ShareDrive, 0);
  EXPECT_EQ(LoadedAt(2, 3).SharePutback, 0.99);
  EXPECT_NEAR(LoadedAt(2, 3).ShareBreak, 0.009, 1e-12);
}

TEST(HotHand, RareFormReplacesCommonForm) {
  const auto form = [] {
    const double drawn = DrawHotHand();
    EXPECT_EQ(random.ScriptLeft(), 0u);
    return std::llround(drawn * 1e12);
  };
  // clang-format off
  ExpectRows([] {}, form, {
      {"none", [] { random.Script({2, 2}); }, 0},
      {"common", [] { random.Script({1, 0.5, 0.2, 2}); }, 10500000000},
      {"both", [] { random.Script({1, 0.5, 0.2, 1, 0.9, 0.1}); }, 44000000000},
  });
  // clang-format on
}

void Played(i16 games, i16 minutes) { Replay().G = games, Replay().Min = minutes; }

TEST(UsageLevel, BeyondTheRealSeason) {
  const auto setUp = [] {
    SetUpNeutralGame();
    RulesRecord& rules = Rules();
    rules.SeasonUsagePenaltiesCheck = 1, rules.SeasonUsageGamesExemptionList = 75;
    rules.SeasonUsageMinutesExemptionList = 30, rules.MinutesPerGameExemptionList = 15;
    for (u8 k = 1; k <= 3; ++k) {
      rules.SeasonUsageGamesList[k] = rules.SeasonUsageMinutesList[k] = static_cast<u8>(10 * k);
    }
    Real().G = 50, Real().Min = 1000;
  };
  // clang-format off
  ExpectRows(setUp, [] { return UsageLevel(2, 1); }, {
      {"as in real life", [] { Played(49, 990); }, 0},
      {"eleven tenths are not yet over", [] { Played(54, 1000); }, 0},
      {"games above 130", [] { Played(65, 1000); }, 3},
      {"this game's minutes count", [] { Played(40, 1195), OMan().PlayerGameTime = 3600; }, 2},
      {"many real games", [] { Played(90, 1400), Real().G = 75, Real().Min = 1400; }, 0},
      {"15 minutes a game", [] { Played(70, 1050); }, 0},
      {"no real season", [] { Played(70, 2000), Real() = {}; }, 0},
      {"playoff module: a tenth", [] { Played(5, 90), Rules().IsPlayoffModule = 1, Real().G = 60; }, 0},
      {"above a tenth", [] { Played(5, 90), Rules().IsPlayoffModule = 1; }, 1},
      {"outside a game", [] { Played(65, 2000), game.AnalysisMode = true, OMan().UsageLevel = 1; }, 1},
  });
  // clang-format on
}

}  // namespace tipline
