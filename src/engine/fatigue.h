#pragma once
// How men tire and rest.

namespace tipline {

/// Energy of one man from his load and rest. For every man of the team who is not out, after each play.
void UpdateEnergy(int side, int slot);
/// Fifteen seconds of rest for everybody, whoever called the timeout.
void TimeoutRest();
/// Looks whether the line-ups need a change, and has them changed if so.
void LineupCheck();
/// The men who are out for good leave the floor; with five eligible men, or one man twice, the line-up is
/// filled again.
void EmptyFouledOut();
/// `PlayLength` and `RestLength` of every man of a side, at team load. Reads the rules, `game.player` and
/// `program.PlayoffGame`, writes `game.loaded`.
void SetStints(int side);

}  // namespace tipline
