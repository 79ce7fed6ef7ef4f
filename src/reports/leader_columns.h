#pragma once
// What men can be ranked by: every column of the leaders screen, by its number.
#include <string>
#include <string_view>
#include <vector>

#include "frontoffice/efficiency.h"
#include "league/player_record.h"
#include "league/team_record.h"

namespace tipline {

enum class SeasonLine { kReal = 1, kReplay = 2 };

/// A man with all that his columns are worked out from.
struct LeaderMan {
  const PlayerRecord* man = nullptr;
  const TeamRecord* team = nullptr;
  SeasonLine season = SeasonLine::kReplay;
  int TeamGames = 0;      ///< games of his team in that season
  double Efficiency = 0;  ///< filled when one of the columns asks for it

  const StatLine& Line() const { return man->Stats[static_cast<int>(season)]; }
};

/// How a value is written.
enum class LeaderFormat { kWhole, kTenths, kHundredths, kPercentage };

struct LeaderColumn {
  int Number = 0;          ///< 1 to 299; it stands in the user's reports and never changes
  std::string_view Group;  ///< "STAT", "PERGAME", "PER48", "SHOT", "MISC" or "HOMEROAD"
  std::string Name;        ///< "Scoring"
  std::string Heading;     ///< "Pts"
  LeaderFormat Format = LeaderFormat::kWhole;
  bool ReplayOnly = false;  ///< real seasons don't tell it
};

/// All of them, by number.
std::vector<LeaderColumn> LeaderColumns();
/// The column of a number; one with the number 0 when there is none.
LeaderColumn LeaderColumnOf(int number);
/// What the user names: a number, "PERGAME:Scoring", or a name or heading alone, averages a game before
/// totals. Letters large or small; 0 when it is no column.
int FindLeaderColumn(std::string_view text);
bool NeedsEfficiency(int column);

/// Value of a column; 0 where there is nothing to divide by.
double LeaderValue(int column, const LeaderMan& man);
/// He has played, or tried, enough in that column for a place among the leaders: an average takes seven
/// games in ten of his team, half of them at home or on the road; a percentage what its board takes; a rate
/// by the minute twelve minutes a game of his team. A total takes nothing.
bool Qualifies(int column, const LeaderMan& man);
/// "27.4", ".512", "88".
std::string LeaderText(int column, double value);

}  // namespace tipline
