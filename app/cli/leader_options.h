#pragma once
// The options of the stat books on the command line.
#include <CLI/CLI.hpp>

#include "cli/leader_commands.h"

namespace tipline::cli {

struct LeaderArguments {
  LeaderRequest Leaders;
  RecordRequest Records;
  bool Yes = false;
};

/// Adds `leaders` and `records`.
void AddLeaders(CLI::App& app, LeaderArguments& a, Common& common);
int RunLeaders(const CLI::App& app, LeaderArguments& a, const Common& common);

}  // namespace tipline::cli
