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
    request.Name = "Demo";
    request.Preset = preset;
    request.Seed = seed;
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
  static bool LeaguesFolderEmpty() {
    std::error_code error;
    return !std::filesystem::exists(LeaguesFolder(), error) ||
           std::filesystem::is_empty(LeaguesFolder(), error);
  }

  TemporaryHome home;
};

TEST_F(LeagueMaker, SameSeedSameBytes) {
  std::string message;
  LeagueRequest request = Request("women", 42);
  random.Seed(1);
  ASSERT_TRUE(MakeLeague(request, message)) << message;
  const int drawn = Rnd(1000000);
  random.Seed(1);
  EXPECT_EQ(Rnd(1000000), drawn) << "the game's own draws go on as if nothing had been made";
  const std::string first = AllBytes("Demo");
  std::filesystem::remove_all(LeaguesFolder());
  ASSERT_TRUE(MakeLeague(request, message));
  EXPECT_EQ(AllBytes("Demo"), first);
  std::filesystem::remove_all(LeaguesFolder());
  request.Seed = 43;
  ASSERT_TRUE(MakeLeague(request, message));
  EXPECT_NE(AllBytes("Demo"), first);
}

TEST_F(LeagueMaker, FilesHaveTheirSizesAndNothingElseIsLeft) {
  std::string message;
  ASSERT_TRUE(MakeLeague(Request("pro"), message)) << message;
  const auto size = [](const char* file) {
    return std::filesystem::file_size(LeaguesFolder() / "Demo" / file);
  };
  EXPECT_EQ(size("HCTEAMS"), 1080000u);
  EXPECT_EQ(size("HCgameplan"), 10800000u);
  EXPECT_EQ(size("HCPLAYER"), 1500u * (30 * 15 + 30));
  EXPECT_EQ(size("HCRULES"), 20000u);
  int entries = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(LeaguesFolder())) ++entries;
  EXPECT_EQ(entries, 1);
  EXPECT_FALSE(MakeLeague(Request("pro"), message));
  EXPECT_EQ(message, "A league \"Demo\" exists already.");
}

TEST_F(LeagueMaker, RefusalsSayWhyAndLeaveNothing) {
  const auto refuses = [](const LeagueRequest& request, const std::string& why) {
    std::string message;
    EXPECT_FALSE(MakeLeague(request, message)) << why;
    EXPECT_FALSE(message.empty()) << why;
    EXPECT_TRUE(LeaguesFolderEmpty()) << why;
  };
  LeagueRequest request = Request("pro");
  for (const std::string& name :
       {std::string(), std::string("."), std::string(".."), std::string(".Demo.new"), std::string("a/b"),
        std::string("a\\b"), std::string("a\x01") + "b", std::string(61, 'x'), std::string(" a"),
        std::string("a "), std::string("what?")}) {
    request.Name = name;
    refuses(request, "name \"" + name + "\"");
  }
  refuses(Request("amateur"), "no such kind");
  const struct {
    const char* why;
    int year, divisions, teams, games;
  } cases[] = {{"too early", 1945, 0, 0, 0},
               {"too late", 2051, 0, 0, 0},
               {"too many divisions", 0, 37, 37, 0},
               {"unequal divisions", 0, 4, 30, 0},
               {"a crowded division", 0, 1, 21, 0},
               {"one team", 0, 1, 1, 0},
               {"one game", 0, 0, 0, 1},
               {"an odd number of games", 0, 0, 0, 81},
               {"99 games", 0, 0, 0, 99}};
  for (const auto& c : cases) {
    request = Request("pro");
    request.Year = c.year, request.Divisions = c.divisions, request.Teams = c.teams, request.Games = c.games;
    refuses(request, c.why);
  }
  league.EraPro = {};
  refuses(Request("pro"), "no era figures");
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
  EXPECT_FALSE(std::filesystem::exists(LeaguesFolder() / ".Demo.new"));
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
  league.team = {};
}

