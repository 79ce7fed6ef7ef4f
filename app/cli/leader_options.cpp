#include "cli/leader_options.h"

namespace tipline::cli {
namespace {

void AddReportOptions(CLI::App& leaders, LeaderArguments& a) {
  LeaderRequest& r = a.Leaders;
  auto* report =
      leaders.add_option("--report", r.Report, "a leader report, 1 to 50")->check(CLI::Range(1, 50));
  report->excludes("--board")->excludes("--top40");
  leaders.add_flag("--reports", r.Reports, "the leader reports there are");
  leaders.add_flag("--columns", r.Columns, "what men can be ranked by");
  auto* define = leaders.add_option("--define", r.Define, "keep a leader report of your own, number 8 to 50");
  auto* section = leaders.add_option(
      "--section", r.Sections,
      "of that report: KEY=COLUMN,COLUMN, the column that ranks the men and those beside it; once for each");
  define->needs(section)->check(CLI::Range(1, 50));
  section->needs(define)->allow_extra_args(false);
  leaders.add_option("--name", r.Name, "its name, up to 20 characters")->needs(define);
  leaders.add_option("--clear", r.Clear, "empty a leader report of your own")->check(CLI::Range(1, 50));
  leaders.add_flag("--yes", a.Yes, "without asking");
}

}  // namespace

void AddLeaders(CLI::App& app, LeaderArguments& a, Common& common) {
  LeaderRequest& r = a.Leaders;
  auto* leaders = app.add_subcommand("leaders", "who leads the league; without options the eight boards");
  leaders->add_option("--board", r.Board,
                      "points, rebounds, assists, steals, blocks, fg, ft, three, or a column such as "
                      "\"Assist/TO\" or PER48:Scoring");
  leaders->add_option("--top", r.Top, "rows of a list (default: 10)")->check(CLI::Range(1, 100000));
  leaders->add_option("--team", r.Team, "number, abbreviation, city or nickname");
  auto* real = leaders->add_flag("--real", r.Real, "the seasons that the ratings come from");
  leaders->add_flag("--replay", r.Replay, "this season (default)")->excludes(real);
  leaders->add_option("--top40", r.Category, "the best single games, of one category or of all")
      ->expected(0, 1)
      ->excludes("--board")
      ->excludes(real);
  leaders->add_flag("--csv", common.Csv, "as comma-separated text");
  AddReportOptions(*leaders, a);

  RecordRequest& book = a.Records;
  auto* records = app.add_subcommand("records", "the record book: the five best of every category");
  auto* all = records->add_flag("--all", book.All, "of a game and of a season (default)");
  records->add_flag("--season", book.Season, "of a season alone")->excludes(all);
  records->add_flag("--game", book.Game, "of a game alone")->excludes(all)->excludes("--season");
  records->add_flag("--teams", book.Teams, "of teams alone");
  records->add_flag("--players", book.Players, "of players alone")->excludes("--teams");
  records->add_flag("--all-time", book.AllTime, "of all leagues");
  records->add_flag("--csv", common.Csv, "as comma-separated text");
}

int RunLeaders(const CLI::App& app, LeaderArguments& a, const Common& common) {
  a.Leaders.BestGames = app.get_subcommand("leaders")->count("--top40") > 0;
  return ShowLeaders(a.Leaders, common);
}

}  // namespace tipline::cli
