// A game coached line by line: scripts, right and wrong, play it to its end.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>
#include <streambuf>

#include "base/random.h"
#include "cli/coach_session.h"
#include "cli/coach_table.h"
#include "cli/columns.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "harness/game_book.h"
#include "harness/laws.h"
#include "harness/memory_league.h"
#include "league/setup.h"
#include "platform/clock.h"
#include "support/torture.h"

namespace tipline::cli {
namespace {

void SetUpCoachedGame(const char* preset, std::uint64_t seed, const char* visitor, const char* home) {
  OpenSmallLeague(preset, seed);
  SeedRandom(seed);
  SetUpMatch(MemoryTeams()[0], MemoryTeams()[1]);
  game.side[1].CoachMode.Set(visitor);
  game.side[2].CoachMode.Set(home);
}

struct Played {
  bool finished;
  std::string out, err;
  std::vector<std::int64_t> book;
};

Played PlayScript(const std::string& script, std::uint64_t seed = 1, const char* visitor = "C") {
  SetUpCoachedGame("pro", seed, visitor, "H");
  std::istringstream in(script);
  std::ostringstream out, err;
  const bool finished = CoachSession(in, out, err, {}).Run();
  return {finished, out.str(), err.str(), GameBook()};
}

constexpr std::string_view kWrong =
    ";99;-1;#31;#0;nobody;on;off;1;5 5;1 2 3;all all all;\x01\xff;99999999999999999999;strong;";

/// Coaches anything, line by line as the session reads it, and looks at the game at every line.
class AnyCoach : public std::streambuf {
 public:
  AnyCoach(std::uint64_t seed, const std::ostringstream& err, int lines) : err_(err), left_(lines) {
    draw_.Seed(seed);
  }

  static inline std::map<std::string_view, int> done;  ///< by command: times it was carried out

 protected:
  int_type underflow() override {
    Judge();
    if (--left_ < 0) return traits_type::eof();
    line_ = NextLine() + "\n";
    before_ = Digest(0, GameBook());
    told_ = err_.str().size();
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(line_[0]);
  }

 private:
  void Judge() {
    const std::string law = BrokenLaw();
    EXPECT_EQ(law, "") << "after " << line_;
    if (!law.empty()) left_ = 0;
    if (err_.str().size() > told_) {
      EXPECT_EQ(Digest(0, GameBook()), before_) << "refused, but it changed the game: " << line_;
    } else if (command_) {
      ++done[command_->name];
    }
    command_ = nullptr;
  }

  const Command& AnyCommand() {
    const auto commands = Commands();
    return commands[static_cast<std::size_t>(draw_.Whole(static_cast<int>(commands.size())) - 1)];
  }
  /// One that is open and was never carried out, if there is one; else any.
  const Command& Draw() {
    for (const Command& c : Commands()) {
      if (draw_.Whole(3) == 1 && c.open() && !done.count(c.name)) return c;
    }
    return AnyCommand();
  }

  std::string OneOf(std::string_view list) {
    Words all;
    std::istringstream rest{std::string(list)};
    for (std::string one; std::getline(rest, one, ';');) all.push_back(one);
    return all.empty() ? "" : all[static_cast<std::size_t>(draw_.Whole(static_cast<int>(all.size())) - 1)];
  }

  std::string NextLine() {
    if (draw_.Whole(2) == 1) return "";
    const Command& c = Draw();
    // A coach who plays on alone has little left to coach.
    if (c.name == "auto" && done.count("auto") && draw_.Whole(50) > 1) return "";
    const int kind = draw_.Whole(10);
    if (kind <= 7) {
      command_ = &c;
      return std::string(c.name) + " " + OneOf(c.examples);
    }
    const std::string name(kind == 8 || c.brief.empty() ? c.name : c.brief);
    if (kind == 9) return name + " " + OneOf(AnyCommand().examples);
    return name + " " + (draw_.Whole(16) == 1 ? std::string(300, 'x') : OneOf(kWrong));
  }

