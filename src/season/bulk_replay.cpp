#include "season/bulk_replay.h"

#include <cmath>
#include <cstdio>
#include <deque>
#include <sstream>

#include "base/csv.h"
#include "base/group_save.h"
#include "base/random.h"
#include "base/record_file.h"
#include "engine/game_state.h"
#include "league/files.h"
#include "league/league_reset.h"
#include "league/program.h"
#include "league/rules.h"
#include "league/setup.h"
#include "platform/dialogs.h"
#include "platform/worker.h"

namespace tipline {
namespace {

namespace fs = std::filesystem;

// clang-format off
constexpr i32 ReplaySide::*kSums[] = {&ReplaySide::FGM, &ReplaySide::FGA, &ReplaySide::F3M, &ReplaySide::F3A,
                                      &ReplaySide::FTM, &ReplaySide::To,  &ReplaySide::Points};
constexpr i32 ReplayTeam::*kCounts[] = {&ReplayTeam::Seasons, &ReplayTeam::Games, &ReplayTeam::Wins,
                                        &ReplayTeam::Losses};
// clang-format on

/// visit(number) for every number of the totals, in one order.
template <class Totals, class Visit>
void ForNumbers(Totals& totals, Visit&& visit) {
  for (auto& team : totals) {
    for (const auto count : kCounts) visit(team.*count);
    for (auto& side : team.Side) {
      for (const auto sum : kSums) visit(side.*sum);
    }
  }
}

std::string Written(const ReplayTotals& totals) {
  std::ostringstream out;
  ForNumbers(totals, [&out](i32 number) { out << number << ' '; });
  return out.str();
}

void AddWritten(ReplayTotals& totals, const std::string& text) {
  std::istringstream in(text);
  ForNumbers(totals, [&in](i32& number) {
    i32 more = 0;
    in >> more;
    number += more;
  });
}

void AddLine(ReplaySide& side, const StatLine& line) {
  side.FGM += line.FGM, side.FGA += line.FGA;
  side.F3M += line.F3M, side.F3A += line.F3A;
  side.FTM += line.FTM, side.To += line.To;
  side.Points += PointsOf(line);
}

/// One place behind the point, halves away from zero.
std::string Tenths(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f", std::round(value * 10) / 10);
  return text;
}

/// ".487", "1.000"; ".000" without attempts.
std::string Percentage(int made, int tried) {
  const double share = tried > 0 ? static_cast<double>(made) / tried : 0;
  char text[32];
  std::snprintf(text, sizeof text, "%.3f", std::round(share * 1000) / 1000);
  return text[0] == '0' ? text + 1 : text;
}

std::string SideCells(const ReplaySide& side, int games) {
  const auto each = [games](int sum) { return Tenths(games > 0 ? static_cast<double>(sum) / games : 0); };
  return each(side.FGM) + "," + each(side.FGA) + "," + Percentage(side.FGM, side.FGA) + "," + each(side.F3M) +
         "," + each(side.F3A) + "," + Percentage(side.F3M, side.F3A) + "," + each(side.FTM) + "," +
         each(side.To) + "," + each(side.Points);
}

/// Files that tell of games; a season begins without them.
bool IsOfAGame(const fs::path& file) {
  const std::string ending = Upper(file.extension().string());
  for (const char* other : {".BOX", ".PLY", ".FLM", ".HAL", ".HA2", ".HA3"}) {
    if (ending == other) return true;
  }
  return false;
}

bool CopyLeague(const fs::path& from, const fs::path& to) {
  std::error_code error;
  fs::remove_all(to, error);
  fs::create_directories(to, error);
  for (const auto& entry : fs::directory_iterator(from, error)) {
    if (!entry.is_regular_file() || IsOfAGame(entry.path())) continue;
    fs::copy_file(entry.path(), to / entry.path().filename(), error);
    if (error) return false;
  }
  return !error;
}

/// A folder of our own for as long as the replays last.
class Scratch {
 public:
  Scratch() {
    std::error_code error;
    const fs::path all = fs::temp_directory_path(error);
    for (int k = 1; !error && k < 10000; ++k) {
      const fs::path folder = all / ("tipline-replays-" + std::to_string(k));
      if (fs::create_directory(folder, error)) {
        folder_ = folder;
        return;
      }
    }
  }
  ~Scratch() {
    std::error_code ignored;
    if (!folder_.empty()) fs::remove_all(folder_, ignored);
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  const fs::path& Folder() const { return folder_; }

 private:
  fs::path folder_;
};

/// The league of that folder with nothing left of the one before but the eras.
bool OpenFolder(const fs::path& folder) {
  const EraTable pro = league.EraPro, college = league.EraCollege;
  league = {};
  league.EraPro = pro;
  league.EraCollege = college;
  program.LeagueFolder = folder;
  LoadRules();
  if (!LoadAllTeams()) return false;
  LoadLeaguePlayers();
  return true;
}

/// Nobody is hurt, suspended or left out when a season begins.
bool EverybodyIsFit() {
  const RecordFile file(PlayersFile(), kPlayerSlotBytes);
  const bool written = file.RewriteAll(0, [](int, u8* bytes) {
    PlayerRecord man;
    ReadRecord(bytes, man);
    man.InjuryType = man.InjurySeverity = man.SuspensionGames = 0;
    man.InjuryReturnMonth = man.InjuryReturnDay = 0;
    man.SeasonInjuryCount = man.Status = 0;
    WriteRecord(man, bytes);
  });
  if (!tipline::Written(written, file.Path())) return false;
  LoadLeaguePlayers();
  return true;
}

class Replays {
 public:
  Replays(HCAUTOPLAY& screen, AutoplayScreens& screens, int replays, int jobs)
      : screen_(screen),
        screens_(screens),
        replays_(replays),
        jobs_(Clamp(jobs, 1, replays)),
        league_(program.LeagueFolder),
        seed_(SeedOfAll(screen)),
        speed_(setup.ComputerCheck) {}
  ~Replays() { setup.ComputerCheck = speed_; }

