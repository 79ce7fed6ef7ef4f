#pragma once
// What happened in the season's games: highlights, injuries, the score ticker.
#include <CLI/CLI.hpp>
#include <string>

#include "cli/commands.h"

namespace tipline::cli {

struct NewsArguments {
  std::string Team;  ///< number, abbreviation, city or nickname; "" all
  int Last = 0;      ///< so many of the newest, 0 all
  bool Now = false;  ///< of the injuries only those who are out
};

/// Adds `highlights`, `injuries` and `ticker`; RunNews carries out the one that was given, and is asked by
/// IsNews whether one was.
void AddNews(CLI::App& app, NewsArguments& a, Common& common);
bool IsNews(const CLI::App& app);
int RunNews(const CLI::App& app, const NewsArguments& a, const Common& common);

}  // namespace tipline::cli
