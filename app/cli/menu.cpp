// The text main menu, and what ./run does without arguments.
#include <iostream>
#include <vector>

#include "cli/commands.h"
#include "cli/terminal.h"
#include "league/data_tree.h"
#include "league/league.h"
#include "league/program.h"

namespace tipline::cli {
namespace {

constexpr const char* kFirstLeague = "Tipline League";

void PlayFromMenu(const Common& common) {
  const auto visitor = AskLine("Visitor: ");
  const auto home = visitor ? AskLine("Home: ") : std::nullopt;
  const auto coach = home ? AskLine("You coach (none, visitor, home, both) [none]: ") : std::nullopt;
  if (!coach) return;
  PlayRequest request{*visitor, *home};
  if (*coach == "visitor" || *coach == "home" || *coach == "both") request.Coach = *coach;
  PlayExhibition(request, common);
}

void RosterFromMenu(const Common& common) {
  const auto team = AskLine("Team: ");
  const auto view = team ? AskLine("stats, real or ratings [ratings]: ") : std::nullopt;
  if (!view) return;
  ShowRoster(*team, *view == "stats" || *view == "real" ? *view : "ratings", common);
}

void NewFromMenu(Common& common) {
  const auto name = AskLine("Name of the league: ");
  const auto preset = name ? AskLine("pro, college, women or historic [pro]: ") : std::nullopt;
  if (!preset) return;
  LeagueRequest request;
  request.Name = *name;
  request.Preset = preset->empty() ? "pro" : *preset;
  if (NewLeague(request, common) == 0) common.League = *name;
}

void Menu(Common common) {
  for (;;) {
    const auto folder = FindLeague(common.League);
    std::cout << "\nTipline - " << folder.filename().string() << "\n\n"
              << "  1  Teams\n  2  Roster\n  3  Play a game\n  4  New league\n  5  Open another league\n  q  "
                 "Quit\n\n";
    const auto choice = AskLine("> ");
    if (!choice || *choice == "q" || *choice == "Q") return;
    if (*choice == "1") {
      ShowTeams(common);
    } else if (*choice == "2") {
      RosterFromMenu(common);
    } else if (*choice == "3") {
      PlayFromMenu(common);
    } else if (*choice == "4") {
      NewFromMenu(common);
    } else if (*choice == "5") {
      ListLeagues(common);
      const auto name = AskLine("\nName: ");
      if (name && OpenLeagueNamed(*name, common) == 0) common.League.clear();
    } else if (!choice->empty()) {
      std::cout << "Please type 1 to 5, or q.\n";
    }
  }
}

/// The first two active teams of the league, by number.
std::vector<std::string> FirstTwoTeams() {
  std::vector<std::string> teams;
  for (int t = 1; t <= kTeams && teams.size() < 2; ++t) {
    if (league.team[t].TeamActive == 1) teams.push_back(std::to_string(t));
  }
  return teams;
}

}  // namespace

int Start(const Common& common) {
  if (common.League.empty() && FindLeague("").empty()) {
    LeagueRequest request;
    request.Name = kFirstLeague;
    if (NewLeague(request, common) != 0) return 1;
  }
  if (Interactive()) {
    Menu(common);
    return 0;
  }
  if (!OpenTheLeague(common)) return 1;
  const auto teams = FirstTwoTeams();
  if (teams.size() < 2) return Refuse("this league has fewer than two teams");
  return PlayExhibition({teams[0], teams[1]}, common);
}

}  // namespace tipline::cli
