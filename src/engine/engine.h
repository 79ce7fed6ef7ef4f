#pragma once
// The cycle of a game, and the commands that move it. A game runs inside SetPlayBox: it goes from stop to
// stop, takes the computer's decision where a side is computer-run, and returns when a human must be asked or
// the game is over. In bulk play (`program.Autoplaying`) it returns only when the game is over.
#include <string>

namespace tipline {

/// Clears the running game and gives it its start values; measures both teams and, for league games, the
/// league's replay against its era. Needs both teams loaded; leaves what the load worked out (`game.loaded`)
/// alone.
void PrepareGame();

/// First stop of a prepared game: line-ups in, "JUMPBALL-1", then SetPlayBox. Nothing when the game is over.
void NewGame();

/// Runs the game to its next stop that asks a human, or to its end. Reads and writes `game`.
void SetPlayBox();

/// The two fives on the floor are the starters of the game, in the line-up tables and in each man's `GS`.
void NoteStarters();

/// The jump ball: who wins the tip, and the state after it. Writes the sides, the arrow, and charges the
/// time.
void JumpBall();

// The commands of a coach. Each ends in SetPlayBox; at a stop that does not ask for it, it does nothing.
enum class Refusal {
  kNone,
  kNotNow,       ///< game over, or no human to ask
  kRosterLimit,  ///< the coach did not allow a roster over the limit
  kLineup,       ///< "Invalid Lineup!"
  kShooterGone,  ///< the free-throw shooter must be in the game
  kJumperGone,   ///< the jumper must be in the game
};
/// The ball is due to come in, or up, at this stop: going on resolves that first.
bool BallIsDue();
/// The stop is left by going on; at the others a coach has to choose.
bool CanContinue();
/// The acting side may call time: one is left, none was just taken, and the ball is not going up.
bool TimeoutOpen();
/// "Q-Pass", and a mark for each step in which the defense has learnt to wait for the offense's quick passes.
std::string QuickPassLabel();

/// Goes on from a stop. When refused it tells the coach why through the dialogs, changes nothing and returns
/// the reason.
Refusal ContinueChosen();
void ShootChosen();
void DriveChosen();
void FastBreakChosen();
void FreeThrowChosen();
void BurnChosen();
void PassChosen();
/// A pass aimed at `game.possession.QuickPassTarget`, a position; a value outside 1 to 5 is drawn.
void QuickPassChosen();
/// The coach picks position 1 to 5 from the play grid.
void PlayGridChosen(int position);
/// Carries out the call in `game.call`. Refuses, with its message, when there is no time for a play.
void UsePlayNowRoutine();
/// The defense's answer to a call, `game.call.DefenseCall` 1 to 6.
void DefensePlayCallChosen();
/// The defense leaves its answer to the computer, which calls its whole defense.
void ComputerDefenseChosen();
/// The human hands this play to the computer.
void ComputerChosen();
/// A timeout of the acting side. Nothing when it has none left, one was just taken, or the ball is going up.
void TimeoutChosen();

/// What the acting side is asked at this stop, as the game screen shows it; empty when nobody is asked.
std::string Prompt();

/// Loads a team and its roster into side 1 or 2 of the game: records, repaired where they need it and then
/// written back once, days off, today's form, availability, shot mix, stints. False, and the side stays as it
/// is, when `teamNo` is outside 1..720 or no team holds that slot.
bool LoadTeam(int teamNo, int side);
/// What a load works out for a side that holds its records already.
void ReadySide(int side);
/// Writes a side's coach, men, team and days off to the league folder as team `teamNo`. A college playoff
/// game writes nothing. False when the side holds another team or, after telling the user, when a file could
/// not be written.
bool SaveTeam(int teamNo, int side);

}  // namespace tipline
