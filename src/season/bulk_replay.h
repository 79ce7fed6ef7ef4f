#pragma once
// A league measured over many replays of its whole schedule.
//
// Every replay begins with the league as it stands when the first one begins: it is played on a copy of the
// league's files, and the last copy takes the league's place when all are done. So a replay does not depend
// on those before it, several may be played side by side, and with the same seed the totals are the same
// whoever played which. A run that is stopped leaves the league as it was.
#include <cstdint>
#include <filesystem>
#include <string>

#include "season/autoplay_screen.h"

namespace tipline {

/// Sums over seasons.
struct ReplaySide {
  i32 FGM = 0, FGA = 0, F3M = 0, F3A = 0, FTM = 0, To = 0, Points = 0;
};
struct ReplayTeam {
  i32 Seasons = 0, Games = 0, Wins = 0, Losses = 0;
  Table<ReplaySide, 1, 2> Side;  ///< 1 the team, 2 its opponents
};
using ReplayTotals = BigTable<ReplayTeam, 1, kTeams>;

/// Adds the season that `league.team` holds, of its active teams.
void AddSeason(ReplayTotals& totals);
/// The averages so far: seasons of wins and losses, all else by the game. A row for each active team.
std::string BulkReplayCsv(const ReplayTotals& totals);

/// All of BulkRunCommand but the question; `screen` is the one it was given to, for what it shows. Games that
/// a human would coach are coached by the computer; the schedule remembers whose they are. False when it was
/// stopped, or, after telling the user, when a replay failed; the averages of the replays that were done are
/// then in the league's BulkReplay.csv all the same.
bool RunReplays(HCAUTOPLAY& screen, AutoplayScreens& screens, int replays, int jobs);

}  // namespace tipline
