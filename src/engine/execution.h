#pragma once
// Posting: what a result does to the stat lines, the score and the ball.
#include "engine/game_state.h"

namespace tipline {

/// Carries out `game.PlayResult`: draws what only matters now (assist, tip-in, loose ball), posts it, and
/// leaves side changes, `DeadBallKind` and marks. Runs once a play, after ChargeTime.
void PlayByPlay();

/// The man's line of this game.
StatLine& GameLine(int side, int slot);

/// `points` (1 to 3) for a man: score, periods, plus/minus of the ten, run, leads, bench and fast-break
/// points, and a row of the scoring log with the letter `kind`. When the log is full its oldest row goes: the
/// totals stand elsewhere, the log keeps the end of the game. A slot of 0 changes nothing.
void PostPoints(int side, int slot, int points, char kind);

/// A shot of a man of the offense: attempts, makes, shot table by `game.PlayKind`, shots faced by the ball's
/// defender, on-floor shares, streak, and the points when it went in.
void PostShot(int slot, bool three, bool made);

/// Shots made in a row; misses count below zero. The longest run is kept.
void ContinueStreak(i16& streak, i16& longest, bool made);

/// An assist of `game.play.Assister` when the basket was `Assisted`.
void PostAssist();

/// A turnover of a man (`slot` 0: of the team).
void PostTurnover(int side, int slot);

/// A personal foul for `slot` of `side`; `teamFoul` false leaves the team's count of the period alone.
void PostFoul(int side, int slot, bool teamFoul = true);

/// The rebound as `game.play` has it: a man's, or the team's when the ball is dead; the chances of the ten on
/// the floor.
void PostRebound();

/// A possession of `side` has ended.
void CountPossession(int side);

/// The ball goes to the other side: swaps offense and defense, counts the possession, clears
/// `game.possession`.
void SwapSides();

/// The other side goes to the line for a technical, or is done there: the sides change over, but nobody has
/// lost the ball and no possession has ended.
void FaceAbout();

/// A row of the play log: what a man (slot 0: the team) of `side` tried and what came of it, at `clock`
/// tenths left. When the log is full the row is left out.
void AddPlayLog(int clock, int side, int slot, PlayKind action, PlayResult outcome, PlayNote note = kNoNote,
                int otherSide = 0, int otherSlot = 0);

/// The free throws that the team's foul number `fouls` of this period is worth when nobody was shooting; ""
/// for none.
PlayKind PenaltyTrip(int fouls);
/// Its team fouls, two more in overtime, reach the lowest limit.
bool InPenalty(int side);

}  // namespace tipline
