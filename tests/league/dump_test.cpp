#include "league/dump.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "base/record_file.h"
#include "harness/temporary_home.h"
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
  const struct {
    const char *why, *line;
  } cases[] = {
      {"a text, its odd bytes escaped",
       "     2  City                     \"St.\\x01 \\x22X\\x22\" city or school name, the main label of the "
       "team\n"},
      {"a real number", "  1191  PowerRating              0.25         power rating; 0 until worked out\n"},
      {"a line within the record, at its place in the file",
       "   310    FGA                      901          field-goal attempts, three-point attempts "
       "included\n"},
      {"a table by its indexes", "\n          [10, 1] 0 77\n"},
  };
  for (const auto& c : cases)
    EXPECT_NE(out.str().find(c.line), std::string::npos) << c.why << "\n" << out.str();
}

TEST(Dump, LongTablesAreWrapped) {
  TemporaryLeague folder;
  league.coach[1].SavedDailyDates[30][100] = 1231;
  ASSERT_TRUE(WriteCoach(1));
  std::ostringstream out;
  ASSERT_TRUE(DumpRecord("HCgameplan", 1, out));
  std::istringstream lines(out.str());
  for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 180u) << line;
  EXPECT_NE(out.str().find("0 1231\n"), std::string::npos);
}

TEST(Dump, RefusesWhatItDoesNotKnow) {
  TemporaryLeague folder;
  ASSERT_TRUE(WriteWholeFile(RulesFile(), std::string(10001, '\0')));
  ASSERT_TRUE(WriteWholeFile(PlayersFile(), std::string(1600, '\0')));
  ASSERT_TRUE(WriteWholeFile(LeagueFile("My.skd"), std::string(400, '\0')));
  const struct {
    const char *why, *file;
    int n;
    bool dumped;
  } cases[] = {
      {"the rules", "HCRULES", 1, true},
      {"not the pools", "HCRULES", 2, false},
      {"a whole row", "HCPLAYER", 1, true},
      {"the begin of a row", "HCPLAYER", 2, true},
      {"behind the end", "HCPLAYER", 3, false},
      {"no record 0", "HCPLAYER", 0, false},
      {"no such file", "HCTEAMS", 1, false},
      {"no such format", "SCORES", 1, false},
      {"a schedule, whatever its name", "My.skd", 2, true},
      {"not the default one", "Sked.skd", 1, false},
      {"nothing", "", 1, false},
  };
  for (const auto& c : cases) {
    std::ostringstream out;
    EXPECT_EQ(DumpRecord(c.file, c.n, out), c.dumped) << c.why;
    EXPECT_EQ(out.str().empty(), !c.dumped) << c.why;
  }
  std::ostringstream out;
  EXPECT_TRUE(DumpRecord(RulesFile().string(), 1, out)) << "a path";
}

}  // namespace
}  // namespace tipline
