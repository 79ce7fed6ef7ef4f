#pragma once
// The lines of a stop leave the buffer: turned to a woman's, filmed, spoken, shown.

namespace tipline {

/// Takes the lines of the stop to whoever listens: pronouns of a women's game, a frame of film, the voice,
/// the box. The buffer is empty afterwards. Nothing when there is no line.
void ShowPlayByPlay();
/// Turns he, his and him to she and her, in the buffer's lines.
void RewriteGender();

}  // namespace tipline
