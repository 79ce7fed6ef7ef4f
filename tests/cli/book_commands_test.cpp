// Stored games on the command line.
#include "cli/book_commands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <sstream>

#include "aftermath/box_file.h"
#include "aftermath/box_text.h"
#include "base/record_file.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "league/schedule.h"
#include "platform/dialogs.h"

namespace tipline::cli {
namespace {

class BookCommands : public testing::Test {
 protected:
  TemporaryHome home;
  platform::ScriptedDialogs dialogs;
  Common common;

  void SetUp() override {
    game = {};
    random.Seed(1);
    common.League = "Demo", common.Seed = 1;
    LeagueRequest request;
    request.Name = "Demo", request.Divisions = 2, request.Teams = 6;
    Run([&] { return NewLeague(request, common) + (OpenTheLeague(common) ? 0 : 1); });
    const Table<int, 1, 20> teams = TeamsOfDivision(1);
    for (int s = 1; s <= 2; ++s) ASSERT_TRUE(LoadTeam(teams[s], s));
    program.Autoplaying = true;
    PrepareGame();
    NewGame();
    program.Autoplaying = false;
    program.BoxFileName = "BOX2.BOX";
    ASSERT_TRUE(WriteBoxText() && SaveBoxFile());
    page = game.BoxPageText;
    league.Scores.resize(1);
    for (const char* name : {"", "BOX2.BOX"}) {
      ScheduleRecord row;
      row.BoxFile = name;
      league.Scores.push_back(row);
    }
    ASSERT_TRUE(WriteSchedule(LeagueFile("SCORES"), std::span(league.Scores).subspan(1)));
    game = {};
  }
  template <class Command>
  std::pair<int, std::string> Run(Command command) {
    std::ostringstream text;
    auto* out = std::cout.rdbuf(text.rdbuf());
    auto* err = std::cerr.rdbuf(faults.rdbuf());
    const int code = command();
    std::cout.rdbuf(out), std::cerr.rdbuf(err);
    return {code, text.str()};
  }

  std::string page;
  std::ostringstream faults;
};

TEST_F(BookCommands, PrintAStoredGame) {
  for (const char* game : {"2", "last"}) {
    const auto [code, text] = Run([&] { return ShowBox({game}, common); });
    EXPECT_EQ(code, 0);
    EXPECT_EQ(text.substr(0, 2000), page.substr(0, 2000));
    EXPECT_NE(text.find("Game MVP"), text.npos);
  }
  const auto [code, text] = Run([&] { return ShowLog("last", common); });
  EXPECT_EQ(code, 0);
  EXPECT_GT(std::count(text.begin(), text.end(), '\n'), game.PlayLogCount + game.ScoreLogCount);
  common.Csv = true;
  const auto [csvCode, csv] = Run([&] { return ShowLog("2", common); });
  EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), game.PlayLogCount + 1);
  EXPECT_EQ(csv.find("Period,Clock,Team,Player,Action,Outcome,Score,Note\n"), 0u);
  EXPECT_EQ(csvCode, 0);
}

TEST_F(BookCommands, RefuseWhatIsNotThere) {
  for (const char* game : {"0", "3", "-1", "x", "", "99999999999"}) {
    EXPECT_EQ(Run([&] { return ShowBox({game}, common); }).first, 1) << game;
    EXPECT_EQ(Run([&] { return ShowLog(game, common); }).first, 1) << game;
  }
  EXPECT_NE(faults.str().find("there is no game x: 2 games have been played"), std::string::npos);
  EXPECT_TRUE(dialogs.told.empty());
  EXPECT_EQ(Run([&] { return ShowBox({"1"}, common); }).first, 1);
  EXPECT_EQ(Run([&] { return ShowLog("1", common); }).first, 1);
  std::filesystem::remove(LeagueFile("BOX2.BOX"));
  EXPECT_EQ(Run([&] { return ShowBox({"2"}, common); }).first, 1);
  EXPECT_EQ(Run([&] { return ShowLog("2", common); }).first, 1);
  EXPECT_EQ(dialogs.told, std::vector<std::string>(4, "Box file is not available!"));
}

}  // namespace
}  // namespace tipline::cli
