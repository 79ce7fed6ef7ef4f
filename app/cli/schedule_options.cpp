#include "cli/schedule_options.h"

#include <utility>

namespace tipline::cli {
namespace {

void AddMakeAndShow(CLI::App& group, ScheduleArguments& a, Common& common) {
  auto* make = group.add_subcommand("make", "the computer makes the season's schedule");
  make->add_option("--games", a.Games, "games of a team, an even number from 10 to 98")->required();
  make->add_option("--division", a.Divisional, "games against each team of the division, even, 0 to 20")
      ->required();
  make->add_option("--max-other", a.MaxOther, "preferred most games against each other team")
      ->check(CLI::Range(0, 98))
      ->capture_default_str();
  make->add_option("--start", a.Start, "first date as MM-DD (default: 10-30)");
  make->add_flag("--yes", a.Yes, "without asking");
  auto* show = group.add_subcommand("show", "the games of the season");
  show->add_option("--date", a.Date, "of one date, MM-DD");
  show->add_option("--team", a.Team, "of one team");
  show->add_flag("--csv", common.Csv, "as comma-separated text");
  auto* print = group.add_subcommand("print", "the games as plain text for a printer");
  print->add_option("--date", a.Date, "of one date, MM-DD");
  auto* summary = group.add_subcommand("summary", "games of each team, at home and away");
  summary->add_flag("--csv", common.Csv, "as comma-separated text");
}

void AddEditing(CLI::App& group, ScheduleArguments& a) {
  const std::pair<const char*, const char*> edits[] = {{"add", "put a game on the schedule"},
                                                       {"delete", "take a game off the schedule"},
                                                       {"neutral", "neutral court or home court"},
                                                       {"move", "another date for a game"},
                                                       {"coach", "human instead of computer, or back"}};
  for (const auto& [name, help] : edits) {
    auto* edit = group.add_subcommand(name, help);
    edit->add_option("date", a.Date, "MM-DD")->required();
    edit->add_option("visitor", a.Visitor, "team, or TBD where it is not decided yet")->required();
    edit->add_option("hometeam", a.Home, "the team at home")->required();
    if (std::string(name) == "move") edit->add_option("to", a.To, "new date, MM-DD")->required();
    if (std::string(name) == "coach") {
      edit->add_option("side", a.Coach, "visitor or home")
          ->required()
          ->check(CLI::IsMember({"visitor", "home"}));
    }
    edit->add_flag("--yes", a.Yes, "without asking");
  }
  auto* coaches = group.add_subcommand("coaches", "who coaches both sides of all games");
  coaches->add_option("who", a.Coach, "human or computer")
      ->required()
      ->check(CLI::IsMember({"human", "computer"}));
  coaches->add_flag("--yes", a.Yes, "without asking");
  auto* clear = group.add_subcommand("clear", "delete all games");
  clear->add_flag("--yes", a.Yes, "without asking");
}

void AddFiles(CLI::App& group, ScheduleArguments& a) {
  auto* import = group.add_subcommand("import", "the schedule out of month,day,visitor,home lines");
  import->add_option("file", a.File, "text with comma-separated values")->required();
  import->add_flag("--yes", a.Yes, "without asking");
  auto* output = group.add_subcommand("export", "the schedule as month,day,visitor,home lines");
  output->add_option("file", a.File, "text to write")->required();
  auto* files = group.add_subcommand("files", "the league's schedules; a named one becomes the current one");
  files->add_option("file", a.File, "schedule to use from now on");
  auto* fresh = group.add_subcommand("new", "an empty schedule of this name");
  fresh->add_option("name", a.Name, "its name")->required();
  auto* rename = group.add_subcommand("rename", "another name for the current schedule");
  rename->add_option("name", a.Name, "its new name")->required();
}

}  // namespace

void AddSchedule(CLI::App& app, ScheduleArguments& a, Common& common) {
  auto* group = app.add_subcommand("schedule", "the schedule of the season");
  group->require_subcommand(1);
  AddMakeAndShow(*group, a, common);
  AddEditing(*group, a);
  AddFiles(*group, a);
}

int RunSchedule(const CLI::App& app, const ScheduleArguments& a, const Common& common) {
  const std::string what = app.get_subcommand("schedule")->get_subcommands().front()->get_name();
  if (what == "make") return MakeSchedule(a, common);
  if (what == "show") return ShowSchedule(a, common);
  if (what == "print") return PrintSchedule(a, common);
  if (what == "coaches") return SetCoaches(a, common);
  if (what == "summary") return SummarizeSchedule(common);
  if (what == "import") return ImportSchedule(a, common);
  if (what == "export") return ExportSchedule(a, common);
  if (what == "clear") return ClearSchedule(common);
  if (what == "files") return ListSchedules(a, common);
  if (what == "new" || what == "rename") return NameSchedule(a, what == "rename", common);
  return EditSchedule(what, a, common);
}

}  // namespace tipline::cli
