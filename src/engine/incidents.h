#pragma once
// What interrupts a game between the call of a play and its draw: injuries, illegal defenses, fights,
// technicals; and the flagrant foul behind a foul that was called. What happened stands in `game.incident`
// until the next play. All of it runs in bulk play too.

namespace tipline {

/// The tests in their order, for the play at hand. True when one of them stopped it: state, result, line-ups
/// and free throws are then set, and the play is not run. Nothing happens in an analysis.
bool PlayIsInterrupted();

/// Whether a man of the offense is hurt, and for how many games: sets `InjuryFound`, `InjuredSide`,
/// `InjuredPlayer`, `InjuryLength` of `game.play` and changes nothing else. The length follows his real
/// season: see GamesToMiss.
void PickInjury();

/// Games that a man of `side` has still to miss in this season so that he misses his real share of it; 0
/// when he has missed them. From his real games, his dates, the games of his team and those he has played.
double GamesToMiss(int side, int slot);

/// Games of the season that a team plays, by the era of its year; a women's season is two fifths of it.
int SeasonGames(int side);

/// The two men with the worst tempers go at each other: both are ejected. Sets the state, and the technical
/// when one of the sides is over the foul limit.
void FightBegins();

/// The defense stood where it may not: a warning, or one free throw, by the rule and its count in this game.
void IllegalDefenseCall();

/// Behind a posted foul of the defense: sets `FlagrantLevel` of `game.play` and posts the flagrant. Nothing
/// with the rule off or when nobody of the defense fouled in the flow of the play.
void FlagrantFoul();
/// The fouler leaves when that cost him the game: once the time of the play is charged, to him too.
void EjectFlagrantFouler();

}  // namespace tipline
