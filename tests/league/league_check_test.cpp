#include "league/league_check.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/random.h"
#include "base/record_file.h"
#include "frontoffice/league_maker.h"
#include "harness/temporary_home.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/program.h"
#include "league/rules.h"

namespace tipline {
namespace {

std::string Noise(std::size_t bytes) {
  random.Seed(5);
  std::string text(bytes, '\0');
  for (char& c : text) c = static_cast<char>(Rnd(256) - 1);
  return text;
}

TEST(LeagueFault, NamesTheFileThatIsWrong) {
  const TemporaryLeague home;
  UseShippedEras();
  LeagueRequest request;
  request.Name = "Sound";
  std::string message;
  ASSERT_TRUE(MakeLeague(request, message)) << message;
  const auto folder = LeaguesFolder() / "Sound";
  EXPECT_EQ(LeagueFault(folder), "");
  for (const char* name : {"HCTEAMS", "HCPLAYER", "HCgameplan", "HCRULES"}) {
    const auto file = folder / name;
    const std::string whole = ReadWholeFile(file);
    for (const std::string& bad : {std::string(), whole.substr(0, 700), Noise(whole.size())}) {
      ASSERT_TRUE(WriteWholeFile(file, bad));
      EXPECT_NE(LeagueFault(folder).find(name), std::string::npos) << name << " of " << bad.size();
    }
    std::filesystem::remove(file);
    EXPECT_NE(LeagueFault(folder).find("missing"), std::string::npos) << name;
    ASSERT_TRUE(WriteWholeFile(file, whole));
  }
  ASSERT_TRUE(WriteWholeFile(folder / "HCPLAYER", ReadWholeFile(folder / "HCPLAYER").substr(0, 1500 * 200)));
  EXPECT_NE(LeagueFault(folder), "") << "rosters name men behind the end of the file";
}

TEST(EraFault, AnEraFileIsWholeAndPlausible) {
  const TemporaryLeague home;
  UseShippedEras();
  EXPECT_EQ(EraFault(EraFile()), "") << "none is made at the next start";
  std::filesystem::create_directories(EraFile().parent_path());
  const struct {
    const char* why;
    std::string bytes;
  } bad[] = {{"empty", ""}, {"short", std::string(20000, '\0')}, {"noise", Noise(30500)}};
  for (const auto& b : bad) {
    ASSERT_TRUE(WriteWholeFile(EraFile(), b.bytes));
    EXPECT_NE(EraFault(EraFile()), "") << b.why;
  }
}

}  // namespace
}  // namespace tipline
