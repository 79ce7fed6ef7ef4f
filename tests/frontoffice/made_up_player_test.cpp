#include "frontoffice/made_up_player.h"

#include <gtest/gtest.h>

#include "base/random.h"
#include "league/rules.h"
#include "support/men.h"

namespace tipline {
namespace {

TeamRecord TeamOf(const char* type, const char* sex, int year) {
  TeamRecord team = MakeTeam(type, year);
  team.TeamSex = sex;
  return team;
}

FictionFiles FewNames() { return {{"Town"}, {"School"}, {"Mccoy"}, {"Joe"}, {"Jane"}}; }

void ExpectSound(const PlayerRecord& p, int season) {
  const StatLine& s = p.Stats[1];
  EXPECT_GT(s.Min, 0);
  EXPECT_TRUE(s.G >= 1 && s.G <= season) << s.G;
  EXPECT_TRUE(s.F3M <= s.F3A && s.F3A <= s.FGA) << s.F3M << " " << s.F3A << " " << s.FGA;
  EXPECT_LE(s.FGM - s.F3M, s.FGA - s.F3A);
  EXPECT_LE(s.FTM, s.FTA);
  EXPECT_LE(s.Off, s.Reb);
  for (const i16 count : {s.FGA, s.F3M, s.FTA, s.Off, s.Ast, s.St, s.Bk, s.To, s.Pf}) EXPECT_GE(count, 0);
  EXPECT_LE(p.RateOffense, 100);
  EXPECT_TRUE(p.Age >= 18 && p.Age <= 40) << static_cast<int>(p.Age);
  EXPECT_GE(p.Salary, 300);
  EXPECT_NE(p.SecondaryPosition, p.PrimaryPosition);
  EXPECT_FALSE(p.SpotPosition && !p.SecondaryPosition);
}

TEST(MadeUpPlayer, IsSoundWhateverIsDrawn) {
  UseShippedEras();
  const struct {
    const char* type;
    const char* sex;
    int year;
  } kinds[] = {{"P", "M", 1920}, {"P", "M", 1950}, {"P", "M", 2022}, {"P", "M", 2100},
               {"C", "M", 1946}, {"C", "M", 2022}, {"P", "W", 2022}, {"C", "W", 1990}};
  random.Seed(5);
  for (const auto& kind : kinds) {
    const TeamRecord team = TeamOf(kind.type, kind.sex, kind.year);
    const int year = kind.year < 1946 ? 1946 : kind.year > 2050 ? 2050 : kind.year;
    const int games =
        *kind.type == 'C' ? std::max<int>(25, league.EraCollege[year].Games) : league.EraPro[year].Games;
    for (int i = 0; i < 400; ++i) {
      const FictionOrder order{999, kind.year, i % 5 + 1, static_cast<FictionQuality>(i % 4)};
      SCOPED_TRACE(std::string(kind.type) + kind.sex + std::to_string(kind.year) + " #" + std::to_string(i));
      ExpectSound(CreateOnePlayer(order, FewNames(), team), games);
    }
  }
}

TEST(MadeUpPlayer, BodiesGrewUntilTheNineties) {
  UseShippedEras();
  const struct {
    int year;
    const char *type, *sex;
    double inches;  // of a small forward
  } cases[] = {
      {2022, "P", "M", 79.1}, {1946, "P", "M", 79.1 - 2.5}, {2022, "C", "M", 78.1}, {2022, "P", "W", 73.6}};
  for (const auto& c : cases) {
    const TeamRecord team = TeamOf(c.type, c.sex, c.year);
    random.Seed(9);
    double sum = 0;
    for (int i = 0; i < 3000; ++i) {
      const PlayerRecord p = CreateOnePlayer({999, c.year, 3, FictionQuality::kVeteranMix}, FewNames(), team);
      sum += p.HeightFeet * 12 + p.HeightInches;
    }
    EXPECT_NEAR(sum / 3000, c.inches, 0.25) << c.year << c.type << c.sex;
  }
}

TEST(MadeUpPlayer, ManyOfThemMakeTheErasGame) {
  UseShippedEras();
  const struct {
    const char* type;
    const char* sex;
    double minutes, shots, fouls;  // of a game, and against the era's row
  } kinds[] = {{"P", "M", 242.5, 1, 1}, {"C", "M", 202.5, 1, 1}, {"P", "W", 202.5, 0.79, 0.92}};
  for (const auto& kind : kinds) {
    const TeamRecord team = TeamOf(kind.type, kind.sex, 2022);
    const EraRecord& era = *kind.type == 'C' ? league.EraCollege[2022] : league.EraPro[2022];
    random.Seed(11);
    double minutes = 0, shots = 0, boards = 0, fouls = 0, twos = 0, made = 0;
    for (int i = 0; i < 4000; ++i) {
      const StatLine s =
          CreateOnePlayer({999, 2022, i % 5 + 1, FictionQuality::kVeteranRookieMix}, FewNames(), team)
              .Stats[1];
      minutes += s.Min, shots += s.FGA, boards += s.Reb, fouls += s.Pf;
      twos += s.FGA - s.F3A, made += s.FGM - s.F3M;
    }
    const double games = minutes / kind.minutes;
    EXPECT_NEAR(shots / games, era.FGA * kind.shots, era.FGA * 0.1) << kind.type << kind.sex;
    EXPECT_NEAR(boards / games, era.Reb * kind.shots, era.Reb * 0.1) << kind.type << kind.sex;
    EXPECT_NEAR(fouls / games, era.PF * kind.fouls, era.PF * 0.12) << kind.type << kind.sex;
    EXPECT_NEAR(made / twos, (era.FGM - era.F3M) / (era.FGA - era.F3A), 0.02) << kind.type << kind.sex;
  }
}

TEST(MadeUpPlayer, NamesAndNumbers) {
  UseShippedEras();
  random.Seed(3);
  const TeamRecord team = TeamOf("P", "W", 2022);
  const PlayerRecord woman = CreateOnePlayer({999, 2022, 5, FictionQuality::kRookieMix}, FewNames(), team);
  EXPECT_EQ(woman.LastName.View(), "McCoy") << "the prefix has two capitals";
  EXPECT_EQ(woman.FirstName.View(), "Jane");
  for (int i = 0; i < 500; ++i) {
    const PlayerRecord p =
        CreateOnePlayer({999, 2022, i % 5 + 1, FictionQuality::kRookieMix}, FewNames(), team);
    const int number = std::stoi(p.UniformNumber.Str());
    EXPECT_TRUE(number <= 15 || (number <= 55 && number % 10 <= 5)) << number;
    EXPECT_LE(p.Age, 23);
  }
}

}  // namespace
}  // namespace tipline
