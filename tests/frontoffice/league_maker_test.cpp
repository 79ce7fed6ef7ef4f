#include "frontoffice/league_maker.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "base/random.h"
#include "base/record_file.h"
#include "frontoffice/rating_run.h"
#include "frontoffice/team_identity.h"
#include "harness/temporary_home.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/rules.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

class LeagueMaker : public testing::Test {
 protected:
  void SetUp() override { UseShippedEras(); }

  static LeagueRequest Request(const char* preset, std::uint64_t seed = 1) {
    LeagueRequest request;
    request.Name = "Demo", request.Preset = preset, request.Seed = seed;
    return request;
  }
  static MadeLeague Draw(const LeagueRequest& request) {
    MadeLeague made;
    std::string message;
    EXPECT_TRUE(DrawLeague(request, made, message)) << message;
    return made;
  }
  static std::string AllBytes(const std::string& name) {
    std::string bytes;
    for (const char* file : {"HCTEAMS", "HCgameplan", "HCPLAYER", "HCRULES", "Sked.skd"}) {
      bytes += ReadWholeFile(LeaguesFolder() / name / file);
    }
    return bytes;
  }
  static int LeagueFolders() {
    std::error_code none;
    const std::filesystem::directory_iterator folders(LeaguesFolder(), none);
    return static_cast<int>(std::distance(begin(folders), end(folders)));
  }

  TemporaryHome home;
};

TEST_F(LeagueMaker, SameSeedSameBytes) {
  std::string first, message;
  for (const int seed : {42, 42, 43}) {
    random.Seed(1);
    ASSERT_TRUE(MakeLeague(Request("women", static_cast<std::uint64_t>(seed)), message)) << message;
    const int drawn = Rnd(1000000);
    random.Seed(1);
    EXPECT_EQ(Rnd(1000000), drawn) << "the game's own draws go on as if nothing had been made";
    if (first.empty()) first = AllBytes("Demo");
    EXPECT_EQ(AllBytes("Demo") == first, seed == 42);
    std::filesystem::remove_all(LeaguesFolder());
  }
}

TEST_F(LeagueMaker, RefusalsSayWhyAndLeaveNothing) {
  const struct {
    const char* message;
    int year, divisions, teams, games;
    std::string name = "Demo", preset = "pro";
  } cases[] = {
      {"The year must be from", 1945, 0, 0, 0},
      {"The year must be from", 2051, 0, 0, 0},
      {"A league has 1 to 36", 0, 37, 37, 0},
      {"30 teams can't be parted", 0, 4, 30, 0},
      {"A division has at most", 0, 1, 21, 0},
      {"A league needs at least", 0, 1, 1, 0},
      {"Schedules must be an even", 0, 0, 0, 81},
      {"\"amateur\" is no kind", 0, 0, 0, 0, "Demo", "amateur"},
      {"The league needs a name.", 0, 0, 0, 0, ""},
      {"The name of a league has", 0, 0, 0, 0, std::string(61, 'x')},
      {"The name of a league can't begin with a dot", 0, 0, 0, 0, ".."},
      {"The name of a league can't begin or end", 0, 0, 0, 0, " a"},
      {"The name of a league can't begin or end", 0, 0, 0, 0, "a "},
      {"The name of a league can't hold control", 0, 0, 0, 0, "a\1b"},
      {"The name of a league can't hold the character / .", 0, 0, 0, 0, "a/b"},
      {"The name of a league can't hold the character \\ .", 0, 0, 0, 0, "a\\b"},
  };
  std::string message;
  for (const auto& c : cases) {
    LeagueRequest request = Request(c.preset.c_str());
    request.Name = c.name;
    request.Year = c.year, request.Divisions = c.divisions, request.Teams = c.teams, request.Games = c.games;
    EXPECT_FALSE(MakeLeague(request, message)) << c.message;
    EXPECT_TRUE(message.starts_with(c.message)) << message;
  }
  league.EraPro = {};
  EXPECT_FALSE(MakeLeague(Request("pro"), message));
  EXPECT_EQ(message, "The era figures are missing.");
  EXPECT_EQ(LeagueFolders(), 0);
}

TEST_F(LeagueMaker, HomeThatCantBeWritten) {
  std::ofstream(home.Home() / "orvex-data") << "a file where a folder must be";
  std::string message;
  EXPECT_FALSE(MakeLeague(Request("pro"), message));
  EXPECT_NE(message.find("can't be written"), std::string::npos) << message;
}