  bool Run();

 private:
  static std::uint64_t SeedOfAll(const HCAUTOPLAY& screen) {
    if (screen.SeasonSeed) return *screen.SeasonSeed;
    const auto high = static_cast<std::uint64_t>(Rnd(1 << 30));
    return high << 30 | static_cast<std::uint64_t>(Rnd(1 << 30));
  }
  fs::path Base() const { return scratch_.Folder() / "league"; }
  fs::path ResultOf(int replay) const { return scratch_.Folder() / ("season-" + std::to_string(replay)); }
  /// Process `job` of `jobs_` plays every so-many-th replay; this one, the last, has the last replay.
  bool IsShareOf(int job, int replay) const { return (replays_ - replay) % jobs_ == job; }

  bool PlayShare(int job);
  bool PlayReplay(int job, int replay);
  bool PlaySeason(int replay, bool here);
  bool Merge();
  bool TakeLastReplay();

  HCAUTOPLAY& screen_;
  AutoplayScreens& screens_;
  int replays_, jobs_;
  fs::path league_;
  std::uint64_t seed_;
  u8 speed_;
  Scratch scratch_;
  ReplayTotals totals_;
  int merged_ = 0;
};

/// All games in one go; `here` in the process that shows how far it is.
bool Replays::PlaySeason(int replay, bool here) {
  HCAUTOPLAY season(screens_);
  season.NoCompleteBox = true;
  season.SeasonSeed = seed_;
  season.Replay = replay;
  if (!season.Open()) return false;
  std::vector<Table<Text<1>, 1, 2>> coaches;
  for (ScheduleRecord& row : league.ScheduleGame) {
    coaches.push_back(row.CoachKind);
    row.CoachKind.Fill(std::string_view("C"));
  }
  season.Choose({}, true);
  int games = 0;
  if (season.GamesMarked) season.PlayCommandChosen();
  while (season.AutoRunning && screens_.GoesOn()) {
    if (here) screens_.BulkProgress(merged_, ++games);
    season.Timer1();
  }
  // Games whose teams are not decided yet end the season; a stop leaves it running.
  const bool complete = !season.AutoRunning && !season.GameLost;
  if (replay == replays_) {
    DropMarks();
    for (std::size_t n = 1; n < coaches.size() && n < league.ScheduleGame.size(); ++n) {
      league.ScheduleGame[n].CoachKind = coaches[n];
    }
    if (!SaveSchedule()) return false;
  }
  return complete;
}

bool Replays::PlayReplay(int job, int replay) {
  const fs::path folder = scratch_.Folder() / ("copy-" + std::to_string(job));
  if (!CopyLeague(Base(), folder)) {
    return platform::RefusedWith("The league could not be copied to " + scratch_.Folder().string() + "!");
  }
  if (!OpenFolder(folder) || !ClearSeason()) return false;
  if (!EverybodyIsFit() || !LoadAllTeams()) return false;
  const u8 allTime =
      std::exchange(league.rules.AllTimeRecordCheck, u8{0});  // a replay is no record of all time
  if (!PlaySeason(replay, job == 0)) return false;
  league.rules.AllTimeRecordCheck = allTime;
  ReplayTotals season;
  AddSeason(season);
  return tipline::Written(WriteWholeFile(ResultOf(replay), Written(season), Saving::kUnflushed),
                          ResultOf(replay));
}

bool Replays::PlayShare(int job) {
  for (int replay = 1; replay <= replays_; ++replay) {
    if (!IsShareOf(job, replay)) continue;
    if (!screens_.GoesOn() || !PlayReplay(job, replay)) return false;
    if (job == 0 && !Merge()) return false;
  }
  return true;
}

/// Takes in what is done, in the order of the replays, and writes the averages.
bool Replays::Merge() {
  std::error_code error;
  bool news = false;
  while (merged_ < replays_ && fs::exists(ResultOf(merged_ + 1), error)) {
    AddWritten(totals_, ReadWholeFile(ResultOf(++merged_)));
    news = true;
  }
  if (!news) return true;
  screen_.BulkCompletedLabel = "Bulk Completed: " + std::to_string(merged_);
  screens_.BulkProgress(merged_, 0);
  const fs::path file = league_ / "BulkReplay.csv";
  return tipline::Written(WriteWholeFile(file, BulkReplayCsv(totals_), Saving::kUnflushed), file);
}

bool Replays::Run() {
  if (scratch_.Folder().empty() || !CopyLeague(league_, Base())) {
    return platform::RefusedWith("There is no room for copies of the league!");
  }
  setup.ComputerCheck = 0;
  screen_.BulkCompletedLabel = "Bulk Completed: 0";
  bool done = true;
  {
    std::deque<platform::Worker> others;
    for (int job = 1; job < jobs_; ++job) others.emplace_back([this, job] { return PlayShare(job); });
    done = PlayShare(0);
    for (auto& other : others) {
      if (!done) other.Stop();
    }
    for (auto& other : others) done = other.Wait() && done;
  }
  done = Merge() && done && merged_ == replays_ && TakeLastReplay();
  return OpenFolder(league_) && screen_.Open(program.PlayoffGame) && done;
}

/// The league becomes the last replay: a folder beside it is made whole and takes its place.
bool Replays::TakeLastReplay() {
  const auto beside = [this](const char* ending) { return fs::path(league_.string() + ending); };
  const fs::path made = beside(".new"), old = beside(".old");
  std::error_code error;
  fs::remove_all(made, error);
  bool copied = CopyLeague(league_, made);
  for (const auto& entry : fs::directory_iterator(league_, error)) {  // films and games laid by stay
    const std::string ending = Upper(entry.path().extension().string());
    if (!entry.is_regular_file() || !IsOfAGame(entry.path()) || ending == ".BOX" || ending == ".PLY")
      continue;
    copied = copied && fs::copy_file(entry.path(), made / entry.path().filename(), error);
  }
  for (const auto& entry : fs::directory_iterator(scratch_.Folder() / "copy-0", error)) {
    if (entry.path().filename() == "BulkReplay.csv") continue;  // the league has the newer one
    copied = copied && fs::copy_file(entry.path(), made / entry.path().filename(),
                                     fs::copy_options::overwrite_existing, error);
  }
  if (copied && !error) fs::rename(league_, old, error);
  if (copied && !error) fs::rename(made, league_, error);
  if (copied && !error) {
    fs::remove_all(old, error);
    return true;
  }
  std::error_code ignored;
  if (!fs::exists(league_, ignored)) fs::rename(old, league_, ignored);
  fs::remove_all(made, ignored);
  return platform::RefusedWith("The last replay could not be brought into " + league_.string() + "!");
}

}  // namespace

void AddSeason(ReplayTotals& totals) {
  for (int t = 1; t <= kTeams; ++t) {
    const TeamRecord& team = league.team[t];
    if (team.TeamActive != 1) continue;
    ReplayTeam& sum = totals[t];
    ++sum.Seasons;
    sum.Games += team.Wins + team.Losses;
    sum.Wins += team.Wins;
    sum.Losses += team.Losses;
    for (int side = 1; side <= 2; ++side) AddLine(sum.Side[side], team.TeamStats[side]);
  }
}

std::string BulkReplayCsv(const ReplayTotals& totals) {
  std::string text =
      "Team, Seasons, Wins, Losses, FGM, FGA, FG%, F3M, F3A, F3%, FTM, TO, Pts,"
      "Opp-FGM, Opp-FGA, Opp-FG%, Opp-F3M, Opp-F3A, Opp-F3%, Opp-FTM, Opp-TO, Opp-Pts\n";
  for (int t = 1; t <= kTeams; ++t) {
    const ReplayTeam& sum = totals[t];
    if (league.team[t].TeamActive != 1 || sum.Seasons == 0) continue;
    text += CsvField(TeamName(league.team[t])) + "," + std::to_string(sum.Seasons) + "," +
            Tenths(static_cast<double>(sum.Wins) / sum.Seasons) + "," +
            Tenths(static_cast<double>(sum.Losses) / sum.Seasons) + "," + SideCells(sum.Side[1], sum.Games) +
            "," + SideCells(sum.Side[2], sum.Games) + "\n";
  }
  return text;
}

bool RunReplays(HCAUTOPLAY& screen, AutoplayScreens& screens, int replays, int jobs) {
  const fs::path folder = program.LeagueFolder;
  if (replays < 1 || folder.empty() || !FinishGroupSave(folder)) return false;
  if (!Replays(screen, screens, replays, jobs).Run()) return false;
  platform::dialogs().Tell(std::to_string(replays) + " Replays Complete!\nBulkReplay.csv saved in " +
                           folder.string() + ".");
  return true;
}

}  // namespace tipline
