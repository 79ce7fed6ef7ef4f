// Depth charts, rotations and plans of a team, shown and made.
#include <algorithm>
#include <iostream>
#include <optional>
#include <span>

#include "cli/columns.h"
#include "cli/commands.h"
#include "cli/terminal.h"
#include "coach/depth_chart.h"
#include "coach/plan_screen.h"
#include "coach/rotation_grid.h"
#include "coach/strategy_screens.h"
#include "coach/sub_screens.h"
#include "league/files.h"

namespace tipline::cli {
namespace {

std::string NameOf(const PlayerRecord& p) {
  return p.FirstName.Empty() ? p.LastName.Str() : p.FirstName.Str().substr(0, 1) + "." + p.LastName.Str();
}

/// Opens league and team; false, told, when that can't be done.
bool TakeTeam(const std::string& text, Roster& roster) {
  const int teamNo = FindTeam(text);
  if (teamNo == 0) return false;
  if (!ReadRoster(teamNo, roster)) {
    Refuse("the team can't be read: " + TeamsFile().string());
    return false;
  }
  return true;
}

std::vector<int> MenOf(const Roster& roster) {
  std::vector<int> slots;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(roster, slot)) slots.push_back(slot);
  }
  return slots;
}

void Heading(const Roster& roster, const std::string& what, const Common& common) {
  if (!common.Csv) std::cout << TeamName(roster.team) << " " << roster.team.Year << ": " << what << "\n\n";
}

// Depth -------------------------------------------------------------------------------------------------

constexpr std::string_view kPlaces[] = {"1st", "2nd", "3rd", "4th", "5th", "6th"};

std::vector<std::string> LabelsOfPositions(const char* first) {
  std::vector<std::string> headings{first};
  for (int position = 1; position <= 5; ++position) headings.push_back("<" + league.PositionLabel[position]);
  return headings;
}

/// The line of the first man whom `stands` finds at each position.
template <class Stands>
std::vector<std::string> LineOf(const Roster& roster, std::string_view label, Stands stands) {
  std::vector<std::string> line{std::string(label)};
  for (int position = 1; position <= 5; ++position) {
    const auto men = MenOf(roster);
    const auto man =
        std::find_if(men.begin(), men.end(), [&](int slot) { return stands(roster.player[slot], position); });
    line.push_back(man == men.end() ? "-" : NameOf(roster.player[*man]));
  }
  return line;
}

void PrintDepth(const Roster& roster, const Common& common) {
  Columns table(LabelsOfPositions("<Lineup"));
  for (int rank = 6; rank >= 1; --rank) {
    table.Row(LineOf(roster, kPlaces[6 - rank],
                     [rank](const PlayerRecord& p, int position) { return p.DepthRank[position] == rank; }));
  }
  if (!common.Csv) table.Rule();
  for (int index = 1; index < static_cast<int>(kQuickLineups.size()); ++index) {
    table.Row(
        LineOf(roster, kQuickLineups[static_cast<std::size_t>(index)],
               [index](const PlayerRecord& p, int position) { return p.RotationOrder[index] == position; }));
  }
  table.Print(std::cout, common.Csv);
}

// Rotation ----------------------------------------------------------------------------------------------

int MinutesOf(const PlayerRecord& p, int period) {
  const auto& row = p.RotationGrid[period];
  const int minutes = std::min<int>(league.rules.MinuteList, 20);
  return static_cast<int>(
      std::count_if(row.begin(), row.begin() + minutes, [](u8 cell) { return cell != 0; }));
}

int RegulationMinutes(const PlayerRecord& p) {
  int sum = 0;
  for (int period = 1; period <= std::min<int>(league.rules.PeriodList, 4); ++period) {
    sum += MinutesOf(p, period);
  }
  return sum;
}

/// A character for each minute: the position he stands at, or a dot.
std::string Picture(const PlayerRecord& p, int period, int minutes) {
  std::string text;
  for (int minute = 1; minute <= minutes; ++minute) {
    const int position = p.RotationGrid[period][minute];
    text += position >= 1 && position <= 5 ? static_cast<char>('0' + position) : '.';
  }
  return text;
}