TEST_F(LeagueMaker, WhatAKilledRunLeftIsNoHindrance) {
  std::filesystem::create_directories(LeaguesFolder() / ".Demo.new");
  std::ofstream(LeaguesFolder() / ".Demo.new" / "HCTEAMS") << "half";
  std::string message;
  EXPECT_TRUE(MakeLeague(Request("pro"), message)) << message;
  EXPECT_EQ(LeagueFolders(), 1);
  EXPECT_FALSE(MakeLeague(Request("pro"), message));
  EXPECT_EQ(message, "A league \"Demo\" exists already.");
}

TEST_F(LeagueMaker, LoadFindsNothingToRepairAndARatingRunNothingToChange) {
  for (const char* preset : {"pro", "women", "historic"}) {
    LeagueRequest request = Request(preset, 3);
    request.Name = preset;
    std::string message;
    ASSERT_TRUE(MakeLeague(request, message)) << message;
    program.LeagueFolder = LeaguesFolder() / preset;
    const std::string teams = ReadWholeFile(program.LeagueFolder / "HCTEAMS");
    const std::string men = ReadWholeFile(program.LeagueFolder / "HCPLAYER");
    LoadAllTeams();
    EXPECT_EQ(ReadWholeFile(program.LeagueFolder / "HCTEAMS"), teams) << preset;
    platform::ScriptedDialogs dialogs;
    dialogs.answers = {true};
    EXPECT_TRUE(hcratings().DEFAULTRATINGS_ALL());
    EXPECT_EQ(ReadWholeFile(program.LeagueFolder / "HCPLAYER"), men) << preset;
  }
}

TEST_F(LeagueMaker, RulesOfKindAndYear) {
  const struct {
    const char* why;
    GameLevel level;
    int year, periods, minutes, three, clock, out, limit1, shots1, limit2, shots2, jump, zone, prePenalty;
  } cases[] = {
      // clang-format off
      //                                                     per min 3pt clk out  penalty      jmp zone pre
      {"before the line",       GameLevel::kPro,     1978,     4, 12, 0, 24, 6,  5, 3,  5, 3,  0, 0, 0},
      {"three-point line",      GameLevel::kPro,     1979,     4, 12, 1, 24, 6,  5, 3,  5, 3,  0, 0, 0},
      {"double bonus",          GameLevel::kCollege, 1993,     2, 20, 1, 35, 5,  7, 2, 10, 3,  0, 1, 0},
      {"women's quarters",      GameLevel::kWomen,   2022,     4, 10, 1, 24, 6,  5, 3,  5, 3,  0, 1, 0},
      // clang-format on
  };
  for (const auto& c : cases) {
    const RulesRecord r = RulesOf(c.level, c.year);
    const int got[] = {r.PeriodList, r.MinuteList,       r.ThreePointCheck, r.ShotClockList,
                       r.DqList,     r.FoulLimit[1],     r.Penalty[1],      r.FoulLimit[2],
                       r.Penalty[2], r.QuarterJumpCheck, r.ZoneLegalCheck,  r.OneShotPrePenaltyCheck};
    const int* want = &c.periods;
    for (std::size_t i = 0; i < std::size(got); ++i) EXPECT_EQ(got[i], want[i]) << c.why << ", column " << i;
  }
  EXPECT_EQ(RulesOf(GameLevel::kPro, 1970).ThreeToMakeTwoCheck, 1);
  EXPECT_EQ(RulesOf(GameLevel::kCollege, 1970).TwoToMakeOneMark, 22) << "no load may give it the extra tries";
}

TEST_F(LeagueMaker, AFullLeagueHasNoNamesakes) {
  for (const char* preset : {"pro", "college"}) {
    LeagueRequest request = Request(preset);
    request.Divisions = 36, request.Teams = 36 * 20;
    const MadeLeague made = Draw(request);
    const auto colleges = ShippedFictionFiles().College;
    std::set<std::string> abbrevs, cities, people;
    if (*preset == 'c') cities.insert(colleges.begin(), colleges.end());
    const auto isNew = [&people](const PlayerRecord& man) {
      return people.insert(man.FirstName.Str() + " " + man.LastName.Str()).second;
    };
    for (std::size_t i = 0; i < made.teams.size(); ++i) {
      const Roster& roster = made.teams[i];
      EXPECT_EQ(DivisionOf(roster.TeamNo), static_cast<int>(i / 20) + 1);
      EXPECT_EQ(roster.team.Abbrev.Str().size(), 3u);
      EXPECT_TRUE(abbrevs.insert(roster.team.Abbrev.Str()).second) << roster.team.Abbrev.Str();
      EXPECT_TRUE(cities.insert(roster.team.City.Str()).second) << roster.team.City.Str();
      EXPECT_NE(roster.team.HomeForeColor, roster.team.HomeBackColor);
      for (int slot = 1; slot <= 12; ++slot) EXPECT_TRUE(isNew(roster.player[slot]));
    }
    for (const PlayerRecord& man : made.freeAgents) EXPECT_TRUE(isNew(man) && man.TeamNo == kFreeAgent);
  }
}

