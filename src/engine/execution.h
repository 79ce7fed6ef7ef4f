#pragma once
// Posting: what a result does to the stat lines, the score and the ball.
#include "league/stat_line.h"

namespace tipline {

/// Carries out `game.PlayResult`: draws what only matters now (assist, tip-in, loose ball), posts it, and
/// leaves side changes, `DeadBallKind` and marks. Runs once a play, after ChargeTime.
void PlayByPlay();

/// The man's line of this game.
StatLine& GameLine(int side, int slot);

/// `points` (1 to 3) for a man: score, periods, plus/minus of the ten, run, leads, bench and fast-break
/// points. A slot of 0 changes nothing.
void PostPoints(int side, int slot, int points);

/// A shot for the ball handler or another man of the offense: attempts, makes, shot table by `game.PlayKind`,
/// shots faced by the ball's defender, on-floor shares, streak, and the points when it went in.
void PostShot(int slot, bool three, bool made);

/// A turnover of a man (`slot` 0: of the team). `game.Possession` counts are the caller's.
void PostTurnover(int side, int slot);

/// A personal foul, and the team's, for `slot` of `side`; `teamFoul` false leaves the team count alone.
void PostFoul(int side, int slot, bool teamFoul);

/// The ball goes to the other side: swaps offense and defense, counts the possession, clears
/// `game.possession`.
void SwapSides();

/// A new row of the scoring log for a basket or free throw of `slot`; its time and score are filled when the
/// play is charged. When the log is full the oldest row goes: totals stand elsewhere, the log keeps the end
/// of the game.
void OpenScoreLog(int side, int slot, char kind);
void CloseScoreLog();

}  // namespace tipline
