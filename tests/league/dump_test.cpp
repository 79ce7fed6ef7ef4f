#include "league/dump.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <sstream>

#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/box_record.h"
#include "league/files.h"

namespace tipline {
namespace {

// After a change of a description: TIPLINE_WRITE_DOCS=1 tipline_tests --gtest_filter=Formats.*
TEST(Formats, TheDocumentIsPrintedFromTheDescriptions) {
  const auto root = std::filesystem::path(__FILE__).parent_path().parent_path().parent_path();
  const auto file = root / "docs" / "file-formats.md";
  if (std::getenv("TIPLINE_WRITE_DOCS")) {
    ASSERT_TRUE(WriteWholeFile(file, FormatDocument()));
  }
  EXPECT_TRUE(ReadWholeFile(file) == FormatDocument()) << "print it again: see above";
}

TEST(Dump, PrintsARecordFieldByField) {
  TemporaryLeague folder;
  TeamRecord& team = league.team[2];
  team.City = "St.\x01 \"X\"";
  team.PowerRating = 0.25;
  team.TeamStats[2].FGA = 901;
  team.PeriodPoints[10][2] = 77;
  ASSERT_TRUE(WriteTeam(2));
  std::ostringstream out;
  ASSERT_TRUE(DumpRecord("hcteams", 2, out));
  for (const char* line :
       {"     2  City                     \"St.\\x01 \\x22X\\x22\" city or school name",
        "\n  1191  PowerRating              0.25         power rating; 0 until worked out\n",
        "\n   310    FGA                      901          field-goal attempts",
        "\n          [10, 1] 0 77\n"})
    EXPECT_NE(out.str().find(line), std::string::npos) << line << out.str();
}

TEST(Dump, CountsTheBytesOfATableOfRecords) {
  TemporaryLeague folder;
  const auto box = std::make_unique<BoxRecord>();
  box->Line[3][2].FGA = 17;
  box->ScoutCoverage[2][3][10][6] = 305;
  for (const char* name : {"BOX4.BOX", "TempBox"}) {
    ASSERT_TRUE(RecordFile(LeagueFile(name), kBoxBytes).Write(1, *box));
    std::ostringstream out;
    ASSERT_TRUE(DumpRecord(name, 1, out));
    EXPECT_NE(out.str().find("\n  9857    FGA                      17 "), std::string::npos);
    EXPECT_NE(out.str().find("\n          [2, 3, 10, 1] 0 0 0 0 0 305\n"), std::string::npos);
  }
}

TEST(Dump, RefusesWhatItDoesNotKnow) {
  TemporaryLeague folder;
  ASSERT_TRUE(WriteWholeFile(RulesFile(), std::string(10001, '\0')));
  ASSERT_TRUE(WriteWholeFile(PlayersFile(), std::string(1600, '\0')));  // a row and the begin of one
  ASSERT_TRUE(WriteWholeFile(LeagueFile("My.skd"), std::string(400, '\0')));
  const struct {
    std::string file;
    int n;
    bool dumped;
  } cases[] = {{"HCRULES", 1, true},   {"HCRULES", 2, false},  {"HCPLAYER", 1, true},
               {"HCPLAYER", 2, true},  {"HCPLAYER", 3, false}, {"HCPLAYER", 0, false},
               {"HCTEAMS", 1, false},  {"SCORES", 1, false},   {"My.skd", 2, true},
               {"Sked.skd", 1, false}, {"", 1, false},         {RulesFile().string(), 1, true}};
  for (const auto& c : cases) {
    std::ostringstream out;
    EXPECT_EQ(DumpRecord(c.file, c.n, out), c.dumped) << c.file << " " << c.n;
    EXPECT_EQ(out.str().empty(), !c.dumped) << c.file << " " << c.n;
  }
}

}  // namespace
}  // namespace tipline