TEST_F(LeagueMaker, EveryPositionHasItsMenAllSeason) {
  const struct {
    const char* preset;
    int year;
    double gameMinutes, star, tenth;  // the mean of a team's most used man and of its tenth
  } cases[] = {{"pro", 2022, 48.5, 35, 12},
               {"pro", 1965, 48.5, 40, 10},
               {"college", 2022, 40.5, 33, 8},
               {"women", 2022, 40.5, 33, 9}};
  for (const auto& c : cases) {
    LeagueRequest request = Request(c.preset, 9);
    request.Year = c.year;
    const MadeLeague made = Draw(request);
    const double games = EraRow(c.year, *c.preset == 'c', 2012).Games;
    double star = 0, tenth = 0;
    for (const Roster& roster : made.teams) {
      std::vector<double> perGame;
      Table<double, 1, 5> filled{};
      Table<int, 1, 5> men{}, regular{}, first{};
      for (const PlayerRecord& man : roster.player) {
        const StatLine& line = man.Stats[1];
        if (man.RecNo == 0) continue;
        EXPECT_TRUE(line.G >= 1 && line.G <= games && line.GS <= line.G) << c.preset;
        perGame.push_back(line.Min / (1.0 * line.G));
        filled[man.PrimaryPosition] += line.Min;
        regular[man.PrimaryPosition] += line.GS > games / 2;
        EXPECT_EQ(man.PositionAllowed[man.PrimaryPosition], 1);
        for (int p = 1; p <= 5; ++p) {
          men[p] += man.PrimaryPosition == p && man.DepthRank[p] > 0;
          first[p] += man.DepthRank[p] == 6;
        }
      }
      std::sort(perGame.rbegin(), perGame.rend());
      star += perGame[0], tenth += perGame[9];
      for (int p = 1; p <= 5; ++p) {
        EXPECT_NEAR(filled[p], games * c.gameMinutes, games * 0.5) << c.preset << " position " << p;
        EXPECT_TRUE(men[p] >= 2 && regular[p] >= 1 && first[p] == 1) << c.preset << " position " << p;
        EXPECT_GT(roster.coach.DepthChart[p][1], 0);
      }
    }
    EXPECT_NEAR(star / static_cast<double>(made.teams.size()), c.star, 2) << c.preset;
    EXPECT_NEAR(tenth / static_cast<double>(made.teams.size()), c.tenth, 2) << c.preset;
  }
}

TEST_F(LeagueMaker, TotalsAddUp) {
  for (const char* preset : {"pro", "college", "women", "historic"}) {
    const MadeLeague made = Draw(Request(preset, 5));
    int own = 0, opponents = 0, ownTo = 0, opponentsTo = 0;
    for (const Roster& roster : made.teams) {
      const RealTotalsLine& line = roster.team.RealTotals[1];
      int shots = 0, boards = 0;
      for (int slot = 1; slot <= kRosterSlots; ++slot) {
        shots += roster.player[slot].Stats[1].FGA;
        boards += roster.player[slot].Stats[1].Reb;
        if (roster.player[slot].RecNo == 0) continue;
        EXPECT_EQ(roster.player[slot].RealTeamFGA[1], line.FGA);
      }
      EXPECT_EQ(line.FGA, shots);
      EXPECT_EQ(line.Reb, boards);
      EXPECT_LT(roster.team.RealTotals[2].FGM, roster.team.RealTotals[2].FGA);
      own += line.FGM, opponents += roster.team.RealTotals[2].FGM;
      ownTo += line.To, opponentsTo += roster.team.RealTotals[2].To;
    }
    EXPECT_EQ(own, opponents) << preset;
    EXPECT_EQ(ownTo, opponentsTo) << preset;
    const EraRecord& era = EraRow(made.teams[0].team.Year, *preset == 'c', 2012);
    const double perGame = own / (1.0 * era.Games * static_cast<double>(made.teams.size()));
    EXPECT_NEAR(perGame, era.FGM * (*preset == 'w' ? 0.79 : 1), era.FGM * 0.01) << preset;
  }
}

}  // namespace
}  // namespace tipline
