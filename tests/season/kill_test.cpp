// A program that is killed as it plays a season: the league goes on at the boundary between two games.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "base/group_save.h"
#include "base/random.h"
#include "base/record_file.h"
#include "harness/disk_league.h"
#include "harness/temporary_home.h"
#include "league/league_reset.h"
#include "league/office_files.h"
#include "league/program.h"
#include "league/startup.h"
#include "season/recount.h"

namespace tipline {
namespace {

/// Opens the league as a program does that starts, and plays its games until it is killed.
[[noreturn]] void PlayOn() {
  if (OpenLeague()) PlayScheduledGames();
  ::_exit(0);
}

int PlayedRows() {
  int played = 0;
  for (const ScheduleRecord& row : league.ScheduleGame) played += row.Status == 'P';
  return played;
}

TEST(KilledSeason, EveryGameIsWhollyInTheBooksOrNotAtAll) {
  const char* more = std::getenv("TIPLINE_KILLS");
  const int kills = more ? std::atoi(more) : 25;
  TemporaryHome home;
  LeagueRequest request;
  request.Preset = "historic";
  request.Teams = 8;
  request.Divisions = 2;
  request.Games = 28;
  MakeDiskLeague(request);
  int before = 0, cutShort = 0;
  for (int kill = 1; kill <= kills; ++kill) {
    const auto pause = static_cast<useconds_t>(2000 + Rnd(30000));
    const pid_t player = ::fork();
    ASSERT_GE(player, 0);
    if (player == 0) PlayOn();
    ::usleep(pause);
    ::kill(player, SIGKILL);
    int state = 0;
    ::waitpid(player, &state, 0);
    cutShort += ReadWholeFile(program.LeagueFolder / "HcBooks.redo").starts_with("TIPGROUP");
    ASSERT_TRUE(OpenLeague());
    const Recount recount = RecountLeague();
    ASSERT_TRUE(recount.faults.empty()) << "kill " << kill << ": " << recount.faults.front();
    ASSERT_EQ(recount.games, PlayedRows()) << "kill " << kill;
    ASSERT_EQ(recount.boxes, recount.games);
    ASSERT_GE(recount.games, before) << "no game is lost";
    before = recount.games;
    if (before + 8 >= league.GameCount()) {
      ASSERT_TRUE(ResetLeague());
      before = 0;
    }
  }
  if (more) std::printf("%d kills, %d of them within a save\n", kills, cutShort);
}

}  // namespace
}  // namespace tipline
