#pragma once
// What the program knows by name: cities, known players, common surnames, colleges. Each table is a file of
// the program folder that the user may fill; its first line names the columns. The files that ship are copied
// there when they are missing.
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tipline {

struct PlayerRecord;
struct TeamRecord;

/// VTX-Cities.csv: City,Abbrev,Arena,Court,HomeCourt,Logo,TimeZone,Canadian. An empty cell says nothing.
struct CityRow {
  std::string Abbrev, Arena, Court, HomeCourt, Logo;
  int TimeZone =
      -1;  ///< 0 Eastern, 1 Central, 2 Mountain, 3 Pacific, 4 Alaska, 5 Hawaii, 6 Atlantic; -1 unknown
  bool Canadian = false;
};

/// VTX-Corrections.csv: FirstName,LastName,Year,Team,Field,Value. Year 0 is any; an empty team, which may be
/// a city or an abbreviation, too. A field is called as in the record, of the real line "Real.FGA".
struct Correction {
  int Year = 0;
  std::string Team, Field, Value;
};

struct FavoriteShotRow {
  int Shot = 0;
  std::string Text;
};

struct DebutRow {
  int Year = 0;
  std::string College;
};

/// Keys of the tables of players are `NameKey`s, of cities and surnames capital letters.
struct NameTables {
  std::filesystem::path From;  ///< the program folder they were read from
  std::map<std::string, CityRow, std::less<>> City;
  std::set<std::string, std::less<>> FirstNamePlayer;       ///< VTX-First-Names.csv: FirstName,LastName
  std::map<std::string, std::string, std::less<>> Uniform;  ///< VTX-Uniforms.csv: FirstName,LastName,Number
  std::map<std::string, std::string, std::less<>>
      Nickname;  ///< VTX-Nicknames.csv: FirstName,LastName,Nickname
  std::map<std::string, FavoriteShotRow, std::less<>> Shot;  ///< VTX-Shots.csv: FirstName,LastName,Shot,Text
  std::map<std::string, DebutRow, std::less<>> Debut;  ///< VTX-Debuts.csv: FirstName,LastName,Year,College
  std::map<std::string, std::vector<Correction>, std::less<>> Corrections;
  std::set<std::string, std::less<>> Surname;               ///< VTX-Surnames.csv: LastName
  std::map<std::string, std::string, std::less<>> College;  ///< VTX-Basketball-Colleges.txt: name by code
};

/// The tables of the program folder, read at their first use; all empty without one. A line that can't be
/// used is told to the user with its number and passed over.
const NameTables& Names();

/// First and last name as the tables of players know them.
std::string NameKey(const PlayerRecord& player);

/// What is known of the team's city; nullptr when nothing is.
const CityRow* FindCity(const TeamRecord& team);

/// Sets a field of a record by its name. False, and nothing changed, when there is no such field, the value
/// does not fit it, or it says where the row belongs (RecNo, TeamNo).
bool SetField(PlayerRecord& player, std::string_view field, std::string_view value);

}  // namespace tipline
