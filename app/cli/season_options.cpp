#include "cli/season_options.h"

#include <iostream>

#include "season/autoplay_screen.h"

namespace tipline::cli {
namespace {

constexpr int kWrongUsage = 2;

void AddPlay(CLI::App& group, SeasonArguments& a) {
  auto* play = group.add_subcommand("play", "plays games of the schedule, in their order");
  auto* scope = play->add_option_group("scope");
  scope->add_flag("--all", a.All, "all games that are left");
  scope->add_flag("--day", a.Day, "the games of the next date");
  scope->add_option("--date", a.Date, "the games of one date, MM-DD");
  scope->add_option("--through", a.Through, "all games up to a date, MM-DD");
  scope->add_option("--month", a.Month, "the games of one month, by name or number");
  scope->require_option(0, 1);
  play->add_option("--team", a.Team, "of these the games of one team");
  play->add_option("--games", a.Games, "of these no more than so many")->check(CLI::Range(1, 20000));
  play->add_option("--humans", a.Humans,
                   "a game with a human coach: coach (you, here), computer, or stop before it; without it "
                   "coach at a terminal and stop elsewhere")
      ->check(CLI::IsMember({"coach", "computer", "stop"}));
  play->add_flag("--live", a.Live, "tell the games as they go, with the pauses that the league's rules set");
}

}  // namespace

void AddSeason(CLI::App& app, SeasonArguments& a, Common& common) {
  auto* group = app.add_subcommand("season", "the season: its games played, replayed, how far it is");
  group->require_subcommand(1);
  AddPlay(*group, a);
  auto* replays = group->add_subcommand(
      "replays", "the league begins anew and plays its season so many times; averages in BulkReplay.csv");
  replays->add_option("count", a.Replays, "seasons, 1 to 99")->required()->check(CLI::Range(1, kMostReplays));
  replays->add_option("--jobs", a.Jobs, "seasons side by side (default: one for each processor)")
      ->check(CLI::Range(1, 64));
  replays->add_flag("--yes", a.Yes, "without asking");
  auto* status = group->add_subcommand("status", "games played and to come");
  status->add_option("--next", a.Next, "games to list")->check(CLI::Range(0, 20000))->capture_default_str();
  status->add_flag("--csv", common.Csv, "the games to come as comma-separated text");
}

int RunSeason(const CLI::App& app, const SeasonArguments& a, const Common& common) {
  const std::string what = app.get_subcommand("season")->get_subcommands().front()->get_name();
  if (what == "status") return ShowSeasonStatus(a, common);
  if (what == "replays") return ReplaySeason(a, common);
  if (a.ChoosesGames()) return PlaySeason(a, common);
  std::cerr << "tipline: say which games: --all, --day, --date, --through, --month, --team or --games\n";
  return kWrongUsage;
}

}  // namespace tipline::cli
