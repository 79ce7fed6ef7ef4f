#include "frontoffice/schedule_generator.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "base/random.h"
#include "base/record_file.h"
#include "frontoffice/first_schedule.h"
#include "support/schedule_league.h"

namespace tipline {
namespace {

/// So many teams over the divisions in turn; with `uneven` all of the last turn go to the first division.
std::vector<int> Teams(int count, int divisions) {
  std::set<int> teams;
  for (int k = 0; k < count; ++k) teams.insert(TeamsOfDivision(k % divisions + 1)[k / divisions + 1]);
  return {teams.begin(), teams.end()};
}

/// What a schedule comes to: games of each team, meetings of each ordered pair.
struct Tally {
  std::map<int, int> home, visitor;
  std::map<std::pair<int, int>, int> at;  ///< visitor, home
  int twice = 0;                          ///< teams with two games in one slot

  explicit Tally(const ScheduleDraft& draft) {
    std::set<std::pair<int, int>> busy;
    for (const auto& game : draft.games) {
      ++home[game.home];
      ++visitor[game.visitor];
      ++at[{game.visitor, game.home}];
      for (const int team : {game.home, game.visitor}) twice += !busy.insert({game.slot, team}).second;
    }
  }
};

TEST(ScheduleGenerator, RefusesWhatIsNoSeason) {
  const std::string season = "Schedules must be an even number of games between 10 and 98.";
  const std::string division = "Divisional games must be zero or an even number between 2 and 20 games.";
  const struct {
    const char* why;
    int teams, games, divisional;
    std::string message;
  } cases[] = {
      {"one team", 1, 9, 1, "A minimum of two teams is required to create a schedule!"},
      {"too short", 2, 8, 1, season},
      {"odd", 2, 11, 0, season},
      {"too long", 2, 100, 0, season},
      {"odd in the division", 2, 10, 1, division},
      {"negative", 2, 10, -2, division},
      {"too many", 2, 98, 22, division},
      {"the longest file", 720, 54, 20, ""},
      {"too long a file", 720, 56, 0, "A schedule holds at most 20000 games, these would be 20160."},
      {"the least", 2, 10, 0, ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ScheduleRequestProblem(c.teams, c.games, c.divisional), c.message) << c.why;
  }
}

TEST(ScheduleGenerator, EverySizeEndsAndNobodyPlaysTwiceADay) {
  random.Seed(5);
  for (int games = 10; games <= 98; games += 2) {
    for (int divisional = 0; divisional <= 20; divisional += 2) {
      const int count = 1 + Rnd(59), spread = 1 + Rnd(7);
      const auto teams = Teams(count, std::max(spread, (count + 19) / 20));
      const auto draft = DrawSchedule({games, divisional, Rnd(3)}, teams);
      const Tally tally(draft);
      SCOPED_TRACE(std::to_string(count) + " teams, " + std::to_string(games) + " games, " +
                   std::to_string(divisional) + " in the division");
      ASSERT_EQ(tally.twice, 0);
      ASSERT_EQ(draft.missing, count * games / 2 - static_cast<int>(draft.games.size()));
      ASSERT_EQ(draft.dates.size(), static_cast<std::size_t>(games) + 10);
      for (const auto& game : draft.games) {
        ASSERT_TRUE(std::binary_search(teams.begin(), teams.end(), game.home));
        ASSERT_TRUE(game.slot >= 1 && game.slot <= games + 10 && game.home != game.visitor);
      }
      const std::string told = "Schedule Missing " + std::to_string(draft.missing) + " Games!";
      ASSERT_EQ(ScheduleMessage(draft).starts_with(told), draft.missing > 0);
    }
  }
}

TEST(ScheduleGenerator, EqualDivisionsComeOutEven) {
  const auto teams = Teams(30, 6);
  int even = 0;
  for (int seed = 1; seed <= 10; ++seed) {
    random.Seed(static_cast<std::uint64_t>(seed));
    const auto draft = DrawSchedule({82, 4, 4}, teams);
    Tally tally(draft);
    bool balanced = draft.missing == 0;
    for (const int team : teams) balanced = balanced && tally.home[team] == 41 && tally.visitor[team] == 41;
    even += balanced;
    for (const int a : teams) {
      for (const int b : teams) {
        if (a == b || DivisionOf(a) != DivisionOf(b)) continue;
        EXPECT_EQ((tally.at[{a, b}]), 2) << a << " at " << b;
      }
    }
  }
  EXPECT_GE(even, 8);
}

TEST(ScheduleGenerator, TellsHowItCameOut) {
  random.Seed(2);
  const struct {
    const char* why;
    std::vector<int> teams;
    ScheduleRequest request;
    const char* message;
    int slack;
  } cases[] = {
      {"two teams alone", {1, 2}, {10, 0, 1}, "Schedule complete!\nUnbalanced League.", 2},
      {"four teams and three", {1, 2, 3, 4, 13, 14, 15}, {10, 2, 1}, "\nUnbalanced League.", 2},
      {"an odd number of meetings", Teams(8, 2), {20, 3, 1}, "Schedule complete!\nUnbalanced League.", 1},
      {"more rivals than games", Teams(40, 2), {10, 20, 1}, "Schedule complete!", 0},
  };
  for (const auto& c : cases) {
    const auto draft = DrawSchedule(c.request, c.teams);
    EXPECT_TRUE(ScheduleMessage(draft).ends_with(c.message)) << c.why << ": " << ScheduleMessage(draft);
    EXPECT_EQ(draft.slack, c.slack) << c.why;
  }
  ScheduleDraft draft;
  draft.missing = 3, draft.divisions = 2, draft.filledIn = true, draft.slack = 2;
  EXPECT_EQ(ScheduleMessage(draft),
            "Schedule Missing 3 Games!\nAdditional divisional games were added to the schedule.\n"
            "Unbalanced League.");
}

TEST(ScheduleGenerator, TeamsAndDatesAreShuffled) {
  std::set<std::pair<int, int>> openers;
  for (std::uint64_t seed = 1; seed <= 20; ++seed) {
    random.Seed(seed);
    for (const auto& game : DrawSchedule({10, 2, 2}, Teams(8, 2)).games) {
      if (game.slot == 1 && (game.home == 1 || game.visitor == 1)) openers.insert({game.visitor, game.home});
    }
  }
  EXPECT_GT(openers.size(), 4u);
}

TEST(ScheduleGenerator, OnlyUnevenSeasonsAreTriedAgain) {
  random.Seed(3);
  int attempts = 0;
  const auto count = [&attempts] { ++attempts; };
  DrawSchedule({20, 2, 2}, Teams(8, 2), count);
  EXPECT_EQ(attempts, 1);
  attempts = 0;
  const auto draft = DrawSchedule({80, 10, 4}, Teams(10, 2), count);
  EXPECT_GT(draft.missing, 0);
  EXPECT_TRUE(draft.filledIn);
  EXPECT_EQ(attempts, 13) << "1, 3, 5 ... 25";
}

TEST(ScheduleGenerator, DatesGoOnByTwoDaysOrThree) {
  const struct {
    const char* why;
    int games, month, day, slot;
    const char* date;
  } cases[] = {{"over the month's end", 50, 10, 31, 2, "11/2"}, {"a short season", 48, 10, 31, 2, "11/3"},
               {"no leap year", 50, 2, 27, 2, "3/1"},           {"into the new year", 50, 12, 30, 2, "1/1"},
               {"a day too late", 50, 11, 31, 1, "11/30"},      {"February", 50, 2, 31, 1, "2/28"},
               {"the last slot", 98, 10, 30, 108, "6/1"},       {"no month", 50, 0, -4, 1, "1/1"}};
  for (const auto& c : cases) {
    const auto draft = DrawSchedule({c.games, 0, 1, c.month, c.day}, {1, 13});
    const auto& date = draft.dates[static_cast<std::size_t>(c.slot - 1)];
    EXPECT_EQ(std::to_string(date.month) + "/" + std::to_string(date.day), c.date) << c.why;
  }
}

TEST(ScheduleGenerator, OddFiguresOfACallerAreHeld) {
  random.Seed(1);
  for (const ScheduleRequest& request :
       {ScheduleRequest{-5, -3, -9, 99, 99}, ScheduleRequest{999, 999, 99999}, ScheduleRequest{11, 1, 1}}) {
    EXPECT_EQ(Tally(DrawSchedule(request, Teams(9, 2))).twice, 0);
  }
  EXPECT_TRUE(DrawSchedule({10, 0, 1}, {}).games.empty());
  EXPECT_TRUE(DrawSchedule({10, 4, 1}, {7}).games.empty());
}

class GeneratorScreen : public testing::Test, public ScheduleLeague {};

TEST_F(GeneratorScreen, ReplacesTheScheduleWhenAllIsRight) {
  Add(1, 2);
  ASSERT_TRUE(SaveSchedule());
  const std::string before = ReadWholeFile(ScheduleFile());
  HCCOMPUTERSCHEDULE screen{"20", "2", "1"};
  EXPECT_FALSE(screen.GENERATECommand()) << "the answer was no";
  screen.GAMETEXT = "many";
  dialogs.answers = {true, true};
  EXPECT_FALSE(screen.GENERATECommand());
  EXPECT_EQ(league.GameCount(), 1);
  EXPECT_EQ(ReadWholeFile(ScheduleFile()), before);
  screen.GAMETEXT = " 20 ";
  ASSERT_TRUE(screen.GENERATECommand());
  EXPECT_EQ(dialogs.told.back(), "Schedule complete!");
  EXPECT_EQ(league.GameCount(), 80);
  EXPECT_EQ(league.ScheduleYear, 1985);
  EXPECT_EQ(std::filesystem::file_size(ScheduleFile()), 80u * 200);
}

TEST(FirstSchedule, IsComplete) {
  const struct {
    const char* why;
    int teams, divisions, games;
  } cases[] = {{"pro", 30, 6, 82}, {"college", 48, 6, 28}, {"historic", 10, 2, 80}, {"two teams", 2, 1, 98}};
  for (const auto& c : cases) {
    const auto made = MakeFirstSchedule(Teams(c.teams, c.divisions), c.games, 1990, 7);
    EXPECT_EQ(made.rows.size(), static_cast<std::size_t>(c.teams * c.games / 2)) << c.why << made.message;
    bool rivals = false;
    for (const auto& row : made.rows) rivals |= DivisionOf(row.Team[1]) == DivisionOf(row.Team[2]);
    EXPECT_TRUE(rivals) << c.why << ": rivals meet";
    EXPECT_EQ(made.rows[0].Year, 1990);
  }
  const auto none = MakeFirstSchedule(Teams(720, 36), 82, 1990, 7);
  EXPECT_TRUE(none.rows.empty() && none.message.starts_with("No schedule was made: ")) << none.message;
}

}  // namespace
}  // namespace tipline
