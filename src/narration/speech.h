#pragma once
// The voice of the commentary. It speaks when the user has a voice on his machine and wants to hear it; else
// nothing here does anything, and no text is made.
#include <string>
#include <string_view>

namespace tipline {

/// Somebody hears what SpeakLine says: there is a voice, and the narrator is on or a film is looked at.
bool SpeechOn();
/// Says a text, translated, with the voice, speed and volume of the preferences. Nothing for an empty text.
void SpeakLine(std::string_view text, bool wait = true);
/// The same for one who asked for this text: as it stands, whether the narrator is on or not.
void SayAloud(std::string_view text, bool wait = true);

/// The user wants to hear lines of this kind.
bool WantsToHear(int spokenKind);
/// Says line n of the buffer, as it was shown, if the user wants lines of its kind.
void SpeakShownLine(int n);
/// Line n of the buffer carries a result. Where neither it nor the line before, if that is heard, begins or
/// ends with the man's name, the voice says a plain sentence on him in its place.
void FillSpokenLine(int n);

// Sentences for which there is no line. Each asks for its own preference first.
void SpeakFinalScore();   ///< winner, loser, and who led them
void SpeakPeriodScore();  ///< of `game.Period`, which has ended
void SpeakLineups();      ///< the men on the floor as a period begins
void SpeakShot();         ///< a basket of the play
/// The foul of the play; `withCount` tells which of his it is, and of the team's once there is a penalty.
void SpeakFoul(bool withCount = true);

/// What the lines of the play left unsaid: the basket and the foul.
void SpeakPlay();
/// The score as a period, or the game, ends.
void SpeakPeriodEnd();

}  // namespace tipline
