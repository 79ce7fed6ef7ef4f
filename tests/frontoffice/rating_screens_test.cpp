#include <gtest/gtest.h>

#include "frontoffice/edit_ratings.h"
#include "frontoffice/rating_run.h"
#include "league/rules.h"
#include "platform/dialogs.h"
#include "support/men.h"

namespace tipline {
namespace {

TEST(EditRatings, RangesByColumn) {
  using C = RatingColumn;
  const struct {
    const char* why;
    C column;
    double value;
    u8 PlayerRecord::*field;
    int want;  // 77 = left as it was
  } cases[] = {
      {"offense is kept times ten", C::kOffense, 7.5, &PlayerRecord::RateOffense, 75},
      {"offense at its end", C::kOffense, 20, &PlayerRecord::RateOffense, 200},
      {"offense beyond", C::kOffense, 20.1, &PlayerRecord::RateOffense, 77},
      {"inside share to the nearest ten", C::kRealIn, 45, &PlayerRecord::RealInsidePct, 50},
      {"inside share below the half", C::kRealIn, 44, &PlayerRecord::RealInsidePct, 40},
      {"inside share beyond", C::kRealIn, 201, &PlayerRecord::RealInsidePct, 77},
      {"others to 20", C::kClutch, 20, &PlayerRecord::RateClutch, 20},
      {"others beyond", C::kDefMan, 21, &PlayerRecord::RateDefOutside, 77},
      {"below nothing", C::kDunk, -1, &PlayerRecord::RateDunk, 77},
      {"boards in their own columns", C::kOffReb, 3, &PlayerRecord::RateRebOff, 3},
  };
  for (const auto& c : cases) {
    PlayerRecord p;
    p.*c.field = 77;
    EXPECT_EQ(SetRating(p, c.column, c.value), c.want != 77) << c.why;
    EXPECT_EQ(p.*c.field, c.want) << c.why;
  }
}

TEST(EditRatings, UntouchedGridChangesNothing) {
  Roster roster;
  roster.player[3].RecNo = 12;
  roster.player[3].RateOffense = 47;
  roster.player[3].RealInsidePct = 60;
  roster.player[3].RateRebDef = 9;
  const Roster before = roster;
  HCEDITRATINGS screen;
  screen.Fill(roster);
  screen.Cell[4][0] = 5;  // a row without a man
  screen.SAVECHANGES(roster);
  for (int slot = 0; slot <= kRosterSlots; ++slot) {
    EXPECT_EQ(roster.player[slot].RateOffense, before.player[slot].RateOffense) << slot;
    EXPECT_EQ(roster.player[slot].RealInsidePct, before.player[slot].RealInsidePct);
    EXPECT_EQ(roster.player[slot].RateRebDef, before.player[slot].RateRebDef);
  }
}

TEST(RatingRunScreen, AsksFirst) {
  UseShippedEras();
  Roster roster;
  roster.TeamNo = 1;
  roster.team = MakeTeam("P", 2010);
  roster.player[1] = MakeMan({2010}, {50, 1000, 400, 180, 0, 0, 100, 70, 200, 50, 100, 30, 10, 50, 90});
  roster.player[1].TeamNo = 1;
  platform::ScriptedDialogs dialogs;
  dialogs.answers = {false, true};
  EXPECT_FALSE(hcratings().DEFAULTRATINGS(roster));
  EXPECT_EQ(roster.player[1].RateOffense, 0);
  EXPECT_TRUE(hcratings().DEFAULTRATINGS(roster));
  EXPECT_GT(roster.player[1].RateOffense, 0);
  EXPECT_EQ(dialogs.asked.at(0), "Generate Default Ratings?");
}

}  // namespace
}  // namespace tipline
