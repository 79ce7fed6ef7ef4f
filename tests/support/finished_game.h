#pragma once
// A league game that is over, put together by hand: ten men a side, regulation in four periods, kind "L".
#include "aftermath/season_lines.h"
#include "support/two_teams.h"

namespace tipline {

/// Team 1 (Miami, MIA) at team 2 (Atlanta, ATL) of one division on November 5; nobody has done anything yet.
/// Scores are set by `Score`.
inline void FinishedGame() {
  TwoTeams();
  league.Conference[1] = league.Conference[2] = 1;
  league.PositionLabel = {{"PG", "SG", "SF", "PF", "C"}};
  game.team[1].City = "Miami", game.team[1].Abbrev = "MIA";
  game.team[2].City = "Atlanta", game.team[2].Abbrev = "ATL";
  game.GameMonth = 3, game.GameDay = 5, game.GameCalendarMonth = 11, game.GameYear = 2010;
  game.Period = 4;
  game.GameClock = 0;
  game.GameStarted = game.GameOver = true;
  for (int side = 1; side <= 2; ++side) {
    game.side[side].CoachMode = "C";
    for (int slot = 1; slot <= kMen; ++slot) {
      PlayerRecord& p = PlayerAt(side, slot);
      p.FirstName = "Al";
      p.LastName = "Man" + std::to_string(slot);
      p.ShortName = p.LastName.View();
      p.WinLossMark = p.SeriesStats.SeriesMark = 99;
    }
  }
}

/// Points of both sides, and at the half.
inline void Score(int visitor, int home, int visitorHalf = 0, int homeHalf = 0) {
  game.side[1].Score = visitor, game.side[2].Score = home;
  game.side[1].HalfScore = visitorHalf, game.side[2].HalfScore = homeHalf;
}

/// So many points from the floor and the line; the line of the game for more.
inline StatLine& Line(int side, int slot, int points = 0, int minutes = 20) {
  StatLine& line = PlayerAt(side, slot).Stats[3];
  line.FGM = line.FGA = static_cast<i16>(points / 2);
  line.FTM = line.FTA = static_cast<i16>(points % 2);
  ManAt(side, slot).PlayerGameTime = minutes * kMinute;
  return line;
}

}  // namespace tipline
