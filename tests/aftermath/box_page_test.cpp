#include <gtest/gtest.h>

#include <algorithm>

#include "aftermath/box_text.h"
#include "aftermath/play_log.h"
#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "support/two_teams.h"

namespace tipline {
namespace {

void SetLine(int side, int slot, int fgm, int fga, int f3m, int f3a, int ftm, int fta) {
  StatLine& s = PlayerAt(side, slot).Stats[3];
  s.FGM = static_cast<i16>(fgm), s.FGA = static_cast<i16>(fga);
  s.F3M = static_cast<i16>(f3m), s.F3A = static_cast<i16>(f3a);
  s.FTM = static_cast<i16>(ftm), s.FTA = static_cast<i16>(fta);
}

/// A league game of 30 January that is over, 98 to 101. Side 2: its man 1 has a full line, man 6 comes off
/// the bench.
void FinishedGame() {
  TwoTeams();
  program.GameKind = "L";
  league.rules.ThreePointCheck = 1;
  game.GameStarted = game.GameOver = true;
  game.Period = 4;
  game.GameMonth = 5, game.GameCalendarMonth = 1, game.GameDay = 30, game.GameYear = 2011;
  const char* names[] = {"Northport", "Springfield on Sea"};
  for (int s = 1; s <= 2; ++s) {
    game.team[s].City = names[s - 1];
    game.team[s].Abbrev = s == 1 ? "NOR" : "SPR";
    game.team[s].ArenaName = "Harbor Hall";
    game.side[s].Starters = {{1, 2, 3, 4, 5}};
    for (int slot = 1; slot <= kMen; ++slot) {
      PlayerAt(s, slot).FirstName = "Al";
      PlayerAt(s, slot).ShortName = (s == 1 ? "Vis" : "Home") + std::to_string(slot);
      PlayerAt(s, slot).LastName = "Last" + std::to_string(slot);
    }
  }
  game.side[1].Score = 98, game.side[2].Score = 101;
  game.side[1].PeriodScore = {{20, 30, 22, 26}};
  game.side[2].PeriodScore = {{31, 20, 25, 25}};
  game.team[2].Wins = 12, game.team[2].Losses = 7;
  SetLine(2, 1, 11, 21, 3, 8, 10, 11);
  StatLine& s = PlayerAt(2, 1).Stats[3];
  s.Reb = 12, s.Off = 4, s.Ast = 9, s.To = 5, s.St = 2, s.Bk = 1, s.Pf = 3;
  ManAt(2, 1).PlayerGameTime = 24046, ManAt(2, 1).PlusMinus = 7;
  ManAt(2, 6).PlayerGameTime = 6000, ManAt(2, 7).PlayerGameTime = 12000, ManAt(2, 8).PlayerGameTime = 4;
  SetLine(2, 6, 2, 4, 1, 1, 1, 2);
  LoadedAt(2, 9).PlayerOut = 1;
}

/// The first line of the page that begins so.
std::string Line(const std::string& page, std::string_view begin) {
  std::size_t at = page.compare(0, begin.size(), begin) == 0 ? 0 : page.find("\n" + std::string(begin));
  if (at == page.npos) return "no line " + std::string(begin);
  if (page[at] == '\n') ++at;
  return page.substr(at, page.find('\n', at) - at);
}

TEST(BoxPage, LooksSo) {
  FinishedGame();
  const std::string page = BoxPage();
  const struct {
    const char *why, *begin, *line;
  } lines[] = {
      {"periods", "      ", "                                1   2   3   4   T"},
      {"record of the day", " Springfield on", " Springfield on 13-7           31  20  25  25 101"},
      {"visitor lost", " Northport ", " Northport      0-1            20  30  22  26  98"},
      {"heads", " Springfield o  ", " Springfield o  Min     FG    3PT     FT    Reb  Ast To St Bk PF Pts"},
      {"starter", " Home1 ", " Home1         40:05  11-21   3-8   10-11   4-12   9  5  2  1  3  35"},
      {"bench", "  Home6 ", "  Home6        10:00   2-4    1-1    1-2    0-0    0  0  0  0  0   6"},
      {"totals", "  TOTAL  ", "  TOTAL                0-0    0-0    0-0    0-0    0  0  0  0  0   0"},
      {"no shots", "                      .", "                      .000   .000   .000"},
      {"comparison", " Shooting", " Shooting       NOR       SPR"},
      {"points of the bench", " Bench", " Bench           0         6"},
      {"mvp", " Game MVP", " Game MVP: Al Home1"},
      {"idle", " DNP NOR", " DNP NOR: Vis1, Vis2, Vis3, Vis4, Vis5, Vis6, Vis7, Vis8, Vis9, Vis10"},
      {"neither out nor on the floor", "     SPR", "     SPR: Home2, Home3, Home4, Home5, Home10"}};
  for (const auto& l : lines) EXPECT_EQ(Line(page, l.begin), l.line) << l.why;
  EXPECT_LT(page.find("  Home7 "), page.find("  Home6 ")) << "the longest on the floor first";
  EXPECT_EQ(page.find("Home8"), page.npos) << "0:00 is neither on the bench nor left out";
  EXPECT_EQ(Line(page, " January").substr(0, 45), " January 30, 2011                 Harbor Hall");
  EXPECT_TRUE(page.ends_with("Home1\n\n"));
  EXPECT_NE(page.find("  TOTAL               13-25   4-9   11-13   4-12   9  5  2  1  3  41\n"
                      "                      .520   .444   .846\n"),
            page.npos)
      << page;
}

TEST(BoxPage, WithoutThrees) {
  FinishedGame();
  league.rules.ThreePointCheck = 0;
  setup.PlusMinusCheck = setup.GameScoreCheck = 1;
  PlayerAt(2, 1).ShotMadeOffReb2[3] = 2, PlayerAt(2, 1).ShotAttOffReb2[3] = 13;
  const std::string page = BoxPage();
  EXPECT_EQ(Line(page, " Springfield o  "),
            " Springfield o  Min     FG     FT    Reb  Ast To St Bk PF Pts    +/-    GS");
  EXPECT_EQ(Line(page, " Home1 "),
            " Home1         40:05  11-21  10-11   4-12   9  5  2  1  3  35     +7  32.3");
  EXPECT_NE(page.find("  TOTAL               13-25  11-13   4-12   9  5  2  1  3  41         43.4\n"
                      "                      .520   .846\n"),
            page.npos)
      << page;
  EXPECT_EQ(Line(page, " Off-Reb"), " Off-Reb         0-0       2-13");
  EXPECT_EQ(page.find(" Three"), page.npos);
}

TEST(BoxPage, WhatElseThereIsToTell) {
  FinishedGame();
  ScheduleRecord row;
  row.GameType = "L", row.NeutralSite = 1;
  league.ScheduleGame.assign(3, row);
  game.TechnicalNames = "Ames, Bond, ", game.FlagrantNames = "Cole, ", game.InjuryNames = "Dunn, ";
  const struct {
    const char* why;
    void (*change)();
    const char *begin, *line;
  } cases[] = {
      {"the cup", [] { game.ScheduleRow = 2; }, " January",
       " January 30, 2011 Quarter(Loser) (L) Neutral Court"},
      {"a neutral court", [] { game.ScheduleRow = 0, game.NeutralGame = true; }, " January",
       " January 30, 2011                 Neutral Court"},
      {"a tied series: who began at home",
       [] {
         program.PlayoffGame = true, program.SeriesWins = {{2, 1}}, program.SeriesHome = 2;
       },
       " January", " January 30, 2011 < Playoff Game 4   SPR 2 NOR 2 >  Neutral Court"},
      {"who leads it",
       [] {
         program.SeriesWins = {{3, 0}};
       },
       " January", " January 30, 2011 < Playoff Game 4   NOR 3 SPR 1 >  Neutral Court"},
      {"names", [] {}, " Technicals", " Technicals: Ames, Bond"},
      {"no names", [] {}, " Ejections", "no line  Ejections"},
      {"hurt men", [] {}, " Injuries", " Injuries: Dunn"},
      {"men short", [] { game.side[1].ShortHanded = 4; }, " *",
       " *Northport allowed to play with 4 active players."},
      {"the record counts it already", [] { game.BoxRebuild = true; }, " Springfield on",
       " Springfield on 12-7           31  20  25  25 101"},
      {"an exhibition", [] { program.GameKind = "E"; }, " Springfield on",
       " Springfield on                31  20  25  25 101"},
      {"while it is on: no injuries", [] { game.GameOver = false; }, " Injuries", "no line  Injuries"},
      {"nor idle men", [] {}, " DNP", "no line  DNP"},
      {"before a basket", [] { game.player[2][1].Stats[3] = game.player[2][6].Stats[3] = {}; }, " Game MVP",
       "no line  Game MVP"}};
  for (const auto& c : cases) {
    c.change();
    EXPECT_EQ(Line(BoxPage(), c.begin).substr(0, std::string_view(c.line).size() + 1).find(c.line), 0u)
        << c.why << ": " << Line(BoxPage(), c.begin);
  }
}

TEST(GameMvp, IsTheFirstOfTheBestOfTheWinners) {
  const struct {
    const char* why;
    int visitor, home, first, second, rival, side, slot;
  } cases[] = {{"a tie goes to the lower slot", 90, 100, 5, 5, 9, 2, 2},
               {"the better man", 90, 100, 5, 6, 9, 2, 4},
               {"a tied game to the visitors", 90, 90, 5, 6, 9, 1, 7},
               {"nobody above nothing", 90, 100, 0, 0, 9, 2, 0}};
  for (const auto& c : cases) {
    TwoTeams();
    game.side[1].Score = c.visitor, game.side[2].Score = c.home;
    SetLine(2, 2, c.first, c.first, 0, 0, 0, 0);
    SetLine(2, 4, c.second, c.second, 0, 0, 0, 0);
    SetLine(1, 7, c.rival, c.rival, 0, 0, 0, 0);
    const GameMvp best = PickGameMvp();
    EXPECT_EQ(best.Side, c.side) << c.why;
    EXPECT_EQ(best.Slot, c.slot) << c.why;
  }
}

TEST(BoxText, TheSeasonIsChargedOnce) {
  TemporaryLeague folder;
  const auto path = program.LeagueFolder;
  for (const bool counts : {true, false}) {
    FinishedGame();
    program.LeagueFolder = path;
    program.GameKind = counts ? GameKind("L") : GameKind("E");
    PlayerAt(2, 1).Stats[3].Technicals = 2;
    PlayerAt(2, 6).Stats[3].Pf = 6;
    game.team[2].TeamStats[1].Technicals = 250;
    game.GameOver = false;
    EXPECT_TRUE(WriteBoxText());
    EXPECT_EQ(game.team[2].TeamStats[1].FGM, 0) << "the game is on";
    game.GameOver = true;
    for (int times = 0; times < 3; ++times) EXPECT_TRUE(WriteBoxText());
    const int once = counts ? 1 : 0;
    for (const StatLine* line :
         {&game.team[2].TeamStats[1], &game.team[1].TeamStats[2], &game.team[2].HomeStats[1]}) {
      EXPECT_EQ(line->G, once);
      EXPECT_EQ(line->FGM, 13 * once);
      EXPECT_EQ(line->Dq, once);
      EXPECT_EQ(line->Min, 70 * once);
    }
    EXPECT_EQ(game.team[1].HomeStats[1].G, 0);
    EXPECT_EQ(game.team[2].TeamStats[1].Technicals, counts ? 242 : 250);
    EXPECT_EQ(PlayerAt(2, 1).Stats[3].GameMvps, 1);
    EXPECT_EQ(PlayerAt(2, 1).Stats[2].GameMvps, once);
    EXPECT_EQ(game.MvpSlot, 1);
    EXPECT_EQ(program.ReportName, "BOXSCORE");
    EXPECT_EQ(ReadWholeFile(LeagueFile("VTX.txt")), game.BoxPageText);
  }
  TemporaryLeague::Block(LeagueFile("VTX.txt"));
  EXPECT_FALSE(WriteBoxText());
}

TEST(PlayLog, TellsWhoDidWhat) {
  FinishedGame();
  const struct {
    PlayLogRow row;
    const char *action, *outcome, *note;
  } cases[] = {{{1, 4000, 2, 1, "THREE", "G3", 2, 2, kAssistedBy, 0, 3}, "Three", "Made", "Assist Home2"},
               {{1, 4000, 2, 1, "THREE", "G", 0, 0, kNoNote, 0, 2}, "Three/2", "Made", ""},
               {{1, 4000, 2, 1, "FASTBREAK", "M3", 0, 0, kNoNote, 0, 0}, "Fastbreak3", "Missed", ""},
               {{1, 4000, 2, 1, "DRIVE", "M", 1, 3, kBlockedBy, 0, 0}, "Drive", "Missed", "Block Vis3"},
               {{1, 4000, 2, 1, "INSIDE", "F0", 1, 3, kFouledBy, 0, 0}, "Fouled", "", "Foul Vis3"},
               {{1, 4000, 2, 0, "", "TIMEOUT", 0, 0, kMediaTimeout, 0, 0}, "Timeout", "", "Media"},
               {{1, 4000, 1, 1, "", "TIMEOUT", 2, 2, kFightNote, 0, 0}, "Fight", "", "With Home2"}};
  for (const auto& c : cases) {
    const PlayText text = TextOf(c.row);
    EXPECT_EQ(text.Action, c.action);
    EXPECT_EQ(text.Outcome, c.outcome) << c.action;
    EXPECT_EQ(text.Note, c.note) << c.action;
  }
  for (std::size_t r = 1; r < std::size(PlayResultWords::kTexts); ++r) {  // every result has its words
    PlayLogRow row{1, 0, 1, 1, "", "", 0, 0, 0, 0, 0};
    row.Outcome.SetIndex(static_cast<u8>(r));
    const auto result = row.Outcome;
    if (result == "MOVE-UP" || result == "MOVE-UP-OB-OFF" || result == "IN-EZ" || result == "IN-OB-OFF")
      continue;  // are no plays
    EXPECT_FALSE(TextOf(row).Action.empty()) << row.Outcome.Text();
    EXPECT_LE(TextOf(row).Action.size(), 10u) << row.Outcome.Text();
    EXPECT_LE(TextOf(row).Outcome.size(), 6u) << row.Outcome.Text();
  }
}

TEST(PlayLog, KeepsWhatCanBeOfAGame) {
  TemporaryHome home;
  FinishedGame();
  game.PlayLogCount = 3;
  game.PlayLog[1] = {2, 7199, 1, 30, "DRIVE", "MF", 2, 9, kFouledBy, 101, 99};
  game.PlayLog[2] = {2, 0, 2, 0, "", "TIMEOUT", 0, 0, kTimeoutNote, 101, 99};
  game.PlayLog[3] = {2, 0, 1, 1, "", "SHOTSTUCK", 0, 0, kNoNote, 101, 99};
  const auto file = home.Home() / "BOX1.PLY";
  ASSERT_TRUE(SavePlayLog(file));
  const std::string page = PlayLogPage();
  EXPECT_TRUE(ReadPlayLog(file));
  EXPECT_EQ(PlayLogPage(), page);
  std::string bytes = ReadWholeFile(file);
  ASSERT_EQ(bytes.size(), 42u);
  bytes[3] = 3;        // no side
  bytes[14 + 6] = 99;  // no result
  bytes += std::string(5, '\7');
  ASSERT_TRUE(WriteWholeFile(file, bytes));
  EXPECT_TRUE(ReadPlayLog(file));
  EXPECT_EQ(game.PlayLogCount, 1);
  EXPECT_FALSE(ReadPlayLog(home.Home() / "BOX2.PLY"));
  EXPECT_EQ(game.PlayLogCount, 0);
}

TEST(ScoringList, NamesTheShots) {
  FinishedGame();
  const char kinds[] = {'O', 'I', 'D', 'B', 'K', 'k', 'F', '3', '+', '-', 'R', 'x'};
  for (const char kind : kinds) game.ScoreLog[++game.ScoreLogCount] = {1, 2, 0, 2, 1, 5000, kind, 2};
  const std::string page = ScoringPage();
  std::size_t at = 0;
  for (const char* words : {"Outside ", "Inside ", "Drive ", "Fastbreak ", "Dunk ", "Off-Reb-Dunk",
                            "Free Throw ", "Three ", "Fastbreak(3)", "Off-Reb(3)", "Off-Reb ", "x "}) {
    at = page.find(words, at);
    ASSERT_NE(at, page.npos) << words;
  }
  EXPECT_NE(page.find("  1    8:20  SPR  Home1            Outside         2      0    2\n"), page.npos)
      << page;
}

}  // namespace
}  // namespace tipline
