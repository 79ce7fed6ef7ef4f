#pragma once
// The leader reports: which columns are shown of whom. Reports 1 to 7 are the program's own, the user's
// follow and lie in the setup record, one board of it each.
#include <string>
#include <vector>

#include "reports/leader_columns.h"

namespace tipline {

inline constexpr int kLeaderReports = 50;
inline constexpr int kDefaultLeaderReports = 7;

struct LeaderReport {
  struct Section {
    int Key = 0;               ///< column by which the men are ranked
    std::vector<int> Columns;  ///< shown beside it
  };
  std::string Name;  ///< up to 20 characters
  std::vector<Section> Sections;
  int Rows = 10;  ///< "Top 5" to "Top 50", by steps of five
  int Team = 0;   ///< 0 "All Teams"
  SeasonLine Season = SeasonLine::kReplay;
};

/// Report 1 to 50; one of the user's without a section is not in use. What a damaged setup says of columns
/// that there are not is left out. Another number has no name.
LeaderReport LeaderReportOf(int number);
/// It has columns that real seasons don't tell.
bool NeedsReplay(const LeaderReport& report);

/// Keep and empty a report of the user's, number 8 to 50, in the setup. Clearing asks first, and leaves
/// report 8, which is there to be changed. Refused, with a message and nothing changed: a report of the
/// program's, a number that is none, a report without a section, with too many columns or with such as there
/// are not, and real figures of columns that only a replay has.
bool SaveLeaderReport(int number, const LeaderReport& report);
bool ClearLeaderReport(int number);

}  // namespace tipline
