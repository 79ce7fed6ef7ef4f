#include "engine/incidents.h"

#include <gtest/gtest.h>

#include <vector>

#include "engine/availability.h"
#include "engine/eligible.h"
#include "engine/outcome.h"
#include "engine/resolution.h"
#include "league/season_date.h"
#include "support/neutral_game.h"

namespace tipline {
namespace {

using Kind = IncidentKind;

/// Twelve calm, durable men a side in the second period; side 2 attacks, slot 1 has the ball. No rule of the
/// incidents is on.
void SetUpTwelve() {
  SetUpNeutralGame();
  game.PlayKind = "OUTSIDE";
  game.GameState = "OFFENSE";
  game.Period = 2;
  game.GameClock = 4000;
  game.GameStarted = true;
  game.ShotClock = 200;
  Rules().ShotClockList = 24;
  Rules().DqList = 6;
  Rules().FoulLimit = {{5, 5, 5}};
  Rules().Penalty = {{3, 3, 3}};
  for (int s = 1; s <= 2; ++s) {
    for (int slot = 1; slot <= 12; ++slot) {
      PlayerRecord& p = game.player[s][slot];
      p = MeanMan(s, (slot - 1) % 5 + 1);
      p.PositionAllowed[p.PrimaryPosition] = 1;
      p.LastName = "Long";
      game.man[s][slot].PlayerGameTime = 600;
    }
  }
}

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

/// Which kinds come in 20000 plays, a bit each.
unsigned Seen(void (*change)()) {
  SetUpTrouble();
  change();
  const Game start = game;
  unsigned seen = 0;
  for (unsigned seed = 0; seed < 20000; ++seed) {
    random.Seed(seed);
    game.LineupAnnounced = start.LineupAnnounced;
    if (!PlayIsInterrupted()) continue;
    seen |= 1u << static_cast<int>(game.incident.Kind);
    game = start;
  }
  return seen;
}

constexpr unsigned Bit(Kind k) { return 1u << static_cast<int>(k); }
constexpr unsigned kHurt = Bit(Kind::kShakenUp) | Bit(Kind::kTemporaryInjury) | Bit(Kind::kInjury);
constexpr unsigned kIllegal = Bit(Kind::kIllegalDefense);
constexpr unsigned kFight = Bit(Kind::kFight);
constexpr unsigned kTech = Bit(Kind::kTechnical);

// clang-format off
TEST(Incidents, TheMomentDecidesWhatCanHappen) {
  const struct { const char* why; void (*change)(); unsigned kinds; } cases[] = {
      {"an ordinary play",          [] {},                                   kHurt | kIllegal | kFight | kTech},
      {"nine men left to a side",   [] { game.side[1].EligibleCount = 9; },  kIllegal},
      {"ten are enough",            [] { game.side[1].EligibleCount = 10; }, kHurt | kIllegal | kFight | kTech},
      {"clock burned",              [] { game.PlayKind = "BURN"; },          kIllegal | kFight | kTech},
      {"line-up just announced",    [] { game.LineupAnnounced = 1; },        kIllegal | kFight | kTech},
      {"after a free throw",        [] { game.PreviousResult = "FTG"; },     kIllegal | kFight | kTech},
      {"fast break",                [] { game.GameState = "FASTBREAK"; },    0},
      {"a what-if",                 [] { game.AnalysisMode = true; },        0},
      {"no illegal defense rule",   [] { Rules().IllegalDefenseList = 0; },  kHurt | kFight | kTech},
      {"no injuries by the rules",  [] { Rules().InjuryOption = 0; },        (kHurt & ~Bit(Kind::kInjury)) | kIllegal | kFight | kTech},
      {"none shaken up by them",    [] { Rules().TemporaryGameInjuriesCheck = 0; }, Bit(Kind::kInjury) | kIllegal | kFight | kTech},
      {"in the corner, dead ball",  [] { game.DeadBallKind = 2; },           kIllegal},
      {"ball taken out beside",     [] { game.DeadBallKind = 1; },           kIllegal | kFight},
      {"told to foul",              [] { D().QuickFoul = 1; },               (kHurt & ~Bit(Kind::kInjury)) | kTech},
      {"last two minutes",          [] { game.GameClock = 1199; },           kHurt | kIllegal | kFight},
      {"first two minutes",         [] { game.GameClock = 6000; },           kHurt | kIllegal},
      {"late on the shot clock",    [] { game.ShotClock = 79; },             kIllegal | kFight | kTech},
      {"nobody is angry yet",       [] { game.Tension = 1; },                kHurt | kIllegal | kTech},
      {"a saint on each side",      [] { for (auto& side : game.player) for (auto& p : side) p.RateSportsmanship = 10; },
                                                                             kHurt | kIllegal},
      {"first playoff round",       [] { program.PlayoffGame = true, program.CurrentRound = 1, game.Tension = 0; },
                                                                             (kHurt & ~Bit(Kind::kInjury)) | kIllegal},
  };
  for (const auto& c : cases) {
    const unsigned seen = Seen(c.change);
    // A technical in the playoffs is one in many thousands.
    EXPECT_EQ(seen & ~(program.PlayoffGame ? kTech : 0u), c.kinds) << c.why;
  }
}
// clang-format on

TEST(ShakenUp, StaysInTheGameUnlessHisMinutesSpareHim) {
  const struct {
    const char* why;
    std::vector<double> draws;  // one in 30, position, share of his minutes, spared, ..., word, an odd one
    int word;
  } cases[] = {{"more minutes than drawn, and spared", {1, 3, 0.49, 1}, 0},
               {"not spared", {1, 3, 0.49, 2, 0.9, 0.9, 13, 2}, 13},
               {"fewer minutes than drawn", {1, 3, 0.5, 0.9, 0.9, 5, 1, 10}, 60}};
  for (const auto& c : cases) {
    SetUpTwelve();
    Rules().TemporaryGameInjuriesCheck = 1;
    auto draws = c.draws;
    if (c.word == 0) draws.insert(draws.end(), {2, 2, 2, 2});  // nothing else happens
    random.Script(draws);
    EXPECT_EQ(PlayIsInterrupted(), c.word > 0) << c.why;
    if (c.word == 0) continue;
    EXPECT_EQ(game.incident.InjuryWord, c.word) << c.why;
    EXPECT_EQ(game.incident.Slot, 3);
    EXPECT_EQ(game.PlayResult.Text(), "SHAKEN-UP");
    EXPECT_EQ(game.GameState.Text(), "DEADBALL-DEFENSE");
    EXPECT_EQ(O().Lineup[3], 3);
    EXPECT_EQ(game.OffenseSide, 2);
  }
}

TEST(TemporaryInjury, HowLongHeSits) {
  const struct {
    const char* why;
    std::vector<double> counts;  // the draw, ten more, and for each of five: share, ten more
    int sits;
  } cases[] = {{"at least three", {1, 1, 0, 0, 0, 0.1, 0.2}, 3},
               {"all there is", {25, 2, 0.99, 0.99, 0.99, 2, 0.99, 2, 0.99, 2}, 65},
               {"a drawn 25 and ten", {25, 2, 0, 0, 0, 0.1, 0.2}, 35}};
  for (const auto& c : cases) {
    SetUpTwelve();
    Rules().TemporaryGameInjuriesCheck = 1;
    std::vector<double> draws{2, 1, 1, 1, 1, 4, 1, 0.9, 0.9, 0.9};  // side 1, position 4, not spared
    draws.insert(draws.end(), c.counts.begin(), c.counts.end());
    random.Script(draws);
    ASSERT_TRUE(PlayIsInterrupted()) << c.why;
    EXPECT_EQ(DMan(4).TemporaryInjury, c.sits) << c.why;
    EXPECT_EQ(PositionOf(1, 4), 0) << c.why;
    EXPECT_GT(D().Lineup[4], 5) << "somebody comes in for him";
    EXPECT_EQ(game.GameState.Text(), "TIMEOUT-DEFENSE");
    EXPECT_FALSE(IsEligible(1, 4));
  }
}

/// The man at position 2 of the offense has missed 40 games of 82 in life, none yet here; `length` says how
/// much of it this injury takes.
void Injure(double length) {
  Rules().InjuryOption = 1;
  game.player[2][2].Stats[1].G = 42;
  random.Script({1, 1, 2, 9, 1, 0, length});
  ASSERT_TRUE(PlayIsInterrupted());
}

TEST(Injury, TheReturnDateAndWhoIsOutUntilThen) {
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
    Injure(c.share);
    const PlayerRecord& p = game.player[2][2];
    EXPECT_EQ(game.incident.Length, c.length) << c.why;
    EXPECT_EQ(p.InjurySeverity, c.severity) << c.why;
    EXPECT_EQ((SeasonDate{p.InjuryReturnMonth, p.InjuryReturnDay}), c.back) << c.why;
    EXPECT_EQ(p.SeasonInjuryCount, 1) << c.why;
    EXPECT_EQ(PositionOf(2, 2), 0) << c.why;
    EXPECT_FALSE(IsEligible(2, 2)) << c.why;
    if (c.severity < 2) continue;  // a light one may end early
    for (const int after : {0, 1}) {
      const SeasonDate day = after ? DaysLater(c.back, 1) : c.back;
      game.GameMonth = day.month, game.GameDay = day.day;
      SetAvailability(2);
      EXPECT_EQ(LoadedAt(2, 2).PlayerOut, after ? 0 : 1) << c.why;
    }
    EXPECT_EQ(p.InjuryReturnMonth + p.InjuryType, 0) << "healed";
  }
}

TEST(Injury, PickInjurySparesThoseItMust) {
  const struct {
    const char* why;
    void (*change)();
    bool hurt;
  } cases[] = {
      {"the man of the others", [] {}, true},
      {"the man with the ball", [] { game.BallPlayer = 2; }, false},
      {"a man who has just come in", [] { OMan(2).PlayerGameTime = 0; }, false},
      {"eight must be left", [] { O().EligibleCount = 9; }, true},
      {"seven are too few", [] { O().EligibleCount = 8; }, false},
      {"ten men on the roster", [] { game.player[2][11] = game.player[2][12] = {}; }, false},
      {"ten of them active", [] { game.loaded[2][11].PlayerOut = game.loaded[2][12].PlayerOut = 1; }, false},
      {"he has missed his share", [] { OTeam().Wins = 40; }, false},
      {"he has played them all so far", [] { OTeam().Wins = 40, game.player[2][2].Stats[2].G = 40; }, true},
  };
  for (const auto& c : cases) {
    SetUpTwelve();
    game.player[2][2].Stats[1].G = 42;
    c.change();
    random.Script({1, 2, 9, 1, 0, 0.5});
    PickInjury();
    random.Script({});
    EXPECT_EQ(game.play.InjuryFound, c.hurt) << c.why;
  }
}

TEST(Injury, GamesToMissFollowTheRealSeason) {
  const struct {
    const char* why;
    void (*change)(PlayerRecord&);
    double owed;
  } cases[] = {
      {"half a season", [](PlayerRecord& p) { p.Stats[1].G = 41; }, 41},
      {"never out", [](PlayerRecord& p) { p.Stats[1].G = 82; }, 0},
      {"an old season costs a tenth more", [](PlayerRecord& p) { p.Stats[1].G = 62, p.Year = 1980; }, 22},
      {"he came for the second half, and played it",
       [](PlayerRecord& p) { p.Stats[1].G = 41, p.StartMonth = 4, p.StartDay = 15, p.EndMonth = 12; }, 0},
      {"no season to go by", [](PlayerRecord& p) { p.Stats[1].G = 0, p.RateDurability = 5; }, 8.2},
      {"less what he has missed here",
       [](PlayerRecord& p) { p.Stats[1].G = 41, p.Stats[2].G = 10, OTeam().Losses = 30; }, 21},
      {"no more than are left",
       [](PlayerRecord& p) { p.Stats[1].G = 41, p.Stats[2].G = 75, OTeam().Wins = 75; }, 6},
  };
  for (const auto& c : cases) {
    SetUpTwelve();
    c.change(game.player[2][2]);
    EXPECT_NEAR(GamesToMiss(2, 2), c.owed, 0.6) << c.why;
  }
}

TEST(IllegalDefense, AWarningOrAShotAndTheBallAgain) {
  const struct {
    int list, before;
    bool shot;
  } cases[] = {{1, 0, false}, {1, 1, true}, {2, 0, true}};
  for (const auto& c : cases) {
    SetUpTwelve();
    Rules().IllegalDefenseList = static_cast<u8>(c.list);
    D().IllegalDefenses = c.before;
    IllegalDefenseCall();
    EXPECT_EQ(game.PlayResult.Text(), "ILLEGAL DEFENSE");
    EXPECT_EQ(game.PlayKind.Text(), c.shot ? "SHOOT1" : "");
    EXPECT_EQ(game.incident.Warning, !c.shot);
    if (!c.shot) continue;
    game.PlayResult = "FTM";
    PostPlay();
    EXPECT_EQ(game.GameState.Text(), "OFFENSE") << "nobody rebounds a technical";
    EXPECT_EQ(game.OffenseSide, 2);
    EXPECT_EQ(game.TechnicalFreeThrow, 0);
  }
}

TEST(Technical, WhoShootsAndWhoHasTheBallAfterwards) {
  const struct {
    const char* why;
    int side, shots, ejects, had, counted;
    bool ejected;
    int fouls;
  } cases[] = {{"on the offense, one shot", 2, 1, 2, 0, 1, false, 0},
               {"on the defense, two", 1, 2, 2, 0, 1, false, 0},
               {"his second of two", 2, 1, 2, 1, 1, true, 0},
               {"his second of three", 2, 1, 3, 1, 1, false, 0},
               {"nobody is ejected for it", 2, 1, 0, 5, 1, false, 0},
               {"a personal foul as well", 1, 2, 2, 0, 2, false, 1}};
  for (const auto& c : cases) {
    SetUpTwelve();
    Rules().TechnicalFTslist = static_cast<u8>(c.shots);
    Rules().TechList = static_cast<u8>(c.ejects);
    Rules().TechnicalPFCheck = static_cast<u8>(c.counted);
    PlayerRecord& hot = game.player[c.side][1];
    hot.RateSportsmanship = 0;
    hot.Stats[3].Technicals = static_cast<u8>(c.had);
    game.player[3 - c.side][4].Stats[1].FTM = 390;        // the best at the line
    std::vector<double> draws{2, 1};                      // no fight; somebody is looked at
    if (c.side == 1) draws.insert(draws.end(), 15, 2.0);  // the five attackers hold their tongues
    draws.insert(draws.end(), {91, 1, 1});
    random.Script(draws);
    ASSERT_TRUE(PlayIsInterrupted()) << c.why;
    EXPECT_EQ(hot.Stats[3].Technicals, c.had + 1) << c.why;
    EXPECT_EQ(hot.Stats[3].Pf, c.fouls) << c.why;
    EXPECT_EQ(ManAt(c.side, 1).Ejected, c.ejected) << c.why;
    EXPECT_EQ(PositionOf(c.side, 1), c.ejected ? 0 : 1) << c.why;
    EXPECT_EQ(game.OffenseSide, 3 - c.side) << c.why;
    EXPECT_EQ(game.BallPlayer, 4) << c.why;
    game.SecondChance = 1;  // of the attackers, who may be the other side
    for (int shot = 0; shot < c.shots; ++shot) {
      game.PlayResult = "FTG";
      PostPlay();
    }
    EXPECT_EQ(game.side[1].ExtraSecondChancePoints, 0) << c.why;
    EXPECT_EQ(game.GameState.Text(), "OFFENSE") << c.why;
    EXPECT_EQ(game.OffenseSide, 2) << "the ball is theirs again";
    EXPECT_EQ(game.player[3 - c.side][4].Stats[3].FTM, c.shots) << c.why;
    EXPECT_EQ(game.team[1].Possessions[3] + game.team[2].Possessions[3], 0) << "nobody lost the ball";
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
      ASSERT_EQ(game.GameClock, 4000) << "no time runs";
      ASSERT_EQ(game.GameState.Text(), "DEADBALL-DEFENSE");
      ASSERT_EQ(game.DeadBallKind, 1);
      ASSERT_EQ(game.OffenseSide, 2);
    });
    EXPECT_EQ(delays > 0, state == "DEADBALL-OFFENSE") << delays;
  }
}

