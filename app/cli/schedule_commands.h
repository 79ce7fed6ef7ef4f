#pragma once
// The commands of the schedule, with their options.
#include <CLI/CLI.hpp>
#include <string>

#include "cli/commands.h"

namespace tipline::cli {

struct ScheduleArguments {
  int Games = 0, Divisional = 0, MaxOther = 2;
  std::string Start, Date, To, Team, Visitor, Home, File, Name;
  bool Yes = false;
};

/// Adds `schedule` and its commands; RunSchedule carries out the one that was given.
void AddSchedule(CLI::App& app, ScheduleArguments& a, Common& common);
int RunSchedule(const CLI::App& app, const ScheduleArguments& a, const Common& common);

int MakeSchedule(const ScheduleArguments& a, const Common& common);
int ShowSchedule(const ScheduleArguments& a, const Common& common);
int SummarizeSchedule(const Common& common);
int ImportSchedule(const ScheduleArguments& a, const Common& common);
int ExportSchedule(const ScheduleArguments& a, const Common& common);
int ClearSchedule(const Common& common);
/// One game by date, visitor and home team: `what` is "add", "delete", "neutral" or "move".
int EditSchedule(const std::string& what, const ScheduleArguments& a, const Common& common);
/// The league's schedule files; one that is named becomes current.
int ListSchedules(const ScheduleArguments& a, const Common& common);
int NameSchedule(const ScheduleArguments& a, bool rename, const Common& common);

}  // namespace tipline::cli