TEST_F(LeagueMaker, RulesOfKindAndYear) {
  const struct {
    const char* why;
    GameLevel level;
    int year, periods, minutes, three, clock, out, limit1, shots1, limit2, shots2, jump, zone, prePenalty;
  } cases[] = {
      // clang-format off
      //                                                     per min 3pt clk out  penalty      jmp zone pre
      {"sixth foul",            GameLevel::kPro,     1947,     4, 12, 0,  0, 6,  5, 0,  5, 0,  1, 0, 1},
      {"shot clock",            GameLevel::kPro,     1954,     4, 12, 0, 24, 6,  7, 3,  7, 3,  1, 0, 1},
      {"before the line",       GameLevel::kPro,     1978,     4, 12, 0, 24, 6,  5, 3,  5, 3,  0, 0, 0},
      {"three-point line",      GameLevel::kPro,     1979,     4, 12, 1, 24, 6,  5, 3,  5, 3,  0, 0, 0},
      {"today",                 GameLevel::kPro,     2022,     4, 12, 1, 24, 6,  5, 3,  5, 3,  0, 1, 0},
      {"old college",           GameLevel::kCollege, 1950,     2, 20, 0,  0, 5,  7, 0,  7, 0,  1, 1, 1},
      {"one and one",           GameLevel::kCollege, 1960,     2, 20, 0,  0, 5,  7, 2,  7, 2,  1, 1, 1},
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

TEST_F(LeagueMaker, PresetsHaveTheirShape) {
  const struct {
    const char* preset;
    int teams, divisions, men, year;
    const char* type;
    const char* sex;
  } cases[] = {{"pro", 30, 6, 15, 2022, "P", "M"},
               {"college", 48, 6, 12, 2022, "C", "M"},
               {"women", 12, 2, 12, 2022, "P", "W"},
               {"historic", 10, 2, 12, 1965, "P", "M"}};
  for (const auto& c : cases) {
    const MadeLeague made = Draw(Request(c.preset));
    ASSERT_EQ(static_cast<int>(made.teams.size()), c.teams) << c.preset;
    EXPECT_EQ(made.freeAgents.size(), 30u);
    for (const auto& man : made.freeAgents) EXPECT_EQ(man.TeamNo, kFreeAgent);
    for (int i = 0; i < c.teams; ++i) {
      const Roster& roster = made.teams[static_cast<std::size_t>(i)];
      EXPECT_EQ(DivisionOf(roster.TeamNo), i / (c.teams / c.divisions) + 1);
      EXPECT_EQ(roster.team.TeamType.View(), c.type);
      EXPECT_EQ(roster.team.TeamSex.View(), c.sex);
      EXPECT_EQ(roster.team.Year, c.year);
      int men = 0;
      for (int slot = 1; slot <= kRosterSlots; ++slot) men += roster.player[slot].RecNo > 0;
      EXPECT_EQ(men, c.men) << c.preset;
    }
  }
  LeagueRequest old = Request("pro");
  old.Year = 1990;
  EXPECT_EQ(Draw(old).teams[0].team.Roster[13], 0) << "twelve men, the active roster of the time";
}

TEST_F(LeagueMaker, NamesAreUniqueAndNobodysOwn) {
  for (const char* preset : {"pro", "college"}) {
    LeagueRequest request = Request(preset);
    request.Divisions = 36, request.Teams = 36 * 20;
    const MadeLeague made = Draw(request);
    const auto colleges = ShippedFictionFiles().College;
    std::set<std::string> abbrevs, cities, people;
    for (const auto& roster : made.teams) {
      EXPECT_EQ(roster.team.Abbrev.Str().size(), 3u);
      EXPECT_TRUE(abbrevs.insert(roster.team.Abbrev.Str()).second) << roster.team.Abbrev.Str();
      EXPECT_TRUE(cities.insert(roster.team.City.Str()).second) << roster.team.City.Str();
      EXPECT_NE(roster.team.HomeForeColor, roster.team.HomeBackColor);
      EXPECT_FALSE(*preset == 'c' &&
                   std::find(colleges.begin(), colleges.end(), roster.team.City.Str()) != colleges.end());
      for (int slot = 1; slot <= 12; ++slot) {
        const PlayerRecord& man = roster.player[slot];
        EXPECT_TRUE(people.insert(man.FirstName.Str() + " " + man.LastName.Str()).second);
      }
    }
  }
}

TEST_F(LeagueMaker, EveryPositionHasItsMen) {
  for (const char* preset : {"pro", "college", "women", "historic"}) {
    for (const Roster& roster : Draw(Request(preset, 7)).teams) {
      Table<int, 1, 5> primary{}, ranked{}, first{};
      for (int slot = 1; slot <= kRosterSlots; ++slot) {
        const PlayerRecord& man = roster.player[slot];
        if (man.RecNo == 0) continue;
        ++primary[man.PrimaryPosition];
        EXPECT_EQ(man.PositionAllowed[man.PrimaryPosition], 1);
        EXPECT_LE(man.TargetMinutes, 48);
        EXPECT_LE(man.Stats[1].GS, man.Stats[1].G);
        for (int p = 1; p <= 5; ++p) {
          ranked[p] += man.DepthRank[p] > 0;
          first[p] += man.DepthRank[p] == 6;
        }
      }
      for (int p = 1; p <= 5; ++p) {
        EXPECT_GE(primary[p], 2) << preset << " position " << p;
        EXPECT_GE(ranked[p], 2) << preset << " position " << p;
        EXPECT_EQ(first[p], 1) << preset << " position " << p;
        EXPECT_GT(roster.coach.DepthChart[p][1], 0);
      }
      for (int lineup = 1; lineup <= 7; ++lineup) {
        Table<int, 0, 5> at{};
        for (int slot = 1; slot <= kRosterSlots; ++slot) ++at[roster.player[slot].RotationOrder[lineup]];
        EXPECT_EQ(at[5], 1) << preset << " lineup " << lineup << " needs a centre";
      }
    }
  }
}

TEST_F(LeagueMaker, MinutesFallFromTheStarToTheLastMan) {
  const struct {
    const char* preset;
    int year;
    double gameMinutes;
    int men;
    double perGame[12];  // of the man of each rank in his team, a league's mean
  } cases[] = {
      {"pro", 2022, 48.5, 15, {35, 33, 31, 29, 27, 20, 18, 16, 14, 12, 6, 5}},
      {"pro", 1965, 48.5, 12, {40, 38, 36, 33, 31, 19, 17, 14, 12, 10, 5, 5}},
      {"college", 2022, 40.5, 12, {33, 31, 29, 27, 24, 17, 14, 12, 10, 8, 5, 4}},
      {"women", 2022, 40.5, 12, {33, 31, 29, 26, 23, 18, 15, 13, 11, 9, 5, 4}},
  };
  for (const auto& c : cases) {
    LeagueRequest request = Request(c.preset, 9);
    request.Year = c.year;
    const MadeLeague made = Draw(request);
    const double games = EraRow(c.year, *c.preset == 'c', 2012).Games;
    std::vector<double> mean(static_cast<std::size_t>(c.men));
    for (const Roster& roster : made.teams) {
      std::vector<double> perGame;
      Table<double, 1, 5> filled{};
      Table<int, 1, 5> best{};
      for (int slot = 1; slot <= c.men; ++slot) {
        const PlayerRecord& man = roster.player[slot];
        const StatLine& line = man.Stats[1];
        EXPECT_GE(line.G, 1);
        EXPECT_LE(line.G, games);
        perGame.push_back(line.Min / (1.0 * line.G));
        filled[man.PrimaryPosition] += line.Min;
        if (line.GS > games / 2) best[man.PrimaryPosition] = slot;
      }
      std::sort(perGame.rbegin(), perGame.rend());
      for (std::size_t i = 0; i < perGame.size(); ++i) {
        mean[i] += perGame[i] / static_cast<double>(made.teams.size());
      }
      for (int p = 1; p <= 5; ++p) {
        EXPECT_NEAR(filled[p], games * c.gameMinutes, games * 0.5) << c.preset << " position " << p;
        EXPECT_GT(best[p], 0) << c.preset << ": a regular starter at position " << p;
      }
    }
    for (std::size_t i = 0; i < 12; ++i)
      EXPECT_NEAR(mean[i], c.perGame[i], 2) << c.preset << " rank " << i + 1;
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
