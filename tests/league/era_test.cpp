#include <gtest/gtest.h>

#include <cstdlib>
#include <map>

#include "base/random.h"
#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/era_screen.h"
#include "league/files.h"
#include "league/program.h"
#include "league/rules.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

class Eras : public testing::Test {
 protected:
  TemporaryLeague folder;
  platform::ScriptedDialogs dialogs;

  /// The league's eras when the file holds these rows, by year of the pros or year + 200 of the colleges.
  static void Load(const std::map<int, EraRecord>& rows) {
    const RecordFile file(EraFile(), kEraSlotBytes);
    for (const auto& [year, row] : rows) ASSERT_TRUE(file.Write(year - 1945, row));
    ASSERT_TRUE(LoadEra());
  }

  /// A row with these shots and assists, and nothing else.
  static EraRecord Shots(f32 fga, f32 fgm, f32 ast) {
    EraRecord row;
    row.EraMark = 99;
    row.FGA = fga, row.FGM = fgm, row.Ast = ast;
    return row;
  }
};

TEST_F(Eras, MissingFiguresAreEstimated) {
  constexpr std::pair<int, double> kTurnovers[] = {{1959, 17 + 6.6}, {1960, 16 + 6.2}, {1965, 15 + 6},
                                                   {1970, 14 + 5.8}, {1972, 14 + 5.8}, {1973, 0}};
  std::map<int, EraRecord> rows;
  for (const auto& [year, to] : kTurnovers) rows[year] = rows[year + 200] = Shots(100, 40, 20);
  Load(rows);
  for (const auto& [year, to] : kTurnovers) {
    for (const auto& row : {league.EraPro[year], league.EraCollege[year]}) {
      EXPECT_NEAR(row.TO, to, 1e-4) << year;
      EXPECT_NEAR(row.St, to * 0.42, 1e-4) << year;
      EXPECT_NEAR(row.Bk, 60 * 0.11, 1e-4) << year;
    }
  }
}

TEST_F(Eras, OldTotalsBecomeAveragesBeforeAnythingIsFilled) {
  EraRecord totals, one;
  totals.Games = 80;
  totals.OldTotals = {{8000, 4000, 0, 0, 0, 0, 0, 0, 1600, 0, 0, 0, 2000}};
  one.OldTotals[1] = 80;
  Load({{1960, totals}, {1980, one}});
  EXPECT_FLOAT_EQ(league.EraPro[1960].FGA, 100);
  EXPECT_NEAR(league.EraPro[1960].TO, 20 * 0.31 + 100 * 0.16, 1e-4);
  EXPECT_FLOAT_EQ(league.EraPro[1980].FGA, 80) << "no games count as one";
}

TEST_F(Eras, LastYearsFollowTheYearBefore) {
  const EraRecord row = Shots(90, 40, 20);
  Load({{2046, row}, {2048, Shots(95, 0, 0)}, {kEditionYear - 1, row}});
  EXPECT_FLOAT_EQ(league.EraPro[2047].FGA, 90);
  EXPECT_FLOAT_EQ(league.EraPro[2050].FGA, 95);
  EXPECT_FLOAT_EQ(league.EraPro[2050].FGM, 40);
  EXPECT_FLOAT_EQ(league.EraPro[kEditionYear].FGA, 90) << "the season now running";
}

TEST_F(Eras, ShippedTablesMakeTheFile) {
  ASSERT_TRUE(MakeEraFile());
  league.EraPro = {};
  ASSERT_TRUE(LoadEra());
  EXPECT_FLOAT_EQ(league.EraPro[1985].FGA, 88.64F);
  EXPECT_NEAR(league.EraPro[1946].TO, 92.91 * 0.17 + 6.90 * 0.33, 1e-3);
  EXPECT_FLOAT_EQ(league.EraPro[2050].FGA, 89.09F) << "beyond the last known season";
  EXPECT_FLOAT_EQ(league.EraCollege[1946].FGA, league.EraCollege[1947].FGA) << "before the first";
  EXPECT_EQ(std::filesystem::file_size(EraFile()), 30500u);
  EXPECT_TRUE(dialogs.told.empty());
}

