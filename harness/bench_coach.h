#pragma once
// Human coaches for tests: they stop the game wherever a coach can be asked, and go on by themselves.

namespace tipline {

/// A human on both benches who leaves the substitutions to the computer and calls every play himself.
void SeatHumans();

/// Goes on from this stop and leaves the play to the computer, so that the game runs as between computers.
void LeaveItToTheComputer();

/// Goes on from this stop with whatever command, drawn, whether it makes sense or not.
void CommandAnything();

}  // namespace tipline
