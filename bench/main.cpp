// tipline-bench: how fast the game is, how true to its eras, and whether a change has changed it.
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string_view>

#include "bench.h"
#include "league/rules.h"
#include "players.h"

namespace {

using namespace tipline;

int Usage() {
  std::cerr << "usage: tipline-bench COMMAND [--games N] [--seed N] [--year Y] [--season]\n"
               "  signature  seeded games of the four presets reduced to one number\n"
               "  load       50,000 players loaded, a league of 30 teams made\n"
               "  players    how made-up players and teams spread\n"
               "  schedule   time to make schedules, how complete and even they are\n"
               "  speed      games a second, time by stage, heap allocations\n"
               "  one        N games (1) and nothing else, for a profiler\n"
               "  laws       N games (2000) of all presets against the laws of the game\n"
               "  rotation   the computer's rotation grids, and N games (200) of each preset by them\n"
               "  incidents  injuries, technicals and the like in a hundred games; games missed in a season\n"
               "  commentary  N games (50) of each preset: variety, faults, what is never said, cost\n"
               "  season     a season played on disk, game by game; --season for 360 college teams too\n"
               "  sanity     seasons of all presets, five seeds: records, leaders, highs, beside real ones\n"
               "  realism    leagues from 1950 to 2022 beside their eras; --season for a full season\n";
  return 2;
}

/// False when the words are no options.
bool ReadOptions(int count, char** words, BenchOptions& options) {
  for (int i = 0; i < count; ++i) {
    const std::string_view word = words[i];
    if (word == "--season") {
      options.season = true;
      continue;
    }
    if (i + 1 >= count) return false;
    const long long value = std::atoll(words[++i]);
    if (value < 1) return false;
    if (word == "--games") {
      options.games = static_cast<int>(value);
    } else if (word == "--seed") {
      options.seed = static_cast<std::uint64_t>(value);
    } else if (word == "--year") {
      options.year = static_cast<int>(value);
    } else {
      return false;
    }
  }
  return true;
}

int Run(std::string_view command, const BenchOptions& options) {
  if (command == "signature") return Signature(std::cout, options);
  if (command == "load") return Load(std::cout);
  if (command == "schedule") return Schedules(std::cout, options);
  if (command == "speed") return Speed(std::cout, options);
  if (command == "one") return One(std::cout, options);
  if (command == "laws") return Laws(std::cout, options);
  if (command == "rotation") return Rotation(std::cout, options);
  if (command == "incidents") return Incidents(std::cout, options);
  if (command == "commentary") return Commentary(std::cout, options);
  if (command == "season") return Season(std::cout, options);
  if (command == "sanity") return Sanity(std::cout, options);
  if (command == "realism") return Realism(std::cout, options);
  if (command == "players") {
    UseShippedEras();
    PrintPlayerSpread(std::cout, options.games > 0 ? options.games : 10);
    return 0;
  }
  return Usage();
}

}  // namespace

int main(int argc, char** argv) {
  BenchOptions options;
  if (argc < 2 || !ReadOptions(argc - 2, argv + 2, options)) return Usage();
  try {
    return Run(argv[1], options);
  } catch (const std::exception& failure) {
    std::cerr << "tipline-bench: " << failure.what() << '\n';
    return 1;
  }
}
