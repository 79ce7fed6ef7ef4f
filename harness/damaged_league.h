#pragma once
// Leagues whose files have been cut, grown, emptied or filled with noise, and what the program makes of them.
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

namespace tipline {

/// The files of a league folder, by name.
using LeagueImage = std::map<std::string, std::string>;

/// A made-up league of four teams in as few bytes as it needs, with days off and scores, in the data home's
/// folder "Fuzz"; the open league is it.
LeagueImage MakeSmallImage();

/// Does one to three files of the image some harm; draws.
void Damage(LeagueImage& image);

struct DamagedRun {
  bool refused = false;  ///< nothing that is a league was left
  bool played = false;   ///< two teams were left, and their game came to its end
  std::string fault;     ///< what the program did wrong, in a sentence; empty for nothing
};
/// Damages the image by the seed, writes it to the folder of the open league and does what a user would: has
/// it examined, opens it, loads every team, plays and saves a league game, and examines it again.
DamagedRun RunDamagedLeague(const LeagueImage& sound, std::uint64_t seed);

}  // namespace tipline
