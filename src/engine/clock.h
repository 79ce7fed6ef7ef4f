#pragma once
// Time: what a play takes, when a period and the game end, timeouts.

namespace tipline {

/// Sets `PlayTime`, from the kind of play, its result and both coaches' settings.
void ChargeTime();

/// Takes `PlayTime` off both clocks, feeds the fatigue tables, and ends the period or the game when the clock
/// is out. At the game's end it runs FinishGame once.
void EndPlay();

/// Prepares what comes after a period whose clock this play uses up; once a period.
void EndPeriodNotice();

/// Carries out the timeout wishes of the two sides and media timeouts, between two stops.
void TakeTimeouts();

/// The ball moves to the frontcourt when a timeout is called in the last two minutes of a half.
void AdvanceBallOnTimeout();

/// Charges a timeout to a side: its count, and the tables by period and minute.
void ChargeTimeout(int side);

/// The shot clock after an offensive rebound off the rim: the rule's reset, never above the full clock or the
/// period's.
int ReboundShotClock();

}  // namespace tipline