TEST_F(Eras, ABadTableIsNamedWithItsLine) {
  const std::string heading = "Year,Games,FGA,FGM,F3A,F3M,FTA,FTM,Reb,OffReb,Ast,St,Bk,TO,PF\r\n";
  const std::string figures = ",82,87,41,7,2,28,21,43,14,25,9,5,16,23\r\n", good = heading + "1990" + figures;
  const std::pair<std::string, std::string> cases[] = {
      {good + "\r\n1991,82,87\r\n", "era_pro.csv, line 4, could not be read!"},
      {heading + "1990,82,nan,41,7,2,28,21,43,14,25,9,5,16,23", "era_pro.csv, line 2, could not be read!"},
      {heading + "1945" + figures, "era_pro.csv, line 2, could not be read!"},
      {heading, "era_pro.csv could not be read!"},
      {good, "era_college.csv could not be read!"},
  };
  ::setenv("TIPLINE_DATA", folder.Home().c_str(), 1);
  for (const auto& [text, told] : cases) {
    ASSERT_TRUE(WriteWholeFile(folder.Home() / "era_pro.csv", text));
    EXPECT_FALSE(MakeEraFile()) << told;
    EXPECT_EQ(dialogs.told.back(), told);
    EXPECT_FALSE(std::filesystem::exists(EraFile()));
  }
  EXPECT_EQ(dialogs.told.size(), std::size(cases));
  ::unsetenv("TIPLINE_DATA");
}

TEST_F(Eras, MissingAndRandomFilesOpen) {
  league.EraCollege[1990].FGA = 5;
  EXPECT_FALSE(LoadEra());
  EXPECT_EQ(league.EraCollege[1990].FGA, 0);
  random.Seed(4);
  std::string bytes(30333, '\0');
  for (char& c : bytes) c = static_cast<char>(Rnd(256) - 1);
  ASSERT_TRUE(WriteWholeFile(EraFile(), bytes));
  EXPECT_TRUE(LoadEra());
  ASSERT_TRUE(SaveEra());
  const auto saved = ReadWholeFile(EraFile());
  EXPECT_EQ(saved.substr(10500, 9500), bytes.substr(10500, 9500)) << "records between the tables stay";
  EXPECT_EQ(saved[181], bytes[181]) << "and the bytes behind a record";
}

TEST_F(Eras, TheScreenTakesFiguresAndAsksBeforeItSaves) {
  ASSERT_TRUE(MakeEraFile());
  ASSERT_TRUE(LoadEra());
  HCERAFORM screen;
  screen.Open();
  screen.YearList(1985);
  screen.YearList(2051);
  EXPECT_EQ(screen.Year, 1985);
  const auto shown = [&screen](std::size_t box) { return screen.BoxText(false, kEraBoxes[box]); };
  EXPECT_EQ(shown(3), ".487") << "43.19 of 88.64";
  league.EraPro[1985].F3A = 0;
  EXPECT_EQ(shown(6), ".000") << "a share of nothing";

  EXPECT_TRUE(screen.LeaveBox(false, "RebText", " 40 "));
  EXPECT_FLOAT_EQ(league.EraPro[1985].OffReb, 13) << "the whole part of 13.7";
  EXPECT_TRUE(screen.LeaveBox(true, "GamesText", "31.00"));
  EXPECT_EQ(league.EraCollege[1985].Games, 31);
  for (const char* text : {"-1", "", "many", "nan", "12x", "40000"})
    EXPECT_FALSE(screen.LeaveBox(false, "RebText", text)) << text;
  EXPECT_FALSE(screen.LeaveBox(false, "FGPctLabel", "0.5"));
  EXPECT_FLOAT_EQ(league.EraPro[1985].Reb, 40);

  for (const bool save : {false, true}) {
    screen.LeaveBox(false, "AstText", "33");
    dialogs.answers = {save};
    screen.OkCommand();
    EXPECT_TRUE(screen.Closed);
    EXPECT_FLOAT_EQ(league.EraPro[1985].Ast, save ? 33 : 26.02F) << "as the file has it";
  }
  EXPECT_EQ(dialogs.asked.front(), "Save Era Changes?");
}

TEST_F(Eras, TheSeasonOf72Games) {
  const auto season = [](f32 blocks, f32 turnovers) {
    EraRecord row = Shots(88, 41, 24);
    row.Games = 82, row.F3A = 30, row.Bk = blocks, row.TO = turnovers;
    return row;
  };
  Load({{2020, season(4.9F, 13)}});
  EXPECT_EQ(league.EraPro[2020].Games, 72);
  EXPECT_FLOAT_EQ(league.EraPro[2020].FGA, 88) << "a finished row stays";
  Load({{2020, season(4.8F, 13)}});
  EXPECT_FLOAT_EQ(league.EraPro[2020].FGA, 88.4F);
  EXPECT_FLOAT_EQ(league.EraPro[2020].Bk, 4.9F);
  EXPECT_FLOAT_EQ(league.EraPro[2020].TO, 13) << "turnovers are kept";
  Load({{2019, season(4.8F, 14.5F)}, {2020, season(4.8F, 0)}});
  EXPECT_FLOAT_EQ(league.EraPro[2020].TO, 14.5F) << "or come from the season before";
}

}  // namespace
}  // namespace tipline
