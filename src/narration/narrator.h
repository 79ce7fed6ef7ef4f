#pragma once
// The announcer, as the engine knows him: each call tells what has just happened, shows it and films it. With
// nobody listening they do nothing. Words are drawn from the generator that is only for show, so that a game
// ends the same whether it is told or not.
#include "engine/game_state.h"

namespace tipline {

/// Plays are told; what-if runs of the chances are not.
inline bool Listening() { return (game.CommentaryOn || game.FilmOn) && !game.AnalysisMode; }
/// They go on film alone: nothing is shown or spoken.
inline bool OnlyFilmed() { return game.FilmOn && !game.CommentaryOn; }

/// A game begins, its coaches chosen: it is filmed where the rules keep the film, heard or not.
void BeginFilm();

/// The play is decided, and about to be posted: keeps it as it stands, in `game.scene`.
void NoteScene();
/// The play of `game.scene` has been posted.
void NarratePlay();
/// A play was interrupted: `game.incident` tells how.
void NarrateIncident();
/// The ball went up and `game.OffenseSide` has won it; or a period begins without a jump, with
/// `game.OffenseSide` to bring the ball in. The opening of a game belongs to the first jump.
void NarrateOpening();
/// A pass that moved the ball and led to no shot yet, from position `game.possession.PreviousSlot`.
void NarrateQuickPass();
/// A timeout of a side, by its coach or by the broadcast.
void NarrateTimeout(int side, bool media);
/// The line-ups changed at this stop: against `PreviousLineup` of each side.
void NarrateLineups();
/// A period has come to its end, `game.Period`; the game too, when `game.GameOver`.
void NarratePeriodEnd();

}  // namespace tipline
