#include "engine/weights.h"

#include <gtest/gtest.h>

#include "engine/chances.h"
#include "support/neutral_game.h"
#include "support/rows.h"

namespace tipline {

namespace {

/// The neutral game with a shooter who takes no threes: 1.62207 plays of his season to a thousandth.
void TwosOnly() {
  SetUpNeutralGame();
  game.PlayKind = "";
  Real().F3A = Real().F3M = 0;
  Defender().Stats[1].F3A = Defender().Stats[1].F3M = 0;
}

using Rows = std::initializer_list<Row<int>>;

/// Draws: two men of the offense.
void Shots(Rows rows) {
  const auto weight = [] { return EraMeans(), ShotWeight(), game.play.ShotChance; };
  ExpectRows([] { TwosOnly(), random.Script({1, 1}); }, weight, rows);
}
/// Draws: season (not this time), two men of the offense.
void Turnovers(Rows rows) {
  const auto weight = [] { return EraMeans(), TurnoverWeight(), game.play.TurnoverChance; };
  ExpectRows([] { TwosOnly(), random.Script({2, 1, 1}); }, weight, rows);
}
/// Draws: two men of the offense, three looks at the team fouls.
void Fouls(Rows rows) {
  const auto weight = [] { return EraMeans(), FoulWeight(), game.play.FoulChance; };
  ExpectRows([] { TwosOnly(), random.Script({1, 1, 3, 3, 3}); }, weight, rows);
}

void Set(PlayKind kind) {
  game.PlayKind = kind;
  if (kind == "THREE") game.play.ShotValue = "THREE";
}
/// Inside, covered tightly; the last draw says how near the end is.
void AtTheEnd(double draw) {
  random.Script({1, 1, 3, 3, 3, draw});
  Set("INSIDE"), game.play.PlayCoverage = 6, game.Period = 4, game.GameClock = 100;
}
void Draft(int side) { game.team[side].RosterKind = "D"; }

}  // namespace

// clang-format off
TEST(ShotWeight, FromTheRealAttempts) {
  Shots({
      {"1099 x 1.005", [] {}, 1104},
      {"never shot", [] { Real() = {}; }, 10},
      {"a season of half as many shots, x 1.9", [] {
        league.EraPro[1990].FGA = 42.65f, Shooter().Year = 1990; }, 2098},
      {"weak draft five", [] { Draft(2), O().LineupOffense = 220; }, 1096},
      {"a man of few shots keeps them", [] { Draft(2), O().LineupOffense = 400, Real().FGA = 298; }, 299},
      {"trails by 15 early", [] { D().Score = 15; }, 1159},
      {"in the second period that is nothing", [] { O().Score = 15, game.Period = 2; }, 1104},
      {"16 is enough at the lowest draw", [] { O().Score = 16, game.Period = 4; }, 1049},
  });
}

TEST(TurnoverWeight, SeasonTeamsAndKinds) {
  Turnovers({
      {"200 x 0.89 = 178, hands of 5 against 5.2", [] {}, 174},
      {"never lost it", [] { Real().To = 0; }, 5},
      {"five without hands", [] { D().LineupForce = 13; }, 120},
      {"picked team of 30", [] {
        Level(2, "O", 2000), league.ActiveTeams = 30, game.player[2][2].Year = 1999; }, 305},
      {"nobody to bring it up", [] { O().OutOfPosition = 1; }, 522},
      {"a hundredth of the shots at least", [] { D().OutOfPosition = 1, game.play.ShotChance = 1104; }, 11},
      {"three, strong inside help: -160", [] { Set("THREE"), D().DefenseHelp = 3; }, 0},
      {"break, fewer", [] { Set("FASTBREAK"), game.fastBreak.BreakDefenders = 1; }, 174},
      {"break, four more", [] { Set("FASTBREAK"), game.fastBreak.BreakAttackers = 4; }, 17},
  });
}

TEST(FoulWeight, SeasonGameAndKinds) {
  Fouls({
      {"400 throws: 363, 323, 294, then 1.02 three times", [] {}, 312},
      {"defender one foul from the bench", [] { Rules().DqList = 6, Defender().Stats[3].Pf = 5; }, 297},
      {"500 rebounds: 35 off", [] { Real().Reb = 500; }, 277},
      {"in a season of many misses: 5 off", [] { Real().Reb = 500, league.EraPro[2000].FGA = 106; }, 307},
      {"defender who fouls twice as often", [] { Defender().Stats[1].Pf = 480; }, 399},
      {"in a zone", [] { Defender().Stats[1].Pf = 480, D().DefenseType = 1; }, 387},
      {"team has 8", [] { random.Script({1, 1, 1, 1, 1}), D().TeamFouls = 8; }, 214},
      {"last period, tied", [] { game.Period = 4; }, 372},
      {"26 apart, fifteen seconds: four halves", [] {
        game.Period = 4, O().Score = 26, game.GameClock = 150; }, 6},
      {"offense out of position, shots 1104", [] { O().OutOfPosition = 1, game.play.ShotChance = 1104; }, 11},
      {"seven men left under a foul limit", [] { Rules().DqList = 6, D().EligibleCount = 7; }, 94},
      {"six: not even the least", [] {
        Rules().DqList = 6, D().EligibleCount = 6, game.play.ShotChance = 5000; }, 0},
      {"six in an analysis", [] {
        random.Script({3, 3, 3});
        Rules().DqList = 6, D().EligibleCount = 6, game.AnalysisMode = true; }, 312},
      {"three seconds left", [] { game.GameClock = 30; }, 312},
      {"less", [] { game.GameClock = 29; }, 0},
      {"inside: 30", [] { Set("INSIDE"); }, 361},
      {"found open far out: x 0.8", [] { Set("INSIDE"), OMan().NaturalZone = kThree; }, 299},
      {"at the end: 1025", [] { AtTheEnd(51); }, 2035},
      {"not yet: 930", [] { AtTheEnd(50); }, 1881},
      {"nor one who is a foul from the bench: -20", [] {
        Set("INSIDE"), DMan().SafeStyle = 1, Rules().DqList = 6, Defender().Stats[3].Pf = 5; }, 265},
  });
}
// clang-format on

TEST(TurnoverWeight, EveryStepInItsOrder) {
  SetUpNeutralGame();
  SeasonOfAll(2016);
  game.player[2][2].Year = 2015, Shooter().PlayerType = "C";
  Real().Min = 1999, Real().FGA = 1000, Real().To = 300;
  Level(1, "C", 1974), Level(2, "C", 1972);
  OTeam().Wins = DTeam().Wins = 10, O().TeamPointDiff = 10, O().WinShare = 0.25, D().WinShare = 0.5;
  Shooter().Salary = 6500;
  Defender().Salary = 3250, Defender().Stats[1].Min = 1999;
  game.Period = 4, O().Score = 5;
  D().LineupForce = 39, D().DefenseType = 1, Defender().RateDefForce = 8;
  OMan().UsageLevel = 1, DMan().UsageLevel = 2;
  league.ActiveTeams = 31, O().LineupOffense = 200;
  Set("INSIDE"), OMan().NaturalZone = kThree, game.NeutralGame = false;
  D().StealFoul = 1, OTeam().TeamSex = "W";
  Rules().AlternateRealityCheck = 1, Shooter().AltForm5 = 13, Defender().AltForm2 = 7;
  O().CollegeStrength = 9, D().CollegeStrength = 6, D().EligibleCount = 5;
  game.MomentumTime = 1, O().TimeoutFocus = "Offense", D().TimeoutFocus = "Pressure";
  O().EraTO = D().EraTO = 18;
  Rules().FatigueMeterCheck = 1, OMan().Energy = DMan().Energy = 70;
  game.play.PlayCoverage = 4, D().DefenseHelp = 3, D().Pressure = 2, DMan().SafeStyle = 1;
  O().OffensePace = 4, game.call.LongPlay = 1, game.call.CallAlleyPlayer = 2;
  LoadedMan& mix = LoadedAt(2, 1);
  mix.ShareInside = 0.4, mix.ShareOutside = 0.2, mix.ShareDrive = 0.1;
  mix.SharePutback = 0.2, mix.ShareBreak = 0.1;
  Shooter().RateOffInside = 8, Shooter().RateOffDrive = 7, Shooter().RateOffThree = 7;
  // 267, college 294 and 368; form 357, leads 446, drilled 468, the others not 493; force 740 and 751;
  // strangers 826; usage 892 and 741; picked 1037 and 1452; weak five 1503; far out 2705; home 2624; for the
  // ball 3149; levels 4251, 3149, women 4094; forms 4503 and 4053; schedules 3445; five men 1722; focus 1636
  // and 1881; era 2257; old team 1918; tired 2052 and 1908. Sum: 150, talent 149, kind 50 - 16.3: 183 of
  // 1.636 plays: 2207; the lob 2648.
  random.Script({1, 1, 1, 1, 1, 1, 1, 1, 2});
  TurnoverWeight();
  EXPECT_EQ(random.ScriptLeft(), 0u);
  EXPECT_EQ(game.play.TurnoverChance, 2648);
}

}  // namespace tipline
