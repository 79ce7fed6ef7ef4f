#pragma once
// The score ticker: entries of the games under way, which the screen of another game shows in step.
#include <vector>

#include "league/ticker_record.h"

namespace tipline {

/// Notes where the game stands, in `game.TickerRows`, where the rule asks for the ticker and a league game is
/// played in an open league. The entries reach the file with the books of the game.
void WriteTicker();
/// The same one time in four, as a play begins; draws from the generator that is only for show.
void TickNowAndThen();
/// At the start of a period: once, and two times more as the second half begins.
void TickPeriod();

/// The entry as the game stands.
TickerRecord TickerEntry();

/// Appends the entries of the game to HcTicker. A failure is no matter for the game: false, untold.
bool PostTicker();
/// All entries of the open league, oldest first. False, told, when the file can't be read.
bool LoadTicker(std::vector<TickerRecord>& entries);

}  // namespace tipline
