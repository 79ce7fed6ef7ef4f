// What a coach is told: of the plays, of the floor he looks at, of his own commands.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "base/random.h"
#include "cli/coach_events.h"
#include "cli/coach_screen.h"
#include "cli/coach_session.h"
#include "cli/coach_table.h"
#include "cli/columns.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "harness/laws.h"
#include "harness/memory_league.h"

namespace tipline::cli {
namespace {

void SetUpTold(std::uint64_t seed = 1) {
  OpenSmallLeague("pro", seed);
  SeedRandom(seed);
  SetUpMatch(MemoryTeams()[0], MemoryTeams()[1]);
  game.side[2].CoachMode = "H";
}

/// Side 2 attacks in the second period; his first man has the ball.
void SetUpAttack(GameState state) {
  SetUpTold();
  NewGame();
  game.Period = 2;
  game.GameClock = 5000;
  game.GameStarted = true;
  game.OffenseSide = 2;
  game.DefenseSide = 1;
  game.DeadBallKind = game.NeedsBringUp = 0;
  game.GameState = "OFFENSE";
  SetPlayBox();
  game.GameState = state;
  game.ActingSide = state == "DEFENSE-CALL" ? 1 : 2;
  game.BallSlot = 1;
  game.BallPlayer = game.side[2].Lineup[1];
}

std::string Floor() {
  std::ostringstream out;
  PrintFloor(out);
  return out.str();
}
bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

/// The line of the table that holds the name; "" for none.
std::string LineWith(const std::string& text, const std::string& name) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (Holds(line, name) && !Holds(line, ": ")) return line;
  }
  return "";
}

