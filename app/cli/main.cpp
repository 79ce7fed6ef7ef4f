// The command line: options and commands, each with the program's exit codes.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <chrono>
#include <iostream>

#include "base/random.h"
#include "cli/book_commands.h"
#include "cli/leader_options.h"
#include "cli/news_commands.h"
#include "cli/phrase_commands.h"
#include "cli/schedule_options.h"
#include "cli/season_options.h"
#include "cli/standings_command.h"
#include "cli/stop_signals.h"
#include "cli/terminal.h"
#include "league/dump.h"
#include "league/program.h"
#include "league/setup.h"
#include "league/startup.h"
#include "platform/folders.h"

namespace {

using namespace tipline;
using cli::Common;
using cli::PlayRequest;

constexpr int kWrongUsage = 2;

struct Arguments {
  Common common;
  std::string home;
  std::uint64_t seed = 0;
  bool yes = false, force = false;
  LeagueRequest request;
  PlayRequest play;
  std::string team, view = "ratings", file, name;
  int record = 1;
  bool all = false, realLifeToo = false;
  cli::CoachRequest coach;
  cli::DailyRequest daily;
  cli::ScheduleArguments schedule;
  cli::SeasonArguments season;
  cli::PhraseArguments phrases;
  cli::NewsArguments news;
  cli::BoxRequest box;
  cli::LeaderArguments leaders;
  bool speak = false, recount = false;
  cli::StandingsArguments standings;
};

void AddBooks(CLI::App& app, Arguments& a) {
  const auto add = [&](const char* name, const char* help) {
    auto* command = app.add_subcommand(name, help);
    command->add_option("game", a.box.Game, "its number in the scores, or \"last\"")->required();
    return command;
  };
  auto* box = add("box", "the box of a game that was played");
  box->add_flag("--mail", a.box.Mail, "by mail to the members of the address book who get game reports");
  box->add_flag("--statistician", a.box.Statistician, "the game file by mail to the league's statisticians");
  add("log", "its plays, and every basket")
      ->add_flag("--csv", a.common.Csv, "the plays as comma-separated text");
}

/// Options that every command takes, in front of it or behind it.
void AddCommon(CLI::App& app, Arguments& a) {
  app.add_option("--home", a.home, "data home (default: TIPLINE_HOME, else the user's data folder)");
  app.add_option("--league", a.common.League, "league to work on (default: the one made or opened last)");
  app.add_option("--seed", a.seed, "seed of the random numbers: the run then repeats exactly")
      ->check(CLI::NonNegativeNumber);
  app.add_flag("--quiet", a.common.Quiet, "print results only");
  app.add_flag("--force", a.force, "go on although another copy of the program seems to have the data open");
  app.fallthrough();
  app.require_subcommand(0, 1);
}

void AddLeagueChoice(CLI::App& group, Arguments& a) {
  auto* list = group.add_subcommand("list", "recent leagues and those of the data home");
  list->add_flag("--csv", a.common.Csv, "as comma-separated text");
  auto* open = group.add_subcommand("open", "make a league the current one");
  open->add_option("name", a.name, "its name, or its folder as the list tells it")->required();
  group.add_subcommand("info", "the league, its season and its rules");
  auto* move = group.add_subcommand("switch", "to the playoffs of the league, or back");
  move->add_flag("--yes", a.yes, "without asking");
  auto* drive = group.add_subcommand("drive", "the drives that leagues can lie on; moves to one");
  drive->add_option("drive", a.name, "such as D:, a folder drive-d of the data home");
}

void AddLeague(CLI::App& app, Arguments& a) {
  auto* group = app.add_subcommand("league", "leagues");
  group->require_subcommand(1);
  auto* make = group->add_subcommand("new", "make a league of made-up teams and players");
  make->add_option("name", a.request.Name, "name of the league")->required();
  make->add_option("--preset", a.request.Preset, "pro, college, women or historic")->capture_default_str();
  // A number that was given but says nothing is a refused one, not the preset's.
  const auto number = [make](const char* name, int& value, const char* help) {
    make->add_option_function<int>(
        name, [&value](int given) { value = given == 0 ? -1 : given; }, help);
  };
  number("--year", a.request.Year, "season year, 1946 to 2050");
  number("--divisions", a.request.Divisions, "number of divisions");
  number("--teams", a.request.Teams, "number of teams");
  number("--games", a.request.Games, "games of a season, an even number from 10 to 98");
  AddLeagueChoice(*group, a);
  auto* reset = group->add_subcommand("reset", "the league before its first game: results and scores go");
  reset->add_flag("--real", a.realLifeToo, "the players' real season lines go as well");
  reset->add_flag("--yes", a.yes, "without asking");
  auto* clean = group->add_subcommand("clean", "rows of players who stand on no roster, or twice, go");
  clean->add_flag("--yes", a.yes, "without asking");
}

void AddLists(CLI::App& app, Arguments& a) {
  auto* teams = app.add_subcommand("teams", "the teams of the league");
  teams->add_flag("--csv", a.common.Csv, "as comma-separated text");
  auto* roster = app.add_subcommand("roster", "the players of a team");
  roster->add_option("team", a.team, "number, abbreviation, city or nickname")->required();
  roster->add_option("--view", a.view, "stats, real or ratings")
      ->check(CLI::IsMember({"stats", "real", "ratings"}))
      ->capture_default_str();
  roster->add_flag("--csv", a.common.Csv, "as comma-separated text");
  auto* doctor = app.add_subcommand("doctor", "what is wrong with the league's files; changes nothing");
  doctor->add_flag("--recount", a.recount, "count the season anew from the boxes of its games");
  auto* dump = app.add_subcommand("dump", "a record of a league file, field by field");
  dump->add_option("file", a.file, FormatNames())->required();
  dump->add_option("record", a.record, "record number")->capture_default_str();
}

void AddPlay(CLI::App& app, Arguments& a) {
  auto* play = app.add_subcommand("play", "an exhibition game between two teams");
  play->add_option("visitor", a.play.Visitor, "number, abbreviation, city or nickname")->required();
  play->add_option("hometeam", a.play.Home, "the team at home")->required();
  play->add_option("--coach", a.play.Coach, "side that you coach: none, visitor, home or both")
      ->check(CLI::IsMember({"none", "visitor", "home", "both"}))
      ->capture_default_str();
  play->add_option(
          "--calls", a.play.Calls,
          "plays that you are asked for: none, default (more when it counts) or all; without it your "
          "preferences, at first default")
      ->check(CLI::IsMember({"none", "default", "all"}));
  play->add_option("--date", a.play.Date, "date of the game, MM-DD (default: 10-01)");
  play->add_flag("--neutral", a.play.Neutral, "on a neutral court");
  play->add_option("--from", a.play.From, "the visitor comes from this league; such a game is not kept");
  play->add_option(
      "--scenario", a.play.Scenario,
      "where the game begins: period, clock, points of visitor and home, and whose ball (visitor, "
      "home or jump), such as \"P4 1:30 100-98 home\"");
  play->add_option("--until", a.play.Until,
                   "both sides play alone up to this mark, such as \"end 2\" or \"4th 2:00\"");
  play->add_flag("--fast", a.play.Fast, "no pauses between the plays at a terminal");
  play->add_flag("--brief", a.play.Brief, "commentary in its short style");
  play->add_flag("--log", a.play.Log, "no commentary: one line a play for a coach, else the box alone");
  play->add_option("--film", a.play.Film, "write the commentary, play by play, to this film file");
  play->add_flag("--speak", a.play.Speak, "speak the commentary, with what your preferences say of it");
  auto* film = app.add_subcommand("film", "look at the film of a game");
  film->add_option("file", a.file,
                   "a film file, usually named .flm, or its name in the league; without it the films of the "
                   "league are listed");
  film->add_flag("--speak", a.speak, "speak it");
  auto* ratings = app.add_subcommand("ratings", "work the players' ratings out anew from their real seasons");
  ratings->add_option("team", a.team, "number, abbreviation, city or nickname");
  ratings->add_flag("--all", a.all, "every team of the league");
  ratings->add_flag("--yes", a.yes, "without asking");
  app.add_subcommand("start", "the menu; without a terminal one exhibition game");
}

void AddPlan(CLI::App& app, Arguments& a) {
  auto* plan = app.add_subcommand("plan", "a coach's plan: sliders and coverage");
  plan->add_option("team", a.coach.team, "number, abbreviation, city or nickname")->required();
  plan->add_flag("--make", a.coach.make, "have the computer set the plan");
  plan->add_flag("--csv", a.common.Csv, "as comma-separated text");
  plan->add_flag("--import", a.coach.importPlan, "take the team's exported plan over first");
  plan->add_flag("--export", a.coach.exportPlan,
                 "save, and write the plan with the rotation as \"<City> Coach.coa\" to the league folder");
  plan->add_flag("--clear-defense", a.coach.clearDefense, "usual coverage of every opponent, nobody doubled");
  plan->add_option("--opponent", a.coach.opponent, "the plan against this team; made where there is none");
  plan->add_option("--set", a.coach.settings,
                   "CAPTION=VALUE, 0 least to 4 most; \"Off Crash Boards\" and \"Def Crash Boards\" tell "
                   "the two apart");
}

void AddCoach(CLI::App& app, Arguments& a) {
  const auto add = [&](const char* name, const char* help, const char* make) {
    auto* command = app.add_subcommand(name, help);
    auto* team = command->add_option("team", a.coach.team, "number, abbreviation, city or nickname");
    auto* makes = command->add_flag("--make", a.coach.make, make);
    command->add_flag("--all", a.coach.all, "every team of the league, without asking")
        ->needs(makes)
        ->excludes(team);
    command->add_flag("--csv", a.common.Csv, "as comma-separated text");
    return command;
  };
  add("depth", "who plays: depth chart and special lineups", "have the computer set both");
  auto* rotation = add("rotation", "who stands where in each minute", "have the computer set the grid");
  rotation->add_flag("--clear", a.coach.clear, "empty the grid")->excludes("--make");
  rotation->add_flag("--yes", a.yes, "without asking");
  AddPlan(app, a);
  auto* daily = app.add_subcommand("daily", "who sits out on which game day");
  daily->add_option("team", a.daily.team, "number, abbreviation, city or nickname")->required();
  daily->add_option("--toggle", a.daily.toggle, "PLAYER MM-DD: out for that game, or back in")
      ->allow_extra_args(false);
  daily->add_flag("--activate-all", a.daily.activateAll, "everybody plays, on every date");
  daily->add_flag("--inactivate-all", a.daily.inactivateAll, "nobody plays on any game date")
      ->excludes("--activate-all");
  daily->add_option("--use", a.daily.use, "on or off: games go by this list")
      ->check(CLI::IsMember({"on", "off"}));
  daily->add_flag("--csv", a.common.Csv, "as comma-separated text");
  daily->add_flag("--yes", a.yes, "without asking");
}

void AddStandings(CLI::App& app, Arguments& a) {
  auto* standings = app.add_subcommand("standings", "who leads each division or conference");
  auto* date = standings->add_option("--date", a.standings.Date, "as they were at the end of MM-DD");
  standings->add_option("--month", a.standings.Month, "of the games of one month, 1 to 12")->excludes(date);
  standings->add_option("--by", a.standings.By, "from now on ordered by the total or the conference record")
      ->check(CLI::IsMember({"total", "conference"}));
  standings->add_flag("--csv", a.common.Csv, "as comma-separated text");
  auto* power = app.add_subcommand("power", "the power rankings: margins, opponents and home court weighed");
  power->add_flag("--csv", a.common.Csv, "as comma-separated text");
}

/// One team is named, or all are meant; false, told, otherwise.
bool OneOrAll(const std::string& team, bool all) {
  if (team.empty() == all) return true;
  std::cerr << "tipline: name one team, or say --all\n";
  return false;
}

int RunLeague(CLI::App& group, Arguments& a) {
  if (group.got_subcommand("reset")) return cli::StartSeasonAnew(a.realLifeToo, a.common);
  if (group.got_subcommand("clean")) return cli::CleanLeague(a.common);
  if (group.got_subcommand("list")) return cli::ListLeagues(a.common);
  if (group.got_subcommand("open")) return cli::OpenLeagueNamed(a.name, a.common);
  if (group.got_subcommand("info")) return cli::ShowLeague(a.common);
  if (group.got_subcommand("switch")) return cli::SwitchLeague(a.common);
  if (group.got_subcommand("drive")) return cli::ShowDrives(a.name);
  return cli::NewLeague(a.request, a.common);
}

int RunCommand(CLI::App& app, Arguments& a) {
  if (app.got_subcommand("league")) return RunLeague(*app.get_subcommand("league"), a);
  if (app.got_subcommand("doctor"))
    return a.recount ? cli::RecountBooks(a.common) : cli::ExamineLeague(a.common);
  if (app.got_subcommand("teams")) return cli::ShowTeams(a.common);
  if (app.got_subcommand("roster")) return cli::ShowRoster(a.team, a.view, a.common);
  if (app.got_subcommand("ratings")) {
    return OneOrAll(a.team, a.all) ? cli::RateTeams(a.team, a.all, a.common) : kWrongUsage;
  }
  if (app.got_subcommand("depth") || app.got_subcommand("rotation")) {
    if (!OneOrAll(a.coach.team, a.coach.all)) return kWrongUsage;
    return app.got_subcommand("depth") ? cli::ShowDepth(a.coach, a.common)
                                       : cli::ShowRotation(a.coach, a.common);
  }
  if (app.got_subcommand("daily")) return cli::ShowDaily(a.daily, a.common);
  if (app.got_subcommand("plan")) return cli::ShowPlan(a.coach, a.common);
  if (app.got_subcommand("play")) return cli::PlayExhibition(a.play, a.common);
  if (app.got_subcommand("film")) return cli::ShowFilm(a.file, a.speak, a.common);
  if (app.got_subcommand("box")) return cli::ShowBox(a.box, a.common);
  if (app.got_subcommand("log")) return cli::ShowLog(a.box.Game, a.common);
  if (app.got_subcommand("dump")) return cli::Dump(a.file, a.record, a.common);
  if (app.got_subcommand("schedule")) return cli::RunSchedule(app, a.schedule, a.common);
  if (app.got_subcommand("season")) return cli::RunSeason(app, a.season, a.common);
  if (app.got_subcommand("phrases")) return cli::RunPhrases(app, a.phrases, a.common);
  if (cli::IsNews(app)) return cli::RunNews(app, a.news, a.common);
  if (app.got_subcommand("say")) return cli::RunSay(app, a.phrases);
  if (app.got_subcommand("standings")) return cli::ShowStandings(a.standings, a.common);
  if (app.got_subcommand("power")) return cli::ShowPower(a.common);
  if (app.got_subcommand("leaders")) return cli::RunLeaders(app, a.leaders, a.common);
  if (app.got_subcommand("records")) return cli::ShowRecords(a.leaders.Records, a.common);
  if (app.got_subcommand("start") || cli::Interactive()) return cli::Start(a.common);
  std::cout << app.help();
  return 0;
}

/// The data tree is free, or the user goes on all the same.
bool MayStart(cli::Terminal& terminal, bool force) {
  terminal.AssumeYes = force;
  terminal.YesOption = "--force";
  const bool may = CheckGameOpenStatus();
  terminal.YesOption = "--yes";
  return may;
}

/// The data tree is marked as open while this lives, however the program ends.
struct Opened {
  Opened() { cli::CloseOnSignals(StatusFilePath()); }
  ~Opened() { MarkClosed(); }
};

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Tipline: a simulation and coaching game of league basketball");
  Arguments a;
  AddCommon(app, a);
  AddLeague(app, a);
  AddLists(app, a);
  AddPlay(app, a);
  AddCoach(app, a);
  AddBooks(app, a);
  AddStandings(app, a);
  cli::AddSchedule(app, a.schedule, a.common);
  cli::AddSeason(app, a.season, a.common);
  cli::AddPhrases(app, a.phrases, a.common);
  cli::AddNews(app, a.news, a.common);
  cli::AddLeaders(app, a.leaders, a.common);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : kWrongUsage;
  }
  if (app.count("--seed") > 0) a.common.Seed = a.seed;
  for (const char* option : {"--home", "--league"}) {
    if (app.count(option) > 0 && app[option]->as<std::string>().empty()) {
      std::cerr << "tipline: " << option << " needs a name\n";
      return kWrongUsage;
    }
  }
  tipline::SeedRandom(a.common.Seed ? *a.common.Seed
                                    : static_cast<std::uint64_t>(
                                          std::chrono::system_clock::now().time_since_epoch().count()));
  cli::Terminal terminal;
  program.Home = platform::DataHome(a.home);
  program.ProgramFolder = program.Home / "program";
  try {
    LoadSetup();
    if (!MayStart(terminal, a.force)) return 1;
    const Opened opened;
    terminal.AssumeYes = a.yes || a.schedule.Yes || a.season.Yes || a.phrases.Yes || a.leaders.Yes;
    const int code = RunCommand(app, a);
    std::cout.flush();
    return std::cout || code != 0 ? code : cli::Refuse("the output can't be written");
  } catch (const std::exception& failure) {
    return cli::Refuse(failure.what());
  }
}
