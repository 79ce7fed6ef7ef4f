#pragma once
// What a game adds to the season of both teams beside wins and losses.

namespace tipline {

/// Turnovers and rebounds of nobody, possessions, points by period, the shot table, and the most and
/// least in a game, of a team and of its opponents. Needs the totals of `game.side[].TeamLine`; writes
/// `game.team`.
void AddTeamBooks();

}  // namespace tipline