int Count(const std::string& text, const std::string& part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST(EventLine, SaysWhoDidWhatWithWhom) {
  SetUpTold();
  game.team[1].Abbrev = "RAL";
  PlayerAt(1, 1).ShortName = "Kane";
  PlayerAt(1, 2).ShortName = "Villa";
  PlayerAt(2, 1).ShortName = "Daly";
  // clang-format off
  const struct {
    PlayKind kind;
    PlayResult result;
    PlayNote note;
    int side, otherSide, otherSlot;
    const char* told;
  } cases[] = {
      {"INSIDE", "G", kAssistedBy, 1, 1, 2, "Kane scores inside, pass from Villa"},
      {"OFFREB", "M", kBlockedBy, 1, 2, 1, "Kane misses on the putback, blocked by Daly"},
      {"INSIDE", "LOOSE-DEF", kNoNote, 2, 0, 0, "Daly fouls under the basket"},
      {"DRIVE", "M", kFouledBy, 1, 2, 1, "Kane misses on the drive; Daly fouls under the basket"},
      {"DRIVE", "OF", kFouledBy, 1, 1, 1, "Kane fouls on offense"},
      {"INSIDE", "MF", kFouledBy, 1, 2, 1, "Kane is fouled shooting inside by Daly"},
      {"OUTSIDE", "ST", kStolenBy, 1, 2, 1, "Kane loses the ball, stolen by Daly"},
      {"THREE", "G", kNoNote, 1, 0, 0, "Kane scores with a foot on the line"},
      {"", "TIMEOUT", kTimeoutNote, 1, 0, 0, "RAL timeout"},
      {"", "TIMEOUT", kInjuryNote, 1, 0, 0, "Kane is hurt and leaves the game"},
      {"", "FLAGRANT", kNoNote, 2, 0, 0, "Daly takes a flagrant foul"},
  };
  // clang-format on
  for (const auto& c : cases) {
    PlayLogRow row;
    row.Side = static_cast<u8>(c.side), row.Slot = 1;
    row.Action = c.kind, row.Outcome = c.result, row.Note = c.note;
    row.OtherSide = static_cast<u8>(c.otherSide), row.OtherSlot = static_cast<u8>(c.otherSlot);
    EXPECT_TRUE(EventLine(row).ends_with(c.told)) << EventLine(row) << " is not: " << c.told;
  }
}

TEST(Floor, AtTheOffensiveBoardOnlyThePromptsShotIsShown) {
  for (int zone = kInside; zone <= kThree; ++zone) {
    SetUpAttack("OFFREB");
    game.PlayKind = "OFFREB";
    game.PutbackClass = zone;
    const int other = zone == kThree ? kInside : kThree;
    for (const int slot : game.side[2].Lineup) ManAt(2, slot).ShotPick = other;
    const PlayerRecord& p = BallHandler();
    const int rating = zone == kInside ? p.RateOffInside : zone == kThree ? p.RateOffThree : p.RateOffOutside;
    const std::string table = Floor().substr(Floor().find('\n'));
    EXPECT_EQ(Count(table, ShotName(zone)), 1) << table;
    EXPECT_EQ(Count(table, ShotName(other)), 0) << table;
    const std::string line = LineWith(table, "*" + ManName(2, game.BallPlayer));
    EXPECT_TRUE(Holds(line, ShotName(zone)) && Holds(line, " " + std::to_string(rating) + " ")) << line;
    EXPECT_TRUE(Holds(Prompt(), std::to_string(rating) + ")")) << Prompt();
  }
}

TEST(Floor, InABreakThoseRunWhomThePromptNames) {
  SetUpAttack("FASTBREAK");
  for (const int slot : game.side[2].Lineup) {
    ManAt(2, slot).ShotPick = kThree;
    ManAt(2, slot).InBreak = slot == game.side[2].Lineup[2] || slot == game.side[2].Lineup[5];
  }
  EXPECT_EQ(Count(Floor(), "runs"), 2) << Floor();
  EXPECT_EQ(Count(Floor(), "three"), 0) << Floor();
  for (const int position : {2, 5}) {
    const int slot = game.side[2].Lineup[position];
    const std::string rating = std::to_string(PlayerAt(2, slot).RateOffFastbreak);
    EXPECT_TRUE(Holds(LineWith(Floor(), ManName(2, slot)), rating)) << Floor();
    EXPECT_TRUE(Holds(Prompt(), ManName(2, slot) + " " + rating)) << Prompt();
  }
}

TEST(Floor, ASwitchIsShownAlike) {
  SetUpAttack("DEFENSE-CALL");
  game.PlayKind = "OUTSIDE";
  game.side[1].StoredMatchup = {{1, 2, 3, 4, 5}};
  game.side[1].Matchup = {{4, 2, 3, 1, 5}};
  const std::string guard = ManName(1, game.side[1].Lineup[4]), handler = ManName(2, game.BallPlayer);
  EXPECT_TRUE(Holds(Floor(), "guarded by " + guard)) << Floor();
  EXPECT_TRUE(Holds(LineWith(Floor(), " " + guard), handler)) << Floor();
}

TEST(Floor, NamesShooterAndJumpers) {
  SetUpAttack("FREETHROW-SHOOT");
  game.PlayKind = "SHOOT3-2";
  BallHandler().ShortName = "Daly";
  BallHandler().Stats[3].FTM = 3, BallHandler().Stats[3].FTA = 4;
  EXPECT_TRUE(Floor().starts_with("At the line: Daly, 3 to make 2, 3-4 today\n")) << Floor();
  game.GameState = "JUMPBALL-2";
  game.side[1].JumperOf = game.side[1].Lineup[3];
  game.side[2].JumperOf = 0;
  const std::string jumper = ManName(1, game.side[1].Lineup[3]), centre = ManName(2, game.side[2].Lineup[5]);
  EXPECT_TRUE(Floor().starts_with("Jump: " + jumper + " and " + centre + "\n")) << Floor();
}

TEST(Plain, LeavesLettersAndTakesWhatSteers) {
  const struct {
    const char *why, *text, *plain;
  } cases[] = {{"letters of other tongues", "Dončić é", "Dončić é"},
               {"escape and delete", "a\033b\177", "a?b?"},
               {"a bare control of eight bits", "a\23331m", "a?31m"},
               {"the same in two bytes", "a\xc2\23331m", "a??31m"},
               {"spelled out too long", "\xe0\x82\x9b", "\xe0??"},
               {"an old letter of one byte", "Jos\xe9", "Jos\xe9"},
               {"a letter cut off", "a\xc4", "a\xc4"}};
  for (const auto& c : cases) EXPECT_EQ(Plain(c.text), c.plain) << c.why;
}

/// A session without input; the commands are called by hand.
struct Bench {
  std::istringstream in;
  std::ostringstream out, err;
  CoachSession session{in, out, err, {}};

  Answer Do(const std::string& line) {
    Words words = SplitWords(line);
    const Command& command = *FindCommand(words[0]);
    words.erase(words.begin());
    return command.run(session, words);
  }
};

TEST(CoachSession, TellsWhatBecomesOfTheCall) {
  // clang-format off
  const struct { const char* line; bool refused; const char* told; int period = 2; } cases[] = {
      {"call pick and roll 4", false, "Called: pick and roll for "},
      {"call pick 4", false, "Called: pick and roll for "},
      {"call inside 5 force", false, ", forced"},
      {"call three 2 force", true, "Only an inside play can be forced."},
      {"call any 3 alley", true, "A lob needs a kind of play."},
      {"auto 4th :30", false, "Both sides play on alone: 4th Period - 30 Seconds."},
      {"auto end", true, "There are no marks in overtime", 5},
  };
  // clang-format on
  for (const auto& c : cases) {
    SetUpAttack("OFFENSE");
    game.Period = c.period;
    Bench bench;
    EXPECT_EQ(bench.Do(c.line) == Answer::kRefused, c.refused) << c.line;
    EXPECT_TRUE(Holds((c.refused ? bench.err : bench.out).str(), c.told))
        << c.line << ": " << bench.out.str() << bench.err.str();
  }
}

TEST(CoachSession, AQuickPassThatIsNotThrownIsTold) {
  int told = 0;
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    SetUpAttack("OFFENSE");
    const int target = game.side[2].Lineup[3];
    tipline::random.Seed(seed);
    Bench bench;
    bench.Do("quick 3");
    const bool asked =
        game.GameState == "OFFENSE" && game.OffenseSide == 2 && game.possession.JustQuickPassed;
    const bool said = Holds(bench.out.str(), "is not there.");
    EXPECT_EQ(said, asked && game.BallPlayer != target) << seed;
    told += said ? 1 : 0;
  }
  EXPECT_GT(told, 3);
}

