#include "coach/rotation_grid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "base/random.h"
#include "coach/rotation_sheet.h"
#include "harness/memory_league.h"
#include "league/rules.h"
#include "support/men.h"

namespace tipline {
namespace {

RulesRecord RulesFor(int periods, int minutes) {
  RulesRecord rules;
  rules.PeriodList = static_cast<u8>(periods);
  rules.MinuteList = static_cast<u8>(minutes);
  return rules;
}

/// A team of one man who has averaged so many minutes in 80 games.
Roster OneMan(int minutes, int secondary = 0) {
  UseShippedEras();
  Roster roster;
  roster.TeamNo = 9;
  PlayerRecord& p = roster.player[4];
  p = MakeMan({2000, "P", 1, secondary}, {.G = 80, .Min = 80 * minutes});
  p.TeamNo = 9, p.RecNo = 44;
  return roster;
}

/// The positions of the minutes of a period, one sign each.
template <class PositionAt>
std::string Signs(int minutes, PositionAt at) {
  std::string signs;
  for (int minute = 1; minute <= minutes; ++minute) {
    signs += at(minute) ? static_cast<char>('0' + at(minute)) : '.';
  }
  return signs;
}
std::string Row(const PlayerRecord& p, int period, int minutes = 12) {
  return Signs(minutes, [&](int minute) { return p.RotationGrid[period][minute]; });
}
std::string Quarters(const PlayerRecord& p) {
  return Row(p, 1) + " " + Row(p, 2) + " " + Row(p, 3) + " " + Row(p, 4);
}
std::string Line(const RotationSheet& sheet, int slot, int period) {
  return Signs(sheet.minutes, [&](int minute) { return sheet.PositionOf(slot, period, minute); });
}

TEST(RotationGrid, AFirstChoiceOpensAndClosesPeriods) {
  const struct {
    const char* why;
    int minutes;
    std::vector<double> draws;
    const char* quarters;
  } cases[] = {
      {"the third ends with a rest", 36, {1}, "11111....111 11111111111. 111111.111.. 111..1111111"},
      {"or is closed", 36, {2}, "11111....111 11111111111. 111111...111 111..1111111"},
      // Short stints go by the draw; who sat at the end of the first opens the second.
      {"short ones", 22, {2, 1, 2, 2}, "11111....... 111111...... 11111....... ..1111..1111"},
      {"part of a minute lost", 22, {2, 1, 2, 1}, "11111....... 1111......11 11111....... ..1111..1111"},
  };
  for (const auto& c : cases) {
    Roster roster = OneMan(c.minutes);
    random.Script(c.draws);
    SetComputerRotationGrid(roster, RulesFor(4, 12));
    random.Script({});
    EXPECT_EQ(Quarters(roster.player[4]), c.quarters) << c.why;
    EXPECT_EQ(Row(roster.player[4], 5), "111111111111") << c.why;
    EXPECT_EQ(roster.coach.RotationByRank[1][1][1], 4) << "the coach has it the other way round";
  }
}

TEST(RotationGrid, AManOfTwoPositionsIsSpreadThinnerAndPaidBackAtTheOther) {
  Roster roster = OneMan(36, 2);
  SetComputerRotationGrid(roster, RulesFor(4, 12));
  // Six minutes a period at the point and five at the end of the second (0.79 of his share), then what he
  // owes at the other guard up to two over his target. Moving into holes ends at the higher position number.
  EXPECT_EQ(Quarters(roster.player[4]), "222222222222 .......22222 222222...222 222222222222");
}

TEST(RotationGrid, AFullSheetIsDrawnUpToThirtyTimesAndTheLastOneStands) {
  const struct {
    const char* why;
    int minutes;
    std::size_t runs;
  } cases[] = {{"five men of 38 leave 50 holes", 36, 1}, {"of 39, 45", 37, 30}};
  for (const auto& c : cases) {
    Roster roster = OneMan(c.minutes);
    for (int position = 2; position <= 5; ++position) {
      PlayerRecord& p = roster.player[4 + position];
      p = roster.player[4];
      p.RecNo = static_cast<i16>(44 + position), p.PrimaryPosition = static_cast<u8>(position);
    }
    std::vector<double> draws(5 * c.runs, 2);      // each of the five closes the third period
    std::fill(draws.end() - 5, draws.end(), 1.0);  // the last run has them rest at its end
    draws.push_back(2);
    random.Script(draws);
    SetComputerRotationGrid(roster, RulesFor(4, 12));
    EXPECT_EQ(random.ScriptLeft(), 1u) << c.why;
    random.Script({});
    EXPECT_EQ(Row(roster.player[9], 3), "555555.555..") << c.why;
  }
}

TEST(RotationGrid, AHalfIsTwoBuiltPeriods) {
  Roster roster = OneMan(36);
  roster.player[4].RotationGrid[3][2] = 5;  // of an older grid
  random.Script({2});
  SetComputerRotationGrid(roster, RulesFor(2, 20));
  random.Script({});
  EXPECT_EQ(Row(roster.player[4], 1, 20), "11111..1111111111111");
  EXPECT_EQ(Row(roster.player[4], 2, 20), "111111.1111111111111");
  EXPECT_EQ(Row(roster.player[4], 3, 20), std::string(20, '.'));
  EXPECT_EQ(Row(roster.player[4], 5, 20), "1111111111..........");
  EXPECT_EQ(roster.coach.RotationByRank[1][11][1], 4);
}

TEST(RotationGrid, AManWithoutAQuarterOfTheSeasonIsNoFirstChoice) {
  for (const int games : {20, 21}) {  // a season of 82
    Roster roster = OneMan(36);
    roster.player[4].Stats[1].G = static_cast<i16>(games);
    roster.player[4].Stats[1].Min = static_cast<i16>(games * 36);
    SetComputerRotationGrid(roster, RulesFor(4, 12));
    EXPECT_EQ(roster.player[4].RotationGrid[1][1], games == 21 ? 1 : 0);
  }
}

TEST(RotationGrid, EveryTeamGetsAWholeSheet) {
  for (const char* preset : {"pro", "college"}) {
    OpenSmallLeague(preset);
    const int minutes = league.rules.MinuteList;
    for (const int teamNo : MemoryTeams()) {
      Roster roster = RosterOf(teamNo);
      SetComputerRotationGrid(roster);
      int filled = 0;
      for (int period = 1; period <= league.rules.PeriodList; ++period) {
        for (int minute = 1; minute <= minutes; ++minute) {
          for (int position = 1; position <= 5; ++position) {
            const int slot = roster.coach.RotationByRank[position][minute][period];
            if (slot == 0) continue;
            ++filled;
            EXPECT_EQ(roster.player[slot].RotationGrid[period][minute], position) << "one place at a time";
          }
        }
      }
      EXPECT_GE(filled, league.rules.PeriodList * minutes * 5 - 30) << preset << " " << teamNo;
    }
  }
}

/// Five men of an empty sheet; slot n has the rank at position n.
class Sheet : public testing::Test {
 protected:
  Roster roster;

