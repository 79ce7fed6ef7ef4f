#pragma once
// The computer makes a season's schedule: games are placed greedily into date slots with random choices among
// equals, over and over until home and away come out even or the attempts are used up.
#include <functional>
#include <string>
#include <vector>

#include "league/schedule_record.h"

namespace tipline {

struct ScheduleRequest {
  int Games = 0;       ///< of a team, 10 to 98; an odd number counts as the even one below
  int Divisional = 0;  ///< against each team of the division, 0 to 20; of an odd number one is left out
  int MostNonDivisional = 0;  ///< preferred most games against each other team; only 0 and 1 steer anything
  int Month = 10, Day = 30;   ///< first date; a day behind the month's end is its last
};

struct ScheduleDraft {
  struct Game {
    int slot, home, visitor;  ///< slot from 1, team numbers
  };
  struct Date {
    int month, day;
  };
  std::vector<Game> games;
  std::vector<Date> dates;  ///< of the slots; slot 1 is `dates[0]`
  int missing = 0;          ///< games that could not be placed; below 0 when the divisions ask for too many
  int divisions = 0;        ///< in use
  int slack = 0;            ///< more slots to choose from, where the divisions do not come out even
  bool filledIn = false;    ///< games were added without regard to divisions
};

/// Why no schedule of this size can be asked for; empty when it can.
std::string ScheduleRequestProblem(int activeTeams, int games, int divisional);

/// Draws a schedule for the teams with these numbers (ascending, 1 to 720), with the game's generator.
/// Touches no file and nothing of the league. Figures outside their ranges are held to them. `attempt` is
/// called at the begin of every attempt.
ScheduleDraft DrawSchedule(const ScheduleRequest& request, const std::vector<int>& teams,
                           const std::function<void()>& attempt = nullptr);

/// What there is to say of a draft: "Schedule complete!" or what is missing, in up to three lines.
std::string ScheduleMessage(const ScheduleDraft& draft);

/// The games as rows of a schedule, in the order of their placing.
std::vector<ScheduleRecord> ScheduleRows(const ScheduleDraft& draft, int year);

/// The screen of the generator; works on the open league.
struct HCCOMPUTERSCHEDULE {
  std::string GAMETEXT, DIVISIONTEXT, MaxVersusNonDivisionalText;
  int MonthList = 1;                                  ///< season month of the first date, less 1
  int DayList = 30;                                   ///< its day
  std::string Caption{};                              ///< "Please Wait.." while it works
  std::function<void(const std::string&)> Working{};  ///< called when the caption changes; may be empty

  /// Asks, then replaces the schedule in memory and in its file, and tells how it came out. False, with
  /// nothing changed, when the answer was no or the figures can't be met; also when the file can't be
  /// written.
  bool GENERATECommand();
};

}  // namespace tipline
