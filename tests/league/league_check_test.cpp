#include "league/league_check.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "base/record_file.h"
#include "frontoffice/league_maker.h"
#include "harness/temporary_home.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/program.h"
#include "league/rules.h"

namespace tipline {
namespace {

class Doctor : public testing::Test {
 protected:
  const TemporaryLeague home;
  std::filesystem::path folder;

  void SetUp() override {
    UseShippedEras();
    LeagueRequest request;
    request.Name = "Sound", request.Divisions = 1, request.Teams = 2;
    std::string message;
    ASSERT_TRUE(MakeLeague(request, message)) << message;
    program.LeagueFolder = folder = LeaguesFolder() / "Sound";
  }

  bool Finds(const std::string& text) const {
    const auto findings = LeagueFindings(folder);
    return std::any_of(findings.begin(), findings.end(),
                       [&](const std::string& line) { return line.find(text) != std::string::npos; });
  }

  std::string Files() const {
    std::string all;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) all += ReadWholeFile(entry.path());
    return all;
  }
};

TEST_F(Doctor, ANewLeagueIsSound) { EXPECT_EQ(LeagueFindings(folder), std::vector<std::string>{}); }

TEST_F(Doctor, OnlyAFolderWithoutTeamsIsNoLeague) {
  for (const char* name : {"HCPLAYER", "HCgameplan", "HCRULES", "Sked.skd"})
    std::filesystem::remove(folder / name);
  EXPECT_EQ(LeagueFault(folder), "");
  ASSERT_TRUE(WriteWholeFile(folder / "HCTEAMS", std::string(3000, '\0')));
  EXPECT_NE(LeagueFault(folder).find("holds no team"), std::string::npos);
  std::filesystem::remove(folder / "HCTEAMS");
  EXPECT_NE(LeagueFault(folder).find("missing"), std::string::npos);
}

TEST_F(Doctor, NamesWhatIsWrongAndChangesNothing) {
  const auto team = [](auto change) {
    ReadTeam(1);
    change(league.team[1]);
    WriteTeam(1);
  };
  const auto man = [](auto change) {
    PlayerRecord p;
    ReadPlayer(1, p);
    change(p);
    ASSERT_TRUE(RecordFile(PlayersFile(), kPlayerSlotBytes).Write(1, p));
  };
  const auto put = [](const std::filesystem::path& file, std::size_t at, std::string_view bytes) {
    ASSERT_TRUE(WriteWholeFile(file, ReadWholeFile(file).replace(at, bytes.size(), bytes)));
  };
  using std::filesystem::resize_file;
  const auto schedule = folder / "Sked.skd";
  const struct {
    const char* finding;
    std::function<void()> spoil;
  } cases[] = {
      {"HCPLAYER is missing", [&] { std::filesystem::remove(PlayersFile()); }},
      {"HCgameplan has 700 bytes", [] { resize_file(CoachesFile(), 700); }},
      {"HCTEAMS ends within a record", [] { resize_file(TeamsFile(), file_size(TeamsFile()) + 1); }},
      {"rules outside their lists", [&] { league.rules.MinuteList = 21, SaveRules(); }},
      {"would repair the rules", [&] { league.rules.JumpBallMark = 0, SaveRules(); }},
      {"1 slot names a row that HCPLAYER does not have",
       [&] { team([](TeamRecord& t) { t.Roster[30] = 999; }); }},
      {"stands on a roster already", [&] { team([](TeamRecord& t) { t.Roster[30] = t.Roster[1]; }); }},
      {"which calls itself 7", [&] { man([](PlayerRecord& p) { p.RecNo = 7; }); }},
      {"a man of team 2", [&] { man([](PlayerRecord& p) { p.TeamNo = 2; }); }},
      {"1 man says he is of a team", [&] { team([](TeamRecord& t) { t.Roster[1] = 0; }); }},
      {"would repair 1 man.", [&] { man([](PlayerRecord& p) { p.InfoMark = 0; }); }},
      {"would repair the team.", [&] { team([](TeamRecord& t) { t.LastTenMark = 0; }); }},
      {"its game plan is that of team 2", [&] { put(CoachesFile(), 2, "\2"); }},
      {"a team that is not there", [&] { put(schedule, 114, "\4"); }},
      {"1 game has no date", [&] { put(schedule, 5, "\77"); }},
      {"days off that are no dates",
       [&] { put(DailyFile(), 0, std::string("\x63\0\0\x07\0", 5) + std::string(495, '\0')); }},
  };
  const auto kept = home.Home() / "kept";
  std::filesystem::copy(folder, kept);
  for (const auto& c : cases) {
    std::filesystem::remove_all(folder);
    std::filesystem::copy(kept, folder);
    LoadRules();
    c.spoil();
    const std::string before = Files();
    EXPECT_TRUE(Finds(c.finding)) << c.finding;
    EXPECT_EQ(Files(), before) << c.finding;
  }
}

TEST(EraFault, AnEraFileIsWholeAndPlausible) {
  const TemporaryLeague home;
  UseShippedEras();
  EXPECT_EQ(EraFault(EraFile()), "") << "none is made at the next start";
  std::filesystem::create_directories(EraFile().parent_path());
  for (const auto& bytes : {std::string(), std::string(20000, '\0'), std::string(30500, '\xA5')}) {
    ASSERT_TRUE(WriteWholeFile(EraFile(), bytes));
    EXPECT_NE(EraFault(EraFile()), "") << bytes.size();
  }
}

}  // namespace
}  // namespace tipline
