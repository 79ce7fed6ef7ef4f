#pragma once
// The commands of the season on the command line.
#include <CLI/CLI.hpp>

#include "cli/season_command.h"

namespace tipline::cli {

/// Adds `season` and its commands; RunSeason carries out the one that was given.
void AddSeason(CLI::App& app, SeasonArguments& a, Common& common);
int RunSeason(const CLI::App& app, const SeasonArguments& a, const Common& common);

}  // namespace tipline::cli