void PrintRotation(const Roster& roster, const Common& common) {
  std::vector<int> periods;
  for (int period = 1; period <= std::min<int>(league.rules.PeriodList, 4); ++period)
    periods.push_back(period);
  periods.push_back(5);
  std::vector<int> men = MenOf(roster);
  std::stable_sort(men.begin(), men.end(), [&](int a, int b) {
    return RegulationMinutes(roster.player[a]) > RegulationMinutes(roster.player[b]);
  });
  std::vector<std::string> headings{"<Player", "<Period", "<Minute by minute", "Min", "Game", "Target"};
  Columns table(headings);
  for (const int slot : men) {
    const PlayerRecord& p = roster.player[slot];
    if (RegulationMinutes(p) + MinutesOf(p, 5) == 0) continue;
    for (const int period : periods) {
      const bool first = period == 1;
      const int minutes =
          std::min<int>(period == 5 ? league.rules.OverTimeList : league.rules.MinuteList, 20);
      const bool name = first || common.Csv;
      table.Row({name ? NameOf(p) : "", period == 5 ? "OT" : Str(period), Picture(p, period, minutes),
                 Str(static_cast<int>(minutes - std::ranges::count(Picture(p, period, minutes), '.'))),
                 name ? Str(RegulationMinutes(p)) : "", name ? Str(p.TargetMinutes) : ""});
    }
    if (!common.Csv) table.Rule();
  }
  table.Print(std::cout, common.Csv);
}

int Holes(const Roster& roster) {
  int open = league.rules.PeriodList * league.rules.MinuteList * 5;
  for (const int slot : MenOf(roster)) open -= RegulationMinutes(roster.player[slot]);
  return open;
}

// Plan --------------------------------------------------------------------------------------------------

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
  for (int plan = 1; plan <= 10; ++plan) {
    if (screen.own.coach.PlanOpponent[plan] != 0) continue;
    screen.plan = plan;
    return screen.ChooseOpponent(opponent.TeamNo);
  }
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
    table.Row({NameOf(p), league.PositionLabel[position], CoverageWord(c.DefendInside[plan][slot]),
               CoverageWord(c.DefendOutside[plan][slot]), CoverageWord(c.DefendThree[plan][slot]),
               yes(c.DoubleInside[plan][slot]), yes(c.DoubleOutside[plan][slot]),
               yes(c.DoubleThree[plan][slot]),
               std::string(kUsageCaptions[std::min<std::size_t>(c.DefendUsage[plan][slot], 3)])});
  }
  table.Print(std::cout, common.Csv);
}

}  // namespace

int ShowDepth(const CoachRequest& request, const Common& common) {
  Roster roster;
  if (!OpenTheLeague(common) || !TakeTeam(request.team, roster)) return 1;
  if (request.make) {
    SetDefaultDepthCharts(roster);
    SetDefaultSpecialLineups(roster);
    if (!WriteRoster(roster)) return 1;
  }
  Heading(roster, "depth chart and special lineups", common);
  PrintDepth(roster, common);
  return 0;
}

int ShowRotation(const CoachRequest& request, const Common& common) {
  Roster roster;
  if (!OpenTheLeague(common) || !TakeTeam(request.team, roster)) return 1;
  if (request.make) {
    if (!platform::dialogs().Ask("Have the computer set a rotation grid?")) {
      return Refuse("nothing was changed; --yes answers the question");
    }
    SetComputerRotationGrid(roster);
  }
  if (request.clear) ClearRotationGrid(roster);
  if ((request.make || request.clear) && !WriteRoster(roster)) return 1;
  Heading(roster, "rotation by minutes", common);
  PrintRotation(roster, common);
  if (!common.Csv) std::cout << "\nMinutes that nobody stands for: " << Holes(roster) << "\n";
  return 0;
}

int ShowPlan(const CoachRequest& request, const Common& common) {
  Roster roster, opponent;
  if (!OpenTheLeague(common) || !TakeTeam(request.team, roster)) return 1;
  PlanScreen screen(roster);
  const bool writes = request.make || !request.settings.empty();
  if (!request.opponent.empty()) {
    if (!TakeTeam(request.opponent, opponent)) return 1;
    if (opponent.TeamNo == roster.TeamNo) return Refuse("a team can't play itself");
    if (!OpenPlan(screen, opponent, writes)) return 1;
  }
  if (request.make) screen.ComputerGamePlan();
  for (const std::string& setting : request.settings) {
    if (!SetOne(screen, setting)) return 1;
  }
  if (writes && !WriteRoster(roster)) return 1;
  Heading(roster, screen.Title(), common);
  if (!(common.Csv && screen.OpponentLoaded())) PrintSliders(screen, common);
  if (!screen.OpponentLoaded()) return 0;
  if (!common.Csv) std::cout << '\n';
  PrintCoverage(screen, common);
  return 0;
}

}  // namespace tipline::cli
