// Whole games, told and judged.
#include <gtest/gtest.h>

#include "base/random.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "harness/commentary_judge.h"
#include "harness/game_book.h"
#include "harness/memory_league.h"

namespace tipline {
namespace {

/// What a seeded game leaves.
std::vector<std::int64_t> Played(const char* preset, std::uint64_t seed, bool told) {
  OpenSmallLeague(preset, seed);
  SeedRandom(seed);
  SetUpMatch(MemoryTeams()[0], MemoryTeams()[1]);
  game.CommentaryOn = told;
  NewGame();
  game.CommentaryOn = false;
  return GameBook();
}

TEST(Commentary, IsTrueAndLeavesTheGameAlone) {
  for (const char* preset : kPresets) {
    for (std::uint64_t seed = 1; seed <= 3; ++seed) {
      CommentaryJudge judge;
      OpenSmallLeague(preset, seed);
      SetUpMatch(MemoryTeams()[0], MemoryTeams()[1]);
      judge.BeginGame();
      const auto told = Played(preset, seed, true);
      EXPECT_GT(judge.lines, 300) << preset;
      EXPECT_EQ(judge.Faults(), 0) << preset << ": " << (judge.examples.empty() ? "" : judge.examples[0]);
      EXPECT_EQ(told, Played(preset, seed, false)) << preset << ", seed " << seed;
    }
  }
}

TEST(Commentary, TheJudgeHearsWhatIsWrong) {
  OpenSmallLeague("women");
  SetUpMatch(MemoryTeams()[0], MemoryTeams()[1]);
  NewGame();
  CommentaryJudge judge;
  judge.BeginGame();
  game.play.Posted = "M", game.play.TipIn = 0;
  game.commentary.TellsPlay = true;
  const struct {
    std::string line;
    Blemish blemish;
  } cases[] = {
      {std::string(71, 'x'), Blemish::kTooLong}, {"off  the rim", Blemish::kBlanks},
      {"Utah on a 8-0 run", Blemish::kArticle},  {"{ball} shoots", Blemish::kUnfilled},
      {"all net", Blemish::kMadeOnMiss},         {"that one was his", Blemish::kMasculine},
      {"Utah leads by 99", Blemish::kScore},
  };
  for (const auto& c : cases) {
    const long before = judge.blemishes[c.blemish];
    platform::commentaryBox().Line(c.line, 0, 0);
    platform::commentaryBox().StopShown();
    EXPECT_EQ(judge.blemishes[c.blemish], before + 1) << c.line;
  }
}

}  // namespace
}  // namespace tipline
