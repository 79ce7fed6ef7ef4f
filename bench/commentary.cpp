// How varied, how true and how dear the commentary is.
#include <algorithm>
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
#include "league/setup.h"
#include "narration/describe.h"

namespace tipline {
namespace {

double ProcessorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

/// Plays seeded games of a preset, `visit` before and behind each.
template <class Before, class Behind>
void PlayGames(const char* preset, std::uint64_t seed, int games, Before before, Behind behind) {
  OpenMemoryLeague(preset, 0, seed);
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

void Judge(std::ostream& out, const char* preset, std::uint64_t seed, int games, SayingTally* tally) {
  CommentaryJudge judge;
  PlayGames(
      preset, seed, games,
      [&] {
        game.CommentaryOn = true;
        game.Tally = tally;
        setup.PbpStartingLineupsList = static_cast<u8>(ShowRnd(3) - 1);
        judge.BeginGame();
      },
      [] { game.CommentaryOn = false; });
  long most = 0;
  std::string mostOften;
  for (const auto& [line, count] : judge.skeletons) {
    if (count > most) most = count, mostOften = line;
  }
  out << preset << ": " << games << " games, " << judge.lines / games << " lines a game, "
      << judge.skeletons.size() << " distinct of " << judge.lines << " (" << std::fixed << std::setprecision(2)
      << 100.0 * static_cast<double>(judge.skeletons.size()) / static_cast<double>(judge.lines)
      << " %), most frequent " << 100.0 * static_cast<double>(most) / static_cast<double>(judge.lines) << " % \""
      << mostOften << "\"\n";
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

/// Seconds for the games, and their results reduced to one number.
double Time(bool told, int games, std::uint64_t seed, std::uint64_t& results) {
  results = 0;
  const double start = ProcessorSeconds();
  PlayGames(
      "pro", seed, games, [&] { game.CommentaryOn = told; },
      [&] { results = Digest(results, GameBook()); });
  game.CommentaryOn = false;
  return ProcessorSeconds() - start;
}

}  // namespace

int Commentary(std::ostream& out, const BenchOptions& options) {
  const int games = options.games > 0 ? options.games : 50;
  SayingTally tally;
  for (const char* preset : kPresets) Judge(out, preset, options.seed, games, &tally);
  Coverage(out, tally);
  std::uint64_t silent = 0, told = 0;
  const double without = Time(false, games, options.seed, silent);
  const double with = Time(true, games, options.seed, told);
  out << "told " << std::setprecision(0) << games / with << " games a second, untold " << games / without
      << "; results " << (silent == told ? "are the same" : "DIFFER") << '\n';
  return silent == told ? 0 : 1;
}

}  // namespace tipline
