#pragma once
// What a computer coach decides in a game.

namespace tipline {

/// The computer's command at the offense: break or set, shoot, drive or pass; ends in FindResult or a pass.
void ComputerPlayCall();
/// May turn an "OUTSIDE" call into "DRIVE".
void ComputerDriveDecision();
/// The whole defensive call of a side.
void ComputerDefenseCall(int side);
/// Whether a side fouls now: sets `QuickFoul`.
void ComputerFoulDecision(int side);
/// Pace, last shot, timeout wishes and foul decision of a computer-run side, at every stop.
void ComputerSideReview(int side);
/// Both reviews of a stop, and the new look at the defense that follows some results.
void ComputerReviews();
/// The stored man-to-man assignments of a computer side: position against position.
void ComputerSetMatchups(int side);

}  // namespace tipline
