// The commands on a team's coaching, over the files of a league.
#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <sstream>

#include "cli/commands.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "league/roster.h"
#include "platform/dialogs.h"

namespace tipline::cli {
namespace {

/// What is printed goes into `text` while this lives.
class Catch {
 public:
  Catch() : out_(std::cout.rdbuf(text.rdbuf())), err_(std::cerr.rdbuf(faults.rdbuf())) {}
  ~Catch() { std::cout.rdbuf(out_), std::cerr.rdbuf(err_); }

  std::ostringstream text, faults;

 private:
  std::streambuf *out_, *err_;
};

class TeamCommands : public testing::Test {
 protected:
  TemporaryHome home;
  platform::ScriptedDialogs dialogs;
  Common common;

  void SetUp() override {
    const Catch quiet;
    common.League = "Demo", common.Seed = 1;
    LeagueRequest request;
    request.Name = "Demo", request.Divisions = 2, request.Teams = 6;
    ASSERT_EQ(NewLeague(request, common), 0);
    ASSERT_TRUE(OpenTheLeague(common));
  }
  static Roster Read(int teamNo) {
    Roster roster;
    EXPECT_TRUE(ReadRoster(teamNo, roster));
    return roster;
  }
  /// Exit code of a command, and what it printed.
  template <class Command, class Request>
  std::pair<int, std::string> Run(Command command, const Request& request) const {
    const Catch caught;
    const int code = command(request, common);
    return {code, caught.text.str()};
  }
  static int FirstTeam() {
    int teamNo = 1;
    while (league.team[teamNo].TeamActive != 1) ++teamNo;
    return teamNo;
  }
};

std::ptrdiff_t Crosses(const std::string& text) { return std::count(text.begin(), text.end(), 'X'); }

TEST_F(TeamCommands, AllTeamsAreMadeWithoutAQuestion) {
  EXPECT_EQ(Read(FirstTeam()).coach.RotationByRank[1][1][1], 0);
  CoachRequest request;
  request.all = request.make = true;
  ASSERT_EQ(Run(ShowRotation, request).first + Run(ShowDepth, request).first, 0);
  EXPECT_TRUE(dialogs.asked.empty());
  int made = 0;
  for (int teamNo = 1; teamNo <= kTeams; ++teamNo) {
    if (league.team[teamNo].TeamActive != 1) continue;
    const CoachRecord coach = Read(teamNo).coach;
    made += coach.RotationByRank[1][1][1] + coach.RotationByRank[5][1][1] > 0 && coach.DepthChart[1][1] > 0;
  }
  EXPECT_EQ(made, 6);
}

TEST_F(TeamCommands, TheListOfDaysOff) {
  const int teamNo = FirstTeam();
  const Roster roster = Read(teamNo);
  int slot = 1;
  while (!OnTeam(roster, slot)) ++slot;
  const std::string man = "#" + std::to_string(slot);
  DailyRequest request;
  request.team = std::to_string(teamNo);
  std::string shown = Run(ShowDaily, request).second;
  const std::string first = shown.substr(shown.find("10-"), 5);

  request.toggle = {{man, first}};
  request.use = "on";
  shown = Run(ShowDaily, request).second;
  EXPECT_EQ(Crosses(shown.substr(shown.find("10-"))), 1);
  EXPECT_EQ(Read(teamNo).daily[slot].InactiveDates[1], 200 + std::stoi(first.substr(3)));
  EXPECT_EQ(Read(teamNo).coach.UseDailyInactive, 1);

  const std::pair<std::string, std::string> refused[] = {
      {man, "08-31"}, {man, "02-30"}, {"#30", first}, {"", first}};  // no game, no date, nobody, no name
  for (const auto& second : refused) {
    request.toggle = {{man, first}, second};
    EXPECT_EQ(Run(ShowDaily, request).first, 1) << second.first << second.second;
    EXPECT_NE(Read(teamNo).daily[slot].InactiveDates[1], 0) << "nothing is kept";
  }
  request = {.team = request.team, .toggle = {}, .activateAll = false, .inactivateAll = true, .use = ""};
  dialogs.answers = {false, true, true};
  EXPECT_EQ(Run(ShowDaily, request).first, 1);
  common.Csv = true;
  EXPECT_GE(Crosses(Run(ShowDaily, request).second), 15 * 20) << "every man on every date";
  request.inactivateAll = false, request.activateAll = true;
  EXPECT_EQ(Crosses(Run(ShowDaily, request).second), 0);
}

TEST_F(TeamCommands, APlanGoesOutAndComesBack) {
  const int teamNo = FirstTeam();
  CoachRequest request;
  request.team = std::to_string(teamNo);
  request.importPlan = true;
  EXPECT_EQ(Run(ShowPlan, request).first, 1) << "there is none";
  request.importPlan = false, request.exportPlan = true, request.settings = {"Three=4"};
  EXPECT_EQ(Run(ShowPlan, request).first, 0);
  EXPECT_EQ(Read(teamNo).coach.Coverage5[0], 4) << "saved with the export";
  request.exportPlan = false, request.settings = {"Three=1", "Drive=0"};
  EXPECT_EQ(Run(ShowPlan, request).first, 0);
  request.importPlan = true, request.settings = {"Inside=3"};
  EXPECT_EQ(Run(ShowPlan, request).first, 0);
  EXPECT_EQ(Read(teamNo).coach.Coverage5[0] * 10 + Read(teamNo).coach.Coverage3[0], 43);
}

TEST_F(TeamCommands, CoverageOfAnOpponentIsCleared) {
  Roster roster = Read(FirstTeam());
  int other = roster.TeamNo + 1;
  while (league.team[other].TeamActive != 1) ++other;
  roster.coach.PlanOpponent[4] = static_cast<i16>(other);
  roster.coach.DefendThree[4][2] = roster.coach.DefendThree[0][2] = 5;
  roster.coach.DoubleInside[4][3] = 1;
  ASSERT_TRUE(WriteRoster(roster));
  CoachRequest request;
  request.team = std::to_string(roster.TeamNo), request.opponent = std::to_string(other);
  request.clearDefense = true;
  EXPECT_EQ(Run(ShowPlan, request).first, 0);
  const CoachRecord coach = Read(roster.TeamNo).coach;
  EXPECT_EQ(coach.DefendThree[4][2] * 10 + coach.DoubleInside[4][3], 30);
  EXPECT_EQ(coach.DefendThree[0][2], 5) << "against all others as before";
}

}  // namespace
}  // namespace tipline::cli
