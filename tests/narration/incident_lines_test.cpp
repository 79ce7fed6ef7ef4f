#include "narration/incident_lines.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/neutral_game.h"

namespace tipline {
namespace {

using Kind = IncidentKind;

/// How often in 300 tellings a line with these words comes.
int Told(const char* words) {
  int told = 0;
  for (int n = 0; n < 300; ++n) {
    const auto lines = IncidentLines();
    told += std::any_of(lines.begin(), lines.end(),
                        [&](const std::string& line) { return line.find(words) != std::string::npos; });
  }
  return told;
}

// clang-format off
TEST(IncidentLines, SayWhatHappened) {
  const struct { const char* why; Incident incident; const char* words; int least, most; } cases[] = {
      {"shaken up", {Kind::kShakenUp, 1, 2, 0, 1}, "Home2", 300, 300},
      {"he stays", {Kind::kShakenUp, 1, 2, 0, 1}, "he's leaving", 0, 0},
      {"out for a while", {Kind::kTemporaryInjury, 1, 2, 0, 1}, "he's leaving the", 300, 300},
      {"one game", {Kind::kInjury, 1, 2, 0, 1, 1}, "out for the game", 300, 300},
      {"six may be a week", {Kind::kInjury, 1, 2, 0, 20, 6}, "he'll miss about a week", 40, 200},
      {"fifty-nine are weeks", {Kind::kInjury, 1, 2, 0, 40, 59}, "months", 0, 0},
      {"sixty are months", {Kind::kInjury, 1, 2, 0, 40, 60}, "he'll miss a few months!", 300, 300},
      {"the wrong end of a fight", {Kind::kFight, 1, 2, 3}, "Away3 has been ejected!", 300, 300},
      {"a technical's shot", {Kind::kTechnical, 1, 2, 0, 0, 0, 0, false, false, false, 0, 0, 1, 2, 4},
       "Away4 will shoot the technical", 300, 300},
      {"two of them", {Kind::kTechnical, 1, 2, 0, 0, 0, 0, false, false, false, 0, 0, 2, 2, 4},
       "Away4 will shoot two", 300, 300},
      {"he stays in", {Kind::kTechnical, 1, 2}, "ejected", 0, 0},
      {"second grade", {Kind::kFlagrant, 1, 2, 1, 0, 0, 2, false, true, true},
       "Home2 is called for a flagrant 2!", 300, 300},
      {"common after all", {Kind::kFlagrant, 1, 2, 1, 0, 0, 0, false, true},
       "ruled a common foul on Home2", 300, 300},
      {"a warning has no shot", {Kind::kIllegalDefense, 1, 0, 0, 0, 0, 0, true}, "shoot", 0, 0},
      {"delay", {Kind::kDelay}, "we have a delay", 300, 300},
  };
  for (const auto& c : cases) {
    SetUpNeutralGame();
    for (int slot = 1; slot <= 5; ++slot) {
      game.player[1][slot].LastName = "Home" + std::to_string(slot);
      game.player[2][slot].LastName = "Away" + std::to_string(slot);
    }
    showRandom.Seed(7);
    game.incident = c.incident;
    const int told = Told(c.words);
    EXPECT_GE(told, c.least) << c.why;
    EXPECT_LE(told, c.most) << c.why;
  }
}
// clang-format on

TEST(IncidentLines, LeaveTheGamesChanceAlone) {
  SetUpNeutralGame();
  EXPECT_TRUE(IncidentLines().empty());
  random.Seed(3);
  const int first = Rnd(1000000);
  random.Seed(3);
  game.incident = {Kind::kInjury, 1, 2, 0, 20, 6};
  Told("");
  EXPECT_EQ(Rnd(1000000), first);
}

}  // namespace
}  // namespace tipline
