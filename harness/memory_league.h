#pragma once
// A league of made-up men that lies in memory alone, without a folder or a file; for tests and the benchmark.
#include <vector>

#include "frontoffice/league_maker.h"

namespace tipline {

/// The kinds of league that the maker knows.
inline constexpr const char* kPresets[] = {"pro", "college", "women", "historic"};

/// Draws the league and opens it: teams, coaches, men, rules with their repairs, the shipped eras, lookups.
/// Flags, preferences and the game are fresh. Throws std::runtime_error with the maker's sentence when the
/// request can't be met.
void OpenMemoryLeague(const LeagueRequest& request);
void OpenMemoryLeague(const char* preset, int year = 0, std::uint64_t seed = 1);
/// The same cut down to six teams, for tests.
void OpenSmallLeague(const char* preset, std::uint64_t seed = 1);

/// Numbers of its teams, ascending.
std::vector<int> MemoryTeams();

/// A team with its men as the league has them, in a copy.
Roster RosterOf(int teamNo);
/// Puts the coach and the men of such a copy back.
void KeepRoster(const Roster& roster);
/// A team takes its side of the game, as after a load from the files.
void SeatTeam(int teamNo, int side);
/// Both teams seated with the computer on both benches and the game prepared.
void SetUpMatch(int visitor, int home);
/// The same, and played to its end in one go.
void PlayMatch(int visitor, int home);
/// The records of the finished game go back into the league, as a season does between two games.
void KeepBooks();

/// Pairs of one round, so that in `teams - 1` rounds everybody has met everybody; home sides change by round.
struct Pairing {
  int visitor, home;
};
std::vector<Pairing> RoundOf(const std::vector<int>& teams, int round);

}  // namespace tipline
