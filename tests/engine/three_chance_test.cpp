#include <gtest/gtest.h>

#include "engine/chances.h"
#include "support/neutral_game.h"

namespace tipline {

namespace {

void Threes(PlayKind kind, const std::vector<ChanceCase>& cases) {
  for (const ChanceCase& c : cases) {
    SetUpNeutralGame();
    game.PlayKind = kind, game.play.ShotValue = "THREE";
    c.change();
    EraMeans();
    random.Script(c.draws.empty() ? std::vector<double>{2, 1, 1} : c.draws);
    ThreeChance();
    EXPECT_EQ(game.play.ThreePointChance, c.chance) << c.why;
  }
}

/// A man of a season before the line, in a game of that season.
void OldMan(int year, int outside) {
  for (int y = 1946; y <= 1979; ++y) league.EraPro[y].F3A = league.EraPro[y].F3M = 0;
  SeasonOfAll(year);
  Real().F3A = Real().F3M = 0, Shooter().RateOffOutside = static_cast<u8>(outside);
}

}  // namespace

// clang-format off
TEST(ThreeChance, RealPercentageAndSeasonsOfTheLine) {
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
}

TEST(ThreeChance, Kinds) {
  Threes("FASTBREAK", {
      {"on the break: 367, 372", [] {}, 406},
      {"a fast man is in a hurry: 352, 357", [] { Shooter().RateOffFastbreak = 10; }, 390},
  });
  Threes("OFFREB", {{"second chance: 356, 361", [] {}, 394}});
}

TEST(ThreeChance, Corrections) {
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
// clang-format on

TEST(FreeThrowChance, FromTheRealPercentage) {
  // clang-format off
  const struct { const char* why; i16 tried, made; int chance; } cases[] = {
      {"his own", 400, 300, 750},
      {"no attempts: the floor of the few", 0, 0, 500},
      {"nine of nine", 9, 9, 700},
      {"29 of 29", 29, 29, 800},
      {"none of 29", 29, 0, 300},
      {"30 of 30", 30, 30, 1000},
  };
  // clang-format on
  for (const auto& c : cases) {
    SetUpNeutralGame();
    Real().FTA = c.tried, Real().FTM = c.made;
    EraMeans();
    EXPECT_EQ(FreeThrowChance(), c.chance) << c.why;
  }
}

}  // namespace tipline
