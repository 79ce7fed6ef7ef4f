#pragma once
// The commands of the schedule on the command line.
#include <CLI/CLI.hpp>

#include "cli/schedule_commands.h"

namespace tipline::cli {

/// Adds `schedule` and its commands; RunSchedule carries out the one that was given.
void AddSchedule(CLI::App& app, ScheduleArguments& a, Common& common);
int RunSchedule(const CLI::App& app, const ScheduleArguments& a, const Common& common);

}  // namespace tipline::cli