TEST(CoachSession, AHurriedPlayAndTheComputersAnswerAreTold) {
  SetUpAttack("OFFENSE");
  game.side[2].QuickShot = 1;
  game.GameClock = 101;
  Bench hurried;
  hurried.Do("grid 3");
  EXPECT_TRUE(Holds(hurried.out.str(), "They hurry: the ball goes to " + ManName(2, game.BallPlayer)));
  SetUpAttack("DEFENSE-CALL");
  game.PlayKind = "OUTSIDE";
  game.side[1].CoachMode = "H";
  const int rows = game.PlayLogCount;
  Bench answered;
  EXPECT_EQ(answered.Do("computer"), Answer::kGoesOn);
  EXPECT_TRUE(Holds(answered.out.str(), "The computer answers the call."));
  EXPECT_TRUE(game.GameState != "DEFENSE-CALL" || game.PlayLogCount > rows);
}

TEST(CoachSession, OrdersThatAPeriodTakesBackAreTold) {
  for (const auto& [order, told] :
       {std::pair{"pace fast\n", 1}, {"set nofoul on\n", 1}, {"crash strong\n", 0}}) {
    SetUpTold();
    std::istringstream in(order + std::string(3000, '\n'));
    std::ostringstream out, err;
    EXPECT_TRUE(CoachSession(in, out, err, {}).Run());
    EXPECT_EQ(Count(out.str(), "Pace and end-of-game orders are back to normal."), told) << order;
  }
}

// Tempers without bounds, rules that let everything happen.
void SetUpRoughGame(std::uint64_t seed) {
  SetUpTold(seed);
  RulesRecord& rules = league.rules;
  rules.InjuryOption = rules.TemporaryGameInjuriesCheck = rules.IllegalDefenseList = 1;
  rules.FlagrantCheck = rules.ReplayReviewsCheck = rules.SuspensionsCheck = 1;
  game.Tension = 100;  // fights are near
  for (auto& side : game.player) {
    for (PlayerRecord& man : side) man.RateSportsmanship = 0;
  }
}

TEST(CoachSession, ARoughGameIsToldToItsEnd) {
  std::string all;
  for (std::uint64_t seed = 1; seed <= 8; ++seed) {
    SetUpRoughGame(seed);
    std::istringstream in(std::string(4000, '\n'));
    std::ostringstream out, err;
    EXPECT_TRUE(CoachSession(in, out, err, {}).Run());
    EXPECT_TRUE(game.GameOver);
    EXPECT_EQ(BrokenLaw() + BrokenFinalLaw(), "") << seed;
    const auto rows = std::count_if(game.PlayLog.begin(), game.PlayLog.begin() + game.PlayLogCount,
                                    [](const PlayLogRow& row) { return row.Note == kTechnicalNote; });
    // Long lines are wrapped.
    std::string text = out.str();  // its wrapped lines joined
    for (auto at = text.find("\n "); at != text.npos; at = text.find("\n ")) text.erase(at, 1);
    for (auto at = text.find("  "); at != text.npos; at = text.find("  ")) text.erase(at, 1);
    const int told = Count(text, "technical foul!") + Count(text, "he gets a technical") +
                     Count(text, "is called for a technical foul");
    EXPECT_EQ(told, rows) << "told once each, seed " << seed;
    all += text;
  }
  for (const char* line : {"Injury timeout", "Fight! ", "technical", "flagrant"}) {
    EXPECT_GT(Count(all, line), 0) << line;
  }
}

}  // namespace
}  // namespace tipline::cli
