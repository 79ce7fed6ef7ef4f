#include <gtest/gtest.h>

#include "aftermath/highlights.h"
#include "aftermath/injury_history.h"
#include "aftermath/ticker.h"
#include "base/random.h"
#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "platform/dialogs.h"
#include "support/finished_game.h"

namespace tipline {
namespace {

using Lines = std::vector<std::string>;

TEST(Highlights, TellWhatIsWorthIt) {
  const struct {
    const char* why;
    void (*play)();
    Lines lines;
  } cases[] = {
      {"29 points are nothing", [] { Line(1, 2, 29).FGA = 99; }, {}},
      {"30 are, with rebounds from five on",
       [] { Line(1, 2, 30).Reb = 5, Line(1, 2, 30).FGA = 30; },
       {"30 Pts, 5 Reb Man2 MIANov 5 "}},
      {"assists from five on, once there are ten of them or another feat",
       [] { Line(2, 2, 2).Ast = 9, Line(2, 3, 9).Ast = 10; },
       {"10 Ast Man3 ATLNov 5 "}},
      {"blocks and steals only where little stands before them",
       [] {
         StatLine &line = Line(1, 2, 8), &other = Line(1, 3, 12);
         line.Bk = 5, line.St = 5, other.Reb = 15, other.Bk = 5, other.St = 5;
       },
       {"5 Bk, 5 St Man2 MIANov 5 ", "12 Pts, 15 Reb Man3 MIANov 5 "}},
      {"a long line goes without its date",
       [] { Line(1, 2, 30).Reb = 12, Line(1, 2).Ast = 11, Line(1, 2, 30).FGA = 30; },
       {"30 Pts, 12 Reb, 11 Ast Man2 MIA"}},
      {"hurt, thrown out, careless",
       [] {
         Line(1, 2).To = 10;
         PlayerAt(1, 2).InjuryReturnDay = 9, ManAt(1, 2).Ejected = 1;
       },
       {" Injured Man2 MIANov 5 ", " Ejected Man2 MIANov 5 ", "10 Turnovers Man2 MIANov 5 "}},
      {"shooting: ten at six tenths, five threes without a miss or eight of them",
       [] {
         StatLine& line = Line(1, 2);
         line.FGM = 10, line.FGA = 16, line.F3M = 5, line.F3A = 5, line.FTM = 0, line.FTA = 0;
         StatLine& other = Line(1, 3);
         other.FGM = 9, other.FGA = 9, other.F3M = 8, other.F3A = 20, other.FTM = 1, other.FTA = 1;
         StatLine& third = Line(1, 4);
         third.FTM = 12, third.FTA = 20, third.F3M = 5, third.F3A = 6, third.FGM = 5, third.FGA = 9;
       },
       {"10/16 FG Man2 MIANov 5 ", "5/5 3pt Man2 MIANov 5 ", "8/20 3pt Man3 MIANov 5 ",
        "12/20 FT Man4 MIANov 5 "}},
      {"who did not play is no news", [] { PlayerAt(1, 2).InjuryReturnDay = 9; }, {}},
  };
  for (const auto& c : cases) {
    FinishedGame();
    c.play();
    EXPECT_EQ(GameHighlights(), c.lines) << c.why;
  }
}

TEST(Highlights, ABasketAtTheHornWinsIt) {
  const struct {
    const char* why;
    ScoreLogRow row, after;
    bool told;
  } cases[] = {
      {"behind by one", {3, 1, 81, 80, 4, 0, 'O', 2}, {}, true},
      {"behind by two, and fouled", {3, 1, 81, 80, 4, 0, '3', 3}, {3, 1, 82, 80, 4, 0, 'F', 4}, true},
      {"a put-back", {3, 1, 81, 80, 4, 0, 'R', 2}, {}, false},
      {"time was left", {3, 1, 81, 80, 4, 3, 'O', 2}, {}, false},
      {"they led before", {3, 1, 83, 80, 4, 0, 'O', 2}, {}, false},
      {"only level", {3, 1, 80, 80, 4, 0, 'O', 2}, {}, false},
      {"the end of another period", {3, 1, 81, 80, 3, 0, 'O', 2}, {}, false},
      {"a free throw", {3, 1, 81, 80, 4, 0, 'F', 1}, {}, false},
  };
  for (const auto& c : cases) {
    FinishedGame();
    game.ScoreLogCount = c.after.Slot > 0 ? 2 : 1;
    game.ScoreLog[1] = c.row, game.ScoreLog[2] = c.after;
    EXPECT_EQ(GameHighlights(), c.told ? Lines{" Buzzer Beater! Man3 MIANov 5 "} : Lines{}) << c.why;
  }
}

TEST(Highlights, AreKeptAndListedNewestFirst) {
  TemporaryLeague folder;
  ASSERT_TRUE(PostHighlights({}));
  EXPECT_FALSE(std::filesystem::exists(LeagueFile("HcHighlights.txt")));
  ASSERT_TRUE(PostHighlights({"31 Pts Al MIANov 5 "}) &&
              PostHighlights({"30 Pts, 12 Reb, 11 Ast Man2 MIA", "x"}));
  Lines lines;
  ASSERT_TRUE(LoadHighlights(lines));
  ASSERT_EQ(lines.size(), 3u);
  const Highlight dated = ReadHighlight(lines[0]), undated = ReadHighlight(lines[1]);
  EXPECT_EQ(dated.Text + "|" + dated.Abbrev + "|" + dated.Date, "31 Pts Al|MIA|Nov 5");
  EXPECT_EQ(undated.Text + "|" + undated.Abbrev + "|" + undated.Date, "30 Pts, 12 Reb, 11 Ast Man2|MIA|");
  EXPECT_EQ(ReadHighlight(lines[2]).Text, "x") << "whatever stands there";
  for (int k = 0; k < 300; ++k) ListHighlights({"old", "new"});
  EXPECT_EQ(program.HighlightList.size(), 500u);
  EXPECT_EQ(program.HighlightList.front(), "new");
}

TEST(Injuries, AreToldAndEndWithTheirDay) {
  const struct {
    const char* why;
    int month, day;
    bool hurt;
  } cases[] = {{"next month", 4, 1, true},
               {"tomorrow", 3, 6, true},
               {"today", 3, 5, false},
               {"last month", 2, 30, false},
               {"August", 12, 31, true}};
  for (const auto& c : cases) {
    FinishedGame();
    PlayerRecord& p = PlayerAt(1, 2);
    p.InjuryReturnMonth = static_cast<u8>(c.month), p.InjuryReturnDay = static_cast<u8>(c.day);
    p.InjurySeverity = 1;
    EndOldInjury(1, 2);
    EXPECT_EQ(p.InjuryReturnMonth > 0, c.hurt) << c.why;
    EXPECT_EQ(p.InjuryReturnDay > 0, c.hurt) << c.why;
    EXPECT_EQ(p.InjurySeverity > 0, c.hurt) << c.why;
  }
  FinishedGame();
  PlayerRecord& p = PlayerAt(1, 2);
  p.InjuryReturnMonth = 5, p.InjuryReturnDay = 2, p.InjuryType = 0;
  EXPECT_EQ(InjuryLine(1, 2), "November 5,MIA,SG,Al Man2,January 2,");
  EXPECT_EQ(ReadInjury(InjuryLine(1, 2)).size(), 6u);
}

TEST(Ticker, AnEntrySaysWhereTheGameStands) {
  const struct {
    const char* why;
    void (*play)();
    const char* text;
  } cases[] = {
      {"nobody has scored", [] {}, ""},
      {"the first of equals", [] { Line(1, 4, 8), Line(2, 1, 8); }, "Man4(MIA) 8 Pts"},
      {"many rebounds for the time",
       [] {
         Line(2, 1, 8).Reb = 6;
         game.Period = 1;
       },
       "Man1(ATL) 8 Pts, 6 Reb"},
      {"not so many later", [] { Line(2, 1, 8).Reb = 9; }, "Man1(ATL) 8 Pts"},
      {"ten are many at any time", [] { Line(2, 1, 31).Reb = 10, Line(2, 1, 31).Ast = 11; },
       "Man1(ATL) 31 Pts, 10 Reb, 11 A"},
      {"early on streaks are the talk, the home team's first",
       [] {
         game.Period = 1, game.GameClock = 3601, game.team[1].Streak = 7, game.team[2].Streak = -5;
         Line(1, 1, 7);
       },
       "ATL - 5 Game Losing Streak"},
      {"four are no streak", [] { game.Period = 1, game.GameClock = 7000, game.team[1].Streak = 4; }, ""},
      {"after six minutes, or eight points, no more",
       [] {
         game.Period = 1, game.GameClock = 3601, game.team[1].Streak = 7;
         Line(1, 1, 8);
       },
       "Man1(MIA) 8 Pts"},
  };
  for (const auto& c : cases) {
    FinishedGame();
    c.play();
    EXPECT_EQ(TickerEntry().Text, c.text) << c.why;
  }
}

TEST(Ticker, RunsWhereTheRuleIsOnAndIsAppended) {
  TemporaryLeague folder;
  const auto path = program.LeagueFolder;
  const struct {
    const char* why;
    void (*set)();
    int entries;
  } cases[] = {{"a period, and the second half", [] { game.Period = 3; }, 3},
               {"the second of four", [] { game.Period = 2; }, 1},
               {"the second of two", [] { game.Period = 2, league.rules.PeriodList = 2; }, 3},
               {"no rule", [] { league.rules.TickerCheck = 0; }, 0},
               {"an exhibition", [] { program.GameKind = "E"; }, 0},
               {"no league", [] { program.LeagueFolder.clear(); }, 0}};
  for (const auto& c : cases) {
    FinishedGame();
    program.LeagueFolder = path;
    league.rules.TickerCheck = 1;
    c.set();
    TickPeriod();
    EXPECT_EQ(game.TickerRows.size(), static_cast<std::size_t>(c.entries) * kTickerSlotBytes) << c.why;
  }
  FinishedGame();
  program.LeagueFolder = path;
  league.rules.TickerCheck = 1;
  Score(300, 99);
  game.TickerStamp = 255;
  WriteTicker(), WriteTicker();
  ASSERT_TRUE(PostTicker() && PostTicker());
  const std::string bytes = ReadWholeFile(LeagueFile("HcTicker"));
  ASSERT_EQ(bytes.size(), 200u);
  EXPECT_EQ(bytes.substr(0, 15), std::string("\xFF\x03\x05\x04\0\0\x01\x01\0\x02\0\x2C\x01\x63\0", 15));
  std::vector<TickerRecord> entries;
  ASSERT_TRUE(LoadTicker(entries));
  ASSERT_EQ(entries.size(), 4u);
  EXPECT_EQ(entries[1].TickerStamp, 0) << "a byte";
}

}  // namespace
}  // namespace tipline
