#pragma once
// Names, places and colours for teams that never were.
#include <string>
#include <vector>

#include "frontoffice/fiction_files.h"
#include "league/league.h"

namespace tipline {

struct City {
  std::string name, state;
  int population = 0;
  int timeZone = 0;  ///< 0 Eastern, 1 Central, 2 Mountain, 3 Pacific, 4 Alaska, 5 Hawaii, 6 Atlantic
  bool canadian = false;
};

/// What the names are made of.
struct NameData {
  std::vector<City> cities;  ///< largest first, no name twice
  std::vector<std::string> nicknames, arenaWords;
  FictionFiles people;
  /// Reads the shipped data; empty parts where a file is missing.
  static NameData Load();
  bool Complete() const;
};

struct TeamIdentity {
  City place;
  std::string label;  ///< what the team is called by: its city, or a school of that city
  std::string nickname, abbrev;
};

/// `count` teams with names, nicknames and abbreviations of their own, from east to west. Professional teams
/// go by their city; colleges by a made-up school there. Fewer when the cities give no more names. Draws.
std::vector<TeamIdentity> DrawIdentities(const NameData& data, int count, bool college);

/// Letters of a label that no team of `taken` has yet, three of them.
std::string FreeAbbreviation(std::string_view label, const std::vector<std::string>& taken);

/// Names, files, colours, arena and coach of a team. Draws.
void DressTeam(TeamRecord& team, const TeamIdentity& identity, const NameData& data, bool women);

}  // namespace tipline
