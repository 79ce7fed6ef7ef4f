#pragma once
// What a coach sees at a stop: the score, the ball, the men on the floor, the bench.
#include <ostream>
#include <string>

namespace tipline::cli {

/// Teams, score, period, clock, shot clock, fouls, timeouts and possession in one line.
std::string ScoreLine();

/// The ball, the free-throw shooter or the jumpers, and the five of the acting side: on offense with the shot
/// each has open, his rating for it, his option and energy, in a break who runs, at the offensive board the
/// shot of the man who has the ball; on defense with the man each guards.
void PrintFloor(std::ostream& out);

/// The men who sit, with what a coach asks before he sends one in.
void PrintBench(std::ostream& out, int side);

/// What they can do, in ratings.
void PrintBenchRatings(std::ostream& out, int side);

/// The two teams beside each other.
void PrintTeams(std::ostream& out);

/// A man's game, his season and his ratings.
void PrintMan(std::ostream& out, int side, int slot);

/// 1 "inside", 2 "outside", 3 "three"; "" for no shot.
std::string ShotName(int pick);
/// Short name of a team for the screen.
std::string ShortTeam(int side);

}  // namespace tipline::cli
