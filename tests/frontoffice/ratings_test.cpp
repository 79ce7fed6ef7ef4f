#include "frontoffice/ratings.h"

#include <gtest/gtest.h>

#include "frontoffice/edit_ratings.h"
#include "frontoffice/rating_run.h"
#include "league/player_values.h"
#include "league/rules.h"
#include "platform/dialogs.h"
#include "support/men.h"

namespace tipline {
namespace {

constexpr LineOf kGuard{80, 2800, 1200, 560, 300, 110, 350, 290, 280, 60, 560, 120, 20, 210, 190};
constexpr LineOf kCentre{76, 3100, 1300, 640, 0, 0, 500, 290, 1500, 480, 180, 60, 160, 230, 270};
constexpr LineOf kForward{60, 1500, 500, 180, 0, 0, 210, 150, 300, 99, 120, 40, 30, 90, 180};
constexpr LineOf kStudent{32, 900, 300, 150, 60, 21, 120, 84, 220, 70, 50, 25, 35, 60, 80};
constexpr LineOf kWoman{34, 1000, 380, 170, 120, 45, 100, 85, 130, 25, 110, 45, 12, 70, 75};
constexpr LineOf kOneOfThree{50, 700, 250, 110, 3, 1, 60, 45, 90, 20, 60, 20, 8, 40, 60};
constexpr LineOf kShort{30, 140, 60, 38, 12, 8, 30, 27, 60, 25, 30, 8, 10, 5, 15};

/// A team that shot less than its league and defended well.
TeamRecord SlowTeam() {
  TeamRecord team = MakeTeam("P", 1995);
  RealTotalsLine& own = team.RealTotals[1];
  own.FGA = 7200, own.FGM = 3400, own.Reb = 3500, own.Off = 1100, own.St = 700, own.Bk = 400, own.To = 1300;
  RealTotalsLine& opp = team.RealTotals[2];
  opp.FGA = 7000, opp.FGM = 3150, opp.Reb = 3300, opp.Off = 1000, opp.St = 650, opp.Bk = 380, opp.To = 1400;
  return team;
}

class Ratings : public testing::Test {
 protected:
  void SetUp() override {
    UseShippedEras();
    league.FullSeasonScale = 1.0;
  }
};

using P = PlayerRecord;
constexpr struct {
  const char* name;
  u8 P::*field;
} kColumns[] = {
    {"offense", &P::RateOffense},     {"real in", &P::RealInsidePct},  {"free throw", &P::RateReserved1},
    {"three", &P::RateOffThree},      {"outside", &P::RateOffOutside}, {"inside", &P::RateOffInside},
    {"drive", &P::RateOffDrive},      {"break", &P::RateOffFastbreak}, {"passing", &P::RatePassing},
    {"rebD", &P::RateRebDef},         {"rebO", &P::RateRebOff},        {"def out", &P::RateDefOutside},
    {"def in", &P::RateDefInside},    {"force", &P::RateDefForce},     {"durability", &P::RateDurability},
    {"sport", &P::RateSportsmanship}, {"clutch", &P::RateClutch},      {"dunk", &P::RateDunk}};

TEST_F(Ratings, OfWholeLinesWorkedOutByHand) {
  const struct {
    const char* why;
    ManOf man;
    LineOf line;
    TeamRecord team;
    int want[std::size(kColumns)];
    double overall;
    int salary;
    const char* sex = "M";
  } cases[] = {
      // clang-format off
      //  Off In% FT 3P Ou In Dr Fb Pa RD RO DO DI DF Du Sp Cl Dk
      {"a guard on a team without totals", {1995, "P", 1, 2, 0, 27, 75}, kGuard, MakeTeam("P", 1995),
        {68,  0, 6, 6, 8, 0, 8, 9, 8, 3, 1, 7, 1, 7, 10, 7, 7, 0}, 6.672407, 14690},
      {"his team slow: passing twice corrected", {1995, "P", 1, 2, 0, 27, 75}, kGuard, SlowTeam(),
        {68,  0, 6, 6, 8, 0, 8, 10, 6, 3, 1, 7, 1, 7, 10, 7, 7, 0}, 6.356618, 13328},
      {"a centre before blocks were kept", {1965, "P", 5, 0, 0, 31, 83}, kCentre, MakeTeam("P", 1965),
        {44, 90, 4, 0, 1, 8, 0, 0, 2, 8, 4, 5, 6, 1, 9, 6, 6, 10}, 5.044648, 10887},
      {"no usable minutes: offense x 1.3", {1950, "P", 3, 4, 0, 25, 77}, kForward, MakeTeam("P", 1950),
        {61, 70, 5, 0, 3, 7, 1, 2, 3, 4, 2, 3, 2, 3, 7, 5, 5, 3}, 4.030531, 4558},
      {"a college forward", {2022, "C", 4, 3, 5, 20, 80}, kStudent, MakeTeam("C", 2022),
        {72, 60, 5, 6, 5, 8, 2, 3, 2, 6, 2, 6, 7, 4, 9, 6, 6, 8}, 4.854512, 8690},
      {"a professional woman", {2022, "P", 2, 0, 0, 28, 72}, kWoman, MakeTeam("P", 2022),
        {57,  0, 6, 6, 5, 0, 5, 6, 3, 4, 1, 3, 2, 5, 10, 6, 6, 0}, 3.867532, 2269, "W"},
      {"one of three threes: the least", {2010, "P", 2, 0, 0, 24, 78}, kOneOfThree, MakeTeam("P", 2010),
        {53,  0, 5, 1, 3, 0, 5, 6, 3, 4, 1, 3, 2, 4, 6, 5, 3, 4}, 3.511783, 1442},
      {"140 minutes: at most 5, boards 7 and 4", {2010, "P", 4, 0, 0, 23, 82}, kShort, MakeTeam("P", 2010),
        {56, 50, 6, 5, 5, 5, 4, 5, 7, 7, 4, 10, 9, 10, 4, 4, 2, 10}, 6.421032, 673},
      // clang-format on
  };
  for (const auto& c : cases) {
    PlayerRecord p = MakeMan(c.man, c.line);
    p.Sex = c.sex;
    p.ScheduleStrength = c.team.TeamType == 'C' ? 7 : 0;
    hcratings().RatePlayer(p, c.team);
    for (std::size_t i = 0; i < std::size(kColumns); ++i)
      EXPECT_EQ(p.*kColumns[i].field, c.want[i]) << c.why << ": " << kColumns[i].name;
    EXPECT_NEAR(PlayerOverall(p), c.overall, 1e-4) << c.why;
    EXPECT_EQ(p.Salary, c.salary) << c.why;
    EXPECT_EQ(p.OldRateDefOutside, p.RateDefOutside) << c.why;
  }
}

TEST_F(Ratings, FillInsOfOldSeasons) {
  for (const int year : {1973, 1970}) {  // 1973: kept, so left
    PlayerRecord p = MakeMan({year}, {.G = 70, .Min = 2000, .FGA = 1000, .Ast = 100});
    DefaultTurnovers(p, MakeTeam("P", year));
    EXPECT_EQ(p.Stats[1].To, year == 1973 ? 0 : 169) << year;
  }
  // The team's 800 steals in 82 games: 0.040231 a minute and man. Point guard + 0.03, centre - 0.03.
  TeamRecord team = MakeTeam("P", 1995);
  team.RealTotals[1].St = 800;
  team.RealTotals[1].Bk = 400;
  const struct {
    int position, inches, steals, blocks;
  } positions[] = {{1, 75, 140, 6}, {3, 79, 80, 16}, {5, 85, 20, 140}, {5, 82, 20, 112}, {5, 79, 20, 88}};
  for (const auto& c : positions) {
    PlayerRecord p = MakeMan({1995, "P", c.position, 0, 0, 25, c.inches}, {.G = 70, .Min = 2000});
    DefaultSteals(p, team, {});
    DefaultBlockedShots(p, team, {});
    EXPECT_EQ(p.Stats[1].St, c.steals) << c.position;
    EXPECT_EQ(p.Stats[1].Bk, c.blocks) << c.position << " of " << c.inches;
  }
  PlayerRecord student = MakeMan({1950, "C"}, {.G = 20, .Min = 500, .FGA = 100});
  DefaultTurnovers(student, MakeTeam("C", 1950));
  EXPECT_EQ(student.Stats[1].To, 0) << "never on a college team";
}

TEST_F(Ratings, DurabilityCountsTheDaysHeCouldPlay) {
  const struct {
    const char* why;
    const char* team;
    int startMonth, startDay, endMonth, endDay, games, want;
    bool woman;
  } cases[] = {
      {"whole season: October to March, 150 days", "P", 1, 1, 12, 31, 41, 5, false},
      {"a last date before the first: 30 days", "P", 8, 1, 3, 1, 4, 2, false},
      {"college seasons are shorter", "C", 1, 1, 12, 31, 30, 8, false},
      {"never above ten", "P", 6, 1, 6, 20, 30, 10, false},
      {"women by their games alone", "P", 6, 1, 6, 20, 20, 6, true},
  };
  for (const auto& c : cases) {
    PlayerRecord p = MakeMan({2010}, {.G = c.games});
    if (c.woman) p.Sex = "W";
    p.StartMonth = static_cast<u8>(c.startMonth), p.StartDay = static_cast<u8>(c.startDay);
    p.EndMonth = static_cast<u8>(c.endMonth), p.EndDay = static_cast<u8>(c.endDay);
    DefaultDurability(p, MakeTeam(c.team, 2010), {});
    EXPECT_EQ(p.RateDurability, c.want) << c.why;
  }
}

TEST_F(Ratings, MissingDataLeavesWhatIsThere) {
  PlayerRecord p = MakeMan({2010, "P", 2}, kGuard);
  p.RealInsidePct = 70, p.RatePassing = 9, p.RateDurability = 3, p.RateSportsmanship = 2;
  p.RateOffDrive = 1;    // any of the five shots
  p.RateRebOff = 2;      // either rebound rating
  p.RateDefOutside = 4;  // any of the defense
  p.EndDay = 5;          // any date
  p.RateClutch = p.RateDunk = p.RateOffense = 99;
  hcratings run;
  run.MissingDataCheck = true;
  run.RatePlayer(p, MakeTeam("P", 2010));
  EXPECT_EQ(p.RealInsidePct * 10 + p.RatePassing, 709);
  EXPECT_EQ(p.RateDurability * 10 + p.RateSportsmanship, 32);
  EXPECT_EQ(p.RateOffOutside + p.RateOffInside + p.RateOffThree + p.RateRebDef + p.RateDefForce, 0);
  EXPECT_EQ(p.StartMonth, 0);
  for (const int always : {p.RateOffense, p.RateClutch, p.RateDunk}) EXPECT_LT(always, 99);
}

TEST_F(Ratings, RunTakesOnlyTheTeamsMenWithMinutes) {
  Roster roster;
  roster.TeamNo = 7;
  roster.team = MakeTeam("P", 2010);
  for (int slot = 1; slot <= 3; ++slot) {
    roster.player[slot] = MakeMan({2010}, kGuard);
    roster.player[slot].TeamNo = 7;
    roster.player[slot].RateOffense = 1;
  }
  roster.player[2].Stats[1].Min = 0;
  roster.player[3].TeamNo = 7 + kFormerMember;
  platform::ScriptedDialogs dialogs;
  dialogs.answers = {false, true};
  EXPECT_FALSE(hcratings().DEFAULTRATINGS(roster));
  EXPECT_EQ(roster.player[1].RateOffense, 1);
  EXPECT_TRUE(hcratings().DEFAULTRATINGS(roster));
  EXPECT_GT(roster.player[1].RateOffense, 1);
  EXPECT_EQ(roster.player[2].RateOffense, 1) << "no minutes";
  EXPECT_EQ(roster.player[3].RateOffense, 1) << "a former member";
}

TEST_F(Ratings, EmptyDataNeverDivides) {
  league.EraPro = {};
  league.EraCollege = {};
  for (const char* type : {"P", "C", "O", ""}) {
    for (const int year : {0, 1946, 2022, 3000}) {
      PlayerRecord empty;
      empty.Year = static_cast<i16>(year);
      empty.PlayerType = type;
      hcratings().RatePlayer(empty, MakeTeam(type, year));
      EXPECT_EQ(empty.Salary, 300);
      PlayerRecord man = MakeMan({year, type}, kGuard);
      hcratings().RatePlayer(man, MakeTeam(type, year));
      EXPECT_LE(man.RateRebDef, 20);
      EXPECT_LE(man.RatePassing, 20);
    }
  }
}

TEST(EditRatings, RangesByColumn) {
  using C = RatingColumn;
  PlayerRecord p;
  EXPECT_TRUE(SetRating(p, C::kOffense, 7.5) && SetRating(p, C::kRealIn, 45) && SetRating(p, C::kDefMan, 20));
  EXPECT_EQ(p.RealInsidePct, 50) << "to the nearest ten";
  EXPECT_TRUE(SetRating(p, C::kRealIn, 44));
  EXPECT_EQ(p.RealInsidePct, 40);
  EXPECT_FALSE(SetRating(p, C::kOffense, 20.1) || SetRating(p, C::kDefMan, 21) ||
               SetRating(p, C::kDefMan, -1));
  EXPECT_EQ(p.RateOffense, 75) << "kept times ten";
  EXPECT_EQ(p.RateDefOutside, 20);
}

TEST(EditRatings, AnUntouchedGridChangesNothing) {
  Roster roster;
  PlayerRecord& man = roster.player[3];
  man.RecNo = 12, man.RateOffense = 47, man.RealInsidePct = 60, man.RateRebDef = 9;
  HCEDITRATINGS screen;
  screen.Fill(roster);
  screen.Cell[4][0] = 5;  // a row without a man
  screen.SAVECHANGES(roster);
  EXPECT_EQ(man.RateOffense * 1000 + man.RealInsidePct * 10 + man.RateRebDef, 47609);
  EXPECT_EQ(roster.player[4].RateOffense, 0);
}

}  // namespace
}  // namespace tipline
