#include "league/rules_screen.h"

#include <gtest/gtest.h>

#include <set>

#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "league/rules.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

class RulesScreen : public testing::Test {
 protected:
  TemporaryLeague folder;
  platform::ScriptedDialogs dialogs;
  HCRULESFORM screen;

  void SetUp() override {
    for (const auto& [slot, city] : {std::pair{1, "Salem"}, {2, "aston"}}) {
      TeamRecord& team = league.team[slot];
      team.TeamActive = 1, team.City = city, team.Year = 1985, team.TeamType = "P";
    }
    ASSERT_TRUE(WriteTeam(1));
    ASSERT_TRUE(SaveRules());
    ASSERT_TRUE(LoadRules());
    screen.Open();
  }

  bool IsTicked(const char* check) const { return screen.IsTicked(*HCRULESFORM::Find(check)); }
};

TEST_F(RulesScreen, EveryControlHasItsOwnByte) {
  std::set<const u8*> fields;
  std::set<std::string_view> names;
  for (const auto& control : RuleControls()) {
    EXPECT_TRUE(fields.insert(&control.Field(league.rules)).second) << control.Name;
    EXPECT_TRUE(names.insert(control.Name).second) << control.Name;
    std::set<u8> values;
    if (!control.Choices) continue;
    for (const auto& choice : control.Choices())
      EXPECT_TRUE(values.insert(choice.value).second) << control.Name;
    EXPECT_GE(screen.ListIndex(control), control.Name == "OverTimeList" ? -1 : 0)
        << control.Name << ": a repaired value has its line";
  }
}

TEST_F(RulesScreen, AListWritesTheValueOfItsLineAtOnce) {
  const RuleControl& usage = *HCRULESFORM::Find("SeasonUsageGamesList(3)");
  ASSERT_TRUE(screen.Choose("PeriodList", 1) && screen.Choose(usage.Name, 100));
  EXPECT_EQ(league.rules.PeriodList, 4) << "2 or 4";
  EXPECT_EQ(league.rules.SeasonUsageGamesList[3], 100);
  EXPECT_EQ(screen.ListIndex(usage), 100);
  EXPECT_EQ(usage.Choices()[100].text, "Over 200% Of Real Life Games");
  EXPECT_FALSE(screen.Choose("PeriodList", 2));
  EXPECT_FALSE(screen.Choose("ThreePointCheck", 0)) << "a check is no list";
  EXPECT_FALSE(screen.Check("PeriodList", true)) << "a list is no check";
}

TEST_F(RulesScreen, SomeChecksAreNotLikeTheOthers) {
  EXPECT_FALSE(IsTicked("TechnicalPFCheck"));
  ASSERT_TRUE(screen.Check("TechnicalPFCheck", true));
  EXPECT_EQ(league.rules.TechnicalPFCheck, 2);
  ASSERT_TRUE(screen.Check("TechnicalPFCheck", false));
  EXPECT_EQ(league.rules.TechnicalPFCheck, 1);
  EXPECT_TRUE(IsTicked("TemporaryGameInjuriesCheck")) << "any value but 0";

  for (const char* name : {"OneShotOnOffensiveFoulBeforePenalty", "OnePlusOneAfterPenaltyONOffensiveFouls"}) {
    ASSERT_TRUE(screen.Check("OffensiveFoulTeamFoulCheck", true));
    EXPECT_TRUE(screen.Check(name, true)) << name;
    ASSERT_TRUE(screen.Check("OffensiveFoulTeamFoulCheck", false));
    EXPECT_FALSE(IsTicked(name) || screen.Check(name, true)) << name << " depends on the first";
  }

  EXPECT_TRUE(screen.Check("AlternateRealityCheck", true));
  screen.Check("AlternateRealityCheck", false);
  league.team[2].Losses = 1;
  EXPECT_FALSE(screen.Check("AlternateRealityCheck", true)) << "the season has begun";
}

TEST_F(RulesScreen, TeamListsHoldTheActiveTeamsByCity) {
  EXPECT_EQ(screen.Teams, (std::vector{2, 1}));
  EXPECT_TRUE(screen.IsPauseTeam(1));
  screen.PauseTeamList(1, false);
  EXPECT_EQ(league.rules.PauseTeamList[1], 0);
  screen.SelectAllTeamsFavoriteCommand();
  screen.ClearAllPauseTeamsCommand();
  EXPECT_TRUE(screen.IsFavorite(1) && screen.IsFavorite(2) && !screen.IsFavorite(3));
  EXPECT_FALSE(screen.IsPauseTeam(2));
}

TEST_F(RulesScreen, SaveWritesTheRestAndCancelTakesAllBack) {
  screen.Check("NeutralCheck", true);
  screen.Choose("RosterLimitList", 1);
  screen.LeagueName = "Old League";
  EXPECT_EQ(league.rules.RosterLimitList, 12) << "not before SAVE";
  screen.CANCEL();
  EXPECT_TRUE(screen.Closed);
  EXPECT_EQ(league.rules.NeutralCheck, 0);

  screen.Open();
  EXPECT_EQ(screen.LeagueName, "");
  screen.Choose("RosterLimitList", 13);
  screen.Choose("FoulLimit(1)", 7);
  screen.LeagueName = "Old League";
  screen.DivisionName[36] = "Atlantic";
  ASSERT_TRUE(screen.SAVE());
  league.rules = {};
  ASSERT_TRUE(LoadRules());
  EXPECT_EQ(league.rules.RosterLimitList, 20);
  EXPECT_EQ(league.rules.LeagueName, "Old League");
  EXPECT_EQ(league.rules.DivisionName[36], "Atlantic");
  EXPECT_EQ(league.rules.FoulLimit[3], 7);

  screen.Open();
  screen.Choose("RosterLimitList", 0);
  TemporaryLeague::Block(RulesFile());
  EXPECT_FALSE(screen.SAVE());
  EXPECT_FALSE(screen.Closed);
  EXPECT_EQ(league.rules.RosterLimitList, 0);
}

TEST_F(RulesScreen, TheLogoIsAnImageOfTheLogoFolder) {
  const auto logos = folder.Home() / "orvex-data/Basketball/TeamLogos";
  std::filesystem::create_directories(logos);
  for (const char* name : {"b.JPEG", "a.bmp", "notes.txt"}) ASSERT_TRUE(WriteWholeFile(logos / name, "x"));
  screen.Open();
  EXPECT_EQ(screen.File1, (std::vector<std::string>{"a.bmp", "b.JPEG"}));
  screen.USELOGOCommand();
  EXPECT_EQ(dialogs.told, std::vector<std::string>{"You must highlight a logo!"});
  screen.File1Index = 1;
  screen.USELOGOCommand();
  ASSERT_TRUE(LoadRules());
  EXPECT_EQ(screen.DisplayLeagueLogo(), logos / "b.JPEG");
  screen.Command4();
  EXPECT_TRUE(screen.DisplayLeagueLogo().empty());
}

}  // namespace
}  // namespace tipline
