// The plan of a coach: sliders and coverage, set by hand or by the computer, taken in and given out.
#include <algorithm>
#include <iostream>
#include <optional>
#include <span>

#include "cli/columns.h"
#include "cli/commands.h"
#include "cli/team_work.h"
#include "cli/terminal.h"
#include "coach/plan_screen.h"
#include "coach/strategy_screens.h"
#include "league/files.h"
#include "league/player_values.h"

namespace tipline::cli {
namespace {

constexpr std::string_view kSliderWords[] = {"least", "little", "neutral", "much", "most"};

/// "Drive" or, where a caption stands in two frames, "Off Crash Boards".
std::string LabelOf(int slider) {
  const SliderCaption& c = CaptionOf(slider);
  for (int other = 0; other < kSliders; ++other) {
    if (other != slider && CaptionOf(other).caption == c.caption) {
      return std::string(c.frame.substr(0, 4)) + std::string(c.caption);
    }
  }
  return std::string(c.caption);
}

constexpr std::string_view kPace = "Overall Pace";
constexpr std::string_view kMatchups = "Computer Set Matchups";

/// Sets what a caption names; false for a value that it can't have. Nothing when there is no such caption.
std::optional<bool> SetCaption(PlanScreen& screen, const std::string& caption, int value) {
  for (int slider = 0; slider < kSliders; ++slider) {
    if (SameText(LabelOf(slider), caption)) return screen.SetSlider(slider, value);
  }
  if (SameText(kPace, caption)) return screen.SetOverallPace(value);
  if (!SameText(kMatchups, caption)) return std::nullopt;
  if (value == 0 || value == 1) screen.ComputerMatchupsCheck(value == 1);
  return value == 0 || value == 1;
}

/// Carries out CAPTION=VALUE; false, told, when it says nothing that can be set.
bool SetOne(PlanScreen& screen, const std::string& setting) {
  const auto equals = setting.find('=');
  const std::string caption = setting.substr(0, equals);
  const std::string value = equals == std::string::npos ? "" : setting.substr(equals + 1);
  const auto set = SetCaption(screen, caption, value.size() == 1 ? value[0] - '0' : -1);
  if (set.value_or(false)) return true;
  if (set) {
    Refuse("\"" + setting + "\": a setting goes from 0 (least) to 4 (most), " + std::string(kMatchups) +
           " is 0 or 1");
    return false;
  }
  std::string message =
      "no setting \"" + caption + "\"; there are: " + std::string(kPace) + ", " + std::string(kMatchups);
  for (int slider = 0; slider < kSliders; ++slider) message += ", " + LabelOf(slider);
  Refuse(message);
  return false;
}

/// The plan against an opponent; where there is none, the first free one is his when something is to be
/// written, and the general plan is shown else. False, told, when all ten are taken.
bool OpenPlan(PlanScreen& screen, const Roster& opponent, bool writes) {
  screen.plan = PlanAgainst(screen.own.coach, opponent.TeamNo);
  screen.opponent = &opponent;
  if (screen.plan != 0 || !writes) return true;
  screen.plan = FirstFreePlan(screen.own.coach);
  if (screen.plan != 0) return screen.ChooseOpponent(opponent.TeamNo);
  Refuse("all ten plans are taken");
  return false;
}

/// A setting of 0 to 4, for people with a bar and a word.
void PrintSetting(Columns& table, std::string_view frame, std::string_view caption, int value,
                  std::span<const std::string_view> words, const Common& common) {
  value = Clamp(value, 0, static_cast<int>(words.size()) - 1);
  std::vector<std::string> line{std::string(frame), std::string(caption), Str(value)};
  if (!common.Csv) {
    std::string bar(words.size(), '.');
    bar[static_cast<std::size_t>(value)] = '#';
    line.push_back(bar);
    line.emplace_back(words[static_cast<std::size_t>(value)]);
  }
  table.Row(std::move(line));
}

void PrintSliders(const PlanScreen& screen, const Common& common) {
  static constexpr std::string_view kNoYes[] = {"No", "Yes"};
  Columns table(common.Csv ? std::vector<std::string>{"Frame", "Caption", "Value"}
                           : std::vector<std::string>{"<Frame", "<Caption", "Value", "<", "<"});
  for (const std::string_view frame : {"Off", "Def Coverages", "Def Adjustments"}) {
    for (int slider = 0; slider < kSliders; ++slider) {
      const SliderCaption& c = CaptionOf(slider);
      if (!c.frame.starts_with(frame)) continue;
      PrintSetting(table, c.frame, c.caption, screen.Slider(slider), kSliderWords, common);
    }
    if (!common.Csv) table.Rule();
  }
  const CoachRecord& coach = screen.own.coach;
  PrintSetting(table, "All plans", kPace, coach.OverallPace, kOverallPaceCaptions, common);
  PrintSetting(table, "All plans", kMatchups, coach.ComputerMatchups, kNoYes, common);
  table.Print(std::cout, common.Csv);
}

std::string CoverageWord(int value) {
  return std::string(kCoverageCaptions[static_cast<std::size_t>(value >= 1 && value <= 6 ? value - 1 : 2)]);
}

void PrintCoverage(const PlanScreen& screen, const Common& common) {
  std::vector<std::string> headings{"<Player", "<Pos"};
  for (const auto column : kPlanColumns) headings.push_back("<" + std::string(column));
  Columns table(headings);
  const CoachRecord& c = screen.own.coach;
  const int plan = screen.plan;
  const auto yes = [](int flag) { return std::string(flag == 1 ? "Yes" : ""); };
  for (const int slot : MenOf(*screen.opponent)) {
    const PlayerRecord& p = screen.opponent->player[slot];
    const int position = Clamp<int>(p.PrimaryPosition, 1, 5);
    table.Row({InitialName(p), league.PositionLabel[position], CoverageWord(c.DefendInside[plan][slot]),
               CoverageWord(c.DefendOutside[plan][slot]), CoverageWord(c.DefendThree[plan][slot]),
               yes(c.DoubleInside[plan][slot]), yes(c.DoubleOutside[plan][slot]),
               yes(c.DoubleThree[plan][slot]),
               std::string(kUsageCaptions[std::min<std::size_t>(c.DefendUsage[plan][slot], 3)])});
  }
  table.Print(std::cout, common.Csv);
}

void PrintPlan(const PlanScreen& screen, const Common& common) {
  Heading(screen.own, screen.Title(), common);
  if (!(common.Csv && screen.OpponentLoaded())) PrintSliders(screen, common);
  if (!screen.OpponentLoaded()) return;
  if (!common.Csv) std::cout << '\n';
  PrintCoverage(screen, common);
}

}  // namespace

int ShowPlan(const CoachRequest& request, const Common& common) {
  Roster roster, opponent;
  if (!OpenTheLeague(common) || !TakeTeam(request.team, roster)) return 1;
  PlanScreen screen(roster);
  if (request.importPlan && !screen.ImportPlan()) return 1;
  const bool plans = request.make || request.clearDefense || !request.settings.empty();
  if (!request.opponent.empty()) {
    if (!TakeTeam(request.opponent, opponent)) return 1;
    if (opponent.TeamNo == roster.TeamNo) return Refuse("a team can't play itself");
    if (!OpenPlan(screen, opponent, plans)) return 1;
  }
  if (request.make) screen.ComputerGamePlan();
  if (request.clearDefense) screen.ClearPlayerDefense();
  for (const std::string& setting : request.settings) {
    if (!SetOne(screen, setting)) return 1;
  }
  if (request.exportPlan && !screen.ExportPlan()) return 1;
  if (!request.exportPlan && (plans || request.importPlan) && !WriteRoster(roster)) return 1;
  PrintPlan(screen, common);
  if (request.exportPlan && !common.Csv) {
    std::cout << "\nThe plan is in " << CoachExportFile(roster.TeamNo).string() << ".\n";
  }
  return 0;
}

}  // namespace tipline::cli
