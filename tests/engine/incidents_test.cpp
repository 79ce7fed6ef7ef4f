#include "engine/incidents.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/numbers.h"
#include "engine/eligible.h"
#include "engine/outcome.h"
#include "engine/resolution.h"
#include "league/season_date.h"
#include "support/neutral_game.h"
#include "support/rows.h"

namespace tipline {
namespace {

using Kind = IncidentKind;

/// An ordinary play of the second period among calm, durable men. No rule of the incidents is on.
void SetUpTwelve() {
  SetUpPlay("OUTSIDE");
  game.Period = 2;
  game.GameClock = 4000;
  Rules().DqList = 6;
  for (int s = 1; s <= 2; ++s) {
    for (int slot = 1; slot <= 12; ++slot) {
      game.player[s][slot].LastName = "Long";
      game.man[s][slot].PlayerGameTime = 600;
    }
  }
}

PlayerRecord& Second() { return game.player[2][2]; }

/// Everything is on and everybody is in a rage and frail.
void SetUpTrouble() {
  SetUpTwelve();
  Rules().TemporaryGameInjuriesCheck = Rules().InjuryOption = 1;
  Rules().IllegalDefenseList = 2;
  game.Tension = 9;
  for (auto& side : game.player) {
    for (auto& p : side) p.RateSportsmanship = p.RateDurability = 0, p.Stats[1].G = 30, p.Stats[1].Min = 300;
  }
}

constexpr unsigned Bit(Kind k) { return 1u << static_cast<int>(k); }
constexpr unsigned kLight = Bit(Kind::kShakenUp) | Bit(Kind::kTemporaryInjury);
constexpr unsigned kGrave = Bit(Kind::kInjury);
constexpr unsigned kHurt = kLight | kGrave;
constexpr unsigned kIllegal = Bit(Kind::kIllegalDefense);
constexpr unsigned kFight = Bit(Kind::kFight);
constexpr unsigned kTech = Bit(Kind::kTechnical);
constexpr unsigned kAll = kHurt | kIllegal | kFight | kTech;

/// Which kinds come in 20000 plays, a bit each. A technical in the playoffs is one in many thousands.
unsigned Seen() {
  const Game start = game;
  unsigned seen = 0;
  for (unsigned seed = 0; seed < 20000; ++seed) {
    random.Seed(seed);
    game.LineupAnnounced = start.LineupAnnounced;
    if (!PlayIsInterrupted()) continue;
    seen |= 1u << static_cast<int>(game.incident.Kind);
    game = start;
  }
  return seen & ~(program.PlayoffGame ? kTech : 0u);
}

// clang-format off
TEST(Incidents, TheMomentDecidesWhatCanHappen) {
  ExpectRows(SetUpTrouble, Seen, {
      {"an ordinary play",          [] {},                                   kAll},
      {"nine men left to a side",   [] { game.side[1].EligibleCount = 9; },  kIllegal},
      {"ten are enough",            [] { game.side[1].EligibleCount = 10; }, kAll},
      {"clock burned",              [] { game.PlayKind = "BURN"; },          kIllegal | kFight | kTech},
      {"line-up just announced",    [] { game.LineupAnnounced = 1; },        kIllegal | kFight | kTech},
      {"after a free throw",        [] { game.PreviousResult = "FTG"; },     kIllegal | kFight | kTech},
      {"fast break",                [] { game.GameState = "FASTBREAK"; },    0},
      {"a what-if",                 [] { game.AnalysisMode = true; },        0},
      {"no illegal defense rule",   [] { Rules().IllegalDefenseList = 0; },  kHurt | kFight | kTech},
      {"no injuries by the rules",  [] { Rules().InjuryOption = 0; },        kAll & ~kGrave},
      {"none shaken up by them",    [] { Rules().TemporaryGameInjuriesCheck = 0; }, kAll & ~kLight},
      {"in the corner, dead ball",  [] { game.DeadBallKind = 2; },           kIllegal},
      {"ball taken out beside",     [] { game.DeadBallKind = 1; },           kIllegal | kFight},
      {"told to foul",              [] { D().QuickFoul = 1; },               kLight | kTech},
      {"last two minutes",          [] { game.GameClock = 1199; },           kHurt | kIllegal | kFight},
      {"first two minutes",         [] { game.GameClock = 6000; },           kHurt | kIllegal},
      {"late on the shot clock",    [] { game.ShotClock = 79; },             kIllegal | kFight | kTech},
      {"nobody is angry yet",       [] { game.Tension = 1; },                kHurt | kIllegal | kTech},
      {"nobody but saints",         [] {
        for (auto& side : game.player) for (auto& p : side) p.RateSportsmanship = 10; },  kHurt | kIllegal},
      {"first playoff round",       [] {
        program.PlayoffGame = true, program.CurrentRound = 1, game.Tension = 0; },        kLight | kIllegal},
  });
}
// clang-format on

/// A man of side 1 is out for a while; how long by these draws.
std::vector<double> Sits(std::vector<double> counts) {
  std::vector<double> draws{2, 1, 1, 1, 1, 3, 1, 0.9, 0.9, 0.9};
  draws.insert(draws.end(), counts.begin(), counts.end());
  draws.insert(draws.end(), {7, 2});  // word, not an odd one
  return draws;
}

TEST(Hurt, ForAPlayOrForAWhileUnlessHisMinutesSpareHim) {
  const struct {
    const char* why;
    std::vector<double> draws;
    Kind kind;
    int word, sits;
    const char* state;
  } cases[] = {
      // One in 30, position, share of his minutes, spared, two more shares, word, an odd one.
      {"more minutes than drawn, and spared", {1, 3, 0.49, 1, 2, 2, 2, 2}, Kind::kNone, 0, 0, "OFFENSE"},
      {"not spared", {1, 3, 0.49, 2, 0.9, 0.9, 13, 2}, Kind::kShakenUp, 13, 0, "DEADBALL-DEFENSE"},
      {"fewer minutes", {1, 3, 0.5, 0.9, 0.9, 5, 1, 10}, Kind::kShakenUp, 60, 0, "DEADBALL-DEFENSE"},
      // Side 1, position 3, not spared; counts: the draw, ten more, and for each of five: share, ten more.
      {"three at least", Sits({1, 1, 0, 0, 0, 0.1, 0.2}), Kind::kTemporaryInjury, 7, 3, "TIMEOUT-DEFENSE"},
      {"all there is", Sits({25, 2, 0.99, 0.99, 0.99, 2, 0.99, 2, 0.99, 2}), Kind::kTemporaryInjury, 7, 65,
       "TIMEOUT-DEFENSE"},
  };
  for (const auto& c : cases) {
    SetUpTwelve();
    Rules().TemporaryGameInjuriesCheck = 1;
    random.Script(c.draws);
    EXPECT_EQ(PlayIsInterrupted(), c.kind != Kind::kNone) << c.why;
    EXPECT_EQ(game.incident.Kind, c.kind) << c.why;
    EXPECT_EQ(game.incident.InjuryWord, c.word) << c.why;
    EXPECT_EQ(game.GameState.Text(), c.state) << c.why;
    EXPECT_EQ(DMan(3).TemporaryInjury, c.sits) << c.why;
    EXPECT_EQ(IsEligible(1, 3), c.sits == 0) << c.why;
    EXPECT_EQ(D().Lineup[3] > 5, c.sits > 0) << c.why << ": somebody comes in for him";
    EXPECT_EQ(O().Lineup[3], 3) << c.why;
  }
}

/// The man at position 2 of the offense, who has missed 40 games of 82 in life and none yet here.
TEST(Injury, LengthSeverityAndReturnDate) {
  const struct {
    const char* why;
    SeasonDate today;
    double share;
    int length, severity;
    SeasonDate back;
  } cases[] = {{"one game, two days", {2, 20}, 0, 1, 1, {2, 22}},
               {"three games are no day-to-day injury", {2, 20}, 0.05, 3, 2, {2, 27}},
               {"over New Year and February", {4, 20}, 0.99, 40, 3, {7, 18}},
               {"never into August, which heals", {10, 20}, 0.99, 40, 3, {11, 31}},
               {"a game without a date", {0, 0}, 0.99, 40, 0, {0, 0}}};
  for (const auto& c : cases) {
    SetUpTwelve();
    program.GameKind = "L";
    program.ReplayLocked = true;
    game.GameMonth = c.today.month, game.GameDay = c.today.day;
    Rules().InjuryOption = 1;
    PlayerRecord& p = game.player[2][2];
    p.Stats[1].G = 42;
    random.Script({1, 1, 2, 9, 1, 0, c.share});
    ASSERT_TRUE(PlayIsInterrupted()) << c.why;
    EXPECT_EQ(game.incident.Length, c.length) << c.why;
    EXPECT_EQ(p.InjurySeverity, c.severity) << c.why;
    EXPECT_EQ((SeasonDate{p.InjuryReturnMonth, p.InjuryReturnDay}), c.back) << c.why;
    EXPECT_EQ(IsEligible(2, 2) || PositionOf(2, 2) > 0, false) << c.why;
  }
}

// clang-format off
TEST(Injury, PickInjurySparesThoseItMust) {
  const auto hurt = [] {
    random.Script({1, 2, 9, 1, 0, 0.5});
    PickInjury();
    random.Script({});
    return game.play.InjuryFound;
  };
  ExpectRows([] { SetUpTwelve(), game.player[2][2].Stats[1].G = 42; }, hurt, {
      {"the man of the others", [] {}, true},
      {"the man with the ball", [] { game.BallPlayer = 2; }, false},
      {"a man who has just come in", [] { OMan(2).PlayerGameTime = 0; }, false},
      {"eight must be left", [] { O().EligibleCount = 9; }, true},
      {"seven are too few", [] { O().EligibleCount = 8; }, false},
      {"ten of them active", [] { game.loaded[2][11].PlayerOut = game.loaded[2][12].PlayerOut = 1; }, false},
      {"he has missed his share", [] { OTeam().Wins = 40; }, false},
  });
}

TEST(Injury, GamesToMissFollowTheRealSeason) {
  ExpectRows(SetUpTwelve, [] { return Round(GamesToMiss(2, 2)); }, {
      {"half a season", [] { Second().Stats[1].G = 41; }, 41},
      {"an old season costs a tenth more", [] { Second().Stats[1].G = 62, Second().Year = 1980; }, 22},
      {"he came for the second half, and played it",
       [] {
        PlayerRecord& p = Second();
        p.Stats[1].G = 41, p.StartMonth = 4, p.StartDay = 15, p.EndMonth = 12; }, 0},
      {"no season to go by", [] { Second().Stats[1].G = 0, Second().RateDurability = 5; }, 8},
      {"less what he has missed here",
       [] { Second().Stats[1].G = 41, Second().Stats[2].G = 10, OTeam().Losses = 30; }, 21},
      {"no more than are left",
       [] { Second().Stats[1].G = 41, Second().Stats[2].G = 75, OTeam().Wins = 75; }, 6},
  });
}
// clang-format on

TEST(IllegalDefense, AWarningOrAShotAndTheBallAgain) {
  const struct {
    u8 list;
    int before;
    bool shot;
  } cases[] = {{1, 0, false}, {1, 1, true}, {2, 0, true}};
  for (const auto& c : cases) {
    SetUpTwelve();
    Rules().IllegalDefenseList = c.list;
    D().IllegalDefenses = c.before;
    IllegalDefenseCall();
    EXPECT_EQ(game.PlayKind.Text(), c.shot ? "SHOOT1" : "");
    EXPECT_EQ(game.incident.Warning, !c.shot);
    if (!c.shot) continue;
    game.PlayResult = "FTM";
    PostPlay();
    EXPECT_EQ(game.GameState.Text(), "OFFENSE") << "nobody rebounds a technical";
    EXPECT_EQ(game.OffenseSide, 2);
  }
}

TEST(Technical, WhoShootsAndWhoHasTheBallAfterwards) {
  const struct {
    const char* why;
    int side;
    u8 shots, ejects, had, counted;
    bool ejected;
    int fouls;
  } cases[] = {{"on the defense, two shots", 1, 2, 2, 0, 1, false, 0},
               {"his second of two", 2, 1, 2, 1, 1, true, 0},
               {"his second of three", 2, 1, 3, 1, 1, false, 0},
               {"nobody is ejected for it", 2, 1, 0, 5, 1, false, 0},
               {"a personal foul as well", 1, 2, 2, 0, 2, false, 1}};
  for (const auto& c : cases) {
    SetUpTwelve();
    Rules().TechnicalFTslist = c.shots, Rules().TechList = c.ejects, Rules().TechnicalPFCheck = c.counted;
    PlayerRecord& hot = game.player[c.side][1];
    hot.RateSportsmanship = 0;
    hot.Stats[3].Technicals = c.had;
    game.player[3 - c.side][4].Stats[1].FTM = 390;        // the best at the line
    std::vector<double> draws{2, 1};                      // no fight; somebody is looked at
    if (c.side == 1) draws.insert(draws.end(), 15, 2.0);  // the five attackers hold their tongues
    draws.insert(draws.end(), {91, 1, 1});
    random.Script(draws);
    ASSERT_TRUE(PlayIsInterrupted()) << c.why;
    EXPECT_EQ(hot.Stats[3].Technicals, c.had + 1) << c.why;
    EXPECT_EQ(hot.Stats[3].Pf, c.fouls) << c.why;
    EXPECT_EQ(ManAt(c.side, 1).Ejected, c.ejected) << c.why;
    game.SecondChance = 1;  // of the attackers, who may be the other side
    for (int shot = 0; shot < c.shots; ++shot) {
      game.PlayResult = "FTG";
      PostPlay();
    }
    EXPECT_EQ(game.side[1].ExtraSecondChancePoints, 0) << c.why;
    EXPECT_EQ(game.GameState.Text(), "OFFENSE") << c.why;
    EXPECT_EQ(game.OffenseSide, 2) << "the ball is theirs again";
    EXPECT_EQ(game.player[3 - c.side][4].Stats[3].FTM, c.shots) << c.why;
  }
}

TEST(Delay, StopsTheBallBeforeItComesIn) {
  for (const GameState state : {GameState("DEADBALL-OFFENSE"), GameState("OFFENSE")}) {
    SetUpTwelve();
    game.GameState = state;
    game.DeadBallKind = 2;
    game.NeedsInbound = 1;
    int delays = 0;
    EachSeed(3000, [&] {
      FindResult();
      if (game.incident.Kind != Kind::kDelay) return;
      ++delays;
      ASSERT_TRUE(game.GameClock == 4000 && game.GameState == "DEADBALL-DEFENSE" && game.DeadBallKind == 1);
    });
    EXPECT_EQ(delays > 0, state == "DEADBALL-OFFENSE") << delays;
  }
}

TEST(Fight, TheWorstTempersMeetAtTheLimit) {
  const struct {
    int ratings[2];
    bool fight;
  } cases[] = {{{3, 3}, true}, {{3, 4}, false}, {{4, 3}, false}};
  for (const auto& c : cases) {
    SetUpTwelve();
    game.Tension = 6;
    for (int s = 1; s <= 2; ++s) game.player[s][3].RateSportsmanship = static_cast<u8>(c.ratings[s - 1]);
    random.Script({1, 5, 1, 1, 3, 3, 2, 2, 2});
    EXPECT_EQ(PlayIsInterrupted(), c.fight);
    random.Script({});
    EXPECT_EQ(game.Tension, c.fight ? 0 : 6);
    for (int s = 1; s <= 2; ++s) EXPECT_EQ(IsEligible(s, 3), !c.fight) << s;
  }
}

TEST(Fight, SuspensionsAndTheTechnical) {
  const struct {
    const char* why;
    bool suspends;
    int fouls[2];
    int shooters;
  } cases[] = {{"offset", true, {0, 0}, 0},
               {"both over the limit", false, {5, 5}, 0},
               {"the visitors pay", true, {5, 4}, 2},
               {"the home side pays", false, {0, 5}, 1}};
  for (const auto& c : cases) {
    SetUpTwelve();
    Rules().SuspensionsCheck = c.suspends;
    for (int s = 1; s <= 2; ++s) game.side[s].TeamFouls = c.fouls[s - 1];
    FightBegins();
    EXPECT_EQ(game.GameState.Text(), c.shooters ? "FREETHROW-WAIT" : "TIMEOUT-DEFENSE") << c.why;
    EXPECT_EQ(game.incident.ShooterSide, c.shooters) << c.why;
    const int games = game.player[1][game.incident.Slot].SuspensionGames;
    EXPECT_TRUE(c.suspends ? games >= 2 && games <= 4 : games == 0) << c.why;
  }
}

TEST(Flagrant, TheLevelAndWhatItCosts) {
  const struct {
    const char* why;
    std::vector<double> draws;  // new form, tension, one in 300, temper; level 2; let go
    int before, level;
    bool ejected;
  } cases[] = {{"called", {2, 2, 1, 0.9, 2, 6}, 0, 1, false},
               {"let go", {2, 2, 1, 0.9, 2, 5}, 0, 0, false},
               {"his second", {2, 2, 1, 0.9, 2, 6}, 1, 1, true},
               {"by his temper, and worse", {2, 2, 2, 0.39, 8, 1, 1, 0.59, 10, 6}, 0, 2, true}};
  for (const auto& c : cases) {
    SetUpTwelve();
    Rules().FlagrantCheck = Rules().SuspensionsCheck = 1;
    game.PlayResult = "F0";
    game.play.Fouler = game.play.FoulerSlot = 2;
    game.play.FoulingSide = 1;
    PlayerRecord& fouler = game.player[1][2];
    fouler.Flagrants[3] = static_cast<u8>(c.before);
    fouler.RateSportsmanship = 8;
    game.PlayTime = 50;
    random.Script(c.draws);
    PostPlay();
    random.Script({});
    EXPECT_EQ(game.play.FlagrantLevel, c.level) << c.why;
    EXPECT_EQ(game.PlayKind.Text(), c.level ? "SHOOT2" : "") << c.why;
    EXPECT_EQ(fouler.Stats[3].Flagrant2, c.level == 2) << c.why;
    EXPECT_EQ(PositionOf(1, 2) == 0, c.ejected) << c.why;
    EXPECT_EQ(fouler.SuspensionGames > 0, c.level == 2) << c.why;
    EXPECT_EQ(DMan(2).PlayerGameTime, 650) << "the play counts as his";
  }
}

}  // namespace
}  // namespace tipline
