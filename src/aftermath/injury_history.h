#pragma once
// The injuries of the season, in HcInjuryHistory: a line for each man who played and came out of it hurt.
#include <string>
#include <vector>

namespace tipline {

/// The line of a man of `game` who has a day of return:
/// "November 5,BOS,SF,Joe Smith,November 20,sprained ankle".
std::string InjuryLine(int side, int slot);

/// He has played: an injury whose day of return has come is over.
void EndOldInjury(int side, int slot);

bool PostInjuries(const std::vector<std::string>& lines);

/// The fields of a line, in order; as many as it has.
std::vector<std::string> ReadInjury(const std::string& line);
/// All lines of the open league, oldest first. False, told, when the file can't be read.
bool LoadInjuries(std::vector<std::string>& lines);

/// Who cannot play now.
struct OutMan {
  int TeamNo = 0, RecNo = 0;
  std::string Position, Name, Abbrev;
  int ReturnMonth = 0, ReturnDay = 0;  ///< season month; 0 when it is no injury
  bool MayReturnEarly = false;         ///< day to day
  std::string Injury;
  int SuspensionGames = 0;
};
/// The hurt and the suspended men of the active teams, by team and roster slot; from `league.player`.
std::vector<OutMan> MenOut();

}  // namespace tipline