  PlayerRecord& Put(int slot, int target, int position, int rank) {
    PlayerRecord& p = roster.player[slot];
    p.TeamNo = 9, p.RecNo = static_cast<i16>(slot);
    p.TargetMinutes = static_cast<u8>(target);
    p.DepthRank[position] = static_cast<u8>(rank);
    return p;
  }
  void SetUp() override { roster.TeamNo = 9; }
};

TEST_F(Sheet, ABlockOpensThePeriodOrClosesIt) {
  const struct {
    const char *why, *taken, *want;
    int n;
    double most;
  } cases[] = {
      {"from the start", "............", "1111........", 4, 99},
      {"cut at the end", "............", "111111111111", 40, 99},
      {"over what is taken", ".xx.........", "1..1........", 4, 99},
      {"up to the last open minute", "x........xxx", ".....1111...", 4, 99},
      {"not before the start", "xx.x.......x", "..1.1111111.", 40, 99},
      {"nothing open", "xxxxxxxxxxxx", "............", 4, 99},
      {"the latest minutes first while his target holds", "x...........", "..........11", 5, 2},
  };
  for (const auto& c : cases) {
    Put(1, 30, 1, 6);
    Put(2, 30, 1, 5);
    RotationSheet sheet(roster, 4, 12);
    for (int minute = 1; minute <= 12; ++minute) {
      if (c.taken[minute - 1] == 'x') sheet.Place(2, 3, minute, 1);
    }
    sheet.PlaceBlock(1, 3, 1, c.n, c.most);
    EXPECT_EQ(Line(sheet, 1, 3), c.want) << c.why;
  }
}

TEST_F(Sheet, RegularsByTargetAndRank) {
  const struct {
    const char* why;
    int target, rank, periods;
    bool regular;
  } cases[] = {
      {"ranked high, hardly used", 1, 5, 4, true},
      {"third rank", 15, 3, 4, true},
      {"second rank", 10, 2, 4, true},
      {"second rank, too few minutes", 9, 2, 4, false},
      {"last rank", 10, 1, 4, false},
      {"but not in halves", 10, 1, 2, true},
      {"no rank", 30, 0, 4, false},
  };
  for (const auto& c : cases) {
    roster.player.Fill({});
    Put(7, c.target, 3, c.rank);
    RotationSheet sheet(roster, c.periods, 12);
    ChooseRegulars(sheet);
    EXPECT_EQ(sheet.man[7].regular, c.regular) << c.why;
  }
  roster.player.Fill({});
  for (int slot = 1; slot <= 12; ++slot) Put(slot, slot <= 10 ? 21 : 15, 3, 4);
  RotationSheet sheet(roster, 4, 12);
  ChooseRegulars(sheet);
  EXPECT_TRUE(sheet.man[10].regular);
  EXPECT_FALSE(sheet.man[11].regular) << "ten are enough below twenty minutes";
}

TEST_F(Sheet, ARegularOfTwoPositionsChangesBetweenThem) {
  Put(3, 20, 2, 5).DepthRank[4] = 3;
  RotationSheet sheet(roster, 4, 12);
  ChooseRegulars(sheet);
  PlaceRegulars(sheet);
  // Fourth period first, at his first position; then the first at the second. 24 minutes are three too many.
  EXPECT_EQ(Line(sheet, 3, 4), "444444444444") << "he has moved over to the hole beside him";
  EXPECT_EQ(Line(sheet, 3, 1), "444444444444");
  EXPECT_EQ(Line(sheet, 3, 3) + Line(sheet, 3, 2), std::string(24, '.')) << "his target is full";
}

TEST_F(Sheet, HolesAreFilledWhereFewAreLeftByMenNearTheirTarget) {
  const struct {
    const char* why;
    int others, own;
    bool beside;
    int want;
  } cases[] = {
      {"thirty holes, ten minutes of a target of three", 200, 10, false, 11},
      {"thirty-one holes", 199, 10, false, 10},
      {"eleven minutes are enough", 199, 11, false, 11},
      {"but where he stands beside it", 199, 11, true, 11 + 1 + 7},
  };
  for (const auto& c : cases) {
    Put(1, 40, 1, 6);
    Put(2, 3, 2, 6);
    RotationSheet sheet(roster, 4, 12);
    ChooseRegulars(sheet);
    if (c.beside) sheet.Place(2, 1, 5, 2);
    sheet.man[1].placed = c.others;
    sheet.man[2].placed = c.own;
    FillHoles(sheet);
    EXPECT_EQ(sheet.man[2].placed, c.want) << c.why;
  }
}

}  // namespace
}  // namespace tipline
