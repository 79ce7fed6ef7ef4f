#pragma once
// The schedule on screen, date by date: games are added, moved and deleted by hand. All of it works on
// `league.ScheduleGame`; the file changes when the screen is saved.
#include <string>
#include <vector>

#include "base/calendar.h"
#include "frontoffice/schedule_generator.h"
#include "frontoffice/schedule_rules.h"
#include "league/schedule_record.h"

namespace tipline {

/// A game of the date on show, as its columns have it.
struct ScheduleLine {
  int row = 0;  ///< of `league.ScheduleGame`
  std::string status, visitor, home, points, rebounds, assists, location;
};

/// "101-99 (ot)" of a played game; else "Unplayed", "Play Now" or "Deleted".
std::string StatusWords(const ScheduleRecord& row);

/// A team's games on the schedule, deleted ones left out.
struct ScheduleSummary {
  int team = 0;
  int total = 0, visitor = 0, home = 0;
  int division = 0, divisionVisitor = 0, divisionHome = 0;  ///< of them against teams of its division
  int pool = 0, poolNonAdvancing = 0;                       ///< on dates of these types
};

/// The first one heads the names of the teams.
inline constexpr const char* kSummaryColumns[] = {"Games", " Tot", "  V",       "  H",     "Div",
                                                  "  V",   "  H",  "Pool(Gms)", "Pool(NA)"};

struct HCSCHEDULE {
  bool Closed = true;
  bool Warned = false;  ///< of what a change during the season can do

  /// Loads the schedule. False, and closed, when it can't be read or when games were played and the user does
  /// not go on.
  bool Open();

  std::vector<ScheduleLine> Grid(int month, int day) const;
  std::vector<ScheduleSummary> Summary() const;  ///< active teams in the order of their numbers

  // The changes below give false, with a message and nothing changed, when they are refused.
  bool AddGameCommand(const ScheduleChoice& choice);
  bool DeleteGame(int row);     ///< asks
  bool ToggleNeutral(int row);  ///< neutral court or home court
  bool ToggleCoach(int row, int side);
  void SETALLCOMPUTER();
  void SETALLHUMAN();
  bool ERASESCHEDULE();  ///< asks twice; file and spare copy are emptied at once

  bool SaveCommand();    ///< writes the games in order of their dates and closes; stays open when that failed
  bool CancelCommand();  ///< asks and closes
  /// The generator out of this screen: the schedule is saved first and loaded again afterwards.
  bool OpenComputerSchedule(HCCOMPUTERSCHEDULE& generator);

  std::vector<std::string> PRINTSCHEDULE() const;                   ///< the season, date by date
  std::vector<std::string> PrintCommand(int month, int day) const;  ///< a date

  /// Tells once that the season is under way; every change begins with it.
  void WarnOfChange();
};

/// The editor of one game of the schedule.
struct HcScheduleEditGame {
  int Row = 0;
  ScheduleChoice choice;

  /// Shows the game in this row. False, told, when it was played or there is none.
  bool Open(int row);
  int DayList() const { return ScheduleDays(choice.month); }  ///< days to choose from
  /// Puts `choice` in the game's place under the rules of a new game. False, told, when they refuse it.
  bool SaveCommand(HCSCHEDULE& schedule) const;
};

}  // namespace tipline