  const std::ostringstream& err_;
  Random draw_;
  std::string line_;
  const Command* command_ = nullptr;
  std::uint64_t before_ = 0;
  std::size_t told_ = 0;
  int left_;
};

TEST(CoachSession, EveryCommandRightAndWrongReachesTheEndOfTheGame) {
  AnyCoach::done.clear();
  for (std::uint64_t seed = 1; seed <= 8; ++seed) {
    SCOPED_TRACE(seed);
    SetUpCoachedGame(kPresets[seed % 4], seed, "H", seed % 2 ? "H" : "C");
    std::ostringstream out, err;
    AnyCoach coach(seed, err, 4000);
    std::istream in(&coach);
    EXPECT_TRUE(CoachSession(in, out, err, {}).Run());
    EXPECT_TRUE(game.GameOver);
    EXPECT_EQ(BrokenLaw() + BrokenFinalLaw(), "");
  }
  for (const Command& c : Commands()) {
    if (c.name == "quit") continue;
    EXPECT_GT(AnyCoach::done[c.name], 0) << c.name << " was never carried out";
  }
}

TEST(CoachSession, AnyCoachReachesTheEndUnderAnyRulesWithAnyMen) {
  for (std::uint64_t seed = 1; seed <= 8; ++seed) {
    OpenTortureLeague(seed);
    SCOPED_TRACE("seed " + std::to_string(seed) + ": " + TortureLabel());
    PrepareGame();
    for (tipline::Side& side : game.side) side.CoachMode = "H";
    std::ostringstream out, err;
    AnyCoach coach(seed, err, 400);
    std::istream in(&coach);
    EXPECT_TRUE(CoachSession(in, out, err, {}).Run());
    EXPECT_TRUE(game.GameOver);
    std::string text = out.str();
    std::erase(text, '\n');
    EXPECT_EQ(Plain(text), text);
  }
}

std::string ManyLines(int count) {
  std::string script;
  const char* lines[] = {"",  "s",         "d",        "p",       "call inside 5", "q 3",
                         "x", "t rebound", "zone 2-3", "sub 1 6", "def tight"};
  for (int i = 0; i < count; ++i) script += std::string(lines[i * 7 % 11]) + "\n";
  return script;
}

TEST(CoachSession, TheSameScriptAndSeedGiveTheSameGame) {
  const Played first = PlayScript(ManyLines(600), 5);
  PlayScript("", 6);
  const Played again = PlayScript(ManyLines(600), 5);
  EXPECT_EQ(first.out, again.out);
  EXPECT_EQ(first.err, again.err);
  EXPECT_EQ(first.book, again.book);
  EXPECT_NE(PlayScript("", 5).book, first.book) << "the coach makes a difference";
}

TEST(CoachSession, TheComputerTakesOverWhenTheInputEnds) {
  for (const char* script : {"", "\n\n\n", "\n\nsub 3", "\ncall inside 5\nq"}) {
    const Played played = PlayScript(script);
    EXPECT_TRUE(played.finished) << script;
    EXPECT_TRUE(game.GameOver) << script;
    EXPECT_TRUE(game.side[2].CoachMode == "C") << script;
  }
}

TEST(CoachSession, LeavesAGameOnlyWhenTheCoachIsSure) {
  EXPECT_FALSE(PlayScript("quit\ny\n").finished);
  EXPECT_FALSE(game.GameOver);
  EXPECT_TRUE(PlayScript("quit\nn\n").finished);
  EXPECT_TRUE(PlayScript("quit\n").finished);
  const Played kept = PlayScript("quit\nzone man\n");
  EXPECT_NE(kept.out.find("Defense: Man."), std::string::npos) << "no answer: the next command";
}

TEST(CoachSession, LinesFitTheScreenAndArePlain) {
  const std::string screens =
      "box\nstats\nstats 1\nbench\nbench ratings\ndefense\nplan\nset\nstrategy\nhelp all\nhelp call\nauto\n";
  const Played played = PlayScript(ManyLines(300) + screens + ManyLines(600), 2, "H");
  std::istringstream lines(played.out);
  const std::string date = platform::ComputerDate();
  for (std::string line; std::getline(lines, line);) {
    const bool boxHead = line.ends_with(date);  // is as wide as the lines of a stored box
    EXPECT_LE(line.size(), boxHead ? 85u : 79u) << line;
  }
  EXPECT_EQ(played.out.find('\033'), std::string::npos);
}

tipline::Side& Own() { return game.side[2]; }

TEST(CoachSession, TellsWhatChangedOrWhyNot) {
  // clang-format off
  struct Case { const char* line; bool refused; const char* told; bool (*holds)() = [] { return true; }; };
  const Case cases[] = {
      {"press full", false, "Press: Fullcourt Pressure.", [] { return Own().Pressure == 4; }},
      {"zone 2-3", false, "Defense: 2-3 Zone.", [] { return Own().DefenseType == 2; }},
      {"help strong inside", false, "Help: Strong Inside.", [] { return Own().DefenseHelp == 3; }},
      {"crash strong", false, "Offensive boards: Strong.",
       [] { return Own().CrashBoardsOffense == 1 && Own().CrashBoardsDefense == 1; }},
      {"match 1 2", false, "Match-ups:",
       [] { return Own().StoredMatchup[1] == 2 && Own().StoredMatchup[2] == 1; }},
      {"match 1 2 3 4 4", true, "Each position must be defended..check the Defensive Matchups Grid",
       [] { return Own().StoredMatchup[5] == 5; }},
      {"cover 5 inside deny", false, "is covered inside: Deny.",
       [] { return ManAt(1, game.side[1].Lineup[5]).CoverageInside == 5; }},
      {"double 5", false, "is doubled anywhere.",
       [] { return ManAt(1, game.side[1].Lineup[5]).DoubleTeamThree == 1; }},
      {"order 3 three", false, "is told to shoot: three.",
       [] { return ManAt(2, Own().Lineup[3]).GlobalOffense == kThree; }},
      {"match computer", false, "The rules leave the match-ups to you: nothing was searched",
       [] { return Own().StoredMatchup[1] == 1; }},
      {"help i", true, "There is no command \"i\"; help defense goes: Normal, Inside",
       [] { return Own().DefenseHelp == 0; }},
      {"safe 4", false, "defends safely.", [] { return ManAt(2, Own().Lineup[4]).SafeStyle == 1; }},
      {"plan Drive 3", false, "Drive: 3, for this game.", [] { return game.coach[2].Coverage2[0] == 3; }},
      {"plan Crash 3", true, "More than one slider"},
      {"plan Drive 5", true, "from 0, least, to 4, most", [] { return game.coach[2].Coverage2[0] <= 4; }},
      {"set lastshot on", false, "On: hold for the last shot.", [] { return Own().LastShot == 1; }},
      {"set quickfoul poor", false, "Poor Shooter", [] { return Own().QuickFoul == 2; }},
      {"lineup free throw", false, "On the floor:",
       [] { return OnFloor(2, 1).RotationOrder[4] == 1 && OnFloor(2, 5).RotationOrder[4] == 5; }},
      {"sub 1 #99", true, "There is no man #99 on the team."},
      {"sub 1 #6 2", true, "Who plays position 2?", [] { return Own().Lineup[1] != 6; }},
      {"sub 1 2 2 van dyke", false, "On the floor: ",
       [] { return Own().Lineup[1] != 7 && Own().Lineup[2] == 7; }},
      {"sub 1", true, "sub POSITION MAN"},
      {"delegate defense on", false, "The computer calls your defense.",
       [] { return Own().BothDefenses == 1; }},
      {"auto 1st 13:00", true, "no mark ahead", [] { return !Watching(); }},
      {"auto 123 6:00", true, "no mark ahead", [] { return !Watching(); }},
      {"shoot", true, "Not at this stop: shoot. Open: continue"},
      {"yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy", true, "\"yyyyyyyyyyyyyyyyyyyyyyyyyyyyyy..\""},
  };
  // clang-format on
  for (const auto& c : cases) {
    SetUpCoachedGame("pro", 1, "C", "H");
    league.rules.ZoneLegalCheck = 1;
    league.rules.AllowComputerManMatchupsCheck = 0;
    PlayerAt(2, 7).LastName = "Van Dyke";
    std::istringstream in(std::string(c.line) + "\nquit\ny\n");
    std::ostringstream out, err;
    EXPECT_FALSE(CoachSession(in, out, err, {}).Run()) << c.line;
    EXPECT_NE((c.refused ? err : out).str().find(c.told), std::string::npos) << c.line << ": " << err.str();
    EXPECT_EQ(err.str().empty(), !c.refused) << c.line << ": " << err.str();
    EXPECT_TRUE(c.holds()) << c.line;
  }
}

TEST(CoachWords, FindTheManWhoIsMeant) {
  SetUpCoachedGame("pro", 1, "C", "C");
  for (int slot = 1; slot <= kRosterSlots; ++slot) PlayerAt(1, slot).TeamNo = 0;
  const char* names[][2] = {
      {"John", "Smith"}, {"Karl", "Smithson"}, {"Ed", "Moreno"}, {"Al", "Moreno"}, {"Bo", "O'Neil"}};
  for (int slot = 1; slot <= 5; ++slot) {
    PlayerRecord& p = PlayerAt(1, slot + 5);
    p.TeamNo = static_cast<i16>(game.GameTeam[1]);
    p.FirstName = names[slot - 1][0];
    p.LastName = names[slot - 1][1];
    p.ShortName = names[slot - 1][1];
    game.side[1].Lineup[slot] = slot == 5 ? 0 : slot + 5;
  }
  // clang-format off
  const struct { const char* why; const char* said; int slot; } cases[] = {
      {"a whole last name before a part of one", "smith", 6}, {"a part", "smiths", 7},
      {"two of a name", "Moreno", 0}, {"with the first name", "al moreno", 9}, {"and a part", "john", 6},
      {"signs are no matter", "oneil", 10}, {"a position", "2", 7}, {"a label", "pg", 6},
      {"an empty position", "5", 0}, {"a roster number", "#10", 10}, {"marked, or above 5", "10", 10},
      {"marked: no position", "#2", 0}, {"nobody", "jones", 0}, {"no such number", "31", 0},
      {"nothing", "", 0},
      {"only signs", "'-", 0}, {"a bare mark", "#", 0},
  };
  // clang-format on
  for (const auto& c : cases) {
    const Found found = FindMan(1, c.said);
    EXPECT_EQ(found.value, c.slot) << c.why;
    EXPECT_EQ(found.fault.empty(), c.slot > 0) << c.why;
  }
  EXPECT_EQ(FindMan(1, "Moreno").fault, "Which one: Ed Moreno #8, Al Moreno #9?");
}

}  // namespace
}  // namespace tipline::cli
