// How varied, how true and how dear the commentary is.
#include <ctime>
#include <iomanip>
#include <ostream>

#include "base/random.h"
#include "bench.h"
#include "engine/engine.h"
#include "harness/commentary_judge.h"
#include "harness/game_book.h"
#include "harness/memory_league.h"
#include "league/phrase_table.h"
#include "league/program.h"
#include "league/setup.h"
#include "narration/describe.h"

namespace tipline {
namespace {

double ProcessorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

/// Plays seeded games of a preset, calling before() when one is set up and behind() when it is over.
template <class Before, class Behind>
void PlayGames(const char* preset, int year, std::uint64_t seed, int games, Before before, Behind behind) {
  OpenMemoryLeague(preset, year, seed);
  const auto teams = MemoryTeams();
  for (int played = 0, round = 0; played < games; ++round) {
    for (const Pairing& pair : RoundOf(teams, round)) {
      if (played++ == games) break;
      SeedRandom(seed * 100000 + static_cast<std::uint64_t>(played));
      SetUpMatch(pair.visitor, pair.home);
      before();
      NewGame();
      behind();
    }
  }
}

/// Each game otherwise: league games between teams with a record behind them, the short style, the voices of
/// all three kinds of opening.
void Vary(int played) {
  setup.PbpStartingLineupsList = static_cast<u8>(played % 3);
  setup.PBPOption = played % 10 == 9 ? 1 : 0;
  setup.DisplayStatsInPbpCheck = played % 4 == 3 ? 1 : 0;
  program.GameKind = played % 2 == 1 ? GameKind("L") : GameKind("E");
  for (int side = 1; side <= 2; ++side) {
    TeamRecord& team = game.team[side];
    team.Wins = static_cast<i16>(ShowRnd(30));
    team.Losses = static_cast<i16>(ShowRnd(30));
    team.Streak = static_cast<i16>(ShowRnd(11) - 6);
  }
}

void Judge(std::ostream& out, const char* preset, int year, std::uint64_t seed, int games,
           SayingTally* tally) {
  CommentaryJudge judge;
  int played = 0;
  PlayGames(
      preset, year, seed, games,
      [&] {
        Vary(played++);
        game.CommentaryOn = true;
        game.Tally = tally;
        judge.BeginGame();
      },
      [] {
        game.CommentaryOn = false;
        program.GameKind = "E";
      });
  long most = 0;
  std::string mostOften;
  for (const auto& [line, count] : judge.skeletons) {
    if (count > most) most = count, mostOften = line;
  }
  out << preset << ": " << games << " games, " << judge.lines / games << " lines a game, "
      << judge.skeletons.size() << " distinct of " << judge.lines << " (" << std::fixed
      << std::setprecision(2)
      << 100.0 * static_cast<double>(judge.skeletons.size()) / static_cast<double>(judge.lines)
      << " %), most frequent " << 100.0 * static_cast<double>(most) / static_cast<double>(judge.lines)
      << " % \"" << mostOften << "\"\n";
  for (const auto& [kind, count] : judge.blemishes)
    out << "  " << kBlemishNames[static_cast<int>(kind)] << ": " << count << '\n';
  for (const std::string& example : judge.examples) out << "    " << example << '\n';
}

void Coverage(std::ostream& out, const SayingTally& tally) {
  long never = 0, all = 0;
  for (const auto part : {ShotFamilies(), WhistleFamilies(), FloorFamilies()}) {
    for (const Family& family : part) {
      for (const Saying& saying : family.sayings) {
        ++all;
        if (tally.said.count(&saying)) continue;
        ++never;
        out << "  never: " << family.name << " \"" << saying.text << "\"\n";
      }
    }
  }
  out << all - never << " of " << all << " sayings reached\n  slots never reached:";
  for (int slot = 1; slot <= kPhraseSlotsUsed; ++slot) {
    if (tally.slots[slot] == 0) out << ' ' << slot;
  }
  out << '\n';
}

/// Seconds for the games, without what leads up to them, and their results reduced to one number.
double Time(bool told, int games, std::uint64_t seed, std::uint64_t& results) {
  double seconds = 0, start = 0;
  results = 0;
  PlayGames(
      "pro", 0, seed, games,
      [&] {
        game.CommentaryOn = told;
        start = ProcessorSeconds();
      },
      [&] {
        seconds += ProcessorSeconds() - start;
        results = Digest(results, GameBook());
      });
  game.CommentaryOn = false;
  return seconds;
}

}  // namespace

int Commentary(std::ostream& out, const BenchOptions& options) {
  const int games = options.games > 0 ? options.games : 50;
  SayingTally tally;
  for (const char* preset : kPresets) Judge(out, preset, 0, options.seed, games, &tally);
  Judge(out, "historic", 1951, options.seed, games, &tally);
  Coverage(out, tally);
  std::uint64_t silent = 0, told = 0;
  const double without = Time(false, games, options.seed, silent);
  const double with = Time(true, games, options.seed, told);
  out << "told " << std::setprecision(0) << games / with << " games a second, untold " << games / without
      << "; results " << (silent == told ? "are the same" : "DIFFER") << '\n';
  return silent == told ? 0 : 1;
}

}  // namespace tipline