TEST(Fight, TheWorstTempersMeetAtTheLimit) {
  const struct {
    const char* why;
    int ratings[2];
    bool fight;
  } cases[] = {{"both as low as the draws", {3, 3}, true},
               {"one above his", {3, 4}, false},
               {"the other", {4, 3}, false}};
  for (const auto& c : cases) {
    SetUpTwelve();
    game.Tension = 6;
    for (int s = 1; s <= 2; ++s) game.player[s][3].RateSportsmanship = static_cast<u8>(c.ratings[s - 1]);
    random.Script({1, 5, 1, 1, 3, 3, 2, 2, 2});
    EXPECT_EQ(PlayIsInterrupted(), c.fight) << c.why;
    random.Script({});
    EXPECT_EQ(game.Tension, c.fight ? 0 : 6) << c.why;
    for (int s = 1; s <= 2; ++s) EXPECT_EQ(IsEligible(s, 3), !c.fight) << c.why;
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
    EXPECT_EQ(games, game.incident.Suspension);
    EXPECT_TRUE(c.suspends ? games >= 2 && games <= 4 : games == 0) << c.why;
  }
}

TEST(Flagrant, TheLevelAndWhatItCosts) {
  const struct {
    const char* why;
    std::vector<double> draws;  // new form, tension, one in 300, temper; level 2; let go
    int before, level;
    bool ejected;
  } cases[] = {
      {"common", {2, 2, 2, 0.9}, 0, 0, false},
      {"called", {2, 2, 1, 0.9, 2, 6}, 0, 1, false},
      {"let go", {2, 2, 1, 0.9, 2, 5}, 0, 0, false},
      {"his second", {2, 2, 1, 0.9, 2, 6}, 1, 1, true},
      {"by his temper, and worse", {2, 2, 2, 0.39, 8, 1, 1, 0.59, 10, 6}, 0, 2, true},
  };
  for (const auto& c : cases) {
    SetUpTwelve();
    Rules().FlagrantCheck = Rules().SuspensionsCheck = 1;
    game.PlayResult = "F0";
    game.play.Fouler = game.play.FoulerSlot = 2;
    game.play.FoulingSide = 1;
    game.player[1][2].Flagrants[3] = static_cast<u8>(c.before);
    game.player[1][2].RateSportsmanship = 8;
    game.PlayTime = 50;
    random.Script(c.draws);
    PostPlay();
    random.Script({});
    EXPECT_EQ(game.play.FlagrantLevel, c.level) << c.why;
    EXPECT_EQ(game.PlayKind.Text(), c.level ? "SHOOT2" : "") << c.why;
    EXPECT_EQ(game.player[1][2].Flagrants[3], c.before + (c.level ? 1 : 0)) << c.why;
    EXPECT_EQ(game.player[1][2].Stats[3].Flagrant2, c.level == 2) << c.why;
    EXPECT_EQ(PositionOf(1, 2) == 0, c.ejected) << c.why;
    EXPECT_EQ(game.player[1][2].SuspensionGames > 0, c.level == 2) << c.why;
    EXPECT_EQ(DMan(2).PlayerGameTime, 650) << "the play counts as his";
  }
}

}  // namespace
}  // namespace tipline
