#pragma once
// The parts of a shot as it is told, for the files that tell it. All read the play of the scene as posted.
#include <string>

#include "narration/lines.h"

namespace tipline {

inline constexpr int kInTheAir = 6;  ///< cue of the court: the ball has left the hand

/// What a shot looks like.
enum class Look : u8 {
  kPlain,
  kLayup,
  kSlam,      ///< a basket that the books count as a dunk
  kBlownSlam  ///< a miss that was meant to be one
};

/// "Smith scores from outside", and who fouled or blocked.
void DescribeShotBriefly();
/// From the look to the moment the ball leaves the hand.
void DescribeShotTry(Look look);
/// In, out, blocked or fouled, and what follows from it.
void DescribeShotResult(Look look);

/// A line of the shooter: with his name in front, unless the line before named him. `linesBefore` is how many
/// lines the stop had before the shot.
void VerbLine(std::string verb, int linesBefore, int spokenKind = kUnspoken);
/// The line that tells a basket: its colours, its sounds.
void MarkBasket(bool three);
/// A man's count of the game in brackets behind the last line, when the listener wants it.
void AddStat(int count);
/// "for the lead", "to tie it up", when the basket did that.
void DescribeGoAhead();
void DescribeTieIt();
/// The horn sounds with the ball in the air.
void DescribeBuzzerBeater();
/// The period's first basket brings a score.
void NoteBasket();

}  // namespace tipline
