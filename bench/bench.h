#pragma once
// The benchmarks of tipline-bench: each prints its results and gives the program's exit code.
#include <cstdint>
#include <iosfwd>
#include <string>

namespace tipline {

struct BenchOptions {
  int games = 0;  ///< 0 takes the benchmark's own number
  std::uint64_t seed = 1;
  int year = 0;         ///< realism: this year of the pro alone
  bool season = false;  ///< realism: a whole season, and how far each man follows his real line
};

/// Seeded games of the four presets, reduced to one number: a change that means to change nothing keeps it.
int Signature(std::ostream& out, const BenchOptions& options);
/// Seconds to load 50,000 players and to make a league of 30 teams, in a folder that is gone afterwards.
int Load(std::ostream& out);
/// Games a second on one core, time by stage, heap allocations, size of the game's tables.
int Speed(std::ostream& out, const BenchOptions& options);
/// So many games and nothing else, for a profiler; 11 less 1 leaves ten games without the set-up.
int One(std::ostream& out, const BenchOptions& options);
/// Seeded games of all presets against the laws of the game, at the end of each and stop by stop.
int Laws(std::ostream& out, const BenchOptions& options);
/// The computer's rotation grids of all presets: holes, time, targets, and what men play by them.
int Rotation(std::ostream& out, const BenchOptions& options);
/// Leagues through the decades beside their eras and the men's own seasons.
int Realism(std::ostream& out, const BenchOptions& options);

/// Seconds to make schedules, and how complete and even they come out over 20 seeds.
int Schedules(std::ostream& out, const BenchOptions& options);
/// What interrupts games, in a hundred of them, and the share of games that men miss over a season.
int Incidents(std::ostream& out, const BenchOptions& options);

/// A season of a new league played on disk; with `season` one of a college league of 360 teams as well.
int Season(std::ostream& out, const BenchOptions& options);

/// Whole seasons of all presets from five seeds, read as a fan does: records, leaders, highs, beside what
/// real leagues show.
int Sanity(std::ostream& out, const BenchOptions& options);

/// How varied the commentary is, what is wrong in it, what is never said, and what it costs.
int Commentary(std::ostream& out, const BenchOptions& options);

/// Heap allocations of this program so far.
std::uint64_t Allocations();

}  // namespace tipline
