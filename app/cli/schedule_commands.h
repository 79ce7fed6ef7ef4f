#pragma once
// The commands of the schedule.
#include <string>
#include <vector>

#include "cli/commands.h"
#include "league/schedule_record.h"

namespace tipline::cli {

struct ScheduleArguments {
  int Games = 0, Divisional = 0, MaxOther = 2;
  std::string Start, Date, To, Team, Visitor, Home, File, Name, Coach;
  bool Yes = false;
};

int MakeSchedule(const ScheduleArguments& a, const Common& common);
int ShowSchedule(const ScheduleArguments& a, const Common& common);
/// As it is printed: date by date, "visitor @ home".
int PrintSchedule(const ScheduleArguments& a, const Common& common);
/// "human" or "computer" coaches both sides of every game.
int SetCoaches(const ScheduleArguments& a, const Common& common);
/// Rows in order of the season: of a date, of a team (0 all).
std::vector<const ScheduleRecord*> GamesInOrder(const MonthDay& date = {}, int team = 0);
int SummarizeSchedule(const Common& common);
int ImportSchedule(const ScheduleArguments& a, const Common& common);
int ExportSchedule(const ScheduleArguments& a, const Common& common);
int ClearSchedule(const Common& common);
/// One game by date, visitor and home team: `what` is "add", "delete", "neutral", "move" or "coach".
int EditSchedule(const std::string& what, const ScheduleArguments& a, const Common& common);
/// The league's schedule files; one that is named becomes current.
int ListSchedules(const ScheduleArguments& a, const Common& common);
int NameSchedule(const ScheduleArguments& a, bool rename, const Common& common);

}  // namespace tipline::cli
