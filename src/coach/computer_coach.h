#pragma once
// What a computer coach decides in a game. Every decision draws, so that no two games repeat. It only fills
// the settings of a side and the kind of play in `game`; the engine reads them whoever filled them.

namespace tipline {

/// The computer's command at the offense: break or set, shoot, drive or pass. Ends in FindResult or in a
/// pass; the caller goes on to SetPlayBox.
void ComputerPlayCall();
/// May turn an "OUTSIDE" call of the ball handler into "DRIVE". Nothing for any other kind.
void ComputerDriveDecision();
/// The whole defensive call of a side: boards, coverage and double teams of the other side's men, help,
/// press, zone, and whether it fouls. Nothing for a side that is neither 1 nor 2.
void ComputerDefenseCall(int side);
/// Whether a side fouls now: sets `QuickFoul`.
void ComputerFoulDecision(int side);
/// Pace, last shot, timeout wishes and foul decision of a computer-run side, at every stop. What was set at
/// the stop before does not carry over, but a standing order to shoot threes lasts.
void ComputerSideReview(int side);
/// Both reviews of a stop, and the new look at the defense that follows some results.
void ComputerReviews();
/// The stored man-to-man assignments of a side: position against position, or, while man-to-man is played,
/// the best of all 120. True when it has searched; for a human the rules must allow it.
bool ComputerSetMatchups(int side);

}  // namespace tipline
