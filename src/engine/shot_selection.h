#pragma once
// Who has the ball, what shot each of the five has, and how high he stands in the passing order.

namespace tipline {

/// Draws `ShotPick`, `NaturalZone`, `CourtSpot` and `Option` for the offense's five. After a quick pass only
/// the options shift.
void SetOpenStatus();

/// Chooses who ends up with the ball: sets `BallPlayer`, `BallSlot`, `PlayKind`, `BallDefender`. Nothing
/// while a pick is under way.
void FindShooter();

/// The size of a fast break, and who runs in it. On entering "FASTBREAK".
void SetFastbreakNumbers();
/// Puts the runners in their lanes and spots, and the defenders who are back.
void PlaceBreakMembers();

void FindLob();      ///< may set up a lob to the ball handler: `SetPlay`, `LobTarget`, `LobFrom`
void FindPick();     ///< may set up a pick and roll: `PickBall`, `PickScreener`
void ResolvePick();  ///< the ball goes to the man who drives or to the screener

/// The ball handler, under pressure, finds another man for a shot within the same play: settles `PlayResult`.
/// False when the situation forbids it; nothing has changed then.
bool KickOut();

/// A new possession: forced plays, calls and options of the offense panel go back to nothing.
void ResetOffensePanel();

/// The computer's quick pass within a possession: true when it was tried (the cycle then goes round again).
bool ComputerQuickPass();

/// Keeps coverage, double teams and help of both sides, and puts them back after the play, if they were kept.
void KeepCoverage();
void RestoreCoverage();

}  // namespace tipline
